#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace valmerix {

/// Passes on what is written to it and remembers the last bytes and how many they were.
class EscritorConCola : public QIODevice
{
    Q_OBJECT

public:
    explicit EscritorConCola(QIODevice& destino);

    bool isSequential() const override { return true; }
    const QByteArray& cola() const { return cola_; }
    qint64 escritos() const { return escritos_; }
    bool integro() const { return integro_; } ///< nothing was refused

protected:
    qint64 readData(char* datos, qint64 cuantos) override;
    qint64 writeData(const char* datos, qint64 cuantos) override;

private:
    QIODevice& destino_;
    QByteArray cola_;
    qint64 escritos_ = 0;
    bool integro_ = true;
};

/// What has to be written behind a PDF that has just passed through `pdf`, so that it names its author, which
/// the library's writer cannot say. Empty when the end of the file is not as expected.
QByteArray AñadidoDePropiedades(const EscritorConCola& pdf, const QString& titulo, const QString& autor);

} // namespace valmerix
