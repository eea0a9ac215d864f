#include "support/test_form.h"
#include "valuation/case_events.h"
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

TEST(Pendientes, EveryFigureThatChangesMakesTheResultsPending)
{
    for (const QStringView campo :
         {u"BoxCc", u"BoxRepercusion", u"BoxSobreRasante", u"BoxSolar", u"BoxK", u"BoxProvisional"}) {
        PisoDePrueba piso({{u"BoxK", u"1"}});
        piso.form.boton(u"SSCommand7").Pulsar();
        EXPECT_FALSE(piso.pendientes());
        piso.Escribir({{campo, u"77"}});
        for (const QStringView resultado : kCamposResultado)
            EXPECT_EQ(piso.form.control(resultado).aspecto(), Aspecto::Pendiente);
    }
}

TEST(Pendientes, TheButtonIsAvailableExactlyWhileThereIsAK)
{
    PisoDePrueba piso;
    const Control& boton = piso.form.control(u"SSCommand7");
    EXPECT_FALSE(boton.Enabled());
    piso.Escribir({{u"BoxK", u"1"}});
    EXPECT_TRUE(boton.Enabled());
    piso.Escribir({{u"BoxK", u""}});
    EXPECT_FALSE(boton.Enabled());
}

TEST(Pendientes, TheButtonMakesThemCurrentAndRound)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxK", u"1,3"}, {u"BoxCc", u"60000"}});
    piso.Teclear(u"BoxProvisional", u"10000000");
    piso.Salir();
    EXPECT_TRUE(piso.pendientes());
    piso.form.boton(u"SSCommand7").Pulsar();
    EXPECT_FALSE(piso.pendientes());
    EXPECT_EQ(piso.form.estado().RepercusionSolar.decimal(), u"16923.0000"_s);
}

TEST(ValorProvisional, LocksAndEmptiesTheLandCharge)
{
    PisoDePrueba piso({{u"BoxRepercusion", u"500"}});
    piso.Teclear(u"BoxProvisional", u"1");
    EXPECT_TRUE(piso.form.campo(u"BoxRepercusion").Locked());
    EXPECT_EQ(piso.texto(u"BoxRepercusion"), QString());
    EXPECT_EQ(piso.form.control(u"BoxRepercusion").aspecto(), Aspecto::Bloqueado);
    piso.form.campo(u"BoxProvisional").PulsarTecla(8);
    EXPECT_FALSE(piso.form.campo(u"BoxRepercusion").Locked());
    EXPECT_EQ(piso.form.control(u"BoxRepercusion").aspecto(), Aspecto::Normal);
}

TEST(ValorProvisional, LeftEmptyTheForwardCalculationRuns)
{
    PisoDePrueba piso({{u"BoxConst", u"100"}, {u"BoxCc", u"600"}, {u"BoxK", u"1"}});
    piso.form.Enfocar(u"BoxProvisional");
    piso.Salir();
    EXPECT_EQ(piso.form.estado().ValorVivienda, Importe(60000));
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"60.000,00"_s);
}

TEST(Porcentaje, AboveAHundredIsClippedWithABeep)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxPorcen", u"101");
    EXPECT_EQ(piso.texto(u"BoxPorcen"), u"100"_s);
    EXPECT_EQ(piso.sistema.pitidos, 1);
    piso.Escribir({{u"BoxPorcen", u"100"}});
    EXPECT_EQ(piso.sistema.pitidos, 1);
}

TEST(Fecha, StartsTodayAndATextThatIsNoDateBecomesToday)
{
    PisoDePrueba piso;
    EXPECT_EQ(piso.form.campo(u"BoxFecha").Mask(), u"99/99/9999"_s);
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"20/11/2026"_s);
    piso.Teclear(u"BoxFecha", u"31022026");
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"31/02/2026"_s);
    piso.Salir();
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"20/11/2026"_s);
    piso.Teclear(u"BoxFecha", u"05032025");
    piso.Salir();
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"05/03/2025"_s);
}

TEST(Fecha, TheCalendarOpensOnTheDateAndSetsIt)
{
    PisoDePrueba piso({{u"BoxFecha", u"05/03/2025"}});
    piso.dialogos.fechas = {QDate(2024, 2, 29), std::nullopt};
    piso.form.boton(u"BttFecha").Pulsar();
    EXPECT_EQ(piso.dialogos.calendarios.at(0), QDate(2025, 3, 5));
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"29/02/2024"_s);
    piso.form.boton(u"BttFecha").Pulsar();
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"29/02/2024"_s);
}

