#include "ui/views.h"

#include "ui/case_view.h"
#include "ui/generic_view.h"

namespace valmerix {

namespace {

using Fabrica = std::unique_ptr<VistaVentana> (*)(Ventana&);

template <class V>
std::unique_ptr<VistaVentana> Nueva(Ventana& ventana)
{
    return std::make_unique<V>(ventana);
}

struct VistaDeVentana
{
    QStringView ventana;
    Fabrica fabrica;
};

constexpr VistaDeVentana kVistas[] = {
    {u"Piso", Nueva<VistaCaso>},
    {u"Apto", Nueva<VistaCaso>},
    {u"Casa", Nueva<VistaCaso>},
};

} // namespace

std::unique_ptr<VistaVentana> CrearVista(Ventana& ventana)
{
    for (const VistaDeVentana& vista : kVistas) {
        if (vista.ventana == ventana.nombre())
            return vista.fabrica(ventana);
    }
    return Nueva<VistaGenerica>(ventana);
}

} // namespace valmerix
