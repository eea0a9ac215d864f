#include "demo_window.h"

#include "ui/generic_view.h"
#include "ui/widgets/text_widgets.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class TextFields : public testing::Test
{
protected:
    TextFields()
        : vista(demo)
    {
        EXPECT_TRUE(Esperar(vista));
    }

    QLineEdit& linea(QStringView nombre) { return dynamic_cast<QLineEdit&>(*vista.enlazador().de(nombre)); }
    CampoLargo& largo(QStringView nombre) { return dynamic_cast<CampoLargo&>(*vista.enlazador().de(nombre)); }
    CampoTexto& campo(QStringView nombre) { return demo.campo(nombre); }

    void Pegar(QWidget& donde, const QString& texto)
    {
        QGuiApplication::clipboard()->setText(texto);
        QTest::keyClick(&donde, Qt::Key_V, Qt::ControlModifier);
    }

    VentanaDemo demo;
    VistaGenerica vista;
};

TEST_F(TextFields, TypedKeysReachTheField)
{
    linea(u"BoxMun").setFocus();
    QTest::keyClicks(&linea(u"BoxMun"), u"Calle Mayor 5"_s);
    EXPECT_EQ(campo(u"BoxMun").Text(), u"Calle Mayor 5");
    EXPECT_EQ(campo(u"BoxMun").SelStart(), 13);
}

TEST_F(TextFields, ThePointOfTheNumericBlockWritesTheDecimalComma)
{
    QTest::keyClick(&linea(u"BoxK"), Qt::Key_1);
    QTest::keyClick(&linea(u"BoxK"), '.', Qt::KeypadModifier);
    QTest::keyClicks(&linea(u"BoxK"), u"25"_s);
    EXPECT_EQ(campo(u"BoxK").Text(), u"1,25");
    EXPECT_EQ(linea(u"BoxK").text(), u"1,25");
}

TEST_F(TextFields, AWrongKeyIsSwallowed)
{
    QTest::keyClicks(&linea(u"BoxK"), u"1x2"_s);
    EXPECT_EQ(linea(u"BoxK").text(), u"12");
    EXPECT_EQ(demo.pitidos, 1);
}

TEST_F(TextFields, AStraightApostropheBecomesTheTypographicOne)
{
    QTest::keyClicks(&linea(u"BoxMun"), u"L'Hospitalet"_s);
    EXPECT_EQ(campo(u"BoxMun").Text(), u"L’Hospitalet");
    Pegar(linea(u"BoxMun"), u" d'en Bas"_s);
    EXPECT_EQ(linea(u"BoxMun").text(), u"L’Hospitalet d’en Bas");
}

TEST_F(TextFields, TypingAndPastingStopAtTheGreatestLength)
{
    campo(u"BoxMun").setMaxLength(5);
    QTest::keyClicks(&linea(u"BoxMun"), u"abcdefg"_s);
    EXPECT_EQ(linea(u"BoxMun").text(), u"abcde");
    linea(u"BoxMun").setSelection(1, 2);
    Pegar(linea(u"BoxMun"), u"12345"_s);
    EXPECT_EQ(campo(u"BoxMun").Text(), u"a12de");
}

TEST_F(TextFields, AProcedureMayWriteMoreThanTheGreatestLength)
{
    campo(u"BoxMun").setMaxLength(5);
    campo(u"BoxMun").setText(u"123.456.789"_s);
    EXPECT_EQ(linea(u"BoxMun").text(), u"123.456.789");
    QTest::keyClick(&linea(u"BoxMun"), Qt::Key_7);
    EXPECT_EQ(campo(u"BoxMun").Text(), u"123.456.789");
    QTest::keyClick(&linea(u"BoxMun"), Qt::Key_End);
    QTest::keyClick(&linea(u"BoxMun"), Qt::Key_Backspace);
    EXPECT_EQ(campo(u"BoxMun").Text(), u"123.456.78");
}

TEST_F(TextFields, SixtyThousandCharactersStayWhole)
{
    const QString enorme(60000, u'ñ');
    campo(u"BoxMun").setText(enorme);
    campo(u"txtObservaciones").setText(enorme);
    EXPECT_EQ(linea(u"BoxMun").text(), enorme);
    EXPECT_EQ(largo(u"txtObservaciones").toPlainText(), enorme);
    Pegar(largo(u"txtObservaciones"), enorme);
    EXPECT_EQ(campo(u"txtObservaciones").Text().size(), 120000);
}

TEST_F(TextFields, APasteIsFilteredAndKeepsOneLine)
{
    Pegar(linea(u"BoxK"), u"1.5 m\n"_s);
    EXPECT_EQ(campo(u"BoxK").Text(), u"1,5");
    EXPECT_EQ(linea(u"BoxK").text(), u"1,5");
}

