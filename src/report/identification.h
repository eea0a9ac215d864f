#pragma once

namespace valmerix {

struct Redaccion;

/// Title, presentation, requester, chapters 1 and 2 and the first points of chapter 3.
void Ident(Redaccion& r);

} // namespace valmerix
