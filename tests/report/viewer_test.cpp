#include "report/viewer.h"

#include "report/find_history.h"
#include "report/report_error.h"
#include "report/viewer_fixture.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

TEST(Viewer, OpensLockedInThePlaceOfTheCase)
{
    VisorDePrueba v;
    v.piso.compartido.PosicionLeft = 30;
    v.piso.compartido.PosicionTop = 40;
    v.piso.compartido.PosicionWidth = 800;
    v.piso.compartido.PosicionHeight = 600;
    v.Abrir();
    EXPECT_EQ(v.visor->lugar(), QRect(30, 40, 800, 600));
    EXPECT_TRUE(v.texto().Locked());
    EXPECT_EQ(v.visor->UltimaBusqueda(), -1);
    EXPECT_EQ(v.visor->control(u"EtiquetaCaption").Caption(), u"Valmerix - Visor"_s);
    EXPECT_EQ(v.visor->control(u"chkEditable").Caption(), u"Texto Editable"_s);
}

TEST(Viewer, ThePrintButtonShowsThePages)
{
    VisorDePrueba v;
    v.Pulsar(u"BttImprimir");
    EXPECT_EQ(v.entorno.llamadas, QStringList{u"Imprimir"_s});
}

TEST(Viewer, FindsForwardAndStartsAgainAfterTheLast)
{
    VisorDePrueba v;
    v.texto().setText(u"Uno dos uno\ntres UNO"_s);
    v.Buscar(u"uno"_s);
    EXPECT_EQ(v.texto().SelStart(), 0);
    EXPECT_EQ(v.seleccion(), u"Uno"_s);
    EXPECT_EQ(v.visor->UltimaBusqueda(), 1);
    v.Pulsar(u"BttBuscar");
    EXPECT_EQ(v.texto().SelStart(), 8);
    v.Pulsar(u"BttBuscar");
    EXPECT_EQ(v.texto().SelStart(), 17);
    EXPECT_TRUE(v.dialogos.mensajes.empty());
    v.Pulsar(u"BttBuscar");
    ASSERT_EQ(v.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(v.dialogos.mensajes[0].texto, u"No se encuentra la cadena especificada"_s);
    EXPECT_EQ(v.dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_EQ(v.visor->UltimaBusqueda(), 0);
    v.Pulsar(u"BttBuscar");
    EXPECT_EQ(v.texto().SelStart(), 0);
}

TEST(Viewer, LookingForNothingFindsNothing)
{
    VisorDePrueba v;
    v.texto().setText(u"Uno"_s);
    v.Pulsar(u"BttBuscar");
    EXPECT_EQ(v.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(v.combo().ListCount(), 0);
}

TEST(Viewer, AHitComesUpAtTheTopOfTheWindow)
{
    VisorDePrueba v;
    v.texto().setText(u"a\nb\nc"_s);
    QStringList orden;
    QObject::connect(&v.texto(), &TextoEnriquecido::VistaAlPrincipio, v.visor.get(),
                     [&] { orden << u"principio"_s; });
    QObject::connect(&v.texto(), &TextoEnriquecido::SeleccionCambiada, v.visor.get(),
                     [&] { orden << QString::number(v.texto().SelStart()); });
    v.Buscar(u"c"_s);
    EXPECT_EQ(orden.last(2), (QStringList{u"principio"_s, u"4"_s}));
}

TEST(Viewer, WhenTheFocusLeavesTheTextFindingGoesOnFromTheCaret)
{
    VisorDePrueba v;
    v.texto().setText(u"uno uno uno"_s);
    v.combo().setText(u"uno"_s);
    v.visor->Enfocar(u"Texto");
    v.texto().Seleccionar(5, 0);
    v.visor->Enfocar(u"BttBuscar");
    EXPECT_EQ(v.visor->UltimaBusqueda(), 5);
    v.Pulsar(u"BttBuscar");
    EXPECT_EQ(v.texto().SelStart(), 8);
}

TEST(Viewer, RemembersEightSearchesTheNewestOnTop)
{
    VisorDePrueba v;
    v.texto().setText(u"x"_s);
    for (int i = 1; i <= 9; ++i)
        v.combo().setText(u"búsqueda %1"_s.arg(i));
    EXPECT_EQ(v.combo().ListCount(), 8);
    EXPECT_EQ(v.combo().List().first(), u"búsqueda 9"_s);
    EXPECT_EQ(v.combo().List().last(), u"búsqueda 2"_s);
    v.combo().setText(u"búsqueda 5"_s);
    EXPECT_EQ(v.combo().ListCount(), 8);
    EXPECT_EQ(v.combo().List().first(), u"búsqueda 9"_s);
}

TEST(Viewer, ANewSearchStartsAtTheTopAndAnOldOneGoesOn)
{
    VisorDePrueba v;
    v.texto().setText(u"uno dos uno dos"_s);
    v.Buscar(u"uno"_s);
    v.Buscar(u"dos"_s);
    EXPECT_EQ(v.texto().SelStart(), 4);
    v.combo().Elegir(1);
    EXPECT_EQ(v.combo().Text(), u"uno"_s);
    v.Pulsar(u"BttBuscar");
    EXPECT_EQ(v.texto().SelStart(), 8);
}

TEST(Viewer, TypingASearchRemembersItWithEachOfItsBeginnings)
{
    VisorDePrueba v;
    v.visor->Enfocar(u"Combo1");
    v.combo().Teclear(u"casa"_s);
    const QStringList comienzos{u"casa"_s, u"cas"_s, u"ca"_s, u"c"_s};
    EXPECT_EQ(v.combo().List(), comienzos);
    v.combo().PulsarTecla(8);
    EXPECT_EQ(v.combo().List(), comienzos) << "known already";
}

TEST(Viewer, SearchesComeBackInTheNextViewer)
{
    VisorDePrueba v;
    v.combo().setText(u"ático"_s);
    v.combo().setText(u"garaje"_s);
    EXPECT_TRUE(v.visor->Cerrar());
    EXPECT_EQ(QFile(v.ruta(u"Visor.ini"_s)).size(), 240);
    v.Abrir();
    EXPECT_EQ(v.combo().List(), (QStringList{u"garaje"_s, u"ático"_s}));
    EXPECT_EQ(v.combo().Text(), QString());
}

TEST(Viewer, ClosesEvenWhereItsSearchesCannotBeStored)
{
    VisorDePrueba v;
    v.sistema.carpeta = v.ruta(u"no/existe"_s);
    v.Pulsar(u"SSCommand1");
    EXPECT_FALSE(v.visor->abierta());
    ASSERT_EQ(v.dialogos.mensajes.size(), 1U);
    EXPECT_TRUE(v.dialogos.mensajes[0].texto.startsWith(u"No se ha podido guardar "_s));
    EXPECT_EQ(v.dialogos.mensajes[0].titulo, u"Aviso"_s);
}

TEST(Viewer, ChapterButtonsJumpWithoutSelecting)
{
    VisorDePrueba v;
    v.Redactar();
    const auto principio = [&](int boton) {
        v.Pulsar(Ventana::Indice(u"SSCommand5", boton));
        EXPECT_EQ(v.texto().SelLength(), 0);
        return v.texto().Text().mid(v.texto().SelStart(), 19);
    };
    EXPECT_EQ(principio(0), u"INFORME DE TASACION"_s);
    EXPECT_EQ(principio(1), u"1.  IDENTIFICACION:"_s);
    EXPECT_EQ(principio(3), u"3.  LOCALIDAD Y ENT"_s);
    EXPECT_EQ(principio(9), u"9.  CALCULO DE LOS "_s);
    EXPECT_EQ(principio(10), u"Asciende el importe"_s);
}

TEST(Viewer, AChapterThatIsNotThereLeavesTheSelectionCollapsed)
{
    VisorDePrueba v;
    v.texto().setText(u"nada"_s);
    v.texto().Seleccionar(1, 2);
    v.Pulsar(u"SSCommand5(4)");
    EXPECT_EQ(v.texto().SelStart(), 0) << "at the top, not back at the old caret";
    EXPECT_EQ(v.texto().SelLength(), 0);
}

TEST(Viewer, EditingIsUnlockedAfterAWarning)
{
    VisorDePrueba v;
    v.visor->casilla(u"chkEditable").Pulsar();
    ASSERT_EQ(v.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(v.dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_EQ(
        v.dialogos.mensajes[0].texto,
        u"Cualquier cambio que realice en el visor no se reflejará en el formulario y por tanto no se "
        u"guardará con la tasación. Además dichos cambios se perderán si vuelve al formulario, ya que el "
        u"visor se regenera siempre desde el formulario. Se recomienda realizar todos los cambios en el "
        u"formulario"_s);
    EXPECT_FALSE(v.texto().Locked());
    v.visor->casilla(u"chkEditable").Pulsar();
    EXPECT_TRUE(v.texto().Locked());
    EXPECT_EQ(v.dialogos.mensajes.size(), 1U);
}

TEST(Viewer, ExportsTheReportStartsTheWordProcessorAndStepsAside)
{
    VisorDePrueba v;
    v.piso.compartido.ProcesadorTextos = u"/usr/bin/escritor de textos"_s;
    v.Redactar();
    v.entorno.llamadas.clear();
    v.Pulsar(u"BttMaquina");
    ASSERT_EQ(v.sistema.arranques.size(), 1U);
    EXPECT_EQ(v.sistema.arranques[0].orden, u"/usr/bin/escritor de textos"_s);
    EXPECT_EQ(v.sistema.arranques[0].argumentos, QStringList{u"Tasacion.rtf"_s});
    EXPECT_EQ(v.sistema.arranques[0].carpeta, v.carpeta.path());
    QFile rtf(v.ruta(u"Tasacion.rtf"_s));
    ASSERT_TRUE(rtf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(rtf.readAll().startsWith("{\\rtf1"));
    EXPECT_EQ(v.entorno.llamadas, QStringList{u"MinimizarCaso"_s});
    EXPECT_TRUE(v.sistema.finales.empty());
}

TEST(Viewer, MayEndTheProgramOnceTheWordProcessorRuns)
{
    VisorDePrueba v;
    v.piso.compartido.ProcesadorTextos = u"escritor"_s;
    v.piso.opciones.CerrarAlSalir = true;
    v.Pulsar(u"BttMaquina");
    EXPECT_EQ(v.sistema.finales, std::vector<int>{0});
    EXPECT_TRUE(v.entorno.llamadas.isEmpty());
}

TEST(Viewer, AFailedStartEndsTheCommand)
{
    VisorDePrueba v;
    v.piso.compartido.ProcesadorTextos = u"escritor"_s;
    v.piso.opciones.CerrarAlSalir = true;
    v.sistema.arranca = false;
    v.Pulsar(u"BttMaquina");
    EXPECT_TRUE(v.sistema.finales.empty());
    EXPECT_TRUE(v.entorno.llamadas.isEmpty());
    EXPECT_TRUE(v.visor->abierta());
}

TEST(Viewer, WithoutAWordProcessorItAsksForOneAndStopsWhenNoneIsChosen)
{
    VisorDePrueba v;
    v.Pulsar(u"BttMaquina");
    ASSERT_EQ(v.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(
        v.dialogos.mensajes[0].texto,
        u"Antes de enviar el informe a un procesador de texto debe seleccionar el programa en la pantalla "
        u"de opciones"_s);
    EXPECT_EQ(v.dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_EQ(v.entorno.llamadas, QStringList{u"MostrarOpciones"_s});
    EXPECT_TRUE(v.sistema.arranques.empty());
    EXPECT_FALSE(QFile::exists(v.ruta(u"Tasacion.rtf"_s)));
}

TEST(Viewer, GoesOnWithTheWordProcessorJustChosen)
{
    VisorDePrueba v;
    v.entorno.alMostrarOpciones = [&] { v.piso.compartido.ProcesadorTextos = u"escritor"_s; };
    v.Pulsar(u"BttMaquina");
    EXPECT_EQ(v.sistema.arranques.size(), 1U);
}

TEST(Viewer, AReportThatCannotBeWrittenIsTold)
{
    VisorDePrueba v;
    v.piso.compartido.ProcesadorTextos = u"escritor"_s;
    v.sistema.carpeta = v.ruta(u"no/existe"_s);
    EXPECT_THROW(v.Pulsar(u"BttMaquina"), ErrorInforme);
    EXPECT_TRUE(v.sistema.arranques.empty());
}

TEST(Viewer, MinimisesAndMaximises)
{
    VisorDePrueba v;
    v.Pulsar(u"SSCommand2");
    EXPECT_EQ(v.entorno.llamadas, QStringList{u"MinimizarVisor"_s});
    v.Pulsar(u"SSCommand3");
    EXPECT_EQ(v.visor->WindowState(), EstadoVentana::Maximizada);
    v.visor->AlternarTamaño();
    EXPECT_EQ(v.visor->WindowState(), EstadoVentana::Normal);
}

} // namespace valmerix
