// Installs a new database and fills it with sample cases: valmerix-muestras BASE MUESTRAS.sql

#include "store/query.h"
#include "store/schema.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <SQLiteCpp/SQLiteCpp.h>

using namespace Qt::StringLiterals;

namespace {

/// All of the file's statements or none of them. Throws SQLite::Exception.
void EjecutarFichero(const QString& base, const QByteArray& sql)
{
    SQLite::Database conexion(base.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaccion(conexion);
    conexion.exec(sql.toStdString());
    transaccion.commit();
}

int Fallo(const QString& texto)
{
    QTextStream(stderr) << texto << Qt::endl;
    return 1;
}

int Instalar(const QString& base, const QString& fichero)
{
    QFile sql(fichero);
    if (!sql.open(QIODevice::ReadOnly)) {
        return Fallo(u"No se puede leer "_s + fichero);
    }
    try {
        valmerix::InstalarBaseDatos(base);
        EjecutarFichero(base, sql.readAll());
    } catch (const valmerix::ErrorAlmacen& error) {
        return Fallo(error.mensaje());
    } catch (const SQLite::Exception& error) {
        QFile::remove(base);
        return Fallo(QString::fromUtf8(error.what()));
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 3) {
        QTextStream(stderr) << u"Uso: valmerix-muestras BASE MUESTRAS.sql"_s << Qt::endl;
        return 2;
    }
    return Instalar(argumentos.at(1), argumentos.at(2));
}
