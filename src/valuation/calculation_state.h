#pragma once

#include "common/currency.h"

#include <QString>

namespace valmerix {

/// Figures of the case in hand, filled by the calculators, read by the report and the saving.
/// Surfaces in m²; money in the program's currency, per m² where said.
struct EstadoCalculo
{
    double SuperficieUtil = 0;
    double SuperficieConstruida = 0;
    double SuperficieSolar = 0;
    double SuperficieSobreRasante = 0;
    qint16 PlantasAltas = 0; ///< ground floor not counted
    qint16 ViviendasPorPlanta = 0;
    qint16 Antiguedad = 0; ///< years
    double CoeficienteK = 0;
    double CoefConstruidaUtil = 0;
    double CoefDepreciacion = 0; ///< fraction of the cost lost to age, not capped
    Currency RepercusionSolar;   ///< per built m²
    Currency CosteConstruccion;  ///< per m²
    Currency ValorReposicion;    ///< per m²
    Currency ValorUnitario;      ///< per m²
    Currency ValorVivienda;
    Currency ValorTrastero;
    Currency ValorGaraje;
    Currency ValorOtroAnexo;
    Currency ValorTotal;
    Currency ValorUnitarioSuelo; ///< per m² of plot
};

/// What a restart clears: the results in money. The rest stays as the last calculation or loading left it.
inline void BorrarResultados(EstadoCalculo& estado)
{
    for (Currency EstadoCalculo::*resultado :
         {&EstadoCalculo::RepercusionSolar, &EstadoCalculo::CosteConstruccion,
          &EstadoCalculo::ValorReposicion, &EstadoCalculo::ValorUnitario, &EstadoCalculo::ValorVivienda,
          &EstadoCalculo::ValorTrastero, &EstadoCalculo::ValorGaraje, &EstadoCalculo::ValorOtroAnexo,
          &EstadoCalculo::ValorTotal, &EstadoCalculo::ValorUnitarioSuelo})
        estado.*resultado = {};
}

/// Sentences composed while she types; the report prints them as they stand.
struct FrasesInforme
{
    QString FraseAntiguedad;
    QString FrasePlantas;
    QString FraseViviendasPlanta;
    QString FraseAscensores;
    QString FraseSotanos;
    QString FraseUrbanistica;
};

} // namespace valmerix
