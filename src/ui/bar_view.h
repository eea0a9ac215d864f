#pragma once

#include "ui/window_view.h"

namespace valmerix {

/// A task-bar window: on screen only while its window is minimised. Restored, it gives way to the window that
/// it stands for; where the desktop cannot minimise, its one button restores.
class VistaBarra : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaBarra(Ventana& ventana);

    void setVisible(bool visible) override;

protected:
    QRect LugarPosible(QRect pedido) const override;

private:
    void Acomodar();
};

} // namespace valmerix
