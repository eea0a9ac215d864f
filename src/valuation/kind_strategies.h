#pragma once

#include "valuation/calculation_state.h"

#include <QStringView>

namespace valmerix {

/// What each kind of building works out in its own way.
struct EstrategiasTipo
{
    /// Plot in m² when the valuer does not know it.
    double (*SolarEstimado)(const EstadoCalculo& estado) = nullptr;
    /// Surface above grade of the whole building in m², as it is proposed.
    double (*SobreRasante)(const EstadoCalculo& estado) = nullptr;
    /// The sentence on storeys for the text of `BoxPlantas`. Throws ErrorDesbordamiento.
    QString (*FrasePlantas)(QStringView plantas) = nullptr;
};

/// Blocks of dwellings: flats and apartments.
extern const EstrategiasTipo kEstrategiasBloque;
extern const EstrategiasTipo kEstrategiasCasa;

} // namespace valmerix
