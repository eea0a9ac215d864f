#include "valuation/case_form.h"

#include "common/dates.h"
#include "common/number_pattern.h"
#include "common/number_reading.h"
#include "controls/date_picker.h"
#include "valuation/case_events.h"
#include "valuation/key_filters.h"

#include <algorithm>
#include <limits>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kBotonesVentana[] = {
    u"SSCommand1", u"SSCommand2", u"SSCommand3", u"SSCommand4", u"SSCommand5",
};
constexpr int kPaginaTotal = static_cast<int>(std::size(kPaginas));

// Until a profile has been stored everything goes into the report.
void AñadirPerfil(Ventana& ventana, QStringView nombre, int cuantas, const QString& ayuda,
                  std::vector<Casilla*>& perfil)
{
    for (int i = 0; i < cuantas; ++i) {
        auto& casilla = ventana.Añadir<Casilla>(Ventana::Indice(nombre, i));
        casilla.setToolTip(ayuda);
        casilla.setValue(1);
        perfil.push_back(&casilla);
    }
}

std::vector<Casilla*> DeclararVentana(Ventana& ventana, const DescripcionForma& descripcion)
{
    ventana.Añadir<Solapas>(u"SSTab1"_s).setPaginas(kPaginaTotal);
    const auto secciones = descripcion.secciones();
    for (const SeccionForma& seccion : secciones)
        DeclararControles(ventana, seccion.controles);
    DeclararControles(ventana, ControlesVentana());
    std::vector<Casilla*> perfil;
    AñadirPerfil(ventana, u"chkApartados", CuentaApartados(secciones),
                 u"Incluir este apartado en el informe"_s, perfil);
    AñadirPerfil(ventana, u"chkPuntos", CuentaPuntos(secciones), u"Incluir esta línea en el informe"_s,
                 perfil);
    return perfil;
}

} // namespace

Formulario::Formulario(const DescripcionForma& descripcion, const ServiciosCaso& servicios)
    : Ventana(descripcion.ventana.toString(), descripcion.caption.toString())
    , descripcion_(descripcion)
    , servicios_(servicios)
    , perfil_(DeclararVentana(*this, descripcion))
    , calculadores_(*this, servicios.calculo, servicios.compartido, *descripcion.estrategias)
    , foco_(*this, calculadores_, servicios.calculo, servicios.compartido)
    , contadores_(*this)
{
    control(u"EtiquetaCaption").setCaption(Caption());
    control(u"SSCommand3").setTag(u"S"_s);
    control(u"SSCommand7").setEnabled(false);
    ConectarFiltros(*this, servicios_.sistema);
    TablaEventos::Conectar(*this);
    for (const QStringView nombre : kBotonesVentana)
        connect(&control(nombre), &Control::GotFocus, this, [this] { Enfocar(u"SSTab1"); });
}

Formulario::~Formulario() = default;

void Formulario::AplicarOpciones()
{
    const OpcionesPrograma& opciones = servicios_.opciones;
    casilla(u"Check1").setValue(opciones.MostrarCabecera ? 1 : 0);
    if (opciones.TipoSuperficie == u"Util")
        Ventana::opciones(u"Sup").Elegir(0);
    else if (opciones.TipoSuperficie == u"Const")
        Ventana::opciones(u"Sup").Elegir(1);
    ActualizarMoneda(opciones.MonedaAbreviatura);
    PonerPerfil(opciones.*descripcion_.perfil);
}

void Formulario::IniciarCampos()
{
    const QString& separador = servicios_.compartido.SeparadorFecha;
    const QString mascara = u"99"_s + separador + u"99"_s + separador + u"9999"_s;
    for (const QStringView nombre : {u"BoxFecha", u"txtFechaDesde", u"txtFechaHasta"}) {
        campo(nombre).setMask(mascara);
        campo(nombre).setText(campo(nombre).mascaraVacia());
    }
    campo(u"BoxFecha").setText(FechaVisible(servicios_.reloj.hoy()));
    lista(u"cboTipoSup").setText(u"Construida"_s);

    servicios_.frases = {};
    for (const Anexo& anexo : kAnexos)
        servicios_.calculo.*anexo.valor = {};
    RASANTEADOR();
    InicializarGrids({});
    CargaGridImagenesAsociadas();
    CargaGridTestigosAsociados();
}

