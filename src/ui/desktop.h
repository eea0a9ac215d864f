#pragma once

#include "shell/window_places.h"
#include "ui/window_view.h"

#include <memory>
#include <unordered_map>

namespace valmerix {

/// The screen: gives each window that is shown its view, for as long as the window is open. Views go before
/// their windows.
class PantallaQt : public QObject, public Pantalla
{
    Q_OBJECT

public:
    PantallaQt();
    ~PantallaQt() override;

    void Mostrar(Ventana& ventana) override;
    /// Returns once the window has been closed or hidden.
    void MostrarModal(Ventana& ventana) override;
    QRect area() const override;

    /// From now on windows stand where she left them, which that file remembers.
    void RecordarLugares(const QString& fichero);

    /// The view of a window, null when it has none at the moment.
    VistaVentana* vista(const Ventana& ventana) const;

private:
    VistaVentana& VistaDe(Ventana& ventana);
    void Retirar(const QObject* ventana);
    void Acomodar(Ventana& ventana) const;
    void Apuntar(const Ventana& ventana);
    void ApuntarTodas();

    struct Borrador
    {
        void operator()(VistaVentana* vista) const;
    };
    std::unordered_map<const QObject*, std::unique_ptr<VistaVentana, Borrador>> vistas_;
    LugaresVentanas lugares_;
    QString ficheroLugares_; ///< empty: nothing is remembered
};

} // namespace valmerix
