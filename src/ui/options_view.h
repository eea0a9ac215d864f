#pragma once

#include "ui/window_view.h"

#include <span>

class QBoxLayout;
class QGridLayout;

namespace valmerix {

/// The configuration: ages, word processor, currency, the report's heading, logo.
class VistaOpciones : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaOpciones(Ventana& ventana);

private:
    QWidget* Edades();
    QWidget* Procesador();
    QWidget* Moneda();
    QWidget* Cabecera();
    QWidget* Logotipo();
    QWidget* Botonera();
    void Linea(QStringView campo, int ancho, QGridLayout& rejilla, QWidget* panel);
};

} // namespace valmerix
