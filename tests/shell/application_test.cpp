#include "shell/application.h"

#include "report/viewer.h"
#include "shell/start_window.h"
#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "support/test_database.h"
#include "valuation/case_form.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class AplicacionTest : public testing::Test
{
protected:
    AplicacionTest() { sistema.carpeta = carpeta.path(); }

    void Arrancar()
    {
        aplicacion.emplace(Puertos{dialogos, reloj, sistema, pantalla, captura, impresion});
        aplicacion->Arrancar();
    }
    void ConTasador(const QString& nombre = u"Rosa Peña"_s)
    {
        Ejecutar(u"UPDATE Empresa SET Nombre = 'Túria'"_s);
        Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador,Poblacion,Provincia) VALUES ('"_s + nombre +
                 u"',4,'Alcoi','Alicante')"_s);
    }
    void Ejecutar(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        consulta.EjecutarSentencia(u"Empresa"_s, sql);
        consulta.Confirmar();
    }
    ConjuntoResultados Leer(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        return consulta.Instantanea2(u"Empresa"_s, sql);
    }
    QString ruta() const { return carpeta.path() + u"/Datos/valmerix.mdb"_s; }
    Formulario& forma() { return *aplicacion->FormularioActual(); }
    void Escribir(QStringView campo, const QString& texto)
    {
        forma().Enfocar(campo);
        forma().campo(campo).setText({});
        forma().campo(campo).Teclear(texto);
        forma().Enfocar(nullptr);
    }
    void UnPisoGuardado()
    {
        ConTasador();
        aplicacion->NuevoCaso(0);
        forma().lista(u"cboNombreTasador").Elegir(0);
        Escribir(u"BoxSit", u"Calle Mayor, 5"_s);
        Escribir(u"BoxMun", u"Alcoi"_s);
        Escribir(u"BoxConst", u"100"_s);
        Escribir(u"BoxCc", u"600"_s);
        Escribir(u"BoxK", u"1,3"_s);
        forma().boton(u"SSCommand7").Pulsar();
        aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    }

    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakePantalla pantalla;
    FakeCaptura captura;
    FakeImpresion impresion;
    std::optional<Aplicacion> aplicacion;
};

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

TEST_F(AplicacionTest, AnIconMadeByTheDesktopGoesDownWithItsToolbar)
{
    Arrancar();
    ConTasador();
    aplicacion->NuevoCaso(0);
    ASSERT_NE(aplicacion->paleta(), nullptr);
    forma().setWindowState(EstadoVentana::Minimizada);
    EXPECT_EQ(forma().WindowState(), EstadoVentana::Normal);
    EXPECT_FALSE(forma().visible());
    EXPECT_EQ(aplicacion->paleta(), nullptr);
    EXPECT_EQ(aplicacion->barra()->WindowState(), EstadoVentana::Minimizada);
}

TEST_F(AplicacionTest, TheStoredWordProcessorServesWithoutOpeningTheSettings)
{
    Arrancar();
    Ejecutar(u"UPDATE Opciones SET Trayectoria = '/usr/bin/soffice'"_s);
    UnPisoGuardado();
    EXPECT_EQ(aplicacion->compartido().ProcesadorTextos, u"/usr/bin/soffice"_s);
    aplicacion->EjecutarOrden(OrdenPaleta::Informe);
    aplicacion->visor()->boton(u"BttMaquina").Pulsar();
    ASSERT_EQ(sistema.arranques.size(), 1u);
    EXPECT_EQ(sistema.arranques[0].orden, u"/usr/bin/soffice"_s);
    EXPECT_TRUE(pantalla.modales.isEmpty());
}

