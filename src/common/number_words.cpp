#include "common/number_words.h"

#include <array>
#include <cstdlib>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// What changes with the gender of the thing counted.
struct Genero
{
    std::array<QStringView, 10> centenas; ///< [1] is "ciento ", told apart from "cien " by the rule
    QStringView uno;
};

constexpr Genero kMasculino{{u"", u"ciento ", u"doscientos ", u"trescientos ", u"cuatrocientos ",
                             u"quinientos ", u"seiscientos ", u"setecientos ", u"ochocientos ",
                             u"novecientos "},
                            u"un "};

constexpr Genero kFemenino{{u"", u"ciento ", u"doscientas ", u"trescientas ", u"cuatrocientas ",
                            u"quinientas ", u"seiscientas ", u"setecientas ", u"ochocientas ",
                            u"novecientas "},
                           u"una "};

struct Decena
{
    QStringView redonda; ///< with no units behind it
    QStringView conUnidad;
};

constexpr std::array<Decena, 10> kDecenas{{{u"", u""},
                                           {u"diez ", u"dieci"},
                                           {u"veinte ", u"veinti"},
                                           {u"treinta ", u"treinta y "},
                                           {u"cuarenta ", u"cuarenta y "},
                                           {u"cincuenta ", u"cincuenta y "},
                                           {u"sesenta ", u"sesenta y "},
                                           {u"setenta ", u"setenta y "},
                                           {u"ochenta ", u"ochenta y "},
                                           {u"noventa ", u"noventa y "}}};

/// 11 to 15, the ones that are a single word.
constexpr std::array<QStringView, 6> kOnceAQuince{u"",       u"once ",    u"doce ",
                                                  u"trece ", u"catorce ", u"quince "};

// Behind "dieci" and "veinti" too, without the accent: as the reports have always said it.
constexpr std::array<QStringView, 10> kUnidades{u"",       u"",      u"dos ",   u"tres ", u"cuatro ",
                                                u"cinco ", u"seis ", u"siete ", u"ocho ", u"nueve "};

constexpr qint64 kNueveCifras = 1'000'000'000;

QStringView Unidad(int unidades, const Genero& genero)
{
    return unidades == 1 ? genero.uno : kUnidades[static_cast<size_t>(unidades)];
}

void EscribirGrupo(QString& texto, int grupo, const Genero& genero)
{
    const int centenas = grupo / 100;
    const int decenas = grupo / 10 % 10;
    const int unidades = grupo % 10;
    texto += grupo == 100 ? QStringView(u"cien ") : genero.centenas[static_cast<size_t>(centenas)];
    if (decenas == 1 && unidades >= 1 && unidades <= 5) {
        texto += kOnceAQuince[static_cast<size_t>(unidades)];
        return;
    }
    const Decena& decena = kDecenas[static_cast<size_t>(decenas)];
    texto += unidades == 0 ? decena.redonda : decena.conUnidad;
    texto += Unidad(unidades, genero);
}

void EscribirEntero(QString& texto, qint64 entero, const Genero& genero)
{
    const qint64 hablado = entero % kNueveCifras;
    if (hablado == 0) {
        texto += u"cero ";
        return;
    }
    const int millones = static_cast<int>(hablado / 1'000'000);
    const int miles = static_cast<int>(hablado / 1000 % 1000);
    if (millones > 0) {
        EscribirGrupo(texto, millones, kMasculino);
        texto += millones == 1 ? u"millón " : u"millones ";
    }
    // Only a bare thousand is "mil ": 1.001.000 is "un millón una mil ", as the reports have always said it.
    if (miles > 1 || (miles == 1 && millones > 0)) {
        EscribirGrupo(texto, miles, genero);
    }
    if (miles > 0) {
        texto += u"mil ";
    }
    EscribirGrupo(texto, static_cast<int>(hablado % 1000), genero);
}

/// The decimals as they are shown, two to four of them, read as a whole number: 12,5 gives 50.
qint64 DecimalesHablados(qint64 diezmilesimas)
{
    if (diezmilesimas % 100 == 0) {
        return diezmilesimas / 100;
    }
    return diezmilesimas % 10 == 0 ? diezmilesimas / 10 : diezmilesimas;
}

QString EnLetras(Currency importe, const Genero& genero)
{
    const qint64 entero = std::abs(importe.diezmilesimas() / 10000);
    const qint64 decimales = DecimalesHablados(std::abs(importe.diezmilesimas() % 10000));
    QString texto;
    texto.reserve(160);
    EscribirEntero(texto, entero, genero);
    if (decimales > 0) {
        texto += u"con ";
        EscribirEntero(texto, decimales, genero);
    }
    return texto;
}

} // namespace

QString EnLetrasFemenino(Currency importe)
{
    return EnLetras(importe, kFemenino);
}

QString EnLetrasMasculino(Currency importe)
{
    return EnLetras(importe, kMasculino);
}

QString CorrigeUna(const QString& texto)
{
    if (!texto.endsWith(u"una "_s)) {
        return texto;
    }
    return texto.chopped(4) + u"un "_s;
}

} // namespace valmerix
