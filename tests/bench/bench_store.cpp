#include "shell/case_tree.h"
#include "store/case_loading.h"
#include "store/case_saving.h"
#include "store/query.h"
#include "store/schema.h"
#include "store/sql_functions.h"
#include "support/fake_open_case.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

// Each benchmark is held against "<name>_Baseline", the same SQL through the C API of the engine alone.

namespace valmerix {

namespace {

using AccesoDatos::clsConsulta;

constexpr int kTestigos = 1'000'000;
constexpr int kCasos = 100'000;

/// A connection of the plain C API, knowing what our SQL speaks.
class Motor
{
public:
    explicit Motor(const QString& ruta)
    {
        sqlite3_open_v2(ruta.toUtf8().constData(), &base_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr);
        RegistrarFunciones(base_);
    }
    ~Motor() { sqlite3_close(base_); }
    Motor(const Motor&) = delete;
    Motor& operator=(const Motor&) = delete;

    void Mandar(const QString& sql)
    {
        if (sqlite3_exec(base_, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            qFatal("%s: %s", sqlite3_errmsg(base_), qPrintable(sql));
    }
    /// Steps through and touches every column; gives the bytes of the data.
    size_t Recorrer(const QString& sql)
    {
        sqlite3_stmt* sentencia = nullptr;
        const QByteArray utf8 = sql.toUtf8();
        if (sqlite3_prepare_v2(base_, utf8.constData(), -1, &sentencia, nullptr) != SQLITE_OK)
            qFatal("%s: %s", sqlite3_errmsg(base_), utf8.constData());
        const int columnas = sqlite3_column_count(sentencia);
        size_t bytes = 0;
        while (sqlite3_step(sentencia) == SQLITE_ROW) {
            for (int i = 0; i < columnas; ++i)
                bytes += Tocar(sentencia, i);
        }
        sqlite3_finalize(sentencia);
        return bytes;
    }

private:
    static size_t Tocar(sqlite3_stmt* sentencia, int i)
    {
        switch (sqlite3_column_type(sentencia, i)) {
        case SQLITE_INTEGER:
            benchmark::DoNotOptimize(sqlite3_column_int64(sentencia, i));
            return sizeof(sqlite3_int64);
        case SQLITE_FLOAT:
            benchmark::DoNotOptimize(sqlite3_column_double(sentencia, i));
            return sizeof(double);
        case SQLITE_NULL:
            return 0;
        default:
            benchmark::DoNotOptimize(sqlite3_column_text(sentencia, i));
            return static_cast<size_t>(sqlite3_column_bytes(sentencia, i));
        }
    }

    sqlite3* base_ = nullptr;
};

QString Serie(int n)
{
    return u"WITH RECURSIVE serie(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM serie WHERE n < %1) "_s.arg(n);
}

/// One database for all the benchmarks, filled on first use.
struct Base
{
    QTemporaryDir carpeta;
    EstadoCompartido compartido;

    Base()
    {
        compartido.RutaBaseDatos = carpeta.filePath(u"valmerix.mdb"_s);
        InstalarBaseDatos(compartido.RutaBaseDatos);
        Motor motor(compartido.RutaBaseDatos);
        motor.Mandar(u"INSERT INTO Tasadores (Nombre, Contador) VALUES ('Ana Núñez', %1)"_s.arg(kCasos));
        motor.Mandar(
            Serie(kTestigos) +
            u"INSERT INTO Testigos SELECT 'E', 'P', n, date('2000-01-01', (n % 9000) || ' days'), "
            u"'Calle de Cirilo Amorós, ' || n || ', 5.ª', '46004', 'Valencia', 'Valencia', 'Buena', 'S', "
            u"n % 80, n % 5, 60 + n % 97 + 0.5, 70 + n % 97 + 0.25, 90000 + n % 7919 + 0.5, 'm²' FROM serie"_s);
        motor.Mandar(
            Serie(kCasos) +
            u"INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion, Situacion, Municipio, Fecha, "
            u"Infraestructuras, Observaciones, ValorFinal) SELECT CASE n % 3 WHEN 0 THEN 'Ana Núñez' WHEN 1 "
            u"THEN 'Íñigo Sáenz' ELSE 'Óscar Peña' END, 'P', n, 'Calle ' || char(65 + n * 7919 % 26) || "
            u"' de Ñandú, ' || (n * 7919 % 100003), 'L’Hospitalet', '2026-01-01', '1010101', "
            u"'Se ha visto el interior.', 120000.5 FROM serie"_s);
        Guardar();
    }
    /// A full case, to load and to save.
    void Guardar();
};

class DialogosMudos : public Dialogos
{
public:
    void Mensaje(const QString& /*t*/, const QString& /*titulo*/, IconoMensaje /*i*/) override {}
    bool Preguntar(const QString& /*t*/, const QString& /*titulo*/, IconoMensaje /*i*/) override
    {
        return true;
    }
    bool InformarFallo(const QString& /*t*/, const QString& /*d*/) override { return true; }
    std::optional<QString> ElegirFichero(const QString& /*filtro*/) override { return {}; }
    std::optional<QDate> MostrarCalendario(QDate /*fecha*/) override { return {}; }
};

void Rellenar(FakeCasoAbierto& piso)
{
    piso.Elegir(u"Ana Núñez"_s);
    for (const CampoCaso& campo : CamposDeCaso()) {
        if (!campo.es(kPiso))
            continue;
        if (campo.forma == FormaCampo::Texto)
            piso.Escribir(campo.controles, u"Texto de "_s + campo.columna.toString());
        else if (campo.forma == FormaCampo::Numero)
            piso.Escribir(campo.controles, u"1.234"_s);
    }
    piso.Escribir(u"BoxFecha", u"20/11/2026"_s);
}

void Base::Guardar()
{
    FakeCasoAbierto piso(u"Piso"_s, {u"Ana Núñez"_s});
    Rellenar(piso);
    DialogosMudos dialogos;
    SalvaVivienda(piso, compartido, dialogos);
}

Base& LaBase()
{
    static Base base;
    return base;
}

const auto kTodos = u"SELECT * FROM Testigos"_s;
const auto kArbol =
    u"SELECT NombreTasador, NumeroTasacion, Tipo, Situacion, Municipio FROM Viviendas WHERE Tipo = "
    u"'P' ORDER BY NombreTasador, NumeroTasacion"_s;

void Snapshot_Baseline(benchmark::State& estado)
{
    Motor motor(LaBase().compartido.RutaBaseDatos);
    size_t bytes = 0;
    for (auto _ : estado)
        bytes = motor.Recorrer(kTodos);
    estado.counters["data_MB"] = static_cast<double>(bytes) / 1e6;
}

void Snapshot(benchmark::State& estado)
{
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(LaBase().compartido.RutaBaseDatos);
    size_t bytes = 0;
    for (auto _ : estado)
        bytes = consulta.Instantanea2(u"Empresa"_s, kTodos).bytes();
    estado.counters["held_MB"] = static_cast<double>(bytes) / 1e6;
}

void TreeQuery_Baseline(benchmark::State& estado)
{
    Motor motor(LaBase().compartido.RutaBaseDatos);
    for (auto _ : estado)
        benchmark::DoNotOptimize(motor.Recorrer(kArbol));
}

void TreeQuery(benchmark::State& estado)
{
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(LaBase().compartido.RutaBaseDatos);
    for (auto _ : estado)
        benchmark::DoNotOptimize(consulta.Instantanea2(u"Empresa"_s, kArbol).RecordCount());
}

// The query, the two texts of each node and their sorting.
void TreeNodes(benchmark::State& estado)
{
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(LaBase().compartido.RutaBaseDatos);
    for (auto _ : estado) {
        CarpetaArbol carpeta;
        ArbolCasos::LlenarCarpeta(carpeta, consulta.Instantanea2(u"Empresa"_s, kArbol));
        benchmark::DoNotOptimize(carpeta.hijos.data());
    }
}

void TreeNodes_Baseline(benchmark::State& estado)
{
    TreeQuery_Baseline(estado);
}

void Like_Baseline(benchmark::State& estado)
{
    Motor motor(LaBase().compartido.RutaBaseDatos);
    for (auto _ : estado)
        benchmark::DoNotOptimize(motor.Recorrer(
            u"SELECT COUNT(*) FROM Testigos NOT INDEXED WHERE instr(Situacion, 'Amoróz') > 0"_s));
}

void Like(benchmark::State& estado)
{
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(LaBase().compartido.RutaBaseDatos);
    for (auto _ : estado)
        benchmark::DoNotOptimize(consulta.Instantanea2(
            u"Empresa"_s, u"SELECT COUNT(*) FROM Testigos NOT INDEXED WHERE Situacion LIKE '%AMOROZ%'"_s));
}

void LoadCase_Baseline(benchmark::State& estado)
{
    const EstadoCompartido& compartido = LaBase().compartido;
    const QString sql = u"SELECT * FROM Viviendas WHERE Tipo = 'P' AND NombreTasador = 'Ana Núñez' AND "
                        u"NumeroTasacion = %1"_s.arg(compartido.NumeroTasacionActual);
    for (auto _ : estado) {
        Motor motor(compartido.RutaBaseDatos);
        benchmark::DoNotOptimize(motor.Recorrer(sql));
    }
}

void LoadCase(benchmark::State& estado)
{
    EstadoCompartido& compartido = LaBase().compartido;
    const qint32 numero = compartido.NumeroTasacionActual;
    for (auto _ : estado) {
        estado.PauseTiming();
        auto piso = std::make_unique<FakeCasoAbierto>(u"Piso"_s, QStringList{u"Ana Núñez"_s});
        estado.ResumeTiming();
        CargaVivienda(*piso, compartido, u"P"_s, u"Ana Núñez"_s, numero);
        estado.PauseTiming();
        piso.reset();
        estado.ResumeTiming();
    }
}

void SaveCase_Baseline(benchmark::State& estado)
{
    EstadoCompartido& compartido = LaBase().compartido;
    QStringList sentencias;
    compartido.alEjecutarSQL = [&](const QString&, const QString& sql) { sentencias << sql; };
    LaBase().Guardar();
    compartido.alEjecutarSQL = nullptr;
    for (auto _ : estado) {
        Motor motor(compartido.RutaBaseDatos);
        motor.Mandar(u"PRAGMA synchronous = EXTRA"_s);
        motor.Mandar(u"BEGIN IMMEDIATE"_s);
        for (const QString& sql : sentencias)
            motor.Mandar(sql);
        motor.Mandar(u"COMMIT"_s);
    }
}

void SaveCase(benchmark::State& estado)
{
    FakeCasoAbierto piso(u"Piso"_s, {u"Ana Núñez"_s});
    Rellenar(piso);
    DialogosMudos dialogos;
    for (auto _ : estado)
        SalvaVivienda(piso, LaBase().compartido, dialogos);
}

BENCHMARK(Snapshot_Baseline)->Unit(benchmark::kMillisecond);
BENCHMARK(Snapshot)->Unit(benchmark::kMillisecond);
BENCHMARK(TreeQuery_Baseline)->Unit(benchmark::kMillisecond);
BENCHMARK(TreeQuery)->Unit(benchmark::kMillisecond);
BENCHMARK(TreeNodes_Baseline)->Unit(benchmark::kMillisecond);
BENCHMARK(TreeNodes)->Unit(benchmark::kMillisecond);
BENCHMARK(Like_Baseline)->Unit(benchmark::kMillisecond);
BENCHMARK(Like)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadCase_Baseline)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadCase)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveCase_Baseline)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveCase)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace valmerix

BENCHMARK_MAIN();
