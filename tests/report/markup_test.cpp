#include "report/markup.h"

#include "report/viewer_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QStringList Negritas(const TextoEnriquecido& texto)
{
    QStringList resultado;
    for (const Tramo& t : texto.negritas())
        resultado.append(texto.Text().mid(t.inicio, t.fin - t.inicio));
    return resultado;
}

QStringList Parrafos(const TextoEnriquecido& texto, Alineacion alineacion)
{
    QStringList resultado;
    const QStringList todos = texto.Text().split(u'\n');
    for (int p = 0; p < todos.size(); ++p)
        if (texto.alineacion(p) == alineacion)
            resultado.append(todos[p].trimmed());
    return resultado;
}

} // namespace

TEST(Markup, BoldsEveryHeadingAndTheTotal)
{
    VisorDePrueba v;
    v.Redactar();
    const QStringList negritas = Negritas(v.texto());
    EXPECT_EQ(negritas.first(), u"INFORME DE TASACION"_s);
    EXPECT_EQ(negritas.last(), u"IMPORTE TOTAL DE TASACION:        144.227,14 €"_s);
    QStringList esperadas = v.visor->oColNegrita();
    for (const QString& titulo : esperadas)
        EXPECT_TRUE(titulo.isEmpty() || negritas.contains(titulo)) << titulo.toStdString();
    esperadas.removeAll(QString());
    EXPECT_EQ(negritas.size(), esperadas.size());
}

TEST(Markup, TheFixedHeadingsFollowThoseOfTheChapters)
{
    VisorDePrueba v;
    v.Redactar();
    EXPECT_EQ(v.visor->oColNegrita().last(10),
              (QStringList{u"SOLICITANTE:"_s, u"1.  IDENTIFICACION:"_s, u"1.1. Tipo de inmueble:"_s,
                           u"1.2. Municipio:"_s, u"1.3. Ubicación:"_s, u"1.4. Datos registrales:"_s,
                           u"2.  FINALIDAD:"_s, u"2.1. Finalidad de la tasación:"_s,
                           u"IMPORTE TOTAL DE TASACION:        144.227,14 €"_s, u"INFORME DE TASACION"_s}));
}

TEST(Markup, TheResultStandsAtTheRightAndTheTitleInTheMiddle)
{
    VisorDePrueba v;
    v.Redactar();
    EXPECT_EQ(Parrafos(v.texto(), Alineacion::Derecha),
              (QStringList{u"Valor del inmueble (Vt)  =        122.726,64 €"_s,
                           u"Garaje en planta sótano primero:          15.000,00 €"_s,
                           u"Trastero en planta ático:          4.500,00 €"_s,
                           u"Plaza de moto:          2.000,50 €"_s,
                           u"IMPORTE TOTAL DE TASACION:        144.227,14 €"_s}));
    EXPECT_EQ(Parrafos(v.texto(), Alineacion::Centro), QStringList{u"INFORME DE TASACION"_s});
    EXPECT_EQ(v.texto().SelLength(), 0);
}

TEST(Markup, WithoutAnnexesOnlyTheValueAndTheTotalMove)
{
    VisorDePrueba v;
    v.piso.calculo.ValorGaraje = v.piso.calculo.ValorTrastero = v.piso.calculo.ValorOtroAnexo = Currency();
    v.Redactar();
    EXPECT_EQ(Parrafos(v.texto(), Alineacion::Derecha).size(), 2);
}

TEST(Markup, AnEarlierOccurrenceIsTheOneThatIsMarked)
{
    VisorDePrueba v;
    v.piso.Escribir({{u"BoxNomSol", u"Véase 4.1. Descripción y usos: dice"}});
    v.Redactar();
    const int primera = static_cast<int>(v.texto().Text().indexOf(u"4.1. Descripción"_s));
    EXPECT_LT(primera, v.texto().Text().indexOf(u"IDENTIFICACION"_s));
    EXPECT_EQ(std::ranges::count(v.texto().negritas(), primera, &Tramo::inicio), 1);
}

TEST(Markup, WhatIsNotThereCostsNothing)
{
    TextoEnriquecido texto(u"Texto"_s);
    texto.setText(u"uno\ndos"_s);
    Titulos(texto, u"tres"_s);
    Titulos(texto, QString());
    AlaDcha(texto, u"tres"_s);
    AlaDcha(texto, QString());
    EXPECT_TRUE(texto.negritas().empty());
    EXPECT_EQ(texto.alineacion(0), Alineacion::Izquierda);
}

TEST(Markup, ViewsAreToldOnce)
{
    VisorDePrueba v;
    InformeRedactado informe = RedactarInforme(v.piso.caso);
    v.texto().setText(informe.texto);
    int avisos = 0;
    int selecciones = 0;
    QObject::connect(&v.texto(), &TextoEnriquecido::ContenidoCambiado, &v.texto(), [&] { ++avisos; });
    QObject::connect(&v.texto(), &TextoEnriquecido::SeleccionCambiada, &v.texto(), [&] { ++selecciones; });
    BarraProgreso barra(u"ProgressBar1"_s);
    Negrita(v.texto(), informe, u"€"_s, barra);
    EXPECT_EQ(avisos, 1);
    EXPECT_EQ(selecciones, 1);
    EXPECT_DOUBLE_EQ(barra.Value(), 100.0);
}

} // namespace valmerix
