#include "valuation/case_events.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

using F = Formulario;

constexpr TextoDeOpcion kTextos[] = {
    {u"BoxFin", u"Finalidad", 4, true},
    {u"BoxLisa", u"Interior", 2},
    {u"BoxRoble", u"CarpInt", 4},
    {u"BoxHierro", u"CarpExt", 4},
    {u"BoxMobK", u"MobK", 4},
    {u"BoxSatelite", u"TipoNucleo", 2, true},
    {u"BoxOtroNucleo", u"TipoNucleo", 3, true},
};

constexpr CuentaDeCasilla kCuentas[] = {
    {u"CheckDormitorios", u"BoxDormitorios"}, {u"CheckBaños", u"BoxBaños"}, {u"CheckAseos", u"BoxAseos"},
    {u"CheckTerrazas", u"BoxTerrazas"},       {u"CheckOtros", u"BoxOtros"}, {u"CheckOtros2", u"BoxOtros2"},
};

/// Connects the Click of a control of the kind T; false when it is of another kind.
template <class T, class Accion>
bool ConectarClick(Control* control, const QObject* contexto, Accion accion)
{
    auto* propio = dynamic_cast<T*>(control);
    if (propio)
        QObject::connect(propio, &T::Click, contexto, accion);
    return propio != nullptr;
}

void ConectarRegla(Formulario& f, Control* control, const ReglaEvento& regla)
{
    const auto accion = [&f, hacer = regla.accion] { hacer(f); };
    switch (regla.evento) {
    case Evento::Change:
        QObject::connect(dynamic_cast<CampoTexto*>(control), &CampoTexto::Change, &f, accion);
        return;
    case Evento::LostFocus:
        QObject::connect(control, &Control::LostFocus, &f, accion);
        return;
    case Evento::Click:
        ConectarClick<Boton>(control, &f, accion) || ConectarClick<Casilla>(control, &f, accion) ||
            ConectarClick<Lista>(control, &f, accion) || ConectarClick<GrupoOpciones>(control, &f, accion) ||
            ConectarClick<Rejilla>(control, &f, accion);
        return;
    }
}

void ConectarTexto(Formulario& f, const TextoDeOpcion& regla)
{
    CampoTexto& campo = f.campo(regla.campo);
    GrupoOpciones& grupo = f.opciones(regla.grupo);
    QObject::connect(&campo, &CampoTexto::Change, &f,
                     [&grupo, opcion = regla.opcion] { grupo.Elegir(opcion); });
    if (!regla.enfoca)
        return;
    QObject::connect(&grupo, &GrupoOpciones::Click, &f, [&f, &campo, opcion = regla.opcion](int elegida) {
        if (elegida == opcion)
            f.Enfocar(&campo);
    });
}

void ConectarCuenta(Formulario& f, const CuentaDeCasilla& regla)
{
    const Casilla& casilla = f.casilla(regla.casilla);
    CampoTexto& campo = f.campo(regla.campo);
    QObject::connect(&casilla, &Casilla::Click, &f, [&casilla, &campo] {
        if (casilla.Value() == 1 && campo.Text().isEmpty())
            campo.setText(u"1"_s);
    });
}

} // namespace

