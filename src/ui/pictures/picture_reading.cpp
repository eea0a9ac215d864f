#include "ui/pictures/picture_reading.h"

#include <QImageReader>
#include <QPainter>

namespace valmerix {

namespace {

// Megabytes: what 50 megapixels take in a format that cannot be reduced while it is decoded.
constexpr int kMemoriaMayor = 256;

QSize Reducido(QSize real, QSize caja)
{
    if (real.width() <= caja.width() && real.height() <= caja.height())
        return real;
    return real.scaled(caja, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage Opaca(const QImage& imagen)
{
    if (!imagen.hasAlphaChannel())
        return imagen.convertToFormat(QImage::Format_RGB32);
    QImage fondo(imagen.size(), QImage::Format_RGB32);
    fondo.fill(Qt::white);
    QPainter(&fondo).drawImage(0, 0, imagen);
    return fondo;
}

} // namespace

QImage LeerImagen(const QString& ruta, QSize caja)
{
    // Once: pictures are read in several threads.
    [[maybe_unused]] static const bool limitada = [] {
        QImageReader::setAllocationLimit(kMemoriaMayor);
        return true;
    }();
    QImageReader lector(ruta);
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    const QSize real = lector.size();
    if (real.isValid()) {
        const bool tumbada = lector.transformation().testFlag(QImageIOHandler::TransformationRotate90);
        const QSize cajaDelFichero = tumbada ? caja.transposed() : caja;
        if (const QSize menor = Reducido(real, cajaDelFichero); menor != real)
            lector.setScaledSize(menor);
    }
    QImage imagen = lector.read();
    if (imagen.isNull())
        return {};
    if (const QSize menor = Reducido(imagen.size(), caja); menor != imagen.size())
        imagen = imagen.scaled(menor, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return Opaca(imagen);
}

} // namespace valmerix
