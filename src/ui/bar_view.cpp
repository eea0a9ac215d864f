#include "ui/bar_view.h"

#include "ui/look/application.h"
#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QPushButton>

namespace valmerix {

using namespace Qt::StringLiterals;

VistaBarra::VistaBarra(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    auto* restaurar = new QPushButton(u"&Restaurar"_s, this);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    fila->addWidget(restaurar);
    connect(restaurar, &QPushButton::clicked, &ventana,
            [&ventana] { Protegido([&] { ventana.setWindowState(EstadoVentana::Normal); }); });
    connect(&ventana, &Ventana::Resize, this, &VistaBarra::Acomodar);
}

// Whatever place its model gives it, the bar itself has no more than its button.
QRect VistaBarra::LugarPosible(QRect /*pedido*/) const
{
    return {pos(), sizeHint()};
}

void VistaBarra::setVisible(bool visible)
{
    const bool minimizada = ventana() && ventana()->WindowState() == EstadoVentana::Minimizada;
    VistaVentana::setVisible(visible && minimizada);
}

void VistaBarra::Acomodar()
{
    if (!ventana() || !ventana()->visible())
        return;
    if (ventana()->WindowState() == EstadoVentana::Minimizada) {
        showMinimized();
    } else {
        hide();
    }
}

} // namespace valmerix