std::span<const ReglaEvento> TablaEventos::reglas()
{
    static constexpr ReglaEvento kReglas[] = {
        {u"BoxCc", Evento::Change, [](F& f) { f.PintarResultadosPendientes(); }},
        {u"BoxRepercusion", Evento::Change, [](F& f) { f.PintarResultadosPendientes(); }},
        {u"BoxSobreRasante", Evento::Change, [](F& f) { f.PintarResultadosPendientes(); }},
        {u"BoxSolar", Evento::Change, [](F& f) { f.PintarResultadosPendientes(); }},
        {u"BoxK", Evento::Change, [](F& f) { f.AlCambiarK(); }},
        {u"BoxProvisional", Evento::Change, [](F& f) { f.AlCambiarProvisional(); }},
        {u"BoxAntig", Evento::Change, [](F& f) { f.AlCambiarAntiguedad(); }},
        {u"BoxPlantas", Evento::Change, [](F& f) { f.AlCambiarPlantas(); }},
        {u"BoxVPP", Evento::Change, [](F& f) { f.AlCambiarViviendas(); }},
        {u"BoxAscen", Evento::Change, [](F& f) { f.AlCambiarAscensores(); }},
        {u"BoxSot", Evento::Change, [](F& f) { f.ComponerFraseSotanos(OrigenSotanos::Numero); }},
        {u"ComboSotano", Evento::Change, [](F& f) { f.ComponerFraseSotanos(OrigenSotanos::Uso); }},
        {u"ComboSotano", Evento::Click, [](F& f) { f.ComponerFraseSotanos(OrigenSotanos::Uso); }},
        {u"Sup", Evento::Click, [](F& f) { f.AlCambiarSuperficie(); }},
        {u"CheckTrast", Evento::Click, [](F& f) { f.AlPulsarAnexo(kAnexos[0]); }},
        {u"CheckGrj", Evento::Click, [](F& f) { f.AlPulsarAnexo(kAnexos[1]); }},
        {u"CheckOtra2", Evento::Click, [](F& f) { f.AlPulsarAnexo(kAnexos[2]); }},
        {u"SSCommand7", Evento::Click, [](F& f) { f.ActualizarResultados(); }},
        {u"BoxPorcen", Evento::Change, [](F& f) { f.AlCambiarPorcentaje(); }},
        {u"BoxFecha", Evento::LostFocus, [](F& f) { f.AlDejarFecha(); }},
        {u"BoxMun", Evento::LostFocus, [](F& f) { f.AlCambiarUrbanismo(); }},
        {u"SitUrb", Evento::Click, [](F& f) { f.AlCambiarUrbanismo(); }},
        {u"BoxDocumentacion", Evento::Change, [](F& f) { f.AlCambiarDocumentacion(); }},
        {u"CheckOtra", Evento::Click, [](F& f) { f.Enfocar(u"BoxDocumentacion"); }},
        {u"cboNombreTasador", Evento::Click, [](F& f) { f.AlElegirTasador(); }},
        {u"BotonFicha", Evento::Click, [](F& f) { f.AlPulsarFicha(); }},
        {u"BttFecha", Evento::Click, [](F& f) { f.ElegirFecha(f.campo(u"BoxFecha")); }},
        {u"cmdObservaciones", Evento::Click, [](F& f) { f.servicios_.entorno.MostrarObservaciones(); }},
        {u"SSCommand1", Evento::Click, [](F& f) { f.servicios_.entorno.MostrarSalida(); }},
        {u"SSCommand2", Evento::Click, [](F& f) { f.AlPulsarMinimizar(); }},
        {u"SSCommand3", Evento::Click, [](F& f) { f.AlPulsarPaleta(); }},
        {u"SSCommand4", Evento::Click, [](F& f) { f.PasarPagina(-1); }},
        {u"SSCommand5", Evento::Click, [](F& f) { f.PasarPagina(1); }},
        {u"SSCommand6", Evento::Click, [](F& f) { f.servicios_.entorno.MostrarProblema(); }},
        {u"btnBuscaImagen", Evento::Click, [](F& f) { f.AlBuscarImagen(); }},
        {u"btnActualizarLista", Evento::Click, [](F& f) { f.ActualizarGrid(u"Editar"); }},
        {u"SSCommand8", Evento::Click, [](F& f) { f.ActualizarGrid(u"Borrar"); }},
        {u"SSCommand9", Evento::Click, [](F& f) { f.AlCopiarImagen(); }},
        {u"GridImagen", Evento::Click, [](F& f) { f.AlElegirImagen(); }},
        {u"txtRutaImagen", Evento::Change, [](F& f) { f.AlCambiarRutaImagen(); }},
    };
    return kReglas;
}

std::span<const TextoDeOpcion> TablaEventos::textos()
{
    return kTextos;
}

std::span<const CuentaDeCasilla> TablaEventos::cuentas()
{
    return kCuentas;
}

void TablaEventos::Conectar(Formulario& formulario)
{
    for (const ReglaEvento& regla : reglas()) {
        if (Control* control = formulario.buscar(regla.control))
            ConectarRegla(formulario, control, regla);
    }
    for (const TextoDeOpcion& regla : kTextos) {
        if (formulario.buscar(regla.campo))
            ConectarTexto(formulario, regla);
    }
    for (const CuentaDeCasilla& regla : kCuentas) {
        if (formulario.buscar(regla.casilla))
            ConectarCuenta(formulario, regla);
    }
}

} // namespace valmerix
