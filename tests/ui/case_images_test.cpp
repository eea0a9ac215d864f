#include "photos.h"
#include "picture_files.h"
#include "support/fake_ports.h"

#include "ui/case_view.h"
#include "ui/dialogs.h"
#include "ui/machine.h"
#include "ui/pictures/picture_loader.h"
#include "ui/widgets/image_widget.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QThreadPool>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// KB of memory that the process has had at once, since the last time that it was asked to begin anew.
qint64 MemoriaMayor(bool deNuevo = true)
{
    if (QFile marcas(u"/proc/self/clear_refs"_s); deNuevo && marcas.open(QIODevice::WriteOnly))
        marcas.write("5");
    QFile estado(u"/proc/self/status"_s);
    EXPECT_TRUE(estado.open(QIODevice::ReadOnly));
    for (const QByteArray& linea : estado.readAll().split('\n')) {
        if (linea.startsWith("VmHWM:"))
            return linea.simplified().split(' ')[1].toLongLong();
    }
    ADD_FAILURE() << "no measure of the memory";
    return 0;
}

/// The page of the pictures of a flat, in front.
class CaseImages : public testing::Test
{
protected:
    CaseImages()
        : piso(kDescripcionPiso, entorno.servicios)
    {
        piso.IniciarCampos();
        piso.setVisible(true);
        vista = std::make_unique<VistaCaso>(piso);
        vista->Mostrar();
        vista->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(vista.get()));
        piso.Enfocar(u"txtNombreImagen");
    }

    template <class W>
    W& widget(QStringView nombre)
    {
        return dynamic_cast<W&>(*vista->enlazador().de(nombre));
    }
    void Pulsar(QStringView boton) { QTest::mouseClick(&widget<QPushButton>(boton), Qt::LeftButton); }
    void Escribir(QStringView campo, const QString& texto)
    {
        piso.Enfocar(campo);
        QTest::keyClicks(&widget<QLineEdit>(campo), texto);
    }
    void Listar(const QString& nombre, const QString& ruta)
    {
        piso.rejilla(u"GridImagen").AddItem(ruta + u'\t' + nombre);
    }
    /// What the preview shows at a point of it.
    QColor ColorDeLaVista(QPoint donde)
    {
        const QImage foto = widget<CuadroImagen>(u"Imagen").grab().toImage();
        return foto.pixelColor(donde * foto.devicePixelRatio());
    }
    bool hayImagen() { return widget<CuadroImagen>(u"Imagen").accessibleDescription() != u"Sin imagen"; }
    bool EsperarImagen()
    {
        return QTest::qWaitFor([this] { return hayImagen(); });
    }
    /// Waits until the preview has given up on a file that is no picture.
    bool SigueSinImagen()
    {
        QThreadPool::globalInstance()->waitForDone();
        QApplication::processEvents();
        return !hayImagen();
    }

    CarpetaDeImagenes carpeta;
    EntornoDePrueba entorno;
    Formulario piso;
    std::unique_ptr<VistaCaso> vista;
};

} // namespace

TEST_F(CaseImages, AChosenPictureIsShownNamedAndPutOnTheList)
{
    const QString ruta = carpeta.Guardar(u"Fachada norte.jpg"_s, Mitades({1600, 1200}), "JPEG");
    entorno.dialogos.ficheros.push_back(ruta);
    Pulsar(u"btnBuscaImagen");
    EXPECT_EQ(widget<QLineEdit>(u"txtNombreImagen").text(), u"Fachada norte");
    ASSERT_TRUE(EsperarImagen());
    const auto& cuadro = widget<CuadroImagen>(u"Imagen");
    EXPECT_GT(ColorDeLaVista({cuadro.width() / 2 - 20, cuadro.height() / 2}).blue(), 200);
    EXPECT_GT(ColorDeLaVista({cuadro.width() / 2 + 20, cuadro.height() / 2}).red(), 200);
    Listar(u"Cocina"_s, u"/no/hay.jpg"_s);
    Listar(u"Salón"_s, u"/no/hay.jpg"_s);
    Fotografiar(*vista, u"Piso-imagenes"_s);
    Pulsar(u"btnActualizarLista");
    const auto* modelo = widget<QTableView>(u"GridImagen").model();
    ASSERT_EQ(modelo->rowCount(), 3);
    EXPECT_EQ(modelo->index(2, 1).data().toString(), u"Fachada norte");
    EXPECT_TRUE(widget<QTableView>(u"GridImagen").isColumnHidden(0));
    EXPECT_FALSE(hayImagen());
}

