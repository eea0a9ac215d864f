#pragma once

#include "ui/window_view.h"

namespace valmerix {

/// A question with an explanation and two buttons: leaving the program, going back to the start.
class VistaPregunta : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaPregunta(Ventana& ventana);
};

} // namespace valmerix
