#include "shell/application.h"

#include "report/notes_and_problem.h"
#include "report/printing.h"
#include "report/progress.h"
#include "report/viewer_bar.h"
#include "report/word_processor_chooser.h"
#include "settings/valuers_company.h"
#include "shell/case_opening.h"
#include "shell/case_tree.h"
#include "shell/exit_restart.h"
#include "shell/start_window.h"
#include "store/query.h"
#include "store/schema.h"
#include "valuation/case_form.h"
#include "valuation/kind_descriptions.h"

#include <QFileInfo>
#include <algorithm>
#include <stdexcept>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamañoCaso(1080, 740);
constexpr QSize kTamañoFicha(860, 680);
constexpr int kAnchoPaleta = 160;

/// Centred horizontally together with the toolbar at its right edge.
QRect LugarDelCaso(const QRect& area)
{
    const QSize ventana = kTamañoCaso.boundedTo(area.size());
    return {{std::max(0, (area.width() - ventana.width() - kAnchoPaleta) / 2),
             std::max(0, (area.height() - ventana.height()) / 2)},
            ventana};
}

} // namespace

Aplicacion::Aplicacion(const Puertos& puertos)
    : puertos_(puertos)
    , copia_(compartido_, puertos.dialogos, puertos.reloj)
{
    compartido_.antesDeEscribir = [this] { copia_.AntesDeEscribir(); };
}

Aplicacion::~Aplicacion() = default;

void Aplicacion::Arrancar()
{
    EmpezarDeNuevo([this] {
        if (!puertos_.sistema.otraInstancia()) // a second one ends by itself, and leaves the files alone
            InstalarSiFalta();
    });
}

// A failure here would leave her without any window.
void Aplicacion::EmpezarDeNuevo(const std::function<void()>& antes)
{
    try {
        antes();
        MostrarInicio();
    } catch (const std::exception& fallo) {
        puertos_.dialogos.Mensaje(u"Valmerix no ha podido arrancar.\n"_s + MensajeDe(fallo), u"Error"_s,
                                  IconoMensaje::Critico);
        puertos_.sistema.TerminarProceso(1);
    }
}

void Aplicacion::InformarFallo(const std::exception& fallo)
{
    puertos_.sistema.PunteroOcupado(false);
    const auto* almacen = dynamic_cast<const ErrorAlmacen*>(&fallo);
    const bool seguir = puertos_.dialogos.InformarFallo(
        u"La operación se ha detenido donde estaba; la ventana y todo lo escrito siguen como estaban.\n\n"_s +
            MensajeDe(fallo),
        almacen ? almacen->sql() : QString());
    if (!seguir)
        puertos_.sistema.TerminarProceso(1);
}

void Aplicacion::InstalarSiFalta()
{
    const QString ruta = RutaBaseDatosConfigurada(puertos_.sistema);
    // Only the program's own place is filled; a path of the ini file that leads nowhere is her mistake to
    // see.
    if (ruta == RutaBaseDatosPorDefecto(puertos_.sistema) && !QFileInfo::exists(ruta))
        InstalarBaseDatos(ruta);
    const QString plantilla = puertos_.sistema.carpetaPrograma() + u"/Datos/Testigos.mak"_s;
    if (ruta == RutaBaseDatosPorDefecto(puertos_.sistema) && !QFileInfo::exists(plantilla))
        InstalarPlantillaTestigos(plantilla);
}

void Aplicacion::MostrarInicio()
{
    inicio_ = std::make_unique<Form1>(compartido_, puertos_.reloj, puertos_.sistema, puertos_.pantalla);
    connect(inicio_.get(), &Form1::AbrirPedido, this, &Aplicacion::AbrirCaso);
    connect(inicio_.get(), &Form1::CopiarPedido, this, &Aplicacion::CopiarCaso);
    connect(inicio_.get(), &Form1::NuevoPedido, this, &Aplicacion::NuevoCaso);
    connect(inicio_.get(), &Form1::SalidaPedida, this, &Aplicacion::MostrarSalida);
    inicio_->HabilitarTipos(TiposHechos());
    inicio_->Load();
    puertos_.pantalla.Mostrar(*inicio_);
}

void Aplicacion::CerrarInicio()
{
    Retirar(inicio_);
}

