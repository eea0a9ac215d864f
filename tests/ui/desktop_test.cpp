#include "demo_window.h"

#include "ui/desktop.h"
#include "ui/dialogs.h"
#include "ui/look/application.h"
#include "ui/machine.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

AplicacionQt& Aplicacion()
{
    return dynamic_cast<AplicacionQt&>(*QCoreApplication::instance());
}

void PulsarEnLaCaja(const QString& titulo)
{
    QTimer::singleShot(0, qApp, [titulo] {
        const auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(caja, nullptr);
        for (auto* boton : caja->buttons()) {
            if (boton->text().remove(u'&') == titulo)
                boton->click();
        }
    });
}

TEST(Desktop, AShownWindowHasAViewUntilItCloses)
{
    PantallaQt pantalla;
    VentanaDemo demo;
    pantalla.Mostrar(demo);
    ASSERT_NE(pantalla.vista(demo), nullptr);
    EXPECT_TRUE(pantalla.vista(demo)->isVisible());
    EXPECT_EQ(pantalla.vista(demo)->windowTitle(), u"Ventana de prueba");
    demo.Cerrar();
    EXPECT_EQ(pantalla.vista(demo), nullptr);
}

TEST(Desktop, AWindowThatIsDestroyedTakesItsViewWithIt)
{
    PantallaQt pantalla;
    auto demo = std::make_unique<VentanaDemo>();
    pantalla.Mostrar(*demo);
    const QPointer<QWidget> vista = pantalla.vista(*demo);
    demo.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vista.isNull() || !vista->isVisible());
}

TEST(Desktop, ABoxOutlivesTheWindowItStandsOver)
{
    PantallaQt pantalla;
    auto demo = std::make_unique<VentanaDemo>();
    pantalla.Mostrar(*demo);
    QPointer<QWidget> vista = pantalla.vista(*demo);
    ASSERT_TRUE(QTest::qWaitForWindowActive(vista));
    QTimer::singleShot(0, qApp, [&] {
        const QPointer<QWidget> caja = QApplication::activeModalWidget();
        ASSERT_NE(caja, nullptr);
        ASSERT_EQ(caja->parentWidget(), vista);
        demo.reset();
        QTimer::singleShot(0, qApp, [caja, vista] { // the turn in which what has been put off is deleted
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            EXPECT_FALSE(vista.isNull() || vista->isVisible());
            ASSERT_TRUE(caja && caja->isVisible());
            QTest::keyClick(caja, Qt::Key_Return);
        });
    });
    DialogosQt().Mensaje(u"Falta elegir el tasador."_s, u"Aviso"_s, IconoMensaje::Aviso);
    EXPECT_TRUE(QTest::qWaitFor([&] { return vista.isNull(); }));
}

TEST(Desktop, ABoxDoesNotStandOverAWindowThatIsGone)
{
    PantallaQt pantalla;
    auto demo = std::make_unique<VentanaDemo>();
    pantalla.Mostrar(*demo);
    const QPointer<QWidget> vista = pantalla.vista(*demo);
    demo.reset();
    QApplication::setActiveWindow(vista); // as when its activation is told late
    ASSERT_NE(vista, nullptr);
    PulsarEnLaCaja(u"Aceptar"_s);
    DialogosQt().Mensaje(u"Falta elegir el tasador."_s, u"Aviso"_s, IconoMensaje::Aviso);
    EXPECT_EQ(vista, nullptr) << "deleted while the box stood there";
}

TEST(Desktop, ShowingModallyReturnsOnceTheWindowIsClosed)
{
    PantallaQt pantalla;
    VentanaDemo demo;
    QObject::connect(&demo.boton(u"SSCommand7"), &Boton::Click, &demo, [&] { demo.Cerrar(); });
    QTimer::singleShot(0, &demo, [&] {
        auto* boton = pantalla.vista(demo)->findChild<QAbstractButton*>(u"SSCommand7"_s);
        QTest::mouseClick(boton, Qt::LeftButton);
    });
    pantalla.MostrarModal(demo);
    EXPECT_FALSE(demo.abierta());
}

TEST(Desktop, AModalWindowMayOpenAnotherOne)
{
    PantallaQt pantalla;
    VentanaDemo primera(u"Primera"_s);
    VentanaDemo segunda(u"Segunda"_s);
    QStringList cierres;
    QTimer::singleShot(0, &primera, [&] {
        QTimer::singleShot(0, &segunda, [&] { segunda.Cerrar(); });
        pantalla.MostrarModal(segunda);
        cierres += u"segunda"_s;
        primera.Cerrar();
    });
    pantalla.MostrarModal(primera);
    cierres += u"primera"_s;
    EXPECT_EQ(cierres, QStringList({u"segunda"_s, u"primera"_s}));
}

