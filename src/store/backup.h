#pragma once

#include <QString>

namespace valmerix {

/// Copies a database with the engine's online backup, checks the copy with integrity_check and puts it at
/// `destino`, whole or not at all (a file there is replaced; its folder is made). Throws ErrorAlmacen.
void CopiarBaseDatos(const QString& origen, const QString& destino);

} // namespace valmerix
