#include "store/open_case.h"

#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

bool TasadorEnLista(const Ventana& ventana, const QString& nombre)
{
    const QString buscado = nombre.trimmed();
    return std::ranges::any_of(ventana.lista(u"cboNombreTasador").List(),
                               [&](const QString& elemento) { return elemento.trimmed() == buscado; });
}

} // namespace valmerix
