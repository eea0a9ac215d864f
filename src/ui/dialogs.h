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
    std::optional<QString> ElegirFichero(const QString& filtro) override;
    std::optional<QDate> MostrarCalendario(QDate fecha) override;
};

/// A filter of descriptions and patterns by turns as Qt writes it, one row each, and behind them one that
/// lets every file through.
QStringList FiltrosDeFichero(const QString& filtro);

} // namespace valmerix
