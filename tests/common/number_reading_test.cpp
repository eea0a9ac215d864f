#include "common/number_reading.h"

#include "common/decimal_text.h"
#include "support/qt_printers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace valmerix {

namespace {

using namespace Qt::StringLiterals;

TEST(NumberReadingTest, ReadsDotsAsGroupingAndTheCommaAsTheDecimalMark)
{
    EXPECT_EQ(LeerNumero(u"1.234.567,89"), 1234567.89);
    EXPECT_EQ(LeerNumero(u"1234567,89"), 1234567.89);
    EXPECT_EQ(LeerNumero(u"12"), 12.0);
    EXPECT_EQ(LeerNumero(u"0,0001"), 0.0001);
    EXPECT_EQ(LeerNumero(u"1.5"), 15.0);
}

TEST(NumberReadingTest, ReadsSignsAndSurroundingBlanks)
{
    EXPECT_EQ(LeerNumero(u"  -1.234,5 "), -1234.5);
    EXPECT_EQ(LeerNumero(u"+7"), 7.0);
    EXPECT_EQ(LeerNumero(u"\t3,25\r\n"), 3.25);
    EXPECT_FALSE(std::signbit(LeerNumero(u"-0")));
}

TEST(NumberReadingTest, TheLongestBeginningThatIsANumberCounts)
{
    EXPECT_EQ(LeerNumero(u"1,2,3"), 1.2);
    EXPECT_EQ(LeerNumero(u"1,2.3"), 1.2);
    EXPECT_EQ(LeerNumero(u"25 m²"), 25.0);
    EXPECT_EQ(LeerNumero(u"1e5"), 1.0);
    EXPECT_EQ(LeerNumero(u"5-"), 5.0);
    EXPECT_EQ(LeerNumero(u",5"), 0.5);
    EXPECT_EQ(LeerNumero(u"5,"), 5.0);
    EXPECT_EQ(LeerNumero(u"12,,5"), 12.0);
}

TEST(NumberReadingTest, ATextWithNoNumberReadsZero)
{
    for (const QString& texto : {u""_s, u" "_s, u"abc"_s, u","_s, u"."_s, u"-"_s, u"+,"_s, u"--1"_s, u"- 1"_s,
                                 u"m 25"_s, u"infinity"_s, u"nan"_s, u"٣"_s, QString(1, QChar::Null)}) {
        EXPECT_EQ(LeerNumero(texto), 0.0) << texto.toStdString();
        EXPECT_TRUE(LeerMoneda(texto).esCero()) << texto.toStdString();
        EXPECT_EQ(LeerEntero(texto), 0) << texto.toStdString();
        EXPECT_FALSE(EsNumero(texto)) << texto.toStdString();
    }
}

TEST(NumberReadingTest, HundredsOfDigitsReadAsInfinityAndAreRefusedLater)
{
    const QString largo(400, u'9');
    EXPECT_TRUE(std::isinf(LeerNumero(largo)));
    EXPECT_TRUE(std::isinf(LeerNumero(u'-' + largo)));
    EXPECT_LT(LeerNumero(u'-' + largo), 0);
    EXPECT_THROW(LeerMoneda(largo), ErrorDesbordamiento);
    EXPECT_THROW(LeerEntero(largo), ErrorDesbordamiento);
    EXPECT_THROW(NumeroVisible(largo, 2), ErrorDesbordamiento);
    EXPECT_THROW(NumeroSQL(largo, u"0", 2), ErrorDesbordamiento);
    EXPECT_TRUE(EsNumero(largo));
}

TEST(NumberReadingTest, ZerosWithoutEndAreNoOverflow)
{
    EXPECT_EQ(LeerNumero(QString(60000, u'0') + u"7"_s), 7.0);
    EXPECT_EQ(LeerMoneda(QString(60000, u'0') + u"7,25"_s), Currency::de(7.25));
    EXPECT_EQ(LeerNumero(u"0,"_s + QString(60000, u'0') + u"7"_s), 0.0);
    EXPECT_EQ(LeerNumero(u"1,"_s + QString(60000, u'0') + u"7"_s), 1.0);
    EXPECT_EQ(LeerNumero(QString(60000, u'.')), 0.0);
}

TEST(NumberReadingTest, ReadsEveryDoubleOfUpToFifteenDigitsToItsNearest)
{
    std::mt19937_64 azar(3);
    for (int i = 0; i < 5000; ++i) {
        const auto n = static_cast<qint64>(azar() % 1'000'000'000'000'000);
        const qint64 divisor = std::array<qint64, 5>{1, 10, 100, 1000, 10000}[azar() % 5];
        const QString texto =
            QString::number(n / divisor) + u',' + QString::number(divisor + n % divisor).mid(1);
        EXPECT_EQ(LeerNumero(texto), static_cast<double>(n) / static_cast<double>(divisor))
            << texto.toStdString();
    }
}

TEST(NumberReadingTest, MoneyIsExactForFourDecimalsAndTiesGoToTheEvenDigit)
{
    EXPECT_EQ(LeerMoneda(u"922.337.203.685.477,5807").diezmilesimas(), std::numeric_limits<qint64>::max());
    EXPECT_EQ(LeerMoneda(u"-922.337.203.685.477,5808").diezmilesimas(), std::numeric_limits<qint64>::min());
    EXPECT_EQ(LeerMoneda(u"1.234,5").diezmilesimas(), 12345000);
    EXPECT_EQ(LeerMoneda(u"0,00005").diezmilesimas(), 0);
    EXPECT_EQ(LeerMoneda(u"0,00015").diezmilesimas(), 2);
    EXPECT_EQ(LeerMoneda(u"0,00025").diezmilesimas(), 2);
    EXPECT_EQ(LeerMoneda(u"0,00025000000000000000000001").diezmilesimas(), 3);
    EXPECT_EQ(LeerMoneda(u"-0,00015").diezmilesimas(), -2);
    EXPECT_EQ(LeerMoneda(u"0,99995").diezmilesimas(), 10000);
}

TEST(NumberReadingTest, MoneyThatDoesNotFitIsRefused)
{
    EXPECT_THROW(LeerMoneda(u"922.337.203.685.477,5808"), ErrorDesbordamiento);
    EXPECT_THROW(LeerMoneda(u"-922.337.203.685.477,5809"), ErrorDesbordamiento);
    EXPECT_THROW(LeerMoneda(u"922.337.203.685.477,58075"), ErrorDesbordamiento);
    EXPECT_THROW(LeerMoneda(u"999.999.999.999.999,9999"), ErrorDesbordamiento);
    EXPECT_THROW(LeerMoneda(u"1.000.000.000.000.000"), ErrorDesbordamiento);
}

TEST(NumberReadingTest, RandomMoneyComesBackFromItsText)
{
    std::mt19937_64 azar(4);
    for (int i = 0; i < 5000; ++i) {
        const Currency importe = Currency::deDiezmilesimas(static_cast<qint64>(azar()) >> (azar() % 60));
        EXPECT_EQ(LeerMoneda(importe.decimal().replace(u'.', u',')), importe);
    }
}

TEST(NumberReadingTest, WholeNumbersRoundHalvesToEven)
{
    EXPECT_EQ(LeerEntero(u"0,5"), 0);
    EXPECT_EQ(LeerEntero(u"1,5"), 2);
    EXPECT_EQ(LeerEntero(u"2,5"), 2);
    EXPECT_EQ(LeerEntero(u"-0,5"), 0);
    EXPECT_EQ(LeerEntero(u"-1,5"), -2);
    EXPECT_EQ(LeerEntero(u"-2,51"), -3);
    EXPECT_EQ(LeerEntero(u"1.200"), 1200);
}

TEST(NumberReadingTest, WholeNumbersBeyondSixteenBitsAreRefused)
{
    EXPECT_EQ(LeerEntero(u"32.767,4"), 32767);
    EXPECT_EQ(LeerEntero(u"-32.768,5"), -32768);
    EXPECT_THROW(LeerEntero(u"32.767,5"), ErrorDesbordamiento);
    EXPECT_THROW(LeerEntero(u"-32.768,51"), ErrorDesbordamiento);
    EXPECT_THROW(LeerEntero(u"99.999"), ErrorDesbordamiento);
}

TEST(NumberReadingTest, SaysInSpanishWhyItRefuses)
{
    try {
        LeerEntero(u"99999");
        FAIL() << "no error";
    } catch (const ErrorDesbordamiento& error) {
        EXPECT_STREQ(error.what(), "El número es demasiado grande.");
    }
}

TEST(NumberReadingTest, OnlyAWholeTextIsANumber)
{
    for (const QString& texto : {u"1"_s, u" 1.234,5 "_s, u"-,5"_s, u"5,"_s, u"+1"_s, u"1.2.3"_s}) {
        EXPECT_TRUE(EsNumero(texto)) << texto.toStdString();
    }
    for (const QString& texto : {u"1,2,3"_s, u"1 m²"_s, u"1,2.3"_s, u"1e5"_s, u"5-"_s}) {
        EXPECT_FALSE(EsNumero(texto)) << texto.toStdString();
    }
}

TEST(VisibleNumberTest, AStoredZeroShowsAsAnEmptyBoxAndComesBackAsTheDefault)
{
    EXPECT_EQ(NumeroVisible(u"0", 2), u""_s);
    EXPECT_EQ(NumeroVisible(u"", 2), u""_s);
    EXPECT_EQ(NumeroVisible(u"0,00", 0), u""_s);
    EXPECT_EQ(NumeroVisible(0.0, 2), u""_s);
    EXPECT_EQ(NumeroSQL(NumeroVisible(u"0", 2), u"0.00", 2), u"0.00"_s);
}

TEST(VisibleNumberTest, HasGroupingDotsAndTheDecimalsAskedFor)
{
    EXPECT_EQ(NumeroVisible(u"1234567,5", 2), u"1.234.567,50"_s);
    EXPECT_EQ(NumeroVisible(1234567.0, 0), u"1.234.567"_s);
    EXPECT_EQ(NumeroVisible(-12.345, 2), u"-12,35"_s);
    EXPECT_EQ(NumeroVisible(12.5, -3), u"13"_s);
    EXPECT_EQ(NumeroVisible(0.001, 2), u"0,00"_s);
}

TEST(SqlNumberTest, HasADecimalPointAndTheDecimalsAskedFor)
{
    EXPECT_EQ(NumeroSQL(u"1.234,567", u"0", 2), u"1234.57"_s);
    EXPECT_EQ(NumeroSQL(u"1234,5", u"0", 0), u"1235"_s);
    EXPECT_EQ(NumeroSQL(u"12", u"0.00", 2), u"12.00"_s);
    EXPECT_EQ(NumeroSQL(u",5", u"0.00", 1), u"0.5"_s);
    EXPECT_EQ(NumeroSQL(u"-2,675", u"0.00", 2), u"-2.68"_s);
    EXPECT_EQ(NumeroSQL(u"12,12345", u"0", 4), u"12.1235"_s);
    EXPECT_EQ(NumeroSQL(u"999,999", u"0", 2), u"1000.00"_s);
    EXPECT_EQ(NumeroSQL(u"-0,001", u"0", 2), u"0.00"_s);
}

TEST(SqlNumberTest, AnEmptyTextGivesTheDefaultUnchanged)
{
    EXPECT_EQ(NumeroSQL(u"", u"0.00", 2), u"0.00"_s);
    EXPECT_EQ(NumeroSQL(u"", u"NULL", 0), u"NULL"_s);
    EXPECT_EQ(NumeroSQL(u"", u"", 4), u""_s);
}

TEST(SqlNumberTest, ATextThatIsNoNumberIsAZero)
{
    EXPECT_EQ(NumeroSQL(u"abc", u"7", 2), u"0.00"_s);
    EXPECT_EQ(NumeroSQL(u" ", u"7", 0), u"0"_s);
    EXPECT_EQ(NumeroSQL(u"1'; DROP TABLE x", u"7", 0), u"1"_s);
}

TEST(SqlNumberTest, NeverGivesMoreThanFourDecimals)
{
    EXPECT_EQ(NumeroSQL(u"1,23456789", u"0", 6), u"1.2346"_s);
    EXPECT_EQ(NumeroSQL(u"1,5", u"0", -2), u"2"_s);
}

TEST(SqlNumberTest, AgreesWithDecimalArithmetic)
{
    std::mt19937_64 azar(5);
    for (int i = 0; i < 4000; ++i) {
        const auto n = static_cast<qint64>(azar() % 10'000'000'000);
        const int decimales = static_cast<int>(azar() % 5);
        const QString texto =
            QString::number(n / 100000) + u',' + QString::number(100000 + n % 100000).mid(1);
        const pruebas::TextoDecimal numero = pruebas::QuinceCifras(LeerNumero(texto));
        const std::string esperado = pruebas::Mostrado(
            numero, decimales == 0 ? "0" : "0." + std::string(static_cast<size_t>(decimales), '0'));
        EXPECT_EQ(NumeroSQL(texto, u"", decimales).replace(u'.', u',').toStdString(), esperado);
    }
}

} // namespace

} // namespace valmerix
