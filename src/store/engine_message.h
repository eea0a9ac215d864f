#pragma once

#include <QString>

namespace valmerix {

/// What the engine says of a failure: a Spanish sentence where we have one, the engine's own words behind it.
/// `codigo` is its result code, plain or extended.
QString MensajeDelMotor(int codigo, const QString& mensaje);

} // namespace valmerix
