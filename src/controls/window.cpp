#include "controls/window.h"

#include <QScopedValueRollback>
#include <stdexcept>

namespace valmerix {

Ventana::Ventana(const QString& nombre, QString caption)
    : nombre_(nombre)
    , caption_(std::move(caption))
{
    setObjectName(nombre);
}

Ventana::~Ventana() = default;

void Ventana::setCaption(const QString& texto)
{
    if (caption_ == texto)
        return;
    caption_ = texto;
    Q_EMIT PresentacionCambiada();
}

void Ventana::Registrar(std::unique_ptr<Control> control)
{
    const auto [sitio, nuevo] = porNombre_.emplace(control->nombre(), control.get());
    if (!nuevo)
        throw std::logic_error("Control repetido: " + control->nombre().toStdString());
    controles_.push_back(std::move(control));
}

Control* Ventana::buscar(QStringView nombre) const
{
    const auto hallado = porNombre_.find(nombre);
    return hallado == porNombre_.end() ? nullptr : hallado->second;
}

Control& Ventana::control(QStringView nombre) const
{
    if (Control* hallado = buscar(nombre))
        return *hallado;
    throw std::out_of_range("La ventana " + nombre_.toStdString() + " no tiene el control " +
                            nombre.toString().toStdString());
}

void Ventana::Enfocar(Control* control)
{
    const bool admite = !control || (control->aceptaFoco() && control->Enabled() && control->Visible());
    if (control == foco_ || !admite)
        return;
    const QScopedValueRollback moviendo(moviendoFoco_, moviendoFoco_ + 1);
    Control* anterior = foco_;
    foco_ = control;
    if (anterior)
        Q_EMIT anterior->LostFocus();
    // A LostFocus procedure may have moved the focus elsewhere; that move stands.
    if (foco_ != control)
        return;
    if (control)
        Q_EMIT control->GotFocus();
    Q_EMIT FocoCambiado();
}

void Ventana::RenovarFoco()
{
    Control* enMano = foco_;
    if (!enMano)
        return;
    const QScopedValueRollback moviendo(moviendoFoco_, moviendoFoco_ + 1);
    Q_EMIT enMano->LostFocus();
    if (foco_ == enMano)
        Q_EMIT enMano->GotFocus();
}

void Ventana::setModificada(bool valor)
{
    if (modificada_ == valor)
        return;
    modificada_ = valor;
    Q_EMIT PresentacionCambiada();
}

void Ventana::setVisible(bool valor)
{
    if (visible_ == valor)
        return;
    visible_ = valor;
    Q_EMIT PresentacionCambiada();
}

void Ventana::setWindowState(EstadoVentana estado)
{
    if (estado_ == estado)
        return;
    estado_ = estado;
    Q_EMIT Resize();
}

void Ventana::AñadirAtajo(const QString& teclas, std::function<void()> orden)
{
    atajos_.push_back({teclas, std::move(orden)});
}

void Ventana::Mover(const QRect& lugar)
{
    if (lugar_ == lugar)
        return;
    lugar_ = lugar;
    Q_EMIT PresentacionCambiada();
}

bool Ventana::Cerrar()
{
    if (!abierta_)
        return true;
    if (cerrando_ || !PuedeCerrar())
        return false;
    // A failure at the end leaves the window open, with all that was typed.
    const QScopedValueRollback<bool> enCurso(cerrando_, true);
    AlCerrar();
    abierta_ = false;
    visible_ = false;
    Q_EMIT Cerrada();
    return true;
}

QString Ventana::Indice(QStringView nombre, int i)
{
    return nombre.toString() + u'(' + QString::number(i) + u')';
}

void Centrar(Ventana& ventana, const Pantalla& pantalla)
{
    QRect lugar = ventana.lugar();
    const QRect area = pantalla.area();
    lugar.moveTopLeft(area.topLeft() +
                      QPoint((area.width() - lugar.width()) / 2, (area.height() - lugar.height()) / 2));
    ventana.Mover(lugar);
}

} // namespace valmerix
