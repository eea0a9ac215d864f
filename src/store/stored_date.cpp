#include "store/stored_date.h"

#include "common/dates.h"

namespace valmerix {

QString FechaGuardada(QDate fecha)
{
    return fecha.toString(Qt::ISODate);
}

QDate LeerFechaGuardada(std::string_view utf8)
{
    const QString texto = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    const QDate iso = QDate::fromString(texto.left(10), Qt::ISODate);
    return iso.isValid() ? iso : LeerFecha(texto).value_or(QDate());
}

} // namespace valmerix
