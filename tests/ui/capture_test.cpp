#include "photos.h"
#include "picture_files.h"

#include "ui/pictures/camera_source.h"
#include "ui/pictures/capture.h"
#include "ui/pictures/capture_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QImageReader>
#include <QKeySequence>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A source that answers as the test says.
class FuenteDePrueba : public FuenteCaptura
{
public:
    QStringList titulos{u"Cámara integrada"_s, u"Cámara del despacho"_s};
    QImage foto = Mitades({64, 48});
    QString fallo;
    bool contesta = true;
    int busquedas = 0;
    int elegido = -1;
    int detenciones = 0;

    void Buscar() override
    {
        ++busquedas;
        if (contesta)
            Q_EMIT Hallados(titulos);
    }
    void Elegir(int aparato) override { elegido = aparato; }
    void Capturar() override
    {
        if (!contesta)
            return;
        if (fallo.isEmpty()) {
            Q_EMIT Capturada(foto);
        } else {
            Q_EMIT Fallo(fallo);
        }
    }
    void Detener() override { ++detenciones; }
};

class CaptureWindow : public testing::Test
{
protected:
    void Abrir(const TextosCaptura& textos = kTextosCamara)
    {
        ventana = std::make_unique<VentanaCaptura>(fuente, textos, nullptr);
        ventana->show();
        ventana->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        ASSERT_TRUE(QTest::qWaitFor([this] { return fuente.busquedas > 0; }));
    }
    QPushButton& Boton_(const QString& titulo)
    {
        for (auto* boton : ventana->findChildren<QPushButton*>()) {
            if (boton->text().remove(u'&') == titulo)
                return *boton;
        }
        throw std::logic_error("no button " + titulo.toStdString());
    }
    void Pulsar(const QString& titulo) { QTest::mouseClick(&Boton_(titulo), Qt::LeftButton); }
    LienzoCaptura& lienzo() { return *ventana->findChild<LienzoCaptura*>(); }
    QComboBox& aparatos() { return *ventana->findChild<QComboBox*>(); }
    QProgressBar& avance() { return *ventana->findChild<QProgressBar*>(); }

    FuenteDePrueba fuente;
    std::unique_ptr<VentanaCaptura> ventana;
};

} // namespace

TEST_F(CaptureWindow, ShowsTheLivePictureAndTakesIt)
{
    Abrir();
    EXPECT_EQ(ventana->windowTitle(), u"Cámara");
    EXPECT_EQ(fuente.elegido, 0);
    EXPECT_FALSE(Boton_(u"Aceptar"_s).isEnabled());
    Q_EMIT fuente.Vista(Mitades({320, 240}));
    EXPECT_EQ(lienzo().imagen().size(), QSize(320, 240));
    Fotografiar(*ventana, u"captura-camara"_s);
    Pulsar(u"Capturar"_s);
    EXPECT_EQ(ventana->imagen(), fuente.foto);
    Q_EMIT fuente.Vista(Mitades({320, 240}));
    EXPECT_EQ(lienzo().imagen(), fuente.foto) << "what was taken stays in sight";
    Pulsar(u"Aceptar"_s);
    EXPECT_EQ(ventana->result(), QDialog::Accepted);
    EXPECT_EQ(fuente.detenciones, 1);
}

TEST_F(CaptureWindow, IsWorkedWithTheKeysAlone)
{
    Abrir();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(ventana->imagen(), fuente.foto);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(ventana->result(), QDialog::Accepted);
    EXPECT_FALSE(ventana->isVisible());
}

TEST_F(CaptureWindow, EscapeAndCancelarLetGoOfTheDevice)
{
    Abrir();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(ventana->result(), QDialog::Rejected);
    EXPECT_EQ(fuente.detenciones, 1);
    Abrir();
    fuente.contesta = false;
    Pulsar(u"Capturar"_s);
    Pulsar(u"Cancelar"_s);
    EXPECT_FALSE(ventana->isVisible());
    EXPECT_EQ(fuente.detenciones, 2);
}

