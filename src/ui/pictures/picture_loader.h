#pragma once

#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <optional>

namespace valmerix {

/// Reads pictures off the window's thread, one at a time. Asked for another one before the first is there,
/// only the last counts.
class LectorImagenes : public QObject
{
    Q_OBJECT

public:
    explicit LectorImagenes(QObject* padre = nullptr);

    /// As `LeerImagen`; the answer is `Leida`.
    void Pedir(const QString& ruta, QSize caja);
    /// What has been asked for is not wanted any more.
    void Olvidar();
    bool leyendo() const { return esperada_ || siguiente_; }

Q_SIGNALS:
    /// Null when the file cannot be read.
    void Leida(const QImage& imagen);

private:
    struct Pedido
    {
        QString ruta;
        QSize caja;
    };

    void Empezar(const Pedido& pedido);
    void Terminar();

    QFutureWatcher<QImage> vigia_;
    std::optional<Pedido> siguiente_;
    bool ocupado_ = false;  ///< a decoder is at work
    bool esperada_ = false; ///< and its picture is still wanted
};

/// `LeerImagen` for who must have the picture before going on: the windows go on painting, the pointer is
/// busy after a while, keys and clicks wait.
QImage LeerImagenEsperando(const QString& ruta, QSize caja);

} // namespace valmerix
