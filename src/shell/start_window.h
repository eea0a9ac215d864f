#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"

namespace valmerix {

/// Fixes the money pattern from the settings; it stays as it was when they have no row. Throws ErrorAlmacen.
void LeerFormatoMoneda(EstadoCompartido& compartido);

/// What stands under new-case button `indice`.
QString TituloDelBoton(int indice);

/// `Form1`: the title, the tree of stored cases, the six buttons for new ones.
class Form1 : public Ventana
{
    Q_OBJECT

public:
    Form1(EstadoCompartido& compartido, Reloj& reloj, Sistema& sistema, Pantalla& pantalla);

    /// The start sequence. Ends the process when another instance runs. Throws ErrorAlmacen.
    void Load();
    /// Hides the title and shows menu and tree.
    void TerminarPortada();

    /// Kinds whose window stands, by the index of their button; the others are disabled.
    void HabilitarTipos(const std::vector<bool>& hechos);
    /// Shows the quiet line that opens unsaved work again; `detalle` says which.
    void OfrecerBorrador(const QString& detalle);

    /// The program's only window at that moment: closing it is leaving the program.
    void PedirCierre() override { Q_EMIT SalidaPedida(); }

Q_SIGNALS:
    void AbrirPedido(const QString& clave);
    void CopiarPedido(const QString& clave);
    void NuevoPedido(int indice);
    void RecuperarPedido();
    void SalidaPedida();

protected:
    void AlCerrar() override;

private:
    void CrearControles();
    void ConectarControles();
    void TicPortada();

    EstadoCompartido& compartido_;
    Reloj& reloj_;
    Sistema& sistema_;
    Pantalla& pantalla_;
    qint16 letrasVistas_ = 0;
    bool hayBorrador_ = false;
};

} // namespace valmerix
