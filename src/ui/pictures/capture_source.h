#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

namespace valmerix {

/// Where pictures from outside come from: the cameras of the machine, or its scanners. Everything is asked
/// for here and answered by a signal, at once or later; none comes once `Detener` has been called.
class FuenteCaptura : public QObject
{
    Q_OBJECT

public:
    /// Looks for devices; the answer is `Hallados`.
    virtual void Buscar() = 0;
    /// Makes the device of that index (of the last `Hallados`) ready; a camera goes on with `Vista`.
    virtual void Elegir(int aparato) = 0;
    /// Takes the picture; the answer is `Capturada` or `Fallo`.
    virtual void Capturar() = 0;
    /// Lets go of the device, also in the middle of a picture.
    virtual void Detener() = 0;

Q_SIGNALS:
    /// Names of the devices, as she knows them; empty when there is none.
    void Hallados(const QStringList& titulos);
    /// What the device sees now.
    void Vista(const QImage& imagen);
    /// How far the picture has come, 0 to 1; below 0 when that cannot be told.
    void Avance(double fraccion);
    void Capturada(const QImage& imagen);
    /// A sentence for her.
    void Fallo(const QString& texto);
};

} // namespace valmerix
