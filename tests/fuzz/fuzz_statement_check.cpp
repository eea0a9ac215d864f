#include "fuzz_support.h"
#include "store/query.h"
#include "store/statement_check.h"

#include <memory>
#include <sqlite3.h>

// Whatever text comes in, what the check lets through is for the engine one statement that reads (a query) or
// writes rows of tables (a write), and nothing else.

namespace {

using valmerix::pruebas::Exigir;

int soloDatos = 0; // what the engine asked for beyond rows of tables

int Vigilar(void* /*nada*/, int accion, const char* /*a*/, const char* /*b*/, const char* /*c*/,
            const char* /*d*/)
{
    switch (accion) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        return SQLITE_OK;
    default:
        ++soloDatos;
        return SQLITE_OK;
    }
}

int SinComparar(void* /*nada*/, int n, const void* /*a*/, int m, const void* /*b*/)
{
    return n - m;
}

sqlite3* Motor()
{
    static sqlite3* const motor = [] {
        sqlite3* nuevo = nullptr;
        Exigir(sqlite3_open(":memory:", &nuevo) == SQLITE_OK);
        Exigir(sqlite3_exec(nuevo, "CREATE TABLE t (a TEXT, b INTEGER); CREATE TABLE u (a, b)", nullptr,
                            nullptr, nullptr) == SQLITE_OK);
        sqlite3_create_collation(nuevo, "ESPANOL", SQLITE_UTF8, nullptr, SinComparar);
        sqlite3_set_authorizer(nuevo, Vigilar, nullptr);
        return nuevo;
    }();
    return motor;
}

void Comprobar(const std::string& sql, bool lectura)
{
    soloDatos = 0;
    sqlite3_stmt* sentencia = nullptr;
    const char* resto = nullptr;
    if (sqlite3_prepare_v2(Motor(), sql.c_str(), static_cast<int>(sql.size()) + 1, &sentencia, &resto) ==
        SQLITE_OK) {
        Exigir(sentencia != nullptr);
        Exigir(resto == sql.c_str() + sql.size());
        Exigir((sqlite3_stmt_readonly(sentencia) != 0) == lectura);
        Exigir(sqlite3_stmt_isexplain(sentencia) == 0);
        Exigir(soloDatos == 0);
    }
    sqlite3_finalize(sentencia);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const QString sql =
        QString::fromUtf8(reinterpret_cast<const char*>(datos), static_cast<qsizetype>(largo));
    try {
        Comprobar(valmerix::ComprobarConsulta(sql), true);
    } catch (const valmerix::ErrorAlmacen& fallo) {
        Exigir(!fallo.mensaje().isEmpty());
    }
    try {
        for (const std::string& parte : valmerix::ComprobarEscritura(sql))
            Comprobar(parte, false);
    } catch (const valmerix::ErrorAlmacen& fallo) {
        Exigir(!fallo.mensaje().isEmpty());
    }
    return 0;
}
