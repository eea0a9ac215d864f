#pragma once

#include <QString>

namespace valmerix {

/// Where a line of the report begins, in blanks: the print zones have 14 columns.
enum class Nivel : int {
    L0 = 0,     ///< title, chapter headings
    L1 = 14,    ///< second-level headings and their text
    L2 = 28,    ///< third-level headings and their text, formulas
    L3 = 42,    ///< result block
    Firma = 40, ///< place and date, signature
};

/// The report's text as it grows, line by line. Every line is one paragraph and ends in CR LF.
class TextoInforme
{
public:
    TextoInforme();

    /// Line breaks inside `texto`, of any kind, become CR LF; what follows them has no indent.
    void Linea(Nivel nivel, QStringView texto);
    /// Blank lines.
    void NL(int cuantas = 1);

    const QString& texto() const { return texto_; }

private:
    QString texto_;
};

} // namespace valmerix
