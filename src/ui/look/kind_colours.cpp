#include "ui/look/kind_colours.h"

#include "shell/toolbar.h"

namespace valmerix {

QColor ColorDeTexto(QStringView texto)
{
    const auto partes = texto.split(u',');
    return partes.size() == 3 ? QColor(partes[0].toInt(), partes[1].toInt(), partes[2].toInt()) : QColor();
}

ColoresTipo ColoresEnPantalla(QStringView ventana)
{
    const ColoresForma colores = ColoresDe(ventana);
    return {ColorDeTexto(colores.image1), ColorDeTexto(colores.image2)};
}

} // namespace valmerix
