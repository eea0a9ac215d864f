#include "ui/desktop.h"

#include "ui/look/application.h"
#include "ui/views.h"

#include <QDialog>
#include <QEventLoop>
#include <QScreen>

namespace valmerix {

namespace {

/// Deletes a view that is done with: not at once, since a window often closes in the middle of a click on one
/// of its own buttons, and not under a dialog that stands over it, whose caller still waits for the answer.
void BorrarMasTarde(VistaVentana* vista)
{
    for (const QDialog* dialogo : vista->findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!dialogo->isVisible())
            continue;
        QObject::connect(
            dialogo, &QObject::destroyed, vista, [vista] { BorrarMasTarde(vista); }, Qt::QueuedConnection);
        return;
    }
    vista->deleteLater();
}

} // namespace

PantallaQt::PantallaQt() = default;
PantallaQt::~PantallaQt() = default;

void PantallaQt::Borrador::operator()(VistaVentana* vista) const
{
    vista->Soltar();
    vista->hide();
    BorrarMasTarde(vista);
}

VistaVentana* PantallaQt::vista(const Ventana& ventana) const
{
    const auto hallada = vistas_.find(&ventana);
    return hallada == vistas_.end() ? nullptr : hallada->second.get();
}

VistaVentana& PantallaQt::VistaDe(Ventana& ventana)
{
    if (VistaVentana* hecha = vista(ventana))
        return *hecha;
    std::unique_ptr<VistaVentana, Borrador> nueva(CrearVista(ventana).release());
    connect(&ventana, &Ventana::Cerrada, this, [this, &ventana] {
        Apuntar(ventana);
        lugares_.Guardar(ficheroLugares_);
        Retirar(&ventana);
    });
    connect(&ventana, &QObject::destroyed, this, [this](QObject* muerta) { Retirar(muerta); });
    return *vistas_.emplace(&ventana, std::move(nueva)).first->second;
}

void PantallaQt::Retirar(const QObject* ventana)
{
    // Out of the map first: deleting a view may run events that ask for it.
    vistas_.extract(ventana);
}

void PantallaQt::RecordarLugares(const QString& fichero)
{
    ficheroLugares_ = fichero;
    lugares_.Leer(fichero);
}

void PantallaQt::Acomodar(Ventana& ventana) const
{
    const QString& nombre = ventana.nombre();
    if (const auto lugar = lugares_.LugarDe(nombre, PantallasUtiles()))
        ventana.Mover(*lugar);
    if (lugares_.EstabaMaximizada(nombre))
        ventana.setWindowState(EstadoVentana::Maximizada);
}

void PantallaQt::Apuntar(const Ventana& ventana)
{
    const VistaVentana* suya = vista(ventana);
    const Qt::WindowStates sinLugar = Qt::WindowMinimized | Qt::WindowFullScreen;
    if (suya && !ficheroLugares_.isEmpty() && !(suya->windowState() & sinLugar))
        lugares_.Apuntar(ventana.nombre(), suya->lugarNormal(), suya->isMaximized());
}

void PantallaQt::ApuntarTodas()
{
    for (const auto& [modelo, vista] : vistas_) {
        if (vista->isVisible() && vista->ventana())
            Apuntar(*vista->ventana());
    }
    lugares_.Guardar(ficheroLugares_);
}

void PantallaQt::Mostrar(Ventana& ventana)
{
    VistaVentana& nueva = VistaDe(ventana);
    if (nueva.isVisible())
        return;
    if (VistaVentana* servida = ventana.dueña() ? vista(*ventana.dueña()) : nullptr)
        nueva.PonerDelanteDe(*servida);
    Acomodar(ventana);
    ventana.setVisible(true);
    nueva.Mostrar();
}

void PantallaQt::MostrarModal(Ventana& ventana)
{
    VistaVentana& nueva = VistaDe(ventana);
    QEventLoop espera;
    connect(&ventana, &Ventana::Cerrada, &espera, &QEventLoop::quit);
    connect(&ventana, &QObject::destroyed, &espera, &QEventLoop::quit);
    connect(&ventana, &Ventana::PresentacionCambiada, &espera, [&] {
        if (!ventana.visible())
            espera.quit();
    });
    if (QWidget* delante = VentanaDelante(); delante && delante != &nueva)
        nueva.PonerDelanteDe(*delante);
    nueva.setWindowModality(Qt::ApplicationModal);
    ApuntarTodas(); // it may be the one that ends the process
    Acomodar(ventana);
    ventana.setVisible(true);
    nueva.Mostrar();
    if (ventana.abierta() && ventana.visible())
        espera.exec();
}

QRect PantallaQt::area() const
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

} // namespace valmerix
