#include "valuation/kind_descriptions.h"

namespace valmerix {

constinit const DescripcionForma kDescripcionPiso{
    u"Piso",
    u"Valmerix - Pisos",
    u"PerfilPiso",
    &OpcionesPrograma::PerfilPiso,
    &OpcionesPrograma::EdadViviendas,
    SeccionesPiso,
    &kEstrategiasBloque,
};

constinit const DescripcionForma kDescripcionApto{
    u"Apto",
    u"Valmerix - Apartamentos",
    u"PerfilApartamento",
    &OpcionesPrograma::PerfilApartamento,
    &OpcionesPrograma::EdadViviendas,
    SeccionesApto,
    &kEstrategiasBloque,
};

constinit const DescripcionForma kDescripcionCasa{
    u"Casa",
    u"Valmerix - Casas",
    u"PerfilCasa",
    &OpcionesPrograma::PerfilCasa,
    &OpcionesPrograma::EdadViviendas,
    SeccionesCasa,
    &kEstrategiasCasa,
};

const DescripcionForma* DescripcionDe(QChar letra)
{
    for (const DescripcionForma* d : {&kDescripcionPiso, &kDescripcionApto, &kDescripcionCasa}) {
        if (d->letra() == letra)
            return d;
    }
    return nullptr;
}

} // namespace valmerix
