#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <vector>

class QWidget;

namespace valmerix {

/// A text on screen and where it stands in its window.
struct TextoEnPantalla
{
    QRect sitio; ///< inside the frame of its widget, without its picture
    QString texto;
    bool apagado = false; ///< it cannot be used at the moment
};

/// The texts of labels, fields, buttons, tabs, tables and lists that are before her eyes.
std::vector<TextoEnPantalla> TextosDe(QWidget& ventana);

/// The window drawn so large that the strokes of its letters have their full colour.
QImage Ampliada(QWidget& ventana);

/// How well a text stands out, by the drawing: the pixel that stands out most against the surface that shows
/// along the top of its place, measured where that surface suits it least.
qreal ContrasteMedido(const QImage& ampliada, const QRect& sitio);

} // namespace valmerix
