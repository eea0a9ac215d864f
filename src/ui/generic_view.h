#pragma once

#include "ui/window_view.h"

class QFormLayout;

namespace valmerix {

/// The view of any window that has none of its own: all its controls one under the other.
class VistaGenerica : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaGenerica(Ventana& ventana);

private:
    void Añadir(const Control& control, QWidget* cuerpo, QFormLayout* lineas);
};

} // namespace valmerix
