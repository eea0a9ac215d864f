#pragma once

#include "common/currency.h"

#include <QString>
#include <QStringView>

namespace valmerix {

/// Reads a number as Spanish screens show it: grouping dots are skipped, the first comma is the decimal
/// mark, a leading sign and surrounding blanks are accepted. The longest beginning that is a number
/// counts, so a second comma ends it ("1,2,3" reads 1,2); a text with none ("", "abc", ",") reads 0.
/// A text of hundreds of digits reads as infinity, which Currency::de and Formatear refuse.
double LeerNumero(QStringView texto);

/// LeerNumero as money, exact for up to four decimals, ties to even beyond. Throws ErrorDesbordamiento.
Currency LeerMoneda(QStringView texto);

/// LeerNumero as a 16-bit whole number, halves to even. Throws ErrorDesbordamiento outside -32768..32767.
int LeerEntero(QStringView texto);

/// True when the whole trimmed text is a number in the sense of LeerNumero.
bool EsNumero(QStringView texto);

/// What a field shows of a stored number: empty for 0 or an empty text, otherwise the value with
/// grouping dots and `decimales` decimals (0 or more). Throws ErrorDesbordamiento for a number beyond a
/// double.
QString NumeroVisible(double valor, int decimales);
QString NumeroVisible(QStringView texto, int decimales);

/// The literal for SQL of a number typed on screen: decimal point, exactly `decimales` (0 to 4) decimals,
/// rounded half away from zero. An empty text gives `defecto` unchanged.
/// Throws ErrorDesbordamiento for a number beyond a double.
QString NumeroSQL(QStringView texto, QStringView defecto, int decimales);

} // namespace valmerix
