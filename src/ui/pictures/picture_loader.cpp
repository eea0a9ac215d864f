#include "ui/pictures/picture_loader.h"

#include "ui/pictures/picture_reading.h"

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPromise>
#include <QThreadPool>
#include <QTimer>
#include <memory>
#include <new>
#include <utility>

namespace valmerix {

namespace {

constexpr int kDemora = 300; // ms until the pointer tells that it takes time

/// The busy pointer, once the wait has become noticeable.
class PunteroDeEspera
{
public:
    PunteroDeEspera()
    {
        demora_.setSingleShot(true);
        QObject::connect(&demora_, &QTimer::timeout, &demora_, [this] {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
            puesto_ = true;
        });
        demora_.start(kDemora);
    }
    ~PunteroDeEspera()
    {
        if (puesto_)
            QGuiApplication::restoreOverrideCursor();
    }
    PunteroDeEspera(const PunteroDeEspera&) = delete;
    PunteroDeEspera& operator=(const PunteroDeEspera&) = delete;

private:
    QTimer demora_;
    bool puesto_ = false;
};

} // namespace

LectorImagenes::LectorImagenes(QObject* padre)
    : QObject(padre)
{
    connect(&vigia_, &QFutureWatcher<QImage>::finished, this, &LectorImagenes::Terminar);
}

void LectorImagenes::Pedir(const QString& ruta, QSize caja)
{
    const Pedido pedido{ruta, caja};
    // A decoder cannot be stopped: the next one waits, so that no more than one picture fills the memory.
    if (ocupado_) {
        siguiente_ = pedido;
    } else {
        Empezar(pedido);
    }
}

void LectorImagenes::Olvidar()
{
    siguiente_.reset();
    esperada_ = false;
}

void LectorImagenes::Empezar(const Pedido& pedido)
{
    ocupado_ = true;
    esperada_ = true;
    const auto promesa = std::make_shared<QPromise<QImage>>();
    promesa->start();
    vigia_.setFuture(promesa->future());
    QThreadPool::globalInstance()->start([promesa, pedido] {
        try {
            promesa->addResult(LeerImagen(pedido.ruta, pedido.caja));
        } catch (const std::bad_alloc&) {
            promesa->addResult(QImage()); // shown as a picture that cannot be read
        }
        promesa->finish();
    });
}

void LectorImagenes::Terminar()
{
    ocupado_ = false;
    if (siguiente_) {
        Empezar(*std::exchange(siguiente_, std::nullopt));
        return;
    }
    if (std::exchange(esperada_, false))
        Q_EMIT Leida(vigia_.result());
}

QImage LeerImagenEsperando(const QString& ruta, QSize caja)
{
    const PunteroDeEspera puntero;
    QEventLoop espera;
    LectorImagenes lector;
    QImage leida;
    QObject::connect(&lector, &LectorImagenes::Leida, &espera, [&](const QImage& imagen) {
        leida = imagen;
        espera.quit();
    });
    lector.Pedir(ruta, caja);
    espera.exec(QEventLoop::ExcludeUserInputEvents);
    return leida;
}

} // namespace valmerix
