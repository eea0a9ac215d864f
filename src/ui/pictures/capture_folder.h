#pragma once

#include <QDir>
#include <QLockFile>
#include <QTemporaryDir>
#include <memory>

namespace valmerix {

/// The folder of the process for the pictures it takes, among the machine's temporary files. It goes with the
/// process; that of one which ended without a word is swept by the next.
class CarpetaCapturas
{
public:
    /// Sweeps what processes that are gone have left in `lugar`.
    explicit CarpetaCapturas(QString lugar = QDir::tempPath());
    ~CarpetaCapturas();
    CarpetaCapturas(const CarpetaCapturas&) = delete;
    CarpetaCapturas& operator=(const CarpetaCapturas&) = delete;

    /// A path that no picture has yet. The folder is made when it is first needed; whether it could be made
    /// shows when the picture is written.
    QString RutaNueva();
    /// Deletes the folder with all that is in it.
    void Retirar();

private:
    void Barrer() const;

    QString lugar_;
    std::unique_ptr<QTemporaryDir> carpeta_;
    std::unique_ptr<QLockFile> cerrojo_; ///< tells the others that the folder is in use
    int numero_ = 0;
};

} // namespace valmerix
