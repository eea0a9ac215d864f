#pragma once

#include <QDate>
#include <QString>
#include <QStringView>
#include <optional>

namespace valmerix {

/// A date as the fields hold it, "dd/mm/yyyy" with any single non-digit separator; day and month may have
/// one digit. Nothing for an unfilled mask, a half-filled one or an impossible date.
std::optional<QDate> LeerFecha(QStringView texto);

/// "dd/mm/yyyy", "" for an invalid date.
QString FechaVisible(QDate fecha);

/// "viernes, 20 de noviembre de 2026", "" for an invalid date.
QString FechaLarga(QDate fecha);

} // namespace valmerix