TEST_F(CaptureWindow, AnotherPictureCanBeTakenInItsPlace)
{
    Abrir();
    Pulsar(u"Capturar"_s);
    Pulsar(u"Repetir"_s);
    EXPECT_TRUE(ventana->imagen().isNull());
    EXPECT_FALSE(Boton_(u"Aceptar"_s).isEnabled());
    fuente.foto = Mitades({10, 10});
    Pulsar(u"Capturar"_s);
    EXPECT_EQ(ventana->imagen().size(), QSize(10, 10));
}

TEST_F(CaptureWindow, AnotherDeviceCanBeChosen)
{
    Abrir();
    Pulsar(u"Capturar"_s);
    aparatos().setFocus();
    QTest::keyClick(&aparatos(), Qt::Key_Down);
    EXPECT_EQ(fuente.elegido, 1);
    EXPECT_TRUE(ventana->imagen().isNull()) << "the picture was of the other one";
}

TEST_F(CaptureWindow, AMissingDeviceIsToldAndLookedForAgain)
{
    const QStringList luego = std::exchange(fuente.titulos, {});
    Abrir(kTextosEscaner);
    EXPECT_TRUE(lienzo().texto().startsWith(u"No se ha encontrado ningún escáner."_s));
    EXPECT_EQ(lienzo().accessibleDescription(), lienzo().texto());
    EXPECT_FALSE(Boton_(u"Digitalizar"_s).isEnabled());
    EXPECT_FALSE(aparatos().isEnabled());
    Fotografiar(*ventana, u"captura-sin-escaner"_s);
    fuente.titulos = luego;
    Pulsar(u"Buscar de nuevo"_s);
    EXPECT_EQ(aparatos().count(), 2);
    EXPECT_TRUE(Boton_(u"Digitalizar"_s).isEnabled());
}

TEST_F(CaptureWindow, ASearchThatTakesItsTimeIsToldMeanwhile)
{
    fuente.contesta = false;
    Abrir(kTextosEscaner);
    EXPECT_EQ(lienzo().texto(), u"Buscando escáneres…");
    EXPECT_TRUE(avance().isVisible());
    EXPECT_EQ(avance().maximum(), 0) << "no end in sight";
    EXPECT_FALSE(Boton_(u"Buscar de nuevo"_s).isEnabled());
    Q_EMIT fuente.Hallados({u"Plano"_s});
    EXPECT_FALSE(avance().isVisible());
    EXPECT_TRUE(lienzo().texto().contains(u"Digitalizar"_s));
}

TEST_F(CaptureWindow, ProgressIsShownWhileThePictureComes)
{
    Abrir(kTextosEscaner);
    fuente.contesta = false;
    Pulsar(u"Digitalizar"_s);
    EXPECT_EQ(lienzo().texto(), u"Digitalizando…");
    EXPECT_FALSE(Boton_(u"Digitalizar"_s).isEnabled());
    Q_EMIT fuente.Avance(0.5);
    EXPECT_TRUE(avance().isVisible());
    EXPECT_EQ(avance().value() * 2, avance().maximum());
    Fotografiar(*ventana, u"captura-digitalizando"_s);
    Q_EMIT fuente.Avance(-1);
    EXPECT_EQ(avance().maximum(), 0);
    Q_EMIT fuente.Capturada(fuente.foto);
    EXPECT_FALSE(avance().isVisible());
    Fotografiar(*ventana, u"captura-digitalizada"_s);
}

TEST_F(CaptureWindow, AFailureIsToldInTheWindowAndCanBeTriedAgain)
{
    Abrir(kTextosEscaner);
    fuente.fallo = u"El papel se ha atascado en el escáner."_s;
    Pulsar(u"Digitalizar"_s);
    EXPECT_EQ(lienzo().texto(), fuente.fallo);
    EXPECT_TRUE(ventana->imagen().isNull());
    fuente.fallo.clear();
    Pulsar(u"Digitalizar"_s);
    EXPECT_EQ(ventana->imagen(), fuente.foto);
}

