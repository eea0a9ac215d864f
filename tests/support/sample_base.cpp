#include "support/sample_base.h"

#include "store/query.h"
#include "store/schema.h"

#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>

namespace valmerix {

using namespace Qt::StringLiterals;

void CrearBaseDeMuestras(const QString& ruta)
{
    QFile muestras(QStringLiteral(VALMERIX_SOURCE_DIR "/data/muestras/muestras.sql"));
    if (!muestras.open(QIODevice::ReadOnly)) {
        throw ErrorAlmacen(u"cannot read "_s + muestras.fileName());
    }
    InstalarBaseDatos(ruta);
    EjecutarEnBase(ruta, muestras.readAll());
}

void EjecutarEnBase(const QString& ruta, const QByteArray& sql)
{
    SQLite::Database conexion(ruta.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaccion(conexion);
    conexion.exec(sql.toStdString());
    transaccion.commit();
}

} // namespace valmerix
