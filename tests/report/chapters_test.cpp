#include "report/report_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

const QString kL1(14, u' ');
const QString kL2(28, u' ');
const QString kL3(42, u' ');

QString Texto(const CasoDePrueba& caso)
{
    return caso.lineas().join(u'\n');
}

QString LineaTras(const CasoDePrueba& caso, QStringView titulo)
{
    return caso.trasTitulo(titulo).value(0);
}

QString LineaDelSolicitante(const CasoDePrueba& caso)
{
    const QStringList lineas = caso.lineas();
    return lineas.value(lineas.indexOf(u"SOLICITANTE:"_s) + 2);
}

} // namespace

TEST(Identification, TheRequestersLineDropsWhatIsEmpty)
{
    CasoDePrueba piso;
    EXPECT_EQ(LineaDelSolicitante(piso), kL1 + u" de ."_s);
    piso.Escribir({{u"BoxNomSol", u"Ana Gil"}, {u"BoxPobSol", u"Alzira"}});
    EXPECT_EQ(LineaDelSolicitante(piso), kL1 + u"Ana Gil de Alzira."_s);
    piso.Escribir({{u"BoxProvSol", u"Valencia"}, {u"BoxNIFSol", u"1-A"}});
    EXPECT_EQ(LineaDelSolicitante(piso), kL1 + u"Ana Gil de Alzira (Valencia) y con N.I.F. 1-A."_s);
    piso.Escribir({{u"BoxDomSol", u"C/ Sol, 1"}, {u"BoxCPSol", u"46600"}});
    EXPECT_EQ(
        LineaDelSolicitante(piso),
        kL1 + u"Ana Gil, con domicilio en C/ Sol, 1, código postal 46600 de Alzira (Valencia) y con N.I.F. "
              u"1-A."_s);
}

TEST(Identification, WithoutAPostalCodeTheTownFollowsTheDomicileWithNothingBetween)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxNomSol", u"Ana Gil"}, {u"BoxDomSol", u"C/ Sol, 1"}, {u"BoxPobSol", u"Alzira"}});
    EXPECT_EQ(LineaDelSolicitante(piso), kL1 + u"Ana Gil, con domicilio en C/ Sol, 1Alzira."_s);
}

TEST(Identification, AProvinceWithoutATownIsNotSaid)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxProvSol", u"Valencia"}, {u"BoxProv", u"Valencia"}});
    EXPECT_FALSE(Texto(piso).contains(u"Valencia"_s));
    EXPECT_EQ(LineaTras(piso, u"1.2. Municipio:"), kL1 + u"."_s);
    piso.Escribir({{u"BoxMun", u"Alzira"}, {u"BoxCP", u"46600"}});
    EXPECT_EQ(LineaTras(piso, u"1.2. Municipio:"), kL1 + u"Alzira (Valencia), código postal 46600."_s);
}

TEST(Identification, RegisterDataHaveNoFullStop)
{
    CasoDePrueba piso;
    EXPECT_EQ(LineaTras(piso, u"1.4. Datos registrales:"), kL1 + u"Inscrita en el"_s);
    piso.Escribir({{u"BoxTomo", u"12"}, {u"BoxInsc", u"4"}});
    EXPECT_EQ(LineaTras(piso, u"1.4. Datos registrales:"),
              kL1 + u"Inscrita en el tomo 12, inscripción 4 ª"_s);
    piso.Escribir({{u"txtRegistro", u"de Alzira"},
                   {u"BoxLibro", u"1"},
                   {u"BoxFolio", u"2"},
                   {u"BoxFinca", u"3"},
                   {u"BoxAnot", u"C"}});
    EXPECT_EQ(LineaTras(piso, u"1.4. Datos registrales:"),
              kL1 + u"Inscrita en el Registro de Alzira tomo 12, libro 1, folio 2, finca 3, inscripción 4 ª, "
                    u"anotación C"_s);
}

