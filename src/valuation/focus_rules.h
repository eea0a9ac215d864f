#pragma once

#include "valuation/building_calculators.h"

#include <span>

namespace valmerix {

/// What runs when a field is left, before its number is shown formatted again.
enum class AlDejar {
    Nada,
    Recalcular,
    Provisional, ///< a known value goes to DEDUCTOR
    Anexo,       ///< the annex's box follows the text
    Superficie,  ///< the building's surface is proposed anew
};

/// A field that shows a raw number while it has the focus and a formatted one otherwise.
struct ReglaFoco
{
    using Mostrar = QString (*)(const EstadoCalculo& estado, const QString& texto, QStringView patron);

    QStringView campo;
    Mostrar crudo = nullptr;
    int longitudCrudo = 0;
    AlDejar alDejar = AlDejar::Nada;
    Mostrar visible = nullptr;
    int longitudVisible = 0;   ///< 0: that of the formatted text
    QStringView patron;        ///< empty: the money pattern
    bool vaciaTambien = false; ///< formats an empty field too
};

std::span<const ReglaFoco> ReglasDeFoco();

/// Carries the focus rules out: those of the table and, for every other text field, the selection of its
/// whole text.
class ReglasFoco
{
public:
    /// Connects itself to the window's fields. All outlive it but the window, which may go first.
    ReglasFoco(Ventana& ventana, CalculadoresEdificio& calculadores, EstadoCalculo& estado,
               const EstadoCompartido& compartido);
    ReglasFoco(const ReglasFoco&) = delete;
    ReglasFoco& operator=(const ReglasFoco&) = delete;

    /// The LostFocus rule of a field of the table; nothing for another field.
    void Dejar(QStringView campo);
    /// The field in hand was put there without its events, raw text and all.
    void Retomar(const CampoTexto& campo) { TextoSuperficie_ = campo.Text(); }

private:
    void Conectar(const ReglaFoco& regla, CampoTexto& campo);
    void Tomar(const ReglaFoco& regla, CampoTexto& campo);
    void Dejar(const ReglaFoco& regla, CampoTexto& campo);
    void DejarProvisional(const CampoTexto& campo);
    void DejarAnexo(const CampoTexto& campo);

    Ventana& ventana_;
    CalculadoresEdificio& calculadores_;
    EstadoCalculo& estado_;
    const EstadoCompartido& compartido_;
    QString TextoSuperficie_; // of the surface field in hand
};

} // namespace valmerix
