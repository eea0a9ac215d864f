#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "store/open_case.h"

namespace valmerix {

/// Stores the dwelling in hand: draws a number for a new case, writes its fields, its child rows and its
/// mirror comparable, as one commit. True when "Informe guardado con éxito" was shown. Throws ErrorAlmacen.
bool SalvaVivienda(CasoAbierto& caso, EstadoCompartido& compartido, Dialogos& dialogos);

} // namespace valmerix
