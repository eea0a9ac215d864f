#pragma once

namespace valmerix {

struct Redaccion;

/// The dwelling chapter: rooms, finishes, surfaces, state, quality; two blank lines at its end in any case.
void CaracteristicasDeLaVivienda(Redaccion& r);

/// Planning, documents and notes, each a chapter of its own.
void SituacionDocumentacionObservaciones(Redaccion& r);

} // namespace valmerix
