#include "shell/minimized_bars.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint kFueraDeLaVista(-5000, 100000);
constexpr QStringView kBotonPaleta = u"SSCommand3";

} // namespace

Minimizado::Minimizado(EstadoCompartido& compartido, EntornoMinimizado& entorno)
    : Ventana(u"Minimizado"_s)
    , compartido_(compartido)
    , entorno_(entorno)
{
    connect(this, &Ventana::Activate, this, &Minimizado::AlActivar);
    connect(this, &Ventana::Resize, this, &Minimizado::AlCambiarTamaño);
}

void Minimizado::MinimizarCaso()
{
    Ventana* caso = entorno_.ventanaDelCaso();
    if (!caso)
        return;
    entorno_.CerrarPaleta();
    compartido_.PaletaAbierta = caso->control(kBotonPaleta).Tag() == u"S";
    compartido_.RestauracionHecha = false;
    compartido_.MinimizadoPendiente = true;
    setCaption({});
    Mover(caso->lugar());
    caso->setVisible(false);
    setWindowState(EstadoVentana::Minimizada);
    setCaption(caso->control(u"EtiquetaCaption").Caption());
}

void Minimizado::PedirCierre()
{
    setWindowState(EstadoVentana::Normal);
    if (Ventana* caso = entorno_.ventanaDelCaso())
        caso->PedirCierre();
}

void Minimizado::AlActivar()
{
    Ventana* caso = entorno_.ventanaDelCaso();
    if (!caso)
        return;
    caso->setVisible(WindowState() != EstadoVentana::Minimizada);
    if (caso->visible())
        Mover(QRect(kFueraDeLaVista, lugar().size()));
}

void Minimizado::AlCambiarTamaño()
{
    if (WindowState() == EstadoVentana::Minimizada) {
        compartido_.MinimizadoPendiente = false;
        return;
    }
    if (Ventana* caso = entorno_.ventanaDelCaso())
        RestaurarCaso(*caso);
}

void Minimizado::RestaurarCaso(Ventana& caso)
{
    caso.setVisible(true);
    caso.setWindowState(EstadoVentana::Normal);
    caso.Activar();
    if (compartido_.PaletaAbierta)
        caso.control(kBotonPaleta).setTag(u"S"_s);
    if (!compartido_.RestauracionHecha && !compartido_.MinimizadoPendiente && caso.visible())
        RestaurarPaleta(caso);
    compartido_.RestauracionHecha = true;
}

void Minimizado::RestaurarPaleta(Ventana& caso)
{
    if (caso.control(kBotonPaleta).Tag() != u"S") {
        entorno_.CerrarPaleta();
        compartido_.PaletaAbierta = false;
        return;
    }
    const QRect lugar = caso.lugar();
    compartido_.PosicionLeft = static_cast<float>(lugar.x());
    compartido_.PosicionTop = static_cast<float>(lugar.y());
    compartido_.PosicionWidth = static_cast<float>(lugar.width());
    compartido_.PosicionHeight = static_cast<qint16>(lugar.height());
    entorno_.MostrarPaletaEn(lugar.x() + lugar.width(), lugar.y());
    compartido_.PaletaAbierta = true;
}

} // namespace valmerix
