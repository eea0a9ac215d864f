#pragma once

namespace valmerix {

/// What the viewer asks of the rest of the program.
class EntornoVisor
{
public:
    virtual ~EntornoVisor() = default;
    virtual void MostrarVisor() = 0;    ///< puts the viewer before her eyes
    virtual void MinimizarVisor() = 0;  ///< the viewer shrinks to its bar, `VisorMin`
    virtual void MinimizarCaso() = 0;   ///< the open case shrinks to its bar, `Minimizado`
    virtual void MostrarOpciones() = 0; ///< settings window, modal
    /// Shows the viewer's document as pages, with what the open case adds to it; modal.
    virtual void Imprimir() = 0;
};

} // namespace valmerix
