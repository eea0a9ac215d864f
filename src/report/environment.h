#pragma once

namespace valmerix {

struct Redaccion;

void DelimitacionDelEntorno(Redaccion& r);
/// Main activity, income, urban features.
void Actv(Redaccion& r);
void Significacion(Redaccion& r);
/// Infrastructure, equipment, communications, consolidation; three blank lines at the end in any case.
void IECC(Redaccion& r);

} // namespace valmerix
