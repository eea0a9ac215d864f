#pragma once

#include "common/ports.h"
#include "ui/pictures/capture_folder.h"
#include "ui/pictures/capture_source.h"

#include <functional>
#include <memory>

namespace valmerix {

struct TextosCaptura;

/// Pictures from a file that she chooses, from a camera or a scanner, handed on as a bitmap in a folder of
/// the process. Cameras and scanners are looked for when they are asked for, not before.
class CapturaQt : public CapturaImagenes
{
public:
    using Fabrica = std::function<std::unique_ptr<FuenteCaptura>()>;

    CapturaQt();
    CapturaQt(Fabrica camara, Fabrica escaner);

    /// Deletes the pictures handed on so far.
    void Limpiar() { carpeta_.Retirar(); }

    std::optional<QString> LoadCapture(FuenteImagen fuente, const QString& carpetaPrograma) override;

private:
    static QImage DeFichero(const QString& carpetaPrograma);
    static QImage DeAparato(const Fabrica& fabrica, const TextosCaptura& textos);
    std::optional<QString> Guardar(const QImage& imagen);

    Fabrica camara_;
    Fabrica escaner_;
    CarpetaCapturas carpeta_;
};

} // namespace valmerix
