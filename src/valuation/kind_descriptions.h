#pragma once

#include "store/program_options.h"
#include "valuation/form_tables.h"
#include "valuation/kind_strategies.h"

namespace valmerix {

/// All in which the window of one kind differs from the others.
struct DescripcionForma
{
    QStringView ventana; ///< name of the window; its first letter is the kind's
    QStringView caption;
    QStringView columnaPerfil; ///< column of `Opciones` with the section profile
    QString OpcionesPrograma::*perfil = nullptr;
    int OpcionesPrograma::*edadMaxima = nullptr; ///< useful life of the kind's buildings
    std::span<const SeccionForma> (*secciones)() = nullptr;
    const EstrategiasTipo* estrategias = nullptr;

    QChar letra() const { return ventana.front(); }
};

extern const DescripcionForma kDescripcionPiso;
extern const DescripcionForma kDescripcionApto;
extern const DescripcionForma kDescripcionCasa;

/// By the letter of the kind; null for a letter that has no window of this sort.
const DescripcionForma* DescripcionDe(QChar letra);

} // namespace valmerix
