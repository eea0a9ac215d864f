#include "ui/capture.h"

#include <QApplication>
#include <QFileDialog>
#include <QImageReader>
#include <QMessageBox>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMayorLado = 4000; // pixels; more than any letterhead prints

void Avisar(const QString& texto)
{
    QMessageBox::information(QApplication::activeWindow(), u"Aviso"_s, texto);
}

QImage LeerImagen(const QString& ruta)
{
    QImageReader lector(ruta);
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    const QSize lado = lector.size();
    if (lado.width() > kMayorLado || lado.height() > kMayorLado)
        lector.setScaledSize(lado.scaled(kMayorLado, kMayorLado, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return lector.read();
}

} // namespace

std::optional<QString> CapturaQt::LoadCapture(FuenteImagen fuente, const QString& carpetaPrograma)
{
    if (fuente != FuenteImagen::Fichero) {
        Avisar(fuente == FuenteImagen::Camara ? u"No se ha encontrado ninguna cámara."_s
                                              : u"No se ha encontrado ningún escáner."_s);
        return std::nullopt;
    }
    const QString ruta =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), u"Cargar Imagen"_s, carpetaPrograma,
                                     u"Imágenes (*.bmp *.gif *.jpg *.jpeg *.png);;Todos los ficheros (*)"_s);
    if (ruta.isEmpty())
        return std::nullopt;
    const QImage imagen = LeerImagen(ruta);
    const QString destino = carpeta_.filePath(u"captura%1.bmp"_s.arg(++numero_));
    if (imagen.isNull() || !imagen.save(destino, "BMP")) {
        Avisar(u"No se puede leer la imagen «%1»."_s.arg(ruta));
        return std::nullopt;
    }
    return destino;
}

} // namespace valmerix
