#include "ui/printing/report_pages.h"

#include "ui/printing/page_fonts.h"
#include "ui/printing/page_metrics.h"

#include <QFontMetricsF>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

std::optional<CabeceraMembrete> Cabecera(const std::optional<MembreteImpreso>& membrete)
{
    if (!membrete)
        return {};
    return CabeceraMembrete(*membrete);
}

} // namespace

PaginasInforme::PaginasInforme(const DocumentoImpreso& documento)
    : titulo_(documento.titulo)
    , autor_(documento.autor)
    , membrete_(Cabecera(documento.membrete))
    , texto_(documento.lineas, membrete_ ? membrete_->alto() : 0)
    , fotos_(documento.fotografias)
    , letraPie_(LetraDePagina(hoja::kCuerpoPie))
{
}

QString PaginasInforme::texto(int pagina) const
{
    if (pagina >= texto_.paginas())
        return fotos_.texto(pagina - texto_.paginas());
    const QString cabecera = pagina == 0 && membrete_ ? membrete_->texto() + u'\n' : QString();
    return cabecera + texto_.texto(pagina);
}

bool PaginasInforme::preparada(int pagina) const
{
    return pagina < texto_.paginas() || fotos_.preparada(pagina - texto_.paginas());
}

void PaginasInforme::Preparar(int pagina)
{
    if (pagina >= texto_.paginas())
        fotos_.Preparar(pagina - texto_.paginas());
}

void PaginasInforme::Pintar(QPainter& pintor, int pagina) const
{
    pintor.save();
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                          QPainter::SmoothPixmapTransform);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(Qt::black);
    if (pagina == 0 && membrete_)
        membrete_->Pintar(pintor, hoja::kMargenIzquierdo, hoja::kMargenSuperior, hoja::kAnchoTexto);
    if (pagina < texto_.paginas())
        texto_.Pintar(pintor, pagina);
    else
        fotos_.Pintar(pintor, pagina - texto_.paginas());
    PintarPie(pintor, pagina);
    pintor.restore();
}

void PaginasInforme::PintarPie(QPainter& pintor, int pagina) const
{
    const QString pie = u"Página %1 de %2"_s.arg(pagina + 1).arg(paginas());
    const QFontMetricsF medidas(letraPie_);
    const qreal x = hoja::kMargenIzquierdo + (hoja::kAnchoTexto - medidas.horizontalAdvance(pie)) / 2;
    pintor.setFont(letraPie_);
    pintor.setPen(QColor(0x40, 0x40, 0x40));
    pintor.drawText(QPointF(x, hoja::kAlto - hoja::kLineaPie), pie);
}

} // namespace valmerix
