#pragma once

#include "report/viewer.h"

namespace valmerix {

/// `VisorMin`: the task-bar entry of the viewer, which hides and returns with it.
class VisorMin : public Ventana
{
    Q_OBJECT

public:
    /// The viewer outlives it.
    explicit VisorMin(Visor& visor);

    /// Hides the viewer and turns this window into an icon in its place.
    void MinimizarVisor();
    /// Closed from the task bar it gives the viewer back: the text in it may have been corrected.
    void PedirCierre() override;

private:
    void AlActivar();
    void AlCambiarTamaño();
    bool reducida() const { return WindowState() == EstadoVentana::Minimizada; }

    Visor& visor_;
};

} // namespace valmerix
