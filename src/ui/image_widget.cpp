#include "ui/image_widget.h"

#include "ui/application.h"
#include "ui/theme.h"

#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace valmerix {

namespace {

constexpr QSize kTamañoPropio(240, 180);
constexpr int kLadoMayor = 2000; // pixels: more than any preview shows

} // namespace

CuadroImagen::CuadroImagen(Imagen& imagen, QWidget* padre)
    : QWidget(padre)
    , imagen_(&imagen)
{
    connect(&imagen, &Control::PresentacionCambiada, this, &CuadroImagen::Leer);
    Leer();
}

void CuadroImagen::Leer()
{
    cuadro_ = {};
    if (imagen_ && !imagen_->Picture().isEmpty()) {
        QImageReader lector(imagen_->Picture());
        lector.setDecideFormatFromContent(true);
        lector.setAutoTransform(true);
        // Large photographs are reduced while they are decoded.
        if (const QSize real = lector.size();
            real.isValid() && std::max(real.width(), real.height()) > kLadoMayor)
            lector.setScaledSize(real.scaled(kLadoMayor, kLadoMayor, Qt::KeepAspectRatio));
        cuadro_ = QPixmap::fromImage(lector.read());
    }
    update();
}

void CuadroImagen::setLlenar(bool valor)
{
    llenar_ = valor;
    update();
}

QSize CuadroImagen::sizeHint() const
{
    return kTamañoPropio;
}

void CuadroImagen::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    if (cuadro_.isNull()) {
        pintor.setPen(QPen(ColorLinea(palette()), 1, Qt::DashLine));
        pintor.drawRect(rect().adjusted(0, 0, -1, -1));
        return;
    }
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect sitio(QPoint(), cuadro_.size().scaled(size(), llenar_ ? Qt::KeepAspectRatioByExpanding
                                                                : Qt::KeepAspectRatio));
    sitio.moveCenter(rect().center());
    pintor.drawPixmap(sitio, cuadro_);
}

void CuadroImagen::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()) && imagen_)
        Protegido([this] { imagen_->Pulsar(); });
}

} // namespace valmerix
