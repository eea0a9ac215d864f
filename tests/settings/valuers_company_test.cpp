#include "settings/valuers_company.h"

#include "support/fake_ports.h"
#include "support/test_database.h"

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class FichaTest : public testing::Test
{
protected:
    FichaTest()
        : base(entorno.compartido)
        , ficha(entorno.compartido, entorno.dialogos, entorno.reloj, entorno.sistema)
    {
    }

    void EscribirTasador(const QString& nombre, const QString& poblacion = u"Alcoi"_s)
    {
        ficha.campo(u"txtNombreTasador").setText(nombre);
        ficha.campo(u"txtPoblacionTasador").setText(poblacion);
    }
    ConjuntoResultados Tasadores() { return base.Leer(u"SELECT * FROM Tasadores ORDER BY Nombre"_s); }

    EntornoDePrueba entorno;
    BaseDePrueba base;
    Ficha ficha;
};

TEST_F(FichaTest, CaptionAndListHeadersAreTheSystems)
{
    ficha.Load();
    EXPECT_EQ(ficha.Caption(), u"Empresa y Tasadores"_s);
    const Rejilla& lista = ficha.rejilla(u"Flexi");
    EXPECT_EQ(lista.TextMatrix(0, 1), u"Nombre"_s);
    EXPECT_EQ(lista.TextMatrix(0, 2), u"Población"_s);
    EXPECT_EQ(lista.TextMatrix(0, 3), u"Provincia"_s);
    EXPECT_EQ(lista.ColWidth(0), 0);
    EXPECT_EQ(lista.ColWidth(1), 3250);
    EXPECT_EQ(lista.Rows(), 1);
}

TEST_F(FichaTest, FirstRunCannotBeLeftButByEndingTheProgram)
{
    ficha.Load();
    entorno.dialogos.respuestas = {true, false};
    EXPECT_FALSE(ficha.Cerrar());
    EXPECT_TRUE(ficha.abierta());
    EXPECT_TRUE(entorno.sistema.finales.empty());
    ASSERT_EQ(entorno.dialogos.preguntas.size(), 1u);
    EXPECT_EQ(entorno.dialogos.preguntas[0].texto,
              u"Para el correcto funcionamiento del programa es necesario introducir al menos el nombre de "
              u"una empresa y un tasador. Si no introduce dichos datos el programa se cerrará.\n"
              u"¿Desea introducirlos ahora?"_s);
    EXPECT_EQ(entorno.dialogos.preguntas[0].titulo, u"Aviso"_s);
    ficha.Cerrar();
    EXPECT_EQ(entorno.sistema.finales, std::vector<int>{0});
}

TEST_F(FichaTest, UpdateCreatesTheValuerWithCounterZeroAndEmptiesTheBlock)
{
    ficha.Load();
    EscribirTasador(u"Amparo Ibáñez Cerdà"_s);
    ficha.campo(u"txtNIFTasador").setText(u"21.345.678-K"_s);
    ficha.boton(u"bttActualizar").Pulsar();
    const ConjuntoResultados fila = Tasadores();
    ASSERT_EQ(fila.RecordCount(), 1);
    EXPECT_EQ(fila.Texto(u"Nombre"), u"Amparo Ibáñez Cerdà"_s);
    EXPECT_EQ(fila.Texto(u"NIF"), u"21.345.678-K"_s);
    EXPECT_EQ(fila.Entero(u"Contador"), 0);
    EXPECT_EQ(ficha.texto(u"txtNombreTasador"), QString());
    EXPECT_EQ(ficha.texto(u"txtNIFTasador"), QString());
    EXPECT_EQ(ficha.rejilla(u"Flexi").TextMatrix(1, 1), u"Amparo Ibáñez Cerdà"_s);
    EXPECT_EQ(ficha.rejilla(u"Flexi").TextMatrix(1, 2), u"Alcoi"_s);
}

TEST_F(FichaTest, UpdateOfAKnownValuerLeavesTheCounterAlone)
{
    base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',7)"_s);
    ficha.Load();
    EscribirTasador(u"Pau"_s, u"Dénia"_s);
    ficha.ActualizarRegistro();
    EXPECT_EQ(Tasadores().Entero(u"Contador"), 7);
    EXPECT_EQ(Tasadores().Texto(u"Poblacion"), u"Dénia"_s);
}

TEST_F(FichaTest, ThereIsNoRenameAChangedNameIsASecondValuer)
{
    base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',7)"_s);
    ficha.Load();
    ficha.rejilla(u"Flexi").DoblePulsar(1);
    EXPECT_EQ(ficha.texto(u"txtNombreTasador"), u"Pau"_s);
    ficha.campo(u"txtNombreTasador").setText(u"Pau Mir"_s);
    ficha.ActualizarRegistro();
    EXPECT_EQ(Tasadores().RecordCount(), 2);
    EXPECT_EQ(Tasadores().Entero(u"Contador", 1), 7);
    EXPECT_EQ(Tasadores().Entero(u"Contador", 2), 0);
}

