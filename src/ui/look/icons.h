#pragma once

#include <QColor>
#include <QIcon>

namespace valmerix {

/// A picture of ours by its name (`carpeta` is icons/carpeta.svg), drawn in the palette's text colour: the
/// same file serves light and dark. Crisp at any size and scale. An invalid colour is the palette's own.
QIcon Icono(const QString& nombre, const QColor& color = {});

} // namespace valmerix
