#pragma once

namespace valmerix {

class Formulario;

/// What a case window asks of the rest of the program.
class EntornoCaso
{
public:
    virtual ~EntornoCaso() = default;
    virtual void MostrarFicha() = 0;         ///< valuers' record, modal
    virtual void MostrarObservaciones() = 0; ///< notes editor, modal
    virtual void MostrarProblema() = 0;      ///< planning problem editor, modal
    virtual void MostrarSalida() = 0;        ///< exit confirmation, modal
    virtual void Minimizar() = 0;            ///< the window goes down to its task-bar entry
    /// Shows the toolbar at the window's right edge without taking the focus, or closes it.
    virtual void MostrarPaleta(bool abierta) = 0;
};

} // namespace valmerix