TEST_F(CaseImages, TheArrowKeysGoThroughTheListShowingEachPicture)
{
    Listar(u"Uno"_s, carpeta.Guardar(u"1.png"_s, Mitades({40, 30}), "PNG"));
    Listar(u"Dos"_s, carpeta.ruta(u"movida.png"_s));
    Listar(u"Tres"_s, carpeta.Guardar(u"3.bmp"_s, Mitades({30, 40}), "BMP"));
    auto& tabla = widget<QTableView>(u"GridImagen");
    tabla.setFocus();
    QTest::keyClick(&tabla, Qt::Key_Space);
    EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"Uno");
    EXPECT_TRUE(EsperarImagen());
    QTest::keyClick(&tabla, Qt::Key_Down);
    EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"Dos");
    EXPECT_TRUE(SigueSinImagen());
    QTest::keyClick(&tabla, Qt::Key_Down);
    EXPECT_EQ(piso.texto(u"txtRutaImagen"), carpeta.ruta(u"3.bmp"_s));
    EXPECT_TRUE(EsperarImagen());
}

TEST_F(CaseImages, ThePageIsWorkedWithTheKeysAlone)
{
    const QString ruta = carpeta.Guardar(u"cocina.gif.png"_s, Mitades({40, 30}), "PNG");
    entorno.dialogos.ficheros.push_back(ruta);
    QTest::keyClick(&widget<QLineEdit>(u"txtNombreImagen"), Qt::Key_Tab);
    EXPECT_EQ(piso.conFoco()->nombre(), u"txtRutaImagen");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(piso.conFoco()->nombre(), u"btnBuscaImagen");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(piso.texto(u"txtRutaImagen"), ruta);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(piso.conFoco()->nombre(), u"btnActualizarLista");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(piso.rejilla(u"GridImagen").TextMatrix(1, 1), u"cocina.gif");
    piso.Enfocar(u"GridImagen");
    QTest::keyClick(&widget<QTableView>(u"GridImagen"), Qt::Key_Space);
    piso.Enfocar(u"SSCommand8");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(piso.rejilla(u"GridImagen").Rows(), 1);
}

TEST_F(CaseImages, SmallPicturesAreShownAsTheyAre)
{
    Escribir(u"txtRutaImagen", carpeta.Guardar(u"p.png"_s, Mitades({40, 30}), "PNG"));
    ASSERT_TRUE(EsperarImagen());
    auto& cuadro = widget<CuadroImagen>(u"Imagen");
    const QPoint centro = cuadro.rect().center();
    EXPECT_EQ(ColorDeLaVista(centro - QPoint(15, 0)), QColor(Qt::blue));
    EXPECT_EQ(ColorDeLaVista(centro + QPoint(15, 0)), QColor(Qt::red));
    EXPECT_NE(ColorDeLaVista(centro + QPoint(25, 0)), QColor(Qt::red));
    EXPECT_NE(ColorDeLaVista(centro + QPoint(15, 20)), QColor(Qt::red));
}

TEST_F(CaseImages, PicturesOfCamerasHeldUprightStandUpright)
{
    const QByteArray jpeg =
        CarpetaDeImagenes::Leer(carpeta.Guardar(u"t.jpg"_s, Mitades({1200, 900}), "JPEG"));
    Escribir(u"txtRutaImagen", carpeta.Escribir(u"girada.jpg"_s, ConGiro(jpeg)));
    ASSERT_TRUE(EsperarImagen());
    auto& cuadro = widget<CuadroImagen>(u"Imagen");
    EXPECT_GT(ColorDeLaVista({cuadro.width() / 2, 10}).blue(), 200) << "its left half is on top";
    EXPECT_GT(ColorDeLaVista({cuadro.width() / 2, cuadro.height() - 10}).red(), 200);
}

