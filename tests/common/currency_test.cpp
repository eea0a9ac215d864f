#include "common/currency.h"

#include "common/decimal_text.h"
#include "support/qt_printers.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace valmerix {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMaximo = std::numeric_limits<qint64>::max();
constexpr qint64 kMinimo = std::numeric_limits<qint64>::min();

std::string DiezmilesimasDe(double importe)
{
    return std::to_string(Currency::de(importe).diezmilesimas());
}

TEST(CurrencyTest, IsZeroWhenNew)
{
    EXPECT_TRUE(Currency().esCero());
    EXPECT_EQ(Currency().decimal(), u"0.0000"_s);
}

TEST(CurrencyTest, KeepsFourDecimals)
{
    EXPECT_EQ(Currency::de(16923.08).diezmilesimas(), 169230800);
    EXPECT_EQ(Currency::de(-0.5).diezmilesimas(), -5000);
    EXPECT_EQ(Currency::de(1.00004999).diezmilesimas(), 10000);
    EXPECT_EQ(Currency::de(99999.90004).diezmilesimas(), 999999000);
}

TEST(CurrencyTest, RoundsRealTiesToTheEvenDigit)
{
    // Multiples of 1/32 end in ...03125: the tie is exact in binary.
    EXPECT_EQ(Currency::de(0.03125).diezmilesimas(), 312);
    EXPECT_EQ(Currency::de(0.09375).diezmilesimas(), 938);
    EXPECT_EQ(Currency::de(-0.03125).diezmilesimas(), -312);
    EXPECT_EQ(Currency::de(-0.09375).diezmilesimas(), -938);
    EXPECT_EQ(Currency::de(1234567.03125).diezmilesimas(), 12345670312);
}

TEST(CurrencyTest, LooksAtTheExactValueWhereTheProductWouldLookLikeATie)
{
    // 1,00005 lies just above the tie in binary, 1,00015 just below it, and both products end in a bare .5.
    for (const double importe : {0.00005, 0.00015, 0.00025, 1.00005, 1.00015, 1.00025, 2.00035, 8.12345}) {
        EXPECT_EQ(DiezmilesimasDe(importe), pruebas::Diezmilesimas(pruebas::Exacto(importe))) << importe;
        EXPECT_EQ(DiezmilesimasDe(-importe), pruebas::Diezmilesimas(pruebas::Exacto(-importe))) << importe;
    }
}

TEST(CurrencyTest, AgreesWithExactDecimalArithmeticNearEveryTie)
{
    std::mt19937_64 azar(20261120);
    for (int i = 0; i < 20000; ++i) {
        const int bits = 1 + static_cast<int>(azar() % 49);
        const auto enteros = static_cast<double>(azar() % (quint64{1} << bits));
        double importe = enteros + (static_cast<double>(azar() % 10000) + 0.5) / 10000.0;
        const auto pasos = static_cast<int>(azar() % 5) - 2;
        for (int paso = 0; paso < std::abs(pasos); ++paso) {
            importe = std::nextafter(importe, pasos < 0 ? 0.0 : 1e15);
        }
        importe = azar() % 2 == 0 ? importe : -importe;
        ASSERT_EQ(DiezmilesimasDe(importe), pruebas::Diezmilesimas(pruebas::Exacto(importe)))
            << std::hexfloat << importe;
    }
}

TEST(CurrencyTest, AgreesWithExactDecimalArithmeticForAnyBits)
{
    std::mt19937_64 azar(7);
    int probados = 0;
    while (probados < 5000) {
        const auto importe = std::bit_cast<double>(azar());
        if (!(std::fabs(importe) < 9.2e14)) {
            continue;
        }
        ASSERT_EQ(DiezmilesimasDe(importe), pruebas::Diezmilesimas(pruebas::Exacto(importe)))
            << std::hexfloat << importe;
        ++probados;
    }
}

TEST(CurrencyTest, TinyAmountsAreZeroWithoutASign)
{
    EXPECT_TRUE(Currency::de(-0.0).esCero());
    EXPECT_TRUE(Currency::de(0.00005 / 2).esCero());
    EXPECT_TRUE(Currency::de(-std::numeric_limits<double>::denorm_min()).esCero());
}

