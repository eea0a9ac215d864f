#include "photos.h"
#include "windows_fixture.h"

#include "ui/widgets/tree_model.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTableView>
#include <QTextBlock>
#include <QWindow>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

TEST_F(Windows, TheTitleShowsItsLettersAndAClickEndsIt)
{
    VistaVentana& vista = Vista(*aplicacion.inicio());
    auto* partes = vista.findChild<QStackedWidget*>();
    EXPECT_EQ(partes->currentIndex(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return aplicacion.inicio()->control(u"Label3").Visible(); }, 3000));
    Fotografiar(vista, u"Form1-titulo"_s);
    QTest::mouseClick(partes->currentWidget(), Qt::LeftButton);
    EXPECT_EQ(partes->currentIndex(), 1);
    EXPECT_TRUE(vista.enlazador().de(u"Arbol")->isVisible());
    Fotografiar(vista, u"Form1"_s);
}

TEST_F(Windows, EscapeOnTheStartWindowAsksForTheEnd)
{
    aplicacion.inicio()->TerminarPortada();
    QString pregunta;
    EnElModal([&] {
        VistaVentana* salida = VistaModal();
        ASSERT_NE(salida, nullptr);
        pregunta = salida->findChild<QLabel*>(u"Label1"_s)->text();
        Fotografiar(*salida, u"SALIDA"_s);
        Pulsar(*salida, u"SSCommand1"_s);
    });
    QTest::keyClick(Vista(*aplicacion.inicio()).enlazador().de(u"Arbol"), Qt::Key_Escape);
    EXPECT_EQ(pregunta, u"¿Desea abandonar Valmerix?");
    EXPECT_TRUE(sistema.finales.empty());
}

TEST_F(Windows, AHastyReturnOrEscapeOnAQuestionChangesNothing)
{
    AbrirPiso();
    for (const auto tecla : {Qt::Key_Return, Qt::Key_Escape}) {
        EnElModal([&] {
            ASSERT_TRUE(QTest::qWaitForWindowActive(VistaModal()));
            QTest::keyClick(QApplication::focusWidget(), tecla);
        });
        aplicacion.EjecutarOrden(OrdenPaleta::Reinicio);
        EXPECT_EQ(VistaModal(), nullptr);
        EXPECT_NE(aplicacion.FormularioActual(), nullptr);
    }
}

TEST_F(Windows, ACaseIsTypedSavedAndFoundInTheTreeAfterARestart)
{
    AbrirPiso();
    EXPECT_EQ(aplicacion.inicio(), nullptr);
    auto& forma = *aplicacion.FormularioActual();
    forma.lista(u"cboNombreTasador").Elegir(0);
    Teclear(u"BoxSit", u"Calle de l'Om, 5"_s);
    Teclear(u"BoxMun", u"Alcoi"_s);
    Teclear(u"BoxConst", u"100"_s);
    Teclear(u"BoxCc", u"600"_s);
    Teclear(u"BoxK", u"1.3"_s);
    Pulsar(Vista(forma), u"SSCommand7"_s);
    EXPECT_FALSE(forma.texto(u"BoxTotal").isEmpty());
    Fotografiar(Vista(*aplicacion.paleta()), u"Form2"_s);
    Pulsar(Vista(*aplicacion.paleta()), u"Botonera(5)"_s);
    EXPECT_EQ(aplicacion.compartido().NumeroTasacionActual, 5);
    EnElModal([&] {
        Fotografiar(*VistaModal(), u"Reinicio"_s);
        Pulsar(*VistaModal(), u"SSCommand1"_s);
    });
    Pulsar(Vista(*aplicacion.paleta()), u"Botonera(3)"_s);
    ASSERT_NE(aplicacion.inicio(), nullptr);
    auto* arbol = dynamic_cast<QTreeView*>(Vista(*aplicacion.inicio()).enlazador().de(u"Arbol"));
    const QModelIndex pisos = arbol->model()->index(0, 0, {});
    ASSERT_EQ(arbol->model()->rowCount(pisos), 1);
    const QModelIndex caso = arbol->model()->index(0, 0, pisos);
    EXPECT_EQ(caso.data().toString(), u"Calle de l’Om, 5 (Alcoi)");
    arbol->expandAll();
    Fotografiar(Vista(*aplicacion.inicio()), u"Form1-arbol"_s);
    arbol->setCurrentIndex(caso);
    QTest::keyClick(arbol, Qt::Key_Return);
    ASSERT_NE(aplicacion.FormularioActual(), nullptr);
    EXPECT_EQ(aplicacion.FormularioActual()->texto(u"BoxMun"), u"Alcoi");
}

