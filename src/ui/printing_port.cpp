#include "ui/printing_port.h"

#include "ui/application.h"
#include "ui/print_preview.h"
#include "ui/report_pages.h"

#include <QApplication>

namespace valmerix {

ImpresionQt::ImpresionQt(Dialogos& dialogos, EleccionesPrevia elecciones)
    : dialogos_(dialogos)
    , elecciones_(std::move(elecciones))
{
}

void ImpresionQt::Previsualizar(const DocumentoImpreso& documento)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    PaginasInforme paginas(documento);
    QApplication::restoreOverrideCursor();
    VentanaPrevia ventana(paginas, documento.caption, documento.zoom, dialogos_, elecciones_,
                          VentanaDelante());
    ventana.exec();
}

} // namespace valmerix
