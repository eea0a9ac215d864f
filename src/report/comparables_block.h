#pragma once

#include "report/report_case.h"

namespace valmerix {

/// The comparables chosen for the case, one block of lines each, as the report quotes them; empty when none
/// is. Lines end in CR LF.
QString AgregarTestigos(const CasoInforme& caso);

} // namespace valmerix
