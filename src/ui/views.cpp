#include "ui/views.h"

#include "ui/generic_view.h"

namespace valmerix {

namespace {

using Fabrica = std::unique_ptr<VistaVentana> (*)(Ventana&);

template <class V>
std::unique_ptr<VistaVentana> Nueva(Ventana& ventana)
{
    return std::make_unique<V>(ventana);
}

} // namespace

std::unique_ptr<VistaVentana> CrearVista(Ventana& ventana)
{
    return Nueva<VistaGenerica>(ventana);
}

} // namespace valmerix
