#include "shell/application_fixture.h"

#include "support/child_process.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

TEST_F(AplicacionTest, TheFirstStartInstallsTheDatabaseAndTheExchangeTemplate)
{
    Arrancar();
    EXPECT_TRUE(QFileInfo::exists(ruta()));
    EXPECT_TRUE(QFileInfo::exists(carpeta.path() + u"/Datos/Testigos.mak"_s));
    EXPECT_EQ(pantalla.mostradas, QStringList{u"Form1"_s});
    EXPECT_TRUE(sistema.finales.empty());
}

TEST_F(AplicacionTest, ADamagedDatabaseIsToldAndEndsTheProcess)
{
    ASSERT_TRUE(QDir(carpeta.path()).mkpath(u"Datos"_s));
    QFile fichero(ruta());
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("esto no es una base de datos, aunque lo parezca por el nombre que lleva el fichero");
    fichero.close();
    Arrancar();
    ASSERT_EQ(dialogos.mensajes.size(), 1u);
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Error"_s);
    EXPECT_TRUE(dialogos.mensajes[0].texto.startsWith(u"Valmerix no ha podido arrancar.\n"_s));
    EXPECT_EQ(sistema.finales, std::vector<int>{1});
}

// Rights bind no root, so the start runs as somebody else.
TEST_F(AplicacionTest, AProgramFolderThatCannotBeWrittenIsToldOnceAndEndsTheProcess)
{
    ASSERT_TRUE(QFile::setPermissions(carpeta.path(), QFile::Permissions(0x5555)));
    const int estado = EnOtroProceso([this] {
        if (!DejarDeSerRoot())
            return 10;
        Arrancar();
        if (dialogos.mensajes.size() != 1 || dialogos.mensajes[0].titulo != u"Error")
            return 1;
        if (!dialogos.mensajes[0].texto.startsWith(u"Valmerix no ha podido arrancar.\n"))
            return 2;
        return sistema.finales == std::vector<int>{1} && pantalla.mostradas.isEmpty() ? 0 : 3;
    });
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << WEXITSTATUS(estado);
    EXPECT_FALSE(QFileInfo::exists(ruta()));
    EXPECT_TRUE(QFile::setPermissions(carpeta.path(), QFile::Permissions(0x7777)));
}

TEST_F(AplicacionTest, AnIniPathThatLeadsNowhereIsToldAndNothingIsInstalledThere)
{
    QFile ini(carpeta.path() + u"/Valmerix.ini"_s);
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write((u"[Datos]\nRutaAcceso="_s + carpeta.path() + u"/otra/base.mdb\n"_s).toUtf8());
    ini.close();
    Arrancar();
    EXPECT_EQ(sistema.finales, std::vector<int>{1});
    EXPECT_FALSE(QFileInfo::exists(carpeta.path() + u"/otra"_s));
}

TEST_F(AplicacionTest, ASecondStartInstallsNothing)
{
    sistema.otra = true;
    Arrancar();
    EXPECT_EQ(sistema.finales.front(), 0);
    EXPECT_FALSE(QFileInfo::exists(ruta()));
}

TEST_F(AplicacionTest, TheExchangeTemplateComesBackWhenItIsMissing)
{
    Arrancar();
    ASSERT_TRUE(QFile::remove(carpeta.path() + u"/Datos/Testigos.mak"_s));
    Arrancar();
    EXPECT_TRUE(QFileInfo::exists(carpeta.path() + u"/Datos/Testigos.mak"_s));
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_TRUE(sistema.finales.empty());
}

TEST_F(AplicacionTest, ClosingTheStartWindowThroughTheDesktopAsksAsEscapeDoes)
{
    Arrancar();
    pantalla.guion[u"SALIDA"_s] = [](Ventana& v) { v.boton(u"SSCommand1").Pulsar(); };
    aplicacion->inicio()->PedirCierre();
    EXPECT_EQ(pantalla.modales, QStringList{u"SALIDA"_s});
    ASSERT_NE(aplicacion->inicio(), nullptr);
    EXPECT_TRUE(aplicacion->inicio()->abierta());
}

TEST_F(AplicacionTest, EscapeOnTheStartWindowShowsTheExit)
{
    Arrancar();
    pantalla.guion[u"SALIDA"_s] = [](Ventana& v) { v.boton(u"SSCommand1").Pulsar(); };
    aplicacion->inicio()->PulsarTecla(Qt::Key_Escape);
    EXPECT_EQ(pantalla.modales, QStringList{u"SALIDA"_s});
    EXPECT_TRUE(sistema.finales.empty());
}

TEST_F(AplicacionTest, AnEmptyDatabaseLeavesTheStartWindowWorkingAsUsual)
{
    Arrancar();
    Form1& inicio = *aplicacion->inicio();
    inicio.TerminarPortada();
    for (const CarpetaArbol& grupo : inicio.como<Arbol>(u"Arbol").carpetas())
        EXPECT_TRUE(grupo.hijos.empty());
    inicio.como<Arbol>(u"Arbol").Seleccionar(u"P"_s);
    inicio.boton(u"cmdAbrir").Pulsar();
    inicio.boton(u"cmdCopiar").Pulsar();
    EXPECT_EQ(aplicacion->FormularioActual(), nullptr);
    for (int i = 0; i < 3; ++i) {
        aplicacion->inicio()->boton(Ventana::Indice(u"SSCommand2", i)).Pulsar();
        ASSERT_NE(aplicacion->FormularioActual(), nullptr);
        EXPECT_EQ(forma().nombre(), (QStringList{u"Piso"_s, u"Apto"_s, u"Casa"_s}[i]));
        aplicacion->Reiniciar();
        ASSERT_NE(aplicacion->inicio(), nullptr);
    }
    EXPECT_TRUE(dialogos.mensajes.empty());
}

