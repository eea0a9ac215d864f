#include "report/printing.h"
#include "store/schema.h"
#include "ui/printed_samples.h"
#include "ui/printing/page_fonts.h"
#include "ui/printing/page_metrics.h"
#include "ui/printing/pdf_file.h"
#include "ui/printing/report_pages.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// A report of 12 pages and 6 photographs of 12 megapixels: shown, and written as PDF; the same text and
// pictures drawn on a bare PDF writer; the work tables of a report of 600 lines.

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFotos = 6;
constexpr int kPaginasTexto = 12;
constexpr QSize kFoto(4000, 3000);
constexpr QSize kPantalla(715, 1011); // A4 at 90 %

const QTemporaryDir& Carpeta()
{
    static const QTemporaryDir carpeta;
    return carpeta;
}

// Grain and gradients: about as many bytes as a camera's picture.
QString Foto()
{
    const QString ruta = Carpeta().filePath(u"foto.jpg"_s);
    if (QFile::exists(ruta))
        return ruta;
    QImage imagen(kFoto, QImage::Format_RGB32);
    quint32 azar = 1;
    for (int y = 0; y < kFoto.height(); ++y) {
        auto* fila = reinterpret_cast<QRgb*>(imagen.scanLine(y));
        for (int x = 0; x < kFoto.width(); ++x) {
            azar = azar * 1664525 + 1013904223;
            const int grano = static_cast<int>(azar >> 28);
            fila[x] = qRgb(x * 230 / kFoto.width() + grano, y * 230 / kFoto.height() + grano, 90 + grano);
        }
    }
    imagen.save(ruta, "JPEG", 90);
    return ruta;
}

DocumentoImpreso Documento()
{
    DocumentoImpreso documento = InformeDeMuestra(1);
    for (int capitulos = 2; PaginasInforme(documento).paginas() < kPaginasTexto; ++capitulos)
        documento = InformeDeMuestra(capitulos);
    for (int i = 0; i < kFotos; ++i)
        documento.fotografias.push_back({Foto(), u"Fotografía"_s});
    return documento;
}

void Mostrar(DocumentoPaginado& documento, int pagina)
{
    while (!documento.preparada(pagina))
        documento.Preparar(pagina);
    QImage pantalla(kPantalla, QImage::Format_RGB32);
    pantalla.fill(Qt::white);
    QPainter pintor(&pantalla);
    pintor.scale(kPantalla.width() / hoja::kAncho, kPantalla.height() / hoja::kAlto);
    documento.Pintar(pintor, pagina);
    benchmark::DoNotOptimize(pantalla.constBits());
}

void PreviewFirstPage(benchmark::State& estado)
{
    const DocumentoImpreso documento = Documento();
    for (auto _ : estado) {
        PaginasInforme paginas(documento);
        Mostrar(paginas, 0);
    }
}
BENCHMARK(PreviewFirstPage)->Unit(benchmark::kMillisecond);

void PreviewAllPages(benchmark::State& estado)
{
    const DocumentoImpreso documento = Documento();
    for (auto _ : estado) {
        PaginasInforme paginas(documento);
        for (int i = 0; i < paginas.paginas(); ++i)
            Mostrar(paginas, i);
    }
}
BENCHMARK(PreviewAllPages)->Unit(benchmark::kMillisecond);

void Pdf(benchmark::State& estado)
{
    const DocumentoImpreso documento = Documento();
    for (auto _ : estado) {
        PaginasInforme paginas(documento);
        GuardarPdf(paginas, Carpeta().filePath(u"informe.pdf"_s));
    }
}
BENCHMARK(Pdf)->Unit(benchmark::kMillisecond);

// The lines of the pages as strings: neither wrapped nor measured nor kept together.
void PintarDesnudo(QPdfWriter& pdf, const std::vector<QStringList>& textos, QSize reducida)
{
    QPainter pintor(&pdf);
    pintor.setFont(LetraDePagina(hoja::kCuerpo));
    for (const QStringList& lineas : textos) {
        qreal y = hoja::kMargenSuperior;
        for (const QString& linea : lineas)
            pintor.drawText(QPointF(hoja::kMargenIzquierdo, y += hoja::kInterlinea), linea);
        pdf.newPage();
    }
    for (int i = 0; i < kFotos; ++i) {
        QImageReader lector(Foto());
        if (reducida.isValid())
            lector.setScaledSize(reducida);
        pintor.drawImage(QRectF(hoja::kMargenIzquierdo, hoja::kMargenSuperior, hoja::mm(140), hoja::mm(105)),
                         lector.read());
        pdf.newPage();
    }
}

void Desnudo(benchmark::State& estado, QSize reducida)
{
    const PaginasInforme paginas(Documento());
    std::vector<QStringList> textos;
    for (int i = 0; i < kPaginasTexto; ++i)
        textos.push_back(paginas.texto(i).split(u'\n'));
    for (auto _ : estado) {
        QPdfWriter pdf(Carpeta().filePath(u"desnudo.pdf"_s));
        pdf.setResolution(hoja::kPorPulgada);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        PintarDesnudo(pdf, textos, reducida);
    }
}

void Pdf_Baseline(benchmark::State& estado)
{
    Desnudo(estado, {});
}
BENCHMARK(Pdf_Baseline)->Unit(benchmark::kMillisecond);

void Pdf_BaselineReducedPictures(benchmark::State& estado)
{
    Desnudo(estado, {1270, 952});
}
BENCHMARK(Pdf_BaselineReducedPictures)->Unit(benchmark::kMillisecond);

struct SinPantalla : Impresion
{
    void Previsualizar(const DocumentoImpreso& documento) override
    {
        benchmark::DoNotOptimize(documento.lineas.data());
    }
};

void WorkTablesOfSixHundredLines(benchmark::State& estado)
{
    EstadoCompartido compartido;
    compartido.RutaBaseDatos = Carpeta().filePath(u"valmerix.mdb"_s);
    if (!QFile::exists(compartido.RutaBaseDatos))
        InstalarBaseDatos(compartido.RutaBaseDatos);
    QString texto;
    for (int i = 0; i < 600; ++i)
        texto += QString(14, u' ') + u"1.%1. una línea como las demás del informe de tasación\n"_s.arg(i);
    QStringList titulos;
    for (int i = 0; i < 40; ++i)
        titulos << u"1.%1. una línea"_s.arg(i);
    const Rejilla sinFotos(u"GridImagen"_s);
    SinPantalla impresion;
    for (auto _ : estado)
        ImprimirInforme({compartido, texto, titulos, sinFotos, false, {}}, impresion);
}
BENCHMARK(WorkTablesOfSixHundredLines)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace valmerix

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
