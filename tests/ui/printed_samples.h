#pragma once

#include "common/printed_document.h"

#include <QString>

namespace valmerix {

/// A report as long as asked for: headings of two levels, paragraphs of many lengths, value lines, blank
/// lines between chapters, as real ones have them. The same number gives the same report.
DocumentoImpreso InformeDeMuestra(int capitulos);

/// Company data with accents, no logo.
MembreteImpreso MembreteDeMuestra();

} // namespace valmerix
