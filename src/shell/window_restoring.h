#pragma once

#include "controls/window.h"

#include <QJsonObject>

namespace valmerix {

/// What a window shows besides the content of its controls: for each control by name what differs from a
/// plain one (hidden, disabled, aspect, tag, lock, greatest length, ticked rows, page, picture), and which
/// control has the focus.
QJsonObject PresentacionEnJson(const Ventana& ventana);

/// Puts a window back as `ControlesEnJson` and `PresentacionEnJson` have told it, field in hand included,
/// without a single event. A name that the window does not have is ignored; a control that is not named
/// stays as it is. For a window that no view shows yet.
void ReponerVentana(Ventana& ventana, const QJsonObject& controles, const QJsonObject& presentacion);

} // namespace valmerix
