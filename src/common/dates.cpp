#include "common/dates.h"

#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 7> kDias{u"lunes",   u"martes", u"miércoles", u"jueves",
                                           u"viernes", u"sábado", u"domingo"};

constexpr std::array<QStringView, 12> kMeses{u"enero",      u"febrero", u"marzo",     u"abril",
                                             u"mayo",       u"junio",   u"julio",     u"agosto",
                                             u"septiembre", u"octubre", u"noviembre", u"diciembre"};

/// Takes the digits that `texto` begins with, if there are `minimo` to `maximo` of them.
std::optional<int> TomarCifras(QStringView& texto, qsizetype minimo, qsizetype maximo)
{
    int valor = 0;
    qsizetype i = 0;
    for (; i < texto.size() && texto[i] >= u'0' && texto[i] <= u'9'; ++i) {
        if (i == maximo) {
            return {};
        }
        valor = valor * 10 + (texto[i].unicode() - u'0');
    }
    if (i < minimo) {
        return {};
    }
    texto = texto.sliced(i);
    return valor;
}

} // namespace

std::optional<QDate> LeerFecha(QStringView texto)
{
    QStringView resto = texto.trimmed();
    const auto dia = TomarCifras(resto, 1, 2);
    if (!dia || resto.isEmpty()) {
        return {};
    }
    resto = resto.sliced(1);
    const auto mes = TomarCifras(resto, 1, 2);
    if (!mes || resto.isEmpty()) {
        return {};
    }
    resto = resto.sliced(1);
    const auto año = TomarCifras(resto, 4, 4);
    if (!año || !resto.isEmpty()) {
        return {};
    }
    const QDate fecha(*año, *mes, *dia);
    return fecha.isValid() ? std::optional(fecha) : std::nullopt;
}

QString FechaVisible(QDate fecha)
{
    if (!fecha.isValid()) {
        return {};
    }
    return u"%1/%2/%3"_s.arg(fecha.day(), 2, 10, '0'_L1)
        .arg(fecha.month(), 2, 10, '0'_L1)
        .arg(fecha.year(), 4, 10, '0'_L1);
}

QString FechaLarga(QDate fecha)
{
    if (!fecha.isValid()) {
        return {};
    }
    const QStringView dia = kDias[static_cast<size_t>(fecha.dayOfWeek() - 1)];
    const QStringView mes = kMeses[static_cast<size_t>(fecha.month() - 1)];
    return u"%1, %2 de %3 de %4"_s.arg(dia, QString::number(fecha.day()), mes, QString::number(fecha.year()));
}

} // namespace valmerix
