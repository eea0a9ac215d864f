#pragma once

#include <QString>

namespace valmerix {

/// Behind the name of a copy while it is being made.
inline constexpr QStringView kCopiaProvisional = u".parcial";

/// Copies a database with the engine's online backup, checks the copy with integrity_check and puts it at
/// `destino`, whole or not at all (a file there is replaced; its folder is made). Throws ErrorAlmacen.
void CopiarBaseDatos(const QString& origen, const QString& destino);

} // namespace valmerix
