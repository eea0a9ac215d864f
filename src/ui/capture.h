#pragma once

#include "common/ports.h"

#include <QTemporaryDir>

namespace valmerix {

/// Pictures from a file that she chooses, read by content and handed on as a bitmap in a folder of the
/// process. Camera and scanner are told to be missing.
class CapturaQt : public CapturaImagenes
{
public:
    std::optional<QString> LoadCapture(FuenteImagen fuente, const QString& carpetaPrograma) override;

private:
    QTemporaryDir carpeta_;
    int numero_ = 0;
};

} // namespace valmerix
