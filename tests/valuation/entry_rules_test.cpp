#include "support/test_form.h"
#include "valuation/key_filters.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

TEST(FiltroDeTeclas, ThePointOfTheNumericBlockWritesTheDecimalComma)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxK", u"1.25");
    EXPECT_EQ(piso.texto(u"BoxK"), u"1,25"_s);
    EXPECT_EQ(piso.sistema.pitidos, 0);
}

TEST(FiltroDeTeclas, AWrongKeyBeepsAndIsSwallowed)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxK", u"1a");
    piso.Teclear(u"BoxPlantas", u"2,-3");
    EXPECT_EQ(piso.texto(u"BoxK"), u"1"_s);
    EXPECT_EQ(piso.texto(u"BoxPlantas"), u"23"_s);
    EXPECT_EQ(piso.sistema.pitidos, 3);
}

TEST(FiltroDeTeclas, ASecondCommaPassesAndEndsTheNumberWhenItIsRead)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxCc", u"1,2,3");
    EXPECT_EQ(piso.texto(u"BoxCc"), u"1,2,3"_s);
    piso.Salir();
    EXPECT_EQ(piso.form.estado().CosteConstruccion, Importe(1.2));
    EXPECT_EQ(piso.texto(u"BoxCc"), u"1"_s);
}

TEST(FiltroDeTeclas, APastedNumberKeepsItsThousands)
{
    PisoDePrueba piso;
    const std::pair<QString, QString> casos[] = {
        {u"1.234,56"_s, u"1234,56"_s}, {u"1.234"_s, u"1234"_s},  {u"12.345.678"_s, u"12345678"_s},
        {u" 2.500 "_s, u"2500"_s},     {u"1.25"_s, u"1,25"_s},   {u"12.34,5"_s, u"12,34,5"_s},
        {u"1.5 m"_s, u"1,5"_s},        {u"0,750"_s, u"0,750"_s}, {u"."_s, u","_s},
    };
    for (const auto& [pegado, queda] : casos) {
        piso.form.campo(u"BoxSolar").setText({});
        piso.form.campo(u"BoxSolar").setMaxLength(0);
        piso.form.campo(u"BoxSolar").Pegar(pegado);
        EXPECT_EQ(piso.texto(u"BoxSolar"), queda) << pegado.toStdString();
    }
}

TEST(FiltroDeTeclas, BackspacePassesBoth)
{
    FakeSistema sistema;
    for (auto* filtro : {FiltroEntero, FiltroDecimal}) {
        int tecla = 8;
        filtro(tecla, sistema);
        EXPECT_EQ(tecla, 8);
    }
    EXPECT_EQ(sistema.pitidos, 0);
}

TEST(FiltroDeTeclas, EveryFieldOfTheTableIsFilteredAsItSays)
{
    PisoDePrueba piso;
    EXPECT_EQ(ReglasTecla().size(), 27U);
    for (const ReglaTecla& regla : ReglasTecla()) {
        CampoTexto& campo = piso.form.campo(regla.campo);
        EXPECT_EQ(campo.FiltrarTecla(u'7'), int{u'7'}) << campo.nombre().toStdString();
        EXPECT_EQ(campo.FiltrarTecla(u'x'), 0);
        EXPECT_EQ(campo.FiltrarTecla(u'.'), regla.filtro == FiltroDecimal ? int{u','} : 0);
    }
}

// A longer number would not fit its place in the calculation, and a case stored with it could not be
// opened any more.
TEST(FiltroDeTeclas, CountsAndKTakeNoMoreDigitsThanTheCalculationHolds)
{
    PisoDePrueba piso;
    for (const QStringView nombre :
         {u"BoxAntig", u"BoxPlantas", u"BoxVPP", u"BoxAscen", u"BoxSot", u"BoxDormitorios", u"BoxBaños"}) {
        EXPECT_NO_THROW(piso.Teclear(nombre, u"99999999999999999999")) << nombre.toString().toStdString();
        EXPECT_EQ(piso.texto(nombre), u"9999"_s);
    }
    piso.form.campo(u"BoxK").Pegar(QString(400, u'9'));
    EXPECT_EQ(piso.texto(u"BoxK"), QString(9, u'9'));
    EXPECT_EQ(piso.form.campo(u"BoxCPSol").MaxLength(), 0);
}

TEST(FiltroDeTeclas, OtherFieldsTakeAnyKey)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxSit", u"C/ d'Alt, 3.º-B");
    EXPECT_EQ(piso.texto(u"BoxSit"), u"C/ d’Alt, 3.º-B"_s);
    piso.Teclear(u"BoxCP", u"E-46001");
    EXPECT_EQ(piso.texto(u"BoxCP"), u"E-46001"_s);
}

struct CasoFoco
{
    QStringView campo;
    QStringView tecleado;
    QStringView visible;
    QStringView crudo;
    int longitudFoco;
    int longitudVisible;
};

class ReglaDeFoco : public ::testing::TestWithParam<CasoFoco>
{
};

