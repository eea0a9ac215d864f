#pragma once

#include "store/snapshot.h"

#include <vector>

namespace valmerix {

/// Puts the rows in the order that the engine's ORDER BY gives under the collation ESPANOL, by these columns
/// upwards: NULL, numbers, texts. Equal rows stay as they stand. Rows that come in a few ordered runs, as
/// from an index of another collation, cost a comparison each and run.
void OrdenarFilas(ConjuntoResultados::Datos& datos, const std::vector<int>& columnas);

} // namespace valmerix
