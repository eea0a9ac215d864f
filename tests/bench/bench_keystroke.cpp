#include "common/ports.h"
#include "shell/safety_net.h"
#include "shell/state_json.h"
#include "shell/window_restoring.h"
#include "valuation/case_form.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// One keystroke in the age of the building: its event, the sentence, the recalculation, the result fields;
// the same with the draft keeper on, and what the keeper does between two events every two seconds.

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct SinDialogos : Dialogos
{
    void Mensaje(const QString& /*texto*/, const QString& /*titulo*/, IconoMensaje /*icono*/) override {}
    bool Preguntar(const QString& /*texto*/, const QString& /*titulo*/, IconoMensaje /*icono*/) override
    {
        return false;
    }
    bool InformarFallo(const QString& /*texto*/, const QString& /*detalle*/) override { return true; }
    std::optional<QDate> MostrarCalendario(QDate /*fecha*/) override { return {}; }
    std::optional<QString> ElegirFichero(const QString& /*filtro*/) override { return {}; }
};

struct RelojFijo : Reloj
{
    QDate hoy() const override { return {2026, 11, 20}; }
    QDateTime ahora() const override { return {hoy(), QTime(9, 30)}; }
};

struct SinSistema : Sistema
{
    QString carpetaPrograma() const override { return {}; }
    bool otraInstancia() override { return false; }
    bool Arrancar(const QString& /*orden*/, const QStringList& /*argumentos*/,
                  const QString& /*carpeta*/) override
    {
        return false;
    }
    void Pitar() override {}
    void PunteroOcupado(bool /*ocupado*/) override {}
    void DejarPintar() override {}
    void CopiarAlPortapapeles(const QString& /*texto*/) override {}
    bool CopiarImagenAlPortapapeles(const QString& /*ruta*/) override { return false; }
    void Aplazar(int /*milisegundos*/, std::function<void()> /*tarea*/) override {}
    void TerminarProceso(int /*codigo*/) override {}
};

struct SinEntorno : EntornoCaso
{
    void MostrarFicha() override {}
    void MostrarObservaciones() override {}
    void MostrarProblema() override {}
    void MostrarSalida() override {}
    void Minimizar() override {}
    void MostrarPaleta(bool /*abierta*/) override {}
};

struct Piso
{
    EstadoCompartido compartido;
    EstadoCalculo calculo;
    FrasesInforme frases;
    OpcionesPrograma opciones;
    SinDialogos dialogos;
    RelojFijo reloj;
    SinSistema sistema;
    SinEntorno entorno;
    Formulario form{kDescripcionPiso,
                    {compartido, calculo, frases, opciones, dialogos, reloj, sistema, entorno}};

    Piso()
    {
        compartido.FormatoMoneda = u"###,###,##0.00"_s;
        opciones.TipoSuperficie = u"Const"_s;
        form.AplicarOpciones();
        form.IniciarCampos();
        const std::pair<QStringView, QString> figuras[] = {
            {u"BoxConst", u"104"_s}, {u"BoxPlantas", u"5"_s},         {u"BoxVPP", u"4"_s},
            {u"BoxCc", u"690"_s},    {u"BoxRepercusion", u"420,5"_s}, {u"BoxK", u"1,4"_s},
        };
        for (const auto& [nombre, texto] : figuras)
            form.campo(nombre).setText(texto);
    }
};

void Keystroke(benchmark::State& estado, QStringView campo)
{
    Piso piso;
    CampoTexto& edad = piso.form.campo(campo);
    constexpr int kRetroceso = 8;
    for (auto _ : estado) {
        edad.PulsarTecla(u'7');
        edad.PulsarTecla(kRetroceso);
    }
    estado.SetItemsProcessed(2 * estado.iterations());
}

void KeystrokePairAge(benchmark::State& estado)
{
    Keystroke(estado, u"BoxAntig");
}

void KeystrokePairDwellings(benchmark::State& estado)
{
    Keystroke(estado, u"BoxVPP");
}

struct PisoVigilado : Piso
{
    QTemporaryDir carpeta;
    Ventana barra{u"Minimizado"_s};
    RedSeguridad red{compartido, calculo, frases, dialogos, reloj, sistema};

    PisoVigilado()
    {
        compartido.RutaBaseDatos = carpeta.filePath(u"valmerix.mdb"_s);
        red.Vigilar(form, barra);
    }
};

void KeystrokePairAgeWithDrafts(benchmark::State& estado)
{
    PisoVigilado piso;
    CampoTexto& edad = piso.form.campo(u"BoxAntig");
    constexpr int kRetroceso = 8;
    for (auto _ : estado) {
        edad.PulsarTecla(u'7');
        edad.PulsarTecla(kRetroceso);
    }
    estado.SetItemsProcessed(2 * estado.iterations());
}

// What a keystroke may have to wait for when it comes at the worst moment.
void DraftPicture(benchmark::State& estado)
{
    Piso piso;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(ControlesEnJson(piso.form));
        benchmark::DoNotOptimize(PresentacionEnJson(piso.form));
        benchmark::DoNotOptimize(EstadoEnJson(piso.calculo));
        benchmark::DoNotOptimize(FrasesEnJson(piso.frases));
    }
}

// Picture, checksum, write and file sync; all but the first run beside her work.
void DraftWritten(benchmark::State& estado)
{
    PisoVigilado piso;
    for (auto _ : estado) {
        piso.red.Anotar();
        piso.red.Volcar();
    }
}

void WindowDeclared(benchmark::State& estado)
{
    for (auto _ : estado)
        benchmark::DoNotOptimize(Piso().form.controles().size());
}

BENCHMARK(KeystrokePairAge);
BENCHMARK(KeystrokePairDwellings);
BENCHMARK(KeystrokePairAgeWithDrafts);
BENCHMARK(DraftPicture)->Unit(benchmark::kMicrosecond);
BENCHMARK(DraftWritten)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(WindowDeclared);

} // namespace

} // namespace valmerix

BENCHMARK_MAIN();