TEST_F(CaseImages, OddAndBrokenFilesShowThePictureOrNothing)
{
    const QByteArray jpeg =
        CarpetaDeImagenes::Leer(carpeta.Guardar(u"j.jpg"_s, Mitades({1200, 900}), "JPEG"));
    const QByteArray png = CarpetaDeImagenes::Leer(carpeta.Guardar(u"g.png"_s, Mitades({1200, 900}), "PNG"));
    const QByteArray bmp = CarpetaDeImagenes::Leer(carpeta.Guardar(u"b.bmp"_s, Mitades({120, 90}), "BMP"));
    struct Caso
    {
        QString ruta;
        bool imagen;
    };
    const Caso casos[] = {
        {carpeta.Escribir(u"vacia.jpg"_s, {}), false},
        {carpeta.Escribir(u"texto.bmp"_s, "no es una imagen"), false},
        {carpeta.Escribir(u"corta.jpg"_s, jpeg.left(100)), false},
        {carpeta.Escribir(u"corta.png"_s, png.left(60)), false},
        {carpeta.Escribir(u"corta.bmp"_s, bmp.left(50)), false},
        {carpeta.Escribir(u"corta.gif"_s, "GIF89a\x05"), false},
        {carpeta.Escribir(u"enorme.bmp"_s,
                          bmp.left(18) + QByteArray("\xff\xff\xff\x7f\xff\xff\xff\x7f", 8) + bmp.mid(26)),
         false},
        {carpeta.Escribir(u"media.jpg"_s, jpeg.left(jpeg.size() / 2)), true},
        {carpeta.Escribir(u"mentira.gif"_s, png), true},
        {carpeta.Guardar(u"punto.png"_s, Mitades({1, 1}), "PNG"), true},
        {carpeta.Guardar(u"raya.png"_s, Mitades({30000, 2}), "PNG"), true},
    };
    for (const Caso& caso : casos) {
        piso.campo(u"txtRutaImagen").setText({});
        piso.campo(u"txtRutaImagen").setText(caso.ruta);
        if (caso.imagen) {
            EXPECT_TRUE(EsperarImagen()) << qPrintable(caso.ruta);
        } else {
            EXPECT_TRUE(SigueSinImagen()) << qPrintable(caso.ruta);
        }
        vista->grab();
    }
}

TEST_F(CaseImages, APictureWhoseFileHasBeenMovedSinceIsCopiedAsItIsShown)
{
    const QString ruta = carpeta.Guardar(u"fachada.png"_s, Mitades({120, 90}), "PNG");
    Escribir(u"txtRutaImagen", ruta);
    ASSERT_TRUE(EsperarImagen());
    ASSERT_TRUE(QFile::rename(ruta, carpeta.ruta(u"movida.png"_s)));
    entorno.sistema.imagenLegible = false; // as the machine finds it now
    QGuiApplication::clipboard()->setText(u"de antes"_s);
    Pulsar(u"SSCommand9");
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(120, 90));
    EXPECT_EQ(entorno.dialogos.mensajes.size(), 1U);
}

TEST_F(CaseImages, AFileThatNeverWasAPictureLeavesTheClipboardAsItIs)
{
    Escribir(u"txtRutaImagen", carpeta.Escribir(u"rota.png"_s, "nada"));
    ASSERT_TRUE(SigueSinImagen());
    entorno.sistema.imagenLegible = false;
    QGuiApplication::clipboard()->setText(u"de antes"_s);
    Pulsar(u"SSCommand9");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"de antes");
    EXPECT_TRUE(entorno.dialogos.mensajes.empty());
}

TEST_F(CaseImages, OnlyTheLastPictureAskedForIsShown)
{
    const QString grande = carpeta.Guardar(u"grande.png"_s, Mitades({3000, 2000}), "PNG");
    const QString chica = carpeta.Guardar(u"chica.png"_s, Mitades({20, 20}), "PNG");
    for (const QString& ruta :
         {grande, u"/no/hay.png"_s, grande, carpeta.Escribir(u"rota.png"_s, "x"), chica})
        piso.campo(u"txtRutaImagen").setText(ruta);
    ASSERT_TRUE(EsperarImagen());
    EXPECT_EQ(widget<CuadroImagen>(u"Imagen").accessibleDescription(), u"chica.png");
    const QPoint centro = widget<CuadroImagen>(u"Imagen").rect().center();
    EXPECT_NE(ColorDeLaVista(centro + QPoint(30, 0)), QColor(Qt::red));
    piso.campo(u"txtRutaImagen").setText(grande);
    piso.campo(u"txtRutaImagen").setText({});
    EXPECT_TRUE(SigueSinImagen());
}

