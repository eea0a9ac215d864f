#include "common/number_pattern.h"

#include "common/number_reading.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCifrasDouble = 15;
constexpr int kDecimalesCurrency = 4;
constexpr int kCifrasMaximas = 20; // those of a 64-bit whole number

/// The number 0,c1c2c3... × 10^enteros, with no zeros at its end. Zero has no digits and no sign.
struct Cifras
{
    std::array<char, kCifrasMaximas> digitos{};
    qsizetype cuantas = 0;
    qsizetype enteros = 0;
    bool negativo = false;

    void QuitarCeros()
    {
        while (cuantas > 0 && digitos[static_cast<size_t>(cuantas - 1)] == '0') {
            --cuantas;
        }
        if (cuantas == 0) {
            *this = {};
        }
    }

    QChar en(qsizetype posicion) const
    {
        const bool dentro = posicion >= 0 && posicion < cuantas;
        return QLatin1Char(dentro ? digitos[static_cast<size_t>(posicion)] : '0');
    }
};

struct Patron
{
    qsizetype enterosMinimos = 0;
    qsizetype decimalesMinimos = 0;
    qsizetype decimalesMaximos = 0;
    bool agrupa = false;
    bool marca = false;
};

Cifras CifrasDe(double valor)
{
    if (!std::isfinite(valor)) {
        throw ErrorDesbordamiento("El número es demasiado grande.");
    }
    std::array<char, 32> texto{}; // "d.dddddddddddddde+ddd"
    const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), std::fabs(valor),
                                   std::chars_format::scientific, kCifrasDouble - 1)
                         .ptr;
    Cifras cifras;
    cifras.digitos[0] = texto[0];
    std::copy_n(texto.data() + 2, kCifrasDouble - 1, cifras.digitos.data() + 1);
    cifras.cuantas = kCifrasDouble;

    const char* const signo = texto.data() + kCifrasDouble + 2;
    int exponente = 0;
    std::from_chars(signo + 1, fin, exponente);
    cifras.enteros = (*signo == '-' ? -exponente : exponente) + 1;
    cifras.negativo = std::signbit(valor);
    cifras.QuitarCeros();
    return cifras;
}

Cifras CifrasDe(Currency valor)
{
    const qint64 n = valor.diezmilesimas();
    Cifras cifras;
    const auto fin = std::to_chars(cifras.digitos.data(), cifras.digitos.data() + cifras.digitos.size(),
                                   n < 0 ? 0 - static_cast<quint64>(n) : static_cast<quint64>(n))
                         .ptr;
    cifras.cuantas = fin - cifras.digitos.data();
    cifras.enteros = cifras.cuantas - kDecimalesCurrency;
    cifras.negativo = n < 0;
    cifras.QuitarCeros();
    return cifras;
}

// From the outermost "0" inwards every place is forced: "0#" keeps two digits.
Patron LeerPatron(QStringView texto)
{
    Patron patron;
    for (const QChar c : texto) {
        const bool cifra = c == u'0' || c == u'#';
        if (cifra && patron.marca) {
            ++patron.decimalesMaximos;
            if (c == u'0') {
                patron.decimalesMinimos = patron.decimalesMaximos;
            }
        } else if (cifra) {
            patron.enterosMinimos += c == u'0' || patron.enterosMinimos > 0 ? 1 : 0;
        } else if (c == u',') {
            patron.agrupa = patron.agrupa || !patron.marca;
        } else if (c == u'.') {
            patron.marca = true;
        }
    }
    return patron;
}

// Without a pattern all the digits are shown, and a decimal mark only where there are decimals.
Patron PatronLlano(const Cifras& cifras)
{
    const qsizetype decimales = std::max<qsizetype>(0, cifras.cuantas - cifras.enteros);
    return {.enterosMinimos = 1,
            .decimalesMinimos = decimales,
            .decimalesMaximos = decimales,
            .marca = decimales > 0};
}

/// Half away from zero.
void Redondear(Cifras& cifras, qsizetype decimales)
{
    const qsizetype quedan = cifras.enteros + decimales;
    if (quedan >= cifras.cuantas) {
        return;
    }
    if (quedan < 0) {
        cifras = {};
        return;
    }
    char* const digitos = cifras.digitos.data();
    const bool sube = digitos[quedan] >= '5';
    cifras.cuantas = quedan;
    if (sube) {
        while (cifras.cuantas > 0 && digitos[cifras.cuantas - 1] == '9') {
            --cifras.cuantas;
        }
        if (cifras.cuantas > 0) {
            ++digitos[cifras.cuantas - 1];
        } else {
            digitos[0] = '1';
            cifras.cuantas = 1;
            ++cifras.enteros;
        }
    }
    cifras.QuitarCeros();
}

QString Escribir(const Cifras& cifras, const Patron& patron)
{
    const qsizetype enteros = std::max({cifras.enteros, patron.enterosMinimos, qsizetype{0}});
    const qsizetype decimales = std::max(patron.decimalesMinimos, cifras.cuantas - cifras.enteros);
    const qsizetype puntos = patron.agrupa && enteros > 0 ? (enteros - 1) / 3 : 0;
    const qsizetype largo = (cifras.negativo ? 1 : 0) + enteros + puntos + (patron.marca ? 1 : 0) +
                            std::max<qsizetype>(0, decimales);
    QString texto(largo, Qt::Uninitialized);
    QChar* salida = texto.data();
    if (cifras.negativo) {
        *salida++ = u'-';
    }
    for (qsizetype faltan = enteros; faltan > 0; --faltan) {
        *salida++ = cifras.en(cifras.enteros - faltan);
        if (patron.agrupa && faltan > 1 && faltan % 3 == 1) {
            *salida++ = u'.';
        }
    }
    if (patron.marca) {
        *salida++ = u',';
    }
    for (qsizetype i = 0; i < decimales; ++i) {
        *salida++ = cifras.en(cifras.enteros + i);
    }
    return texto;
}

QString FormatearCifras(Cifras cifras, QStringView texto)
{
    const Patron patron = texto.isEmpty() ? PatronLlano(cifras) : LeerPatron(texto);
    Redondear(cifras, patron.decimalesMaximos);
    return Escribir(cifras, patron);
}

} // namespace

QString Formatear(double valor, QStringView patron)
{
    return FormatearCifras(CifrasDe(valor), patron);
}

QString Formatear(Currency valor, QStringView patron)
{
    return FormatearCifras(CifrasDe(valor), patron);
}

double RedondeoFormato(double valor, QStringView patron)
{
    return LeerNumero(Formatear(valor, patron));
}

Currency RedondeoFormato(Currency valor, QStringView patron)
{
    return LeerMoneda(Formatear(valor, patron));
}

QString PatronMoneda(int decimales)
{
    QString patron = u"###,###,##0"_s;
    if (decimales > 0) {
        patron += u'.' + QString(decimales, u'0');
    }
    return patron;
}

} // namespace valmerix