TEST(Identification, EachKindNamesItsProperty)
{
    const auto inmueble = [](const QString& tipo) {
        return LineaTras(CasoDePrueba(tipo), u"1.1. Tipo de inmueble:").trimmed();
    };
    EXPECT_EQ(inmueble(u"Piso"_s), u"Piso o vivienda en edificio plurifamiliar."_s);
    EXPECT_EQ(inmueble(u"Apto"_s), u"El objeto de tasación del presente informe es un apartamento."_s);
    EXPECT_EQ(inmueble(u"Casa"_s),
              u"El objeto de tasación del presente informe es una vivienda unifamiliar."_s);
}

TEST(Identification, AKindWithoutAPlanHasNoReport)
{
    EXPECT_THROW(CasoDePrueba(u"Nave"_s).lineas(), std::out_of_range);
}

TEST(Identification, WithoutAPurposeItsHeadingIsSilentButNotItsChapter)
{
    CasoDePrueba piso;
    const QString texto = Texto(piso);
    EXPECT_TRUE(texto.contains(u"\n2.  FINALIDAD:\n\n\n\n\n"_s));
    EXPECT_FALSE(texto.contains(u"2.1. Finalidad"_s));
}

TEST(Environment, TheRealPopulationNeedsBothFiguresAndItsPoint)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    EXPECT_EQ(
        LineaTras(piso, u"Número de habitantes:"),
        kL1 + u"La población de derecho se encuentra en torno a 27.650 habitantes, pero la población real "
              u"o de hecho es de 31.200 habitantes."_s);
    const QString corta = kL1 + u"La población de derecho se encuentra en torno a 27.650 habitantes."_s;
    piso.Puntos({4}, 0);
    EXPECT_EQ(LineaTras(piso, u"Número de habitantes:"), corta);
    piso.Puntos({4});
    piso.Escribir({{u"BoxHecho", u""}});
    EXPECT_EQ(LineaTras(piso, u"Número de habitantes:"), corta);
}

TEST(Environment, RawPopulationFiguresAreGrouped)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Escribir({{u"BoxDerecho", u"1234567"}, {u"BoxHecho", u"0"}});
    EXPECT_EQ(LineaTras(piso, u"Número de habitantes:"),
              kL1 +
                  u"La población de derecho se encuentra en torno a 1.234.567 habitantes, pero la población "
                  u"real o de hecho es de 0 habitantes."_s);
}

TEST(Environment, CommunicationsAreSaidInOneSentenceHoweverFew)
{
    CasoDePrueba piso;
    piso.Apartados({3});
    EXPECT_EQ(LineaTras(piso, u"Comunicaciones:"),
              kL2 + u"Sobre sus comunicaciones, diremos que estas son muy deficientes."_s);
    piso.Marcar({u"CheckMetro"});
    EXPECT_EQ(LineaTras(piso, u"Comunicaciones:"),
              kL2 + u"Sobre sus comunicaciones, diremos que solo cuenta con metro."_s);
}

TEST(Environment, TwoKindsOfEquipmentAreAnnouncedOnlyWhenBothSectionsAreOn)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    EXPECT_TRUE(LineaTras(piso, u"Equipamiento:").startsWith(kL2 + u"Distinguimos dos tipos"_s));
    for (const int apartado : {5, 6}) {
        piso.Apartados({5, 6});
        piso.Apartados({apartado}, 0);
        EXPECT_EQ(LineaTras(piso, u"Equipamiento:"),
                  kL2 +
                      u"En cuanto a equipamientos necesarios, la zona cuenta con equipamientos comerciales y "
                      u"servicios sanitarios."_s);
    }
}

TEST(Building, TheDescriptionSaysOnlyThePointsThatAreOn)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Puntos({11, 6, 9}, 0);
    EXPECT_EQ(LineaTras(piso, u"Descripción y usos:"),
              kL1 + u"Se trata de un edificio compuesto de planta baja y cuatro plantas altas con "_s);
    piso.Puntos({5}, 0);
    EXPECT_EQ(LineaTras(piso, u"Descripción y usos:"), kL1 + u"Solo cuenta con un ascensor."_s);
    piso.Puntos({7}, 0);
    EXPECT_TRUE(LineaTras(piso, u"Descripción y usos:").startsWith(kL1 + u"El zaguán"_s));
    piso.Apartados({8}, 0);
    EXPECT_EQ(LineaTras(piso, u"Descripción y usos:"), kL1 + u"4.2. Tipología:"_s);
}

