#pragma once

#include <QFont>

namespace valmerix {

enum class Grueso : char { Normal, Negrita };

/// The type that pages are set in. `cuerpo` is its size in page units. Its letters stand where the design of
/// the type puts them, at any zoom, and no two of them are joined into one: what is printed can be searched.
QFont LetraDePagina(qreal cuerpo, Grueso grueso = Grueso::Normal);

} // namespace valmerix
