#include "common/dates.h"
#include "common/number_pattern.h"
#include "common/number_reading.h"
#include "valuation/case_form.h"

namespace valmerix {

using namespace Qt::StringLiterals;

void Formulario::AlCambiarK()
{
    PintarResultadosPendientes();
    control(u"SSCommand7").setEnabled(!texto(u"BoxK").isEmpty());
}

void Formulario::AlCambiarProvisional()
{
    PintarResultadosPendientes();
    CampoTexto& repercusion = campo(u"BoxRepercusion");
    const bool conocido = !texto(u"BoxProvisional").isEmpty();
    repercusion.setLocked(conocido);
    repercusion.setAspecto(conocido ? Aspecto::Bloqueado : Aspecto::Normal);
    if (conocido)
        repercusion.setText({});
}

void Formulario::AlCambiarAntiguedad()
{
    const QString& años = texto(u"BoxAntig");
    servicios_.frases.FraseAntiguedad = FraseAntiguedad(años);
    if (!años.isEmpty()) {
        EstadoCalculo& e = servicios_.calculo;
        e.Antiguedad = static_cast<qint16>(LeerEntero(años));
        // Without a useful life there is nothing to spread the loss over: no depreciation.
        const int vida = edadMaxima();
        e.CoefDepreciacion =
            vida <= 0 ? 0 : RedondeoFormato(static_cast<double>(e.Antiguedad) / vida, u"###,##0.00");
    }
    Recalcular();
}

void Formulario::AlCambiarPlantas()
{
    servicios_.frases.FrasePlantas = descripcion_.estrategias->FrasePlantas(texto(u"BoxPlantas"));
    AlCambiarSuperficie();
}

void Formulario::AlCambiarViviendas()
{
    servicios_.frases.FraseViviendasPlanta = FraseViviendasPlanta(texto(u"BoxVPP"));
    AlCambiarSuperficie();
}

void Formulario::AlCambiarSuperficie()
{
    RASANTEADOR();
    Recalcular();
}

void Formulario::AlCambiarAscensores()
{
    servicios_.frases.FraseAscensores = FraseAscensores(texto(u"BoxAscen"));
}

void Formulario::ComponerFraseSotanos(OrigenSotanos origen)
{
    servicios_.frases.FraseSotanos = FraseSotanos(texto(u"BoxSot"), texto(u"ComboSotano"), origen);
}

// A box cleared beside a text is ticked again by the field's rule: she empties the field to drop the annex.
void Formulario::AlPulsarAnexo(const Anexo& anexo)
{
    if (!marcada(anexo.casilla))
        servicios_.calculo.*anexo.valor = {};
    DejarCampo(anexo.campo);
}

void Formulario::AlCambiarPorcentaje()
{
    if (LeerNumero(texto(u"BoxPorcen")) <= 100)
        return;
    servicios_.sistema.Pitar();
    campo(u"BoxPorcen").setText(u"100"_s);
}

void Formulario::AlDejarFecha()
{
    if (!LeerFecha(texto(u"BoxFecha")))
        campo(u"BoxFecha").setText(FechaVisible(servicios_.reloj.hoy()));
}

void Formulario::AlCambiarUrbanismo()
{
    if (opciones(u"SitUrb").Value(0))
        servicios_.frases.FraseUrbanistica = FraseUrbanisticaConforme(texto(u"BoxMun"));
}

void Formulario::AlCambiarDocumentacion()
{
    casilla(u"CheckOtra").setValue(texto(u"BoxDocumentacion").isEmpty() ? 0 : 1);
}

void Formulario::AlPulsarFicha()
{
    servicios_.entorno.MostrarFicha();
    CargarComboTasadores();
}

void Formulario::AlPulsarMinimizar()
{
    servicios_.entorno.Minimizar();
}

void Formulario::AlPulsarPaleta()
{
    Control& boton = control(u"SSCommand3");
    boton.setTag(boton.Tag() == u'S' ? u"N"_s : u"S"_s);
    if (!servicios_.compartido.CierrePaleta)
        CargaPaleta();
    Enfocar(u"SSTab1");
}

void Formulario::PasarPagina(int paso)
{
    auto& paginas = como<Solapas>(u"SSTab1");
    paginas.setTab((paginas.Tab() + paso + paginas.paginas()) % paginas.paginas());
}

} // namespace valmerix
