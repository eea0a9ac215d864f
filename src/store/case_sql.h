#pragma once

#include "controls/window.h"
#include "store/case_fields.h"

#include <QStringList>

namespace valmerix {

namespace AccesoDatos {
class clsConsulta;
}

/// The statements that write the fields of a case of kind `tipo` from the controls of its window, in order:
/// three that end at `HabitantesHecho`, `Pavimentos` and `ValorFinal`, then that of the notes. `clausula`
/// begins with a blank. Throws ErrorDesbordamiento for a number of hundreds of digits.
QStringList ActualizacionesDeCaso(const Ventana& ventana, Tipos tipo, QStringView tabla,
                                  const QString& clausula, const AccesoDatos::clsConsulta& consulta);

} // namespace valmerix
