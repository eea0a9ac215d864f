#pragma once

#include "ui/window_view.h"

namespace valmerix {

/// The toolbar beside the case window: twelve buttons in three groups, under a title in the kind's colours.
class VistaPaleta : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaPaleta(Ventana& ventana);

protected:
    void paintEvent(QPaintEvent* evento) override;
    /// At the form's edge, as far as there is room: never where she cannot see it.
    QRect LugarPosible(QRect pedido) const override;

private:
    QWidget* Titulo();
    QWidget* CrearOrden(int indice);
};

} // namespace valmerix
