#pragma once

#include <QString>

class QWidget;

namespace valmerix {

/// Draws a window as it stands into a picture file; the format is the file name's. False when it could not be
/// written.
bool GuardarFoto(QWidget& ventana, const QString& fichero);

} // namespace valmerix