TEST_F(FichaTest, DoubleClickOnTheHeaderLoadsNothing)
{
    ficha.Load();
    ficha.campo(u"txtNombreTasador").setText(u"A medias"_s);
    ficha.rejilla(u"Flexi").DoblePulsar(0);
    EXPECT_EQ(ficha.texto(u"txtNombreTasador"), u"A medias"_s);
}

TEST_F(FichaTest, DeletingAsksNothingAndTheLastOneRaisesTheClosingTest)
{
    base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',7)"_s);
    ficha.Load();
    ficha.campo(u"txtNombreEmpresa").setText(u"Tasaciones del Túria"_s);
    ficha.campo(u"txtNombreTasador").setText(u"Pau"_s);
    ficha.boton(u"bttEliminar").Pulsar();
    EXPECT_TRUE(entorno.dialogos.preguntas.empty());
    EXPECT_EQ(Tasadores().RecordCount(), 0);
    EXPECT_EQ(ficha.rejilla(u"Flexi").Rows(), 1);
    entorno.dialogos.respuestas = {true};
    EXPECT_FALSE(ficha.Cerrar());
}

TEST_F(FichaTest, EmptyNamesDoNothing)
{
    ficha.Load();
    ficha.ActualizarRegistro();
    ficha.EliminarRegistro();
    ficha.ActualizarEmpresa();
    EXPECT_EQ(Tasadores().RecordCount(), 0);
    EXPECT_EQ(base.Leer(u"SELECT * FROM Empresa"_s).Texto(u"Nombre"), QString());
}

TEST_F(FichaTest, OkAsksForTheValuerInHandAndStoresTheCompany)
{
    ficha.Load();
    ficha.campo(u"txtNombreEmpresa").setText(u"Tasaciones del Túria"_s);
    ficha.campo(u"txtFechaInscripcion").setText(u"03/05/1998"_s);
    EscribirTasador(u"Pau"_s);
    entorno.dialogos.respuestas = {true};
    ficha.boton(u"bttOK").Pulsar();
    EXPECT_EQ(entorno.dialogos.preguntas[0].texto, u"Se están editando los datos de un tasador.\n"
                                                   u"¿Desea actualizar la lista con dichos cambios?"_s);
    EXPECT_EQ(entorno.dialogos.preguntas[0].titulo, u"Aviso"_s);
    EXPECT_EQ(entorno.dialogos.preguntas[0].icono, IconoMensaje::Pregunta);
    EXPECT_FALSE(ficha.abierta());
    EXPECT_EQ(Tasadores().RecordCount(), 1);
    const ConjuntoResultados empresa = base.Leer(u"SELECT * FROM Empresa"_s);
    EXPECT_EQ(empresa.RecordCount(), 1);
    EXPECT_EQ(empresa.Texto(u"Nombre"), u"Tasaciones del Túria"_s);
    EXPECT_EQ(empresa.Texto(u"FechaInscripcion"), u"03/05/1998"_s);
}

TEST_F(FichaTest, OkWithTheAnswerNoLosesTheValuerInHand)
{
    base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',7)"_s);
    ficha.Load();
    ficha.campo(u"txtNombreEmpresa").setText(u"Túria"_s);
    EscribirTasador(u"Rosa"_s);
    entorno.dialogos.respuestas = {false};
    ficha.boton(u"bttOK").Pulsar();
    EXPECT_EQ(Tasadores().RecordCount(), 1);
    EXPECT_FALSE(ficha.abierta());
}

TEST_F(FichaTest, CancelWithACompanyNameTypedButNotSavedPassesTheClosingTest)
{
    base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',7)"_s);
    ficha.Load();
    ficha.campo(u"txtNombreEmpresa").setText(u"Solo tecleada"_s);
    ficha.boton(u"bttCancel").Pulsar();
    EXPECT_FALSE(ficha.abierta());
    EXPECT_TRUE(entorno.dialogos.preguntas.empty());
    EXPECT_EQ(base.Leer(u"SELECT * FROM Empresa"_s).Texto(u"Nombre"), QString());
}

TEST_F(FichaTest, CancelLosesTheValuerInHandAndAsksNothing)
{
    base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador,Poblacion) VALUES ('Pau',7,'Alcoi')"_s);
    ficha.Load();
    ficha.campo(u"txtNombreEmpresa").setText(u"Túria"_s);
    for (const QString& nombre : {u"Rosa"_s, u"Pau"_s}) {
        EscribirTasador(nombre, u"Dénia"_s);
        ficha.Enfocar(u"txtNombreTasador");
    }
    QStringList textos;
    entorno.compartido.alEjecutarSQL = [&](QStringView, QStringView sql) { textos << sql.toString(); };
    ficha.boton(u"bttCancel").Pulsar();
    EXPECT_FALSE(ficha.abierta());
    EXPECT_TRUE(entorno.dialogos.preguntas.empty());
    EXPECT_EQ(textos, QStringList());
    ASSERT_EQ(Tasadores().RecordCount(), 1);
    EXPECT_EQ(Tasadores().Texto(u"Poblacion"), u"Alcoi"_s);
}

