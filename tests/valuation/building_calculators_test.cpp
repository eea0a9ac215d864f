#include "support/test_form.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

TEST(Calculador, EmptyFieldsGiveZeroValuesAndKOfOneAndShowNothing)
{
    PisoDePrueba piso;
    for (const QStringView campo : kCamposResultado)
        piso.form.campo(campo).setText(u"antes"_s);
    piso.form.CALCULADOR();
    piso.form.CASILLAS();
    const EstadoCalculo& e = piso.form.estado();
    EXPECT_EQ(e.CoeficienteK, 1.0);
    for (const Currency valor :
         {e.ValorReposicion, e.ValorUnitario, e.ValorVivienda, e.ValorTotal, e.ValorUnitarioSuelo})
        EXPECT_TRUE(valor.esCero());
    for (const QStringView campo : kCamposResultado)
        EXPECT_EQ(piso.texto(campo), u"antes"_s);
}

TEST(Calculador, ANegativeEstimatedPlotIsZeroAndNothingIsDividedByIt)
{
    PisoDePrueba piso({{u"BoxConst", u"3"}, {u"BoxVPP", u"1"}, {u"BoxRepercusion", u"500"}});
    piso.form.CALCULADOR();
    EXPECT_EQ(piso.form.estado().SuperficieSolar, 0.0);
    EXPECT_TRUE(piso.form.estado().ValorUnitarioSuelo.esCero());
}

TEST(Calculador, TheUsefulSurfaceIsSuppliedAndTheRatioRebuiltFromTheRoundedPair)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}});
    piso.form.opciones(u"Sup").Elegir(0);
    piso.form.CALCULADOR();
    const EstadoCalculo& e = piso.form.estado();
    EXPECT_EQ(e.SuperficieUtil, 83.33);
    EXPECT_EQ(e.CoefConstruidaUtil, 1.2); // 100 / 83,33 = 1,20005
}

TEST(Calculador, ForwardFigureByFigure)
{
    PisoDePrueba piso({{u"BoxConst", u"100"},
                       {u"BoxPlantas", u"3"},
                       {u"BoxVPP", u"2"},
                       {u"BoxAntig", u"25"},
                       {u"BoxRepercusion", u"400"},
                       {u"BoxCc", u"600"},
                       {u"BoxK", u"1,5"}});
    piso.form.Recalcular();
    const EstadoCalculo& e = piso.form.estado();
    EXPECT_EQ(e.SuperficieSolar, 192.0);        // (100 - 4) * 2
    EXPECT_EQ(e.SuperficieSobreRasante, 768.0); // 192 * 4
    EXPECT_EQ(e.ValorUnitarioSuelo, Importe(1600));
    EXPECT_EQ(e.CoefDepreciacion, 0.25);
    EXPECT_EQ(e.ValorReposicion, Importe(850)); // 400 + 600 * 0,75
    EXPECT_EQ(e.ValorUnitario, Importe(1275));
    EXPECT_EQ(e.ValorVivienda, Importe(127500));
    EXPECT_EQ(e.ValorTotal, Importe(127500));
    EXPECT_EQ(piso.texto(u"BoxReposicion"), u"850,00"_s);
    EXPECT_EQ(piso.texto(u"BoxVr"), u"1.275,00"_s);
    EXPECT_EQ(piso.texto(u"BoxVivienda"), u"127.500,00"_s);
    EXPECT_EQ(piso.texto(u"BoxAnexos"), u"0,00"_s);
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"127.500,00"_s);
}

TEST(Calculador, OnUsefulSurfaceTheReplacementValueIsScaledByTheRatio)
{
    PisoDePrueba piso(
        {{u"BoxConst", u"100"}, {u"BoxUtil", u"80"}, {u"BoxRepercusion", u"400"}, {u"BoxCc", u"600"}});
    piso.form.opciones(u"Sup").Elegir(0);
    piso.form.CALCULADOR();
    const EstadoCalculo& e = piso.form.estado();
    EXPECT_EQ(e.CoefConstruidaUtil, 1.25);
    EXPECT_EQ(e.ValorReposicion, Importe(1250));
    EXPECT_EQ(e.ValorVivienda, Importe(100000));
}

