#pragma once

#include "controls/window.h"
#include "valuation/calculation_state.h"

namespace valmerix {

/// `Observaciones`: the editor of the case's notes, on a copy that SSCommand1 writes back.
class Observaciones : public Ventana
{
    Q_OBJECT

public:
    /// `caso` holds `txtObservaciones` and outlives the editor.
    explicit Observaciones(Ventana& caso);
};

/// `Problema`: the editor of what is irregular in the planning, which becomes the report's sentence on it.
class Problema : public Ventana
{
    Q_OBJECT

public:
    explicit Problema(FrasesInforme& frases);
};

} // namespace valmerix
