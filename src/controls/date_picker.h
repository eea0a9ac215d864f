#pragma once

#include "common/ports.h"
#include "controls/text_field.h"

namespace valmerix {

/// Opens the calendar on the date of the field, today's when the field holds none (which is then written
/// into it). True when a date was chosen; the field then shows it as "dd/mm/yyyy".
bool ElegirFecha(CampoTexto& campo, Dialogos& dialogos, const Reloj& reloj);

} // namespace valmerix
