#pragma once

#include "common/ports.h"

namespace valmerix {

/// The boxes that stop the program, on screen.
class DialogosQt : public Dialogos
{
public:
    void Mensaje(const QString& texto, const QString& titulo, IconoMensaje icono) override;
    bool Preguntar(const QString& texto, const QString& titulo, IconoMensaje icono) override;
    bool InformarFallo(const QString& texto, const QString& detalle) override;
    std::optional<QDate> MostrarCalendario(QDate fecha) override;
};

} // namespace valmerix
