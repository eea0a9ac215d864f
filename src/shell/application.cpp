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

#include <QFileInfo>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamañoFicha(860, 680);

} // namespace

Aplicacion::Aplicacion(const Puertos& puertos)
    : puertos_(puertos)
    , red_(compartido_, calculo_, frases_, puertos.dialogos, puertos.reloj, puertos.sistema)
{
}

Aplicacion::~Aplicacion()
{
    red_.Volcar();
}

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
    red_.Anotar(); // what it has interrupted may have changed the case
    const auto* almacen = dynamic_cast<const ErrorAlmacen*>(&fallo);
    const bool seguir = puertos_.dialogos.InformarFallo(
        u"La operación se ha detenido donde estaba; la ventana y todo lo escrito siguen como estaban.\n\n"_s +
            MensajeDe(fallo),
        almacen ? almacen->sql() : QString());
    if (seguir)
        return;
    red_.Volcar();
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
    connect(inicio_.get(), &Form1::RecuperarPedido, this, &Aplicacion::RecuperarBorrador);
    connect(inicio_.get(), &Form1::SalidaPedida, this, &Aplicacion::MostrarSalida);
    inicio_->HabilitarTipos(TiposHechos());
    inicio_->Load();
    if (const auto borrador = red_.Pendiente())
        inicio_->OfrecerBorrador(RedSeguridad::Describir(*borrador));
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
    try {
        Retirar(formulario_);
    } catch (const std::exception&) {
        formulario_->CargaPaleta(); // the case stays, and its toolbar with it
        throw;
    }
    red_.Abandonar();
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
    const QString antes = frases_.FraseUrbanistica;
    Problema editor(frases_);
    puertos_.pantalla.MostrarModal(editor);
    if (frases_.FraseUrbanistica != antes)
        red_.Anotar();
}

void Aplicacion::MostrarSalida()
{
    red_.Volcar(); // the exit itself asks nothing and ends at once
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
