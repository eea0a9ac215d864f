#include "support/test_form.h"
#include "valuation/case_events.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

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

TEST(Anexos, AClearedBoxBesideAValueDropsItAndIsTickedAgain)
{
    PisoDePrueba piso({{u"BoxK", u"1"}});
    piso.Teclear(u"BoxGaraje", u"12000");
    piso.Salir();
    QStringList anexos;
    std::vector<Currency> garajes;
    QObject::connect(&piso.form.campo(u"BoxAnexos"), &CampoTexto::Change, &piso.form, [&] {
        anexos << piso.texto(u"BoxAnexos");
        garajes.push_back(piso.calculo.ValorGaraje);
    });
    piso.form.casilla(u"CheckGrj").Pulsar();
    EXPECT_EQ(anexos, (QStringList{u"0,00"_s, u"12.000,00"_s}));
    EXPECT_EQ(garajes, (std::vector<Currency>{Importe(0), Importe(12000)}));
    EXPECT_TRUE(piso.form.marcada(u"CheckGrj"));
    EXPECT_EQ(piso.texto(u"BoxGaraje"), u"12.000,00"_s);
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"12.000,00"_s);
}

TEST(Anexos, AnEmptiedFieldIsTheWayToDropAnAnnex)
{
    PisoDePrueba piso({{u"BoxK", u"1"}});
    piso.Teclear(u"BoxGaraje", u"12000");
    piso.Salir();
    piso.form.Enfocar(u"BoxGaraje");
    piso.form.campo(u"BoxGaraje").PulsarTecla(8);
    piso.Salir();
    EXPECT_FALSE(piso.form.marcada(u"CheckGrj"));
    EXPECT_EQ(piso.texto(u"BoxAnexos"), u"0,00"_s);
    EXPECT_EQ(piso.texto(u"BoxGaraje"), QString());
}

TEST(Anexos, ABoxTickedBesideAnEmptyFieldIsClearedAgain)
{
    PisoDePrueba piso;
    piso.form.casilla(u"CheckTrast").Pulsar();
    EXPECT_FALSE(piso.form.marcada(u"CheckTrast"));
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

TEST(Minimizar, TheBarDoesTheMinimising)
{
    PisoDePrueba piso;
    piso.form.boton(u"SSCommand2").Pulsar();
    EXPECT_EQ(piso.entorno.llamadas, QStringList{u"Minimizar"_s});
}

TEST(Cierre, ThroughTheDesktopAsksToLeaveTheProgramAndKeepsTheCase)
{
    PisoDePrueba piso;
    piso.form.PedirCierre();
    EXPECT_EQ(piso.entorno.llamadas, QStringList{u"MostrarSalida"_s});
    EXPECT_TRUE(piso.form.abierta());
}

TEST(Eventos, EveryControlOfTheTablesIsInTheFlat)
{
    PisoDePrueba piso;
    for (const ReglaEvento& regla : TablaEventos::reglas())
        EXPECT_NE(piso.form.buscar(regla.control), nullptr) << regla.control.toString().toStdString();
}

} // namespace

} // namespace valmerix
