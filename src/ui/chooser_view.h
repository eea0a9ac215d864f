#pragma once

#include "ui/window_view.h"

namespace valmerix {

/// The window that walks the disks for the word processor.
class VistaSelector : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaSelector(Ventana& ventana);

    QSize sizeHint() const override;
};

} // namespace valmerix
