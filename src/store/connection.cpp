#include "store/connection.h"

#include "store/engine_message.h"
#include "store/file_format.h"
#include "store/row_order.h"
#include "store/snapshot_data.h"
#include "store/sql_functions.h"

#include <QFileInfo>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace valmerix::AccesoDatos {

using namespace Qt::StringLiterals;

namespace {

// Room to sort a hundred thousand cases without a temporary file; taken only as it is needed.
constexpr char kMemoria[] = "PRAGMA cache_size = -65536"; // KiB

constexpr int kEsperaMs = 3000;

SQLite::Database Abrir(const QString& ruta)
{
    const QFileInfo fichero(ruta);
    if (!fichero.exists())
        throw ErrorAlmacen(u"No se encuentra la base de datos «%1»."_s.arg(ruta));
    if (!fichero.isFile())
        throw ErrorAlmacen(u"«%1» no es un fichero de base de datos."_s.arg(ruta));
    try {
        return {ruta.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, kEsperaMs};
    } catch (const SQLite::Exception& fallo) {
        throw ErrorAlmacen(u"«%1»: %2"_s.arg(
            ruta, MensajeDelMotor(fallo.getErrorCode(), QString::fromUtf8(fallo.getErrorStr()))));
    }
}

// The columns of these names; none at all when a name is not that of exactly one column.
std::vector<int> ColumnasDelOrden(sqlite3_stmt* sentencia, const QStringList& nombres)
{
    QStringList campos;
    for (int i = 0; i < sqlite3_column_count(sentencia); ++i)
        campos << QString::fromUtf8(sqlite3_column_name(sentencia, i)).toCaseFolded();
    std::vector<int> columnas;
    for (const QString& nombre : nombres) {
        const QString campo = nombre.toCaseFolded();
        if (campos.count(campo) != 1)
            return {};
        columnas.push_back(static_cast<int>(campos.indexOf(campo)));
    }
    return columnas;
}

} // namespace

void Conexion::Soltar::operator()(sqlite3_stmt* sentencia) const
{
    sqlite3_finalize(sentencia);
}

Conexion::Conexion(const QString& ruta)
    : base_(Abrir(ruta))
{
    ComprobarQueEsNuestra(ruta);
    Preparar();
}

void Conexion::ComprobarQueEsNuestra(const QString& ruta)
{
    try {
        if (Pragma("PRAGMA application_id") != kIdentidadFichero)
            throw ErrorAlmacen(u"«%1» no es una base de datos de Valmerix."_s.arg(ruta));
        if (Pragma("PRAGMA user_version") > kVersionFichero)
            throw ErrorAlmacen(u"«%1» es de una versión posterior de Valmerix."_s.arg(ruta));
    } catch (const SQLite::Exception& fallo) {
        throw ErrorAlmacen(u"«%1»: %2"_s.arg(
            ruta, MensajeDelMotor(fallo.getErrorCode(), QString::fromUtf8(fallo.getErrorStr()))));
    }
}

qint64 Conexion::Pragma(const char* nombre)
{
    return base_.execAndGet(nombre).getInt64();
}

