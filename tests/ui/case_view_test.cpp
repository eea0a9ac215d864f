#include "photos.h"
#include "support/fake_ports.h"

#include "ui/case_view.h"
#include "ui/page_columns.h"
#include "ui/widgets/option_widget.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class CaseView : public testing::TestWithParam<const DescripcionForma*>
{
protected:
    CaseView()
        : formulario(*GetParam(), entorno.servicios)
    {
        formulario.IniciarCampos();
        formulario.ActualizarMoneda(u"€"_s);
        formulario.setVisible(true);
        vista = std::make_unique<VistaCaso>(formulario);
        vista->Mostrar();
        vista->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(vista.get()));
    }

    QTabWidget& paginas() { return dynamic_cast<QTabWidget&>(*vista->enlazador().de(u"SSTab1")); }
    QLineEdit& linea(QStringView nombre) { return dynamic_cast<QLineEdit&>(*vista->enlazador().de(nombre)); }

    EntornoDePrueba entorno;
    Formulario formulario;
    std::unique_ptr<VistaCaso> vista;
};

/// The field in hand lies wholly in what the page shows.
void ComprobarALaVista(const QScrollArea& zona)
{
    const QWidget& campo = *QApplication::focusWidget();
    const QRect sitio(campo.mapTo(zona.viewport(), QPoint()), campo.size());
    EXPECT_TRUE(zona.viewport()->rect().contains(sitio)) << qPrintable(campo.objectName());
}

/// What takes the focus on a page, in the order of the tabulator.
std::vector<QWidget*> CamposDe(const QScrollArea& zona)
{
    std::vector<QWidget*> campos;
    for (QWidget* w = zona.widget()->nextInFocusChain(); w != zona.widget(); w = w->nextInFocusChain()) {
        if (zona.isAncestorOf(w) && w->isVisible() && w->isEnabled() && w->focusPolicy() & Qt::TabFocus)
            campos.push_back(w);
    }
    return campos;
}

/// Goes on by that key, through the options of each group too, until it leaves the page or has been round it.
int RecorrerPagina(const QScrollArea& zona, Qt::Key tecla)
{
    QSet<QWidget*> vistos;
    for (QWidget* w = QApplication::focusWidget(); zona.isAncestorOf(w) && !vistos.contains(w);
         w = QApplication::focusWidget()) {
        vistos.insert(w);
        ComprobarALaVista(zona);
        auto* grupo = qobject_cast<GrupoBotones*>(w->parentWidget());
        for (int i = 1; grupo && qobject_cast<QRadioButton*>(w) && i < grupo->cuenta(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            ComprobarALaVista(zona);
        }
        QTest::keyClick(QApplication::focusWidget(), tecla);
    }
    return static_cast<int>(vistos.size());
}

TEST_P(CaseView, ShowsEveryControlOfTheTables)
{
    for (const auto& control : formulario.controles()) {
        if (control->nombre() == u"Image1")
            continue; // the bar itself is what the window is dragged by
        QWidget* widget = vista->enlazador().de(control->nombre());
        ASSERT_NE(widget, nullptr) << qPrintable(control->nombre());
        EXPECT_TRUE(vista->isAncestorOf(widget)) << qPrintable(control->nombre());
    }
}

TEST_P(CaseView, EveryControlHasANameForWhoCannotSeeIt)
{
    for (const auto& control : formulario.controles()) {
        QWidget* widget = vista->enlazador().de(control->nombre());
        if (!widget || !control->aceptaFoco() || qobject_cast<GrupoBotones*>(widget) || widget == &paginas())
            continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << qPrintable(control->nombre());
    }
    for (const auto* boton : vista->findChildren<QAbstractButton*>()) {
        if (!boton->objectName().startsWith(u"qt_") && boton->focusPolicy() != Qt::NoFocus) {
            EXPECT_FALSE(boton->text().isEmpty() && boton->accessibleName().isEmpty())
                << qPrintable(boton->objectName());
        }
    }
}

TEST_P(CaseView, FitsASmallScreenWithTheToolbarBesideIt)
{
    EXPECT_LE(vista->width(), 1100);
    EXPECT_LE(vista->height(), 760);
    for (int i = 0; i < paginas().count(); ++i) {
        paginas().setCurrentIndex(i);
        QApplication::processEvents();
        const auto* zona = qobject_cast<QScrollArea*>(paginas().widget(i));
        EXPECT_EQ(zona->horizontalScrollBar()->maximum(), 0) << "page " << i;
        EXPECT_EQ(zona->verticalScrollBar()->maximum(), 0) << "page " << i;
        Fotografiar(*vista, formulario.nombre() + u"-"_s + QString::number(i + 1));
    }
}

TEST_P(CaseView, TheTabulatorGoesThroughAPageAsTheTableReads)
{
    paginas().setCurrentIndex(0);
    formulario.Enfocar(u"BoxPlaza");
    QStringList orden{u"BoxPlaza"_s};
    while (orden.size() < 24) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (orden.back() != formulario.conFoco()->nombre())
            orden += formulario.conFoco()->nombre();
    }
    QStringList tabla;
    for (const auto& control : formulario.controles()) {
        if (control->aceptaFoco() && control->nombre() != u"SSTab1" && tabla.size() < orden.size())
            tabla += control->nombre();
    }
    EXPECT_EQ(orden, tabla);
}

