#include "common/currency.h"

#include <cmath>
#include <limits>

namespace valmerix {

namespace {

constexpr double kPrimerEnteroFuera = 922337203685478.0;
constexpr quint64 kDiezmil = 10000;

[[noreturn]] void NoCabe()
{
    throw ErrorDesbordamiento("El importe es demasiado grande.");
}

} // namespace

// Whole part and fraction are taken apart, so that every step below is exact: the fraction times 10000
// is known as a double plus the error of its rounding, and the error only decides between two halves.
Currency Currency::de(double importe)
{
    if (std::isnan(importe)) {
        throw ErrorDesbordamiento("El importe no es un número.");
    }
    const double magnitud = std::fabs(importe);
    if (magnitud >= kPrimerEnteroFuera) {
        NoCabe();
    }
    const double entera = std::floor(magnitud);
    const double fraccion = magnitud - entera;
    const double producto = fraccion * 10000.0;
    const double error = std::fma(fraccion, 10000.0, -producto);
    const double base = std::floor(producto);
    const double resto = producto - base;

    const quint64 inferior = static_cast<quint64>(entera) * kDiezmil + static_cast<quint64>(base);
    const bool impar = inferior % 2 == 1;
    const bool sube = resto > 0.5 || (resto == 0.5 && (error > 0 || (error == 0 && impar)));
    const quint64 total = inferior + (sube ? 1 : 0);

    const bool negativo = std::signbit(importe);
    const quint64 limite = static_cast<quint64>(std::numeric_limits<qint64>::max()) + (negativo ? 1 : 0);
    if (total > limite) {
        NoCabe();
    }
    return deDiezmilesimas(static_cast<qint64>(negativo ? 0 - total : total));
}

std::optional<Currency> Currency::deDecimal(QStringView texto)
{
    constexpr qsizetype kDecimales = 4;
    if (texto.size() <= kDecimales + 1 || texto.at(texto.size() - kDecimales - 1) != u'.')
        return std::nullopt;
    QString cifras = texto.toString();
    cifras.remove(cifras.size() - kDecimales - 1, 1);
    bool vale = false;
    const qint64 n = cifras.toLongLong(&vale);
    return vale ? std::optional(deDiezmilesimas(n)) : std::nullopt;
}

QString Currency::decimal() const
{
    const quint64 magnitud = n_ < 0 ? 0 - static_cast<quint64>(n_) : static_cast<quint64>(n_);
    QString texto = QString::number(magnitud).rightJustified(5, u'0');
    texto.insert(texto.size() - 4, u'.');
    if (n_ < 0) {
        texto.prepend(u'-');
    }
    return texto;
}

Currency Currency::operator+(Currency otro) const
{
    qint64 suma = 0;
    if (__builtin_add_overflow(n_, otro.n_, &suma)) {
        NoCabe();
    }
    return deDiezmilesimas(suma);
}

Currency Currency::operator-(Currency otro) const
{
    qint64 diferencia = 0;
    if (__builtin_sub_overflow(n_, otro.n_, &diferencia)) {
        NoCabe();
    }
    return deDiezmilesimas(diferencia);
}

} // namespace valmerix