// To leave the empty path in the settings stores "Null Path", which is no program.
TEST_F(AplicacionTest, CancelledSettingsLeaveTheViewerAsItWas)
{
    Arrancar();
    UnPisoGuardado();
    aplicacion->EjecutarOrden(OrdenPaleta::Informe);
    pantalla.guion[u"Opciones"_s] = [](Ventana& v) {
        v.Enfocar(u"TrayecBox");
        v.Enfocar(u"Text1");
        v.Cerrar();
    };
    for (int vez = 0; vez < 2; ++vez)
        aplicacion->visor()->boton(u"BttMaquina").Pulsar();
    EXPECT_EQ(pantalla.modales, (QStringList{u"Opciones"_s, u"Opciones"_s}));
    EXPECT_TRUE(sistema.arranques.empty());
    EXPECT_FALSE(QFileInfo::exists(carpeta.path() + u"/Tasacion.rtf"_s));
    EXPECT_TRUE(forma().visible());
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
    auto& arbol = aplicacion->inicio()->como<Arbol>(u"Arbol");
    arbol.Seleccionar(u"Rosa Peña#5#P"_s);
    aplicacion->inicio()->boton(u"cmdCopiar").Pulsar();
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
    Escribir(u"BoxSit", u"Calle Menor, 6"_s);
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 6);
    const auto filas = Leer(u"SELECT NumeroTasacion, Situacion FROM Viviendas ORDER BY NumeroTasacion"_s);
    ASSERT_EQ(filas.RecordCount(), 2);
    EXPECT_EQ(filas.Texto(u"Situacion", 1), u"Calle Mayor, 5"_s);
    EXPECT_EQ(filas.Texto(u"Situacion", 2), u"Calle Menor, 6"_s);
}

