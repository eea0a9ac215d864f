#include "report/viewer_bar.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint kFueraDeLaVista(-5000, 100000);

} // namespace

VisorMin::VisorMin(Visor& visor)
    : Ventana(u"VisorMin"_s, u"Valmerix - Visor"_s)
    , visor_(visor)
{
    connect(this, &Ventana::Activate, this, &VisorMin::AlActivar);
    connect(this, &Ventana::Resize, this, &VisorMin::AlCambiarTamaño);
    connect(this, &Ventana::Deactivate, this, [this] {
        if (!reducida()) {
            Cerrar();
        }
    });
}

void VisorMin::MinimizarVisor()
{
    setCaption({});
    Mover(visor_.lugar());
    visor_.setVisible(false);
    setWindowState(EstadoVentana::Minimizada);
    setCaption(visor_.control(u"EtiquetaCaption").Caption());
}

void VisorMin::PedirCierre()
{
    setWindowState(EstadoVentana::Normal);
    Cerrar();
}

void VisorMin::AlActivar()
{
    visor_.setVisible(!reducida());
    if (visor_.visible()) {
        Mover(QRect(kFueraDeLaVista, lugar().size()));
    }
}

void VisorMin::AlCambiarTamaño()
{
    if (reducida()) {
        return;
    }
    visor_.setVisible(true);
    visor_.setWindowState(EstadoVentana::Normal);
    visor_.Activar();
}

} // namespace valmerix
