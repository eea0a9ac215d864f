#include "shell/application.h"
#include "shell/headless_ports.h"
#include "store/schema.h"
#include "ui/desktop.h"
#include "ui/look/application.h"
#include "ui/pictures/capture.h"
#include "ui/printing/printing_port.h"
#include "valuation/case_form.h"

#include <QBuffer>
#include <benchmark/benchmark.h>

// The flat's window: from the button of the start window until it has been painted.

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

void FlatWindow(benchmark::State& estado)
{
    QBuffer errores;
    errores.open(QIODevice::WriteOnly);
    DialogosSinPantalla dialogos(errores);
    RelojDelSistema reloj;
    SistemaSinPantalla sistema;
    CapturaQt captura;
    ImpresionQt impresion(dialogos);
    PantallaQt pantalla;
    Aplicacion valmerix({dialogos, reloj, sistema, pantalla, captura, impresion});
    valmerix.Arrancar();
    for (auto _ : estado) {
        valmerix.NuevoCaso(0);
        QCoreApplication::processEvents();
        estado.PauseTiming();
        valmerix.Reiniciar();
        QCoreApplication::processEvents();
        estado.ResumeTiming();
    }
}

BENCHMARK(FlatWindow)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace valmerix

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    valmerix::AplicacionQt aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
