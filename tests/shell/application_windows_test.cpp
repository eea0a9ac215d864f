#include "shell/application_fixture.h"

#include "report/viewer.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

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

} // namespace
} // namespace valmerix
