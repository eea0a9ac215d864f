#pragma once

#include "common/shared_state.h"
#include "controls/window.h"

namespace valmerix {

/// What the task-bar window of the case asks of its surroundings.
class EntornoMinimizado
{
public:
    virtual ~EntornoMinimizado() = default;
    /// The case window, null when none is open.
    virtual Ventana* ventanaDelCaso() = 0;
    /// Shows the toolbar with its top left corner there.
    virtual void MostrarPaletaEn(int izquierda, int arriba) = 0;
    virtual void CerrarPaleta() = 0;
};

/// `Minimizado`: the task-bar entry of the case. The case window is never minimised itself; it hides and
/// returns with this one, and its toolbar with it.
class Minimizado : public Ventana
{
    Q_OBJECT

public:
    Minimizado(EstadoCompartido& compartido, EntornoMinimizado& entorno);

    /// The case window's minimise button: hides it and its toolbar and turns this window into an icon.
    void MinimizarCaso();
    /// Closed from the task bar it gives the case back and asks what the case asks.
    void PedirCierre() override;

private:
    void AlActivar();
    void AlCambiarTamaño();
    void RestaurarCaso(Ventana& caso);
    void RestaurarPaleta(Ventana& caso);

    EstadoCompartido& compartido_;
    EntornoMinimizado& entorno_;
};

} // namespace valmerix