TEST(Fecha, ABoxWithoutADateGetsTodayBeforeTheCalendarOpens)
{
    PisoDePrueba piso({{u"BoxFecha", u"  /  /    "}});
    piso.dialogos.fechas = {std::nullopt};
    EXPECT_FALSE(piso.form.ElegirFecha(piso.form.campo(u"BoxFecha")));
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"20/11/2026"_s);
    EXPECT_EQ(piso.dialogos.calendarios.at(0), QDate(2026, 11, 20));
}

TEST(Anexos, AValueTicksItsBoxAndAnEmptyFieldClearsIt)
{
    PisoDePrueba piso;
    for (const Anexo& anexo : kAnexos) {
        piso.Teclear(anexo.campo, u"5000");
        piso.Salir();
        EXPECT_TRUE(piso.form.marcada(anexo.casilla));
        EXPECT_EQ(piso.form.estado().*anexo.valor, Importe(5000));
        piso.form.Enfocar(anexo.campo);
        piso.form.campo(anexo.campo).PulsarTecla(8);
        piso.Salir();
        EXPECT_FALSE(piso.form.marcada(anexo.casilla));
        EXPECT_TRUE((piso.form.estado().*anexo.valor).esCero());
    }
}

TEST(Anexos, AClearedBoxBesideAValueIsTickedAgain)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxGaraje", u"12000");
    piso.Salir();
    piso.form.casilla(u"CheckGrj").Pulsar();
    EXPECT_TRUE(piso.form.marcada(u"CheckGrj"));
    EXPECT_EQ(piso.texto(u"BoxGaraje"), u"12.000,00"_s);
}

TEST(Anexos, ABoxTickedBesideAnEmptyFieldIsClearedAgain)
{
    PisoDePrueba piso;
    piso.form.casilla(u"CheckTrast").Pulsar();
    EXPECT_FALSE(piso.form.marcada(u"CheckTrast"));
}

TEST(Frases, TheAgeInWords)
{
    PisoDePrueba piso;
    const std::pair<QStringView, QString> casos[] = {
        {u"1", u"Solo tiene un año."_s},    {u"", u"De nueva planta."_s},
        {u"0", u"De nueva planta."_s},      {u"2", u"Tiene dos años."_s},
        {u"21", u"Tiene veintiun años."_s}, {u"101", u"Tiene ciento un años."_s}};
    for (const auto& [texto, frase] : casos) {
        piso.Escribir({{u"BoxAntig", texto}});
        EXPECT_EQ(piso.form.frases().FraseAntiguedad, frase);
    }
}

TEST(Frases, StoreysDwellingsAndLifts)
{
    PisoDePrueba piso;
    piso.Escribir({{u"BoxPlantas", u"1"}, {u"BoxVPP", u"1"}, {u"BoxAscen", u"1"}});
    EXPECT_EQ(piso.frases.FrasePlantas, u"una planta alta con "_s);
    EXPECT_EQ(piso.frases.FraseViviendasPlanta, u"una vivienda por planta."_s);
    EXPECT_EQ(piso.frases.FraseAscensores, u"Solo cuenta con un ascensor."_s);
    piso.Escribir({{u"BoxPlantas", u"21"}, {u"BoxVPP", u"4"}, {u"BoxAscen", u"2"}});
    EXPECT_EQ(piso.frases.FrasePlantas, u"veintiuna plantas altas con "_s);
    EXPECT_EQ(piso.frases.FraseViviendasPlanta, u"cuatro viviendas por planta."_s);
    EXPECT_EQ(piso.frases.FraseAscensores, u"Cuenta con dos ascensores."_s);
    for (const QStringView nada : {u"0", u""}) {
        piso.Escribir({{u"BoxPlantas", nada}, {u"BoxVPP", nada}, {u"BoxAscen", nada}});
        EXPECT_EQ(piso.frases.FrasePlantas, QString());
        EXPECT_EQ(piso.frases.FraseViviendasPlanta, QString());
        EXPECT_EQ(piso.frases.FraseAscensores, u"Carece de ascensor."_s);
    }
}