void Formulario::ActualizarResultados()
{
    calculadores_.PintarResultados(Aspecto::Normal);
    Recalcular();
    REDONDEADOR();
}

void Formulario::Reanudar()
{
    contadores_.Recontar(*this);
    if (const auto* enMano = dynamic_cast<const CampoTexto*>(conFoco()))
        foco_.Retomar(*enMano);
}

void Formulario::MiPosicion()
{
    EstadoCompartido& c = servicios_.compartido;
    c.PosicionLeft = static_cast<float>(lugar().x());
    c.PosicionTop = static_cast<float>(lugar().y());
    c.PosicionWidth = static_cast<float>(lugar().width());
    constexpr int kMayor = std::numeric_limits<qint16>::max();
    c.PosicionHeight = static_cast<qint16>(std::min(lugar().height(), kMayor));
}

void Formulario::CargaPaleta()
{
    const bool abierta = control(u"SSCommand3").Tag() == u'S';
    if (abierta)
        MiPosicion();
    servicios_.entorno.MostrarPaleta(abierta);
    servicios_.compartido.PaletaAbierta = abierta;
}

void Formulario::ActualizarMoneda(const QString& moneda)
{
    for (const EtiquetaMoneda& etiqueta : EtiquetasMoneda())
        control(etiqueta.nombre).setCaption(etiqueta.porMetro ? moneda + u"/m²"_s : moneda);
}

QString Formulario::perfil() const
{
    QString texto;
    for (const Casilla* casilla : perfil_)
        texto += casilla->Value() == 1 ? u'1' : u'0';
    return texto;
}

void Formulario::PonerPerfil(const QString& perfil)
{
    const size_t cuantas = std::min(perfil_.size(), static_cast<size_t>(perfil.size()));
    for (size_t i = 0; i < cuantas; ++i)
        perfil_[i]->setValue(perfil.at(static_cast<qsizetype>(i)) == u'1' ? 1 : 0);
}

Currency Formulario::PrecioMedio(const Rejilla& rejilla, int columnaSuperficie, int columnaValor)
{
    Currency superficies;
    Currency valores;
    for (int i = 1; i < rejilla.Rows() && !rejilla.TextMatrix(i, columnaSuperficie).isEmpty(); ++i) {
        superficies += LeerMoneda(rejilla.TextMatrix(i, columnaSuperficie));
        valores += LeerMoneda(rejilla.TextMatrix(i, columnaValor));
    }
    const Currency medio =
        superficies.esCero() ? Currency() : Currency::de(valores.aDouble() / superficies.aDouble());
    servicios_.dialogos.Mensaje(u"Se ha calculado el precio medio ("_s +
                                    Formatear(medio, servicios_.compartido.FormatoMoneda) +
                                    u") y se realizarán los ajustes en base al mismo."_s,
                                u"Aviso"_s, IconoMensaje::Informacion);
    return medio;
}

bool Formulario::ElegirFecha(CampoTexto& campo)
{
    return valmerix::ElegirFecha(campo, servicios_.dialogos, servicios_.reloj);
}

// Only of the fields that the kind has: a house never says that it lacks a lift.
void Formulario::ComponerFrasesDelEdificio()
{
    FrasesInforme& frases = servicios_.frases;
    const auto componer = [this](QStringView nombre, QString& frase, QString (*regla)(QStringView)) {
        if (const auto* campo = dynamic_cast<const CampoTexto*>(buscar(nombre)))
            frase = regla(campo->Text());
    };
    componer(u"BoxAntig", frases.FraseAntiguedad, FraseAntiguedad);
    componer(u"BoxPlantas", frases.FrasePlantas, descripcion_.estrategias->FrasePlantas);
    componer(u"BoxVPP", frases.FraseViviendasPlanta, FraseViviendasPlanta);
    componer(u"BoxAscen", frases.FraseAscensores, FraseAscensores);
    // The use is written behind the number, and only a use that there is has been a change.
    ComponerFraseSotanos(texto(u"ComboSotano").isEmpty() ? OrigenSotanos::Numero : OrigenSotanos::Uso);
}

} // namespace valmerix
