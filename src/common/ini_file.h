#pragma once

#include <QString>

namespace valmerix {

/// One key of an ini file: section and key blind to case, the value trimmed, one pair of enclosing quotes
/// removed, at most 255 characters. A missing file, section or key, or an empty value, gives `defecto`.
/// UTF-8 (with or without mark) or, failing that, Latin-1; damaged files never throw.
QString LeerIni(const QString& fichero, const QString& seccion, const QString& clave,
                const QString& defecto = {});

} // namespace valmerix
