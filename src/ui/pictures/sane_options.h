#pragma once

#include <sane/sane.h>

namespace valmerix {

/// Asks an open scanner for what a picture on paper needs: colour, eight bits a sample, 300 dots an inch or
/// the nearest that it has, its whole glass. What a scanner does not offer stays as it is.
void PrepararEscaner(SANE_Handle escaner);

} // namespace valmerix
