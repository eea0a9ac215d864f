#pragma once

#include "common/shared_state.h"
#include "store/open_case.h"

namespace valmerix {

/// Reads the stored dwelling into the controls of its window, recalculates, fills the grids and sets
/// NumeroTasacionActual (0 when its valuer is no longer on the list). Throws ErrorAlmacen, also for a key
/// that has no row; what was written into the controls until then stays.
void CargaVivienda(CasoAbierto& caso, EstadoCompartido& compartido, const QString& Tipo,
                   const QString& NombreTasador, qint32 NumeroTasacion);

} // namespace valmerix
