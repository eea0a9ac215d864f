#pragma once

#include "common/ports.h"
#include "controls/window.h"

namespace valmerix {

/// `SALIDA`: "Fin de Valmerix". Yes ends the process at once; nothing is saved or asked.
class SALIDA : public Ventana
{
    Q_OBJECT

public:
    SALIDA(Sistema& sistema, const Pantalla& pantalla);
};

/// `Reinicio`: back to the start window. SSCommand1 confirms and SSCommand2 cancels, the opposite of
/// SALIDA's order, as it has always been.
class Reinicio : public Ventana
{
    Q_OBJECT

public:
    explicit Reinicio(const Pantalla& pantalla);

Q_SIGNALS:
    void Confirmado();
};

} // namespace valmerix
