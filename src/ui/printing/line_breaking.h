#pragma once

#include <QFont>
#include <QString>
#include <vector>

namespace valmerix {

struct Renglon
{
    qreal sangria = 0; ///< from the left margin, page units
    QString texto;     ///< without blanks at its ends; empty: a blank line
};

/// Breaks one paragraph into lines of at most `ancho`. Its leading blanks and tabs (a tab goes to the next
/// print zone) become the indent of all its lines. At least one line.
std::vector<Renglon> PartirEnRenglones(const QString& parrafo, const QFont& letra, qreal ancho);

} // namespace valmerix
