#pragma once

#include "controls/rich_text.h"
#include "report/drafting.h"

namespace valmerix {

/// Sets the first occurrence of `titulo` in bold; nothing when it is not there or empty.
void Titulos(TextoEnriquecido& texto, const QString& titulo);
/// Aligns the paragraph of the first occurrence of `titulo` to the right; nothing when it is not there.
void AlaDcha(TextoEnriquecido& texto, const QString& titulo);

/// Bolds and aligns the headings of a report that stands in `texto`; the fixed ones are added to its
/// collection. The bar goes from 0 to 100. Views are told once, at the end.
void Negrita(TextoEnriquecido& texto, InformeRedactado& informe, const QString& Abr, BarraProgreso& progreso);

} // namespace valmerix