TEST(Frases, BasementsHaveTheirUseInLowerCaseAndTheirTwoBlanks)
{
    PisoDePrueba piso({{u"BoxSot", u"1"}});
    piso.form.lista(u"ComboSotano").Elegir(0);
    EXPECT_EQ(piso.frases.FraseSotanos, u" Existe además una planta bajo rasante destinada a garaje."_s);
    piso.Escribir({{u"BoxSot", u"2"}});
    EXPECT_EQ(piso.frases.FraseSotanos,
              u" Además hay otras dos plantas bajo rasante, destinadas a garaje."_s);
    piso.form.lista(u"ComboSotano").Elegir(2);
    EXPECT_EQ(piso.frases.FraseSotanos,
              u" Además hay otras dos  plantas bajo rasante, destinadas a trasteros."_s);
    piso.Escribir({{u"ComboSotano", u"Archivo"}});
    EXPECT_EQ(piso.frases.FraseSotanos,
              u" Además hay otras dos  plantas bajo rasante, destinadas a archivo."_s);
    piso.Escribir({{u"BoxSot", u"0"}});
    EXPECT_EQ(piso.frases.FraseSotanos, QString());
}

TEST(Frases, ComposedAnewTheyTellEmptyFieldsToo)
{
    PisoDePrueba piso({{u"BoxSot", u"3"}, {u"ComboSotano", u"Bodega"}});
    piso.frases = {};
    piso.form.ComponerFrasesDelEdificio();
    EXPECT_EQ(piso.frases.FraseAntiguedad, u"De nueva planta."_s);
    EXPECT_EQ(piso.frases.FraseAscensores, u"Carece de ascensor."_s);
    EXPECT_EQ(piso.frases.FraseSotanos,
              u" Además hay otras tres  plantas bajo rasante, destinadas a bodega."_s);
}

TEST(Frases, PlanningThatIsMetNamesTheTown)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxMun", u"Gandía");
    piso.Salir();
    EXPECT_EQ(piso.frases.FraseUrbanistica, QString());
    piso.form.opciones(u"SitUrb").Pulsar(0);
    EXPECT_EQ(piso.frases.FraseUrbanistica, u"Cumple toda la normativa urbanística existente en Gandía."_s);
    piso.Teclear(u"BoxMun", u"Oliva");
    piso.Salir();
    EXPECT_EQ(piso.frases.FraseUrbanistica, u"Cumple toda la normativa urbanística existente en Oliva."_s);
    piso.form.opciones(u"SitUrb").Pulsar(1);
    piso.Teclear(u"BoxMun", u"Pego");
    piso.Salir();
    EXPECT_EQ(piso.frases.FraseUrbanistica, u"Cumple toda la normativa urbanística existente en Oliva."_s);
}

TEST(TextosDeOpcion, WritingAFreeTextChoosesItsOption)
{
    PisoDePrueba piso;
    EXPECT_EQ(TablaEventos::textos().size(), 7U);
    for (const TextoDeOpcion& regla : TablaEventos::textos()) {
        piso.Teclear(regla.campo, u"x");
        EXPECT_EQ(piso.form.opciones(regla.grupo).elegida(), regla.opcion);
        EXPECT_EQ(piso.texto(regla.campo), u"x"_s);
    }
}

TEST(TextosDeOpcion, ChoosingTheOptionAsksForTheText)
{
    PisoDePrueba piso;
    const std::tuple<QStringView, int, QStringView> casos[] = {{u"Finalidad", 4, u"BoxFin"},
                                                               {u"TipoNucleo", 2, u"BoxSatelite"},
                                                               {u"TipoNucleo", 3, u"BoxOtroNucleo"}};
    for (const auto& [grupo, opcion, campo] : casos) {
        piso.form.opciones(grupo).Pulsar(opcion);
        EXPECT_EQ(piso.form.conFoco(), &piso.form.control(campo));
    }
    piso.Salir();
    piso.form.opciones(u"TipoNucleo").Pulsar(0);
    piso.form.opciones(u"CarpInt").Pulsar(4);
    EXPECT_EQ(piso.form.conFoco(), &piso.form.control(u"SSTab1"));
}

TEST(Documentacion, TheTextTicksItsBoxAndTheBoxAsksForTheText)
{
    PisoDePrueba piso;
    piso.form.casilla(u"CheckOtra").Pulsar();
    EXPECT_EQ(piso.form.conFoco(), &piso.form.control(u"BoxDocumentacion"));
    piso.form.campo(u"BoxDocumentacion").Teclear(u"Plano"_s);
    EXPECT_TRUE(piso.form.marcada(u"CheckOtra"));
    piso.Escribir({{u"BoxDocumentacion", u""}});
    EXPECT_FALSE(piso.form.marcada(u"CheckOtra"));
}

