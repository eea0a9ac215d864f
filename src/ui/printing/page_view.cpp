#include "ui/printing/page_view.h"

#include "ui/printing/page_metrics.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kBorde = 18; // pixels around the pages
constexpr int kEntrePaginas = 24;
constexpr int kSombra = 3;
constexpr std::array<qreal, 13> kPasos{25, 33, 50, 67, 75, 90, 100, 125, 150, 175, 200, 300, 400};

QColor FondoDe(const QPalette& paleta)
{
    const QColor ventana = paleta.color(QPalette::Window);
    return ventana.lightness() < 128 ? ventana.darker(130) : ventana.darker(112);
}

} // namespace

VistaPaginas::VistaPaginas(DocumentoPaginado& documento, QWidget* padre)
    : QAbstractScrollArea(padre)
    , documento_(documento)
{
    setObjectName(u"Visor"_s);
    setAccessibleName(u"Páginas del documento"_s);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setCursor(Qt::OpenHandCursor);
    preparador_.setSingleShot(true);
    preparador_.setInterval(0);
    connect(&preparador_, &QTimer::timeout, this, &VistaPaginas::PrepararSiguiente);
    setAccessibleDescription(documento_.texto(0));
}

QSize VistaPaginas::TamañoPagina() const
{
    return (hoja::kTamaño * logicalDpiX() / hoja::kPorPulgada * zoom_ / 100).toSize();
}

QRect VistaPaginas::SitioPagina(int pagina) const
{
    const QSize tamaño = TamañoPagina();
    const int hueco = viewport()->width() - tamaño.width();
    const int x = hueco > 2 * kBorde ? hueco / 2 : kBorde - horizontalScrollBar()->value();
    const int y = kBorde + pagina * (tamaño.height() + kEntrePaginas) - verticalScrollBar()->value();
    return {QPoint(x, y), tamaño};
}

int VistaPaginas::PaginaEn(int y) const
{
    const int paso = TamañoPagina().height() + kEntrePaginas;
    return std::clamp((y + verticalScrollBar()->value() - kBorde) / paso, 0, documento_.paginas() - 1);
}

qreal VistaPaginas::ZoomDeAjuste() const
{
    const QSizeF natural = hoja::kTamaño * logicalDpiX() / hoja::kPorPulgada;
    // The vertical bar is there for all but documents of one page.
    const QSize hueco = maximumViewportSize() - QSize(verticalScrollBar()->sizeHint().width(), 0);
    const qreal ancho = (hueco.width() - 2 * kBorde) / natural.width();
    const qreal alto = (hueco.height() - 2 * kBorde) / natural.height();
    return 100 * (ajuste_ == Ajuste::Ancho ? ancho : std::min(ancho, alto));
}

void VistaPaginas::setZoom(qreal porcentaje)
{
    ajuste_ = Ajuste::Libre;
    AplicarZoom(porcentaje);
}

void VistaPaginas::setAjuste(Ajuste ajuste)
{
    ajuste_ = ajuste;
    const int pagina = actual_;
    if (ajuste_ != Ajuste::Libre)
        AplicarZoom(ZoomDeAjuste());
    if (ajuste_ == Ajuste::Pagina)
        IrA(pagina);
}

// What stood in the middle of the view stays there.
void VistaPaginas::AplicarZoom(qreal porcentaje)
{
    const qreal nuevo = std::clamp(porcentaje, qreal(kZoomMenor), qreal(kZoomMayor));
    const qreal centro = verticalScrollBar()->value() + viewport()->height() / 2.0;
    const bool arriba = verticalScrollBar()->value() == 0;
    const qreal razon = nuevo / zoom_;
    zoom_ = nuevo;
    AjustarBarras();
    if (!arriba)
        verticalScrollBar()->setValue(qRound(centro * razon - viewport()->height() / 2.0));
    horizontalScrollBar()->setValue(horizontalScrollBar()->maximum() / 2);
    viewport()->update();
    AnotarActual();
    Q_EMIT ZoomCambiado(zoom());
}

void VistaPaginas::Acercar()
{
    const auto mayor = std::upper_bound(kPasos.begin(), kPasos.end(), zoom_ + 0.5);
    setZoom(mayor == kPasos.end() ? kZoomMayor : *mayor);
}

void VistaPaginas::Alejar()
{
    const auto menor = std::lower_bound(kPasos.begin(), kPasos.end(), zoom_ - 0.5);
    setZoom(menor == kPasos.begin() ? kZoomMenor : *std::prev(menor));
}

