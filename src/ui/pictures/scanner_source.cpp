#include "ui/pictures/scanner_source.h"

#include "ui/pictures/sane_session.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>
#include <QThread>
#include <atomic>
#include <functional>
#include <new>
#include <vector>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// What the thread of the scanners works with.
struct Taller
{
    std::unique_ptr<SesionSane> sesion;
    std::vector<Escaner> escaneres;
};

/// One task of the thread, and its way back to the window's thread.
class Encargo
{
public:
    explicit Encargo(FuenteCaptura* fuente)
        : fuente_(fuente)
    {
    }

    void Cancelar() const { cancelado_->store(true); }
    const std::atomic<bool>& cancelado() const { return *cancelado_; }

    /// Runs `respuesta` on the window's thread, unless the task has been cancelled or the source has gone.
    void Responder(std::function<void(FuenteCaptura&)> respuesta) const
    {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [encargo = *this, respuesta = std::move(respuesta)] {
                if (encargo.fuente_ && !encargo.cancelado())
                    respuesta(*encargo.fuente_);
            },
            Qt::QueuedConnection);
    }
    void Fallar(const QString& texto) const
    {
        Responder([texto](FuenteCaptura& fuente) { Q_EMIT fuente.Fallo(texto); });
    }

private:
    QPointer<FuenteCaptura> fuente_;
    std::shared_ptr<std::atomic<bool>> cancelado_ = std::make_shared<std::atomic<bool>>(false);
};

using Tarea = std::function<void(Taller&, const Encargo&)>;

void Hacer(const Tarea& tarea, Taller& taller, const Encargo& encargo)
{
    try {
        if (!encargo.cancelado())
            tarea(taller, encargo);
    } catch (const ErrorEscaner& fallo) {
        encargo.Fallar(QString::fromUtf8(fallo.what()));
    } catch (const std::bad_alloc&) {
        encargo.Fallar(u"No queda memoria para digitalizar la imagen."_s);
    }
}

void BuscarEscaneres(Taller& taller, const Encargo& encargo)
{
    taller.sesion.reset();
    taller.escaneres.clear();
    taller.sesion = std::make_unique<SesionSane>();
    taller.escaneres = taller.sesion->Buscar();
    QStringList titulos;
    for (const Escaner& escaner : taller.escaneres)
        titulos << escaner.titulo;
    encargo.Responder([titulos](FuenteCaptura& fuente) { Q_EMIT fuente.Hallados(titulos); });
}

void Digitalizar(Taller& taller, const Encargo& encargo, int escaner)
{
    if (!taller.sesion || escaner < 0 || static_cast<size_t>(escaner) >= taller.escaneres.size())
        return;
    const auto avance = [&encargo](double fraccion) {
        encargo.Responder([fraccion](FuenteCaptura& fuente) { Q_EMIT fuente.Avance(fraccion); });
    };
    const auto imagen = taller.sesion->Digitalizar(taller.escaneres[static_cast<size_t>(escaner)].nombre,
                                                   {avance, encargo.cancelado()});
    if (imagen)
        encargo.Responder([imagen = *imagen](FuenteCaptura& fuente) { Q_EMIT fuente.Capturada(imagen); });
}

/// The thread lives on until its last task has ended: a scanner that does not answer must not hold the
/// window.
class FuenteEscaner : public FuenteCaptura
{
public:
    FuenteEscaner()
        : hilo_(new QThread)
        , obrero_(new QObject)
        , taller_(std::make_shared<Taller>())
    {
        obrero_->moveToThread(hilo_);
        connect(hilo_, &QThread::finished, obrero_, &QObject::deleteLater);
        connect(hilo_, &QThread::finished, hilo_, &QObject::deleteLater);
        hilo_->start();
    }
    ~FuenteEscaner() override
    {
        encargo_.Cancelar();
        QMetaObject::invokeMethod(
            obrero_,
            [taller = taller_] {
                taller->sesion.reset();
                QThread::currentThread()->quit();
            },
            Qt::QueuedConnection);
    }
    FuenteEscaner(const FuenteEscaner&) = delete;
    FuenteEscaner& operator=(const FuenteEscaner&) = delete;

    void Buscar() override { Encargar(BuscarEscaneres); }
    void Elegir(int aparato) override { elegido_ = aparato; }
    void Capturar() override
    {
        Encargar([escaner = elegido_](Taller& taller, const Encargo& encargo) {
            Digitalizar(taller, encargo, escaner);
        });
    }
    void Detener() override { encargo_.Cancelar(); }

private:
    void Encargar(Tarea tarea)
    {
        encargo_.Cancelar();
        encargo_ = Encargo(this);
        QMetaObject::invokeMethod(
            obrero_,
            [tarea = std::move(tarea), taller = taller_, encargo = encargo_] {
                Hacer(tarea, *taller, encargo);
            },
            Qt::QueuedConnection);
    }

    QThread* hilo_;
    QObject* obrero_;
    std::shared_ptr<Taller> taller_;
    Encargo encargo_{this};
    int elegido_ = 0;
};

} // namespace

std::unique_ptr<FuenteCaptura> CrearFuenteEscaner()
{
    return std::make_unique<FuenteEscaner>();
}

} // namespace valmerix
