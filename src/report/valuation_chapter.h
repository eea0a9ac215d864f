#pragma once

namespace valmerix {

struct Redaccion;

/// Unit values or, without that chapter, the market information alone.
void CalculoDeLosValoresUnitarios(Redaccion& r);
/// Value, annexes, total in words, signature: printed whatever the profile says.
void ValorDeTasacion(Redaccion& r);

} // namespace valmerix
