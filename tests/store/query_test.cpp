#include "store/query.h"

#include "support/qt_printers.h"
#include "support/store_fixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace valmerix {

using AccesoDatos::clsConsulta;

namespace {

const QString kEmpresa = u"Empresa"_s;

class Query : public testing::Test
{
protected:
    AlmacenDePrueba almacen;

    void PonerTestigos(const QStringList& situaciones)
    {
        clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
        int i = 0;
        for (const QString& situacion : situaciones) {
            consulta.EjecutarSentencia(
                kEmpresa,
                u"INSERT INTO Testigos (Origen,Tipo,Tasacion,Situacion) VALUES ('E','P',%1,'%2')"_s.arg(++i)
                    .arg(situacion));
        }
        consulta.Confirmar();
    }
    QStringList Situaciones(const QString& cola)
    {
        const ConjuntoResultados filas = almacen.Leer(u"SELECT Situacion FROM Testigos "_s + cola);
        QStringList lista;
        for (qint32 i = 1; i <= filas.RecordCount(); ++i)
            lista << filas.Texto(u"Situacion", i);
        return lista;
    }
};

} // namespace

TEST_F(Query, ASnapshotOutlivesItsConnection)
{
    almacen.AltaDeTasador(u"Ana Núñez"_s, 7);
    ConjuntoResultados filas;
    {
        clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
        filas = consulta.Instantanea2(kEmpresa, u"SELECT * FROM Tasadores"_s);
    }
    EXPECT_EQ(filas.RecordCount(), 1);
    EXPECT_EQ(filas.Valor(u"nombre").toString(), u"Ana Núñez"_s);
    EXPECT_EQ(filas.Valor(u"Contador", 1).toLongLong(), 7);
}

TEST_F(Query, ANullNumberCanBeHeldWithoutError)
{
    PonerTestigos({u"Calle"_s});
    const ConjuntoResultados filas = almacen.Leer(u"SELECT * FROM Testigos"_s);
    EXPECT_FALSE(filas.Valor(u"ValorFinal").isValid());
    EXPECT_EQ(filas.Numero(u"ValorFinal"), 0);
    EXPECT_EQ(filas.Texto(u"ValorFinal"), u""_s);
    EXPECT_EQ(filas.Fecha(u"Fecha"), QDate());
}

TEST_F(Query, DateFragmentsWorkWithAnySeparator)
{
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    int i = 0;
    for (const QString& fecha : {u"07/11/2026"_s, u"07-11-2026"_s, u"7.11.2026"_s, u"07 11 2026"_s}) {
        consulta.EjecutarSentencia(
            kEmpresa, u"INSERT INTO Testigos (Origen,Tipo,Tasacion,Fecha) VALUES ('E','P',%1,"_s.arg(++i) +
                          consulta.sInicioFecha() + fecha + consulta.sFinalFecha() + u")"_s);
    }
    const ConjuntoResultados filas = consulta.Instantanea2(
        kEmpresa, u"SELECT Fecha FROM Testigos WHERE Fecha = "_s + consulta.sInicioFecha() + u"07/11/2026"_s +
                      consulta.sFinalFecha());
    EXPECT_EQ(filas.RecordCount(), 4);
    EXPECT_EQ(filas.Valor(u"Fecha", 3).toDate(), QDate(2026, 11, 7));
    consulta.Confirmar();
}

