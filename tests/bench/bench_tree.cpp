#include "shell/case_tree.h"
#include "shell/headless_ports.h"
#include "store/schema.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

// The tree of stored cases: query, nodes, Spanish sort; against the same SELECT stepped without nodes.

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr char kConsulta[] =
    "SELECT NombreTasador, NumeroTasacion, Tipo, Situacion, Municipio FROM Viviendas "
    "WHERE Tipo = 'P' ORDER BY NombreTasador, NumeroTasacion";

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

void Tree_Baseline(benchmark::State& estado)
{
    const BaseGrande base(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        sqlite3* conexion = nullptr;
        sqlite3_open(RutaBaseDatosPorDefecto(base.sistema).toUtf8().constData(), &conexion);
        sqlite3_stmt* sentencia = nullptr;
        sqlite3_prepare_v2(conexion, kConsulta, -1, &sentencia, nullptr);
        qint64 filas = 0;
        while (sqlite3_step(sentencia) == SQLITE_ROW) {
            for (int columna = 0; columna < 5; ++columna)
                benchmark::DoNotOptimize(sqlite3_column_text(sentencia, columna));
            ++filas;
        }
        if (filas != estado.range(0))
            estado.SkipWithError("rows missing");
        sqlite3_finalize(sentencia);
        sqlite3_close(conexion);
    }
}

BENCHMARK(Tree)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Tree_Baseline)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace valmerix

BENCHMARK_MAIN();
