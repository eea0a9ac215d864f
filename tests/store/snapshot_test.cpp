#include "store/snapshot.h"

#include "support/qt_printers.h"
#include "support/store_fixture.h"

using namespace Qt::StringLiterals;

namespace valmerix {

TEST(Snapshot, KeepsTheClassOfEachValueEvenWhereAColumnMixesThem)
{
    const AlmacenDePrueba almacen;
    const ConjuntoResultados filas = almacen.Leer(u"SELECT NULL AS v UNION ALL SELECT 7 UNION ALL SELECT 2.5 "
                                                  u"UNION ALL SELECT 'siete' UNION ALL SELECT NULL "
                                                  u"UNION ALL SELECT 8 UNION ALL SELECT '12,5 m'"_s);
    ASSERT_EQ(filas.RecordCount(), 7);
    EXPECT_FALSE(filas.Valor(u"v", 1).isValid());
    EXPECT_EQ(filas.Valor(u"v", 2), QVariant(7LL));
    EXPECT_EQ(filas.Valor(u"v", 3), QVariant(2.5));
    EXPECT_EQ(filas.Valor(u"V", 4), QVariant(u"siete"_s));
    EXPECT_FALSE(filas.Valor(u"v", 5).isValid());
    EXPECT_EQ(filas.Valor(u"v", 6), QVariant(8LL));
    EXPECT_EQ(filas.Numero(u"v", 7), 12.5);
    EXPECT_EQ(filas.Entero(u"v", 3), 3);
    EXPECT_EQ(filas.Texto(u"v", 3), u"2,5"_s);
}

TEST(Snapshot, TextsKeepTheirPlacesRoundNullAndNumbers)
{
    const AlmacenDePrueba almacen;
    const ConjuntoResultados filas = almacen.Leer(
        u"SELECT 'uno' AS t UNION ALL SELECT NULL UNION ALL SELECT '' UNION ALL SELECT 4 UNION ALL SELECT 'cinco'"_s);
    EXPECT_EQ(filas.Texto(u"t", 1), u"uno"_s);
    EXPECT_FALSE(filas.Valor(u"t", 2).isValid());
    EXPECT_EQ(filas.Valor(u"t", 3), QVariant(u""_s));
    EXPECT_EQ(filas.Valor(u"t", 4), QVariant(4LL));
    EXPECT_EQ(filas.Utf8(0, 5), QUtf8StringView("cinco"));
    EXPECT_EQ(filas.Utf8(0, 4), QUtf8StringView(""));
}

TEST(Snapshot, AGridLineJoinsTheFieldsInOrderOfTheSelect)
{
    const AlmacenDePrueba almacen;
    almacen.Ejecutar(u"INSERT INTO Testigos (Origen,Tipo,Tasacion,Fecha,Situacion,Superficie,ValorFinal) "
                     u"VALUES ('E','P',3,fecha('20/11/2026'),'Calle Ñ',93.50,125000.00)"_s);
    const ConjuntoResultados filas =
        almacen.Leer(u"SELECT Tasacion, '', Fecha, Situacion, CP, Superficie, ValorFinal FROM Testigos"_s);
    EXPECT_EQ(filas.ValorRegistroGrid(1), u"3\t\t20/11/2026\tCalle Ñ\t\t93,5\t125000"_s);
}

TEST(Snapshot, AnEmptyOrClosedOneHasNoRowsAndNoFields)
{
    ConjuntoResultados nada;
    EXPECT_EQ(nada.RecordCount(), 0);
    EXPECT_THROW(nada.ValorRegistroGrid(1), ErrorAlmacen);
    const AlmacenDePrueba almacen;
    ConjuntoResultados filas = almacen.Leer(u"SELECT * FROM Opciones"_s);
    const ConjuntoResultados copia = filas;
    filas.Cerrar();
    EXPECT_EQ(filas.RecordCount(), 0);
    EXPECT_EQ(copia.RecordCount(), 1);
}

TEST(Snapshot, ManyRowsTakeLittleMoreThanTheirData)
{
    const AlmacenDePrueba almacen;
    almacen.Ejecutar(
        u"INSERT INTO Informe SELECT 'N', 'Calle Mayor ' || a.x || b.x || c.x || d.x FROM "
        u"(SELECT 0 AS x UNION SELECT 1 UNION SELECT 2 UNION SELECT 3 UNION SELECT 4 UNION SELECT 5) AS a, "
        u"(SELECT 0 AS x UNION SELECT 1 UNION SELECT 2 UNION SELECT 3 UNION SELECT 4 UNION SELECT 5) AS b, "
        u"(SELECT 0 AS x UNION SELECT 1 UNION SELECT 2 UNION SELECT 3 UNION SELECT 4 UNION SELECT 5) AS c, "
        u"(SELECT 0 AS x UNION SELECT 1 UNION SELECT 2 UNION SELECT 3 UNION SELECT 4 UNION SELECT 5) AS d"_s);
    const ConjuntoResultados filas = almacen.Leer(u"SELECT * FROM Informe"_s);
    ASSERT_EQ(filas.RecordCount(), 1296);
    EXPECT_LE(filas.bytes(), 2 * 1296 * (1 + 16));
    EXPECT_EQ(filas.Texto(u"TextoLinea", 1296), u"Calle Mayor 5555"_s);
}

} // namespace valmerix