TEST(Building, AHouseDescribesItsFloorsItsOwnWay)
{
    CasoDePrueba casa(u"Casa"_s);
    RellenarPiso(casa);
    casa.frases.FrasePlantas = u" y una planta alta"_s;
    casa.frases.FraseSotanos = u" Existe además una planta bajo rasante destinada a bodega."_s;
    EXPECT_EQ(casa.trasTitulo(u"Descripción y usos:"),
              QStringList{kL1 +
                          u"Se trata de un edificio de planta baja  y una planta alta destinado a vivienda "
                          u"unifamiliar. Existe además una planta bajo rasante destinada a bodega."_s});
    EXPECT_EQ(LineaTras(casa, u"4.6. Servicios individuales:"),
              kL1 + u"  Carece de servicios de tipo individual."_s);
}

TEST(Building, ItsSectionsAreSilentWhenItsChapterIs)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Apartados({7}, 0);
    const QString texto = Texto(piso);
    for (const QStringView titulo :
         {u"CARACTERISTICAS DEL EDIFICIO", u"Descripción y usos", u"Características constructivas",
          u"Antigüedad del edificio", u"Servicios comunes", u"Situación actual:"})
        EXPECT_FALSE(texto.contains(titulo)) << titulo.toString().toStdString();
    EXPECT_TRUE(texto.contains(u"\n4.  CARACTERISTICAS DE LA VIVIENDA:\n\n"_s + kL1 + u"4.1. "_s));
}

TEST(Building, AnEmptyAgeOfANewCasePrintsAnEmptyLine)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.frases.FraseAntiguedad.clear();
    EXPECT_EQ(piso.trasTitulo(u"Antigüedad del edificio:"), QStringList{kL1});
}

TEST(Dwelling, JoineryIsOneSentenceOrHalfOfIt)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    EXPECT_TRUE(Texto(piso).contains(
        kL1 + u"La carpintería interior es de madera de roble y la exterior de aluminio.\n\n"_s));
    piso.Apartados({15}, 0);
    EXPECT_TRUE(Texto(piso).contains(kL1 + u"La carpintería interior es de madera de roble.\n\n"_s));
    piso.Apartados({15});
    piso.Apartados({14}, 0);
    EXPECT_TRUE(Texto(piso).contains(kL1 + u"La carpintería exterior es de aluminio.\n\n"_s));
    piso.Apartados({15}, 0);
    EXPECT_FALSE(Texto(piso).contains(u"carpintería"_s));
}

TEST(Dwelling, AnApartmentNeverSpeaksOfItsKitchenFurniture)
{
    for (const QStringView tipo : {u"Piso", u"Apto", u"Casa"}) {
        CasoDePrueba caso(tipo.toString());
        RellenarPiso(caso);
        EXPECT_EQ(Texto(caso).contains(u"mobiliario de cocina"_s), tipo != u"Apto");
        caso.Apartados({16}, 0);
        EXPECT_FALSE(Texto(caso).contains(u"mobiliario de cocina"_s));
    }
}

TEST(Dwelling, FinishesGoWithTheirSections)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Apartados({13}, 0);
    EXPECT_FALSE(Texto(piso).contains(u"revestimiento de suelos"_s));
    piso.Apartados({17}, 0);
    EXPECT_FALSE(Texto(piso).contains(u"Para terminar"_s));
}

TEST(Dwelling, NotesOfSeveralLinesStandAsTheyAreTyped)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Escribir({{u"txtObservaciones", u"Una.\nDos: ñ, €, “comillas”.\r\nTres."}});
    EXPECT_TRUE(Texto(piso).contains(u"8.  OBSERVACIONES:\n\n"_s + kL1 +
                                     u"Una.\nDos: ñ, €, “comillas”.\nTres.\n\n\n\n9."_s));
}

