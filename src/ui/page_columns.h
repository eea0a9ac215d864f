#pragma once

#include <vector>

namespace valmerix {

/// How many of the panels, taken in order, go into each of at most `columnas` columns so that the highest
/// column is as low as can be. `altos`: height of each panel with the gap under it.
std::vector<int> RepartirEnColumnas(const std::vector<int>& altos, int columnas);

/// The height of the highest column of such a sharing out.
int AltoDe(const std::vector<int>& altos, const std::vector<int>& reparto);

} // namespace valmerix