TEST(Calculador, BuiltSurfaceLeavesTheRatioAsItStands)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxUtil", u"80"}});
    piso.calculo.CoefConstruidaUtil = 7;
    piso.form.CALCULADOR();
    EXPECT_EQ(piso.form.estado().CoefConstruidaUtil, 7.0);
}

TEST(Calculador, WithNeitherSurfaceChosenTheBuiltOneRules)
{
    EntornoDePrueba entorno;
    Formulario form(kDescripcionPiso, entorno.servicios);
    form.IniciarCampos();
    for (const auto& [campo, texto] :
         {std::pair{u"BoxConst"_s, u"100"_s}, {u"BoxUtil"_s, u"50"_s}, {u"BoxCc"_s, u"10"_s}})
        form.campo(campo).setText(texto);
    EXPECT_EQ(form.opciones(u"Sup").elegida(), -1);
    form.CALCULADOR();
    EXPECT_EQ(form.estado().ValorVivienda, Importe(1000));
}

TEST(Calculador, KOfZeroGivesZeroValuesAndNoFailure)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxCc", u"600"}, {u"BoxK", u"0"}});
    piso.form.Recalcular();
    EXPECT_TRUE(piso.form.estado().ValorTotal.esCero());
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"0,00"_s);
    piso.Escribir({{u"BoxProvisional", u"1000"}});
    piso.form.DejarCampo(u"BoxProvisional");
    EXPECT_TRUE(piso.form.estado().ValorReposicion.esCero());
}

TEST(Calculador, WithoutKNoValueIsPublishedButTheReplacementValueIs)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxCc", u"600"}});
    piso.form.Recalcular();
    EXPECT_EQ(piso.texto(u"BoxReposicion"), u"600,00"_s);
    EXPECT_EQ(piso.texto(u"BoxTotal"), QString());
    EXPECT_EQ(piso.form.estado().ValorTotal, Importe(60000));
}

TEST(Calculador, MoreYearsThanTheUsefulLifeGiveANegativeDepreciatedCost)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxCc", u"600"}, {u"BoxK", u"1,25"}, {u"BoxAntig", u"200"}});
    piso.form.Recalcular();
    EXPECT_EQ(piso.form.estado().CoefDepreciacion, 2.0);
    EXPECT_EQ(piso.form.estado().ValorReposicion, Importe(-600));
    EXPECT_EQ(piso.form.estado().ValorUnitario, Importe(-750));
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"-75.000,00"_s);
}

TEST(Calculador, AnEmptyAgeMeansNoDepreciation)
{
    PisoDePrueba piso({{u"BoxAntig", u"30"}});
    EXPECT_EQ(piso.form.estado().CoefDepreciacion, 0.3);
    piso.Escribir({{u"BoxAntig", u""}});
    EXPECT_EQ(piso.form.estado().CoefDepreciacion, 0.0);
    EXPECT_EQ(piso.form.estado().Antiguedad, 30);
}

TEST(Calculador, TheFractionIsRoundedToTwoDecimals)
{
    PisoDePrueba piso;
    piso.opciones.EdadViviendas = 75;
    piso.Escribir({{u"BoxAntig", u"10"}});
    EXPECT_EQ(piso.form.estado().CoefDepreciacion, 0.13);
}

TEST(Calculador, AMaximumAgeOfZeroMeansNoDepreciation)
{
    PisoDePrueba piso;
    piso.opciones.EdadViviendas = 0;
    piso.Escribir({{u"BoxAntig", u"10"}});
    EXPECT_EQ(piso.form.estado().Antiguedad, 10);
    EXPECT_EQ(piso.form.estado().CoefDepreciacion, 0.0);
}

