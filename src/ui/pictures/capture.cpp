#include "ui/pictures/capture.h"

#include "ui/look/application.h"
#include "ui/pictures/camera_source.h"
#include "ui/pictures/capture_window.h"
#include "ui/pictures/picture_loader.h"
#include "ui/pictures/scanner_source.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kCaja(4000, 4000); // pixels; more than any letterhead prints

void Avisar(const QString& texto)
{
    QMessageBox::information(VentanaDelante(), u"Aviso"_s, texto);
}

} // namespace

CapturaQt::CapturaQt()
    : CapturaQt(CrearFuenteCamara, CrearFuenteEscaner)
{
}

CapturaQt::CapturaQt(Fabrica camara, Fabrica escaner)
    : camara_(std::move(camara))
    , escaner_(std::move(escaner))
{
}

std::optional<QString> CapturaQt::LoadCapture(FuenteImagen fuente, const QString& carpetaPrograma)
{
    switch (fuente) {
    case FuenteImagen::Fichero:
        return Guardar(DeFichero(carpetaPrograma));
    case FuenteImagen::Camara:
        return Guardar(DeAparato(camara_, kTextosCamara));
    case FuenteImagen::Escaner:
        return Guardar(DeAparato(escaner_, kTextosEscaner));
    }
    return std::nullopt;
}

QImage CapturaQt::DeFichero(const QString& carpetaPrograma)
{
    const QString ruta =
        QFileDialog::getOpenFileName(VentanaDelante(), u"Cargar Imagen"_s, carpetaPrograma,
                                     u"Imágenes (*.bmp *.gif *.jpg *.jpeg *.png);;Todos los ficheros (*)"_s);
    if (ruta.isEmpty())
        return {};
    QImage imagen = LeerImagenEsperando(ruta, kCaja);
    if (imagen.isNull())
        Avisar(u"No se puede leer la imagen «%1»."_s.arg(ruta));
    return imagen;
}

QImage CapturaQt::DeAparato(const Fabrica& fabrica, const TextosCaptura& textos)
{
    const std::unique_ptr<FuenteCaptura> fuente = fabrica();
    VentanaCaptura ventana(*fuente, textos, VentanaDelante());
    if (ventana.exec() != QDialog::Accepted)
        return {};
    const QImage& imagen = ventana.imagen();
    return imagen.width() > kCaja.width() || imagen.height() > kCaja.height()
               ? imagen.scaled(kCaja, Qt::KeepAspectRatio, Qt::SmoothTransformation)
               : imagen;
}

std::optional<QString> CapturaQt::Guardar(const QImage& imagen)
{
    if (imagen.isNull())
        return std::nullopt;
    const QString destino = carpeta_.RutaNueva();
    if (imagen.save(destino, "BMP"))
        return destino;
    Avisar(u"No se puede guardar la imagen en «%1»."_s.arg(QFileInfo(destino).path()));
    return std::nullopt;
}

} // namespace valmerix
