#pragma once

#include <QPainter>
#include <QStyleOption>

// How the style draws each part. Only the style includes this.
namespace valmerix::pintura {

void Campo(const QStyleOption& o, QPainter& p);
void Marco(const QStyleOption& o, QPainter& p);
void Boton(const QStyleOption& o, QPainter& p);
void Casilla(const QStyleOption& o, QPainter& p);
void Redonda(const QStyleOption& o, QPainter& p);
void Foco(const QStyleOption& o, QPainter& p);
/// A field with an arrow at its right end.
void Desplegable(const QStyleOptionComboBox& o, QPainter& p, const QRect& flecha);
void CabeceraTabla(const QStyleOption& o, QPainter& p);
void Solapa(const QStyleOptionTab& o, QPainter& p);
/// The thin line under the tabs.
void BaseSolapas(const QStyleOption& o, QPainter& p);
/// The whole bar, with its handle at that place, if there is one.
void BarraDesplazamiento(const QStyleOptionComplex& o, QPainter& p, const QRect& asidero);

} // namespace valmerix::pintura
