#pragma once

#include "ui/pictures/capture_source.h"

#include <memory>

namespace valmerix {

/// The cameras of the machine.
std::unique_ptr<FuenteCaptura> CrearFuenteCamara();

} // namespace valmerix
