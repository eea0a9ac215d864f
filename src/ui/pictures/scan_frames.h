#pragma once

#include <QByteArray>
#include <QImage>
#include <sane/sane.h>
#include <vector>

namespace valmerix {

/// One frame as a scanner gave it; a picture has one, or one of each colour.
struct CuadroEscaneado
{
    SANE_Parameters medidas{};
    QByteArray datos;

    /// Whole lines that have come.
    int lineas() const;
};

/// The picture of those frames: grey or colour, 1, 8 or 16 bits a sample. Null when they make none.
QImage ImagenDeCuadros(const std::vector<CuadroEscaneado>& cuadros);

} // namespace valmerix
