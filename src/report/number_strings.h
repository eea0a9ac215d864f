#pragma once

#include "report/report_case.h"

namespace valmerix {

/// The figures of the case as the report quotes them, formatted once at the start of drafting.
struct CadenasNumericas
{
    QString TxtConstruida, TxtUtil, TxtSolar, TxtSobreRasante; ///< m², two decimals
    QString TxtD, TxtK;
    QString TxtRS, TxtCc, TxtCR, TxtVr, TxtVt, TxtTotal, TxtSueloUnitario; ///< money
    QString FechaLarga;                                 ///< empty when the field has no date
    QString LineaTrastero, LineaGaraje, LineaOtroAnexo; ///< empty when the annex is worth nothing
    QString TextoLetras;                                ///< the total in words, ending in a blank
    QString TotalEnLetras;                              ///< words in capitals, name of the currency, stop
};

/// Throws ErrorDesbordamiento for a figure that is not finite.
CadenasNumericas NUMFORMAT(const CasoInforme& caso);

} // namespace valmerix
