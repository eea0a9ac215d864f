#include "ui/widgets/image_widget.h"

#include "ui/look/application.h"
#include "ui/look/theme.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamañoPropio(240, 180);
constexpr QSize kCaja(2000, 2000); // pixels: more than any preview shows
constexpr int kDemora = 300;       // ms until it is told that a picture is being read

} // namespace

CuadroImagen::CuadroImagen(Imagen& imagen, QWidget* padre)
    : QWidget(padre)
    , imagen_(&imagen)
{
    demora_.setSingleShot(true);
    demora_.setInterval(kDemora);
    connect(&demora_, &QTimer::timeout, this, [this] {
        setCursor(Qt::BusyCursor);
        update();
    });
    connect(&lector_, &LectorImagenes::Leida, this, &CuadroImagen::Poner);
    connect(&imagen, &Control::PresentacionCambiada, this, &CuadroImagen::Leer);
    connect(&imagen, &Imagen::CopiaPedida, this, [this](bool& copiada) {
        if (cuadro_.isNull())
            return;
        QGuiApplication::clipboard()->setPixmap(cuadro_);
        copiada = true;
    });
    Poner({});
    Leer();
}

void CuadroImagen::Leer()
{
    const QString ruta = imagen_ ? imagen_->Picture() : QString();
    if (ruta == ruta_)
        return;
    ruta_ = ruta;
    Poner({});
    if (ruta.isEmpty())
        return lector_.Olvidar();
    lector_.Pedir(ruta, kCaja);
    demora_.start();
}

void CuadroImagen::Poner(const QImage& imagen)
{
    demora_.stop();
    unsetCursor();
    cuadro_ = QPixmap::fromImage(imagen);
    setAccessibleDescription(cuadro_.isNull() ? u"Sin imagen"_s : QFileInfo(ruta_).fileName());
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

QRect CuadroImagen::Sitio() const
{
    QSize tamaño = cuadro_.size();
    if (llenar_) {
        tamaño.scale(size(), Qt::KeepAspectRatioByExpanding);
    } else if (tamaño.width() > width() || tamaño.height() > height()) {
        tamaño = tamaño.scaled(size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    }
    QRect sitio(QPoint(), tamaño);
    sitio.moveCenter(rect().center());
    return sitio;
}

void CuadroImagen::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    if (!cuadro_.isNull()) {
        pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        pintor.drawPixmap(Sitio(), cuadro_);
        return;
    }
    pintor.setPen(QPen(ColorLinea(palette()), 1, Qt::DashLine));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    if (lector_.leyendo() && !demora_.isActive()) {
        pintor.setPen(ColorSecundario(palette()));
        pintor.drawText(rect(), Qt::AlignCenter, u"Leyendo la imagen…"_s);
    }
}

void CuadroImagen::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()) && imagen_)
        Protegido([this] { imagen_->Pulsar(); });
}

} // namespace valmerix
