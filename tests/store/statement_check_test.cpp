#include "store/statement_check.h"

#include "store/query.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

bool ConsultaAdmitida(const QString& sql)
{
    return Fallo([&] { ComprobarConsulta(sql); }).isEmpty();
}

bool EscrituraAdmitida(const QString& sql)
{
    return Fallo([&] { ComprobarEscritura(sql); }).isEmpty();
}

} // namespace

TEST(StatementCheck, AdmitsEveryQueryOfTheProgramsForms)
{
    EXPECT_TRUE(ConsultaAdmitida(u"SELECT MonedaDecimales FROM Opciones"_s));
    EXPECT_TRUE(
        ConsultaAdmitida(u"select * from Viviendas WHERE Tipo = 'P' AND NombreTasador = 'Ana; --'"_s));
    EXPECT_TRUE(ConsultaAdmitida(u"SELECT Tasacion, '' FROM Testigos WHERE Tipo = 'P' AND Tasacion <> -0"_s));
    EXPECT_TRUE(ConsultaAdmitida(
        u"SELECT Tipo FROM Testigos WHERE Tipo || '#' || Tasacion IN (SELECT  Tipo || '#' || Testigo FROM T)"_s));
    EXPECT_TRUE(ConsultaAdmitida(u"SELECT \"Baños\", [Otros2], `Uso` FROM Viviendas"_s));
}

TEST(StatementCheck, RefusesEveryOtherTextAsAQuery)
{
    for (const QString& sql : {u""_s,
                               u"   "_s,
                               u"INSERT INTO T VALUES (1)"_s,
                               u"WITH x AS (SELECT 1) SELECT * FROM x"_s,
                               u"WITH x AS (SELECT 1) INSERT INTO T SELECT * FROM x"_s,
                               u"PRAGMA user_version"_s,
                               u"EXPLAIN SELECT 1"_s,
                               u"VALUES (1)"_s,
                               u"ATTACH 'a' AS b"_s,
                               u"BEGIN"_s,
                               u"VACUUM"_s,
                               u"SELECT 1; SELECT 2"_s,
                               u"SELECT 1;"_s,
                               u"SELECT 1 -- nada"_s,
                               u"SELECT /* */ 1"_s,
                               u"SELECT 'abierta"_s,
                               u"SELECT \"abierta"_s,
                               u"SELECT (1"_s,
                               u"SELECT 1)"_s,
                               u"SELECT load_extension('a')"_s,
                               u"SELECT 1"_s + QChar(0),
                               u"(SELECT 1)"_s}) {
        EXPECT_FALSE(ConsultaAdmitida(sql)) << sql.toStdString();
    }
}

TEST(StatementCheck, AdmitsOneWriteAndRefusesEveryOtherText)
{
    EXPECT_TRUE(EscrituraAdmitida(u"INSERT INTO Testigos (Origen,Tipo,Tasacion) VALUES ('I','P',-12)"_s));
    EXPECT_TRUE(EscrituraAdmitida(u"UPDATE Testigos SET Ascensor = 'N'WHERE Tipo = 'C'"_s));
    EXPECT_TRUE(EscrituraAdmitida(u"DELETE FROM Informe"_s));
    for (const QString& sql :
         {u""_s, u"SELECT 1"_s, u"DROP TABLE Empresa"_s, u"CREATE TABLE a (b)"_s,
          u"REPLACE INTO T VALUES (1)"_s, u"INSERT OR REPLACE INTO T VALUES (1)"_s,
          u"ALTER TABLE T RENAME TO U"_s, u"REINDEX"_s, u"COMMIT"_s, u"DELETE FROM T; DELETE FROM U"_s,
          u"UPDATE T SET a = 1 -- x"_s, u"PRAGMA journal_mode = OFF"_s, u"UPDATE T SET a = 'x"_s,
          u"DELETE FROM T RETURNING *"_s}) {
        EXPECT_FALSE(EscrituraAdmitida(sql)) << sql.toStdString();
    }
}

TEST(StatementCheck, SplitsTheSaversPairAtTheLineBreak)
{
    const auto partes = ComprobarEscritura(
        u"DELETE FROM Problemas WHERE Nota = 'a\r\nINSERT INTO b'\r\nINSERT INTO problemas (Nota) VALUES ('x\r\ny')"_s);
    ASSERT_EQ(partes.size(), 2U);
    EXPECT_EQ(partes[0], "DELETE FROM Problemas WHERE Nota = 'a\r\nINSERT INTO b'\r\n");
    EXPECT_EQ(partes[1], "INSERT INTO problemas (Nota) VALUES ('x\r\ny')");
}

TEST(StatementCheck, RefusesAPairOfTwoTablesOrWithoutTheLineBreak)
{
    EXPECT_FALSE(EscrituraAdmitida(u"DELETE FROM A\r\nINSERT INTO B VALUES (1)"_s));
    EXPECT_FALSE(EscrituraAdmitida(u"DELETE FROM A INSERT INTO A VALUES (1)"_s));
    EXPECT_FALSE(EscrituraAdmitida(u"DELETE FROM A\r\nINSERT OR IGNORE INTO A VALUES (1)"_s));
    EXPECT_TRUE(EscrituraAdmitida(u"DELETE FROM A\r\nINSERT INTO [a] VALUES (1)"_s));
}

TEST(StatementCheck, OrderByTermsGetTheSpanishCollation)
{
    EXPECT_EQ(ComprobarConsulta(u"SELECT a FROM T ORDER BY a, b DESC, c"_s),
              "SELECT a FROM T ORDER BY a COLLATE ESPANOL, b COLLATE ESPANOL DESC, c COLLATE ESPANOL");
    EXPECT_EQ(ComprobarConsulta(u"SELECT a FROM T ORDER BY f(a, b) LIMIT 3, 4"_s),
              "SELECT a FROM T ORDER BY f(a, b) COLLATE ESPANOL LIMIT 3, 4");
    EXPECT_EQ(ComprobarConsulta(u"SELECT a FROM T ORDER BY a COLLATE NOCASE ASC, b"_s),
              "SELECT a FROM T ORDER BY a COLLATE NOCASE ASC, b COLLATE ESPANOL");
    EXPECT_EQ(ComprobarConsulta(u"SELECT (SELECT a FROM U ORDER BY a), ' ORDER BY x' FROM T"_s),
              "SELECT (SELECT a FROM U ORDER BY a), ' ORDER BY x' FROM T");
}

TEST(StatementCheck, OrderByOfBareNamesTellsThem)
{
    EXPECT_EQ(NombresDelOrden(u"SELECT a FROM T WHERE b = 'x' ORDER BY a, Baños"_s),
              (QStringList{u"a"_s, u"Baños"_s}));
    for (const QString& otro :
         {u"SELECT a FROM T"_s, u"SELECT a FROM T ORDER BY a DESC"_s,
          u"SELECT a FROM T ORDER BY a, b LIMIT 3"_s, u"SELECT a FROM T ORDER BY a COLLATE NOCASE"_s,
          u"SELECT a FROM T ORDER BY 1"_s, u"SELECT a FROM T ORDER BY f(a)"_s,
          u"SELECT a FROM T ORDER BY T.a"_s, u"SELECT (SELECT a FROM U ORDER BY a) FROM T"_s,
          u"SELECT a FROM T ORDER BY a + b"_s}) {
        EXPECT_EQ(NombresDelOrden(otro), QStringList()) << qPrintable(otro);
    }
}

} // namespace valmerix
