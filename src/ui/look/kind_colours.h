#pragma once

#include <QColor>

namespace valmerix {

/// "red,green,blue" as a colour; an invalid one for any other text.
QColor ColorDeTexto(QStringView texto);

/// The two colours of a kind, by the name of its case window; invalid for a window without colours.
struct ColoresTipo
{
    QColor uno;
    QColor otro;
};
ColoresTipo ColoresEnPantalla(QStringView ventana);

} // namespace valmerix
