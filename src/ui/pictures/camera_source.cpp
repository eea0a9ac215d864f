#include "ui/pictures/camera_source.h"

#include <QCamera>
#include <QCameraDevice>
#include <QElapsedTimer>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QVideoFrame>
#include <QVideoSink>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kEntreVistas = 66; // ms: turning a frame into a picture takes time
constexpr int kAnchoMayor = 1920;

/// The finest picture that a camera still gives fluently.
QCameraFormat FormatoPara(const QCameraDevice& camara)
{
    QCameraFormat mejor;
    const auto formatos = camara.videoFormats();
    for (const QCameraFormat& formato : formatos) {
        const QSize tamaño = formato.resolution();
        if (tamaño.width() <= kAnchoMayor && (mejor.isNull() || tamaño.width() > mejor.resolution().width()))
            mejor = formato;
    }
    return mejor;
}

class FuenteCamara : public FuenteCaptura
{
public:
    FuenteCamara()
    {
        sesion_.setVideoSink(&sumidero_);
        connect(&sumidero_, &QVideoSink::videoFrameChanged, this, &FuenteCamara::Mirar);
    }

    void Buscar() override
    {
        Detener();
        aparatos_ = QMediaDevices::videoInputs();
        QStringList titulos;
        for (const QCameraDevice& aparato : std::as_const(aparatos_))
            titulos << aparato.description();
        Q_EMIT Hallados(titulos);
    }

    void Elegir(int aparato) override
    {
        Detener();
        if (aparato < 0 || aparato >= aparatos_.size())
            return;
        camara_ = std::make_unique<QCamera>(aparatos_[aparato]);
        if (const QCameraFormat formato = FormatoPara(aparatos_[aparato]); !formato.isNull())
            camara_->setCameraFormat(formato);
        connect(camara_.get(), &QCamera::errorOccurred, this, [this](QCamera::Error, const QString& motivo) {
            Q_EMIT Fallo(u"La cámara no funciona.\n"_s + motivo);
        });
        sesion_.setCamera(camara_.get());
        camara_->start();
    }

    void Capturar() override
    {
        const QImage imagen = ultimo_.toImage();
        if (imagen.isNull()) {
            Q_EMIT Fallo(u"La cámara todavía no ha dado ninguna imagen."_s);
            return;
        }
        Detener();
        Q_EMIT Capturada(imagen);
    }

    void Detener() override
    {
        if (camara_)
            camara_->stop();
        sesion_.setCamera(nullptr);
        camara_.reset();
        ultimo_ = {};
        desdeLaUltima_.invalidate();
    }

private:
    void Mirar(const QVideoFrame& fotograma)
    {
        if (!camara_ || !fotograma.isValid())
            return;
        ultimo_ = fotograma;
        if (desdeLaUltima_.isValid() && desdeLaUltima_.elapsed() < kEntreVistas)
            return;
        desdeLaUltima_.start();
        if (const QImage imagen = fotograma.toImage(); !imagen.isNull())
            Q_EMIT Vista(imagen);
    }

    QMediaCaptureSession sesion_;
    QVideoSink sumidero_;
    QList<QCameraDevice> aparatos_;
    std::unique_ptr<QCamera> camara_;
    QVideoFrame ultimo_;
    QElapsedTimer desdeLaUltima_;
};

} // namespace

std::unique_ptr<FuenteCaptura> CrearFuenteCamara()
{
    return std::make_unique<FuenteCamara>();
}

} // namespace valmerix