TEST(Calculador, OnlyTickedAnnexesAreReadAgain)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxTrastero", u"3.000,50"}, {u"BoxGaraje", u"12000"}});
    piso.calculo.ValorOtroAnexo = Importe(77);
    piso.form.casilla(u"CheckTrast").setValue(1);
    piso.form.CALCULADOR();
    EXPECT_EQ(piso.form.estado().ValorTrastero, Importe(3000.5));
    EXPECT_TRUE(piso.form.estado().ValorGaraje.esCero());
    EXPECT_EQ(piso.form.estado().ValorTotal, Importe(3077.5));
}

TEST(Superficial, TheDocumentedPairs)
{
    const auto construida = [](QStringView texto) {
        PisoDePrueba piso({{u"BoxConst", texto}});
        piso.form.Superficial();
        return piso.form.estado().SuperficieUtil;
    };
    EXPECT_EQ(construida(u"100"), 83.33);
    EXPECT_EQ(construida(u"75"), 60.0);
    EXPECT_EQ(construida(u"135"), 117.39);
    EXPECT_EQ(construida(u"134,99"), 117.38); // F = 1,15 again: 1,15 + 0,0593 - 0,0640
    EXPECT_EQ(construida(u"3"), 2.4);

    const auto util = [](QStringView texto) {
        PisoDePrueba piso({{u"BoxUtil", texto}});
        piso.form.Superficial();
        return piso.form.estado().SuperficieConstruida;
    };
    EXPECT_EQ(util(u"60"), 75.0);
    EXPECT_EQ(util(u"120"), 138.0);
    EXPECT_EQ(util(u"80"), 96.0); // F = 1,15 + 8/100 - 0,032 = 1,198
}

TEST(Superficial, ATextOfZeroIsMissingButAFormattedZeroIsNot)
{
    PisoDePrueba piso({{u"BoxConst", u"0"}, {u"BoxUtil", u"0"}});
    piso.form.Superficial();
    EXPECT_EQ(piso.form.estado().SuperficieUtil, 0.0);
    EXPECT_EQ(piso.form.estado().SuperficieConstruida, 0.0);
    piso.Escribir({{u"BoxConst", u"100"}});
    EXPECT_EQ((piso.form.Superficial(), piso.form.estado().SuperficieUtil), 83.33);
    piso.Escribir({{u"BoxUtil", u"0,00"}});
    EXPECT_EQ((piso.form.Superficial(), piso.form.estado().SuperficieUtil), 0.0);
    EXPECT_EQ(piso.form.estado().SuperficieConstruida, 100.0);
}

TEST(Superficial, BothGivenEachTakesItsOwn)
{
    PisoDePrueba piso({{u"BoxConst", u"1.250,75"}, {u"BoxUtil", u"990,5"}});
    piso.form.Superficial();
    EXPECT_EQ(piso.form.estado().SuperficieConstruida, 1250.75);
    EXPECT_EQ(piso.form.estado().SuperficieUtil, 990.5);
}

struct ValorConocido : ::testing::Test
{
    PisoDePrueba piso{{u"BoxConst", u"100"}, {u"BoxK", u"1,3"}, {u"BoxCc", u"60000"}, {u"BoxAntig", u"0"}};
    const EstadoCalculo& e = piso.form.estado();
    void Conocer(QStringView valor)
    {
        piso.Escribir({{u"BoxProvisional", valor}});
        piso.form.DejarCampo(u"BoxProvisional");
    }
};

TEST_F(ValorConocido, TheLandChargeExplainsIt)
{
    Conocer(u"10000000");
    EXPECT_EQ(e.ValorUnitario, Importe(100000));
    EXPECT_EQ(e.ValorReposicion, Importe(76923.08));
    EXPECT_EQ(e.RepercusionSolar, Importe(16923.08));
    EXPECT_EQ(e.ValorTotal, Importe(10000000));
}