TEST(Distribucion, ATickedRoomCountsOneWhenItHasNoNumber)
{
    PisoDePrueba piso;
    EXPECT_EQ(TablaEventos::cuentas().size(), 6U);
    for (const CuentaDeCasilla& regla : TablaEventos::cuentas()) {
        piso.form.casilla(regla.casilla).Pulsar();
        EXPECT_EQ(piso.texto(regla.campo), u"1"_s);
        piso.Escribir({{regla.campo, u"3"}});
        piso.form.casilla(regla.casilla).Pulsar();
        piso.form.casilla(regla.casilla).Pulsar();
        EXPECT_EQ(piso.texto(regla.campo), u"3"_s);
    }
}

TEST(Botones, TheWindowButtonsHandTheFocusBackToThePages)
{
    PisoDePrueba piso;
    for (const QStringView boton :
         {u"SSCommand1", u"SSCommand2", u"SSCommand3", u"SSCommand4", u"SSCommand5"}) {
        piso.form.Enfocar(u"BoxSit");
        piso.form.Enfocar(boton);
        EXPECT_EQ(piso.form.conFoco(), &piso.form.control(u"SSTab1"));
    }
}

TEST(Botones, ThePagesGoRound)
{
    PisoDePrueba piso;
    const auto& paginas = piso.form.como<Solapas>(u"SSTab1");
    EXPECT_EQ(paginas.paginas(), 7);
    piso.form.boton(u"SSCommand4").Pulsar();
    EXPECT_EQ(paginas.Tab(), 6);
    piso.form.boton(u"SSCommand5").Pulsar();
    EXPECT_EQ(paginas.Tab(), 0);
    piso.form.boton(u"SSCommand5").Pulsar();
    EXPECT_EQ(paginas.Tab(), 1);
}

TEST(Botones, EachOpensItsWindow)
{
    PisoDePrueba piso;
    for (const QStringView boton : {u"SSCommand1", u"SSCommand6", u"cmdObservaciones"})
        piso.form.boton(boton).Pulsar();
    EXPECT_EQ(piso.entorno.llamadas,
              (QStringList{u"MostrarSalida"_s, u"MostrarProblema"_s, u"MostrarObservaciones"_s}));
}

TEST(Paleta, TheButtonShowsAndHidesItAndGivesTheFocusBack)
{
    PisoDePrueba piso;
    piso.form.Mover({10, 20, 900, 700});
    piso.form.Enfocar(u"BoxSit");
    piso.form.boton(u"SSCommand3").Pulsar();
    EXPECT_EQ(piso.form.control(u"SSCommand3").Tag(), u"N"_s);
    EXPECT_FALSE(piso.compartido.PaletaAbierta);
    EXPECT_EQ(piso.form.conFoco(), &piso.form.control(u"SSTab1"));
    piso.form.boton(u"SSCommand3").Pulsar();
    EXPECT_TRUE(piso.compartido.PaletaAbierta);
    EXPECT_EQ(piso.compartido.PosicionLeft, 10.0F);
    EXPECT_EQ(piso.compartido.PosicionWidth, 900.0F);
    EXPECT_EQ(piso.compartido.PosicionHeight, 700);
    EXPECT_EQ(piso.entorno.llamadas, (QStringList{u"MostrarPaleta(false)"_s, u"MostrarPaleta(true)"_s}));
}

TEST(Paleta, WhileItClosesItselfTheButtonLeavesItAlone)
{
    PisoDePrueba piso;
    piso.compartido.CierrePaleta = true;
    piso.form.boton(u"SSCommand3").Pulsar();
    EXPECT_EQ(piso.form.control(u"SSCommand3").Tag(), u"N"_s);
    EXPECT_TRUE(piso.entorno.llamadas.isEmpty());
}

TEST(Minimizar, RemembersWhetherThePaletteStoodOpen)
{
    PisoDePrueba piso;
    piso.compartido.RestauracionHecha = true;
    piso.form.boton(u"SSCommand2").Pulsar();
    EXPECT_TRUE(piso.compartido.PaletaAbierta);
    EXPECT_FALSE(piso.compartido.RestauracionHecha);
    EXPECT_TRUE(piso.compartido.MinimizadoPendiente);
    EXPECT_EQ(piso.entorno.llamadas, (QStringList{u"MostrarPaleta(false)"_s, u"Minimizar"_s}));
}

TEST(Eventos, EveryControlOfTheTablesIsInTheFlat)
{
    PisoDePrueba piso;
    for (const ReglaEvento& regla : TablaEventos::reglas())
        EXPECT_NE(piso.form.buscar(regla.control), nullptr) << regla.control.toString().toStdString();
}

} // namespace

} // namespace valmerix
