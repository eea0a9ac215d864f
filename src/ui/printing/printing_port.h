#pragma once

#include "common/ports.h"
#include "common/printed_document.h"
#include "ui/printing/print_choices.h"

namespace valmerix {

/// Shows a report's pages in the preview window, over the window that is active.
class ImpresionQt : public Impresion
{
public:
    explicit ImpresionQt(Dialogos& dialogos, EleccionesPrevia elecciones = EleccionesConDialogos());

    void Previsualizar(const DocumentoImpreso& documento) override;

private:
    Dialogos& dialogos_;
    EleccionesPrevia elecciones_;
};

} // namespace valmerix
