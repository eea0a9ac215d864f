#pragma once

#include "ui/window_view.h"

namespace valmerix {

/// The little window that shows how far the report has come.
class VistaProgreso : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaProgreso(Ventana& ventana);
};

} // namespace valmerix