TEST_F(CaptureWindow, MnemonicsAreUniqueAndEveryPartHasAName)
{
    for (const TextosCaptura* textos : {&kTextosCamara, &kTextosEscaner}) {
        Abrir(*textos);
        QStringList letras{QKeySequence::mnemonic(ventana->findChild<QLabel*>()->text()).toString()};
        for (const auto* boton : ventana->findChildren<QPushButton*>())
            letras << QKeySequence::mnemonic(boton->text()).toString();
        EXPECT_FALSE(letras.contains(QString())) << qPrintable(letras.join(u' '));
        EXPECT_EQ(QSet<QString>(letras.begin(), letras.end()).size(), 5) << qPrintable(letras.join(u' '));
        EXPECT_FALSE(lienzo().accessibleName().isEmpty());
        EXPECT_FALSE(avance().accessibleName().isEmpty());
        fuente.busquedas = 0;
    }
}

namespace {

class Capture : public testing::Test
{
protected:
    CapturaQt::Fabrica Fabrica(const QImage& foto)
    {
        return [foto] {
            auto fuente = std::make_unique<FuenteDePrueba>();
            fuente->foto = foto;
            return fuente;
        };
    }
    /// Presses a button of the window that opens.
    static void Pulsar(const QString& titulo)
    {
        QWidget* ventana = QApplication::activeModalWidget();
        ASSERT_NE(ventana, nullptr);
        const auto boton = [&]() -> QPushButton* {
            for (auto* b : ventana->findChildren<QPushButton*>()) {
                if (b->text().remove(u'&') == titulo && b->isEnabled())
                    return b;
            }
            return nullptr;
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return boton() != nullptr; })) << titulo.toStdString();
        QTest::mouseClick(boton(), Qt::LeftButton);
    }
    static void PulsarAlAbrir(const QStringList& titulos)
    {
        QTimer::singleShot(0, qApp, [titulos] {
            for (const QString& titulo : titulos)
                Pulsar(titulo);
        });
    }
};

} // namespace

TEST_F(Capture, APictureOfTheCameraIsHandedOnAsABitmap)
{
    CapturaQt captura(Fabrica(Mitades({300, 200})), {});
    PulsarAlAbrir({u"Capturar"_s, u"Aceptar"_s});
    const auto ruta = captura.LoadCapture(FuenteImagen::Camara, {});
    ASSERT_TRUE(ruta);
    EXPECT_EQ(QImageReader::imageFormat(*ruta), "bmp");
    EXPECT_EQ(QImage(*ruta).size(), QSize(300, 200));
    PulsarAlAbrir({u"Capturar"_s, u"Aceptar"_s});
    EXPECT_NE(captura.LoadCapture(FuenteImagen::Camara, {}), ruta) << "the first one stays";
    EXPECT_TRUE(QFileInfo::exists(*ruta));
}

TEST_F(Capture, AVeryLargeSheetIsReduced)
{
    CapturaQt captura({}, Fabrica(Mitades({9000, 3000})));
    PulsarAlAbrir({u"Digitalizar"_s, u"Aceptar"_s});
    const auto ruta = captura.LoadCapture(FuenteImagen::Escaner, {});
    ASSERT_TRUE(ruta);
    EXPECT_EQ(QImageReader(*ruta).size(), QSize(4000, 1333));
}

TEST_F(Capture, LeavingTheWindowGivesNothing)
{
    CapturaQt captura(Fabrica(Mitades({300, 200})), {});
    PulsarAlAbrir({u"Capturar"_s, u"Cancelar"_s});
    EXPECT_EQ(captura.LoadCapture(FuenteImagen::Camara, {}), std::nullopt);
}

TEST(Camera, LookingForCamerasAlwaysAnswers)
{
    const auto camara = CrearFuenteCamara();
    int respuestas = 0;
    QStringList titulos;
    QObject::connect(camara.get(), &FuenteCaptura::Hallados, camara.get(), [&](const QStringList& hallados) {
        ++respuestas;
        titulos = hallados;
    });
    camara->Buscar();
    EXPECT_EQ(respuestas, 1);
    if (titulos.isEmpty()) {
        QString fallo;
        QObject::connect(camara.get(), &FuenteCaptura::Fallo, camara.get(),
                         [&](const QString& texto) { fallo = texto; });
        camara->Elegir(0);
        camara->Capturar();
        EXPECT_FALSE(fallo.isEmpty());
    }
    camara->Detener();
}

} // namespace valmerix