TEST_P(ReglaDeFoco, ShowsTheRawNumberInHandAndTheFormattedOneOtherwise)
{
    const CasoFoco& caso = GetParam();
    PisoDePrueba piso;
    CampoTexto& campo = piso.form.campo(caso.campo);
    piso.Teclear(caso.campo, caso.tecleado);
    EXPECT_EQ(campo.MaxLength(), caso.longitudFoco);
    piso.Salir();
    EXPECT_EQ(campo.Text(), caso.visible);
    EXPECT_EQ(campo.MaxLength(), caso.longitudVisible);
    piso.form.Enfocar(&campo);
    EXPECT_EQ(campo.Text(), caso.crudo);
    EXPECT_EQ(campo.SelStart(), 0);
    EXPECT_EQ(campo.SelLength(), campo.Text().size());
    EXPECT_EQ(campo.MaxLength(), caso.longitudFoco);
}

INSTANTIATE_TEST_SUITE_P(
    Tabla, ReglaDeFoco,
    ::testing::Values(CasoFoco{u"BoxCc", u"123456789", u"123.456.789", u"123456789", 9, 11},
                      CasoFoco{u"BoxRepercusion", u"1234,56", u"1.234,56", u"1234,56", 8, 10},
                      CasoFoco{u"BoxSobreRasante", u"1234567,8", u"1.234.567,80", u"1234567,8", 10, 12},
                      CasoFoco{u"BoxSolar", u"12345,678", u"12.345,68", u"12345,678", 9, 11},
                      CasoFoco{u"BoxProvisional", u"234000,5", u"234.000,50", u"234000,5", 9, 11},
                      CasoFoco{u"BoxTrastero", u"4500", u"4.500,00", u"4500", 7, 9},
                      CasoFoco{u"BoxGaraje", u"12000,5", u"12.000,50", u"12000", 7, 9},
                      CasoFoco{u"Text9", u"900", u"900,00", u"900", 7, 9},
                      CasoFoco{u"BoxDerecho", u"1234567", u"1.234.567", u"1234567", 7, 9},
                      CasoFoco{u"BoxHecho", u"980", u"980", u"980", 7, 9},
                      CasoFoco{u"BoxConst", u"1234,5", u"1.234,50", u"1234,5", 6, 8},
                      CasoFoco{u"BoxUtil", u"83,3", u"83,30", u"83,3", 6, 5}),
    [](const auto& caso) { return caso.param.campo.toString().toStdString(); });

TEST(ReglasFoco, TheTableHoldsEveryRuleOnceAndItsFieldsStartAtTheirUnfocusedLength)
{
    PisoDePrueba piso;
    EXPECT_EQ(ReglasDeFoco().size(), 12U);
    for (const ReglaFoco& regla : ReglasDeFoco()) {
        const int esperada = regla.longitudVisible > 0 ? regla.longitudVisible : regla.longitudCrudo;
        EXPECT_EQ(piso.form.campo(regla.campo).MaxLength(), esperada);
    }
}

TEST(ReglasFoco, AnEmptyFieldStaysEmptyInBothDirectionsButThePlot)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxVPP", u"2"}});
    for (const ReglaFoco& regla : ReglasDeFoco()) {
        piso.Escribir({{regla.campo, u""}});
        piso.form.Enfocar(regla.campo);
        EXPECT_EQ(piso.texto(regla.campo), QString()) << regla.campo.toString().toStdString();
        piso.Salir();
        EXPECT_EQ(piso.texto(regla.campo).isEmpty(), regla.campo != u"BoxSolar")
            << regla.campo.toString().toStdString();
    }
}

TEST(ReglasFoco, LeavingAnEmptyPlotShowsTheEstimate)
{
    PisoDePrueba piso({{u"BoxConst", u"104"}, {u"BoxVPP", u"2"}});
    piso.form.Enfocar(u"BoxSolar");
    piso.Salir();
    EXPECT_EQ(piso.texto(u"BoxSolar"), u"200,00"_s);
}

TEST(ReglasFoco, ASurfaceLeftEmptyKeepsEmptyAlthoughItHasBeenDerived)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxConst", u"100");
    piso.form.Enfocar(u"BoxUtil");
    piso.Salir();
    EXPECT_EQ(piso.texto(u"BoxConst"), u"100,00"_s);
    EXPECT_EQ(piso.texto(u"BoxUtil"), QString());
    EXPECT_EQ(piso.form.estado().SuperficieUtil, 83.33);
}

TEST(ReglasFoco, RoundedFiguresComeUpRawInTheFieldThatSheReturnsTo)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxK", u"1,3"}});
    piso.Teclear(u"BoxProvisional", u"9000000");
    piso.Teclear(u"BoxCc", u"12344");
    piso.Salir();
    piso.form.boton(u"SSCommand7").Pulsar();
    EXPECT_EQ(piso.texto(u"BoxCc"), u"12.344"_s);
    piso.form.Enfocar(u"BoxCc");
    EXPECT_EQ(piso.texto(u"BoxCc"), u"12340"_s);
}

TEST(ReglasFoco, EveryOtherTextFieldSelectsItsWholeText)
{
    PisoDePrueba piso({{u"BoxSit", u"Calle Mayor, 3"}, {u"txtObservaciones", u"dos\nlíneas"}});
    for (const QStringView nombre : {u"BoxSit", u"txtObservaciones"}) {
        piso.form.Enfocar(nombre);
        EXPECT_EQ(piso.form.campo(nombre).SelLength(), piso.texto(nombre).size());
    }
}

} // namespace

} // namespace valmerix
