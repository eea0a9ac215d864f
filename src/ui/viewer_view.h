#pragma once

#include "ui/window_view.h"

namespace valmerix {

class CabeceraVentana;

/// The report viewer: chapter buttons, find box, edit check and commands over the text.
class VistaVisor : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaVisor(Ventana& ventana);

    QSize sizeHint() const override;

private:
    CabeceraVentana* Cabecera();
    QWidget* Barra();
    QWidget* Capitulos(QWidget* padre);
    QWidget* Orden(QStringView nombre, const QString& icono, QWidget* padre);
};

} // namespace valmerix
