#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace valmerix {

/// Reads a picture of any format that the machine knows, told by its content and not by its name; upright,
/// opaque (white behind what is transparent), reduced while decoding to fit in `caja` (pixels), never
/// enlarged, at least one pixel wide and high. Null when the file cannot be read.
QImage LeerImagen(const QString& ruta, QSize caja);

} // namespace valmerix
