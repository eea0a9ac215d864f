#include "demo_window.h"

#include "ui/generic_view.h"
#include "ui/widgets/list_widget.h"
#include "ui/widgets/option_widget.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class Binding : public testing::Test
{
protected:
    Binding()
        : vista(demo)
    {
        EXPECT_TRUE(Esperar(vista));
    }

    template <class W>
    W& widget(QStringView nombre)
    {
        return dynamic_cast<W&>(*vista.enlazador().de(nombre));
    }

    static void Girar(QWidget& donde, int pasos)
    {
        QWheelEvent rueda(QPointF(5, 5), donde.mapToGlobal(QPointF(5, 5)), {}, {0, 120 * pasos}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&donde, &rueda);
    }

    VentanaDemo demo;
    VistaGenerica vista;
};

TEST_F(Binding, EveryWidgetBearsItsControlsNameAndItsCaptionForScreenReaders)
{
    for (const auto& control : demo.controles()) {
        QWidget* w = vista.enlazador().de(control->nombre());
        ASSERT_NE(w, nullptr) << qPrintable(control->nombre());
        EXPECT_EQ(w->objectName(), control->nombre());
    }
    EXPECT_EQ(widget<QWidget>(u"BoxMun").accessibleName(), u"Municipio");
}

TEST_F(Binding, TabFollowsTheOrderOfTheControls)
{
    demo.Enfocar(u"BoxMun");
    QStringList orden;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        orden += demo.conFoco()->nombre();
    }
    EXPECT_EQ(orden,
              QStringList({u"BoxK"_s, u"BoxFecha"_s, u"cboZona"_s, u"cboNombreTasador"_s, u"CheckAgua"_s}));
}

TEST_F(Binding, MovingTheFocusRaisesTheEventsOfBothFields)
{
    QStringList sucesos;
    QObject::connect(&demo.campo(u"BoxMun"), &Control::LostFocus, &demo, [&] { sucesos += u"sale"_s; });
    QObject::connect(&demo.campo(u"BoxK"), &Control::GotFocus, &demo, [&] {
        sucesos += u"entra"_s;
        demo.campo(u"BoxK").setText(u"1,25"_s);
        demo.campo(u"BoxK").SeleccionarTodo();
    });
    demo.Enfocar(u"BoxMun");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(sucesos, QStringList({u"sale"_s, u"entra"_s}));
    EXPECT_EQ(widget<QLineEdit>(u"BoxK").selectedText(), u"1,25");
}

TEST_F(Binding, AClickKeepsTheSelectionThatTheFieldMadeOnGettingTheFocus)
{
    demo.campo(u"BoxK").setText(u"1,25"_s);
    QObject::connect(&demo.campo(u"BoxK"), &Control::GotFocus, &demo,
                     [&] { demo.campo(u"BoxK").SeleccionarTodo(); });
    demo.Enfocar(u"BoxMun");
    auto& k = widget<QLineEdit>(u"BoxK");
    QTest::mouseClick(&k, Qt::LeftButton, {}, k.rect().center());
    EXPECT_EQ(demo.conFoco(), &demo.campo(u"BoxK"));
    EXPECT_EQ(k.selectedText(), u"1,25");
    QTest::mouseClick(&k, Qt::LeftButton, {}, QPoint(8, k.height() / 2));
    EXPECT_EQ(k.selectedText(), u"");
}

TEST_F(Binding, AMenuOrAnotherWindowTakesTheFocusWithoutEndingTheFieldsTurn)
{
    demo.Enfocar(u"BoxK");
    int salidas = 0;
    QObject::connect(&demo.campo(u"BoxK"), &Control::LostFocus, &demo, [&] { ++salidas; });
    for (const auto motivo : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent sale(QEvent::FocusOut, motivo);
        QCoreApplication::sendEvent(&widget<QLineEdit>(u"BoxK"), &sale);
        QFocusEvent vuelve(QEvent::FocusIn, motivo);
        QCoreApplication::sendEvent(&widget<QLineEdit>(u"BoxK"), &vuelve);
    }
    EXPECT_EQ(salidas, 0);
    EXPECT_EQ(demo.conFoco(), &demo.campo(u"BoxK"));
}

