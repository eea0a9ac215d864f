// The toolbar: showing and closing it, and its two commands that reach outside the program, the manual and
// the extension module.

#include "report/progress.h"
#include "report/viewer.h"
#include "shell/application.h"
#include "shell/extension_window.h"
#include "shell/manual.h"
#include "valuation/case_form.h"

#include <QPointer>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <stdexcept>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// As the message has always said it, "para" twice.
constexpr QStringView kSinExtension = u"No se ha encontrado ningún módulo de extensión para Valmerix "
                                      u"cargado. Si dispone de un kit de extensión "
                                      u"debe instalarlo para para disponer de dicha ampliación.";

} // namespace

void Aplicacion::MostrarPaleta(bool abierta)
{
    if (!abierta) {
        CerrarPaleta();
        return;
    }
    MostrarPaletaEn(static_cast<int>(compartido_.PosicionLeft + compartido_.PosicionWidth),
                    static_cast<int>(compartido_.PosicionTop));
}

void Aplicacion::MostrarPaletaEn(int izquierda, int arriba)
{
    if (!formulario_ || !formulario_->visible()) // it comes with the window, not before it
        return;
    AsegurarPaleta();
    QRect lugar = paleta_->lugar();
    lugar.moveTopLeft({izquierda, arriba});
    paleta_->Mover(lugar);
    puertos_.pantalla.Mostrar(*paleta_);
}

void Aplicacion::AsegurarPaleta()
{
    if (paleta_ && paleta_->abierta())
        return;
    paleta_ = std::make_unique<Form2>(formulario_->nombre());
    paleta_->Servir(*formulario_);
    connect(paleta_.get(), &Form2::Pedida, this, &Aplicacion::EjecutarOrden);
    connect(paleta_.get(), &Ventana::Cerrada, this, [this] { compartido_.PaletaAbierta = false; });
    connect(paleta_.get(), &Form2::CierrePedido, this, [this] {
        compartido_.CierrePaleta = true;
        formulario_->control(u"SSCommand3").setTag(u"N"_s);
        compartido_.CierrePaleta = false;
        CerrarPaleta();
    });
}

// The keys are the case window's: they hold while it stands open, with its toolbar or without.
void Aplicacion::PonerAtajos()
{
    const auto ordenes = OrdenesDePaleta();
    for (size_t i = 0; i < ordenes.size(); ++i) {
        const auto orden = static_cast<OrdenPaleta>(i);
        if (orden != OrdenPaleta::Ayuda) // which every window answers itself, with the page that tells of it
            formulario_->AñadirAtajo(ordenes[i].atajo.toString(), [this, orden] { PulsarOrden(orden); });
    }
}

void Aplicacion::PulsarOrden(OrdenPaleta orden)
{
    const auto indice = static_cast<int>(orden);
    if (paleta_ && paleta_->abierta()) {
        paleta_->boton(Ventana::Indice(u"Botonera", indice)).Pulsar();
    } else if (!OrdenesDePaleta()[static_cast<size_t>(indice)].ayuda.isEmpty()) {
        EjecutarOrden(orden);
    }
}

void Aplicacion::CerrarPaleta()
{
    Retirar(paleta_);
}

std::unique_ptr<Opciones> Aplicacion::CrearConfiguracion()
{
    auto configuracion = std::make_unique<Opciones>(compartido_, opciones_, puertos_.sistema,
                                                    puertos_.captura, *this, puertos_.pantalla);
    configuracion->Load();
    return configuracion;
}

void Aplicacion::MostrarAyuda(const QString& ventana)
{
    if (!puertos_.ayuda)
        return;
    try {
        if (!manual_)
            manual_ = LeerManual(RutaManual(puertos_.sistema));
        puertos_.ayuda->Mostrar(manual_, ventana.isEmpty() ? QString() : manual_->PaginaDe(ventana)->nombre);
    } catch (const ErrorManual& fallo) {
        puertos_.dialogos.Mensaje(QString::fromUtf8(fallo.what()), u"Aviso"_s, IconoMensaje::Aviso);
    }
}

void Aplicacion::EjecutarExtension()
{
    if (!formulario_ || enExtension_)
        return;
    CerrarVisor();
    TipoDocumento_ = u"VMXtension"_s;
    ExtensionCargada extension;
    if (puertos_.extension)
        extension = puertos_.extension->Crear(puertos_.sistema.carpetaPrograma());
    if (!extension.componente) {
        QString texto = kSinExtension.toString();
        if (!extension.motivo.isEmpty())
            texto += u"\n\n"_s + extension.motivo;
        puertos_.dialogos.Mensaje(texto, u"Aviso"_s, IconoMensaje::Informacion);
        return;
    }
    const QScopedValueRollback guarda(enExtension_, true);
    AsegurarPaleta(); // the module is handed the toolbar, open or not
    const auto recoger = qScopeGuard([this] {
        if (paleta_ && !paleta_->visible())
            CerrarPaleta();
    });
    try {
        Iniciar(*extension.componente);
    } catch (const std::exception& fallo) {
        configuracion_.reset(); // half filled
        CerrarVisor();
        // What was thrown may be of the module's own making: only its words leave this place.
        throw std::runtime_error(
            u"El módulo de extensión ha fallado: %1"_s.arg(QString::fromUtf8(fallo.what())).toStdString());
    }
}

void Aplicacion::Iniciar(clsVMXtension& extension)
{
    visor_ =
        std::make_unique<valmerix::Visor>(compartido_, opciones_, puertos_.dialogos, puertos_.sistema, *this);
    if (!configuracion_)
        configuracion_ = CrearConfiguracion();
    const QPointer<valmerix::Visor> suyo(visor_.get());
    VentanaParaExtension paleta(*paleta_, puertos_.pantalla);
    VentanaParaExtension visor(*visor_, puertos_.pantalla);
    VentanaParaExtension formulario(*formulario_, puertos_.pantalla);
    VentanaParaExtension opciones(*configuracion_, puertos_.pantalla);
    VentanaExtension* Visor = &visor;
    VentanaExtension* FormularioActual = &formulario;
    VentanaExtension* Opciones = &opciones;
    extension.Iniciar(paleta, Visor, FormularioActual, Opciones, puertos_.sistema.carpetaPrograma());
    if (!Opciones)
        configuracion_.reset();
    if (!suyo || visor_.get() != suyo)
        return; // one of the toolbar's commands has drafted a report of its own
    if (!Visor)
        CerrarVisor();
    else
        visor_->PonerDocumento(TipoDocumento_, extension.oColNegrita());
}

} // namespace valmerix
