#include "report/number_strings.h"

#include "report/report_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QString TotalEnLetras(double total, bool masculino = true)
{
    CasoDePrueba piso;
    piso.opciones.MonedaSingular = masculino ? u"euro"_s : u"peseta"_s;
    piso.opciones.MonedaPlural = masculino ? u"euros"_s : u"pesetas"_s;
    piso.opciones.MonedaMasculina = masculino;
    piso.calculo.ValorTotal = Currency::de(total);
    return NUMFORMAT(piso.caso).TotalEnLetras;
}

} // namespace

TEST(NumberStrings, FollowTheirPatterns)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const CadenasNumericas t = NUMFORMAT(piso.caso);
    EXPECT_EQ(t.TxtConstruida, u"111,75"_s);
    EXPECT_EQ(t.TxtUtil, u"92,50"_s);
    EXPECT_EQ(t.TxtD, u"0,21"_s);
    EXPECT_EQ(t.TxtSolar, u"280,00"_s);
    EXPECT_EQ(t.TxtSobreRasante, u"1.117,50"_s);
    EXPECT_EQ(t.TxtK, u"1,35"_s);
    EXPECT_EQ(t.TxtRS, u"300,00"_s);
    EXPECT_EQ(t.TxtCc, u"650,00"_s);
    EXPECT_EQ(t.TxtCR, u"813,50"_s);
    EXPECT_EQ(t.TxtVr, u"1.098,23"_s);
    EXPECT_EQ(t.TxtVt, u"122.726,64"_s);
    EXPECT_EQ(t.TxtTotal, u"144.227,14"_s);
    EXPECT_EQ(t.TxtSueloUnitario, u"1.197,32"_s);
    EXPECT_EQ(t.FechaLarga, u"viernes, 20 de noviembre de 2026"_s);
}

TEST(NumberStrings, MoneyWithoutDecimalsFollowsTheSettings)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.compartido.FormatoMoneda = u"###,###,##0"_s;
    EXPECT_EQ(NUMFORMAT(piso.caso).TxtTotal, u"144.227"_s);
    EXPECT_EQ(NUMFORMAT(piso.caso).TotalEnLetras,
              u"CIENTO CUARENTA Y CUATRO MIL DOSCIENTOS VEINTISIETE euros."_s);
}

TEST(NumberStrings, AnnexLinesNameTheirFloorInLowerCase)
{
    CasoDePrueba piso;
    piso.Escribir({{u"Combo7", u"Sótano PRIMERO"}, {u"Combo8", u"Ático"}, {u"Text8", u"PISCINA y Ático"}});
    piso.calculo.ValorGaraje = Currency::de(15000);
    piso.calculo.ValorTrastero = Currency::de(4500);
    piso.calculo.ValorOtroAnexo = Currency::de(1);
    const CadenasNumericas t = NUMFORMAT(piso.caso);
    EXPECT_EQ(t.LineaGaraje, u"Garaje en planta sótano primero:          15.000,00 €"_s);
    EXPECT_EQ(t.LineaTrastero, u"Trastero en planta ático:          4.500,00 €"_s);
    EXPECT_EQ(t.LineaOtroAnexo, u"Piscina y ático:          1,00 €"_s);
}

TEST(NumberStrings, AnAnnexWorthNothingHasNoLine)
{
    CasoDePrueba piso;
    piso.calculo.ValorGaraje = Currency::de(-5);
    const CadenasNumericas t = NUMFORMAT(piso.caso);
    EXPECT_EQ(t.LineaGaraje, QString());
    EXPECT_EQ(t.LineaTrastero, QString());
    EXPECT_EQ(t.LineaOtroAnexo, QString());
}

TEST(NumberStrings, ATotalOfZeroIsSaidWithThePluralName)
{
    EXPECT_EQ(TotalEnLetras(0), u"CERO euros."_s);
}

TEST(NumberStrings, ATotalOfExactlyOneTakesTheSingularName)
{
    EXPECT_EQ(TotalEnLetras(1), u"UN euro."_s);
    EXPECT_EQ(TotalEnLetras(1, false), u"UNA peseta."_s);
    EXPECT_EQ(TotalEnLetras(1.0001), u"UN euros."_s);
}

TEST(NumberStrings, OnlyWholeMillionsAddDe)
{
    EXPECT_EQ(TotalEnLetras(1000000), u"UN MILLÓN de euros."_s);
    EXPECT_EQ(TotalEnLetras(3000000, false), u"TRES MILLONES de pesetas."_s);
    EXPECT_EQ(TotalEnLetras(1500000), u"UN MILLÓN QUINIENTOS MIL euros."_s);
    EXPECT_EQ(TotalEnLetras(1000000.5), u"UN MILLÓN CON CINCUENTA euros."_s);
}

TEST(NumberStrings, TheGenderOfTheCurrencyRulesTheWords)
{
    EXPECT_EQ(TotalEnLetras(21000, false), u"VEINTIUNA MIL pesetas."_s);
    EXPECT_EQ(TotalEnLetras(200, true), u"DOSCIENTOS euros."_s);
}

TEST(NumberStrings, TheWordsFollowTheRoundingOfTheMoneyPattern)
{
    EXPECT_EQ(TotalEnLetras(12.005), u"DOCE CON UN euros."_s);
}

TEST(NumberStrings, ADateThatIsNoneIsEmpty)
{
    CasoDePrueba piso;
    for (const QStringView fecha : {u"", u"  /  /    ", u"31/02/2026", u"mañana"}) {
        piso.Escribir({{u"BoxFecha", fecha}});
        EXPECT_EQ(NUMFORMAT(piso.caso).FechaLarga, QString());
    }
}

} // namespace valmerix
