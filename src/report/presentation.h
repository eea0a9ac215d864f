#pragma once

#include "report/report_case.h"

namespace valmerix {

/// The presentation paragraph: who issues the report, from the stored valuer and company, as far as the
/// settings want each piece. Leaves the valuer's degree in the Tag of `cboNombreTasador`, which the signature
/// reads. What is not stored is empty. Throws ErrorAlmacen.
QString DatoCabecera(const CasoInforme& caso);

} // namespace valmerix
