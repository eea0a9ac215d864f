// The keys of the toolbar's commands, with the toolbar open and closed.

#include "windows_fixture.h"

#include <QShortcut>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class ToolbarKeys : public Windows
{
protected:
    ToolbarKeys()
    {
        AbrirPiso();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Vista(forma())));
        forma().lista(u"cboNombreTasador").Elegir(0);
    }

    Formulario& forma() { return *aplicacion.FormularioActual(); }
    void CerrarPaleta()
    {
        forma().boton(u"SSCommand3").Pulsar();
        ASSERT_EQ(aplicacion.paleta(), nullptr);
    }
    void Pulsar_(Qt::Key tecla) // with Ctrl, in a field of the case
    {
        QTest::keyClick(Vista(forma()).enlazador().de(u"BoxMun"), tecla, Qt::ControlModifier);
    }
    qint32 numero() { return aplicacion.compartido().NumeroTasacionActual; }
};

TEST_F(ToolbarKeys, SaveOnceWithTheToolbarOpen)
{
    Pulsar_(Qt::Key_S);
    EXPECT_EQ(numero(), 5);
    EXPECT_TRUE(dialogos.preguntas.empty()) << "a second save would have asked";
    EXPECT_TRUE(Boton_(Vista(*aplicacion.paleta()), u"Botonera(5)"_s).toolTip().endsWith(u"(Ctrl+S)"));
}

TEST_F(ToolbarKeys, SaveOnceWithTheToolbarClosed)
{
    CerrarPaleta();
    Pulsar_(Qt::Key_S);
    EXPECT_EQ(numero(), 5);
    EXPECT_TRUE(dialogos.preguntas.empty());
    EXPECT_EQ(aplicacion.paleta(), nullptr) << "it stays as she wants it";
}

TEST_F(ToolbarKeys, SaveOnceAfterTheToolbarHasComeAndGone)
{
    for (int i = 0; i < 4; ++i)
        forma().boton(u"SSCommand3").Pulsar();
    Pulsar_(Qt::Key_S);
    EXPECT_EQ(numero(), 5);
    EXPECT_TRUE(dialogos.preguntas.empty());
}

TEST_F(ToolbarKeys, FindTheFieldInHandWorkedOutWithoutAToolbarToo)
{
    CerrarPaleta();
    Teclear(u"BoxConst", u"100"_s);
    QStringList sucesos;
    QObject::connect(&forma().control(u"BoxConst"), &Control::LostFocus, &forma(),
                     [&] { sucesos += forma().texto(u"BoxConst"); });
    QTest::keyClick(Vista(forma()).enlazador().de(u"BoxConst"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(sucesos, QStringList({u"100,00"_s}));
}

TEST_F(ToolbarKeys, WorkInTheToolbarAndInTheViewerToo)
{
    QTest::keyClick(&Vista(*aplicacion.paleta()), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(numero(), 5);
    CerrarPaleta();
    QTest::keyClick(&Vista(forma()), Qt::Key_F9);
    ASSERT_TRUE(QTest::qWaitFor([&] { return aplicacion.visor() && pantalla.vista(*aplicacion.visor()); }));
    VistaVentana& visor = Vista(*aplicacion.visor());
    visor.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&visor));
    dialogos.respuestas.push_back(false);
    QTest::keyClick(&Informe(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(dialogos.preguntas.size(), 1U) << "whether the stored case is to be replaced, once";
    QTest::keyClick(&Informe(), Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(aplicacion.visor(), nullptr);
}

TEST_F(ToolbarKeys, DoNothingWhileTheirButtonIsDisabled)
{
    aplicacion.paleta()->boton(u"Botonera(5)").setEnabled(false);
    Pulsar_(Qt::Key_S);
    EXPECT_EQ(numero(), 0);
}

TEST_F(ToolbarKeys, OfCommandsThatAreToComeDoNothing)
{
    CerrarPaleta();
    for (const auto tecla : {Qt::Key_O, Qt::Key_I, Qt::Key_E, Qt::Key_L, Qt::Key_T})
        Pulsar_(tecla);
    EXPECT_EQ(VistaModal(), nullptr);
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_EQ(forma().texto(u"BoxMun"), QString());
}

TEST_F(ToolbarKeys, WaitBehindAQuestionAndEndWithTheCase)
{
    CerrarPaleta();
    EnElModal([&] {
        QTest::keyClick(VistaModal(), Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(numero(), 0);
        Pulsar(*VistaModal(), u"SSCommand1"_s);
    });
    Pulsar_(Qt::Key_R);
    ASSERT_NE(aplicacion.inicio(), nullptr);
    QTest::keyClick(&Vista(*aplicacion.inicio()), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(numero(), 0);
}

TEST_F(ToolbarKeys, AreEachThereOnceAndDoNotRepeat)
{
    QStringList teclas;
    for (const QWidget* ventana : QApplication::topLevelWidgets()) {
        if (!ventana->isVisible())
            continue;
        for (const QShortcut* atajo : ventana->findChildren<QShortcut*>()) {
            if (atajo->context() != Qt::ApplicationShortcut)
                continue;
            teclas << atajo->key().toString();
            EXPECT_FALSE(atajo->autoRepeat()) << qPrintable(teclas.back());
        }
    }
    EXPECT_EQ(teclas.size(), 11) << "all but F1, which is every window's own";
    EXPECT_EQ(teclas.removeDuplicates(), 0);
}

} // namespace

} // namespace valmerix