TEST(Desktop, ClosingTheWindowOnScreenAsksTheModel)
{
    class Terca : public VentanaDemo
    {
    public:
        bool cede = false;

    protected:
        bool PuedeCerrar() override { return cede; }
    };
    PantallaQt pantalla;
    Terca terca;
    pantalla.Mostrar(terca);
    pantalla.vista(terca)->close();
    EXPECT_TRUE(terca.abierta());
    EXPECT_TRUE(pantalla.vista(terca)->isVisible());
    terca.cede = true;
    pantalla.vista(terca)->close();
    EXPECT_FALSE(terca.abierta());
}

TEST(Desktop, PlaceAndVisibilityFollowTheModelAndTellItBack)
{
    VentanaDemo demo;
    demo.Mover(QRect(40, 30, 640, 600));
    demo.setVisible(true);
    VistaVentana vista(demo, Marco::Propio);
    vista.Mostrar();
    EXPECT_EQ(vista.geometry(), QRect(40, 30, 640, 600));
    demo.Mover(QRect(60, 50, 640, 600));
    EXPECT_EQ(vista.pos(), QPoint(60, 50));
    vista.move(10, 20);
    QApplication::processEvents();
    EXPECT_EQ(demo.lugar(), QRect(10, 20, 640, 600));
    demo.setVisible(false);
    EXPECT_FALSE(vista.isVisible());
}

TEST(Desktop, TheStateGoesBothWays)
{
    PantallaQt pantalla;
    VentanaDemo demo;
    pantalla.Mostrar(demo);
    demo.setWindowState(EstadoVentana::Minimizada);
    EXPECT_TRUE(pantalla.vista(demo)->isMinimized());
    pantalla.vista(demo)->showNormal();
    QApplication::processEvents();
    EXPECT_EQ(demo.WindowState(), EstadoVentana::Normal);
}

TEST(Desktop, ClocksTickWhileTheyAreEnabled)
{
    Ventana ventana(u"Reloj"_s);
    auto& reloj = ventana.Añadir<Temporizador>(u"Timer1"_s);
    reloj.setInterval(5);
    reloj.setEnabled(false);
    int tics = 0;
    QObject::connect(&reloj, &Temporizador::Timer, &ventana, [&] {
        if (++tics == 3)
            reloj.setEnabled(false);
    });
    PantallaQt pantalla;
    pantalla.Mostrar(ventana);
    QTest::qWait(30);
    EXPECT_EQ(tics, 0);
    reloj.setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tics == 3; }, 2000));
    QTest::qWait(30);
    EXPECT_EQ(tics, 3);
}

TEST(Desktop, AFailureOfAProcedureIsToldAndTheWindowStays)
{
    QString contado;
    Aplicacion().setInforme([&](const std::exception& fallo) { contado = QString::fromUtf8(fallo.what()); });
    PantallaQt pantalla;
    VentanaDemo demo;
    QObject::connect(&demo.boton(u"SSCommand7"), &Boton::Click, &demo,
                     [] { throw std::runtime_error("disco lleno"); });
    pantalla.Mostrar(demo);
    demo.campo(u"BoxMun").setText(u"Teruel"_s);
    QTest::mouseClick(pantalla.vista(demo)->findChild<QAbstractButton*>(u"SSCommand7"_s), Qt::LeftButton);
    Aplicacion().setInforme({});
    EXPECT_EQ(contado, u"disco lleno");
    EXPECT_TRUE(pantalla.vista(demo)->isVisible());
    EXPECT_EQ(demo.texto(u"BoxMun"), u"Teruel");
}

TEST(Desktop, AFailureOfALooseEventIsToldToo)
{
    QString contado;
    Aplicacion().setInforme([&](const std::exception& fallo) { contado = QString::fromUtf8(fallo.what()); });
    class Receptor : public QObject
    {
        bool event(QEvent* /*evento*/) override { throw std::runtime_error("suelto"); }
    } receptor;
    QEvent evento(QEvent::User);
    QCoreApplication::sendEvent(&receptor, &evento);
    Aplicacion().setInforme({});
    EXPECT_EQ(contado, u"suelto");
}

TEST(Dialogs, AQuestionIsAnsweredInSpanish)
{
    DialogosQt dialogos;
    PulsarEnLaCaja(u"Sí"_s);
    EXPECT_TRUE(dialogos.Preguntar(u"¿Desea introducirlos ahora?"_s, u"Aviso"_s, IconoMensaje::Pregunta));
    PulsarEnLaCaja(u"No"_s);
    EXPECT_FALSE(dialogos.Preguntar(u"¿Desea introducirlos ahora?"_s, u"Aviso"_s, IconoMensaje::Pregunta));
}

