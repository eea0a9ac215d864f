#pragma once

#include "controls/control.h"

#include <QApplication>
#include <QPalette>

namespace valmerix {

enum class Tema { Claro, Oscuro };

/// Distances that every window keeps, in pixels.
namespace medida {
constexpr int kBorde = 14; ///< between the window's edge and what it holds
constexpr int kEntrePaneles = 12;
constexpr int kEntreLineas = 6;
constexpr int kEntreCampos = 8; ///< side by side
constexpr int kEnPanel = 12;    ///< between a panel's edge and its lines
constexpr int kRadio = 5;       ///< of rounded corners
} // namespace medida

/// Whether the desktop is a dark one.
Tema TemaDelSistema();
/// Palette, style and type size of the whole program.
void AplicarTema(QApplication& aplicacion, Tema tema);
bool EsOscura(const QPalette& paleta);

/// The palette of a control's text for its aspect; only the roles that differ are set.
QPalette PaletaDe(Aspecto aspecto, const QPalette& comun);

/// Colour of secondary texts: hints, units.
QColor ColorSecundario(const QPalette& paleta);
/// Colour of the thin lines around panels and fields.
QColor ColorLinea(const QPalette& paleta);
/// Colour of a raised panel.
QColor ColorPanel(const QPalette& paleta);
/// How well one colour stands out from another: 1 (not at all) to 21 (black on white); texts want 4.5.
qreal Contraste(const QColor& a, const QColor& b);
/// Black or white, whichever reads better on `fondo`.
QColor TextoSobre(const QColor& fondo);

} // namespace valmerix
