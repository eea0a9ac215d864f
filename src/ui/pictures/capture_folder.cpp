#include "ui/pictures/capture_folder.h"

#include <QFileInfo>
#include <utility>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

const auto kPrefijo = u"valmerix-capturas-"_s;

std::unique_ptr<QLockFile> Cerrojo(const QString& carpeta)
{
    auto cerrojo = std::make_unique<QLockFile>(carpeta + u"/en-uso.lock"_s);
    cerrojo->setStaleLockTime(0); // stale only when its process has gone
    return cerrojo;
}

} // namespace

CarpetaCapturas::CarpetaCapturas(QString lugar)
    : lugar_(std::move(lugar))
{
    Barrer();
}

CarpetaCapturas::~CarpetaCapturas()
{
    Retirar();
}

void CarpetaCapturas::Barrer() const
{
    const auto carpetas =
        QDir(lugar_).entryInfoList({kPrefijo + u'*'}, QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo& carpeta : carpetas) {
        const auto cerrojo = Cerrojo(carpeta.filePath());
        if (!cerrojo->tryLock(0))
            continue;
        cerrojo->unlock();
        QDir(carpeta.filePath()).removeRecursively();
    }
}

QString CarpetaCapturas::RutaNueva()
{
    if (!carpeta_) {
        carpeta_ = std::make_unique<QTemporaryDir>(lugar_ + u'/' + kPrefijo + u"XXXXXX"_s);
        cerrojo_ = Cerrojo(carpeta_->path());
        cerrojo_->tryLock(0);
    }
    return carpeta_->filePath(u"captura%1.bmp"_s.arg(++numero_));
}

void CarpetaCapturas::Retirar()
{
    cerrojo_.reset();
    carpeta_.reset();
}

} // namespace valmerix
