#include "ui/pictures/capture_window.h"
#include "ui/pictures/scan_frames.h"
#include "ui/pictures/scanner_source.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <dlfcn.h>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// The scanner library with nothing but its own make-believe scanners.
class Scanner : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        // The library looks up its folder once in a process.
        static const QTemporaryDir carpeta;
        carpeta_ = carpeta.path();
        qputenv("SANE_CONFIG_DIR", carpeta_.toUtf8());
        Escribir(u"dll.conf"_s, "test\n");
        RetenerElControlador();
    }

    Scanner() { Configurar({}); }

    /// The driver's reading thread, when it is stopped at the end of a pass, leaves its buffer behind. The
    /// search for leaks knows whose that is (lsan.supp) only as long as the driver is in memory.
    static void RetenerElControlador()
    {
        Configurar({});
        const auto escaner = CrearFuenteEscaner();
        bool hallados = false;
        QObject::connect(escaner.get(), &FuenteCaptura::Hallados, escaner.get(), [&] { hallados = true; });
        escaner->Buscar();
        ASSERT_TRUE(QTest::qWaitFor([&] { return hallados; }, 20000));
        ASSERT_TRUE(dlopen("libsane-test.so.1", RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE)) << dlerror();
    }

    static void Escribir(const QString& nombre, const QByteArray& texto)
    {
        QFile fichero(carpeta_ + u'/' + nombre);
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
    }
    /// A glass of 50 x 50 mm; `mas` changes or adds to it.
    static void Configurar(const QByteArray& mas)
    {
        Escribir(u"test.conf"_s, "number_of_devices 1\nmode Gray\ndepth 8\nresolution_min 1.0\n"
                                 "resolution_max 1200.0\nresolution_quant 1.0\nresolution 50.0\n"
                                 "test-picture \"Grid\"\ngeometry_min 0.0\ngeometry_max 50.0\n"
                                 "geometry_quant 1.0\ntl_x 0.0\ntl_y 0.0\nbr_x 20.0\nbr_y 20.0\n" +
                                     mas);
    }

    /// What a source has answered.
    struct Respuestas
    {
        std::optional<QStringList> titulos;
        QImage imagen;
        QString fallo;
        std::vector<double> avances;
    };

    void Abrir()
    {
        fuente = CrearFuenteEscaner();
        QObject::connect(fuente.get(), &FuenteCaptura::Hallados, fuente.get(),
                         [this](const QStringList& titulos) { dado.titulos = titulos; });
        QObject::connect(fuente.get(), &FuenteCaptura::Capturada, fuente.get(),
                         [this](const QImage& imagen) { dado.imagen = imagen; });
        QObject::connect(fuente.get(), &FuenteCaptura::Fallo, fuente.get(),
                         [this](const QString& texto) { dado.fallo = texto; });
        QObject::connect(fuente.get(), &FuenteCaptura::Avance, fuente.get(),
                         [this](double fraccion) { dado.avances.push_back(fraccion); });
        fuente->Buscar();
        ASSERT_TRUE(QTest::qWaitFor([this] { return dado.titulos || !dado.fallo.isEmpty(); }, 20000));
        fuente->Elegir(0);
    }
    void Digitalizar()
    {
        fuente->Capturar();
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !dado.imagen.isNull() || !dado.fallo.isEmpty(); }, 20000));
    }

    static inline QString carpeta_;
    std::unique_ptr<FuenteCaptura> fuente;
    Respuestas dado;
};

int Lado()
{
    return qRound(50 / 25.4 * 300);
}

} // namespace

TEST_F(Scanner, TheScannersAreFoundByNameAndTheWholeGlassIsRead)
{
    Abrir();
    ASSERT_EQ(dado.titulos->size(), 1);
    EXPECT_TRUE(dado.titulos->constFirst().contains(u"Noname"_s)) << qPrintable(dado.titulos->constFirst());
    Digitalizar();
    EXPECT_EQ(dado.fallo, QString());
    EXPECT_NEAR(dado.imagen.width(), Lado(), 2);
    EXPECT_NEAR(dado.imagen.height(), Lado(), 2);
    // Squares of 10 mm, black and white by turns.
    const int cuadro = qRound(10 / 25.4 * 300);
    const auto claro = [&](int x, int y) {
        return qGray(dado.imagen.pixel(x * cuadro + cuadro / 2, y * cuadro + cuadro / 2)) > 127;
    };
    for (int i = 0; i < 4; ++i) {
        EXPECT_NE(claro(i, 0), claro(i + 1, 0)) << i;
        EXPECT_NE(claro(0, i), claro(0, i + 1)) << i;
    }
    ASSERT_FALSE(dado.avances.empty());
    EXPECT_NEAR(dado.avances.back(), 1.0, 0.01);
    EXPECT_TRUE(std::is_sorted(dado.avances.begin(), dado.avances.end()));
}

