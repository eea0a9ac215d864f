#pragma once

#include "ui/window_view.h"

#include <initializer_list>

class QGridLayout;

namespace valmerix {

/// The company and the valuers.
class VistaFicha : public VistaVentana
{
    Q_OBJECT

public:
    explicit VistaFicha(Ventana& ventana);

private:
    QWidget* Empresa();
    QWidget* Tasadores();
    QWidget* Botonera();
    void Campos(std::initializer_list<QStringView> nombres, QGridLayout& rejilla, QWidget* panel);
};

} // namespace valmerix
