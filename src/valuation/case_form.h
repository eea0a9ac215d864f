#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"
#include "store/open_case.h"
#include "store/program_options.h"
#include "valuation/calculation_state.h"
#include "valuation/case_environment.h"
#include "valuation/form_tables.h"

namespace valmerix {

struct DescripcionForma; // the description of a kind, see kind_descriptions.h

/// What a case window works with; all of it outlives the window.
struct ServiciosCaso
{
    EstadoCompartido& compartido;
    EstadoCalculo& calculo;
    FrasesInforme& frases;
    OpcionesPrograma& opciones;
    Dialogos& dialogos;
    Reloj& reloj;
    Sistema& sistema;
    EntornoCaso& entorno;
};

} // namespace valmerix
