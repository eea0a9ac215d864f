#pragma once

#include "common/ports.h"
#include "report/drafting.h"
#include "report/viewer.h"

namespace valmerix {

/// `Calculos`: drafts the report of a case into the viewer, in two stages with a tick of `Timer1` between
/// them, so that the progress window paints. It closes itself and the viewer is shown.
class Calculos : public Ventana
{
    Q_OBJECT

public:
    /// All that is handed in outlives this window.
    Calculos(CasoInforme caso, Visor& visor, Sistema& sistema, EntornoVisor& entorno);

    /// "Informe" or "Certificado"; the latter gets no bold and no alignment.
    QString TipoDocumento;

    /// The text stage: drafts, passes the text through TASACION.TXT in the program folder, puts it into the
    /// viewer and starts the timer. Throws what RedactarInforme throws, and ErrorInforme for the file.
    void Load();

private:
    void Marcar();

    CasoInforme caso_;
    Visor& visor_;
    Sistema& sistema_;
    EntornoVisor& entorno_;
    InformeRedactado informe_;
};

/// Writes the text to TASACION.TXT in `carpeta` (UTF-8), reads it back and deletes the file, also on failure.
/// Throws ErrorInforme.
QString PasarPorFichero(const QString& carpeta, const QString& texto);

} // namespace valmerix
