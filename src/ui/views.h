#pragma once

#include "ui/window_view.h"

#include <memory>

namespace valmerix {

/// The view that belongs to a window's name; the generic one for a name without a view of its own.
std::unique_ptr<VistaVentana> CrearVista(Ventana& ventana);

} // namespace valmerix
