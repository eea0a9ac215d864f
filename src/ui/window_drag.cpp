#include "ui/window_drag.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace valmerix {

namespace {

class Arrastre : public QObject
{
public:
    explicit Arrastre(QWidget& asa)
        : QObject(&asa)
        , asa_(asa)
    {
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        switch (evento->type()) {
        case QEvent::MouseButtonPress:
            Empezar(static_cast<const QMouseEvent&>(*evento));
            break;
        case QEvent::MouseMove:
            if (arrastrando_) {
                const QPointF raton = static_cast<const QMouseEvent&>(*evento).globalPosition();
                asa_.window()->move(raton.toPoint() - agarre_);
            }
            break;
        case QEvent::MouseButtonRelease:
            arrastrando_ = false;
            break;
        default:
            break;
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    void Empezar(const QMouseEvent& evento)
    {
        QWidget* ventana = asa_.window();
        if (evento.button() != Qt::LeftButton || ventana->isMaximized())
            return;
        // Under some window systems nothing but the system itself may move a window.
        if (ventana->windowHandle() && ventana->windowHandle()->startSystemMove())
            return;
        arrastrando_ = true;
        agarre_ = evento.globalPosition().toPoint() - ventana->pos();
    }

    QWidget& asa_;
    QPoint agarre_;
    bool arrastrando_ = false;
};

} // namespace

void ArrastrarPor(QWidget& asa)
{
    asa.installEventFilter(new Arrastre(asa));
}

} // namespace valmerix