void VistaPaginas::IrA(int pagina)
{
    const int destino = std::clamp(pagina, 0, documento_.paginas() - 1);
    verticalScrollBar()->setValue(destino * (TamañoPagina().height() + kEntrePaginas));
    // Near the end the bar may not go as far.
    if (destino != actual_) {
        actual_ = destino;
        setAccessibleDescription(documento_.texto(actual_));
        Q_EMIT PaginaCambiada(actual_);
    }
}

void VistaPaginas::AjustarBarras()
{
    const QSize tamaño = TamañoPagina();
    const int alto = 2 * kBorde + documento_.paginas() * (tamaño.height() + kEntrePaginas) - kEntrePaginas;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(40);
    verticalScrollBar()->setRange(0, std::max(0, alto - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setRange(0, std::max(0, tamaño.width() + 2 * kBorde - viewport()->width()));
}

void VistaPaginas::AnotarActual()
{
    const int pagina = PaginaEn(std::min(viewport()->height() / 3, TamañoPagina().height() / 2));
    if (pagina == actual_)
        return;
    actual_ = pagina;
    setAccessibleDescription(documento_.texto(actual_));
    Q_EMIT PaginaCambiada(actual_);
}

void VistaPaginas::paintEvent(QPaintEvent* evento)
{
    QPainter pintor(viewport());
    pintor.fillRect(evento->rect(), FondoDe(palette()));
    const int ultima = PaginaEn(evento->rect().bottom());
    for (int pagina = PaginaEn(evento->rect().top()); pagina <= ultima; ++pagina) {
        if (SitioPagina(pagina).adjusted(0, 0, kSombra, kSombra).intersects(evento->rect()))
            PintarPagina(pintor, pagina);
    }
}

void VistaPaginas::PintarPagina(QPainter& pintor, int pagina)
{
    const QRect sitio = SitioPagina(pagina);
    pintor.fillRect(sitio.translated(kSombra, kSombra), QColor(0, 0, 0, 60));
    pintor.fillRect(sitio, Qt::white);
    pintor.save();
    pintor.setClipRect(sitio, Qt::IntersectClip);
    pintor.translate(sitio.topLeft());
    pintor.scale(sitio.width() / hoja::kAncho, sitio.height() / hoja::kAlto);
    documento_.Pintar(pintor, pagina);
    pintor.restore();
    if (!documento_.preparada(pagina))
        preparador_.start();
}

// One picture at a time, so that she can go on turning pages meanwhile.
void VistaPaginas::PrepararSiguiente()
{
    const int ultima = PaginaEn(viewport()->height());
    for (int pagina = PaginaEn(0); pagina <= ultima; ++pagina) {
        if (documento_.preparada(pagina))
            continue;
        documento_.Preparar(pagina);
        viewport()->update(SitioPagina(pagina));
        return;
    }
}

void VistaPaginas::resizeEvent(QResizeEvent* evento)
{
    QAbstractScrollArea::resizeEvent(evento);
    if (ajuste_ == Ajuste::Libre)
        AjustarBarras();
    else
        AplicarZoom(ZoomDeAjuste());
}

void VistaPaginas::scrollContentsBy(int dx, int dy)
{
    // Centred pages do not move sideways.
    viewport()->scroll(viewport()->width() - TamañoPagina().width() > 2 * kBorde ? 0 : dx, dy);
    AnotarActual();
}

void VistaPaginas::wheelEvent(QWheelEvent* evento)
{
    if (!evento->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(evento);
        return;
    }
    if (evento->angleDelta().y() > 0)
        Acercar();
    else if (evento->angleDelta().y() < 0)
        Alejar();
    evento->accept();
}

void VistaPaginas::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
    case Qt::Key_PageDown:
        IrA(actual_ + 1);
        break;
    case Qt::Key_PageUp:
        IrA(actual_ - 1);
        break;
    case Qt::Key_Home:
        IrA(0);
        break;
    case Qt::Key_End:
        IrA(documento_.paginas() - 1);
        break;
    case Qt::Key_Space:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(evento);
    }
}

void VistaPaginas::mousePressEvent(QMouseEvent* evento)
{
    if (evento->button() != Qt::LeftButton)
        return;
    arrastre_ = evento->position().toPoint();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void VistaPaginas::mouseMoveEvent(QMouseEvent* evento)
{
    if (!evento->buttons().testFlag(Qt::LeftButton))
        return;
    const QPoint movido = arrastre_ - evento->position().toPoint();
    arrastre_ = evento->position().toPoint();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + movido.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + movido.y());
}

void VistaPaginas::mouseReleaseEvent(QMouseEvent* /*evento*/)
{
    viewport()->setCursor(Qt::OpenHandCursor);
}

} // namespace valmerix
