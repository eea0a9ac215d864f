#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"
#include "store/program_options.h"

namespace valmerix {

/// What the configuration asks of the rest of the program.
class EntornoOpciones
{
public:
    virtual ~EntornoOpciones() = default;
    /// The word-processor chooser, modal; what it chooses goes into `trayecto`.
    virtual void MostrarBusqueda(CampoTexto& trayecto) = 0;
};

/// `Opciones`, "Configuración": the one row of settings. Closing it writes, however it is closed; both its
/// load and its unload go past any error, as they always have.
class Opciones : public Ventana
{
    Q_OBJECT

public:
    Opciones(EstadoCompartido& compartido, OpcionesPrograma& opciones, Sistema& sistema,
             CapturaImagenes& captura, EntornoOpciones& entorno, const Pantalla& pantalla);

    void Load();
    /// "Logo.bmp" beside the database: the literal "valmerix.mdb" of its path replaced.
    QString rutaLogo() const;

protected:
    void AlCerrar() override;

private:
    void CrearControles();
    void CrearEdades();
    void CrearFuentes();
    void CrearMonedaYCabecera();
    void ConectarControles();
    void ConectarLimite(QStringView nombre, int limite);
    void MostrarFila(const ConjuntoResultados& fila);
    void CapturarLogo();
    QString Sentencia() const;
    void GuardarLogo();

    EstadoCompartido& compartido_;
    OpcionesPrograma& opciones_;
    Sistema& sistema_;
    CapturaImagenes& captura_;
    EntornoOpciones& entorno_;
    const Pantalla& pantalla_;
};

} // namespace valmerix