TEST(CurrencyTest, RefusesWhatDoesNotFit)
{
    EXPECT_EQ(Currency::de(922337203685477.5).diezmilesimas(), 9223372036854775000);
    EXPECT_EQ(Currency::de(-922337203685477.5).diezmilesimas(), -9223372036854775000);
    EXPECT_THROW(Currency::de(922337203685477.625), ErrorDesbordamiento);
    EXPECT_THROW(Currency::de(-922337203685477.625), ErrorDesbordamiento);
    EXPECT_THROW(Currency::de(922337203685478.0), ErrorDesbordamiento);
    EXPECT_THROW(Currency::de(1844674407370955.25),
                 ErrorDesbordamiento); // small again once 64 bits wrap round
    EXPECT_THROW(Currency::de(1e300), ErrorDesbordamiento);
    EXPECT_THROW(Currency::de(std::numeric_limits<double>::infinity()), ErrorDesbordamiento);
    EXPECT_THROW(Currency::de(-std::numeric_limits<double>::infinity()), ErrorDesbordamiento);
}

TEST(CurrencyTest, SaysInSpanishWhyItRefuses)
{
    try {
        Currency::de(1e300);
        FAIL() << "no error";
    } catch (const ErrorDesbordamiento& error) {
        EXPECT_STREQ(error.what(), "El importe es demasiado grande.");
    }
    try {
        Currency::de(std::numeric_limits<double>::quiet_NaN());
        FAIL() << "no error";
    } catch (const ErrorDesbordamiento& error) {
        EXPECT_STREQ(error.what(), "El importe no es un número.");
    }
}

TEST(CurrencyTest, SumsAndDifferencesAreExact)
{
    const Currency decima = Currency::de(0.1);
    Currency suma;
    for (int i = 0; i < 10; ++i) {
        suma += decima;
    }
    EXPECT_EQ(suma, Currency::de(1.0));
    EXPECT_EQ(Currency::deDiezmilesimas(kMaximo) - Currency::deDiezmilesimas(1),
              Currency::deDiezmilesimas(kMaximo - 1));
    EXPECT_EQ(Currency::deDiezmilesimas(kMinimo) + Currency::deDiezmilesimas(kMaximo),
              Currency::deDiezmilesimas(-1));
}

TEST(CurrencyTest, SumsAndDifferencesThatDoNotFitAreErrors)
{
    const Currency maximo = Currency::deDiezmilesimas(kMaximo);
    const Currency minimo = Currency::deDiezmilesimas(kMinimo);
    const Currency una = Currency::deDiezmilesimas(1);
    EXPECT_THROW(maximo + una, ErrorDesbordamiento);
    EXPECT_THROW(minimo - una, ErrorDesbordamiento);
    EXPECT_THROW(Currency() - minimo, ErrorDesbordamiento);
    EXPECT_NO_THROW(maximo - una);
}

TEST(CurrencyTest, PlainTextHasAPointAndFourDecimals)
{
    EXPECT_EQ(Currency::de(16923.08).decimal(), u"16923.0800"_s);
    EXPECT_EQ(Currency::de(-0.5).decimal(), u"-0.5000"_s);
    EXPECT_EQ(Currency::deDiezmilesimas(7).decimal(), u"0.0007"_s);
    EXPECT_EQ(Currency::deDiezmilesimas(-123456).decimal(), u"-12.3456"_s);
    EXPECT_EQ(Currency::deDiezmilesimas(kMaximo).decimal(), u"922337203685477.5807"_s);
    EXPECT_EQ(Currency::deDiezmilesimas(kMinimo).decimal(), u"-922337203685477.5808"_s);
}

TEST(CurrencyTest, ComparesByAmount)
{
    EXPECT_LT(Currency::de(-1.0), Currency::de(0.5));
    EXPECT_GT(Currency::de(1000.0), Currency::de(999.9999));
    EXPECT_DOUBLE_EQ(Currency::de(12.3456).aDouble(), 12.3456);
}

} // namespace

} // namespace valmerix