TEST_F(Windows, TheReportIsReadSearchedAndCorrectedInTheViewer)
{
    AbrirPiso();
    Teclear(u"BoxMun", u"Alcoi"_s);
    Redactar();
    VistaVentana& vista = Vista(*aplicacion.visor());
    TextoEnriquecido& texto = aplicacion.visor()->Texto();
    QApplication::processEvents();
    EXPECT_EQ(Informe().toPlainText(), texto.Text());
    Fotografiar(vista, u"Visor"_s);
    auto* busqueda = vista.findChild<QComboBox*>(u"Combo1"_s);
    QTest::keyClicks(busqueda, u"alcoi"_s);
    QTest::keyClick(busqueda, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Informe().textCursor().selectedText().toLower(), u"alcoi");
    QTest::keyClicks(&Informe(), u"x"_s);
    EXPECT_EQ(Informe().toPlainText(), texto.Text()) << "still locked";
    Pulsar(vista, u"chkEditable"_s);
    ASSERT_EQ(dialogos.mensajes.size(), 1U);
    QTest::keyClicks(&Informe(), u"Alcoi d'ara"_s);
    EXPECT_EQ(Informe().toPlainText(), texto.Text());
    EXPECT_TRUE(texto.Text().contains(u"Alcoi d’ara"));
    Pulsar(vista, u"SSCommand1"_s);
    EXPECT_EQ(pantalla.vista(*aplicacion.visor()), nullptr);
}

TEST_F(Windows, AChapterButtonBringsItsChapterToTheTop)
{
    AbrirPiso();
    Redactar();
    QApplication::processEvents();
    Pulsar(Vista(*aplicacion.visor()), u"SSCommand5(10)"_s);
    QApplication::processEvents();
    const QTextCursor cursor = Informe().textCursor();
    EXPECT_FALSE(cursor.hasSelection());
    EXPECT_TRUE(cursor.block().text().contains(u"Asciende el importe"));
    EXPECT_GE(Informe().cursorRect().top(), 0);
}

TEST_F(Windows, MinimisingHidesFormAndToolbarAndRestoringBringsBothBack)
{
    AbrirPiso();
    auto& forma = *aplicacion.FormularioActual();
    VistaVentana& caso = Vista(forma);
    EXPECT_FALSE(Vista(*aplicacion.barra()).isVisible());
    ASSERT_NE(aplicacion.paleta(), nullptr);
    Pulsar(caso, u"SSCommand2"_s);
    EXPECT_FALSE(caso.isVisible());
    EXPECT_TRUE(Vista(*aplicacion.barra()).isMinimized());
    EXPECT_EQ(Vista(*aplicacion.barra()).windowTitle(), u"Valmerix - Pisos");
    Vista(*aplicacion.barra()).showNormal();
    QApplication::processEvents();
    EXPECT_TRUE(caso.isVisible());
    EXPECT_FALSE(Vista(*aplicacion.barra()).isVisible());
    ASSERT_NE(aplicacion.paleta(), nullptr);
    EXPECT_TRUE(Vista(*aplicacion.paleta()).isVisible());
}

TEST_F(Windows, TheToolbarStandsAtTheFormsRightEdgeAndBothFitASmallScreen)
{
    AbrirPiso();
    const QRect caso = Vista(*aplicacion.FormularioActual()).frameGeometry();
    const QRect paleta = Vista(*aplicacion.paleta()).frameGeometry();
    EXPECT_EQ(paleta.left(), caso.left() + caso.width());
    EXPECT_EQ(paleta.top(), caso.top());
    EXPECT_LE(caso.width() + paleta.width(), 1280);
    EXPECT_LE(paleta.height(), 760);
}