TEST(ValuationChapter, UsefulSurfaceBringsTheRatioR)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Elegir(u"Sup", 0);
    const QString texto = Texto(piso);
    EXPECT_TRUE(texto.contains(kL1 + u"CR = [RS + Cc * (1 - D)] * R\n\n"_s));
    EXPECT_TRUE(texto.contains(
        kL2 +
        u"R :  Cociente resultante de dividir la superficie construida entre la superficie útil.\n\n"_s));
    EXPECT_TRUE(texto.contains(kL2 + u"D  =  0,21\n\n"_s + kL2 + u"R  =  111,75 / 92,50\n\n"_s + kL2 +
                               u"R  =  1,21\n\n\n"_s + kL2 +
                               u"CR  =  [ 300,00 €/m²  +  650,00 €/m²  * (1 - 0,21) ] * 1,21\n\n"_s));
    EXPECT_TRUE(texto.contains(kL1 + u"Vt  =  Superficie útil  *  Vr\n\n"_s + kL1 +
                               u"Vt  =  92,50 m²  *  1.098,23 €/m²\n\n"_s));
}

TEST(ValuationChapter, BuiltSurfaceHasNoRatio)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.ventana.opciones(u"Sup").Quitar();
    const QString texto = Texto(piso);
    EXPECT_TRUE(texto.contains(kL1 + u"CR = RS + Cc * (1 - D)\n\n"_s));
    EXPECT_FALSE(texto.contains(u"R :  Cociente"_s));
    EXPECT_FALSE(texto.contains(kL2 + u"R  = "_s));
    EXPECT_TRUE(texto.contains(kL1 + u"Vt  =  Superficie construida  *  Vr\n"_s));
}

TEST(ValuationChapter, TheAgeLimitAndTheCurrencyComeFromTheSettings)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.opciones.EdadViviendas = 80;
    piso.opciones.MonedaAbreviatura = u"Pta."_s;
    const QString texto = Texto(piso);
    EXPECT_TRUE(texto.contains(u"que para viviendas se estima de 80 años."_s));
    EXPECT_TRUE(texto.contains(u"expresado en Pta./m² construido."_s));
    EXPECT_TRUE(texto.contains(u"=  335.249,60 Pta..\n"_s));
    EXPECT_FALSE(texto.contains(u'€'));
}

TEST(ClosingBlock, PrintsTheAnnexesInTheirOrderWithinTheResult)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    EXPECT_TRUE(Texto(piso).contains(kL3 + u"Valor del inmueble (Vt)  =        122.726,64 €\n"_s + kL3 +
                                     u"Garaje en planta sótano primero:          15.000,00 €\n"_s + kL3 +
                                     u"Trastero en planta ático:          4.500,00 €\n"_s + kL3 +
                                     u"Plaza de moto:          2.000,50 €\n\n"_s + kL3 +
                                     u"IMPORTE TOTAL DE TASACION:        144.227,14 €\n\n\n"_s));
}

TEST(ClosingBlock, WithoutAnnexesTheTotalFollowsTheValue)
{
    CasoDePrueba piso;
    EXPECT_TRUE(Texto(piso).contains(kL3 + u"Valor del inmueble (Vt)  =        0,00 €\n\n"_s + kL3 +
                                     u"IMPORTE TOTAL"_s));
    EXPECT_TRUE(Texto(piso).contains(
        u"\n     Asciende el importe de la presente tasación a la expresada cantidad de CERO euros.\n\n\n"_s));
}

TEST(ClosingBlock, PlaceAndDateStandAtColumnForty)
{
    CasoDePrueba piso;
    EXPECT_EQ(piso.lineas().last(), QString(40, u' ') + u",  ."_s);
    RellenarPiso(piso);
    EXPECT_EQ(piso.lineas().last(), QString(40, u' ') + u"Valencia,  viernes, 20 de noviembre de 2026."_s);
}

} // namespace valmerix
