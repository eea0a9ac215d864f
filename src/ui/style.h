#pragma once

#include <QProxyStyle>

namespace valmerix {

/// Fusion with our own frames: flat fields with a thin line that takes the accent colour while they have the
/// focus, flat buttons, ticks that stay readable in both palettes.
class EstiloValmerix : public QProxyStyle
{
    Q_OBJECT

public:
    EstiloValmerix();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* widget) const override;
    int styleHint(StyleHint pista, const QStyleOption* opcion, const QWidget* widget,
                  QStyleHintReturn* respuesta) const override;
};

} // namespace valmerix