TEST_F(Windows, TheToolbarComesBackToTheFormsRightEdge)
{
    AbrirPiso();
    auto& forma = *aplicacion.FormularioActual();
    const auto alBorde = [&] {
        const QRect caso = Vista(forma).frameGeometry();
        return Vista(*aplicacion.paleta()).pos() == QPoint(caso.left() + caso.width(), caso.top());
    };
    forma.boton(u"SSCommand3").Pulsar();
    ASSERT_EQ(aplicacion.paleta(), nullptr);
    forma.boton(u"SSCommand3").Pulsar();
    EXPECT_TRUE(alBorde());
    forma.boton(u"SSCommand2").Pulsar();
    ASSERT_EQ(aplicacion.paleta(), nullptr);
    aplicacion.barra()->setWindowState(EstadoVentana::Normal);
    EXPECT_TRUE(alBorde());
    EXPECT_EQ(Vista(*aplicacion.paleta()).windowHandle()->transientParent(), Vista(forma).windowHandle());
}

TEST_F(Windows, AWindowClosedThroughTheDesktopAsksBeforeTheEndOfTheProgram)
{
    const auto cerrar = [&](VistaVentana& vista) {
        QString preguntado;
        EnElModal([&] {
            preguntado = VistaModal()->windowTitle();
            Pulsar(*VistaModal(), u"SSCommand1"_s);
        });
        EXPECT_FALSE(vista.close());
        EXPECT_TRUE(vista.isVisible());
        EXPECT_EQ(preguntado, u"Fin de Valmerix"_s);
    };
    cerrar(Vista(*aplicacion.inicio()));
    AbrirPiso();
    cerrar(Vista(*aplicacion.FormularioActual()));
    EXPECT_TRUE(sistema.finales.empty());
}

TEST_F(Windows, SearchingEndsTheTurnOfTheText)
{
    AbrirPiso();
    Redactar();
    VistaVentana& vista = Vista(*aplicacion.visor());
    vista.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&vista));
    Informe().setFocus();
    EXPECT_EQ(aplicacion.visor()->conFoco(), &aplicacion.visor()->control(u"Texto"));
    aplicacion.visor()->campo(u"Combo1").setText(u"valor"_s);
    Pulsar(vista, u"BttBuscar"_s);
    EXPECT_NE(aplicacion.visor()->conFoco(), &aplicacion.visor()->control(u"Texto"));
}

TEST_F(Windows, ASearchCorrectedInItsMiddleKeepsItsCaret)
{
    AbrirPiso();
    Redactar();
    VistaVentana& vista = Vista(*aplicacion.visor());
    auto* linea = vista.findChild<QComboBox*>(u"Combo1"_s)->lineEdit();
    QTest::keyClicks(linea, u"dormitrio"_s);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(linea, Qt::Key_Left);
    QTest::keyClicks(linea, u"oxy"_s);
    EXPECT_EQ(linea->text(), u"dormitoxyrio"_s);
}

TEST_F(Windows, ACommandOfTheToolbarLeavesTheFieldInHandFirst)
{
    AbrirPiso();
    auto& forma = *aplicacion.FormularioActual();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Vista(forma)));
    Teclear(u"BoxConst", u"100"_s);
    EXPECT_EQ(forma.texto(u"BoxConst"), u"100");
    QStringList sucesos;
    QObject::connect(&forma.control(u"BoxConst"), &Control::LostFocus, &forma,
                     [&] { sucesos += forma.texto(u"BoxConst"); });
    Pulsar(Vista(*aplicacion.paleta()), u"Botonera(5)"_s);
    EXPECT_EQ(sucesos, QStringList({u"100,00"_s}));
    EXPECT_EQ(forma.conFoco(), &forma.control(u"BoxConst")) << "and comes back to it";
}

TEST_F(Windows, TheRecordOfCompanyAndValuersIsFilledIn)
{
    AbrirPiso();
    EnElModal([&] {
        VistaVentana* ficha = VistaModal();
        ASSERT_NE(ficha, nullptr);
        auto* lista = ficha->findChild<QTableView*>(u"Flexi"_s);
        Fotografiar(*ficha, u"Ficha"_s);
        auto* nombre = ficha->findChild<QLineEdit*>(u"txtNombreTasador"_s);
        const QPoint sitio = lista->visualRect(lista->model()->index(0, 1)).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, sitio);
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, sitio);
        EXPECT_EQ(nombre->text(), u"Rosa Peña");
        Pulsar(*ficha, u"bttCancel"_s);
    });
    Pulsar(Vista(*aplicacion.FormularioActual()), u"BotonFicha"_s);
    EXPECT_EQ(VistaModal(), nullptr);
}

