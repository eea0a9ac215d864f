#pragma once

#include "ui/window_view.h"

namespace valmerix {

/// A window with one long text, accepted or left: the notes, the planning problem.
class VistaEditor : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaEditor(Ventana& ventana);

    QSize sizeHint() const override;
};

} // namespace valmerix
