#pragma once

#include <QColor>
#include <QString>

namespace valmerix {

/// What marks a kind on screen: its picture and its two colours.
struct MarcaTipo
{
    QStringView ventana; ///< name of the case window
    QStringView icono;
    QRgb color1;
    QRgb color2;
};

inline constexpr MarcaTipo kMarcas[] = {
    {u"Piso", u"piso", 0xFFE60000, 0xFFE60000}, {u"Apto", u"apto", 0xFFFF0082, 0xFF00FFE6},
    {u"Casa", u"casa", 0xFF3838A8, 0xFF990000}, {u"Trno", u"trno", 0xFFB3B3B3, 0xFF000000},
    {u"Nave", u"nave", 0xFFF5CD6E, 0xFFB46400}, {u"Loca", u"loca", 0xFFC8FF00, 0xFFC8FF00},
};

/// Null for a window that is none of a kind.
constexpr const MarcaTipo* MarcaDe(QStringView ventana)
{
    for (const MarcaTipo& marca : kMarcas) {
        if (marca.ventana == ventana)
            return &marca;
    }
    return nullptr;
}

} // namespace valmerix
