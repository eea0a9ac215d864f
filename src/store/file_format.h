#pragma once

#include <QtGlobal>

namespace valmerix {

/// What tells our files from other SQLite files ("VMRX"), and the newest layout that this program knows.
inline constexpr qint64 kIdentidadFichero = 0x564D5258;
inline constexpr qint64 kVersionFichero = 1;

} // namespace valmerix
