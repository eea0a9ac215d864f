#pragma once

#include "controls/window.h"
#include "store/case_fields.h"

#include <QString>

namespace valmerix {

namespace AccesoDatos {
class clsConsulta;
}

/// The statement that creates the comparable of a new case: its number is minus that of the case.
QString AltaDeTestigo(const QString& letra, qint32 numero);

/// The statement that brings the comparable of a building up to date with its window.
QString ActualizacionDeTestigo(const Ventana& ventana, const QString& letra, qint32 numero,
                               const AccesoDatos::clsConsulta& consulta);

} // namespace valmerix