void Aplicacion::CargarFicha()
{
    if (ficha_ && ficha_->abierta())
        return;
    ficha_ = std::make_unique<Ficha>(compartido_, puertos_.dialogos, puertos_.reloj, puertos_.sistema);
    ficha_->Load();
}

void Aplicacion::CrearFormulario(const QString& letra)
{
    const DescripcionForma* descripcion = letra.size() == 1 ? DescripcionDe(letra.front()) : nullptr;
    if (!descripcion) {
        throw std::runtime_error(
            u"Esta versión no abre tasaciones del tipo «%1»."_s.arg(letra).toStdString());
    }
    formulario_ = std::make_unique<Formulario>(
        *descripcion, ServiciosCaso{compartido_, calculo_, frases_, opciones_, puertos_.dialogos,
                                    puertos_.reloj, puertos_.sistema, *this});
    formulario_->Mover(LugarDelCaso(puertos_.pantalla.area()));
    connect(formulario_.get(), &Ventana::Resize, this, &Aplicacion::ImpedirIcono);
    formulario_->Load();
}

// The desktop may turn the window into an icon; it goes down as its own button takes it, with its toolbar.
void Aplicacion::ImpedirIcono()
{
    if (formulario_->WindowState() != EstadoVentana::Minimizada)
        return;
    formulario_->setWindowState(EstadoVentana::Normal);
    Minimizar();
}

// Half loaded: nothing of it may be saved; the start window stays, and alone.
void Aplicacion::DescartarFormulario()
{
    CerrarPaleta();
    compartido_.PaletaAbierta = false; // asked for by the window's load, though never shown
    formulario_.reset();
    LimpiarEstado();
}

bool Aplicacion::AbrirCaso(const QString& clave)
{
    retiradas_.clear();
    if (clave.isEmpty())
        throw std::runtime_error("No hay ninguna tasación seleccionada en el árbol.");
    const std::optional<ClaveCaso> caso = PartirClave(clave);
    if (!caso)
        return false;
    CargarFicha();
    try {
        CrearFormulario(caso->Tipo);
        CargarCaso(*formulario_, compartido_, *caso);
        formulario_->Enfocar(u"SSTab1"); // some fields take the focus while they are filled
    } catch (const std::exception&) {
        DescartarFormulario();
        throw;
    }
    MostrarCaso();
    return true;
}

void Aplicacion::CopiarCaso(const QString& clave)
{
    // On a folder there is nothing to copy, and the start window is the only one open.
    if (AbrirCaso(clave))
        compartido_.NumeroTasacionActual = 0;
}

void Aplicacion::NuevoCaso(int indice)
{
    retiradas_.clear();
    puertos_.sistema.PunteroOcupado(true);
    CargarFicha();
    try {
        CrearFormulario(LetraDelBoton(indice));
    } catch (const std::exception&) {
        DescartarFormulario();
        throw;
    }
    MostrarCaso();
    puertos_.sistema.PunteroOcupado(false);
}

void Aplicacion::MostrarCaso()
{
    minimizado_ = std::make_unique<Minimizado>(compartido_, *this);
    minimizado_->setCaption(formulario_->control(u"EtiquetaCaption").Caption());
    puertos_.pantalla.Mostrar(*minimizado_);
    puertos_.pantalla.Mostrar(*formulario_);
    formulario_->CargaPaleta();
    CerrarInicio();
}

void Aplicacion::EjecutarOrden(OrdenPaleta orden)
{
    retiradas_.clear();
    // What she has just typed counts, though the toolbar takes no focus.
    if (formulario_ && (orden == OrdenPaleta::Informe || orden == OrdenPaleta::Guardar))
        formulario_->RenovarFoco();
    switch (orden) {
    case OrdenPaleta::Informe:
        RedactarInforme();
        break;
    case OrdenPaleta::CerrarVisor:
        CerrarVisor();
        break;
    case OrdenPaleta::Opciones:
        MostrarOpciones();
        break;
    case OrdenPaleta::Reinicio: {
        Reinicio reinicio(puertos_.pantalla);
        connect(&reinicio, &Reinicio::Confirmado, this, [&] {
            puertos_.sistema.PunteroOcupado(true);
            puertos_.sistema.DejarPintar();
            compartido_.MostrarPortada = u"NO"_s;
            reinicio.Cerrar();
            Reiniciar();
        });
        puertos_.pantalla.MostrarModal(reinicio);
        break;
    }
    case OrdenPaleta::Guardar:
        Guardar();
        break;
    case OrdenPaleta::Ayuda:
        MostrarAyuda();
        break;
    case OrdenPaleta::Extension:
        EjecutarExtension();
        break;
    default:
        break; // the other buttons stand disabled
    }
}

