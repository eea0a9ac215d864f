#pragma once

#include "store/query.h"

#include <QStringList>
#include <SQLiteCpp/Database.h>
#include <string>
#include <vector>

struct sqlite3_stmt;

namespace valmerix::AccesoDatos {

/// One open database file and the transaction that its writes share.
class Conexion
{
public:
    /// Throws ErrorAlmacen. A file that may not be written opens for reading.
    explicit Conexion(const QString& ruta);

    /// `utf8` is the SELECT `sql` with its ORDER BY in Spanish order, `orden` the bare names of that ORDER
    /// BY, none when it holds anything else.
    ConjuntoResultados Leer(const QString& sql, const std::string& utf8, const QStringList& orden);
    /// Prepares all of them before it runs the first.
    void Escribir(const QString& sql, const std::vector<std::string>& utf8);
    /// Throws ErrorAlmacen when what was written does not stand, however often it is called.
    void Confirmar();

private:
    struct Soltar
    {
        void operator()(sqlite3_stmt* sentencia) const;
    };
    using Sentencia = std::unique_ptr<sqlite3_stmt, Soltar>;

    void Preparar();
    void ComprobarQueEsNuestra(const QString& ruta);
    qint64 Pragma(const char* nombre);
    void Mandar(const char* orden, const QString& sql);
    Sentencia Compilar(const QString& sql, const std::string& utf8, bool soloLectura);
    std::string Camino(const QString& sql, const std::string& utf8);
    void ComprobarQueSigueEnPie(const QString& sql);
    [[noreturn]] void Fallar(int codigo, const QString& sql);

    SQLite::Database base_;
    bool escribiendo_ = false;
    bool deshecho_ = false; ///< what was written is lost; no more writing on this connection
};

} // namespace valmerix::AccesoDatos
