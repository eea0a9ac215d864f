#pragma once

#include "windows_fixture.h"

#include "ui/look/theme.h"

#include <functional>

namespace valmerix {

/// Opens every window of the program in turn, the boxes and the calendar too, and lets the test look at it.
class EveryWindow : public Windows, public testing::WithParamInterface<Tema>
{
protected:
    using Mirada = std::function<void(QWidget& ventana, const QString& nombre)>;

    EveryWindow();
    ~EveryWindow() override;

    void Recorrer(const Mirada& mirar);

private:
    void Inicio(const Mirada& mirar);
    void Casos(const Mirada& mirar);
    void Preguntas(const Mirada& mirar);
    void Informe(const Mirada& mirar);
    void Reducidas(const Mirada& mirar);
    void Cajas(const Mirada& mirar);
    void Aparatos(const Mirada& mirar);
    void Lectura(const Mirada& mirar);
    /// Opens a modal window, looks at it and closes it.
    void Modal(const Mirada& mirar, const QString& nombre, const std::function<void()>& abrir,
               const std::function<void(QWidget&)>& cerrar);
    void ModalConBoton(const Mirada& mirar, const QString& cierre, const std::function<void()>& abrir);
};

} // namespace valmerix
