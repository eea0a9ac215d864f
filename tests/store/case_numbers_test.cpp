#include "store/case_saving_fixture.h"

using namespace Qt::StringLiterals;

namespace valmerix {

TEST_F(CaseSaving, TheFirstSaveDrawsTheNextNumberAndTheSecondOneOnlyRewrites)
{
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 42);
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores"_s), u"42"_s);
    EXPECT_EQ(almacen.Leer(u"SELECT * FROM Testigos WHERE Origen = 'I' AND Tasacion = -42"_s).RecordCount(),
              1);

    dialogos.respuestas = {true};
    piso.Escribir(u"BoxSit", u"Calle Menor, 4"_s);
    ASSERT_TRUE(Salvar());
    ASSERT_EQ(dialogos.preguntas.size(), 1U);
    EXPECT_EQ(dialogos.preguntas[0].texto,
              u"Ya existe un informe anterior de este tasador y con este número. ¿Desea sobreescribirlo?"_s);
    EXPECT_EQ(dialogos.preguntas[0].titulo, u"Salvar Datos"_s);
    EXPECT_EQ(dialogos.preguntas[0].icono, IconoMensaje::Pregunta);
    EXPECT_EQ(almacen.sql.filter(u"INSERT"_s), QStringList());
    EXPECT_EQ(almacen.sql.size(), 8);
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores"_s), u"42"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Situacion FROM Viviendas"_s), u"Calle Menor, 4"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Situacion FROM Testigos"_s), u"Calle Menor, 4"_s);
}

TEST_F(CaseSaving, WithoutAValuerNothingIsWritten)
{
    piso.Elegir({});
    EXPECT_FALSE(Salvar());
    ASSERT_EQ(dialogos.mensajes.size(), 1U);
    EXPECT_EQ(dialogos.mensajes[0].texto,
              u"No se puede guardar la tasación sin seleccionar un Tasador de la lista de Tasadores"_s);
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Salvar Datos"_s);
    EXPECT_EQ(dialogos.mensajes[0].icono, IconoMensaje::Informacion);
    EXPECT_EQ(almacen.sql, QStringList());
}

TEST_F(CaseSaving, AValuerWhoIsNotStoredGetsNoNumberAndNoMessage)
{
    piso.Elegir(u"Eva"_s);
    EXPECT_FALSE(Salvar());
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 0);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Viviendas"_s), u"0"_s);
}

TEST_F(CaseSaving, ChangingTheValuerOfAnOpenCaseNeverMovesIt)
{
    ASSERT_TRUE(Salvar());
    almacen.AltaDeTasador(u"Eva"_s, 3);
    piso.Elegir(u"Eva"_s);
    dialogos.respuestas = {true};
    EXPECT_FALSE(Salvar());
    EXPECT_EQ(almacen.sql.size(), 1);
    EXPECT_EQ(dialogos.mensajes.size(), 1U) << "that of the first save";
    EXPECT_EQ(almacen.Dato(u"SELECT NombreTasador FROM Viviendas"_s), u"Ana"_s);
}

TEST_F(CaseSaving, ACopyCountsAsNew)
{
    ASSERT_TRUE(Salvar());
    almacen.compartido.NumeroTasacionActual = 0;
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 43);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Viviendas"_s), u"2"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Testigos"_s), u"2"_s);
}

TEST_F(CaseSaving, TwoValuersMayHaveTheSameNumber)
{
    almacen.AltaDeTasador(u"Eva"_s, 41);
    ASSERT_TRUE(Salvar());
    FakeCasoAbierto otro(u"Piso"_s, {u"Eva"_s});
    Rellenar(otro);
    otro.Elegir(u"Eva"_s);
    almacen.compartido.NumeroTasacionActual = 0;
    ASSERT_TRUE(Salvar(otro));
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 42);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Viviendas WHERE NumeroTasacion = 42"_s), u"2"_s);
}

TEST_F(CaseSaving, ANumberDrawnForARowThatIsThereAlreadyIsSpentAndTheNextTryTakesTheOneBehindIt)
{
    almacen.Ejecutar(u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('Ana','P',42)"_s);
    EXPECT_TRUE(Fallo([this] { Salvar(); }).startsWith(u"Ya hay una fila con la misma clave ("_s));
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 0) << "the case has no number yet";
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores"_s), u"42"_s);
    EXPECT_TRUE(Salvar());
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 43);
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores"_s), u"43"_s);
}

TEST_F(CaseSaving, NumbersAreTheValuersAndRunOnThroughTheKinds)
{
    FakeCasoAbierto casa(u"Casa"_s, {u"Ana"_s});
    FakeCasoAbierto apto(u"Apto"_s, {u"Ana"_s});
    for (FakeCasoAbierto* caso : {&piso, &casa, &apto}) {
        Rellenar(*caso);
        almacen.compartido.NumeroTasacionActual = 0;
        ASSERT_TRUE(Salvar(*caso));
    }
    const auto columnas = [this](const QString& consulta) {
        const ConjuntoResultados filas = almacen.Leer(consulta);
        QStringList lineas;
        for (qint32 fila = 1; fila <= filas.RecordCount(); ++fila)
            lineas << filas.ValorRegistroGrid(fila);
        return lineas;
    };
    EXPECT_EQ(columnas(u"SELECT Tipo, NumeroTasacion FROM Viviendas ORDER BY NumeroTasacion"_s),
              (QStringList{u"P\t42"_s, u"C\t43"_s, u"A\t44"_s}));
    EXPECT_EQ(columnas(u"SELECT Origen, Tipo, Tasacion FROM Testigos ORDER BY Tasacion DESC"_s),
              (QStringList{u"I\tP\t-42"_s, u"I\tC\t-43"_s, u"I\tA\t-44"_s}));
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores"_s), u"44"_s);
}

} // namespace valmerix