TEST_F(Binding, AProcedureMovesTheFocusOnScreen)
{
    QObject::connect(&demo.casilla(u"CheckAgua"), &Casilla::Click, &demo, [&] { demo.Enfocar(u"BoxFin"); });
    auto& agua = widget<QCheckBox>(u"CheckAgua");
    QTest::mouseClick(&agua, Qt::LeftButton, {}, QPoint(8, agua.height() / 2));
    EXPECT_TRUE(demo.marcada(u"CheckAgua"));
    EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(u"BoxFin"));
}

TEST_F(Binding, TicksGoBothWays)
{
    demo.casilla(u"CheckAgua").setValue(1);
    EXPECT_TRUE(widget<QCheckBox>(u"CheckAgua").isChecked());
    QTest::keyClick(&widget<QCheckBox>(u"CheckAgua"), Qt::Key_Space);
    EXPECT_FALSE(demo.marcada(u"CheckAgua"));
}

TEST_F(Binding, OptionsGoBothWaysAndMayAllBeClear)
{
    auto& grupo = widget<GrupoBotones>(u"Finalidad");
    QTest::mouseClick(grupo.boton(1), Qt::LeftButton, {}, QPoint(8, grupo.boton(1)->height() / 2));
    EXPECT_EQ(demo.opciones(u"Finalidad").elegida(), 1);
    demo.opciones(u"Finalidad").Quitar();
    EXPECT_FALSE(grupo.boton(1)->isChecked());
    demo.opciones(u"Finalidad").Elegir(2);
    EXPECT_TRUE(grupo.boton(2)->isChecked());
    EXPECT_FALSE(grupo.boton(0)->isChecked());
}

TEST_F(Binding, DisabledHiddenAndHelpedControlsAreSoOnScreen)
{
    demo.boton(u"SSCommand7").setEnabled(false);
    demo.boton(u"SSCommand7").setToolTip(u"Falta el coeficiente"_s);
    EXPECT_FALSE(widget<QPushButton>(u"SSCommand7").isEnabled());
    EXPECT_EQ(widget<QPushButton>(u"SSCommand7").toolTip(), u"Falta el coeficiente");
    demo.casilla(u"CheckAgua").setVisible(false);
    EXPECT_FALSE(widget<QCheckBox>(u"CheckAgua").isVisible());
}

TEST_F(Binding, AButtonPressedByItsMnemonicClicks)
{
    int pulsado = 0;
    QObject::connect(&demo.boton(u"SSCommand7"), &Boton::Click, &demo, [&] { ++pulsado; });
    EXPECT_EQ(widget<QPushButton>(u"SSCommand7").text(), u"&Calcular");
    QTest::keyClick(&vista, Qt::Key_C, Qt::AltModifier);
    QTest::qWait(150); // the button shows itself pressed for a moment
    EXPECT_EQ(pulsado, 1);
}

TEST_F(Binding, AnOpenListTakesTypedTextAsItIs)
{
    auto& zona = widget<CajaLista>(u"cboZona");
    QTest::keyClicks(&zona, u"media"_s);
    QTest::keyClick(&zona, Qt::Key_Return);
    QTest::keyClick(&zona, Qt::Key_Tab);
    EXPECT_EQ(demo.lista(u"cboZona").Text(), u"media");
    EXPECT_EQ(zona.currentText(), u"media");
}

TEST_F(Binding, ChoosingFromAListRaisesClickOnce)
{
    int elegidas = 0;
    QObject::connect(&demo.lista(u"cboZona"), &Lista::Click, &demo, [&] { ++elegidas; });
    auto& zona = widget<CajaLista>(u"cboZona");
    zona.setFocus();
    QTest::keyClick(&zona, Qt::Key_Down);
    EXPECT_EQ(demo.lista(u"cboZona").Text(), u"Media");
    QTest::keyClick(&zona, Qt::Key_Down);
    EXPECT_EQ(zona.currentText(), u"Buena");
    zona.showPopup();
    QTest::keyClick(zona.view(), Qt::Key_Down);
    QTest::keyClick(zona.view(), Qt::Key_Return);
    EXPECT_EQ(demo.lista(u"cboZona").Text(), u"Mala");
    EXPECT_EQ(elegidas, 3);
}

