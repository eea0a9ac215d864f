#pragma once

#include <vector>

namespace valmerix {

/// A line as wide as the page, as far as breaking pages goes.
struct Renglonado
{
    bool blanco = false;
    bool atado = false; ///< no page break between this line and the next
};

/// Lines [primero, ultimo) stand on one page.
struct TramoPagina
{
    int primero = 0;
    int ultimo = 0;
    bool operator==(const TramoPagina&) const = default;
};

/// A paragraph as broken into lines.
struct ParrafoRenglonado
{
    int renglones = 1;
    bool blanco = false;
    bool negrita = false;
};

/// Ties lines together: a heading (bold, of few lines) to what follows it, and the first and the last two
/// lines of every paragraph.
std::vector<Renglonado> AtarRenglones(const std::vector<ParrafoRenglonado>& parrafos);

/// Fills pages of `caben` lines, the first one of `cabenPrimera` (both at least 1). Blank lines at the top of
/// a page other than the first, and at the end, vanish. Ties give way only where they tie more than half a
/// page together. At least one page.
std::vector<TramoPagina> RepartirEnPaginas(const std::vector<Renglonado>& renglones, int cabenPrimera,
                                           int caben);

} // namespace valmerix
