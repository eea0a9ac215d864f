#pragma once

#include "ui/window_view.h"

#include <QTabWidget>

namespace valmerix {

class Formulario;
class PanelSeccion;
struct SeccionForma;

/// The view of a case window, of whatever kind: seven pages of panels, made from the kind's tables.
class VistaCaso : public VistaVentana
{
    Q_OBJECT

public:
    /// The window must be a `Formulario`.
    explicit VistaCaso(Ventana& ventana);

    QSize sizeHint() const override;

private:
    void PonerCabecera();
    void PonerPaginas();
    QWidget* Pagina(int pagina);
    void PonerMnemonicos();
    void DestacarCalculo();

    Formulario& formulario_;
    QTabWidget* paginas_ = nullptr;
};

} // namespace valmerix
