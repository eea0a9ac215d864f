#include "ui/printing/report_pages.h"

#include "ui/pdf_tools.h"
#include "ui/printed_samples.h"
#include "ui/printing/page_metrics.h"
#include "ui/printing/pdf_file.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class ReportPages : public testing::Test
{
protected:
    QTemporaryDir carpeta;
    QString pdf = carpeta.filePath(u"informe.pdf"_s);

    // The same pages in a file.
    void Guardar(PaginasInforme& paginas) const
    {
        const ResultadoPdf resultado = GuardarPdf(paginas, pdf);
        EXPECT_EQ(resultado.fin, FinPdf::Guardado) << resultado.motivo.toStdString();
    }
    void Guardar(const DocumentoImpreso& documento) const
    {
        PaginasInforme paginas(documento);
        Guardar(paginas);
    }
};

// No file may grow beyond `bytes` while it lives.
class DiscoLleno
{
public:
    explicit DiscoLleno(qint64 bytes)
        : señal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &antes_);
        const rlimit menor{static_cast<rlim_t>(bytes), antes_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &menor);
    }
    ~DiscoLleno()
    {
        setrlimit(RLIMIT_FSIZE, &antes_);
        std::signal(SIGXFSZ, señal_);
    }
    DiscoLleno(const DiscoLleno&) = delete;
    DiscoLleno& operator=(const DiscoLleno&) = delete;

private:
    void (*señal_)(int);
    rlimit antes_{};
};

QString ConPie(const QString& texto, int pagina, int total)
{
    return Allanado(texto + u" Página %1 de %2"_s.arg(pagina).arg(total));
}

void ComprobarTextos(const PaginasInforme& paginas, const QString& pdf)
{
    ASSERT_EQ(PaginasPdf(pdf), paginas.paginas());
    for (int i = 0; i < paginas.paginas(); ++i)
        EXPECT_EQ(TextoPdf(pdf, i + 1), ConPie(paginas.texto(i), i + 1, paginas.paginas()));
}

} // namespace

TEST_F(ReportPages, ThePdfSaysOnEveryPageWhatThePreviewShowsThere)
{
    DocumentoImpreso documento = InformeDeMuestra(16);
    documento.membrete = MembreteDeMuestra();
    PaginasInforme paginas(documento);
    Guardar(paginas);
    EXPECT_GT(paginas.paginas(), 8);
    ComprobarTextos(paginas, pdf);
}

TEST_F(ReportPages, NothingOfTheReportIsLost)
{
    const DocumentoImpreso documento = InformeDeMuestra(16);
    const PaginasInforme paginas(documento);
    QString esperado;
    for (const LineaImpresa& linea : documento.lineas)
        esperado += linea.texto + u'\n';
    QString impreso;
    for (int i = 0; i < paginas.paginas(); ++i)
        impreso += paginas.texto(i) + u'\n';
    EXPECT_EQ(Allanado(impreso), Allanado(esperado));
}

TEST_F(ReportPages, AReportOfTwoHundredPagesNumbersThemAll)
{
    PaginasInforme paginas(InformeDeMuestra(330));
    Guardar(paginas);
    EXPECT_GE(paginas.paginas(), 200);
    ComprobarTextos(paginas, pdf);
}

TEST_F(ReportPages, FontsAreEmbeddedAndTextIsSearchable)
{
    Guardar(InformeDeMuestra(3));
    const QStringList filas =
        QString::fromUtf8(Poppler(u"pdffonts"_s, {pdf})).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(filas.size(), 4) << "two lines of head, one plain and one bold type";
    static const QRegularExpression kIncrustada(u"\\s(yes) (yes|no) +(yes)\\s"_s);
    for (const QString& fila : filas.mid(2)) {
        EXPECT_TRUE(kIncrustada.match(fila).hasMatch()) << fila.toStdString();
        EXPECT_FALSE(fila.contains(u"Type 3"_s)) << fila.toStdString();
    }
}

TEST_F(ReportPages, LettersThatLikeToJoinCanBeFound)
{
    DocumentoImpreso documento;
    documento.lineas = {{u"La oficina, el edificio y la finca: suficiente tráfico, aflicción, ff"_s, false}};
    Guardar(documento);
    EXPECT_TRUE(TextoPdf(pdf, 1).startsWith(documento.lineas[0].texto));
}