void Aplicacion::RedactarInforme()
{
    if (!formulario_)
        return;
    CerrarVisor();
    visor_ = std::make_unique<Visor>(compartido_, opciones_, puertos_.dialogos, puertos_.sistema, *this);
    calculos_ = std::make_unique<Calculos>(
        CasoInforme{*formulario_, formulario_->nombre(), calculo_, frases_, opciones_, compartido_}, *visor_,
        puertos_.sistema, *this);
    TipoDocumento_ = u"Informe"_s;
    calculos_->TipoDocumento = TipoDocumento_;
    calculos_->Load();
    puertos_.pantalla.Mostrar(*calculos_);
}

void Aplicacion::MostrarVisor()
{
    if (visor_)
        puertos_.pantalla.Mostrar(*visor_);
}

void Aplicacion::MinimizarVisor()
{
    if (!visor_)
        return;
    if (!visorMin_ || !visorMin_->abierta())
        visorMin_ = std::make_unique<VisorMin>(*visor_);
    puertos_.pantalla.Mostrar(*visorMin_);
    visorMin_->MinimizarVisor();
}

void Aplicacion::CerrarVisor()
{
    Retirar(calculos_);
    Retirar(visor_);
    Retirar(visorMin_);
}

void Aplicacion::MostrarOpciones()
{
    // As an extension has left it, or afresh.
    const std::unique_ptr<Opciones> configuracion =
        configuracion_ ? std::move(configuracion_) : CrearConfiguracion();
    puertos_.pantalla.MostrarModal(*configuracion);
    if (formulario_)
        formulario_->ActualizarMoneda(configuracion->texto(u"Text6"));
}

void Aplicacion::Imprimir()
{
    if (!visor_ || !formulario_)
        return;
    const DatosImpresion datos{compartido_,           visor_->Texto().Text(),
                               visor_->oColNegrita(), formulario_->rejilla(u"GridImagen"),
                               opciones_.Membrete,    formulario_->texto(u"cboNombreTasador").trimmed()};
    ImprimirDocumento(visor_->TipoDocumento(), datos, puertos_.impresion);
}

void Aplicacion::MostrarBusqueda(CampoTexto& trayecto)
{
    Busqueda selector(compartido_, &trayecto, puertos_.dialogos);
    puertos_.pantalla.MostrarModal(selector);
}

void Aplicacion::Guardar()
{
    if (formulario_)
        GuardarCaso(*formulario_, compartido_, puertos_.dialogos);
}

void Aplicacion::Reiniciar()
{
    Retirar(paleta_);
    Retirar(formulario_);
    Retirar(minimizado_);
    CerrarVisor();
    EmpezarDeNuevo([] {});
    LimpiarEstado();
    puertos_.sistema.PunteroOcupado(false);
}

// Only the results: the other figures keep what the last calculation or loading left there.
void Aplicacion::LimpiarEstado()
{
    frases_ = {};
    BorrarResultados(calculo_);
    compartido_.NumeroTasacionActual = 0;
}

void Aplicacion::MostrarFicha()
{
    CargarFicha();
    ficha_->Mover(QRect(QPoint(), kTamañoFicha));
    Centrar(*ficha_, puertos_.pantalla);
    puertos_.pantalla.MostrarModal(*ficha_);
}

void Aplicacion::MostrarObservaciones()
{
    Observaciones editor(*formulario_);
    puertos_.pantalla.MostrarModal(editor);
}

void Aplicacion::MostrarProblema()
{
    Problema editor(frases_);
    puertos_.pantalla.MostrarModal(editor);
}

void Aplicacion::MostrarSalida()
{
    SALIDA salida(puertos_.sistema, puertos_.pantalla);
    puertos_.pantalla.MostrarModal(salida);
}

void Aplicacion::Minimizar()
{
    if (minimizado_)
        minimizado_->MinimizarCaso();
}

Ventana* Aplicacion::ventanaDelCaso()
{
    return formulario_.get();
}

} // namespace valmerix