TEST_P(CaseView, TheFieldInHandIsAlwaysInSightHoweverSmallTheWindow)
{
    vista->resize(640, 360);
    int desplazables = 0;
    for (int i = 0; i < paginas().count(); ++i) {
        SCOPED_TRACE(i);
        paginas().setCurrentIndex(i);
        QApplication::processEvents();
        const auto& zona = dynamic_cast<QScrollArea&>(*paginas().widget(i));
        desplazables += zona.verticalScrollBar()->maximum() > 0 ? 1 : 0;
        const std::vector<QWidget*> campos = CamposDe(zona);
        ASSERT_FALSE(campos.empty());
        campos.front()->setFocus(Qt::TabFocusReason);
        EXPECT_GT(RecorrerPagina(zona, Qt::Key_Tab), 2);
        campos.back()->setFocus(Qt::BacktabFocusReason);
        EXPECT_GT(RecorrerPagina(zona, Qt::Key_Backtab), 2);
    }
    EXPECT_GT(desplazables, 4);
}

TEST_P(CaseView, TheFocusOfAProcedureTurnsToItsPage)
{
    paginas().setCurrentIndex(0);
    formulario.Enfocar(u"BoxK");
    EXPECT_EQ(paginas().currentIndex(), 4);
    EXPECT_EQ(formulario.como<Solapas>(u"SSTab1").Tab(), 4);
    EXPECT_EQ(QApplication::focusWidget(), &linea(u"BoxK"));
}

TEST_P(CaseView, TheWindowsButtonsTurnThePages)
{
    auto* anterior = vista->findChild<QAbstractButton*>(u"SSCommand4"_s);
    auto* siguiente = vista->findChild<QAbstractButton*>(u"SSCommand5"_s);
    QTest::mouseClick(anterior, Qt::LeftButton);
    EXPECT_EQ(paginas().currentIndex(), 6);
    QTest::mouseClick(siguiente, Qt::LeftButton);
    QTest::mouseClick(siguiente, Qt::LeftButton);
    EXPECT_EQ(paginas().currentIndex(), 1);
    EXPECT_EQ(formulario.conFoco()->nombre(), u"SSTab1");
}

TEST_P(CaseView, TypingFiguresLeavesPendingResultsThatTheButtonMakesCurrent)
{
    formulario.Enfocar(u"BoxK");
    QTest::keyClicks(&linea(u"BoxK"), u"1.5"_s);
    EXPECT_EQ(formulario.texto(u"BoxK"), u"1,5");
    EXPECT_EQ(formulario.control(u"BoxTotal").aspecto(), Aspecto::Pendiente);
    auto* calcular = dynamic_cast<QPushButton*>(vista->enlazador().de(u"SSCommand7"));
    ASSERT_TRUE(calcular->isEnabled());
    QTest::mouseClick(calcular, Qt::LeftButton);
    EXPECT_EQ(formulario.control(u"BoxTotal").aspecto(), Aspecto::Normal);
}

TEST_P(CaseView, TheFreeTextStandsBesideItsOption)
{
    paginas().setCurrentIndex(3);
    QApplication::processEvents();
    const auto* madera = dynamic_cast<GrupoBotones*>(vista->enlazador().de(u"CarpInt"));
    const QWidget& roble = linea(u"BoxRoble");
    const int opcion = madera->boton(4)->mapTo(vista.get(), madera->boton(4)->rect().center()).y();
    EXPECT_NEAR(roble.mapTo(vista.get(), roble.rect().center()).y(), opcion, 3);
    linea(u"BoxRoble").setFocus();
    QTest::keyClicks(&linea(u"BoxRoble"), u"Haya"_s);
    EXPECT_TRUE(madera->boton(4)->isChecked());
}

TEST_P(CaseView, MnemonicsOfPagesAndButtonsAreUnique)
{
    QStringList letras;
    for (int i = 0; i < paginas().count(); ++i)
        letras += QKeySequence::mnemonic(paginas().tabText(i)).toString();
    for (const auto* boton : vista->findChildren<QPushButton*>()) {
        if (const QKeySequence atajo = QKeySequence::mnemonic(boton->text()); !atajo.isEmpty())
            letras += atajo.toString();
    }
    EXPECT_EQ(QSet<QString>(letras.begin(), letras.end()).size(), letras.size())
        << qPrintable(letras.join(u' '));
    EXPECT_GT(letras.size(), 9);
}

INSTANTIATE_TEST_SUITE_P(Kinds, CaseView,
                         testing::Values(&kDescripcionPiso, &kDescripcionApto, &kDescripcionCasa),
                         [](const auto& tipo) { return tipo.param->ventana.toString().toStdString(); });

TEST(PageColumns, KeepTheOrderAndTheHighestColumnAsLowAsCanBe)
{
    EXPECT_EQ(RepartirEnColumnas({10, 10, 10, 10}, 2), (std::vector<int>{2, 2}));
    EXPECT_EQ(RepartirEnColumnas({30, 10, 10, 10}, 2), (std::vector<int>{1, 3}));
    EXPECT_EQ(RepartirEnColumnas({10, 20, 30, 5}, 3), (std::vector<int>{2, 1, 1}));
    EXPECT_EQ(RepartirEnColumnas({50}, 3), (std::vector<int>{1}));
    EXPECT_EQ(RepartirEnColumnas({}, 2), (std::vector<int>{0}));
    EXPECT_EQ(AltoDe({30, 10, 10, 10}, {1, 3}), 30);
}

} // namespace

} // namespace valmerix
