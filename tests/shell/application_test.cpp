#include "shell/application_fixture.h"

#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

TEST_F(AplicacionTest, ANewFlatShowsBarAndFormAndClosesTheStart)
{
    Arrancar();
    aplicacion->inicio()->boton(u"SSCommand2(0)").Pulsar();
    // The form's load shows its toolbar, as the tag of its button says at the start.
    pantalla.mostradas.removeAll(u"Form2"_s);
    EXPECT_EQ(pantalla.mostradas, (QStringList{u"Form1"_s, u"Minimizado"_s, u"Piso"_s}));
    EXPECT_EQ(aplicacion->inicio(), nullptr);
    EXPECT_EQ(aplicacion->barra()->Caption(), u"Valmerix - Pisos"_s);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
    EXPECT_EQ(sistema.punteros.back(), false);
}

TEST_F(AplicacionTest, TheFirstSaveDrawsTheNextNumberAndTheSecondAsks)
{
    Arrancar();
    UnPisoGuardado();
    ASSERT_EQ(dialogos.mensajes.size(), 1u);
    EXPECT_EQ(dialogos.mensajes[0].texto, u"Informe guardado con éxito"_s);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 5);
    EXPECT_EQ(Leer(u"SELECT Contador FROM Tasadores"_s).Entero(u"Contador"), 5);
    dialogos.respuestas = {false};
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(dialogos.preguntas.size(), 1u);
    EXPECT_EQ(Leer(u"SELECT * FROM Viviendas"_s).RecordCount(), 1);
}

TEST_F(AplicacionTest, AStoredCaseOpensByDoubleClickWithItsFigures)
{
    Arrancar();
    UnPisoGuardado();
    const QString total = forma().texto(u"BoxTotal");
    EXPECT_FALSE(total.isEmpty());
    aplicacion->Reiniciar();
    aplicacion->inicio()->como<Arbol>(u"Arbol").DoblePulsar(u"Rosa Peña#5#P"_s);
    ASSERT_NE(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(forma().texto(u"BoxTotal"), total);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 5);
    EXPECT_EQ(aplicacion->inicio(), nullptr);
}

TEST_F(AplicacionTest, ACopySavedGetsANewNumberAndLeavesTheSourceUntouched)
{
    Arrancar();
    UnPisoGuardado();
    aplicacion->Reiniciar();
    const QString fuente = u"SELECT * FROM Viviendas WHERE NumeroTasacion = 5"_s;
    const QString espejo = u"SELECT * FROM Testigos WHERE Tasacion = -5"_s;
    const QString filaAntes = Leer(fuente).ValorRegistroGrid(1);
    const QString espejoAntes = Leer(espejo).ValorRegistroGrid(1);
    auto& arbol = aplicacion->inicio()->como<Arbol>(u"Arbol");
    arbol.Seleccionar(u"Rosa Peña#5#P"_s);
    aplicacion->inicio()->boton(u"cmdCopiar").Pulsar();
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
    Escribir(u"BoxSit", u"Calle Menor, 6"_s);
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 6);
    EXPECT_EQ(Leer(fuente).ValorRegistroGrid(1), filaAntes);
    EXPECT_EQ(Leer(espejo).ValorRegistroGrid(1), espejoAntes);
    const auto filas = Leer(u"SELECT NumeroTasacion, Situacion FROM Viviendas ORDER BY NumeroTasacion"_s);
    ASSERT_EQ(filas.RecordCount(), 2);
    EXPECT_EQ(filas.Texto(u"Situacion", 1), u"Calle Mayor, 5"_s);
    EXPECT_EQ(filas.Texto(u"Situacion", 2), u"Calle Menor, 6"_s);
}

TEST_F(AplicacionTest, ADoubleClickOnAFolderReadsNothingAndChangesNothing)
{
    Arrancar();
    QStringList textos;
    aplicacion->compartido().alEjecutarSQL = [&](const QString&, const QString& sql) { textos << sql; };
    aplicacion->inicio()->como<Arbol>(u"Arbol").DoblePulsar(u"P"_s);
    EXPECT_EQ(textos, QStringList()) << "the valuers' record would read the company";
    EXPECT_NE(aplicacion->inicio(), nullptr);
    EXPECT_EQ(aplicacion->FormularioActual(), nullptr);
    aplicacion->inicio()->boton(u"cmdCopiar").Pulsar();
    EXPECT_NE(aplicacion->inicio(), nullptr);
}

TEST_F(AplicacionTest, OpeningWithNothingSelectedFails)
{
    Arrancar();
    EXPECT_THROW(aplicacion->AbrirCaso(QString()), std::runtime_error);
    EXPECT_NE(aplicacion->inicio(), nullptr);
}

