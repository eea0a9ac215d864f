#include "shell/case_tree.h"
#include "shell/headless_ports.h"
#include "store/schema.h"
#include "store/sql_functions.h"

#include <QString>
#include <array>
#include <benchmark/benchmark.h>
#include <span>
#include <sqlite3.h>

// The tree of stored cases: queries, nodes, Spanish sort. Held against the very same SELECTs stepped through
// the C API, a connection each as the tree opens them; against the one SELECT alone that finds cases; and
// against the engine sorting the rows in Spanish by itself.

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr char kConsulta[] = "SELECT NombreTasador, NumeroTasacion, Tipo, Situacion, Municipio FROM %s "
                             "WHERE Tipo = '%c' ORDER BY NombreTasador%s, NumeroTasacion%s";

struct Carpeta
{
    const char* tabla;
    char letra;
};

constexpr std::array kCarpetas = {Carpeta{"Viviendas", 'P'}, Carpeta{"Viviendas", 'A'},
                                  Carpeta{"Viviendas", 'C'}, Carpeta{"Locales", 'L'},
                                  Carpeta{"Naves", 'N'},     Carpeta{"Terrenos", 'T'}};

constexpr const char* kSinMas = "";
constexpr const char* kEspañol = " COLLATE ESPANOL";

/// A program folder whose database holds `casos` flats of eight valuers, in no order.
struct BaseGrande
{
    explicit BaseGrande(int casos)
    {
        InstalarBaseDatos(RutaBaseDatosPorDefecto(sistema));
        sqlite3* base = nullptr;
        sqlite3_open(RutaBaseDatosPorDefecto(sistema).toUtf8().constData(), &base);
        const QString sql =
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
            "INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion, Situacion, Municipio) "
            "SELECT 'Tasador Ñúmero ' || (i %% 8), 'P', i, "
            "substr('CalleÁvilaPasajeÓrgano', 1 + (i * 7919) %% 11, 8) || ' ' || (i * 104729 %% 1000003), "
            "'Municipio ' || (i %% 97) FROM n"_s.arg(casos)
                .replace(u"%%"_s, u"%"_s);
        sqlite3_exec(base, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
        sqlite3_close(base);
    }

    SistemaSinPantalla sistema;
};

void Tree(benchmark::State& estado)
{
    const BaseGrande base(static_cast<int>(estado.range(0)));
    EstadoCompartido compartido;
    for (auto _ : estado) {
        Arbol arbol(u"Arbol"_s);
        ArbolCasos::CargarArbol(arbol, compartido, base.sistema);
        if (arbol.carpetas()[0].hijos.size() != static_cast<size_t>(estado.range(0)))
            estado.SkipWithError("cases missing");
    }
}

/// Steps through one folder's SELECT and touches every column; gives the rows.
qint64 Recorrer(const QString& ruta, const Carpeta& carpeta, const char* orden)
{
    sqlite3* conexion = nullptr;
    sqlite3_open(ruta.toUtf8().constData(), &conexion);
    RegistrarFunciones(conexion);
    const QString sql = QString::asprintf(kConsulta, carpeta.tabla, carpeta.letra, orden, orden);
    sqlite3_stmt* sentencia = nullptr;
    sqlite3_prepare_v2(conexion, sql.toUtf8().constData(), -1, &sentencia, nullptr);
    qint64 filas = 0;
    while (sqlite3_step(sentencia) == SQLITE_ROW) {
        for (int columna = 0; columna < 5; ++columna)
            benchmark::DoNotOptimize(sqlite3_column_text(sentencia, columna));
        ++filas;
    }
    sqlite3_finalize(sentencia);
    sqlite3_close(conexion);
    return filas;
}

void RecorrerCarpetas(benchmark::State& estado, std::span<const Carpeta> carpetas, const char* orden)
{
    const BaseGrande base(static_cast<int>(estado.range(0)));
    const QString ruta = RutaBaseDatosPorDefecto(base.sistema);
    for (auto _ : estado) {
        qint64 filas = 0;
        for (const Carpeta& carpeta : carpetas)
            filas += Recorrer(ruta, carpeta, orden);
        if (filas != estado.range(0))
            estado.SkipWithError("rows missing");
    }
}

void Tree_Baseline(benchmark::State& estado)
{
    RecorrerCarpetas(estado, kCarpetas, kSinMas);
}

void Tree_BaselineOneFolder(benchmark::State& estado)
{
    RecorrerCarpetas(estado, std::span(kCarpetas).first(1), kSinMas);
}

void Tree_BaselineSortedByEngine(benchmark::State& estado)
{
    RecorrerCarpetas(estado, kCarpetas, kEspañol);
}

BENCHMARK(Tree)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Tree_Baseline)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Tree_BaselineOneFolder)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Tree_BaselineSortedByEngine)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace valmerix

BENCHMARK_MAIN();
