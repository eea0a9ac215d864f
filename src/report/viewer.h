#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"
#include "report/viewer_environment.h"
#include "store/program_options.h"

namespace valmerix {

/// `Visor`: the window in which the report is read, searched, corrected and handed to the word processor.
class Visor : public Ventana
{
    Q_OBJECT

public:
    /// All that is handed in outlives the window. Takes its place from the case window's and its remembered
    /// searches from Visor.ini.
    Visor(EstadoCompartido& compartido, const OpcionesPrograma& opciones, Dialogos& dialogos,
          Sistema& sistema, EntornoVisor& entorno);

    TextoEnriquecido& Texto() { return texto_; }
    /// Where the next find starts; -1 before the first.
    int UltimaBusqueda() const { return UltimaBusqueda_; }

    /// What stands in the text: "Informe" or "Certificado", and the texts that are bold in it.
    void PonerDocumento(const QString& TipoDocumento, const QStringList& oColNegrita);
    const QString& TipoDocumento() const { return TipoDocumento_; }
    const QStringList& oColNegrita() const { return oColNegrita_; }

    /// Maximised or normal, in turns: SSCommand3 and a double click on the caption.
    void AlternarTamaño();

protected:
    /// Stores the remembered searches; a failure is told and closes the window all the same.
    void AlCerrar() override;

private:
    void CrearControles();
    void CrearBotones();
    void ConectarControles();
    void Buscar();
    void RecordarBusqueda();
    void IrACapitulo(int indice);
    void DesbloquearEdicion();
    void Exportar();
    QString rutaBusquedas() const;

    EstadoCompartido& compartido_;
    const OpcionesPrograma& opciones_;
    Dialogos& dialogos_;
    Sistema& sistema_;
    EntornoVisor& entorno_;
    TextoEnriquecido& texto_;
    Lista& combo_;
    QString TipoDocumento_;
    QStringList oColNegrita_;
    int UltimaBusqueda_ = -1;
};

} // namespace valmerix
