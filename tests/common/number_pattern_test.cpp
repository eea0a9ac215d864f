#include "common/number_pattern.h"

#include "common/decimal_text.h"
#include "common/number_reading.h"
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

/// Every pattern that the program uses, and some that nobody has asked for yet.
const std::vector<std::string> kPatrones{"###,###,##0",
                                         "###,###,##0.00",
                                         "####,##0.00",
                                         "##0.00",
                                         "###,##0.00",
                                         "###,##0,00",
                                         "#.##",
                                         "###.###",
                                         "#,##0.00",
                                         "##,##0.00",
                                         "###,##0",
                                         "#,###,##0",
                                         "0.00##",
                                         "##0.",
                                         "##0.0000",
                                         "###,###,##0.00##",
                                         "0",
                                         "#",
                                         "000,000.000",
                                         "0#",
                                         "#0#.#0#",
                                         ".00",
                                         ".",
                                         ",",
                                         "#,",
                                         ",0",
                                         "0,0.0",
                                         "#.#",
                                         "0.##########",
                                         "##0.00000000000000000000"};

pruebas::TextoDecimal Decimal(Currency importe)
{
    const std::string texto = importe.decimal().toStdString();
    const bool negativo = texto[0] == '-';
    const size_t punto = texto.find('.');
    std::string enteros = texto.substr(negativo ? 1 : 0, punto - (negativo ? 1 : 0));
    enteros.erase(0, enteros.find_first_not_of('0'));
    return {negativo, enteros, texto.substr(punto + 1)};
}

TEST(NumberPatternTest, GroupsThousandsWithDotsAndMarksDecimalsWithAComma)
{
    EXPECT_EQ(Formatear(1234567.891, u"###,##0.00"), u"1.234.567,89"_s);
    EXPECT_EQ(Formatear(123.0, u"###,###,##0"), u"123"_s);
    EXPECT_EQ(Formatear(1000.0, u"###,###,##0"), u"1.000"_s);
    EXPECT_EQ(Formatear(999999.995, u"#,###,##0.00"), u"1.000.000,00"_s);
    EXPECT_EQ(Formatear(1234567.0, u"0"), u"1234567"_s);
}

TEST(NumberPatternTest, RoundsHalfAwayFromZeroFromTheTextOfFifteenDigits)
{
    EXPECT_EQ(Formatear(2.675, u"0.00"), u"2,68"_s);
    EXPECT_EQ(Formatear(-2.675, u"0.00"), u"-2,68"_s);
    EXPECT_EQ(Formatear(1.005, u"0.00"), u"1,01"_s);
    EXPECT_EQ(Formatear(0.5, u"0"), u"1"_s);
    EXPECT_EQ(Formatear(1.5, u"0"), u"2"_s);
    EXPECT_EQ(Formatear(2.5, u"0"), u"3"_s);
    EXPECT_EQ(Formatear(2.49999999999999, u"0"), u"2"_s);
    EXPECT_EQ(Formatear(2.499999999999999, u"0"), u"3"_s); // 2,50000000000000 in fifteen digits
}

TEST(NumberPatternTest, CarriesThroughAllNines)
{
    EXPECT_EQ(Formatear(999.999, u"##0.00"), u"1000,00"_s);
    EXPECT_EQ(Formatear(0.995, u"#.##"), u"1,"_s);
    EXPECT_EQ(Formatear(0.06, u"#.#"), u",1"_s);
    EXPECT_EQ(Formatear(0.04, u"#.#"), u","_s);
}

TEST(NumberPatternTest, OptionalDigitsLeaveABareMarkBehindAWholeNumber)
{
    EXPECT_EQ(Formatear(12.0, u"#.##"), u"12,"_s);
    EXPECT_EQ(Formatear(1.2, u"#.##"), u"1,2"_s);
    EXPECT_EQ(Formatear(0.25, u"#.##"), u",25"_s);
    EXPECT_EQ(Formatear(0.0, u"#.##"), u","_s);
    EXPECT_EQ(Formatear(12.0, u"###.###"), u"12,"_s);
    EXPECT_EQ(Formatear(0.0, u"###"), u""_s);
}

TEST(NumberPatternTest, SomeDecimalsAreForcedAndTheRestOptional)
{
    EXPECT_EQ(Formatear(12.5, u"0.00##"), u"12,50"_s);
    EXPECT_EQ(Formatear(12.125, u"0.00##"), u"12,125"_s);
    EXPECT_EQ(Formatear(12.12345, u"0.00##"), u"12,1235"_s);
    EXPECT_EQ(Formatear(12.0, u"###,###,##0.00##"), u"12,00"_s);
}