TEST_F(AplicacionTest, ADoubleClickOnAFolderChangesNothing)
{
    Arrancar();
    aplicacion->inicio()->como<Arbol>(u"Arbol").DoblePulsar(u"P"_s);
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

TEST_F(AplicacionTest, EscapeOnTheStartWindowShowsTheExit)
{
    Arrancar();
    pantalla.guion[u"SALIDA"_s] = [](Ventana& v) { v.boton(u"SSCommand1").Pulsar(); };
    aplicacion->inicio()->PulsarTecla(Qt::Key_Escape);
    EXPECT_EQ(pantalla.modales, QStringList{u"SALIDA"_s});
    EXPECT_TRUE(sistema.finales.empty());
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

TEST_F(AplicacionTest, TheToolbarFollowsTheFormsButtonAndItsOwnCloseButton)
{
    Arrancar();
    ConTasador();
    aplicacion->NuevoCaso(0);
    const bool abierta = aplicacion->paleta() != nullptr;
    forma().boton(u"SSCommand3").Pulsar();
    EXPECT_NE(aplicacion->paleta() != nullptr, abierta);
    if (!aplicacion->paleta())
        forma().boton(u"SSCommand3").Pulsar();
    ASSERT_NE(aplicacion->paleta(), nullptr);
    EXPECT_TRUE(aplicacion->compartido().PaletaAbierta);
    aplicacion->paleta()->boton(u"SSCommand3").Pulsar();
    EXPECT_EQ(aplicacion->paleta(), nullptr);
    EXPECT_EQ(forma().control(u"SSCommand3").Tag(), u"N"_s);
    EXPECT_FALSE(aplicacion->compartido().PaletaAbierta);
}

TEST_F(AplicacionTest, MinimisingAndRestoringHidesAndReturnsTheCaseWithItsToolbar)
{
    Arrancar();
    ConTasador();
    aplicacion->NuevoCaso(0);
    if (!aplicacion->paleta())
        forma().boton(u"SSCommand3").Pulsar();
    forma().boton(u"SSCommand2").Pulsar();
    EXPECT_FALSE(forma().visible());
    EXPECT_EQ(aplicacion->paleta(), nullptr);
    aplicacion->barra()->setWindowState(EstadoVentana::Normal);
    EXPECT_TRUE(forma().visible());
    EXPECT_NE(aplicacion->paleta(), nullptr);
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

TEST_F(AplicacionTest, TheReportComesUpInTheViewer)
{
    Arrancar();
    UnPisoGuardado();
    aplicacion->EjecutarOrden(OrdenPaleta::Informe);
    ASSERT_TRUE(pantalla.mostradas.contains(u"Calculos"_s));
    ASSERT_NE(aplicacion->visor(), nullptr);
    const QString& texto = aplicacion->visor()->como<TextoEnriquecido>(u"Texto").Text();
    EXPECT_TRUE(texto.startsWith(u"INFORME DE TASACION\n"_s));
    EXPECT_TRUE(texto.contains(u"Calle Mayor, 5."_s));
    aplicacion->EjecutarOrden(OrdenPaleta::CerrarVisor);
    EXPECT_EQ(aplicacion->visor(), nullptr);
    const QStringList antes = pantalla.mostradas;
    aplicacion->EjecutarOrden(OrdenPaleta::CerrarVisor);
    EXPECT_EQ(aplicacion->visor(), nullptr);
    EXPECT_EQ(pantalla.mostradas, antes);
    EXPECT_TRUE(forma().visible());
}

TEST_F(AplicacionTest, AChangeOfCurrencyShowsInTheOpenFormAtOnce)
{
    Arrancar();
    UnPisoGuardado();
    pantalla.guion[u"Opciones"_s] = [](Ventana& v) {
        v.campo(u"Text6").setText(u"Kr"_s);
        v.campo(u"Text7").setText(u"0"_s);
        v.boton(u"cmdOK").Pulsar();
    };
    aplicacion->EjecutarOrden(OrdenPaleta::Opciones);
    EXPECT_EQ(aplicacion->compartido().FormatoMoneda, u"###,###,##0"_s);
    int rotulos = 0;
    for (const EtiquetaMoneda& fila : EtiquetasMoneda()) {
        const QString& rotulo = forma().control(fila.nombre).Caption();
        EXPECT_EQ(rotulo, fila.porMetro ? u"Kr/m²"_s : u"Kr"_s);
        ++rotulos;
    }
    EXPECT_EQ(rotulos, 6);
}

TEST_F(AplicacionTest, TheMoneyLabelsFollowTheSettingsThoughTheRowCouldNotBeWritten)
{
    Arrancar();
    UnPisoGuardado();
    pantalla.guion[u"Opciones"_s] = [](Ventana& v) {
        v.campo(u"Text1").setText({}); // no number: the statement fails
        v.campo(u"Text6").setText(u"Kr"_s);
        v.boton(u"cmdOK").Pulsar();
    };
    aplicacion->EjecutarOrden(OrdenPaleta::Opciones);
    EXPECT_EQ(forma().control(EtiquetasMoneda().front().nombre).Caption().left(2), u"Kr"_s);
    EXPECT_EQ(Leer(u"SELECT MonedaAbreviatura FROM Opciones"_s).Texto(u"MonedaAbreviatura"), u"€"_s);
}

TEST_F(AplicacionTest, TheViewersButtonShowsTheReportAsPages)
{
    Arrancar();
    UnPisoGuardado();
    forma().rejilla(u"GridImagen").AddItem(u"/fotos/fachada.jpg\tFachada"_s);
    aplicacion->EjecutarOrden(OrdenPaleta::Informe);
    pantalla.enFrente->como<Temporizador>(u"Timer1").Tic();
    aplicacion->visor()->boton(u"BttImprimir").Pulsar();
    ASSERT_EQ(impresion.vistos.size(), 1U);
    const DocumentoImpreso& documento = impresion.vistos[0];
    EXPECT_EQ(documento.autor, u"Rosa Peña"_s);
    ASSERT_GT(documento.lineas.size(), 40U);
    EXPECT_EQ(documento.lineas[0].texto, u"INFORME DE TASACION"_s);
    EXPECT_TRUE(documento.lineas[0].negrita);
    EXPECT_FALSE(documento.lineas[1].negrita);
    ASSERT_EQ(documento.fotografias.size(), 1U);
    EXPECT_EQ(documento.fotografias[0].pie, u"Fachada"_s);
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
