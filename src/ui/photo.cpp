#include "ui/photo.h"

#include <QPixmap>
#include <QWidget>

namespace valmerix {

bool GuardarFoto(QWidget& ventana, const QString& fichero)
{
    return ventana.grab().save(fichero);
}

} // namespace valmerix
