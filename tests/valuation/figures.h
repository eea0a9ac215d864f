#pragma once

#include "support/qt_printers.h"
#include "valuation/calculation_state.h"

#include <gtest/gtest.h>

namespace valmerix {

/// Every figure of one state against the same of another, to the last decimal.
inline void CompararFiguras(const EstadoCalculo& uno, const EstadoCalculo& otro)
{
    EXPECT_EQ(uno.SuperficieUtil, otro.SuperficieUtil);
    EXPECT_EQ(uno.SuperficieConstruida, otro.SuperficieConstruida);
    EXPECT_EQ(uno.SuperficieSolar, otro.SuperficieSolar);
    EXPECT_EQ(uno.SuperficieSobreRasante, otro.SuperficieSobreRasante);
    EXPECT_EQ(uno.PlantasAltas, otro.PlantasAltas);
    EXPECT_EQ(uno.ViviendasPorPlanta, otro.ViviendasPorPlanta);
    EXPECT_EQ(uno.Antiguedad, otro.Antiguedad);
    EXPECT_EQ(uno.CoeficienteK, otro.CoeficienteK);
    EXPECT_EQ(uno.CoefConstruidaUtil, otro.CoefConstruidaUtil);
    EXPECT_EQ(uno.CoefDepreciacion, otro.CoefDepreciacion);
    EXPECT_EQ(uno.RepercusionSolar, otro.RepercusionSolar);
    EXPECT_EQ(uno.CosteConstruccion, otro.CosteConstruccion);
    EXPECT_EQ(uno.ValorReposicion, otro.ValorReposicion);
    EXPECT_EQ(uno.ValorUnitario, otro.ValorUnitario);
    EXPECT_EQ(uno.ValorVivienda, otro.ValorVivienda);
    EXPECT_EQ(uno.ValorTrastero, otro.ValorTrastero);
    EXPECT_EQ(uno.ValorGaraje, otro.ValorGaraje);
    EXPECT_EQ(uno.ValorOtroAnexo, otro.ValorOtroAnexo);
    EXPECT_EQ(uno.ValorTotal, otro.ValorTotal);
    EXPECT_EQ(uno.ValorUnitarioSuelo, otro.ValorUnitarioSuelo);
}

} // namespace valmerix
