#pragma once

#include "ui/pictures/capture_source.h"

#include <memory>

namespace valmerix {

/// The scanners of the machine, worked in a thread of their own.
std::unique_ptr<FuenteCaptura> CrearFuenteEscaner();

} // namespace valmerix
