#pragma once

#include <QString>

namespace valmerix {

/// Creates the database of a new installation at `ruta` (its folder too): all tables, one row of Empresa,
/// one of Opciones, no valuer. Whole or not at all. Throws ErrorAlmacen; never touches an existing file.
void InstalarBaseDatos(const QString& ruta);

/// Creates the empty exchange template (table Testigos only) the same way.
void InstalarPlantillaTestigos(const QString& ruta);

} // namespace valmerix
