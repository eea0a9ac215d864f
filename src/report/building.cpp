#include "report/building.h"

#include "report/building_tables.h"
#include "report/draft_context.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QString CompuestoDe(const Redaccion& r)
{
    const CasoInforme& c = r.caso;
    const FrasesInforme& frases = c.frases;
    QString frase = u"Se trata de un edificio compuesto de planta baja "_s;
    if (c.punto(11)) {
        frase += u"destinada a uso de "_s + c.minusculas(u"ComboBaja") + u' ';
    }
    frase += u"y "_s + frases.FrasePlantas.toLower();
    if (c.punto(6)) {
        frase += frases.FraseViviendasPlanta.toLower();
    }
    if (c.punto(9)) {
        frase += frases.FraseSotanos;
    }
    return frase;
}

void ZaguanYEscalera(Redaccion& r)
{
    const CasoInforme& c = r.caso;
    r.L1(u"El zaguán de entrada puede ser calificado como "_s + c.minusculas(u"ComboZaguan1") + u" y "_s +
         FraseDeLista(kZaguan, c.texto(u"ComboZaguan2")) + u'.');
    r.L1(u"La escalera de acceso a las viviendas es "_s + c.minusculas(u"ComboEscalera1") + u" y "_s +
         FraseDeLista(kEscalera, c.texto(u"ComboEscalera2")) + u'.');
    r.NL();
}

QString FachadaYCubierta(const CasoInforme& c, const QString& encabezado)
{
    QString frase;
    if (encabezado.contains(u"Cerramientos"_s)) {
        frase = FraseDeLista(kFachada, c.texto(u"ComboFachada"));
    }
    if (encabezado.contains(u"Cubierta"_s)) {
        frase += frase.isEmpty() ? u"Cubierta "_s : u" y cubierta "_s;
        frase += FraseDeLista(kCubiertas, c.texto(u"ComboCubierta"));
    }
    return frase + u'.';
}

void CaracteristicasConstructivas(Redaccion& r)
{
    if (r.Apartado(u"Características constructivas"_s).isEmpty()) {
        return;
    }
    if (!r.Punto(u"Estructura"_s).isEmpty()) {
        r.L2(FraseDeLista(kEstructura, r.caso.texto(u"ComboEstructura")));
    }
    const QString encabezado = r.Punto(u"Fachada y Cubierta"_s);
    if (!encabezado.isEmpty()) {
        r.L2(FachadaYCubierta(r.caso, encabezado));
    }
}

void Servicios(Redaccion& r)
{
    if (!r.Apartado(u"Servicios comunes"_s).isEmpty()) {
        r.L1(r.frases.FraseServiciosComunes);
        r.NL();
    }
    if (r.plan.serviciosIndividuales && !r.Apartado(u"Servicios individuales"_s).isEmpty()) {
        r.L1(r.frases.FraseServiciosIndividuales);
        r.NL();
    }
}

void SituacionActual(Redaccion& r)
{
    if (!r.Apartado(u"Situación actual"_s).isEmpty()) {
        const QString estado = FraseDeOpcion(r.caso, u"OptionEstado", kEstados);
        r.L1(estado.isEmpty() ? QString() : QString(kAperturaEstado % estado));
        r.NL();
    }
}

} // namespace

void DescripcionEnBloque(Redaccion& r)
{
    if (r.caso.punto(5)) {
        r.L1(CompuestoDe(r));
        r.NL();
    }
    if (r.caso.punto(7)) {
        r.L1(r.caso.frases.FraseAscensores);
        r.NL();
    }
    if (r.caso.apartado(8)) {
        ZaguanYEscalera(r);
    }
}

void DescripcionCasa(Redaccion& r)
{
    const FrasesInforme& frases = r.caso.frases;
    r.L1(u"Se trata de un edificio de planta baja "_s + frases.FrasePlantas.toLower() +
         u" destinado a vivienda unifamiliar."_s + frases.FraseSotanos);
    r.NL();
}

void CaracteristicasDelEdificio(Redaccion& r)
{
    r.hayEdificio = !r.Capitulo(u"CARACTERISTICAS DEL EDIFICIO"_s).isEmpty();
    if (!r.hayEdificio) {
        return;
    }
    if (!r.Apartado(u"Descripción y usos"_s).isEmpty()) {
        r.plan.DescripcionEdificio(r);
    }
    if (!r.Apartado(u"Tipología"_s).isEmpty()) {
        r.L1(FraseDeLista(r.plan.tipologia, r.caso.texto(u"ComboTipol")));
    }
}

void RestoDelEdificio(Redaccion& r)
{
    r.NL();
    if (r.hayEdificio) {
        CaracteristicasConstructivas(r);
        if (!r.Apartado(u"Antigüedad del edificio"_s).isEmpty()) {
            r.L1(r.caso.frases.FraseAntiguedad);
            r.NL();
        }
        Servicios(r);
        SituacionActual(r);
    }
    r.NL(2);
}

} // namespace valmerix