TEST_F(TextFields, UndoTakesBackWhatWasTyped)
{
    QTest::keyClicks(&linea(u"BoxMun"), u"Teruel"_s);
    QTest::keyClick(&linea(u"BoxMun"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(linea(u"BoxMun").text(), u"");
    EXPECT_EQ(campo(u"BoxMun").Text(), u"");
    QTest::keyClick(&linea(u"BoxMun"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(campo(u"BoxMun").Text(), u"Teruel");
}

TEST_F(TextFields, AProcedureThatCorrectsTheFieldWhileTypingIsSeen)
{
    QObject::connect(&campo(u"BoxK"), &CampoTexto::Change, &demo, [this] {
        if (campo(u"BoxK").Text() == u"101")
            campo(u"BoxK").setText(u"100"_s);
    });
    QTest::keyClicks(&linea(u"BoxK"), u"101"_s);
    EXPECT_EQ(linea(u"BoxK").text(), u"100");
    EXPECT_EQ(campo(u"BoxK").Text(), u"100");
}

TEST_F(TextFields, ALockedFieldTakesNothing)
{
    campo(u"BoxTotal").setText(u"1.000"_s);
    QTest::keyClicks(&linea(u"BoxTotal"), u"5"_s);
    Pegar(linea(u"BoxTotal"), u"7"_s);
    EXPECT_EQ(campo(u"BoxTotal").Text(), u"1.000");
    EXPECT_TRUE(linea(u"BoxTotal").isReadOnly());
    campo(u"BoxTotal").setLocked(false);
    EXPECT_FALSE(linea(u"BoxTotal").isReadOnly());
}

TEST_F(TextFields, ComposedTextPassesTheFilters)
{
    QInputMethodEvent compuesto;
    compuesto.setCommitString(u"3.7a"_s);
    QCoreApplication::sendEvent(&linea(u"BoxK"), &compuesto);
    EXPECT_EQ(campo(u"BoxK").Text(), u"3,7");
}

TEST_F(TextFields, DroppedTextPassesTheFilters)
{
    QMimeData datos;
    datos.setText(u"2.5 x"_s);
    QDragEnterEvent llegada(QPoint(3, 3), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&linea(u"BoxK"), &llegada);
    QDropEvent caida(QPointF(3, 3), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&linea(u"BoxK"), &caida);
    EXPECT_EQ(campo(u"BoxK").Text(), u"2,5");
}

TEST_F(TextFields, TheDateMaskKeepsItsBlanks)
{
    QLineEdit& fecha = linea(u"BoxFecha");
    EXPECT_EQ(campo(u"BoxFecha").Text(), u"  /  /    ");
    EXPECT_EQ(fecha.displayText(), u"  /  /    ");
    fecha.setFocus();
    fecha.setCursorPosition(0);
    QTest::keyClicks(&fecha, u"1203"_s);
    EXPECT_EQ(campo(u"BoxFecha").Text(), u"12/03/    ");
    QTest::keyClicks(&fecha, u"2026"_s);
    EXPECT_EQ(campo(u"BoxFecha").Text(), u"12/03/2026");
    campo(u"BoxFecha").setText(u"21/11/2026"_s);
    EXPECT_EQ(fecha.displayText(), u"21/11/2026");
}

TEST_F(TextFields, TheSelectionGoesBothWays)
{
    campo(u"BoxMun").setText(u"Albarracín"_s);
    campo(u"BoxMun").Seleccionar(2, 3);
    EXPECT_EQ(linea(u"BoxMun").selectedText(), u"bar");
    linea(u"BoxMun").setSelection(0, 4);
    EXPECT_EQ(campo(u"BoxMun").SelStart(), 0);
    EXPECT_EQ(campo(u"BoxMun").SelLength(), 4);
}

TEST_F(TextFields, SeveralLinesAreTakenAsTheyAreTyped)
{
    CampoLargo& notas = largo(u"txtObservaciones");
    QTest::keyClicks(&notas, u"Es d'ell"_s);
    QTest::keyClick(&notas, Qt::Key_Return);
    QTest::keyClicks(&notas, u"Fin"_s);
    EXPECT_EQ(campo(u"txtObservaciones").Text(), u"Es d’ell\nFin");
    QTest::keyClick(&notas, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(campo(u"txtObservaciones").Text(), u"Es d’ell\nFin");
}

TEST_F(TextFields, APendingResultCannotBeReadNorSelected)
{
    campo(u"BoxTotal").setText(u"12.000.000"_s);
    campo(u"BoxTotal").setAspecto(Aspecto::Pendiente);
    QLineEdit& total = linea(u"BoxTotal");
    total.selectAll();
    total.setFocus();
    QApplication::processEvents();
    const QImage foto = total.grab(total.rect().adjusted(4, 4, -4, -4)).toImage();
    const QColor superficie = QApplication::palette().color(QPalette::Window);
    const auto dista = [&](const QColor& c) {
        return std::max({std::abs(c.red() - superficie.red()), std::abs(c.green() - superficie.green()),
                         std::abs(c.blue() - superficie.blue())});
    };
    for (int y = 0; y < foto.height(); ++y) {
        for (int x = 0; x < foto.width(); ++x)
            ASSERT_LE(dista(foto.pixelColor(x, y)), 1) << x << ',' << y; // 1: how the painter rounds
    }
    campo(u"BoxTotal").setAspecto(Aspecto::Normal);
    EXPECT_NE(total.palette().color(QPalette::Text), superficie);
}

} // namespace

} // namespace valmerix
