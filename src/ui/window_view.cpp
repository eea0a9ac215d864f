#include "ui/window_view.h"

#include "shell/window_places.h"
#include "ui/look/application.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

Qt::WindowFlags Banderas(Marco marco)
{
    switch (marco) {
    case Marco::Propio:
        return Qt::Window | Qt::FramelessWindowHint;
    case Marco::Herramienta:
        return Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
    case Marco::Sistema:
        break;
    }
    return Qt::Window;
}

} // namespace

QList<QRect> PantallasUtiles()
{
    QList<QRect> areas;
    for (const QScreen* pantalla : QGuiApplication::screens())
        areas << pantalla->availableGeometry();
    return areas;
}

VistaVentana::VistaVentana(Ventana& ventana, Marco marco)
    : QWidget(nullptr, Banderas(marco))
    , ventana_(&ventana)
    , enlazador_(new Enlazador(ventana, this))
{
    setObjectName(ventana.nombre());
    if (marco == Marco::Herramienta)
        setAttribute(Qt::WA_ShowWithoutActivating);
    connect(&ventana, &Ventana::PresentacionCambiada, this, &VistaVentana::Mostrar);
    connect(&ventana, &Ventana::Resize, this, &VistaVentana::MostrarEstado);
    // A procedure that activates a window wants it before her eyes; our own news need nothing.
    connect(&ventana, &Ventana::Activate, this, [this] {
        if (!isVisible() || isActiveWindow())
            return;
        raise();
        activateWindow();
    });
    for (const Atajo& atajo : ventana.atajos())
        PonerAtajo(atajo);
}

VistaVentana::~VistaVentana()
{
    Soltar();
}

void VistaVentana::PonerAtajo(const Atajo& atajo)
{
    auto* tecla = new QShortcut(QKeySequence(atajo.teclas), this);
    tecla->setContext(Qt::ApplicationShortcut);
    tecla->setAutoRepeat(false); // held down, it is one order
    connect(tecla, &QShortcut::activated, this, [this, orden = atajo.orden] {
        if (ventana_)
            Protegido(orden);
    });
}

void VistaVentana::Soltar()
{
    if (ventana_)
        ventana_->disconnect(this);
    ventana_ = nullptr;
    delete std::exchange(enlazador_, nullptr);
}

void VistaVentana::Mostrar()
{
    if (!ventana_ || sincronizando_)
        return;
    MostrarTitulo();
    MostrarLugar();
    if (ventana_->visible() == isVisible())
        return;
    if (ventana_->visible() && ventana_->conFoco())
        enlazador_->MostrarFoco(); // otherwise the first widget would take it, and end the field's turn
    setVisible(ventana_->visible());
    if (isVisible())
        TomarLugar();
}

// The desktop puts its own mark where the title says; without one the title is the caption, nothing else.
void VistaVentana::MostrarTitulo()
{
    const bool modificada = ventana_->modificada();
    if (!modificada)
        setWindowModified(false);
    setWindowTitle(modificada ? ventana_->Caption() + u"[*]"_s : ventana_->Caption());
    setWindowModified(modificada);
    setAccessibleDescription(modificada ? kCambiosSinGuardar.toString() : QString());
}

void VistaVentana::PonerDelanteDe(QWidget& otra)
{
    winId(); // makes the native window that the other one is to carry
    otra.window()->winId();
    windowHandle()->setTransientParent(otra.window()->windowHandle());
}

QRect VistaVentana::LugarPosible(QRect pedido) const
{
    if (!pedido.isEmpty()) // not screen(): before it is shown that is the first one, wherever it is to stand
        return AgrandarEnPantallas(pedido, minimumSizeHint(), PantallasUtiles());
    pedido.setSize(sizeHint().boundedTo(screen()->availableSize()));
    return pedido;
}

QRect VistaVentana::lugarNormal() const
{
    if (!isMaximized())
        return ventana_ ? ventana_->lugar() : QRect(pos(), size());
    return normalGeometry().translated(-marco_); // the maximised one may have another frame, or none
}

void VistaVentana::MostrarLugar()
{
    const QScopedValueRollback guarda(sincronizando_, true);
    const QRect pedido = ventana_->lugar();
    const QRect posible = LugarPosible(pedido);
    if (size() != posible.size())
        resize(posible.size());
    if (pedido != QRect() && pos() != posible.topLeft())
        move(posible.topLeft());
}

void VistaVentana::MostrarEstado()
{
    if (!ventana_ || sincronizando_)
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    const Qt::WindowStates otros = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    switch (ventana_->WindowState()) {
    case EstadoVentana::Normal:
        setWindowState(otros);
        break;
    case EstadoVentana::Minimizada:
        setWindowState(windowState() | Qt::WindowMinimized);
        break;
    case EstadoVentana::Maximizada:
        setWindowState(otros | Qt::WindowMaximized);
        break;
    }
}

void VistaVentana::TomarLugar()
{
    if (!ventana_ || sincronizando_ || !isVisible() || isMinimized())
        return;
    if (!isMaximized())
        marco_ = geometry().topLeft() - pos();
    const QScopedValueRollback guarda(sincronizando_, true);
    Protegido([this] { ventana_->Mover(QRect(pos(), size())); });
}

void VistaVentana::TomarEstado()
{
    if (!ventana_ || sincronizando_)
        return;
    const auto estado = isMinimized()   ? EstadoVentana::Minimizada
                        : isMaximized() ? EstadoVentana::Maximizada
                                        : EstadoVentana::Normal;
    {
        const QScopedValueRollback guarda(sincronizando_, true);
        Protegido([&] { ventana_->setWindowState(estado); });
    }
    if (ventana_ && ventana_->WindowState() != estado)
        MostrarEstado(); // its procedures would not have it so
}

bool VistaVentana::event(QEvent* evento)
{
    if (ventana_ && ventana_->abierta()) {
        if (evento->type() == QEvent::WindowActivate) {
            Protegido([this] { ventana_->Activar(); });
        } else if (evento->type() == QEvent::WindowDeactivate) {
            Protegido([this] { ventana_->Desactivar(); });
        }
    }
    return QWidget::event(evento);
}

void VistaVentana::closeEvent(QCloseEvent* evento)
{
    if (ventana_ && ventana_->abierta())
        Protegido([this] { ventana_->PedirCierre(); });
    evento->setAccepted(!ventana_ || !ventana_->abierta());
}

void VistaVentana::keyPressEvent(QKeyEvent* evento)
{
    if (!ventana_)
        return QWidget::keyPressEvent(evento);
    evento->accept();
    if (cierraConEscape_ && evento->key() == Qt::Key_Escape) {
        close();
        return;
    }
    if (evento->key() == Qt::Key_F1) {
        if (const auto* aplicacion = qobject_cast<AplicacionQt*>(QCoreApplication::instance()))
            Protegido([&] { aplicacion->PedirAyuda(ventana_->nombre()); });
        return;
    }
    auto* boton = qobject_cast<QPushButton*>(focusWidget());
    if (boton && (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)) {
        boton->click();
        return;
    }
    Protegido([&] { ventana_->PulsarTecla(evento->key()); });
}

void VistaVentana::moveEvent(QMoveEvent* evento)
{
    QWidget::moveEvent(evento);
    TomarLugar();
}

void VistaVentana::resizeEvent(QResizeEvent* evento)
{
    QWidget::resizeEvent(evento);
    TomarLugar();
}

void VistaVentana::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::WindowStateChange)
        TomarEstado();
}

} // namespace valmerix