TEST(NumberPatternTest, ACommaWithoutAPointIsAGroupingMarkAndKeepsThreeDigits)
{
    EXPECT_EQ(Formatear(1234.5, u"###,##0,00"), u"1.235"_s);
    EXPECT_EQ(Formatear(5.0, u"###,##0,00"), u"005"_s);
    EXPECT_EQ(Formatear(0.0, u"###,##0,00"), u"000"_s);
    EXPECT_EQ(RedondeoFormato(1234.5, u"###,##0,00"), 1235.0);
    EXPECT_EQ(RedondeoFormato(1234.4, u"###,##0,00"), 1234.0);
    EXPECT_EQ(RedondeoFormato(5.0, u"###,##0,00"), 5.0);
}

TEST(NumberPatternTest, AValueThatRoundsToZeroCarriesNoSign)
{
    EXPECT_EQ(Formatear(-0.004, u"0.00"), u"0,00"_s);
    EXPECT_EQ(Formatear(-0.005, u"0.00"), u"-0,01"_s);
    EXPECT_EQ(Formatear(-0.0, u"###,##0"), u"0"_s);
    EXPECT_EQ(Formatear(Currency::de(-0.004), u"0.00"), u"0,00"_s);
    EXPECT_EQ(Formatear(-1234.0, u"###,##0"), u"-1.234"_s);
}

TEST(NumberPatternTest, TheCornersOfTheDoubleAreShownWhole)
{
    const QString largo = Formatear(1e300, u"#,##0.0");
    EXPECT_EQ(largo.size(), 301 + 100 + 2);
    EXPECT_TRUE(largo.startsWith(u"1.000.000."_s));
    EXPECT_EQ(Formatear(std::numeric_limits<double>::denorm_min(), u"0.00"), u"0,00"_s);
    EXPECT_EQ(Formatear(1e-300, u"").size(), 302);
    EXPECT_EQ(Formatear(123456789012345678.0, u"0"), u"123456789012346000"_s);
}

TEST(NumberPatternTest, RefusesWhatIsNotFinite)
{
    const double infinito = std::numeric_limits<double>::infinity();
    EXPECT_THROW(Formatear(infinito, u"0"), ErrorDesbordamiento);
    EXPECT_THROW(Formatear(-infinito, u""), ErrorDesbordamiento);
    EXPECT_THROW(Formatear(std::nan(""), u"0"), ErrorDesbordamiento);
    EXPECT_THROW(RedondeoFormato(infinito, u"0.00"), ErrorDesbordamiento);
}

TEST(NumberPatternTest, AnEmptyPatternShowsThePlainNumber)
{
    EXPECT_EQ(Formatear(1234567.891, u""), u"1234567,891"_s);
    EXPECT_EQ(Formatear(0.0, u""), u"0"_s);
    EXPECT_EQ(Formatear(-0.25, u""), u"-0,25"_s);
    EXPECT_EQ(Formatear(100000.0, u""), u"100000"_s);
    EXPECT_EQ(Formatear(0.1 + 0.2, u""), u"0,3"_s);
    EXPECT_EQ(Formatear(Currency::de(1234.5), u""), u"1234,5"_s);
    EXPECT_EQ(RedondeoFormato(Currency::de(76923.0769), u""), Currency::de(76923.0769));
}

TEST(NumberPatternTest, MoneyIsShownFromAllItsDigits)
{
    EXPECT_EQ(Formatear(Currency::deDiezmilesimas(kMaximo), u"#,##0.0000"), u"922.337.203.685.477,5807"_s);
    EXPECT_EQ(Formatear(Currency::deDiezmilesimas(kMinimo), u"#,##0.0000"), u"-922.337.203.685.477,5808"_s);
    EXPECT_EQ(Formatear(Currency::deDiezmilesimas(5), u"0.000"), u"0,001"_s);
    EXPECT_EQ(RedondeoFormato(Currency::de(76923.0769), u"###,###,##0.00"), Currency::de(76923.08));
    EXPECT_THROW(RedondeoFormato(Currency::deDiezmilesimas(kMaximo), u"0"), ErrorDesbordamiento);
}

