#include "report/comparables_block.h"

#include "report/report_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

void AñadirTestigos(CasoDePrueba& piso)
{
    Rejilla& r = piso.ventana.rejilla(u"fgrSeleccion");
    r.AddItem(u"12\t03/02/2026\tC/ Ancha, 5\t46410\t15\t1\t3\t95,50\t112.000,00"_s);
    r.AddItem(u"-3\t10/05/2026\tPl. Mayor, 2\t46410\t8\t1\t4\t120,00\t150.500,00"_s);
}

const QString kDosTestigos = u"\r\n\t Testigo Nº 1\r\n"
                             u"\t\tFecha Operación: 03/02/2026\r\n"
                             u"\t\tSituación: C/ Ancha, 5\r\n"
                             u"\t\tAntigüedad: 15 años \r\n"
                             u"\t\tSuperficie: 95,50\r\n"
                             u"\t\tValoración: 112.000,00\r\n"
                             u"\r\n\t Testigo Nº 2\r\n"
                             u"\t\tFecha Operación: 10/05/2026\r\n"
                             u"\t\tSituación: Pl. Mayor, 2\r\n"
                             u"\t\tAntigüedad: 8 años \r\n"
                             u"\t\tSuperficie: 120,00\r\n"
                             u"\t\tValoración: 150.500,00\r\n"_s;

} // namespace

TEST(ComparablesBlock, QuotesTheCellsAsTheGridShowsThem)
{
    CasoDePrueba piso;
    AñadirTestigos(piso);
    EXPECT_EQ(AgregarTestigos(piso.caso), kDosTestigos);
}

TEST(ComparablesBlock, AnEmptyGridGivesNothing)
{
    CasoDePrueba piso;
    piso.ventana.rejilla(u"fgrSeleccion").Rellenar(10);
    EXPECT_EQ(AgregarTestigos(piso.caso), QString());
    RellenarPiso(piso);
    for (const bool perfil : {true, false}) {
        piso.Perfil(perfil);
        const QString texto = piso.lineas().join(u'\n');
        EXPECT_FALSE(texto.contains(u"comparativa"_s));
        EXPECT_FALSE(texto.contains(u"INFORMACION DE MERCADO"_s));
    }
}

TEST(ComparablesBlock, LandHasNoAge)
{
    CasoDePrueba terreno(u"Trno"_s);
    terreno.ventana.rejilla(u"fgrSeleccion")
        .AddItem(u"12\t03/02/2026\tC/ Ancha, 5\t46410\t15\t1\t3\t95,50\t112.000,00"_s);
    EXPECT_EQ(AgregarTestigos(terreno.caso), u"\r\n\t Testigo Nº 1\r\n"
                                             u"\t\tFecha Operación: 03/02/2026\r\n"
                                             u"\t\tSituación: C/ Ancha, 5\r\n"
                                             u"\t\tSuperficie: 95,50\r\n"
                                             u"\t\tValoración: 112.000,00\r\n"_s);
}

TEST(ComparablesBlock, EveryBuildingHasAnAge)
{
    for (const QString& tipo : {u"Piso"_s, u"Apto"_s, u"Casa"_s, u"Nave"_s, u"Loca"_s}) {
        CasoDePrueba caso(tipo);
        AñadirTestigos(caso);
        EXPECT_EQ(AgregarTestigos(caso.caso), kDosTestigos) << tipo.toStdString();
    }
}

TEST(ComparablesBlock, AnEmptyRowInTheMiddleStopsTheListThoughFilledOnesFollow)
{
    CasoDePrueba piso;
    AñadirTestigos(piso);
    Rejilla& r = piso.ventana.rejilla(u"fgrSeleccion");
    r.AddItem(u"5\t11/06/2026\tC/ Nueva, 1\t46410\t3\t1\t2\t70,00\t90.000,00"_s);
    for (int columna = 0; columna < r.Cols(); ++columna)
        r.setTextMatrix(2, columna, {});
    const qsizetype primero = kDosTestigos.indexOf(u"\r\n\t Testigo Nº 2"_s);
    EXPECT_EQ(AgregarTestigos(piso.caso), kDosTestigos.left(primero));
}

TEST(ComparablesBlock, AnEmptyRowStopsTheList)
{
    CasoDePrueba piso;
    AñadirTestigos(piso);
    piso.ventana.rejilla(u"fgrSeleccion").setTextMatrix(1, 0, {});
    EXPECT_EQ(AgregarTestigos(piso.caso), QString());
}

TEST(ComparablesBlock, StandsBehindTheMarketCoefficient)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    AñadirTestigos(piso);
    const QString texto = piso.lineas().join(u"\r\n"_s);
    EXPECT_TRUE(texto.contains(
        u"tendrá un valor de 1,35.\r\n\r\n"_s + QString(14, u' ') +
        u"A continuación incluimos un resumen de las operaciones utilizadas en la comparativa.\r\n"_s +
        QString(14, u' ') + kDosTestigos + u"\r\n"_s + QString(14, u' ') + u"9.3. Valor de realización"_s));
    EXPECT_FALSE(texto.contains(u"INFORMACION DE MERCADO"_s));
}

TEST(ComparablesBlock, HasAChapterOfItsOwnWithoutTheUnitValues)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    AñadirTestigos(piso);
    piso.Apartados({22}, 0);
    const QString texto = piso.lineas().join(u"\r\n"_s);
    EXPECT_TRUE(texto.contains(
        u"9.  INFORMACION DE MERCADO:\r\n\r\n"_s + QString(14, u' ') +
        u"A continuación incluimos un resumen de las operaciones utilizadas en la comparativa.\r\n"_s +
        QString(14, u' ') + kDosTestigos + u"\r\n10.  VALOR DE TASACION:"_s));
}

} // namespace valmerix
