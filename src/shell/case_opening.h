#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "shell/case_tree.h"

#include <exception>
#include <vector>

namespace valmerix {

class Formulario;

/// The kind's letter of new-case button `indice`: 0 "P", 1 "A", 2 "C", 3 "T", 4 "N", 5 "L".
QString LetraDelBoton(int indice);
/// For each new-case button, whether its kind has a window.
std::vector<bool> TiposHechos();

/// Runs the loader of the case's table. Throws ErrorAlmacen.
void CargarCaso(Formulario& forma, EstadoCompartido& compartido, const ClaveCaso& caso);
/// Runs the saver of the window's table; nothing for a window of another name. Throws ErrorAlmacen.
void GuardarCaso(Formulario& forma, EstadoCompartido& compartido, Dialogos& dialogos);

/// What a failure says, as text for her.
QString MensajeDe(const std::exception& fallo);

} // namespace valmerix
