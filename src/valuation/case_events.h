#pragma once

#include "valuation/case_form.h"

namespace valmerix {

enum class Evento { Change, Click, LostFocus };

/// What an event of a control starts.
struct ReglaEvento
{
    QStringView control;
    Evento evento = Evento::Change;
    void (*accion)(Formulario&) = nullptr;
};

/// Writing a free text chooses its option.
struct TextoDeOpcion
{
    QStringView campo;
    QStringView grupo;
    int opcion = 0;
    bool enfoca = false; ///< and choosing the option asks for the text
};

/// Ticking a room puts one in its empty count.
struct CuentaDeCasilla
{
    QStringView casilla;
    QStringView campo;
};

/// The tables of events; a window connects the rows whose controls it has.
struct TablaEventos
{
    static std::span<const ReglaEvento> reglas();
    static std::span<const TextoDeOpcion> textos();
    static std::span<const CuentaDeCasilla> cuentas();
    static void Conectar(Formulario& formulario);
};

} // namespace valmerix
