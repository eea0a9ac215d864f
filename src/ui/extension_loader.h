#pragma once

#include "common/extension.h"

namespace valmerix {

/// Loads "VMXtension.so" of the program's folder as a Qt plugin. A module stays in memory once it has been
/// loaded, since texts that it has handed over may lie in it.
class CargadorQt : public CargadorExtensiones
{
public:
    ExtensionCargada Crear(const QString& carpetaPrograma) override;
};

} // namespace valmerix
