#include "store/backup.h"

#include "store/file_format.h"
#include "store/query.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <cstdio>
#include <sqlite3.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kEspera = 5000; // ms, for another program that holds the file

void Volcar(const std::string& origen, const std::string& provisional)
{
    SQLite::Database fuente(origen, SQLite::OPEN_READONLY, kEspera);
    SQLite::Database copia(provisional, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    copia.exec("PRAGMA synchronous = FULL");
    SQLite::Backup volcado(copia, fuente);
    if (volcado.executeStep(-1) != SQLITE_DONE) // a file that another program holds is no exception here
        throw ErrorAlmacen(u"Otro programa tiene ocupada la base de datos."_s);
}

bool EstaIntegra(const std::string& fichero)
{
    SQLite::Database copia(fichero, SQLite::OPEN_READONLY);
    // An empty file would be found sound too.
    return copia.execAndGet("PRAGMA application_id").getInt64() == kIdentidadFichero &&
           copia.execAndGet("PRAGMA integrity_check").getString() == "ok";
}

} // namespace

void CopiarBaseDatos(const QString& origen, const QString& destino)
{
    const QString provisional = destino + kCopiaProvisional.toString();
    QFile::remove(provisional);
    try {
        if (!QDir().mkpath(QFileInfo(destino).path()))
            throw ErrorAlmacen(u"No se puede crear la carpeta «%1»."_s.arg(QFileInfo(destino).path()));
        Volcar(origen.toStdString(), provisional.toStdString());
        if (!EstaIntegra(provisional.toStdString()))
            throw ErrorAlmacen(u"La copia de seguridad no ha salido íntegra."_s);
        // rename(2) replaces the old copy in one step, which QFile::rename does not do
        if (std::rename(QFile::encodeName(provisional).constData(), QFile::encodeName(destino).constData()) !=
            0)
            throw ErrorAlmacen(u"No se puede escribir la copia «%1»."_s.arg(destino));
    } catch (const SQLite::Exception& fallo) {
        QFile::remove(provisional);
        throw ErrorAlmacen(
            u"No se puede copiar la base de datos: %1."_s.arg(QString::fromUtf8(fallo.what())));
    } catch (const ErrorAlmacen&) {
        QFile::remove(provisional);
        throw;
    }
}

} // namespace valmerix
