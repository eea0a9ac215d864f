#pragma once

#include "report/enumerations.h"
#include "report/number_strings.h"

#include <QStringList>

namespace valmerix {

/// A drafted report and what its markup needs.
struct InformeRedactado
{
    QString texto; ///< lines end in CR LF
    CadenasNumericas cadenas;
    QStringList oColNegrita; ///< headings in the order in which they were asked for, "" for the silent ones
    FrasesEnumeradas frases; ///< all of them, whether their sections are printed or silent
};

/// Drafts the whole report. Throws ErrorAlmacen (the valuer's data), ErrorDesbordamiento (a figure that is
/// not finite), std::out_of_range (a kind without a report).
InformeRedactado RedactarInforme(const CasoInforme& caso);

/// Its text alone, exactly as the temporary file holds it.
QString Redactar(const CasoInforme& caso);

} // namespace valmerix
