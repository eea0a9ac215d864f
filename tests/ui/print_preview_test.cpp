#include "ui/printing/print_preview.h"

#include "support/fake_ports.h"
#include "ui/pdf_tools.h"
#include "ui/printed_samples.h"
#include "ui/printing/page_list.h"
#include "ui/printing/page_view.h"
#include "ui/printing/printing_port.h"
#include "ui/printing/report_pages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class PrintPreview : public testing::Test
{
protected:
    QTemporaryDir carpeta;
    QString pdf = carpeta.filePath(u"guardado.pdf"_s);
    FakeDialogos dialogos;
    PaginasInforme paginas{InformeDeMuestra(16)};
    EleccionesPrevia elecciones{[this](QWidget* /*padre*/, const QString& /*titulo*/) { return pdf; },
                                [this](QWidget* /*padre*/, QPrinter& impresora, int /*paginas*/) {
                                    impresora.setOutputFormat(QPrinter::PdfFormat);
                                    impresora.setOutputFileName(pdf);
                                    return true;
                                }};
    VentanaPrevia ventana{paginas, u"Previsualización de Impresión"_s, 90, dialogos, elecciones};

    void SetUp() override
    {
        ventana.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&ventana));
    }
    VistaPaginas& vista() { return ventana.vista(); }
    void Pulsar(const QString& boton)
    {
        auto* hallado = ventana.findChild<QAbstractButton*>(boton);
        ASSERT_NE(hallado, nullptr) << boton.toStdString();
        hallado->click();
    }
    QString pagina() { return ventana.findChild<QLineEdit*>(u"NumeroPagina"_s)->text(); }
};

} // namespace

TEST_F(PrintPreview, OpensOnTheFirstPageAtItsZoom)
{
    EXPECT_EQ(ventana.objectName(), u"frmVisor"_s);
    EXPECT_EQ(ventana.windowTitle(), u"Previsualización de Impresión"_s);
    EXPECT_EQ(vista().zoom(), 90);
    EXPECT_EQ(ventana.findChild<QComboBox*>(u"Zoom"_s)->currentText(), u"90 %"_s);
    EXPECT_EQ(pagina(), u"1"_s);
    EXPECT_TRUE(vista().hasFocus());
}

TEST_F(PrintPreview, ButtonsTurnThePagesAndStopAtBothEnds)
{
    const int ultima = paginas.paginas() - 1;
    EXPECT_FALSE(ventana.findChild<QAbstractButton*>(u"Bttpagina_anterior"_s)->isEnabled());
    Pulsar(u"Bttpagina_siguiente"_s);
    EXPECT_EQ(pagina(), u"2"_s);
    Pulsar(u"Bttpagina_ultima"_s);
    EXPECT_EQ(vista().paginaActual(), ultima);
    EXPECT_FALSE(ventana.findChild<QAbstractButton*>(u"Bttpagina_siguiente"_s)->isEnabled());
    Pulsar(u"Bttpagina_anterior"_s);
    EXPECT_EQ(vista().paginaActual(), ultima - 1);
    Pulsar(u"Bttpagina_primera"_s);
    EXPECT_EQ(vista().paginaActual(), 0);
    EXPECT_EQ(vista().verticalScrollBar()->value(), 0);
}

TEST_F(PrintPreview, KeysTurnThePages)
{
    QTest::keyClick(&vista(), Qt::Key_PageDown);
    QTest::keyClick(&vista(), Qt::Key_PageDown);
    EXPECT_EQ(vista().paginaActual(), 2);
    QTest::keyClick(&vista(), Qt::Key_PageUp);
    EXPECT_EQ(vista().paginaActual(), 1);
    QTest::keyClick(&vista(), Qt::Key_End);
    EXPECT_EQ(vista().paginaActual(), paginas.paginas() - 1);
    QTest::keyClick(&vista(), Qt::Key_Home);
    EXPECT_EQ(vista().paginaActual(), 0);
}

TEST_F(PrintPreview, ATypedPageNumberIsGoneToAndAnImpossibleOneIsTheNearest)
{
    auto* campo = ventana.findChild<QLineEdit*>(u"NumeroPagina"_s);
    campo->setFocus();
    campo->selectAll();
    QTest::keyClicks(campo, u"4"_s);
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(vista().paginaActual(), 3);
    EXPECT_TRUE(ventana.isVisible()) << "Enter does not close the window";
    campo->selectAll();
    QTest::keyClicks(campo, u"9999"_s);
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(pagina(), QString::number(paginas.paginas()));
    campo->selectAll();
    QTest::keyClicks(campo, u"0"_s);
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(pagina(), QString::number(paginas.paginas()));
}

