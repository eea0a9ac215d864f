#pragma once

#include "controls/rich_text.h"

#include <QByteArray>

namespace valmerix {

/// The text with its bold stretches and alignments as a rich-text document: A4 pages, pure ASCII, every other
/// character as a Unicode escape with a Latin fallback. Control characters that no page shows are left out.
QByteArray TextoRTF(const TextoEnriquecido& texto);

/// Writes it to `ruta`, whole or not at all. Throws ErrorInforme.
void GuardarRTF(const TextoEnriquecido& texto, const QString& ruta);

} // namespace valmerix
