#pragma once

#include "controls/control.h"

class QWidget;

namespace valmerix {

/// The widget that suits a control's class, already showing and changing what only that class has. What all
/// controls have is the binder's. Null for what cannot be seen (a clock).
QWidget* FabricarWidget(Control& control, QWidget* padre);

} // namespace valmerix
