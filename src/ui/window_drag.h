#pragma once

class QWidget;

namespace valmerix {

/// Lets a frameless window be dragged by a part of it: the window system moves it where it can, we do
/// otherwise. A maximised window stays where it is.
void ArrastrarPor(QWidget& asa);

} // namespace valmerix