TEST_F(ReportPages, TheFileIsA4AndNamesTitleAndAuthor)
{
    Guardar(InformeDeMuestra(2));
    const QString datos = QString::fromUtf8(Poppler(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, pdf}));
    EXPECT_TRUE(datos.contains(QRegularExpression(u"Title: +Informe de tasación número 12\\n"_s)));
    EXPECT_TRUE(datos.contains(QRegularExpression(u"Author: +Begoña Núñez\\n"_s)));
    EXPECT_TRUE(
        datos.contains(QRegularExpression(u"Page size: +59[45][.\\d]* x 84[12][.\\d]* pts \\(A4\\)"_s)))
        << datos.toStdString();
}

TEST_F(ReportPages, EveryWordStandsWithinTheMargins)
{
    DocumentoImpreso documento = InformeDeMuestra(8);
    documento.lineas.push_back({QString(400, u'W'), false});
    documento.lineas.push_back(
        {QString(500, u' ') + u"muy a la derecha, y aún así dentro de la hoja"_s, true});
    documento.lineas.push_back({u"\t\tFecha Operación: 12/03/2026\tcon\ttabuladores"_s, false});
    documento.membrete = MembreteDeMuestra();
    Guardar(documento);
    const QString cajas = QString::fromUtf8(Poppler(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s}));
    static const QRegularExpression kPalabra(
        u"xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\""_s);
    constexpr qreal kPuntos = 72.0 / hoja::kPorPulgada;
    int palabras = 0;
    for (auto it = kPalabra.globalMatch(cajas); it.hasNext(); ++palabras) {
        const auto caja = it.next();
        EXPECT_GE(caja.captured(1).toDouble(), hoja::kMargenIzquierdo * kPuntos - 1);
        EXPECT_GE(caja.captured(2).toDouble(), hoja::kMargenSuperior * kPuntos - 1);
        EXPECT_LE(caja.captured(3).toDouble(), (hoja::kAncho - hoja::kMargenDerecho) * kPuntos + 1);
        EXPECT_LE(caja.captured(4).toDouble(), (hoja::kAlto - hoja::kLineaPie) * kPuntos + 4);
    }
    EXPECT_GT(palabras, 1000);
}

TEST_F(ReportPages, TheLetterheadStandsOnTheFirstPageOnly)
{
    DocumentoImpreso documento = InformeDeMuestra(8);
    documento.membrete = MembreteDeMuestra();
    PaginasInforme paginas(documento);
    Guardar(paginas);
    EXPECT_TRUE(TextoPdf(pdf, 1).startsWith(
        u"Tasaciones del Iregua, S.L. Avenida de la Constitución, 14, 3.º 26004 Logroño La Rioja B26000000 "
        "INFORME DE TASACION"_s));
    for (int i = 1; i < paginas.paginas(); ++i)
        EXPECT_FALSE(paginas.texto(i).contains(u"Iregua"_s));
}

TEST_F(ReportPages, ALetterheadWithNothingInItTakesNoPlace)
{
    DocumentoImpreso sin = InformeDeMuestra(8);
    DocumentoImpreso vacio = sin;
    vacio.membrete = MembreteImpreso{};
    const PaginasInforme a(sin);
    const PaginasInforme b(vacio);
    EXPECT_EQ(Allanado(b.texto(0)), Allanado(a.texto(0)));
}

TEST_F(ReportPages, AnEmptyReportIsOneNumberedPage)
{
    PaginasInforme paginas{DocumentoImpreso{}};
    Guardar(paginas);
    EXPECT_EQ(paginas.paginas(), 1);
    EXPECT_EQ(TextoPdf(pdf, 1), u"Página 1 de 1"_s);
}

TEST_F(ReportPages, AParagraphOfSixtyThousandLettersRunsOverPages)
{
    DocumentoImpreso documento;
    documento.lineas = {{QString(14, u' ') + u"palabra "_s.repeated(7500), false}};
    PaginasInforme paginas(documento);
    Guardar(paginas);
    EXPECT_GT(paginas.paginas(), 8);
    ComprobarTextos(paginas, pdf);
}

