#pragma once

#include "controls/window.h"
#include "valuation/calculation_state.h"

#include <QJsonObject>
#include <QStringList>

namespace valmerix {

/// Every control of the window by name: fields their text, check boxes 0 or 1, option groups their index or
/// null, grids their rows (lists of cells, header first), other controls their caption.
QJsonObject ControlesEnJson(const Ventana& ventana);

/// Every variable of the calculation state by name; money as text with four decimals.
QJsonObject EstadoEnJson(const EstadoCalculo& estado);

QJsonObject FrasesEnJson(const FrasesInforme& frases);

/// Back from what the two above have written. A variable that is missing or no number counts 0.
EstadoCalculo EstadoDeJson(const QJsonObject& objeto);
FrasesInforme FrasesDeJson(const QJsonObject& objeto);

} // namespace valmerix
