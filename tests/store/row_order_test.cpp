#include "store/snapshot.h"

#include "support/qt_printers.h"
#include "support/store_fixture.h"

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

class RowOrder : public testing::Test
{
protected:
    QStringList Filas(const QString& sql) const
    {
        const ConjuntoResultados filas = almacen.Leer(sql);
        QStringList lineas;
        for (qint32 i = 1; i <= filas.RecordCount(); ++i)
            lineas << filas.ValorRegistroGrid(i);
        return lineas;
    }
    /// `seleccion` ordered by the columns, against the engine's own sorting of it.
    void ComprobarContraElMotor(const QString& seleccion, const QStringList& columnas) const
    {
        const QString orden = u" ORDER BY "_s;
        const QStringList delMotor =
            Filas(seleccion + orden + columnas.join(u" COLLATE ESPANOL, "_s) + u" COLLATE ESPANOL"_s);
        EXPECT_EQ(Filas(seleccion + orden + columnas.join(u", "_s)), delMotor) << qPrintable(seleccion);
        EXPECT_GT(delMotor.size(), 1);
    }
    void PonerCaso(const QString& tasador, int numero) const
    {
        almacen.Ejecutar(u"INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion, Situacion) "
                         u"VALUES ('%1', 'P', %2, 'S %2')"_s.arg(tasador)
                             .arg(numero));
    }
    void PonerTestigo(const QString& tasacion, const QString& situacion) const
    {
        almacen.Ejecutar(u"INSERT INTO Testigos (Origen, Tipo, Tasacion, Situacion) "
                         u"VALUES ('E', 'P', %1, '%2')"_s.arg(tasacion, situacion));
    }

    AlmacenDePrueba almacen;
};

} // namespace

TEST_F(RowOrder, ValuersStandInSpanishOrderWhateverTheIndexGives)
{
    for (const QString& tasador : {u"Zoe"_s, u"Álvaro"_s, u"Nuño"_s, u"Núñez"_s, u"Nuno"_s, u"Óscar"_s})
        PonerCaso(tasador, 2);
    PonerCaso(u"Zoe"_s, 10);
    PonerCaso(u"Álvaro"_s, 1);
    const ConjuntoResultados filas = almacen.Leer(u"SELECT NombreTasador, NumeroTasacion, Tipo, Situacion "
                                                  u"FROM Viviendas WHERE Tipo = 'P' "
                                                  u"ORDER BY NombreTasador, NumeroTasacion"_s);
    QStringList nombres;
    for (qint32 i = 1; i <= filas.RecordCount(); ++i) {
        EXPECT_EQ(filas.Texto(u"Situacion", i), u"S "_s + filas.Texto(u"NumeroTasacion", i));
        nombres << filas.Texto(u"NombreTasador", i) + u' ' + filas.Texto(u"NumeroTasacion", i);
    }
    EXPECT_EQ(nombres, (QStringList{u"Álvaro 1"_s, u"Álvaro 2"_s, u"Nuno 2"_s, u"Núñez 2"_s, u"Nuño 2"_s,
                                    u"Óscar 2"_s, u"Zoe 2"_s, u"Zoe 10"_s}));
    EXPECT_EQ(filas.Utf8(0, 1), QUtf8StringView("Álvaro"));
    EXPECT_EQ(filas.Entero(1, 8), 10);
    EXPECT_EQ(filas.Utf8Bytes(0), 42);
}

TEST_F(RowOrder, NamesThatDifferOnlyInCaseAreSortedByNameBeforeNumber)
{
    const QStringList tasadores = {u"ana"_s, u"Ana"_s, u"ANA"_s, u"Álvaro"_s, u"zoe"_s, u"ñu"_s};
    for (int i = 0; i < 60; ++i)
        PonerCaso(tasadores[i * 7 % 6], i);
    ComprobarContraElMotor(
        u"SELECT NombreTasador, NumeroTasacion, Situacion FROM Viviendas WHERE Tipo = 'P'"_s,
        {u"NombreTasador"_s, u"NumeroTasacion"_s});
}

TEST_F(RowOrder, NumbersTextsAndNothingInOneColumnStandAsByTheEngine)
{
    int i = 0;
    for (const QString& tasacion : {u"'Zafra'"_s,
                                    u"'Ávila'"_s,
                                    u"9007199254740993"_s,
                                    u"9007199254740992"_s,
                                    u"9007199254740992.5e1"_s,
                                    u"-1"_s,
                                    u"-0.5"_s,
                                    u"0"_s,
                                    u"0.5"_s,
                                    u"1"_s,
                                    u"NULL"_s,
                                    u"1e300"_s,
                                    u"-1e300"_s,
                                    u"'ñ'"_s,
                                    u"2.5"_s,
                                    u"9223372036854775807"_s,
                                    u"NULL"_s,
                                    u"''"_s,
                                    u"'avila'"_s,
                                    u"2"_s})
        PonerTestigo(tasacion, u"S %1"_s.arg(++i));
    const QString todos = u"SELECT Tipo, Tasacion, Situacion FROM Testigos WHERE Tipo = 'P'"_s;
    ComprobarContraElMotor(todos, {u"Tasacion"_s});
    ComprobarContraElMotor(todos, {u"Tipo"_s, u"Tasacion"_s});
    ComprobarContraElMotor(u"SELECT Tasacion, Situacion FROM Testigos"_s, {u"tasacion"_s});
}

TEST_F(RowOrder, AnAliasTakesANameFromItsColumn)
{
    PonerTestigo(u"1"_s, u"Zafra"_s);
    PonerTestigo(u"2"_s, u"Ávila"_s);
    PonerTestigo(u"3"_s, u"nube"_s);
    ComprobarContraElMotor(u"SELECT Situacion AS Tasacion, Tasacion AS n FROM Testigos WHERE Tipo = 'P'"_s,
                           {u"Tasacion"_s});
    ComprobarContraElMotor(
        u"SELECT Tasacion, Situacion AS Tasacion, Situacion FROM Testigos WHERE Tipo = 'P'"_s,
        {u"Tasacion"_s});
    ComprobarContraElMotor(u"SELECT Situacion FROM Testigos WHERE Tipo = 'P'"_s, {u"Tasacion"_s});
    ComprobarContraElMotor(u"SELECT DISTINCT Tipo, Tasacion FROM Testigos"_s, {u"Tipo"_s, u"Tasacion"_s});
}

TEST_F(RowOrder, EqualRowsStandAsTheEngineLeavesThem)
{
    for (int i = 0; i < 40; ++i)
        PonerTestigo(QString::number(i), i % 2 == 0 ? u"Ávila %1"_s.arg(i * 7 % 10) : u"Zafra"_s);
    almacen.Ejecutar(u"UPDATE Testigos SET Fecha = fecha('07/01/2026')"_s);
    ComprobarContraElMotor(u"SELECT Tipo, Fecha, Tasacion FROM Testigos WHERE Tipo = 'P'"_s, {u"Fecha"_s});
    ComprobarContraElMotor(u"SELECT Tipo, Fecha, Situacion FROM Testigos WHERE Tipo = 'P'"_s,
                           {u"Tipo"_s, u"Fecha"_s});
}

} // namespace valmerix
