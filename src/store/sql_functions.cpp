#include "store/sql_functions.h"

#include "common/dates.h"
#include "common/number_pattern.h"
#include "common/spanish_text.h"
#include "store/like_pattern.h"
#include "store/query.h"
#include "store/stored_date.h"

#include <sqlite3.h>
#include <string_view>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

std::string_view Utf8(sqlite3_value* valor)
{
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(valor));
    return texto == nullptr ? std::string_view()
                            : std::string_view(texto, static_cast<size_t>(sqlite3_value_bytes(valor)));
}

void Devolver(sqlite3_context* contexto, const QString& texto)
{
    const QByteArray utf8 = texto.toUtf8();
    sqlite3_result_text(contexto, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

void DevolverError(sqlite3_context* contexto, const QString& mensaje)
{
    sqlite3_result_error(contexto, mensaje.toUtf8().constData(), -1);
}

void Fecha(sqlite3_context* contexto, int /*n*/, sqlite3_value** argumentos)
{
    const std::string_view utf8 = Utf8(argumentos[0]);
    const QString texto = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (const auto fecha = LeerFecha(texto))
        Devolver(contexto, FechaGuardada(*fecha));
    else
        DevolverError(contexto, u"La fecha «%1» no existe o está sin rellenar."_s.arg(texto));
}

void FechaVista(sqlite3_context* contexto, int /*n*/, sqlite3_value** argumentos)
{
    Devolver(contexto, FechaVisible(LeerFechaGuardada(Utf8(argumentos[0]))));
}

void MonedaVista(sqlite3_context* contexto, int /*n*/, sqlite3_value** argumentos)
{
    if (sqlite3_value_type(argumentos[0]) == SQLITE_NULL)
        return Devolver(contexto, {});
    try {
        const int decimales = sqlite3_value_int(argumentos[1]);
        Devolver(contexto, Formatear(sqlite3_value_double(argumentos[0]), PatronMoneda(decimales)));
    } catch (const ErrorDesbordamiento&) {
        DevolverError(contexto, u"Un importe guardado no es un número."_s);
    }
}

void Borrar(void* patron)
{
    delete static_cast<PatronLike*>(patron);
}

// The engine calls like(pattern, text[, escape]). The folded pattern stays with the statement.
void Like(sqlite3_context* contexto, int n, sqlite3_value** argumentos)
{
    for (int i = 0; i < n; ++i) {
        if (sqlite3_value_type(argumentos[i]) == SQLITE_NULL)
            return;
    }
    const std::string_view escape = n == 3 ? Utf8(argumentos[2]) : std::string_view();
    const auto* patron = static_cast<const PatronLike*>(sqlite3_get_auxdata(contexto, 0));
    if (patron != nullptr)
        return sqlite3_result_int(contexto, patron->Casa(Utf8(argumentos[1])) ? 1 : 0);
    const auto* nuevo = new PatronLike(Utf8(argumentos[0]), escape);
    sqlite3_result_int(contexto, nuevo->Casa(Utf8(argumentos[1])) ? 1 : 0);
    // Last, as the engine may delete it at once.
    sqlite3_set_auxdata(contexto, 0, const_cast<PatronLike*>(nuevo), Borrar);
}

int Comparar(void* /*nada*/, int n, const void* a, int m, const void* b)
{
    return CompararEspañol(std::string_view(static_cast<const char*>(a), static_cast<size_t>(n)),
                           std::string_view(static_cast<const char*>(b), static_cast<size_t>(m)));
}

using Funcion = void (*)(sqlite3_context*, int, sqlite3_value**);

struct FuncionSQL
{
    const char* nombre;
    int argumentos;
    Funcion funcion;
};

constexpr FuncionSQL kFunciones[] = {
    {"fecha", 1, Fecha},
    {"fecha_visible", 1, FechaVista},
    {"moneda_visible", 2, MonedaVista},
    {"like", 2, Like},
    {"like", 3, Like},
};

} // namespace

void RegistrarFunciones(sqlite3* conexion)
{
    int fallos = 0;
    for (const FuncionSQL& f : kFunciones) {
        fallos |=
            sqlite3_create_function_v2(conexion, f.nombre, f.argumentos, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                       nullptr, f.funcion, nullptr, nullptr, nullptr);
    }
    fallos |= sqlite3_create_collation_v2(conexion, "ESPANOL", SQLITE_UTF8, nullptr, Comparar, nullptr);
    if (fallos != SQLITE_OK)
        throw ErrorAlmacen(u"No se puede preparar la base de datos."_s);
}

} // namespace valmerix
