#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <vector>

namespace valmerix {

struct Escaner
{
    QByteArray nombre; ///< as the scanner library calls it
    QString titulo;    ///< as she knows it
};

/// What a scanner refuses or cannot do; `what()` is a Spanish sentence for her.
class ErrorEscaner : public std::runtime_error
{
public:
    explicit ErrorEscaner(const QString& texto)
        : std::runtime_error(texto.toStdString())
    {
    }
};

/// How a scan is followed and stopped from outside.
struct SeguimientoEscaneo
{
    std::function<void(double)> avance; ///< 0 to 1, below 0 when it cannot be told
    const std::atomic<bool>& cancelado; ///< may be set from any thread
};

/// The scanner library, for as long as this lives. Its calls wait for the machine: never on the window's
/// thread. The library is one for the process; another session waits until this one has ended.
class SesionSane
{
public:
    /// Throws ErrorEscaner.
    SesionSane();
    ~SesionSane();
    SesionSane(const SesionSane&) = delete;
    SesionSane& operator=(const SesionSane&) = delete;

    /// The scanners that answer. Throws ErrorEscaner.
    std::vector<Escaner> Buscar();
    /// The whole glass of that scanner, in colour when it has colour. Nothing when it has been cancelled.
    /// Throws ErrorEscaner.
    std::optional<QImage> Digitalizar(const QByteArray& nombre, const SeguimientoEscaneo& seguimiento);

private:
    std::unique_lock<std::mutex> turno_;
};

} // namespace valmerix