TEST_F(Binding, AClosedListShowsItsItemOrNothing)
{
    auto& tasador = widget<CajaLista>(u"cboNombreTasador");
    EXPECT_EQ(tasador.currentIndex(), -1);
    demo.lista(u"cboNombreTasador").setText(u"Luis Peña"_s);
    EXPECT_EQ(tasador.currentText(), u"Luis Peña");
    demo.lista(u"cboNombreTasador").setText(u"Nadie"_s);
    EXPECT_EQ(tasador.currentIndex(), -1);
    demo.lista(u"cboNombreTasador").AddItem(u"Marta Gil"_s);
    EXPECT_EQ(tasador.count(), 3);
    EXPECT_EQ(tasador.currentIndex(), -1);
}

TEST_F(Binding, TheWheelLeavesAListAloneWithoutTheFocus)
{
    demo.Enfocar(u"BoxMun");
    demo.lista(u"cboZona").setText(u"Buena"_s);
    auto& zona = widget<CajaLista>(u"cboZona");
    Girar(zona, -1);
    EXPECT_EQ(demo.lista(u"cboZona").Text(), u"Buena");
    zona.setFocus();
    Girar(zona, -1);
    EXPECT_EQ(demo.lista(u"cboZona").Text(), u"Mala");
}

TEST_F(Binding, GridsShowTheirRowsAndTellTheClicks)
{
    auto& tabla = widget<QTableView>(u"Flexi");
    ASSERT_EQ(tabla.model()->rowCount(), 2);
    EXPECT_TRUE(tabla.isColumnHidden(0));
    EXPECT_EQ(tabla.model()->index(1, 1).data().toString(), u"Luis Peña");
    EXPECT_EQ(tabla.model()->headerData(2, Qt::Horizontal).toString(), u"Población");
    int dobles = 0;
    QObject::connect(&demo.rejilla(u"Flexi"), &Rejilla::DblClick, &demo, [&] { ++dobles; });
    const QPoint sitio = tabla.visualRect(tabla.model()->index(1, 1)).center();
    QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {}, sitio);
    QTest::mouseDClick(tabla.viewport(), Qt::LeftButton, {}, sitio);
    EXPECT_EQ(demo.rejilla(u"Flexi").Row(), 2);
    EXPECT_EQ(dobles, 1);
    demo.rejilla(u"Flexi").AddItem(u"\tMarta Gil\tSoria"_s);
    EXPECT_EQ(tabla.model()->rowCount(), 3);
}

TEST_F(Binding, LooseKeysGoToTheWindow)
{
    QList<int> teclas;
    QObject::connect(&demo, &Ventana::KeyDown, &demo, [&](int tecla) { teclas += tecla; });
    QTest::keyClick(&widget<QLineEdit>(u"BoxMun"), Qt::Key_Escape);
    EXPECT_EQ(teclas, QList<int>({Qt::Key_Escape}));
}

TEST_F(Binding, MnemonicsAreUniqueInAWindow)
{
    Ventana botones(u"Botones"_s);
    std::vector<Control*> todos;
    for (const auto& titulo : {u"Abrir"_s, u"Actualizar"_s, u"A"_s, u"Salir & volver"_s, u"Ñu"_s}) {
        auto& boton = botones.Añadir<Boton>(titulo);
        boton.setCaption(titulo);
        todos.push_back(&boton);
    }
    VistaGenerica otra(botones);
    QStringList letras;
    for (const auto* boton : otra.findChildren<QPushButton*>()) {
        const QKeySequence atajo = QKeySequence::mnemonic(boton->text());
        if (!atajo.isEmpty())
            letras += atajo.toString();
    }
    EXPECT_EQ(letras, QStringList({u"Alt+A"_s, u"Alt+C"_s, u"Alt+S"_s, u"Alt+U"_s}));
    EXPECT_EQ(otra.findChild<QPushButton*>(u"Salir & volver"_s)->text(), u"&Salir && volver");
}

TEST_F(Binding, AViewWhoseModelHasGoneDoesNothing)
{
    auto modelo = std::make_unique<VentanaDemo>();
    VistaGenerica otra(*modelo);
    otra.show();
    auto* mun = dynamic_cast<QLineEdit*>(otra.enlazador().de(u"BoxMun"));
    auto* agua = dynamic_cast<QCheckBox*>(otra.enlazador().de(u"CheckAgua"));
    otra.Soltar();
    modelo.reset();
    QTest::keyClicks(mun, u"abc"_s);
    QTest::keyClick(agua, Qt::Key_Space);
    otra.resize(500, 400);
    EXPECT_EQ(mun->text(), u"abc");
    EXPECT_TRUE(agua->isChecked());
}

} // namespace

} // namespace valmerix
