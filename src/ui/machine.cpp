#include "ui/machine.h"

#include "ui/pictures/picture_loader.h"

#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <cstdlib>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kCajaPortapapeles(4000, 4000); // pixels; enough for a whole page of another program

QString CarpetaSegunElPuesto()
{
    const QString usuario =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/valmerix"_s;
    QString carpeta = CarpetaDelPrograma(QCoreApplication::applicationDirPath(), usuario);
    QDir().mkpath(carpeta);
    return carpeta;
}

// The lock stands outside the program folder, which may be read-only.
QString FicheroCerrojo(const QString& carpeta)
{
    const QByteArray huella =
        QCryptographicHash::hash(QFileInfo(carpeta).absoluteFilePath().toUtf8(), QCryptographicHash::Sha256);
    const QString sesion = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return (QFileInfo(sesion).isDir() ? sesion : QDir::tempPath()) + u"/valmerix-"_s +
           QString::fromLatin1(huella.toHex().first(16)) + u".lock"_s;
}

} // namespace

QDate RelojQt::hoy() const
{
    return QDate::currentDate();
}

QDateTime RelojQt::ahora() const
{
    return QDateTime::currentDateTime();
}

QString CarpetaDelPrograma(const QString& carpetaEjecutable, const QString& datosDeUsuario)
{
    const QFileInfo carpeta(carpetaEjecutable);
    if (QFileInfo(carpetaEjecutable + u"/Datos"_s).isDir())
        return carpeta.absoluteFilePath();
    // Programs that a package has installed stand among others in a folder "bin": no data belong there, not
    // even where the user might write.
    const bool instalado = carpeta.fileName() == u"bin";
    return carpeta.isWritable() && !instalado ? carpeta.absoluteFilePath() : datosDeUsuario;
}

SistemaQt::SistemaQt()
    : SistemaQt(CarpetaSegunElPuesto())
{
}

SistemaQt::SistemaQt(const QString& carpeta)
    : carpeta_(QDir::cleanPath(QFileInfo(carpeta).absoluteFilePath()))
{
}

SistemaQt::~SistemaQt() = default;

QString SistemaQt::carpetaInstalacion() const
{
    const QString ejecutable = QCoreApplication::applicationDirPath();
    const QString instalada = QDir::cleanPath(ejecutable + u"/../share/valmerix"_s);
    return QFileInfo(instalada).isDir() ? instalada : ejecutable;
}

bool SistemaQt::otraInstancia()
{
    if (cerrojo_)
        return false;
    auto cerrojo = std::make_unique<QLockFile>(FicheroCerrojo(carpeta_));
    cerrojo->setStaleLockTime(0); // stale only when its process has gone
    if (!cerrojo->tryLock(0))
        return cerrojo->error() == QLockFile::LockFailedError;
    cerrojo_ = std::move(cerrojo);
    return false;
}

bool SistemaQt::Arrancar(const QString& orden, const QStringList& argumentos, const QString& carpeta)
{
    return QProcess::startDetached(orden, argumentos, carpeta);
}

void SistemaQt::Pitar()
{
    QApplication::beep();
}

void SistemaQt::PunteroOcupado(bool ocupado)
{
    // One busy pointer at most, however often it is asked for.
    const bool estaba = QGuiApplication::overrideCursor() != nullptr;
    if (ocupado && !estaba) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (!ocupado && estaba) {
        QGuiApplication::restoreOverrideCursor();
    }
}

void SistemaQt::DejarPintar()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void SistemaQt::CopiarAlPortapapeles(const QString& texto)
{
    QGuiApplication::clipboard()->setText(texto);
}

bool SistemaQt::CopiarImagenAlPortapapeles(const QString& ruta)
{
    const QImage imagen = LeerImagenEsperando(ruta, kCajaPortapapeles);
    if (imagen.isNull())
        return false;
    QClipboard& portapapeles = *QGuiApplication::clipboard();
    portapapeles.clear();
    portapapeles.setImage(imagen);
    return true;
}

void SistemaQt::Aplazar(int milisegundos, std::function<void()> tarea)
{
    QTimer::singleShot(milisegundos, qApp, std::move(tarea));
}

void SistemaQt::TerminarProceso(int codigo)
{
    if (alTerminar_)
        alTerminar_();
    cerrojo_.reset();
    // No destructor runs: windows must not be asked to close, nothing is to be saved.
    std::quick_exit(codigo);
}

} // namespace valmerix
