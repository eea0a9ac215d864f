#pragma once

#include <QString>
#include <stdexcept>

namespace valmerix {

/// A file of the report could not be written or read. The message is Spanish, in UTF-8.
class ErrorInforme : public std::runtime_error
{
public:
    explicit ErrorInforme(const QString& mensaje)
        : std::runtime_error(mensaje.toStdString())
        , mensaje_(mensaje)
    {
    }
    const QString& mensaje() const { return mensaje_; }

private:
    QString mensaje_;
};

} // namespace valmerix