// Files come from elsewhere too: what they define besides tables does not run.
void Conexion::Preparar()
{
    sqlite3* motor = base_.getHandle();
    for (const int cerrojo : {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW,
                              SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_DQS_DML}) {
        sqlite3_db_config(motor, cerrojo, 0, nullptr);
    }
    sqlite3_db_config(motor, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    RegistrarFunciones(motor);
    base_.tryExec(kMemoria);
}

void Conexion::Fallar(int codigo, const QString& sql)
{
    throw ErrorAlmacen(MensajeDelMotor(codigo, QString::fromUtf8(sqlite3_errmsg(base_.getHandle()))), sql);
}

void Conexion::Mandar(const char* orden, const QString& sql)
{
    const int codigo = base_.tryExec(orden);
    if (codigo != SQLITE_OK)
        Fallar(codigo, sql);
}

Conexion::Sentencia Conexion::Compilar(const QString& sql, const std::string& utf8, bool soloLectura)
{
    sqlite3_stmt* compilada = nullptr;
    const char* resto = nullptr;
    const int codigo = sqlite3_prepare_v2(base_.getHandle(), utf8.c_str(), static_cast<int>(utf8.size()) + 1,
                                          &compilada, &resto);
    Sentencia sentencia(compilada);
    if (codigo != SQLITE_OK)
        Fallar(codigo, sql);
    const bool admitida = compilada != nullptr && resto == utf8.c_str() + utf8.size() &&
                          (sqlite3_stmt_readonly(compilada) != 0) == soloLectura &&
                          sqlite3_bind_parameter_count(compilada) == 0;
    if (!admitida)
        throw ErrorAlmacen(u"La base de datos no admite esta sentencia."_s, sql);
    return sentencia;
}

// How the engine goes about a SELECT, a line each step.
std::string Conexion::Camino(const QString& sql, const std::string& utf8)
{
    constexpr int kDetalle = 3;
    const Sentencia plan = Compilar(sql, "EXPLAIN QUERY PLAN " + utf8, true);
    std::string camino;
    while (sqlite3_step(plan.get()) == SQLITE_ROW) {
        camino += reinterpret_cast<const char*>(sqlite3_column_text(plan.get(), kDetalle));
        camino += '\n';
    }
    return camino;
}

// An index that gives the rows in the order of another collation gives them nearly in ours: to put them right
// costs much less than the engine's sorting of them all. The engine walks the same rows either way, so equal
// ones end up as they would by it.
ConjuntoResultados Conexion::Leer(const QString& sql, const std::string& utf8, const QStringList& orden)
{
    Sentencia sentencia = Compilar(sql, utf8, true);
    std::vector<int> columnas = ColumnasDelOrden(sentencia.get(), orden);
    const std::string literal = sql.toStdString();
    if (!columnas.empty() && Camino(sql, literal) + "USE TEMP B-TREE FOR ORDER BY\n" == Camino(sql, utf8))
        sentencia = Compilar(sql, literal, true);
    else
        columnas.clear();
    LecturaConsulta lectura = LeerTodo(sentencia.get(), sql);
    if (lectura.codigo != SQLITE_DONE)
        Fallar(lectura.codigo, sql);
    if (!columnas.empty())
        OrdenarFilas(*lectura.datos, columnas);
    return ConjuntoResultados(std::move(lectura.datos));
}

// A full disk or a failing one makes the engine undo the whole transaction by itself.
void Conexion::ComprobarQueSigueEnPie(const QString& sql)
{
    deshecho_ = deshecho_ || (escribiendo_ && sqlite3_get_autocommit(base_.getHandle()) != 0);
    if (deshecho_)
        throw ErrorAlmacen(u"La base de datos ha deshecho lo que se estaba guardando."_s, sql);
}

void Conexion::Escribir(const QString& sql, const std::vector<std::string>& utf8)
{
    std::vector<Sentencia> sentencias;
    sentencias.reserve(utf8.size());
    for (const std::string& texto : utf8)
        sentencias.push_back(Compilar(sql, texto, false));
    ComprobarQueSigueEnPie(sql);
    if (!escribiendo_) {
        // A file that another tool left with a write-ahead log goes back to being one file.
        Mandar("PRAGMA journal_mode = DELETE", sql);
        Mandar("PRAGMA synchronous = EXTRA", sql);
        Mandar("BEGIN IMMEDIATE", sql);
        escribiendo_ = true;
    }
    for (const Sentencia& sentencia : sentencias) {
        const int codigo = sqlite3_step(sentencia.get());
        if (codigo != SQLITE_DONE)
            Fallar(codigo, sql);
    }
}

void Conexion::Confirmar()
{
    ComprobarQueSigueEnPie(u"COMMIT"_s);
    if (!escribiendo_)
        return;
    escribiendo_ = false;
    const int codigo = base_.tryExec("COMMIT");
    if (codigo == SQLITE_OK)
        return;
    const QString mensaje = MensajeDelMotor(codigo, QString::fromUtf8(sqlite3_errmsg(base_.getHandle())));
    deshecho_ = true;
    base_.tryExec("ROLLBACK");
    throw ErrorAlmacen(mensaje, u"COMMIT"_s);
}

} // namespace valmerix::AccesoDatos
