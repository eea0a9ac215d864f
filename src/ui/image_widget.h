#pragma once

#include "controls/control.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace valmerix {

/// A picture fitted into its place, upright, with its own proportions. A file that cannot be read shows
/// nothing.
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

    QPointer<Imagen> imagen_;
    QPixmap cuadro_;
    bool llenar_ = false;
};

} // namespace valmerix
