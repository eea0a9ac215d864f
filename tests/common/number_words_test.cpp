#include "common/number_words.h"

#include "support/qt_printers.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace valmerix {

namespace {

using namespace Qt::StringLiterals;

Currency Entero(qint64 n)
{
    return Currency::deDiezmilesimas(n * 10000);
}

// The second way of saying a number: as one says it aloud, from whole words and recursion, not by places.
const std::vector<std::string> kHastaVeintinueve{
    "",           "uno",        "dos",        "tres",         "cuatro",      "cinco",      "seis",
    "siete",      "ocho",       "nueve",      "diez",         "once",        "doce",       "trece",
    "catorce",    "quince",     "dieciseis",  "diecisiete",   "dieciocho",   "diecinueve", "veinte",
    "veintiuno",  "veintidos",  "veintitres", "veinticuatro", "veinticinco", "veintiseis", "veintisiete",
    "veintiocho", "veintinueve"};
const std::vector<std::string> kDecenasRedondas{"treinta", "cuarenta", "cincuenta", "sesenta",
                                                "setenta", "ochenta",  "noventa"};

std::string ConGenero(std::string palabra, bool femenino)
{
    if (palabra.ends_with("uno")) {
        palabra.pop_back();
        palabra += femenino ? "a" : "";
        return palabra;
    }
    return palabra;
}

std::string Centenar(int centenas, bool femenino)
{
    const std::string final = femenino ? "as" : "os";
    switch (centenas) {
    case 1:
        return "ciento";
    case 5:
        return "quinient" + final;
    case 7:
        return "setecient" + final;
    case 9:
        return "novecient" + final;
    default:
        return kHastaVeintinueve[static_cast<size_t>(centenas)] + "cient" + final;
    }
}

std::string Dicho(qint64 n, bool femenino)
{
    const auto y = [](const std::string& uno, const std::string& otro) {
        return otro.empty() ? uno : uno + " " + otro;
    };
    if (n >= 1'000'000) {
        const qint64 millones = n / 1'000'000;
        const qint64 resto = n % 1'000'000;
        std::string cola = Dicho(resto, femenino);
        if (resto / 1000 == 1) {
            cola = std::string(femenino ? "una " : "un ") + cola; // "un millón una mil"
        }
        return y(millones == 1 ? "un millón" : Dicho(millones, false) + " millones", cola);
    }
    if (n >= 1000) {
        const qint64 miles = n / 1000;
        return y(miles == 1 ? "mil" : Dicho(miles, femenino) + " mil", Dicho(n % 1000, femenino));
    }
    if (n >= 100) {
        return n == 100 ? "cien" : y(Centenar(static_cast<int>(n / 100), femenino), Dicho(n % 100, femenino));
    }
    if (n >= 30) {
        const std::string& decena = kDecenasRedondas[static_cast<size_t>(n / 10 - 3)];
        return n % 10 == 0 ? decena : decena + " y " + Dicho(n % 10, femenino);
    }
    return ConGenero(kHastaVeintinueve[static_cast<size_t>(n)], femenino);
}

std::string Esperado(qint64 n, bool femenino)
{
    return n == 0 ? "cero " : Dicho(n, femenino) + " ";
}

/// "con" and the decimals as "0.00##" shows them, read as a whole number.
std::string EsperadoConDecimales(qint64 diezmilesimas, bool femenino)
{
    std::string decimales = std::to_string(10000 + diezmilesimas % 10000).substr(1);
    while (decimales.size() > 2 && decimales.back() == '0') {
        decimales.pop_back();
    }
    const qint64 hablados = std::stoll(decimales);
    return Esperado(diezmilesimas / 10000, femenino) +
           (hablados > 0 ? "con " + Esperado(hablados, femenino) : "");
}

TEST(NumberWordsTest, SaysTheSmallNumbers)
{
    EXPECT_EQ(EnLetrasMasculino(Entero(0)), u"cero "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(0)), u"cero "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(1)), u"un "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(1)), u"una "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(21)), u"veintiun "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(21)), u"veintiuna "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(100)), u"cien "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(101)), u"ciento un "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(101)), u"ciento una "_s);
}

TEST(NumberWordsTest, FusesWithoutAccents)
{
    EXPECT_EQ(EnLetrasMasculino(Entero(16)), u"dieciseis "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(17)), u"diecisiete "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(22)), u"veintidos "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(26)), u"veintiseis "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(31)), u"treinta y un "_s);
}

TEST(NumberWordsTest, SaysThousands)
{
    EXPECT_EQ(EnLetrasFemenino(Entero(1000)), u"mil "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(1000)), u"mil "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(2000)), u"dos mil "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(21000)), u"veintiuna mil "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(21000)), u"veintiun mil "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(11000)), u"once mil "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(100000)), u"cien mil "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(101000)), u"ciento una mil "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(200200)), u"doscientas mil doscientas "_s);
}

TEST(NumberWordsTest, SaysMillions)
{
    EXPECT_EQ(EnLetrasFemenino(Entero(1'000'000)), u"un millón "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(1'000'001)), u"un millón una "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(1'000'001)), u"un millón un "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(21'000'000)), u"veintiun millones "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(11'000'000)), u"once millones "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(200'000'000)), u"doscientos millones "_s);
    EXPECT_EQ(EnLetrasFemenino(Entero(100'000'000)), u"cien millones "_s);
}

