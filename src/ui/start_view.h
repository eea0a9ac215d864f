#pragma once

#include "ui/window_view.h"

class QLayout;
class QStackedWidget;

namespace valmerix {

/// The start window: first the title over its picture, letter by letter, then the six kinds at the left and
/// the stored cases at the right, and below them the offer of unsaved work when there is some.
class VistaInicio : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaInicio(Ventana& ventana);

    QSize sizeHint() const override;

private:
    QWidget* Portada();
    QWidget* Menu();
    QWidget* Tipos(QWidget* padre);
    QWidget* Guardadas(QWidget* padre);
    QLayout* Recuperacion(QWidget* padre);
    void MostrarParte();

    QStackedWidget* partes_;
};

} // namespace valmerix
