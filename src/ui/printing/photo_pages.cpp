#include "ui/printing/photo_pages.h"

#include "ui/pictures/picture_reading.h"
#include "ui/printing/line_breaking.h"
#include "ui/printing/page_fonts.h"
#include "ui/printing/page_metrics.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPorPagina = 2;
constexpr qreal kEntreFotos = hoja::mm(8);
constexpr qreal kAltoPuesto = (hoja::kAltoTexto - kEntreFotos) / kPorPagina;
constexpr qreal kCuerpo = hoja::pt(10);
constexpr qreal kInterlinea = hoja::pt(13);
constexpr qreal kHastaElPie = hoja::mm(2);
constexpr int kLineasPie = 4;
constexpr qreal kTrazo = hoja::pt(0.5);
constexpr qreal kMarcoVacio = 4.0 / 3; // width to height
constexpr int kPixelesPorPulgada = 220;
constexpr int kPixelesMinimos = 72; // per inch: a small picture is not blown up further
constexpr qsizetype kMemoria = qsizetype{80} << 20;

QSizeF Caja(qsizetype lineasDePie)
{
    return {hoja::kAnchoTexto, kAltoPuesto - kHastaElPie - static_cast<qreal>(lineasDePie) * kInterlinea};
}

QSizeF Impreso(QSizeF pixeles, QSizeF caja)
{
    const QSizeF natural = pixeles * hoja::kPorPulgada / kPixelesMinimos;
    return natural.scaled(natural.boundedTo(caja), Qt::KeepAspectRatio);
}

} // namespace

PaginasFotos::PaginasFotos(std::vector<FotografiaImpresa> fotografias)
    : fotografias_(std::move(fotografias))
    , ilegibles_(fotografias_.size())
    , leidas_(kMemoria)
    , letra_(LetraDePagina(kCuerpo))
{
    for (size_t i = 0; i < fotografias_.size(); ++i)
        ilegibles_[i] = fotografias_[i].ruta.isEmpty();
}

int PaginasFotos::paginas() const
{
    return (static_cast<int>(fotografias_.size()) + kPorPagina - 1) / kPorPagina;
}

QStringList PaginasFotos::Pie(int foto) const
{
    const auto renglones =
        PartirEnRenglones(fotografias_[static_cast<size_t>(foto)].pie, letra_, hoja::kAnchoTexto);
    QStringList lineas;
    for (const Renglon& renglon : renglones)
        lineas << renglon.texto;
    if (lineas.size() > kLineasPie) {
        lineas.resize(kLineasPie);
        lineas.last() += u'…';
    }
    return lineas;
}

QString PaginasFotos::texto(int pagina) const
{
    QStringList pies;
    const int fin = std::min(static_cast<int>(fotografias_.size()), (pagina + 1) * kPorPagina);
    for (int foto = pagina * kPorPagina; foto < fin; ++foto)
        pies << fotografias_[static_cast<size_t>(foto)].pie;
    return pies.join(u'\n');
}

int PaginasFotos::Pendiente(int pagina) const
{
    const int fin = std::min(static_cast<int>(fotografias_.size()), (pagina + 1) * kPorPagina);
    for (int foto = pagina * kPorPagina; foto < fin; ++foto) {
        if (!ilegibles_[static_cast<size_t>(foto)] && !leidas_.contains(foto))
            return foto;
    }
    return -1;
}

bool PaginasFotos::preparada(int pagina) const
{
    return Pendiente(pagina) < 0;
}

void PaginasFotos::Preparar(int pagina)
{
    const int foto = Pendiente(pagina);
    if (foto < 0)
        return;
    const QSizeF caja = Caja(Pie(foto).size()) * kPixelesPorPulgada / hoja::kPorPulgada;
    QImage imagen = LeerImagen(fotografias_[static_cast<size_t>(foto)].ruta, caja.toSize());
    if (imagen.isNull()) {
        ilegibles_[static_cast<size_t>(foto)] = true;
        return;
    }
    const qsizetype bytes = imagen.sizeInBytes();
    leidas_.insert(foto, new QImage(std::move(imagen)), bytes);
}

void PaginasFotos::Pintar(QPainter& pintor, int pagina) const
{
    const int fin = std::min(static_cast<int>(fotografias_.size()), (pagina + 1) * kPorPagina);
    qreal arriba = hoja::kMargenSuperior;
    for (int foto = pagina * kPorPagina; foto < fin; ++foto, arriba += kAltoPuesto + kEntreFotos)
        PintarFoto(pintor, foto, arriba);
}

void PaginasFotos::PintarFoto(QPainter& pintor, int foto, qreal arriba) const
{
    const QStringList pie = Pie(foto);
    const QSizeF caja = Caja(pie.size());
    const QImage* imagen = leidas_.object(foto);
    const QSizeF sitio =
        imagen ? Impreso(imagen->size(), caja) : QSizeF(caja.height() * kMarcoVacio, caja.height());
    const QRectF marco(QPointF(hoja::kMargenIzquierdo + (hoja::kAnchoTexto - sitio.width()) / 2, arriba),
                       sitio);
    if (imagen) {
        pintor.drawImage(marco, *imagen);
    } else {
        pintor.setPen(QPen(Qt::gray, kTrazo));
        pintor.drawRect(marco);
    }
    PintarPie(pintor, pie, marco.bottom() + kHastaElPie);
}

void PaginasFotos::PintarPie(QPainter& pintor, const QStringList& lineas, qreal arriba) const
{
    const QFontMetricsF medidas(letra_);
    pintor.setFont(letra_);
    pintor.setPen(Qt::black);
    qreal base = arriba + medidas.ascent();
    for (const QString& linea : lineas) {
        const qreal x = hoja::kMargenIzquierdo + (hoja::kAnchoTexto - medidas.horizontalAdvance(linea)) / 2;
        pintor.drawText(QPointF(x, base), linea);
        base += kInterlinea;
    }
}

} // namespace valmerix
