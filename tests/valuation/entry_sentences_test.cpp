#include "support/test_form.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

} // namespace valmerix
