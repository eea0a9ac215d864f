#include "ui/printing/letterhead.h"

#include "ui/pictures/picture_reading.h"
#include "ui/printing/line_breaking.h"
#include "ui/printing/page_fonts.h"
#include "ui/printing/page_metrics.h"

#include <QFontMetricsF>
#include <QStringList>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF kCajaLogo(hoja::mm(45), hoja::mm(22));
constexpr qreal kJuntoAlLogo = hoja::mm(6);
constexpr qreal kHastaLaRaya = hoja::mm(4);
constexpr qreal kHastaElTexto = hoja::mm(8);
constexpr qreal kRaya = hoja::pt(0.6);
constexpr qreal kCuerpoNombre = hoja::pt(14);
constexpr qreal kCuerpoDatos = hoja::pt(9.5);
constexpr qreal kInterlineaNombre = hoja::pt(18);
constexpr qreal kInterlineaDatos = hoja::pt(12);
constexpr int kPixelesPorPulgada = 300;
constexpr int kPixelesMinimos = 72; // per inch: a small logo is not blown up further

QSize EnPixeles(QSizeF tamaño)
{
    return (tamaño * kPixelesPorPulgada / hoja::kPorPulgada).toSize();
}

} // namespace

CabeceraMembrete::CabeceraMembrete(const MembreteImpreso& membrete)
    : logo_(LeerImagen(membrete.Logo, EnPixeles(kCajaLogo)))
{
    const QFont letra = LetraDePagina(kCuerpoDatos);
    const qreal ancho = hoja::kAnchoTexto - (logo_.isNull() ? 0 : TamañoLogo().width() + kJuntoAlLogo);
    Poner(membrete.lblNombreEmpresa, LetraDePagina(kCuerpoNombre, Grueso::Negrita), kInterlineaNombre, ancho);
    Poner(membrete.lblDomicilio, letra, kInterlineaDatos, ancho);
    Poner((membrete.lblCodigoPostal + u' ' + membrete.lblPoblación).trimmed(), letra, kInterlineaDatos,
          ancho);
    Poner(membrete.lblProvincia, letra, kInterlineaDatos, ancho);
    Poner(membrete.lblNIF, letra, kInterlineaDatos, ancho);
}

void CabeceraMembrete::Poner(const QString& texto, const QFont& letra, qreal alto, qreal ancho)
{
    if (texto.trimmed().isEmpty())
        return;
    for (const Renglon& renglon : PartirEnRenglones(texto.trimmed(), letra, ancho))
        rotulos_.push_back({renglon.texto, letra, alto});
}

QSizeF CabeceraMembrete::TamañoLogo() const
{
    const QSizeF natural = QSizeF(logo_.size()) * hoja::kPorPulgada / kPixelesMinimos;
    return logo_.isNull() ? QSizeF(0, 0) : natural.scaled(natural.boundedTo(kCajaLogo), Qt::KeepAspectRatio);
}

qreal CabeceraMembrete::AltoRotulos() const
{
    qreal alto = 0;
    for (const Rotulo& rotulo : rotulos_)
        alto += rotulo.alto;
    return alto;
}

qreal CabeceraMembrete::alto() const
{
    const qreal contenido = std::max(TamañoLogo().height(), AltoRotulos());
    return contenido == 0 ? 0 : contenido + kHastaLaRaya + kHastaElTexto;
}

QString CabeceraMembrete::texto() const
{
    QStringList lineas;
    for (const Rotulo& rotulo : rotulos_)
        lineas << rotulo.texto;
    return lineas.join(u'\n');
}

void CabeceraMembrete::Pintar(QPainter& pintor, qreal x, qreal y, qreal ancho) const
{
    if (alto() == 0)
        return;
    const QSizeF logo = TamañoLogo();
    const qreal contenido = std::max(logo.height(), AltoRotulos());
    if (!logo_.isNull())
        pintor.drawImage(QRectF(QPointF(x, y + (contenido - logo.height()) / 2), logo), logo_);
    const qreal izquierda = logo_.isNull() ? x : x + logo.width() + kJuntoAlLogo;
    qreal linea = y + (contenido - AltoRotulos()) / 2;
    for (const Rotulo& rotulo : rotulos_) {
        pintor.setFont(rotulo.letra);
        pintor.drawText(QPointF(izquierda, linea + QFontMetricsF(rotulo.letra).ascent()), rotulo.texto);
        linea += rotulo.alto;
    }
    pintor.fillRect(QRectF(x, y + contenido + kHastaLaRaya, ancho, kRaya), Qt::black);
}

} // namespace valmerix
