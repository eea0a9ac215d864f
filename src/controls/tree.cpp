#include "controls/tree.h"

namespace valmerix {

void Arbol::setCarpetas(std::vector<CarpetaArbol> carpetas)
{
    carpetas_ = std::move(carpetas);
    seleccion_.clear();
    Q_EMIT ContenidoCambiado();
}

void Arbol::DoblePulsar(const QString& clave)
{
    seleccion_ = clave;
    Q_EMIT DblClick();
}

} // namespace valmerix
