#include "photos.h"
#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "support/qt_printers.h"

#include "shell/application.h"
#include "shell/start_window.h"
#include "shell/window_places.h"
#include "store/query.h"
#include "ui/caption_bar.h"
#include "ui/desktop.h"
#include "valuation/case_form.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <optional>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// The whole program on the real screen classes, to be ended and started again over the same folder.
class RedEnPantalla : public testing::Test
{
protected:
    RedEnPantalla()
    {
        sistema.carpeta = carpeta.path();
        Arrancar();
    }

    void Arrancar()
    {
        aplicacion.reset();
        pantalla.emplace();
        pantalla->RecordarLugares(carpeta.filePath(u"Datos/ventanas.json"_s));
        aplicacion.emplace(Puertos{dialogos, reloj, sistema, *pantalla, captura, impresion});
        aplicacion->Arrancar();
        aplicacion->inicio()->TerminarPortada();
    }
    void AbrirPiso()
    {
        aplicacion->NuevoCaso(0);
        QWidget& vista = Vista(forma());
        vista.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&vista));
    }
    VistaVentana& Vista(const Ventana& ventana) { return *pantalla->vista(ventana); }
    Formulario& forma() { return *aplicacion->FormularioActual(); }
    void Teclear(QStringView campo, const QString& texto)
    {
        forma().Enfocar(campo);
        QTest::keyClicks(Vista(forma()).enlazador().de(campo), texto);
    }
    QLabel& Marca() { return *Vista(forma()).findChild<QLabel*>(u"marcaSinGuardar"_s); }
    QPushButton& Recuperar()
    {
        return *Vista(*aplicacion->inicio()).findChild<QPushButton*>(u"cmdRecuperar"_s);
    }

    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakeCaptura captura;
    FakeImpresion impresion;
    std::optional<PantallaQt> pantalla;
    std::optional<Aplicacion> aplicacion;
};

TEST_F(RedEnPantalla, TheMarkStandsBesideTheCaptionAndInTheTaskBarNeverInTheText)
{
    AbrirPiso();
    VistaVentana& vista = Vista(forma());
    EXPECT_FALSE(Marca().isVisible());
    EXPECT_FALSE(vista.isWindowModified());
    EXPECT_EQ(vista.windowTitle(), u"Valmerix - Pisos"_s);
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    EXPECT_TRUE(Marca().isVisible());
    EXPECT_EQ(Marca().accessibleName(), u"Cambios sin guardar"_s);
    EXPECT_EQ(Marca().toolTip(), u"Cambios sin guardar"_s);
    EXPECT_TRUE(vista.isWindowModified());
    EXPECT_EQ(vista.accessibleDescription(), u"Cambios sin guardar"_s);
    EXPECT_EQ(forma().Caption(), u"Valmerix - Pisos"_s);
    EXPECT_EQ(vista.findChild<QLabel*>(u"EtiquetaCaption"_s)->text(), u"Valmerix - Pisos"_s);
    Fotografiar(vista, u"Piso-sin-guardar"_s);
    forma().setModificada(false);
    EXPECT_FALSE(Marca().isVisible());
    EXPECT_FALSE(vista.isWindowModified());
    EXPECT_EQ(vista.windowTitle(), u"Valmerix - Pisos"_s);
}

TEST_F(RedEnPantalla, GoingThroughEveryPageByKeyboardChangesNothing)
{
    AbrirPiso();
    for (int i = 0; i < 400; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (int pagina = 0; pagina < 7; ++pagina)
        QTest::mouseClick(Vista(forma()).findChild<QAbstractButton*>(u"SSCommand5"_s), Qt::LeftButton);
    EXPECT_FALSE(forma().modificada());
}

TEST_F(RedEnPantalla, TheQuietLineComesOnlyWithADraftAndOpensItAsItStood)
{
    EXPECT_FALSE(Recuperar().isVisible());
    AbrirPiso();
    Teclear(u"BoxMun", u"Alcoi"_s);
    Teclear(u"BoxConst", u"104"_s);
    const QString pendiente = forma().texto(u"BoxConst");
    Arrancar();
    VistaVentana& inicio = Vista(*aplicacion->inicio());
    ASSERT_TRUE(Recuperar().isVisible());
    EXPECT_EQ(Recuperar().accessibleName(), u"Recuperar el trabajo no guardado"_s);
    EXPECT_EQ(Recuperar().toolTip(), u"Piso (Alcoi), hasta el 20/11/2026 a las 09:30"_s);
    EXPECT_EQ(inicio.findChild<QLabel*>(u"lblRecuperar"_s)->text(), Recuperar().toolTip());
    Fotografiar(inicio, u"Form1-recuperar"_s);
    QTest::mouseClick(&Recuperar(), Qt::LeftButton);
    ASSERT_NE(aplicacion->FormularioActual(), nullptr);
    Vista(forma()).activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Vista(forma())));
    EXPECT_EQ(forma().texto(u"BoxMun"), u"Alcoi"_s);
    EXPECT_EQ(forma().texto(u"BoxConst"), pendiente) << "still in hand, not worked out behind her back";
    EXPECT_EQ(forma().conFoco(), &forma().control(u"BoxConst"));
    EXPECT_EQ(QApplication::focusWidget(), Vista(forma()).enlazador().de(u"BoxConst"));
    EXPECT_TRUE(Marca().isVisible());
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_TRUE(dialogos.preguntas.empty());
}