TEST(Dialogs, ClosingAQuestionIsNo)
{
    DialogosQt dialogos;
    QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    EXPECT_FALSE(dialogos.Preguntar(u"¿Seguro?"_s, u"Aviso"_s, IconoMensaje::Pregunta));
}

TEST(Dialogs, AMessageShowsItsTextAndTitleAsTheyStand)
{
    DialogosQt dialogos;
    QString texto;
    QString titulo;
    QTimer::singleShot(0, qApp, [&] {
        const auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        texto = caja->text();
        titulo = caja->windowTitle();
    });
    PulsarEnLaCaja(u"Aceptar"_s);
    dialogos.Mensaje(u"Función <b>Buscar</b>"_s, u"Error"_s, IconoMensaje::Critico);
    EXPECT_EQ(texto, u"Función <b>Buscar</b>");
    EXPECT_EQ(titulo, u"Error");
}

TEST(Dialogs, TheErrorReportGoesOnUnlessToldToClose)
{
    DialogosQt dialogos;
    PulsarEnLaCaja(u"Continuar"_s);
    EXPECT_TRUE(dialogos.InformarFallo(u"No se ha podido guardar"_s, u"disk full"_s));
    PulsarEnLaCaja(u"Cerrar Valmerix"_s);
    EXPECT_FALSE(dialogos.InformarFallo(u"No se ha podido guardar"_s, u"disk full"_s));
    QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    EXPECT_TRUE(dialogos.InformarFallo(u"No se ha podido guardar"_s, u"disk full"_s));
}

TEST(Dialogs, TheCalendarGivesTheChosenDayOrNothing)
{
    DialogosQt dialogos;
    QTimer::singleShot(0, qApp, [] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(QApplication::activeModalWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(dialogos.MostrarCalendario({2026, 11, 20}), QDate(2026, 11, 21));
    QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    EXPECT_EQ(dialogos.MostrarCalendario({2026, 11, 20}), std::nullopt);
}

TEST(Machine, TheProgramFolderIsThatOfTheExecutableWhenItHoldsOrMayHoldTheData)
{
    const QTemporaryDir base;
    const QString usuario = base.filePath(u"usuario"_s);
    ASSERT_TRUE(QDir(base.path()).mkpath(u"propia"_s));
    ASSERT_TRUE(QDir(base.path()).mkpath(u"bin"_s));
    ASSERT_TRUE(QDir(base.path()).mkpath(u"llena/bin/Datos"_s));
    EXPECT_EQ(CarpetaDelPrograma(base.filePath(u"propia"_s), usuario), base.filePath(u"propia"_s));
    EXPECT_EQ(CarpetaDelPrograma(base.filePath(u"bin"_s), usuario), usuario);
    EXPECT_EQ(CarpetaDelPrograma(base.filePath(u"llena/bin"_s), usuario), base.filePath(u"llena/bin"_s));
    EXPECT_EQ(CarpetaDelPrograma(base.filePath(u"no-existe"_s), usuario), usuario);
}

TEST(Machine, OneInstanceForEachProgramFolder)
{
    const QTemporaryDir una;
    const QTemporaryDir otra;
    SistemaQt primera(una.path());
    EXPECT_FALSE(primera.otraInstancia());
    EXPECT_FALSE(primera.otraInstancia()) << "a restart asks again";
    SistemaQt segunda(una.path() + u'/');
    EXPECT_TRUE(segunda.otraInstancia());
    SistemaQt tercera(otra.path());
    EXPECT_FALSE(tercera.otraInstancia());
}

TEST(Machine, TheBusyPointerIsSetOnceAndTakenAwayOnce)
{
    const QTemporaryDir carpeta;
    SistemaQt sistema(carpeta.path());
    sistema.PunteroOcupado(true);
    sistema.PunteroOcupado(true);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    sistema.PunteroOcupado(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    sistema.PunteroOcupado(false);
}

TEST(Machine, AProgramThatIsNotThereCannotBeStarted)
{
    const QTemporaryDir carpeta;
    SistemaQt sistema(carpeta.path());
    EXPECT_FALSE(sistema.Arrancar(u"/no/existe/procesador"_s, {}, carpeta.path()));
    EXPECT_TRUE(sistema.Arrancar(u"true"_s, {}, carpeta.path()));
}

TEST(MachineDeathTest, EndingTheProcessGivesItsCode)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const QTemporaryDir carpeta;
    SistemaQt sistema(carpeta.path());
    EXPECT_EXIT(sistema.TerminarProceso(3), testing::ExitedWithCode(3), "");
}

TEST(Application, QtsOwnMenusSpeakSpanish)
{
    EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Paste"), u"&Pegar");
}

} // namespace

} // namespace valmerix
