#pragma once

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {

/// Left half blue, right half red.
inline QImage Mitades(QSize tamaño)
{
    QImage imagen(tamaño, QImage::Format_RGB32);
    imagen.fill(Qt::red);
    QPainter(&imagen).fillRect(0, 0, tamaño.width() / 2, tamaño.height(), Qt::blue);
    return imagen;
}

/// A JPEG file with the note "turn a quarter to the right", as cameras held upright write it.
inline QByteArray ConGiro(const QByteArray& jpeg)
{
    const QByteArray tiff("II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 26);
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tiff;
    const auto largo = static_cast<char>(exif.size() + 2);
    return jpeg.left(2) + QByteArray("\xFF\xE1\0", 3) + largo + exif + jpeg.mid(2);
}

/// A folder of picture files, gone with the object.
class CarpetaDeImagenes
{
public:
    QString ruta(const QString& nombre) const { return carpeta_.filePath(nombre); }

    QString Guardar(const QString& nombre, const QImage& imagen, const char* formato) const
    {
        EXPECT_TRUE(imagen.save(ruta(nombre), formato));
        return ruta(nombre);
    }
    QString Escribir(const QString& nombre, const QByteArray& datos) const
    {
        QFile fichero(ruta(nombre));
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(datos);
        return fichero.fileName();
    }
    static QByteArray Leer(const QString& fichero)
    {
        QFile abierto(fichero);
        EXPECT_TRUE(abierto.open(QIODevice::ReadOnly));
        return abierto.readAll();
    }

private:
    QTemporaryDir carpeta_;
};

} // namespace valmerix
