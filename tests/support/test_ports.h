#pragma once

#include "support/fake_ports.h"
#include "support/fake_screen.h"

#include <QTemporaryDir>

namespace valmerix {

/// The outside of a program under test, over a folder of its own.
struct PuertosDePrueba
{
    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakePantalla pantalla;
    FakeCaptura captura;
    FakeImpresion impresion;
};

} // namespace valmerix