TEST(NumberPatternTest, TheCalculatorsFactorsComeOutAsTheyAlwaysHave)
{
    EXPECT_EQ(RedondeoFormato(1.15 + 8.0 / 100 - ((100.0 - 75) / 15) * 0.016, u"#.##"), 1.20);
    EXPECT_EQ(RedondeoFormato(100 / 1.2, u"##0.00"), 83.33);
    EXPECT_EQ(RedondeoFormato(12345.0 / 10, u"###,##0,00") * 10, 12350.0);
    EXPECT_EQ(RedondeoFormato(12344.0 / 10, u"###,##0,00") * 10, 12340.0);
    EXPECT_EQ(RedondeoFormato(200.0 / 100, u"###,##0.00"), 2.0);
}

TEST(NumberPatternTest, MoneyPatternHasAsManyDecimalsAsTheOptionSays)
{
    EXPECT_EQ(PatronMoneda(0), u"###,###,##0"_s);
    EXPECT_EQ(PatronMoneda(2), u"###,###,##0.00"_s);
    EXPECT_EQ(PatronMoneda(4), u"###,###,##0.0000"_s);
    EXPECT_EQ(PatronMoneda(-1), u"###,###,##0"_s);
}

TEST(NumberPatternTest, OtherCharactersOfAPatternMeanNothing)
{
    EXPECT_EQ(Formatear(1234.5, u"€ #,##0.00 x"), u"1.234,50"_s);
    EXPECT_EQ(Formatear(1234.5, u"#,##0.0.0"), u"1.234,50"_s);
    EXPECT_EQ(Formatear(1234.5, u"0.0,0"), u"1234,50"_s);
}

TEST(NumberPatternTest, AgreesWithDecimalArithmeticForRandomDoubles)
{
    std::mt19937_64 azar(15);
    for (int i = 0; i < 3000; ++i) {
        const double escala = std::pow(10.0, static_cast<int>(azar() % 16));
        const auto diezmilesimas = static_cast<double>(azar() % 1'000'000'000'000);
        const double valor = (azar() % 2 == 0 ? 1 : -1) * diezmilesimas / escala;
        const pruebas::TextoDecimal decimal = pruebas::QuinceCifras(valor);
        for (const std::string& patron : kPatrones) {
            ASSERT_EQ(Formatear(valor, QString::fromStdString(patron)).toStdString(),
                      pruebas::Mostrado(decimal, patron))
                << patron << ' ' << valor;
        }
    }
}

TEST(NumberPatternTest, AgreesWithDecimalArithmeticForAnyBits)
{
    std::mt19937_64 azar(16);
    for (int i = 0; i < 500; ++i) {
        const auto valor = std::bit_cast<double>(azar());
        if (!std::isfinite(valor)) {
            continue;
        }
        for (const std::string& patron : kPatrones) {
            ASSERT_EQ(Formatear(valor, QString::fromStdString(patron)).toStdString(),
                      pruebas::Mostrado(pruebas::QuinceCifras(valor), patron))
                << patron << ' ' << valor;
        }
    }
}

TEST(NumberPatternTest, AgreesWithDecimalArithmeticOnTiesOfMoney)
{
    std::mt19937_64 azar(17);
    for (int i = 0; i < 3000; ++i) {
        const auto n = static_cast<qint64>(azar()) >> (azar() % 60);
        // Half of them end in 5, 50 or 500: the halves are where roundings part.
        const Currency importe = Currency::deDiezmilesimas(i % 2 == 0 ? n : n / 1000 * 1000 + 500);
        for (const std::string& patron : kPatrones) {
            ASSERT_EQ(Formatear(importe, QString::fromStdString(patron)).toStdString(),
                      pruebas::Mostrado(Decimal(importe), patron))
                << patron << ' ' << importe.decimal().toStdString();
        }
    }
}

TEST(NumberPatternTest, ReadingBackWhatWasShownLosesLessThanHalfAUnit)
{
    std::mt19937_64 azar(18);
    std::uniform_real_distribution<double> importes(-1e9, 1e9);
    for (int i = 0; i < 5000; ++i) {
        const double valor = importes(azar);
        EXPECT_NEAR(RedondeoFormato(valor, u"###,###,##0.00"), valor, 0.005 + 1e-6);
        EXPECT_NEAR(RedondeoFormato(valor, u"###,##0"), valor, 0.5 + 1e-6);
    }
}

} // namespace

} // namespace valmerix