TEST_F(ReportPages, AnInterruptedFileLeavesTheFormerOneAsItWas)
{
    Guardar(InformeDeMuestra(2));
    QFile antes(pdf);
    ASSERT_TRUE(antes.open(QIODevice::ReadOnly));
    const QByteArray contenido = antes.readAll();
    antes.close();

    PaginasInforme otras(InformeDeMuestra(9));
    const auto rendirse = [](int hechas, int /*total*/) { return hechas < 3; };
    EXPECT_EQ(GuardarPdf(otras, pdf, rendirse).fin, FinPdf::Cancelado);
    ASSERT_TRUE(antes.open(QIODevice::ReadOnly));
    EXPECT_EQ(antes.readAll(), contenido);
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(ReportPages, AFolderThatIsNotThereIsToldInWords)
{
    PaginasInforme paginas(InformeDeMuestra(1));
    const ResultadoPdf resultado = GuardarPdf(paginas, carpeta.filePath(u"no/hay/informe.pdf"_s));
    EXPECT_EQ(resultado.fin, FinPdf::Fallido);
    EXPECT_FALSE(resultado.motivo.isEmpty());
}

TEST_F(ReportPages, AFullDiskIsToldAndLeavesTheFormerFile)
{
    Guardar(InformeDeMuestra(2));
    const qint64 antes = QFileInfo(pdf).size();
    PaginasInforme paginas(InformeDeMuestra(40));
    ResultadoPdf resultado;
    {
        const DiscoLleno lleno(antes);
        resultado = GuardarPdf(paginas, pdf);
    }
    EXPECT_EQ(resultado.fin, FinPdf::Fallido);
    EXPECT_EQ(resultado.motivo, u"el disco está lleno o no responde"_s);
    EXPECT_EQ(QFileInfo(pdf).size(), antes);
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(ReportPages, AFolderInTheFilesPlaceIsNotTouched)
{
    PaginasInforme paginas(InformeDeMuestra(1));
    const QString ocupado = carpeta.filePath(u"carpeta.pdf"_s);
    ASSERT_TRUE(QDir().mkdir(ocupado));
    EXPECT_EQ(GuardarPdf(paginas, ocupado).fin, FinPdf::Fallido);
    EXPECT_TRUE(QFileInfo(ocupado).isDir());
}

TEST_F(ReportPages, PrintingTheRangeBackwardsStartsWithItsLastPage)
{
    PaginasInforme paginas(InformeDeMuestra(12));
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(pdf);
    impresora.setPageSize(QPageSize(QPageSize::A4));
    impresora.setFullPage(true);
    impresora.setPrintRange(QPrinter::PageRange);
    impresora.setFromTo(2, 4);
    impresora.setPageOrder(QPrinter::LastPageFirst);
    ASSERT_TRUE(ImprimirPaginas(paginas, impresora, 0, {}));
    ASSERT_EQ(PaginasPdf(pdf), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(TextoPdf(pdf, i + 1), ConPie(paginas.texto(3 - i), 4 - i, paginas.paginas()));
}

TEST_F(ReportPages, SmallerPaperGetsSmallerPages)
{
    PaginasInforme paginas(InformeDeMuestra(3));
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(pdf);
    impresora.setPageSize(QPageSize(QPageSize::A5));
    impresora.setFullPage(true);
    ASSERT_TRUE(ImprimirPaginas(paginas, impresora, 0, {}));
    ASSERT_EQ(PaginasPdf(pdf), paginas.paginas());
    EXPECT_TRUE(TextoPdf(pdf, 1).endsWith(u"Página 1 de %1"_s.arg(paginas.paginas())));
}

TEST_F(ReportPages, ThePreviewDrawsWhatThePdfHolds)
{
    PaginasInforme paginas(InformeDeMuestra(4));
    Guardar(paginas);
    constexpr int kAncho = 827; // 100 pixels an inch
    constexpr int kAlto = 1169;
    constexpr QSize kManchas(41, 58); // some words each
    for (int i = 0; i < paginas.paginas(); ++i) {
        QImage pantalla(kAncho, kAlto, QImage::Format_Grayscale8);
        pantalla.fill(Qt::white);
        QPainter pintor(&pantalla);
        pintor.scale(kAncho / hoja::kAncho, kAlto / hoja::kAlto);
        paginas.Pintar(pintor, i);
        pintor.end();
        const QString numero = QString::number(i + 1);
        const QByteArray png = Poppler(
            u"pdftoppm"_s, {u"-gray"_s, u"-png"_s, u"-r"_s, u"100"_s, u"-f"_s, numero, u"-l"_s, numero, pdf});
        const auto manchas = [&](const QImage& imagen) {
            return imagen.scaled(kManchas, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_Grayscale8);
        };
        const QImage a = manchas(pantalla);
        const QImage b = manchas(QImage::fromData(png));
        int distintas = 0;
        for (int y = 0; y < kManchas.height(); ++y) {
            for (int x = 0; x < kManchas.width(); ++x)
                distintas += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 40 ? 1 : 0;
        }
        EXPECT_LE(distintas, 12) << "page " << i + 1;
    }
}

} // namespace valmerix
