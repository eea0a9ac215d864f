#pragma once

#include "common/ports.h"
#include "controls/window.h"

#include <span>

namespace valmerix {

/// Pass backspace and digits, and FiltroDecimal both "." and "," as ",". Any other key becomes 0 with a beep.
void FiltroEntero(int& TeclaPulsada, Sistema& sistema);
void FiltroDecimal(int& TeclaPulsada, Sistema& sistema);

/// A pasted number loses the dots that group its thousands, which the key filter would turn into commas:
/// "1.234,56" gives "1234,56". Anything else stays as it is.
void QuitarPuntosDeMiles(QString& pegado);

struct ReglaTecla
{
    QStringView campo;
    void (*filtro)(int&, Sistema&) = nullptr;
    int longitud = 0; ///< greatest length; 0: that of its focus rule, or none
};

/// The fields that take digits only.
std::span<const ReglaTecla> ReglasTecla();

/// Puts the filters and lengths on those of the fields that the window has. `sistema` outlives the window.
void ConectarFiltros(Ventana& ventana, Sistema& sistema);

} // namespace valmerix
