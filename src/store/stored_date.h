#pragma once

#include <QDate>
#include <QString>
#include <string_view>

namespace valmerix {

/// "yyyy-mm-dd", as dates are stored, so that they compare as text.
QString FechaGuardada(QDate fecha);

/// A stored date; whatever follows the tenth character is a time of day and is left out. A text that other
/// programs wrote as "dd/mm/yyyy" is read too; an invalid date for any other.
QDate LeerFechaGuardada(std::string_view utf8);

} // namespace valmerix