TEST_F(Scanner, ColourIsAskedForAndComesAsColour)
{
    Configurar("test-picture \"Color pattern\"\n");
    Abrir();
    Digitalizar();
    bool color = false;
    for (int x = 0; x < dado.imagen.width() && !color; ++x) {
        for (int y = 0; y < dado.imagen.height() && !color; y += 7) {
            const QColor punto = dado.imagen.pixelColor(x, y);
            color = punto.saturation() > 200;
        }
    }
    EXPECT_TRUE(color);
}

TEST_F(Scanner, ThreePassesMakeOnePicture)
{
    Configurar("test-picture \"Solid white\"\nthree-pass true\n");
    Abrir();
    Digitalizar();
    EXPECT_EQ(dado.fallo, QString());
    EXPECT_NEAR(dado.imagen.width(), Lado(), 2);
    EXPECT_EQ(dado.imagen.pixelColor(10, 10), QColor(Qt::white));
}

TEST_F(Scanner, AHandScannerOfUnknownLengthGivesWhatItHas)
{
    Configurar("hand-scanner true\n");
    Abrir();
    Digitalizar();
    EXPECT_EQ(dado.fallo, QString());
    EXPECT_GT(dado.imagen.height(), 0);
    EXPECT_LT(dado.avances.front(), 0) << "no end can be told";
}

TEST_F(Scanner, RefusalsAreToldInWords)
{
    struct Caso
    {
        QByteArray estado;
        QString palabra;
    };
    const Caso casos[] = {
        {"SANE_STATUS_JAMMED", u"atascado"_s},       {"SANE_STATUS_NO_DOCS", u"ningún documento"_s},
        {"SANE_STATUS_COVER_OPEN", u"tapa"_s},       {"SANE_STATUS_DEVICE_BUSY", u"ocupado"_s},
        {"SANE_STATUS_IO_ERROR", u"comunicación"_s}, {"SANE_STATUS_ACCESS_DENIED", u"permiso"_s},
        {"SANE_STATUS_UNSUPPORTED", u"no admite"_s}, {"SANE_STATUS_INVAL", u"no acepta"_s},
        {"SANE_STATUS_NO_MEM", u"memoria"_s},
    };
    for (const Caso& caso : casos) {
        dado = {};
        Configurar("geometry_max 10.0\nread-status-code \"" + caso.estado + "\"\n");
        Abrir();
        Digitalizar();
        EXPECT_TRUE(dado.imagen.isNull()) << caso.estado.toStdString();
        EXPECT_TRUE(dado.fallo.contains(caso.palabra)) << qPrintable(dado.fallo);
    }
}

TEST_F(Scanner, AScanCanBeStoppedAndStartedAgain)
{
    Configurar("read-limit true\nread-limit-size 2000\nread-delay true\nread-delay-duration 20000\n");
    Abrir();
    fuente->Capturar();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !dado.avances.empty(); }, 20000));
    fuente->Detener();
    const size_t avances = dado.avances.size();
    QTest::qWait(300);
    EXPECT_TRUE(dado.imagen.isNull());
    EXPECT_EQ(dado.fallo, QString());
    EXPECT_EQ(dado.avances.size(), avances) << "nothing is told of a scan that was stopped";
    Configurar({});
    dado.titulos.reset();
    fuente->Buscar();
    ASSERT_TRUE(QTest::qWaitFor([this] { return dado.titulos.has_value(); }, 20000));
    Digitalizar();
    EXPECT_FALSE(dado.imagen.isNull()) << qPrintable(dado.fallo);
}

TEST_F(Scanner, AWindowClosedInTheMiddleLeavesTheScannerToTheNextOne)
{
    Configurar("read-limit true\nread-limit-size 2000\nread-delay true\nread-delay-duration 20000\n");
    Abrir();
    fuente->Capturar();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !dado.avances.empty(); }, 20000));
    QElapsedTimer reloj;
    reloj.start();
    fuente.reset();
    EXPECT_LT(reloj.elapsed(), 200);
    Configurar({});
    dado = {};
    Abrir();
    Digitalizar();
    EXPECT_FALSE(dado.imagen.isNull()) << qPrintable(dado.fallo);
}

