#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"

namespace valmerix {

/// `Ficha`, "Empresa y Tasadores": the company's one row and the list of valuers. It cannot be left while
/// either is missing, except by ending the program.
class Ficha : public Ventana
{
    Q_OBJECT

public:
    Ficha(EstadoCompartido& compartido, Dialogos& dialogos, Reloj& reloj, Sistema& sistema);

    /// Reads the company and the list of valuers. Throws ErrorAlmacen.
    void Load();

    void InicializarGrid();
    /// Fills `Flexi` with the valuers, by name.
    void Busqueda();
    /// The valuer of the current row of `Flexi` into the valuer block.
    void CargarTasador();
    void ActualizarRegistro();
    void EliminarRegistro();
    void LimpiarTasador();
    void ActualizarEmpresa();

protected:
    bool PuedeCerrar() override;

private:
    void CrearControles();
    void ConectarControles();
    void Aceptar();

    EstadoCompartido& compartido_;
    Dialogos& dialogos_;
    Reloj& reloj_;
    Sistema& sistema_;
};

} // namespace valmerix
