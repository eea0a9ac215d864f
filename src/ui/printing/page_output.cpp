#include "ui/printing/page_output.h"

#include "ui/printing/page_metrics.h"

#include <algorithm>

namespace valmerix {

namespace {

// From page units to those of the device, reduced when its paper is smaller than ours.
qreal Escala(const QPagedPaintDevice& destino)
{
    const qreal escala = qreal(destino.logicalDpiX()) / hoja::kPorPulgada;
    const QSizeF papel = destino.pageLayout().fullRectPixels(destino.logicalDpiX()).size();
    // A few device pixels lost to rounding are no smaller paper.
    const qreal cabe = std::min(papel.width() / hoja::kAncho, papel.height() / hoja::kAlto);
    return cabe < escala * 0.995 ? cabe : escala;
}

} // namespace

bool PintarPaginas(DocumentoPaginado& documento, QPagedPaintDevice& destino, int primera, int ultima,
                   const Avance& avance)
{
    QPainter pintor;
    if (!pintor.begin(&destino))
        return false;
    const qreal escala = Escala(destino);
    const int total = std::abs(ultima - primera) + 1;
    const int paso = ultima < primera ? -1 : 1;
    for (int hechas = 0; hechas < total; ++hechas) {
        const int pagina = primera + hechas * paso;
        if (avance && !avance(hechas, total))
            return false;
        if (hechas > 0 && !destino.newPage())
            return false;
        while (!documento.preparada(pagina))
            documento.Preparar(pagina);
        pintor.save();
        pintor.scale(escala, escala);
        documento.Pintar(pintor, pagina);
        pintor.restore();
    }
    return pintor.end();
}

bool ImprimirPaginas(DocumentoPaginado& documento, QPrinter& impresora, int paginaActual,
                     const Avance& avance)
{
    int primera = 0;
    int ultima = documento.paginas() - 1;
    if (impresora.printRange() == QPrinter::CurrentPage) {
        primera = ultima = paginaActual;
    } else if (impresora.printRange() == QPrinter::PageRange && impresora.fromPage() > 0) {
        primera = std::clamp(impresora.fromPage() - 1, 0, ultima);
        ultima = std::clamp(impresora.toPage() - 1, primera, ultima);
    }
    if (impresora.pageOrder() == QPrinter::LastPageFirst)
        std::swap(primera, ultima);
    return PintarPaginas(documento, impresora, primera, ultima, avance);
}

} // namespace valmerix
