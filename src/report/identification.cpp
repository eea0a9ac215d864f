#include "report/identification.h"

#include "common/number_pattern.h"
#include "common/number_reading.h"
#include "report/draft_context.h"
#include "report/environment_tables.h"
#include "report/presentation.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// " (province)" behind a place, when both are told.
QString ProvinciaDe(const QString& poblacion, const QString& provincia)
{
    return poblacion.isEmpty() || provincia.isEmpty() ? QString() : u" ("_s + provincia + u')';
}

/// `lead` and the field, or nothing when the field is empty.
QString SiHay(QStringView delante, const QString& campo, QStringView detras = {})
{
    return campo.isEmpty() ? QString() : QString(delante % campo % detras);
}

QString Domicilio(const CasoInforme& c)
{
    if (c.texto(u"BoxDomSol").isEmpty()) {
        return u" de "_s;
    }
    // Without a postal code the town follows with nothing between, as the reports have always said it.
    return u", con domicilio en "_s + c.texto(u"BoxDomSol") +
           SiHay(u", código postal ", c.texto(u"BoxCPSol"), u" de ");
}

void Solicitante(Redaccion& r)
{
    const CasoInforme& c = r.caso;
    r.NL();
    r.L0(u"SOLICITANTE:");
    r.NL();
    r.L1(c.texto(u"BoxNomSol") + Domicilio(c) + c.texto(u"BoxPobSol") +
         ProvinciaDe(c.texto(u"BoxPobSol"), c.texto(u"BoxProvSol")) +
         SiHay(u" y con N.I.F. ", c.texto(u"BoxNIFSol")) + u'.');
}

/// No full stop at its end, as the reports have always said it.
QString DatosRegistrales(const CasoInforme& c)
{
    return u"Inscrita en el"_s + SiHay(u" Registro ", c.texto(u"txtRegistro")) +
           SiHay(u" tomo ", c.texto(u"BoxTomo")) + SiHay(u", libro ", c.texto(u"BoxLibro")) +
           SiHay(u", folio ", c.texto(u"BoxFolio")) + SiHay(u", finca ", c.texto(u"BoxFinca")) +
           SiHay(u", inscripción ", c.texto(u"BoxInsc"), u" ª") + SiHay(u", anotación ", c.texto(u"BoxAnot"));
}

void Identificacion(Redaccion& r)
{
    const CasoInforme& c = r.caso;
    r.NL(3);
    r.L0(u"1.  IDENTIFICACION:");
    r.NL();
    r.L1(u"1.1. Tipo de inmueble:");
    r.L1(r.plan.inmueble);
    r.NL();
    r.L1(u"1.2. Municipio:");
    r.L1(c.texto(u"BoxMun") + ProvinciaDe(c.texto(u"BoxMun"), c.texto(u"BoxProv")) +
         SiHay(u", código postal ", c.texto(u"BoxCP")) + u'.');
    r.NL();
    r.L1(u"1.3. Ubicación:");
    r.L1(c.texto(u"BoxSit") + u'.');
    r.NL();
    r.L1(u"1.4. Datos registrales:");
    r.L1(DatosRegistrales(c));
}

void Finalidad(Redaccion& r)
{
    r.NL(3);
    r.L0(u"2.  FINALIDAD:");
    r.NL();
    const QString finalidad = FraseDeOpcion(r.caso, u"Finalidad", kFinalidades);
    if (!finalidad.isEmpty()) {
        r.L1(u"2.1. Finalidad de la tasación:");
        r.L1(finalidad);
    }
    r.NL(3);
}

/// An empty field stays empty.
QString Habitantes(const QString& campo)
{
    return campo.isEmpty() ? QString() : Formatear(LeerNumero(campo), u"#,###,##0");
}

QString FrasePoblacion(const CasoInforme& c)
{
    const QString& derecho = c.texto(u"BoxDerecho");
    const QString& hecho = c.texto(u"BoxHecho");
    const QString frase = u"La población de derecho se encuentra en torno a "_s + Habitantes(derecho);
    if (hecho.isEmpty() || derecho.isEmpty() || !c.punto(4)) {
        return frase + u" habitantes."_s;
    }
    return frase + u" habitantes, pero la población real o de hecho es de "_s + Habitantes(hecho) +
           u" habitantes."_s;
}

void LocalidadYEntorno(Redaccion& r)
{
    if (r.Capitulo(u"LOCALIDAD Y ENTORNO"_s).isEmpty()) {
        return;
    }
    if (!r.Apartado(u"Tipo de núcleo"_s).isEmpty()) {
        r.L1(FraseDeOpcion(r.caso, u"TipoNucleo", kTiposNucleo));
        r.NL();
    }
    if (!r.Apartado(u"Número de habitantes"_s).isEmpty()) {
        r.L1(FrasePoblacion(r.caso));
        r.NL();
    }
    if (!r.Apartado(u"Crecimiento de la población"_s).isEmpty()) {
        r.L1(FraseDeLista(kCrecimiento, r.caso.texto(u"Combo3")));
        r.NL();
    }
}

} // namespace

void Ident(Redaccion& r)
{
    r.L0(u"INFORME DE TASACION");
    r.NL();
    if (r.caso.ventana.marcada(u"Check1")) {
        r.L1(DatoCabecera(r.caso));
        r.NL();
    }
    Solicitante(r);
    Identificacion(r);
    Finalidad(r);
    // The first two chapters are fixed text; those that follow are counted from them.
    r.titulos.Capitulo = 2;
    r.titulos.Apartado = 1;
    LocalidadYEntorno(r);
}

} // namespace valmerix
