#include "report/markup.h"
#include "report/progress.h"
#include "report/report_fixture.h"
#include "report/rtf_writer.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextDocument>
#include <benchmark/benchmark.h>

namespace valmerix {

namespace {

void EtapaDelTexto_Baseline(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const QByteArray bytes = Redactar(piso.caso).toUtf8();
    const QTemporaryDir carpeta;
    for ([[maybe_unused]] auto vuelta : estado) {
        QFile fichero(carpeta.filePath(QStringLiteral("TASACION.TXT")));
        if (!fichero.open(QIODevice::WriteOnly) || fichero.write(bytes) != bytes.size())
            estado.SkipWithError("no file");
        fichero.close();
        fichero.remove();
    }
}
BENCHMARK(EtapaDelTexto_Baseline);

void RedactarElTexto(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(Redactar(piso.caso));
}
BENCHMARK(RedactarElTexto);

void EtapaDelTexto(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const QTemporaryDir carpeta;
    TextoEnriquecido texto(QStringLiteral("Texto"));
    for ([[maybe_unused]] auto vuelta : estado)
        texto.setText(PasarPorFichero(carpeta.path(), Redactar(piso.caso)));
}
BENCHMARK(EtapaDelTexto);

void PonerElTexto(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const InformeRedactado informe = RedactarInforme(piso.caso);
    TextoEnriquecido texto(QStringLiteral("Texto"));
    for ([[maybe_unused]] auto vuelta : estado)
        texto.setText(informe.texto);
}
BENCHMARK(PonerElTexto);

/// What any rich-text document takes for the same text.
void MarcarElTexto_Baseline(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const QString texto = Redactar(piso.caso);
    QTextDocument documento;
    for ([[maybe_unused]] auto vuelta : estado)
        documento.setPlainText(texto);
}
BENCHMARK(MarcarElTexto_Baseline);

void MarcarElTexto(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const InformeRedactado informe = RedactarInforme(piso.caso);
    TextoEnriquecido texto(QStringLiteral("Texto"));
    BarraProgreso barra(QStringLiteral("ProgressBar1"));
    for ([[maybe_unused]] auto vuelta : estado) {
        InformeRedactado copia = informe;
        texto.setText(copia.texto);
        Negrita(texto, copia, piso.opciones.MonedaAbreviatura, barra);
    }
}
BENCHMARK(MarcarElTexto);

void EscribirElRTF(benchmark::State& estado)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    InformeRedactado informe = RedactarInforme(piso.caso);
    TextoEnriquecido texto(QStringLiteral("Texto"));
    BarraProgreso barra(QStringLiteral("ProgressBar1"));
    texto.setText(informe.texto);
    Negrita(texto, informe, piso.opciones.MonedaAbreviatura, barra);
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(TextoRTF(texto));
}
BENCHMARK(EscribirElRTF);

} // namespace

} // namespace valmerix

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
