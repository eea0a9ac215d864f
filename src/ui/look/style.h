#pragma once

#include <QProxyStyle>

namespace valmerix {

/// Fusion with our own face: flat fields with a thin line that takes the accent colour while they have the
/// focus, flat buttons, tabs and scroll bars, ticks that stay readable in both palettes, our own pictures in
/// the boxes.
class EstiloValmerix : public QProxyStyle
{
    Q_OBJECT

public:
    EstiloValmerix();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                       const QWidget* widget) const override;
    void drawControl(ControlElement elemento, const QStyleOption* opcion, QPainter* pintor,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* opcion, QPainter* pintor,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* opcion, SubControl parte,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement elemento, const QStyleOption* opcion,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType tipo, const QStyleOption* opcion, const QSize& contenido,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* widget) const override;
    int styleHint(StyleHint pista, const QStyleOption* opcion, const QWidget* widget,
                  QStyleHintReturn* respuesta) const override;
    QIcon standardIcon(StandardPixmap cual, const QStyleOption* opcion, const QWidget* widget) const override;
};

} // namespace valmerix