TEST_F(CaseImages, AFiftyMegapixelPhotographNeitherHoldsTheWindowNorFillsTheMemory)
{
    {
        QImage grande(8700, 5800, QImage::Format_RGB888);
        grande.fill(Qt::darkGreen);
        carpeta.Guardar(u"grande.jpg"_s, grande, "JPEG");
    }
    const qint64 antes = MemoriaMayor();
    QElapsedTimer reloj;
    qint64 hueco = 0;
    QTimer pulso;
    QObject::connect(&pulso, &QTimer::timeout, &pulso, [&] { hueco = std::max(hueco, reloj.restart()); });
    reloj.start();
    pulso.start(1);
    piso.campo(u"txtRutaImagen").setText(carpeta.ruta(u"grande.jpg"_s));
    ASSERT_TRUE(EsperarImagen());
    RecordProperty("longest gap in ms", static_cast<int>(hueco));
    EXPECT_LT(hueco, 200) << "the window stood still";
    EXPECT_LT(MemoriaMayor(false) - antes, qint64{64} << 10) << "KB";
}

TEST_F(CaseImages, ClosingTheWindowWhileAPictureIsReadDoesNoHarm)
{
    piso.campo(u"txtRutaImagen").setText(carpeta.Guardar(u"g.png"_s, Mitades({3000, 2000}), "PNG"));
    vista.reset();
    QThreadPool::globalInstance()->waitForDone();
    QApplication::processEvents();
    EXPECT_TRUE(piso.abierta());
}

TEST(Clipboard, GetsThePictureUprightAndKeepsItsContentWhenThereIsNone)
{
    const CarpetaDeImagenes carpeta;
    SistemaQt sistema(QDir::tempPath());
    const QByteArray jpeg = CarpetaDeImagenes::Leer(carpeta.Guardar(u"t.jpg"_s, Mitades({120, 90}), "JPEG"));
    QGuiApplication::clipboard()->setText(u"de antes"_s);
    EXPECT_FALSE(sistema.CopiarImagenAlPortapapeles(carpeta.Escribir(u"rota.jpg"_s, jpeg.left(50))));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"de antes");
    EXPECT_TRUE(sistema.CopiarImagenAlPortapapeles(carpeta.Escribir(u"girada.jpg"_s, ConGiro(jpeg))));
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(90, 120));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

TEST(FileChoice, ShowsTheDescriptionsAndGivesThePathOfTheChosenFile)
{
    const CarpetaDeImagenes carpeta;
    const QString ruta = carpeta.Guardar(u"Fachada.JPG"_s, Mitades({20, 20}), "JPEG");
    QStringList filas;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        const auto* tipos = dialogo->findChild<QComboBox*>(u"fileTypeCombo"_s);
        for (int i = 0; i < tipos->count(); ++i)
            filas << tipos->itemText(i);
        dialogo->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(ruta);
        auto* abrir = dialogo->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        QTest::mouseClick(abrir, Qt::LeftButton);
    });
    DialogosQt dialogos;
    EXPECT_EQ(dialogos.ElegirFichero(u"Gráficos (*.bmp;*.jpg)|*.bmp;*.jpg|Solo JPEG (*.jpg)|*.jpg"_s), ruta);
    EXPECT_EQ(filas,
              (QStringList{u"Gráficos (*.bmp;*.jpg)"_s, u"Solo JPEG (*.jpg)"_s, u"Todos los ficheros"_s}));
}

TEST(FileChoice, LeavingItGivesNothing)
{
    QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    DialogosQt dialogos;
    EXPECT_EQ(dialogos.ElegirFichero(u"Todo|*"_s), std::nullopt);
}

} // namespace valmerix
