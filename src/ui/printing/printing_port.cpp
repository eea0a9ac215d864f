#include "ui/printing/printing_port.h"

#include "ui/look/application.h"
#include "ui/printing/print_preview.h"
#include "ui/printing/report_pages.h"

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
