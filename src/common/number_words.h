#pragma once

#include "common/currency.h"

#include <QString>

namespace valmerix {

/// Spanish words of an amount, lower case, ending in a blank: 21 gives "veintiun " or "veintiuna ".
/// Decimals follow as "con " and their words (12,50: "doce con cincuenta "). Only the last nine integer
/// digits are spoken. The sign is not.
QString EnLetrasFemenino(Currency importe);
QString EnLetrasMasculino(Currency importe);

/// A trailing "una " becomes "un "; any other text passes unchanged.
QString CorrigeUna(const QString& texto);

} // namespace valmerix