TEST(NumberWordsTest, AThousandBehindMillionsKeepsItsOne)
{
    EXPECT_EQ(EnLetrasFemenino(Entero(1'001'000)), u"un millón una mil "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(1'001'000)), u"un millón un mil "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(30'001'016)), u"treinta millones un mil dieciseis "_s);
}

TEST(NumberWordsTest, SaysTheDecimalsAsAWholeNumber)
{
    const auto en = [](qint64 diezmilesimas) {
        return EnLetrasFemenino(Currency::deDiezmilesimas(diezmilesimas));
    };
    EXPECT_EQ(en(125000), u"doce con cincuenta "_s);
    EXPECT_EQ(en(120500), u"doce con cinco "_s);
    EXPECT_EQ(en(121234), u"doce con mil doscientas treinta y cuatro "_s);
    EXPECT_EQ(en(121230), u"doce con ciento veintitres "_s);
    EXPECT_EQ(en(120001), u"doce con una "_s);
    EXPECT_EQ(en(120010), u"doce con una "_s);
    EXPECT_EQ(en(120100), u"doce con una "_s);
    EXPECT_EQ(en(121000), u"doce con diez "_s);
    EXPECT_EQ(en(5000), u"cero con cincuenta "_s);
    EXPECT_EQ(en(10000'5000LL), u"diez mil con cincuenta "_s);
}

TEST(NumberWordsTest, OnlyTheLastNineDigitsAreSpoken)
{
    EXPECT_EQ(EnLetrasMasculino(Entero(1'000'000'000)), u"cero "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(1'000'000'005)), u"cinco "_s);
    EXPECT_EQ(EnLetrasMasculino(Entero(7'123'000'000)), u"ciento veintitres millones "_s);
    EXPECT_EQ(EnLetrasMasculino(Currency::deDiezmilesimas(std::numeric_limits<qint64>::max())),
              u"doscientos tres millones seiscientos ochenta y cinco mil cuatrocientos setenta y siete "
              u"con cinco mil ochocientos siete "_s);
}

TEST(NumberWordsTest, TheSignIsNotSpoken)
{
    EXPECT_EQ(EnLetrasMasculino(Entero(-12)), u"doce "_s);
    EXPECT_EQ(EnLetrasMasculino(Currency::deDiezmilesimas(-5000)), u"cero con cincuenta "_s);
    EXPECT_EQ(EnLetrasMasculino(Currency::deDiezmilesimas(std::numeric_limits<qint64>::min())),
              u"doscientos tres millones seiscientos ochenta y cinco mil cuatrocientos setenta y siete "
              u"con cinco mil ochocientos ocho "_s);
}

TEST(NumberWordsTest, AgreesWithTheSpokenWayFromZeroTo9999)
{
    for (qint64 n = 0; n <= 9999; ++n) {
        ASSERT_EQ(EnLetrasFemenino(Entero(n)).toStdString(), Esperado(n, true));
        ASSERT_EQ(EnLetrasMasculino(Entero(n)).toStdString(), Esperado(n, false));
    }
}

TEST(NumberWordsTest, AgreesWithTheSpokenWayUpToNineDigits)
{
    std::mt19937_64 azar(9);
    for (int i = 0; i < 20000; ++i) {
        qint64 limite = 10;
        for (auto cifras = azar() % 9; cifras > 0; --cifras) {
            limite *= 10;
        }
        auto n = static_cast<qint64>(azar() % static_cast<quint64>(limite));
        n = i % 3 == 0 ? n / 1000 * 1000 : n; // round thousands are where the groups fall silent
        ASSERT_EQ(EnLetrasFemenino(Entero(n)).toStdString(), Esperado(n, true)) << n;
        ASSERT_EQ(EnLetrasMasculino(Entero(n)).toStdString(), Esperado(n, false)) << n;
    }
}

TEST(NumberWordsTest, AgreesWithTheSpokenWayForAllDecimals)
{
    std::mt19937_64 azar(10);
    for (qint64 decimales = 0; decimales <= 9999; ++decimales) {
        const qint64 n = static_cast<qint64>(azar() % 1'000'000'000) * 10000 + decimales;
        const Currency importe = Currency::deDiezmilesimas(n);
        ASSERT_EQ(EnLetrasFemenino(importe).toStdString(), EsperadoConDecimales(n, true)) << n;
        ASSERT_EQ(EnLetrasMasculino(importe).toStdString(), EsperadoConDecimales(n, false)) << n;
    }
}

TEST(NumberWordsTest, OneBeforeAMasculineNounLosesItsA)
{
    EXPECT_EQ(CorrigeUna(u"una "_s), u"un "_s);
    EXPECT_EQ(CorrigeUna(u"veintiuna "_s), u"veintiun "_s);
    EXPECT_EQ(CorrigeUna(u"ciento una "_s), u"ciento un "_s);
    EXPECT_EQ(CorrigeUna(u"una"_s), u"una"_s);
    EXPECT_EQ(CorrigeUna(u"una mil "_s), u"una mil "_s);
    EXPECT_EQ(CorrigeUna(u"dos "_s), u"dos "_s);
    EXPECT_EQ(CorrigeUna(u""_s), u""_s);
}

} // namespace

} // namespace valmerix