TEST_F(FichaTest, AChangeOfCompanyNameReplacesTheOneRow)
{
    ficha.Load();
    for (const auto& nombre : {u"Primera"_s, u"Segunda"_s}) {
        ficha.campo(u"txtNombreEmpresa").setText(nombre);
        ficha.campo(u"txtPoblacionEmpresa").setText(u"de "_s + nombre);
        ficha.ActualizarEmpresa();
    }
    const ConjuntoResultados empresa = base.Leer(u"SELECT * FROM Empresa"_s);
    ASSERT_EQ(empresa.RecordCount(), 1);
    EXPECT_EQ(empresa.Texto(u"Nombre"), u"Segunda"_s);
    EXPECT_EQ(empresa.Texto(u"Poblacion"), u"de Segunda"_s);
}

TEST_F(FichaTest, AnInscriptionDateThatIsNoneShowsAnEmptyMask)
{
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Túria', FechaInscripcion = '  /  /    '"_s);
    ficha.Load();
    EXPECT_EQ(ficha.texto(u"txtNombreEmpresa"), u"Túria"_s);
    EXPECT_EQ(ficha.texto(u"txtFechaInscripcion"), u"  /  /    "_s);
    base.Ejecutar(u"UPDATE Empresa SET FechaInscripcion = '3/5/1998'"_s);
    ficha.Load();
    EXPECT_EQ(ficha.texto(u"txtFechaInscripcion"), u"03/05/1998"_s);
}

TEST_F(FichaTest, TheCalendarWritesTheChosenDate)
{
    ficha.Load();
    entorno.dialogos.fechas = {QDate(2020, 2, 29)};
    ficha.boton(u"BttFechaInscripcion").Pulsar();
    EXPECT_EQ(entorno.dialogos.calendarios, std::vector<QDate>{entorno.reloj.fecha});
    EXPECT_EQ(ficha.texto(u"txtFechaInscripcion"), u"29/02/2020"_s);
    entorno.dialogos.fechas = {std::nullopt};
    ficha.boton(u"BttFechaInscripcion").Pulsar();
    EXPECT_EQ(ficha.texto(u"txtFechaInscripcion"), u"29/02/2020"_s);
}

TEST_F(FichaTest, TheStatementsAreTheSystemsOwn)
{
    ficha.Load();
    ficha.campo(u"txtNombreEmpresa").setText(u"T"_s);
    QStringList textos;
    entorno.compartido.alEjecutarSQL = [&](QStringView, QStringView sql) { textos << sql.toString(); };
    ficha.ActualizarEmpresa();
    EXPECT_EQ(textos,
              (QStringList{
                  u"SELECT * FROM Empresa"_s,
                  u"DELETE FROM Empresa"_s,
                  u"INSERT INTO Empresa (Nombre) VALUES ('T')"_s,
                  u"UPDATE Empresa SET Domicilio = '', Poblacion = '', CodigoPostal = '', Provincia = "
                  u"'', NIF = '', NumeroInscripcion = '', FechaInscripcion = '  /  /    ' WHERE "
                  u"Nombre = 'T'"_s,
              }));
    textos.clear();
    EscribirTasador(u"Pau"_s);
    ficha.ActualizarRegistro();
    EXPECT_EQ(
        textos,
        (QStringList{
            u"SELECT Nombre FROM Tasadores WHERE Nombre = 'Pau'"_s,
            u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',0)"_s,
            u"UPDATE Tasadores SET Domicilio = '', Poblacion = 'Alcoi', CodigoPostal = '', Provincia = '', "
            u"NIF = '', Titulacion = '', ColegioOficial = '', ColegiadoNumero = '' WHERE Nombre = 'Pau'"_s,
            u"SELECT '' As Vacio, Nombre, Poblacion, Provincia FROM Tasadores ORDER BY Nombre"_s,
        }));
    textos.clear();
    ficha.rejilla(u"Flexi").DoblePulsar(1);
    EXPECT_EQ(textos,
              QStringList{u"SELECT Nombre, Domicilio, Poblacion, CodigoPostal, Provincia, NIF, Titulacion, "
                          u"ColegioOficial, ColegiadoNumero FROM Tasadores WHERE Nombre = 'Pau'"_s});
    textos.clear();
    ficha.EliminarRegistro();
    EXPECT_EQ(textos,
              (QStringList{
                  u"DELETE FROM Tasadores WHERE Nombre = 'Pau'"_s,
                  u"SELECT '' As Vacio, Nombre, Poblacion, Provincia FROM Tasadores ORDER BY Nombre"_s,
              }));
    textos.clear();
    ficha.Load();
    EXPECT_EQ(textos,
              (QStringList{
                  u"SELECT * FROM Empresa"_s,
                  u"SELECT '' As Vacio, Nombre, Poblacion, Provincia FROM Tasadores ORDER BY Nombre"_s,
              }));
}

} // namespace
} // namespace valmerix
