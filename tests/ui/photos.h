#pragma once

#include "ui/photo.h"

#include <QDir>
#include <QString>

class QWidget;

namespace valmerix {

/// Keeps a picture of the window in the folder that VALMERIX_FOTOS names, when it names one.
inline void Fotografiar(QWidget& ventana, const QString& nombre)
{
    const QString carpeta = qEnvironmentVariable("VALMERIX_FOTOS");
    if (!carpeta.isEmpty() && QDir().mkpath(carpeta))
        GuardarFoto(ventana, carpeta + u'/' + nombre + QStringLiteral(".png"));
}

} // namespace valmerix