TEST_F(ValorConocido, RoundFiguresAgreeWithEachOther)
{
    Conocer(u"10000000");
    piso.form.REDONDEADOR();
    EXPECT_EQ(e.RepercusionSolar, Importe(16923));
    EXPECT_EQ(e.CosteConstruccion, Importe(60000));
    EXPECT_EQ(e.ValorReposicion, Importe(76923));
    EXPECT_EQ(e.ValorUnitario, Importe(99999.90));
    EXPECT_EQ(e.ValorVivienda, Importe(9999990));
    EXPECT_EQ(e.ValorTotal, Importe(9999990));
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"9.999.990,00"_s);
    EXPECT_EQ(piso.texto(u"BoxCc"), u"60000"_s);
    EXPECT_EQ(piso.texto(u"BoxRepercusion"), QString());
}

TEST_F(ValorConocido, WithoutOneNothingIsRounded)
{
    piso.Escribir({{u"BoxCc", u"12344"}});
    piso.form.CALCULADOR();
    piso.form.REDONDEADOR();
    EXPECT_EQ(e.CosteConstruccion, Importe(12344));
}

TEST_F(ValorConocido, TheCostIsRoundedToTens)
{
    Conocer(u"10000000");
    const std::pair<QStringView, double> casos[] = {
        {u"12344", 12340}, {u"12345", 12350}, {u"12344,4", 12340}, {u"12344,5", 12350}, {u"4", 0},
        {u"5", 10},        {u"", 0}};
    for (const auto& [texto, esperado] : casos) {
        piso.Escribir({{u"BoxCc", texto}});
        piso.form.REDONDEADOR();
        EXPECT_EQ(e.CosteConstruccion, Importe(esperado)) << texto.toString().toStdString();
        piso.form.PonerValorVivienda(Importe(10000000));
    }
}

TEST_F(ValorConocido, BelowTheDepreciatedCostTheLandChargeIsNegative)
{
    piso.Escribir({{u"BoxK", u""}});
    Conocer(u"4.000.000");
    EXPECT_EQ(e.RepercusionSolar, Importe(-20000));
}

TEST_F(ValorConocido, OnUsefulSurfaceTheChargeIsTakenBackThroughTheRatio)
{
    piso.Escribir({{u"BoxUtil", u"80"}, {u"BoxK", u"1"}, {u"BoxCc", u"600"}});
    piso.form.opciones(u"Sup").Elegir(0);
    Conocer(u"100000");
    EXPECT_EQ(e.ValorUnitario, Importe(1250));
    EXPECT_EQ(e.CoefConstruidaUtil, 1.25);
    EXPECT_EQ(e.RepercusionSolar, Importe(400)); // (1250 - 600 * 1,25) / 1,25
}

TEST_F(ValorConocido, WithoutSurfacesEverythingIsZero)
{
    piso.Escribir({{u"BoxConst", u""}});
    Conocer(u"100000");
    EXPECT_TRUE(e.ValorUnitario.esCero());
    piso.form.opciones(u"Sup").Elegir(0);
    Conocer(u"100000,5");
    EXPECT_TRUE(e.RepercusionSolar.esCero());
    EXPECT_EQ(e.CoefConstruidaUtil, 0.0);
}

TEST_F(ValorConocido, MoneyIsRoundedToTheDecimalsOfTheCurrency)
{
    piso.compartido.FormatoMoneda = u"###,###,##0"_s;
    Conocer(u"10000000");
    EXPECT_EQ(e.ValorReposicion, Importe(76923));
    EXPECT_EQ(piso.texto(u"BoxReposicion"), u"76.923"_s);
}

TEST_F(ValorConocido, AnnexesAreRoundedAndAddedToTheKnownValue)
{
    Conocer(u"1000");
    piso.Escribir({{u"BoxGaraje", u"10,006"}});
    piso.form.DejarCampo(u"BoxGaraje");
    EXPECT_EQ(e.ValorGaraje, Importe(10.01));
    EXPECT_EQ(e.ValorTotal, Importe(1010.01));
}