TEST_F(Windows, NotesAndProblemAreWrittenInTheirEditors)
{
    AbrirPiso();
    auto& forma = *aplicacion.FormularioActual();
    EnElModal([&] {
        QTest::keyClicks(VistaModal()->findChild<QWidget*>(u"txtEdicionObservaciones"_s), u"Buen estado."_s);
        Fotografiar(*VistaModal(), u"Observaciones"_s);
        Pulsar(*VistaModal(), u"SSCommand1"_s);
    });
    Pulsar(Vista(forma), u"cmdObservaciones"_s);
    EXPECT_EQ(forma.texto(u"txtObservaciones"), u"Buen estado.");
    EnElModal([&] {
        QTest::keyClicks(VistaModal()->findChild<QWidget*>(u"BoxProblema"_s), u"Sin licencia."_s);
        Fotografiar(*VistaModal(), u"Problema"_s);
        Pulsar(*VistaModal(), u"SSCommand1"_s);
    });
    Pulsar(Vista(forma), u"SSCommand6"_s);
    EXPECT_EQ(aplicacion.frases().FraseUrbanistica, u"Sin licencia.");
}

TEST_F(Windows, TheWordProcessorIsChosenFromTheDisk)
{
    AbrirPiso();
    CampoTexto trayecto(u"TrayecBox"_s);
    EnElModal([&] {
        VistaVentana* selector = VistaModal();
        auto* carpetas = selector->findChild<QListWidget*>(u"Dir1"_s);
        const auto bin = carpetas->findItems(u"bin"_s, Qt::MatchExactly);
        ASSERT_FALSE(bin.isEmpty());
        carpetas->setCurrentItem(bin.front());
        QTest::keyClick(carpetas, Qt::Key_Return);
        auto* programas = selector->findChild<QListWidget*>(u"File1"_s);
        const auto cat = programas->findItems(u"cat"_s, Qt::MatchExactly);
        ASSERT_FALSE(cat.isEmpty());
        programas->setCurrentItem(cat.front());
        Fotografiar(*selector, u"Busqueda"_s);
        Pulsar(*selector, u"Nueva"_s);
    });
    aplicacion.MostrarBusqueda(trayecto);
    EXPECT_EQ(trayecto.Text(), u"/bin/cat");
}

TEST_F(Windows, TheSettingsShowEveryControlOfTheirs)
{
    AbrirPiso();
    EnElModal([&] {
        Fotografiar(*VistaModal(), u"Opciones"_s);
        for (const auto& control : VistaModal()->ventana()->controles())
            EXPECT_NE(VistaModal()->enlazador().de(control.get()), nullptr) << qPrintable(control->nombre());
        VistaModal()->close();
    });
    aplicacion.MostrarOpciones();
}

TEST(Tree, AHundredThousandLeavesOpenAtOnce)
{
    Ventana ventana(u"Arboleda"_s);
    auto& arbol = ventana.Añadir<Arbol>(u"Arbol"_s);
    CarpetaArbol pisos{u"P"_s, u"Pisos"_s, {}};
    QStringList letras;
    letras.reserve(200000);
    for (int i = 0; i < 100000; ++i) {
        letras << u"Ana#%1#P"_s.arg(i) << u"Calle Mayor, %1 (Teruel)"_s.arg(i);
        pisos.hijos.push_back({letras[2 * i], letras[2 * i + 1]});
    }
    VistaArbol vista(arbol, nullptr);
    vista.resize(300, 400);
    vista.show();
    arbol.setCarpetas({std::move(pisos), {u"A"_s, u"Apartamentos"_s, {}}});
    vista.expand(vista.model()->index(0, 0, {}));
    QApplication::processEvents();
    const QModelIndex ultima = vista.model()->index(99999, 0, vista.model()->index(0, 0, {}));
    EXPECT_TRUE(ultima.flags().testFlag(Qt::ItemNeverHasChildren));
    QString abierta;
    QObject::connect(&arbol, &Arbol::DblClick, &ventana, [&] { abierta = arbol.seleccion(); });
    vista.setCurrentIndex(ultima);
    EXPECT_EQ(arbol.seleccion(), u"Ana#99999#P");
    QTest::keyClick(&vista, Qt::Key_Return);
    EXPECT_EQ(abierta, u"Ana#99999#P");
}

} // namespace

} // namespace valmerix
