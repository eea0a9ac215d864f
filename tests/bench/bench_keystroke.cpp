#include "common/ports.h"
#include "valuation/case_form.h"

#include <benchmark/benchmark.h>

// One keystroke in the age of the building: its event, the sentence, the recalculation, the result fields.

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

void WindowDeclared(benchmark::State& estado)
{
    for (auto _ : estado)
        benchmark::DoNotOptimize(Piso().form.controles().size());
}

BENCHMARK(KeystrokePairAge);
BENCHMARK(KeystrokePairDwellings);
BENCHMARK(WindowDeclared);

} // namespace

} // namespace valmerix

BENCHMARK_MAIN();