TEST_F(Scanner, WithoutScannersTheListIsEmpty)
{
    Escribir(u"dll.conf"_s, "# nothing\n");
    Abrir();
    EXPECT_EQ(dado.titulos, QStringList());
    Escribir(u"dll.conf"_s, "test\n");
}

TEST_F(Scanner, TheWindowScansAndShowsTheSheet)
{
    const auto escaner = CrearFuenteEscaner();
    VentanaCaptura ventana(*escaner, kTextosEscaner, nullptr);
    ventana.show();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    QPushButton* digitalizar = nullptr;
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            digitalizar = qobject_cast<QPushButton*>(QApplication::focusWidget());
            return digitalizar && digitalizar->isEnabled() &&
                   digitalizar->text() == kTextosEscaner.capturar.toString();
        },
        20000));
    QTest::keyClick(digitalizar, Qt::Key_Space);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !ventana.imagen().isNull(); }, 20000));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(ventana.result(), QDialog::Accepted);
}

namespace {

CuadroEscaneado Cuadro(SANE_Frame formato, int bits, int ancho, int bytesPorLinea, const QByteArray& datos)
{
    CuadroEscaneado cuadro;
    cuadro.medidas.format = formato;
    cuadro.medidas.depth = bits;
    cuadro.medidas.pixels_per_line = ancho;
    cuadro.medidas.bytes_per_line = bytesPorLinea;
    cuadro.medidas.last_frame = SANE_TRUE;
    cuadro.datos = datos;
    return cuadro;
}

} // namespace

TEST(ScanFrames, OfABitOneIsBlackInGreyAndLightInColour)
{
    const QImage gris = ImagenDeCuadros({Cuadro(SANE_FRAME_GRAY, 1, 3, 1, QByteArray("\xA0", 1))});
    ASSERT_EQ(gris.size(), QSize(3, 1));
    EXPECT_EQ(qGray(gris.pixel(0, 0)), 0);
    EXPECT_EQ(qGray(gris.pixel(1, 0)), 255);
    const QImage color = ImagenDeCuadros({Cuadro(SANE_FRAME_RGB, 1, 2, 3, QByteArray("\x80\x40\0", 3))});
    EXPECT_EQ(color.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(color.pixelColor(1, 0), QColor(Qt::green));
}

TEST(ScanFrames, OfSixteenBitsTheHighByteCounts)
{
    const quint16 muestras[] = {0xFF00, 0x00FF, 0x8000};
    const QByteArray datos(reinterpret_cast<const char*>(muestras), sizeof muestras);
    const QImage gris = ImagenDeCuadros({Cuadro(SANE_FRAME_GRAY, 16, 3, 6, datos)});
    EXPECT_EQ(qGray(gris.pixel(0, 0)), 255);
    EXPECT_EQ(qGray(gris.pixel(1, 0)), 0);
    EXPECT_EQ(qGray(gris.pixel(2, 0)), 128);
}

TEST(ScanFrames, PaddedLinesAndABrokenLastOneDoNoHarm)
{
    const QImage gris =
        ImagenDeCuadros({Cuadro(SANE_FRAME_GRAY, 8, 2, 4, QByteArray("\x10\x20xx\x30\x40xx\x50", 9))});
    ASSERT_EQ(gris.size(), QSize(2, 2));
    EXPECT_EQ(qGray(gris.pixel(1, 1)), 0x40);
}

TEST(ScanFrames, FramesThatMakeNoPictureAreNone)
{
    EXPECT_TRUE(ImagenDeCuadros({}).isNull());
    EXPECT_TRUE(ImagenDeCuadros({Cuadro(SANE_FRAME_RGB, 8, 10, 30, {})}).isNull());
    EXPECT_TRUE(ImagenDeCuadros({Cuadro(SANE_FRAME_RGB, 8, 10, 3, QByteArray(300, 'x'))}).isNull());
    EXPECT_TRUE(ImagenDeCuadros({Cuadro(SANE_FRAME_GRAY, 12, 2, 4, QByteArray(8, 'x'))}).isNull());
    EXPECT_TRUE(ImagenDeCuadros({Cuadro(SANE_FRAME_RED, 8, 2, 2, QByteArray(4, 'x'))}).isNull());
}

} // namespace valmerix