TEST_F(PrintPreview, ZoomGoesByStepsByTypingAndByFitting)
{
    Pulsar(u"Bttacercar"_s);
    EXPECT_EQ(vista().zoom(), 100);
    Pulsar(u"Bttalejar"_s);
    Pulsar(u"Bttalejar"_s);
    EXPECT_EQ(vista().zoom(), 75);
    Pulsar(u"Bttajustar_ancho"_s);
    EXPECT_EQ(vista().horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(vista().zoom(), 90);
    Pulsar(u"Bttajustar_pagina"_s);
    EXPECT_EQ(vista().ajuste(), VistaPaginas::Ajuste::Pagina);
    EXPECT_LT(vista().zoom(), 90);

    auto* campo = ventana.findChild<QComboBox*>(u"Zoom"_s)->lineEdit();
    campo->setFocus();
    campo->selectAll();
    QTest::keyClicks(campo, u"110"_s);
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(vista().zoom(), 110);
    EXPECT_EQ(vista().ajuste(), VistaPaginas::Ajuste::Libre);
}

TEST_F(PrintPreview, ZoomStaysWithinItsLimitsAndOnItsPage)
{
    vista().IrA(5);
    for (int i = 0; i < 30; ++i)
        vista().Acercar();
    EXPECT_EQ(vista().zoom(), VistaPaginas::kZoomMayor);
    EXPECT_EQ(vista().paginaActual(), 5);
    for (int i = 0; i < 30; ++i)
        vista().Alejar();
    EXPECT_EQ(vista().zoom(), VistaPaginas::kZoomMenor);
}

TEST_F(PrintPreview, FittingFollowsTheWindow)
{
    vista().setAjuste(VistaPaginas::Ajuste::Ancho);
    const int antes = vista().zoom();
    ventana.resize(ventana.width() + 300, ventana.height());
    QCoreApplication::processEvents();
    EXPECT_GT(vista().zoom(), antes);
}

TEST_F(PrintPreview, TheListOfPagesShowsAndChoosesThem)
{
    auto* lista = ventana.findChild<ListaPaginas*>();
    ASSERT_EQ(lista->model()->rowCount(), paginas.paginas());
    lista->setCurrentIndex(lista->model()->index(3, 0));
    EXPECT_EQ(vista().paginaActual(), 3);
    vista().IrA(6);
    EXPECT_EQ(lista->currentIndex().row(), 6);
    EXPECT_EQ(lista->model()->index(6, 0).data(Qt::AccessibleTextRole).toString(), u"Página 7"_s);
    Pulsar(u"Bttminiaturas"_s);
    EXPECT_FALSE(lista->isVisible());
}

TEST_F(PrintPreview, SavesThePagesThatItShows)
{
    ventana.GuardarComoPdf();
    ASSERT_EQ(PaginasPdf(pdf), paginas.paginas());
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_TRUE(TextoPdf(pdf, 2).startsWith(Allanado(paginas.texto(1))));
}

TEST_F(PrintPreview, AFileThatCannotBeWrittenIsTold)
{
    pdf = carpeta.filePath(u"no/hay.pdf"_s);
    ventana.GuardarComoPdf();
    ASSERT_EQ(dialogos.mensajes.size(), 1U);
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_TRUE(dialogos.mensajes[0].texto.contains(u"hay.pdf"_s));
}

TEST_F(PrintPreview, LeavingTheFileDialogWritesNothing)
{
    const QString ruta = std::exchange(pdf, {});
    ventana.GuardarComoPdf();
    EXPECT_FALSE(QFile::exists(ruta));
    EXPECT_TRUE(dialogos.mensajes.empty());
}

TEST_F(PrintPreview, PaperGetsTheSamePages)
{
    ventana.Imprimir();
    ASSERT_EQ(PaginasPdf(pdf), paginas.paginas());
    for (int i = 0; i < paginas.paginas(); ++i)
        EXPECT_TRUE(TextoPdf(pdf, i + 1).startsWith(Allanado(paginas.texto(i))));
}

TEST_F(PrintPreview, APrinterThatRefusesIsTold)
{
    pdf = carpeta.filePath(u"no/hay.pdf"_s);
    ventana.Imprimir();
    ASSERT_EQ(dialogos.mensajes.size(), 1U);
    EXPECT_EQ(dialogos.mensajes[0].texto,
              u"No se ha podido imprimir el documento. Compruebe que la impresora está encendida y "
              u"conectada"_s);
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_EQ(dialogos.mensajes[0].icono, IconoMensaje::Aviso);
    EXPECT_TRUE(ventana.isVisible());
}

TEST_F(PrintPreview, EveryButtonHasANameAndNoTwoShareAMnemonic)
{
    QString usadas;
    QStringList titulos;
    for (const auto* boton : ventana.findChildren<QAbstractButton*>())
        titulos << boton->text();
    for (const auto* rotulo : ventana.findChildren<QLabel*>())
        titulos << rotulo->text();
    for (const QString& titulo : titulos) {
        const qsizetype sitio = titulo.indexOf(u'&');
        if (sitio < 0)
            continue;
        const QChar letra = titulo[sitio + 1].toUpper();
        EXPECT_FALSE(usadas.contains(letra)) << titulo.toStdString();
        usadas += letra;
    }
    EXPECT_GE(usadas.size(), 8);
    for (const auto* boton : ventana.findChildren<QAbstractButton*>()) {
        const bool nuestro = boton->objectName().startsWith(u"Btt"_s);
        EXPECT_EQ(nuestro && boton->accessibleName().isEmpty(), false) << boton->objectName().toStdString();
    }
    EXPECT_EQ(vista().accessibleDescription(), paginas.texto(0));
}

TEST_F(PrintPreview, EscapeClosesTheWindow)
{
    QTest::keyClick(&vista(), Qt::Key_Escape);
    EXPECT_FALSE(ventana.isVisible());
}

TEST(PrintPort, ShowsTheDocumentUntilSheClosesIt)
{
    FakeDialogos dialogos;
    ImpresionQt impresion(dialogos);
    bool vista = false;
    QTimer::singleShot(0, [&vista] {
        QWidget* ventana = QApplication::activeModalWidget();
        ASSERT_NE(ventana, nullptr);
        vista = ventana->objectName() == u"frmVisor"_s &&
                ventana->windowTitle() == u"Previsualización de Impresión"_s;
        ventana->close();
    });
    impresion.Previsualizar(InformeDeMuestra(2));
    EXPECT_TRUE(vista);
}

} // namespace valmerix
