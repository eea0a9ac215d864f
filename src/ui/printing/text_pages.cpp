#include "ui/printing/text_pages.h"

#include "ui/printing/page_fonts.h"
#include "ui/printing/page_metrics.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

namespace valmerix {

namespace {

int RenglonesEn(qreal alto)
{
    return std::max(1, static_cast<int>(alto / hoja::kInterlinea));
}

} // namespace

PaginasTexto::PaginasTexto(const std::vector<LineaImpresa>& lineas, qreal altoCabecera)
    : normal_(LetraDePagina(hoja::kCuerpo))
    , negrita_(LetraDePagina(hoja::kCuerpo, Grueso::Negrita))
    , altoCabecera_(altoCabecera)
{
    Componer(lineas);
    tramos_ = RepartirEnPaginas(AtarRenglones(parrafos_), RenglonesEn(hoja::kAltoTexto - altoCabecera),
                                RenglonesEn(hoja::kAltoTexto));
}

void PaginasTexto::Componer(const std::vector<LineaImpresa>& lineas)
{
    parrafos_.reserve(lineas.size());
    for (const LineaImpresa& linea : lineas) {
        std::vector<Renglon> partes =
            PartirEnRenglones(linea.texto, linea.negrita ? negrita_ : normal_, hoja::kAnchoTexto);
        parrafos_.push_back({static_cast<int>(partes.size()), partes.front().texto.isEmpty(), linea.negrita});
        for (Renglon& parte : partes)
            renglones_.push_back({std::move(parte), linea.negrita});
    }
}

QString PaginasTexto::texto(int pagina) const
{
    QStringList lineas;
    const TramoPagina tramo = tramos_[static_cast<size_t>(pagina)];
    for (int i = tramo.primero; i < tramo.ultimo; ++i)
        lineas << renglones_[static_cast<size_t>(i)].renglon.texto;
    return lineas.join(u'\n');
}

void PaginasTexto::Pintar(QPainter& pintor, int pagina) const
{
    const QFontMetricsF medidas(normal_);
    const qreal hueco = (hoja::kInterlinea - medidas.height()) / 2;
    qreal base = hoja::kMargenSuperior + hueco + medidas.ascent() + (pagina == 0 ? altoCabecera_ : 0);
    const TramoPagina tramo = tramos_[static_cast<size_t>(pagina)];
    for (int i = tramo.primero; i < tramo.ultimo; ++i, base += hoja::kInterlinea) {
        const RenglonCompuesto& linea = renglones_[static_cast<size_t>(i)];
        if (linea.renglon.texto.isEmpty())
            continue;
        pintor.setFont(linea.negrita ? negrita_ : normal_);
        pintor.drawText(QPointF(hoja::kMargenIzquierdo + linea.renglon.sangria, base), linea.renglon.texto);
    }
}

} // namespace valmerix