// Such a key comes from a valuer's name with a "#" in it.
TEST_F(AplicacionTest, AnUnknownLetterInAKeyFailsInWordsAndNoLoaderRuns)
{
    Arrancar();
    ConTasador();
    QStringList textos;
    aplicacion->compartido().alEjecutarSQL = [&](const QString&, const QString& sql) { textos << sql; };
    try {
        aplicacion->AbrirCaso(u"Rosa Peña#1#X"_s);
        FAIL();
    } catch (const std::runtime_error& fallo) {
        EXPECT_STREQ(fallo.what(), "Esta versión no abre tasaciones del tipo «X».");
    }
    for (const QString& sql : textos)
        EXPECT_FALSE(sql.contains(u"NumeroTasacion")) << qPrintable(sql);
    EXPECT_NE(aplicacion->inicio(), nullptr);
    EXPECT_EQ(aplicacion->FormularioActual(), nullptr);
}

TEST_F(AplicacionTest, ACaseThatIsGoneLeavesTheStartWindowAndNoHalfLoadedCase)
{
    Arrancar();
    ConTasador();
    EXPECT_THROW(aplicacion->AbrirCaso(u"Rosa Peña#99#P"_s), ErrorAlmacen);
    EXPECT_NE(aplicacion->inicio(), nullptr);
    EXPECT_EQ(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(aplicacion->paleta(), nullptr) << "its toolbar would stand beside the start window";
    EXPECT_FALSE(aplicacion->compartido().PaletaAbierta);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
}

TEST_F(AplicacionTest, ANewCaseThatFailsToStartLeavesTheStartWindowAlone)
{
    Arrancar();
    // The valuers' record is there already; it is the window that finds no database.
    EXPECT_THROW(aplicacion->AbrirCaso(u"Rosa Peña#99#P"_s), ErrorAlmacen);
    ASSERT_TRUE(QFile::rename(ruta(), ruta() + u".aparte"_s));
    EXPECT_THROW(aplicacion->NuevoCaso(0), ErrorAlmacen);
    EXPECT_NE(aplicacion->inicio(), nullptr);
    EXPECT_EQ(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(aplicacion->paleta(), nullptr);
}

TEST_F(AplicacionTest, ExitFromTheFormEndsAtOnceAndLeavesUnsavedDataUnsaved)
{
    Arrancar();
    UnPisoGuardado();
    Escribir(u"BoxSit", u"Sin guardar"_s);
    pantalla.guion[u"SALIDA"_s] = [](Ventana& v) { v.boton(u"SSCommand2").Pulsar(); };
    forma().boton(u"SSCommand1").Pulsar();
    EXPECT_EQ(sistema.finales, std::vector<int>{0});
    EXPECT_TRUE(dialogos.preguntas.empty());
    EXPECT_EQ(Leer(u"SELECT Situacion FROM Viviendas"_s).Texto(u"Situacion"), u"Calle Mayor, 5"_s);
}

// The toolbar takes no focus from the field in hand, so its order has to end the field's turn.
TEST_F(AplicacionTest, AnOrderOfTheToolbarFindsTheFieldInHandWorkedOut)
{
    Arrancar();
    UnPisoGuardado();
    forma().Enfocar(u"BoxConst");
    forma().campo(u"BoxConst").Teclear(u"200"_s);
    dialogos.respuestas = {true};
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    const auto fila = Leer(u"SELECT SupConst, ValorFinal FROM Viviendas"_s);
    EXPECT_EQ(fila.Numero(u"SupConst"), 200);
    EXPECT_EQ(fila.Numero(u"ValorFinal"), 200 * 600 * 1.3);
    EXPECT_EQ(forma().conFoco(), &forma().control(u"BoxConst"));
    EXPECT_EQ(forma().texto(u"BoxConst"), u"200"_s);
    EXPECT_EQ(forma().campo(u"BoxConst").SelLength(), 3) << "and she goes on in it";
}

TEST_F(AplicacionTest, AHalfTypedDateBecomesTodayBeforeTheCaseIsStored)
{
    Arrancar();
    ConTasador();
    aplicacion->NuevoCaso(0);
    forma().lista(u"cboNombreTasador").Elegir(0);
    forma().Enfocar(u"BoxFecha");
    forma().campo(u"BoxFecha").setText(u"31/  /    "_s);
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(Leer(u"SELECT Fecha FROM Viviendas"_s).Fecha(u"Fecha"), reloj.hoy());
}

} // namespace
} // namespace valmerix
