#pragma once

#include "common/currency.h"

#include <QStringView>

namespace valmerix {

/// Number patterns: "#" an optional digit, "0" a forced one, "," groups thousands (anywhere among the
/// integer digits, several allowed), the first "." the decimal mark. The text follows the Spanish locale:
/// grouping dots, decimal comma. "#.##" leaves a bare comma behind a whole number, as it always has.
/// A double is rounded from its decimal text of 15 significant digits, half away from zero
/// (2,675 with "0.00" gives "2,68"). A value that rounds to zero carries no sign.
/// Throws ErrorDesbordamiento when `valor` is not finite.
QString Formatear(double valor, QStringView patron);
QString Formatear(Currency valor, QStringView patron);

/// Formats with the pattern and reads the text back: rounds half away from zero at its decimals.
double RedondeoFormato(double valor, QStringView patron);
Currency RedondeoFormato(Currency valor, QStringView patron);

/// "###,###,##0", then "." and as many "0" as `decimales` when that is above zero.
QString PatronMoneda(int decimales);

} // namespace valmerix