TEST_F(Query, DatesAreStoredAsIsoTextThatOtherToolsRead)
{
    almacen.Ejecutar(
        u"INSERT INTO Testigos (Origen,Tipo,Tasacion,Fecha) VALUES ('E','P',1,fecha('20/11/2026'))"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Fecha || '' FROM Testigos"_s), u"2026-11-20"_s);
}

TEST_F(Query, AnImpossibleDateAndAnUnfilledMaskAreErrorsInSpanish)
{
    for (const QString& fecha : {u"31/02/2026"_s, u"  /  /    "_s, u""_s, u"3/"_s}) {
        const QString mensaje = Fallo([&] { almacen.Leer(u"SELECT fecha('%1')"_s.arg(fecha)); });
        EXPECT_EQ(mensaje, u"La fecha «%1» no existe o está sin rellenar."_s.arg(fecha));
    }
}

TEST_F(Query, LikeIsBlindToCaseAndAccentsButKnowsTheEñe)
{
    PonerTestigos({u"Calle Cádiz, 3"_s, u"PLAZA DE CADIZ"_s, u"Peña Alta"_s, u"Pena baja"_s});
    EXPECT_EQ(Situaciones(u"WHERE Situacion LIKE '%cadíz%' ORDER BY Tasacion"_s),
              (QStringList{u"Calle Cádiz, 3"_s, u"PLAZA DE CADIZ"_s}));
    EXPECT_EQ(Situaciones(u"WHERE Situacion LIKE '%PEÑA%'"_s), QStringList{u"Peña Alta"_s});
    EXPECT_EQ(Situaciones(u"WHERE Situacion LIKE '%pena%'"_s), QStringList{u"Pena baja"_s});
    EXPECT_EQ(Situaciones(u"WHERE Situacion LIKE 'pe_a%a' ORDER BY Tasacion"_s),
              (QStringList{u"Peña Alta"_s, u"Pena baja"_s}));
    EXPECT_EQ(Situaciones(u"WHERE Situacion NOT LIKE '%cadiz%' AND Situacion LIKE '%baja'"_s),
              QStringList{u"Pena baja"_s});
}

TEST_F(Query, LikeTakesAnEscapeCharacter)
{
    PonerTestigos({u"100% nuevo"_s, u"1000 nuevos"_s, u"a_b"_s, u"acb"_s});
    EXPECT_EQ(Situaciones(u"WHERE Situacion LIKE '100!%%' ESCAPE '!'"_s), QStringList{u"100% nuevo"_s});
    EXPECT_EQ(Situaciones(u"WHERE Situacion LIKE 'A¡_B' ESCAPE '¡'"_s), QStringList{u"a_b"_s});
    EXPECT_EQ(almacen.Dato(u"SELECT NULL LIKE 'a'"_s), u""_s);
}

TEST_F(Query, EqualsIsBlindToCase)
{
    almacen.AltaDeTasador(u"Ana"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores WHERE Nombre = 'ANA'"_s), u"0"_s);
}

TEST_F(Query, OrderByIsSpanish)
{
    PonerTestigos({u"Zafra"_s, u"ñandú"_s, u"Ávila"_s, u"oso"_s, u"nube"_s, u"avión"_s});
    EXPECT_EQ(Situaciones(u"ORDER BY Situacion"_s),
              (QStringList{u"Ávila"_s, u"avión"_s, u"nube"_s, u"ñandú"_s, u"oso"_s, u"Zafra"_s}));
    EXPECT_EQ(Situaciones(u"ORDER BY Situacion DESC"_s).first(), u"Zafra"_s);
    EXPECT_EQ(
        almacen.Leer(u"SELECT DISTINCT Situacion FROM Testigos ORDER BY Situacion"_s).Texto(u"Situacion"),
        u"Ávila"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Tasacion FROM Testigos ORDER BY Tasacion DESC"_s), u"6"_s);
}

TEST_F(Query, DisplayFunctionsShowDatesAndMoneyTheSpanishWay)
{
    almacen.Ejecutar(u"INSERT INTO Testigos (Origen,Tipo,Tasacion,Fecha,ValorFinal) VALUES "
                     u"('E','P',1,fecha('7/1/2026'),1234567.5),('E','P',2,NULL,NULL)"_s);
    const clsConsulta consulta;
    const ConjuntoResultados filas =
        almacen.Leer(u"SELECT "_s + consulta.FormatoFechaSelect(u"Fecha"_s, u"FechaF"_s) + u", "_s +
                     consulta.FormatoMonedaSelect(u"ValorFinal"_s, 2, u"ValorFinalF"_s) +
                     u" FROM Testigos ORDER BY Tasacion"_s);
    EXPECT_EQ(filas.ValorRegistroGrid(1), u"07/01/2026\t1.234.567,50"_s);
    EXPECT_EQ(filas.ValorRegistroGrid(2), u"\t"_s);
}

TEST_F(Query, WhatIsNotConfirmedByAnyoneIsCommittedAtTheEndOfTheObject)
{
    try {
        clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
        consulta.EjecutarSentencia(kEmpresa, u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Ana',0)"_s);
        consulta.EjecutarSentencia(kEmpresa,
                                   u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('O'Hara',0)"_s);
        FAIL() << "the quote breaks the statement";
    } catch (const ErrorAlmacen& fallo) {
        EXPECT_TRUE(fallo.sql().contains(u"O'Hara"_s));
    }
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Tasadores"_s), u"1"_s);
}

TEST_F(Query, TheFailingStatementItselfLeavesNothing)
{
    almacen.AltaDeTasador(u"Ana"_s);
    const QString mensaje = Fallo(
        [&] { almacen.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Eva',0),('ANA',0)"_s); });
    EXPECT_TRUE(mensaje.startsWith(u"Ya hay una fila con la misma clave"_s)) << mensaje.toStdString();
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Tasadores"_s), u"1"_s);
}

TEST_F(Query, ThePairOfStatementsRunsAndABrokenOneRunsNeither)
{
    const QString pareja = u"DELETE FROM Informe \r\nINSERT INTO Informe VALUES(' ','%1')"_s;
    almacen.Ejecutar(pareja.arg(u"uno"_s));
    almacen.Ejecutar(pareja.arg(u"dos"_s));
    EXPECT_EQ(almacen.Dato(u"SELECT GROUP_CONCAT(TextoLinea) FROM Informe"_s), u"dos"_s);
    EXPECT_NE(Fallo([&] { almacen.Ejecutar(u"DELETE FROM Informe \r\nINSERT INTO Informe VALUES(' ')"_s); }),
              u""_s);
    EXPECT_EQ(almacen.Dato(u"SELECT GROUP_CONCAT(TextoLinea) FROM Informe"_s), u"dos"_s);
}

TEST_F(Query, RefusedTextsRunNothingAndAreNotToldToTheObserver)
{
    clsConsulta consulta(almacen.compartido);
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    EXPECT_THROW(consulta.EjecutarSentencia(kEmpresa, u"DELETE FROM Opciones; DELETE FROM Empresa"_s),
                 ErrorAlmacen);
    EXPECT_THROW(consulta.EjecutarSentencia(kEmpresa, u"SELECT 1"_s), ErrorAlmacen);
    EXPECT_THROW(consulta.Instantanea2(kEmpresa, u"DELETE FROM Opciones"_s), ErrorAlmacen);
    EXPECT_THROW(consulta.Instantanea2(kEmpresa, u"SELECT ?"_s), ErrorAlmacen);
    EXPECT_EQ(almacen.sql, QStringList());
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Opciones"_s), u"1"_s);
}

TEST_F(Query, TheObserverHearsEachTextAsItWasComposed)
{
    clsConsulta consulta(almacen.compartido);
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    consulta.Instantanea2(kEmpresa, u"SELECT Nombre FROM Tasadores ORDER BY Nombre"_s);
    consulta.EjecutarSentencia(kEmpresa, u"DELETE FROM Informe"_s);
    consulta.Confirmar();
    EXPECT_EQ(almacen.sql,
              (QStringList{u"SELECT Nombre FROM Tasadores ORDER BY Nombre"_s, u"DELETE FROM Informe"_s}));
}

TEST_F(Query, TheTwoDatabasesOfOneObjectAreToldApartByName)
{
    const QString fichero = almacen.ruta(u"Testigos.max"_s);
    InstalarPlantillaTestigos(fichero);
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    consulta.AbrirBaseDatosEjercicio(fichero);
    consulta.EjecutarSentencia(u"Ejercicio"_s,
                               u"INSERT INTO Testigos (Origen,Tipo,Tasacion) VALUES ('E','P',1)"_s);
    EXPECT_EQ(consulta.Instantanea2(u"Ejercicio"_s, u"SELECT * FROM Testigos"_s).RecordCount(), 1);
    EXPECT_EQ(consulta.Instantanea2(kEmpresa, u"SELECT * FROM Testigos"_s).RecordCount(), 0);
    EXPECT_THROW(consulta.Instantanea2(u"Otra"_s, u"SELECT 1"_s), ErrorAlmacen);
    consulta.Confirmar();
    clsConsulta cerrada;
    EXPECT_THROW(cerrada.Instantanea2(kEmpresa, u"SELECT 1"_s), ErrorAlmacen);
}

TEST_F(Query, UnknownFieldsAndRowsAreErrors)
{
    const ConjuntoResultados filas = almacen.Leer(u"SELECT * FROM Tasadores"_s);
    EXPECT_EQ(filas.RecordCount(), 0);
    EXPECT_THROW(filas.Valor(u"Nombre"), ErrorAlmacen);
    const ConjuntoResultados opciones = almacen.Leer(u"SELECT * FROM Opciones"_s);
    EXPECT_THROW(opciones.Valor(u"Nada"), ErrorAlmacen);
    EXPECT_THROW(opciones.Valor(u"Cabecera", 0), ErrorAlmacen);
    EXPECT_THROW(opciones.Valor(u"Cabecera", 2), ErrorAlmacen);
}

} // namespace valmerix