TEST_F(ValorConocido, PressingTheButtonAgainChangesNothingMore)
{
    Conocer(u"10000000");
    piso.form.ActualizarResultados();
    const Currency primero = e.ValorTotal;
    piso.form.ActualizarResultados();
    EXPECT_EQ(e.ValorTotal, primero);
}

TEST(Rasanteador, ProposesTheWholeBuildingAndReplacesWhatStood)
{
    PisoDePrueba piso({{u"BoxConst", u"104"}, {u"BoxPlantas", u"4"}, {u"BoxVPP", u"3"}});
    EXPECT_EQ(piso.texto(u"BoxSobreRasante"), u"1.500,00"_s);
    piso.Escribir({{u"BoxSobreRasante", u"999"}});
    piso.form.RASANTEADOR();
    EXPECT_EQ(piso.texto(u"BoxSobreRasante"), u"1.500,00"_s);
    EXPECT_EQ(piso.form.estado().PlantasAltas, 4);
    EXPECT_EQ(piso.form.estado().ViviendasPorPlanta, 3);
}

TEST(Rasanteador, WithoutSurfaceItMayBeZeroOrNegative)
{
    PisoDePrueba piso;
    EXPECT_EQ(piso.texto(u"BoxSobreRasante"), u"0,00"_s);
    piso.Escribir({{u"BoxVPP", u"2"}});
    EXPECT_EQ(piso.texto(u"BoxSobreRasante"), u"-8,00"_s);
}

TEST(Desbordamiento, AFigureThatDoesNotFitIsAnErrorAndTheTextStays)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}});
    const QString cuatrocientos(400, u'9');
    piso.Escribir({{u"BoxCc", cuatrocientos}});
    EXPECT_THROW(piso.form.Recalcular(), ErrorDesbordamiento);
    EXPECT_EQ(piso.texto(u"BoxCc"), cuatrocientos);
    EXPECT_THROW(piso.Escribir({{u"BoxPlantas", u"40000"}}), ErrorDesbordamiento);
    EXPECT_EQ(piso.texto(u"BoxPlantas"), u"40000"_s);
    EXPECT_THROW(piso.Escribir({{u"BoxAntig", u"32768"}}), ErrorDesbordamiento);
}

TEST(Desbordamiento, TheNextFiguresAreWorkedOutAsEver)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}});
    EXPECT_THROW(piso.Escribir({{u"BoxPlantas", u"40000"}}), ErrorDesbordamiento);
    piso.Escribir({{u"BoxPlantas", u"1"}, {u"BoxVPP", u"1"}, {u"BoxCc", u"500"}});
    piso.form.Recalcular();
    EXPECT_EQ(piso.form.estado().ValorVivienda, Importe(50000));
    EXPECT_EQ(piso.texto(u"BoxSobreRasante"), u"192,00"_s);
}

TEST(ExactMoney, ProductsAreRoundedToTenThousandthsWhereTheyAreFormed)
{
    PisoDePrueba piso({{u"BoxConst", u"33,33"},
                       {u"BoxRepercusion", u"0,0001"},
                       {u"BoxCc", u"0,0003"},
                       {u"BoxAntig", u"50"},
                       {u"BoxK", u"0,5"}});
    piso.form.CALCULADOR();
    const EstadoCalculo& e = piso.form.estado();
    // 0,0003 * 0,5 = 0,00015, whose double lies below the tie.
    EXPECT_EQ(e.ValorReposicion.diezmilesimas(), 2);
    EXPECT_EQ(e.ValorUnitario.diezmilesimas(), 1);
    EXPECT_EQ(e.ValorVivienda.diezmilesimas(), 33);
}

} // namespace

} // namespace valmerix
