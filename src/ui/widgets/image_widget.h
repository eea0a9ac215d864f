#pragma once

#include "controls/control.h"
#include "ui/pictures/picture_loader.h"

#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace valmerix {

/// A picture fitted into its place, upright, with its own proportions and never larger than it is. It is read
/// off the window's thread. A file that cannot be read shows nothing.
class CuadroImagen : public QWidget
{
    Q_OBJECT

public:
    CuadroImagen(Imagen& imagen, QWidget* padre);

    /// Fills the whole place, cutting what sticks out, instead of fitting in it.
    void setLlenar(bool valor);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void Leer();
    void Poner(const QImage& imagen);
    QRect Sitio() const;

    QPointer<Imagen> imagen_;
    QString ruta_; ///< of the picture shown or being read
    LectorImagenes lector_;
    QTimer demora_;
    QPixmap cuadro_;
    bool llenar_ = false;
};

} // namespace valmerix
