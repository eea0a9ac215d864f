#include "controls/option_group.h"

#include <algorithm>

namespace valmerix {

void GrupoOpciones::setTitulos(const QStringList& titulos)
{
    titulos_ = titulos;
    Q_EMIT PresentacionCambiada();
}

void GrupoOpciones::Elegir(int indice)
{
    if (indice < 0 || indice >= Count() || indice == elegida_)
        return;
    elegida_ = indice;
    Q_EMIT PresentacionCambiada();
    Q_EMIT Click(indice);
}

void GrupoOpciones::Quitar()
{
    if (elegida_ < 0)
        return;
    elegida_ = -1;
    Q_EMIT PresentacionCambiada();
}

void GrupoOpciones::Pulsar(int indice)
{
    if (Enabled())
        Elegir(indice);
}

int BuscaOpcion(const GrupoOpciones& opciones)
{
    return std::max(opciones.elegida(), 0);
}

} // namespace valmerix