TEST_F(AplicacionTest, ARestartShowsTheStoredCaseWithoutTheTitleAndClearsTheState)
{
    Arrancar();
    UnPisoGuardado();
    pantalla.guion[u"Reinicio"_s] = [](Ventana& v) { v.boton(u"SSCommand1").Pulsar(); };
    aplicacion->EjecutarOrden(OrdenPaleta::Reinicio);
    EXPECT_EQ(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(aplicacion->barra(), nullptr);
    ASSERT_NE(aplicacion->inicio(), nullptr);
    EXPECT_TRUE(aplicacion->inicio()->control(u"Arbol").Visible());
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
    EXPECT_EQ(aplicacion->frases().FraseAntiguedad, QString());
    EXPECT_EQ(aplicacion->calculo().ValorTotal, Currency());
    const auto& hojas = aplicacion->inicio()->como<Arbol>(u"Arbol").carpetas()[0].hijos;
    ASSERT_EQ(hojas.size(), 1u);
    EXPECT_EQ(hojas[0].clave, u"Rosa Peña#5#P"_s);
    EXPECT_EQ(hojas[0].texto, u"Calle Mayor, 5 (Alcoi)"_s);
}

TEST_F(AplicacionTest, ARestartClearsTheResultsAndKeepsTheOtherFigures)
{
    Arrancar();
    UnPisoGuardado();
    Escribir(u"BoxAntig", u"20"_s);
    ASSERT_EQ(aplicacion->calculo().CoefDepreciacion, 0.2);
    aplicacion->Reiniciar();
    EXPECT_EQ(aplicacion->calculo().CosteConstruccion, Currency());
    EXPECT_EQ(aplicacion->calculo().ValorUnitarioSuelo, Currency());
    EXPECT_EQ(aplicacion->calculo().CoefDepreciacion, 0.2);
    EXPECT_EQ(aplicacion->calculo().CoeficienteK, 1.3);
    EXPECT_FALSE(aplicacion->compartido().PaletaAbierta);
}

TEST_F(AplicacionTest, ACaseWithoutAPlanningProblemKeepsTheLastTextUntilARestartClearsIt)
{
    Arrancar();
    UnPisoGuardado();
    aplicacion->frases().FraseUrbanistica = u"Fuera de ordenación."_s;
    aplicacion->Reiniciar();
    EXPECT_EQ(aplicacion->frases().FraseUrbanistica, QString());
    aplicacion->AbrirCaso(u"Rosa Peña#5#P"_s);
    EXPECT_EQ(forma().opciones(u"SitUrb").elegida(), 0) << "no choice is stored as the first one";
    EXPECT_EQ(aplicacion->frases().FraseUrbanistica,
              u"Cumple toda la normativa urbanística existente en Alcoi."_s);
    aplicacion->Reiniciar();
    EXPECT_EQ(aplicacion->frases().FraseUrbanistica, QString());
}

TEST_F(AplicacionTest, ARestartThatFailsEndsTheProcessAndNotInAnEmptyScreen)
{
    Arrancar();
    UnPisoGuardado();
    dialogos.mensajes.clear();
    sqlite3* base = nullptr;
    sqlite3_open(ruta().toUtf8().constData(), &base);
    sqlite3_exec(base, "ALTER TABLE Opciones RENAME COLUMN MonedaDecimales TO Otra", nullptr, nullptr,
                 nullptr);
    sqlite3_close(base);
    aplicacion->Reiniciar();
    ASSERT_FALSE(dialogos.mensajes.empty());
    EXPECT_TRUE(dialogos.mensajes.back().texto.startsWith(u"Valmerix no ha podido arrancar.\n"_s));
    EXPECT_EQ(sistema.finales, std::vector<int>{1});
}

TEST_F(AplicacionTest, ACancelledRestartChangesNothing)
{
    Arrancar();
    UnPisoGuardado();
    pantalla.guion[u"Reinicio"_s] = [](Ventana& v) { v.boton(u"SSCommand2").Pulsar(); };
    aplicacion->EjecutarOrden(OrdenPaleta::Reinicio);
    ASSERT_NE(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(forma().texto(u"BoxSit"), u"Calle Mayor, 5"_s);
}

TEST_F(AplicacionTest, AFailureIsToldWithItsSqlAndSheMayGoOn)
{
    Arrancar();
    dialogos.respuestasFallo = {true, false};
    aplicacion->InformarFallo(ErrorAlmacen(u"disco lleno"_s, u"UPDATE x"_s));
    EXPECT_TRUE(sistema.finales.empty());
    EXPECT_TRUE(dialogos.fallos[0].texto.contains(u"disco lleno"_s));
    EXPECT_EQ(dialogos.fallos[0].titulo, u"UPDATE x"_s);
    aplicacion->InformarFallo(std::runtime_error("otra cosa"));
    EXPECT_EQ(sistema.finales, std::vector<int>{1});
}

} // namespace
} // namespace valmerix
