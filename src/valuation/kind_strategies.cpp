#include "valuation/kind_strategies.h"

#include "valuation/ready_sentences.h"

#include <algorithm>

namespace valmerix {

namespace {

constexpr double kElementosComunes = 4.0; // m² of each dwelling that are its share of the common parts

double Plantas(const EstadoCalculo& e)
{
    return e.PlantasAltas + 1.0; // with the ground floor
}

double UnaPlanta(const EstadoCalculo& e)
{
    return (e.SuperficieConstruida - kElementosComunes) * e.ViviendasPorPlanta;
}

double SolarEstimadoBloque(const EstadoCalculo& e)
{
    return std::max(UnaPlanta(e), 0.0);
}

double SobreRasanteBloque(const EstadoCalculo& e)
{
    return UnaPlanta(e) * Plantas(e);
}

// A house fills its own plot: the built surface over its floors, no allowance for common parts.
double SolarEstimadoCasa(const EstadoCalculo& e)
{
    return e.SuperficieConstruida / Plantas(e);
}

double SobreRasanteCasa(const EstadoCalculo& e)
{
    return e.SuperficieConstruida;
}

} // namespace

constinit const EstrategiasTipo kEstrategiasBloque{SolarEstimadoBloque, SobreRasanteBloque,
                                                   FrasePlantasBloque};
constinit const EstrategiasTipo kEstrategiasCasa{SolarEstimadoCasa, SobreRasanteCasa, FrasePlantasCasa};

} // namespace valmerix
