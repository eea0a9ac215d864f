#pragma once

#include <QString>

namespace valmerix {

/// Installs a database at `ruta` and fills it with the ten sample flats. Throws ErrorAlmacen or
/// SQLite::Exception.
void CrearBaseDeMuestras(const QString& ruta);

/// Runs statements of the test's own on a database, all or none. Throws SQLite::Exception.
void EjecutarEnBase(const QString& ruta, const QByteArray& sql);

} // namespace valmerix
