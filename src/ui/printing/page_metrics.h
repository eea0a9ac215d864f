#pragma once

#include <QSizeF>

namespace valmerix::hoja {

// Pages are laid out once, in units of 1/1200 inch, whatever shows them later: screen, file or paper.
constexpr int kPorPulgada = 1200;

constexpr qreal mm(qreal milimetros)
{
    return milimetros * kPorPulgada / 25.4;
}

constexpr qreal pt(qreal puntos)
{
    return puntos * kPorPulgada / 72.0;
}

// A4.
constexpr qreal kAncho = mm(210);
constexpr qreal kAlto = mm(297);
constexpr QSizeF kTamaño(kAncho, kAlto);

constexpr qreal kMargenIzquierdo = mm(25);
constexpr qreal kMargenDerecho = mm(22);
constexpr qreal kMargenSuperior = mm(20);
constexpr qreal kMargenInferior = mm(24); ///< below the text; the footer stands in it
constexpr qreal kLineaPie = mm(13);       ///< of the footer, over the edge of the paper
constexpr qreal kAnchoTexto = kAncho - kMargenIzquierdo - kMargenDerecho;
constexpr qreal kAltoTexto = kAlto - kMargenSuperior - kMargenInferior;

constexpr qreal kCuerpo = pt(11);
constexpr qreal kCuerpoPie = pt(9);
constexpr qreal kInterlinea = pt(13.8);

} // namespace valmerix::hoja