TEST_F(RedEnPantalla, TheLineHasALetterOfItsOwn)
{
    AbrirPiso();
    Teclear(u"BoxMun", u"Alcoi"_s);
    Arrancar();
    QStringList letras;
    for (const auto* boton : Vista(*aplicacion->inicio()).findChildren<QAbstractButton*>()) {
        const QString texto = QString(boton->text()).remove(u"&&"_s);
        if (const auto sitio = texto.indexOf(u'&'); sitio >= 0)
            letras << texto.mid(sitio + 1, 1).toUpper();
    }
    EXPECT_TRUE(Recuperar().text().contains(u'&'));
    EXPECT_NE(Recuperar().focusPolicy() & Qt::TabFocus, 0);
    EXPECT_EQ(letras.size(), 9);
    EXPECT_EQ(letras.removeDuplicates(), 0);
}

TEST_F(RedEnPantalla, WindowsStandWhereSheLeftThemOnTheNextStart)
{
    AbrirPiso();
    Vista(forma()).setGeometry(31, 17, 1090, 750);
    QApplication::processEvents();
    const QRect dejado = forma().lugar();
    QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
    aplicacion->MostrarSalida(); // from there the process would end
    Arrancar();
    aplicacion->NuevoCaso(0);
    EXPECT_EQ(forma().lugar(), dejado);
    EXPECT_EQ(aplicacion->paleta()->lugar().topLeft(), QPoint(dejado.x() + dejado.width(), dejado.y()));
}

TEST_F(RedEnPantalla, AWindowThatSheLeftMaximisedComesBackSoAndShrinksToItsOwnPlace)
{
    Vista(*aplicacion->inicio()).setGeometry(40, 30, 1000, 700);
    QApplication::processEvents();
    const QRect propio = aplicacion->inicio()->lugar();
    Vista(*aplicacion->inicio()).showMaximized();
    QApplication::processEvents();
    ASSERT_EQ(aplicacion->inicio()->WindowState(), EstadoVentana::Maximizada);
    for (int arranque = 0; arranque < 2; ++arranque) {
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        aplicacion->MostrarSalida(); // from there the process would end
        Arrancar();
        QApplication::processEvents();
        SCOPED_TRACE(arranque);
        EXPECT_TRUE(Vista(*aplicacion->inicio()).isMaximized());
        EXPECT_EQ(aplicacion->inicio()->WindowState(), EstadoVentana::Maximizada);
        EXPECT_EQ(Vista(*aplicacion->inicio()).frameGeometry(), pantalla->area());
    }
    Vista(*aplicacion->inicio()).showNormal();
    QApplication::processEvents();
    EXPECT_EQ(aplicacion->inicio()->lugar().size(), propio.size());
    const QPoint corrido = aplicacion->inicio()->lugar().topLeft() - propio.topLeft();
    EXPECT_LE(corrido.manhattanLength(), 8) << "no more than a frame";
    LugaresVentanas lugares;
    lugares.Leer(carpeta.filePath(u"Datos/ventanas.json"_s));
    EXPECT_EQ(lugares.LugarDe(u"Form1"_s, {pantalla->area()}), propio)
        << "nor does it wander from run to run";
}

TEST_F(RedEnPantalla, APlaceOutsideTheScreenIsBroughtIn)
{
    QFile fichero(carpeta.filePath(u"Datos/ventanas.json"_s));
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("{\"Form1\": [9000, 9000, 960, 640]}");
    fichero.close();
    Arrancar();
    EXPECT_TRUE(pantalla->area().contains(aplicacion->inicio()->lugar()));
}

TEST_F(RedEnPantalla, ADamagedFileOfPlacesLeavesTheWindowsInTheirFirstPlace)
{
    const QRect primero = aplicacion->inicio()->lugar();
    QFile fichero(carpeta.filePath(u"Datos/ventanas.json"_s));
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("\x01\x02{{{");
    fichero.close();
    Arrancar();
    EXPECT_EQ(aplicacion->inicio()->lugar(), primero);
}

} // namespace

} // namespace valmerix
