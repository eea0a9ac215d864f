#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace valmerix {

/// The Qt application: Spanish texts of Qt's own menus and boxes, the face of the program, and one place
/// where every failure that an event has let through is told.
class AplicacionQt : public QApplication
{
    Q_OBJECT

public:
    using Informe = std::function<void(const std::exception&)>;

    AplicacionQt(int& argc, char** argv);

    /// What is told of a failure. Without it a failure ends the program, as any unhandled one does.
    void setInforme(Informe informe) { informe_ = std::move(informe); }
    /// What F1 opens: the help on the window of that name. Without it the key does nothing.
    void setAyuda(std::function<void(const QString&)> ayuda) { ayuda_ = std::move(ayuda); }
    void PedirAyuda(const QString& ventana) const
    {
        if (ayuda_)
            ayuda_(ventana);
    }

    /// Tells a failure. To be called while it is being handled.
    void Informar(const std::exception& fallo);

    bool notify(QObject* receptor, QEvent* evento) override;

private:
    void CargarTraducciones();

    Informe informe_;
    std::function<void(const QString&)> ayuda_;
};

/// What a box or a modal window is to stand over: the window in front of her, null when there is none. A
/// window that is gone and only waits for its deletion is none: it would take the box with it.
QWidget* VentanaDelante();

/// Tells a failure through the application, or lets it pass when there is none of ours. To be called while it
/// is being handled.
void InformarFalloDePantalla(const std::exception& fallo);

/// Runs a procedure of the model on behalf of a widget: its failures must not cross the widget's own frames.
template <class F>
void Protegido(F&& procedimiento)
{
    try {
        std::forward<F>(procedimiento)();
    } catch (const std::exception& fallo) {
        InformarFalloDePantalla(fallo);
    }
}

} // namespace valmerix
