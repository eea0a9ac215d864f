#include "ui/pictures/scan_frames.h"

#include <QSysInfo>
#include <algorithm>

namespace valmerix {

namespace {

constexpr int kCanales = 3;

int CanalesDe(const CuadroEscaneado& cuadro)
{
    return cuadro.medidas.format == SANE_FRAME_RGB ? kCanales : 1;
}

// One sample as a byte. Of a single bit, 1 is black in a grey frame and full light in a coloured one.
uchar Muestra(const CuadroEscaneado& cuadro, const uchar* linea, int indice)
{
    switch (cuadro.medidas.depth) {
    case 1: {
        const bool puesto = ((linea[indice / 8] >> (7 - indice % 8)) & 1) != 0;
        return puesto == (cuadro.medidas.format == SANE_FRAME_GRAY) ? 0 : 255;
    }
    case 16:
        return linea[2 * indice + (QSysInfo::ByteOrder == QSysInfo::LittleEndian ? 1 : 0)];
    default:
        return linea[indice];
    }
}

// Bits of three colours stand in three lines of bits, one after the other by bytes.
uchar MuestraDeColor(const CuadroEscaneado& cuadro, const uchar* linea, int x, int canal)
{
    if (cuadro.medidas.depth != 1)
        return Muestra(cuadro, linea, x * kCanales + canal);
    return Muestra(cuadro, linea, (x / 8 * kCanales + canal) * 8 + x % 8);
}

const uchar* Linea(const CuadroEscaneado& cuadro, int y)
{
    return reinterpret_cast<const uchar*>(cuadro.datos.constData()) +
           qsizetype{y} * cuadro.medidas.bytes_per_line;
}

bool EsValido(const CuadroEscaneado& cuadro)
{
    const SANE_Parameters& m = cuadro.medidas;
    // Lines of one bit hold whole bytes of each channel in turn.
    const qint64 porCanal =
        m.depth == 1 ? (qint64{m.pixels_per_line} + 7) / 8 * 8 : qint64{m.pixels_per_line} * m.depth;
    const qint64 bits = porCanal * CanalesDe(cuadro);
    return m.pixels_per_line > 0 && (m.depth == 1 || m.depth == 8 || m.depth == 16) &&
           qint64{m.bytes_per_line} * 8 >= bits && cuadro.lineas() > 0;
}

const CuadroEscaneado* Buscar(const std::vector<CuadroEscaneado>& cuadros, SANE_Frame formato)
{
    const auto hallado = std::find_if(cuadros.begin(), cuadros.end(), [formato](const CuadroEscaneado& c) {
        return c.medidas.format == formato && EsValido(c);
    });
    return hallado == cuadros.end() ? nullptr : &*hallado;
}

QImage EnGris(const CuadroEscaneado& cuadro)
{
    QImage imagen(cuadro.medidas.pixels_per_line, cuadro.lineas(), QImage::Format_Grayscale8);
    for (int y = 0; y < imagen.height(); ++y) {
        uchar* destino = imagen.scanLine(y);
        for (int x = 0; x < imagen.width(); ++x)
            destino[x] = Muestra(cuadro, Linea(cuadro, y), x);
    }
    return imagen;
}

QImage EnColor(const CuadroEscaneado& cuadro)
{
    QImage imagen(cuadro.medidas.pixels_per_line, cuadro.lineas(), QImage::Format_RGB888);
    for (int y = 0; y < imagen.height(); ++y) {
        uchar* destino = imagen.scanLine(y);
        for (int x = 0; x < imagen.width(); ++x) {
            for (int canal = 0; canal < kCanales; ++canal)
                destino[x * kCanales + canal] = MuestraDeColor(cuadro, Linea(cuadro, y), x, canal);
        }
    }
    return imagen;
}

QImage EnTresPasadas(const CuadroEscaneado& rojo, const CuadroEscaneado& verde, const CuadroEscaneado& azul)
{
    const CuadroEscaneado* planos[kCanales] = {&rojo, &verde, &azul};
    int ancho = rojo.medidas.pixels_per_line;
    int alto = rojo.lineas();
    for (const CuadroEscaneado* plano : planos) {
        ancho = std::min(ancho, static_cast<int>(plano->medidas.pixels_per_line));
        alto = std::min(alto, plano->lineas());
    }
    QImage imagen(ancho, alto, QImage::Format_RGB888);
    for (int y = 0; y < imagen.height(); ++y) {
        uchar* destino = imagen.scanLine(y);
        for (int canal = 0; canal < kCanales; ++canal) {
            for (int x = 0; x < imagen.width(); ++x)
                destino[x * kCanales + canal] = Muestra(*planos[canal], Linea(*planos[canal], y), x);
        }
    }
    return imagen;
}

} // namespace

int CuadroEscaneado::lineas() const
{
    return medidas.bytes_per_line > 0 ? static_cast<int>(datos.size() / medidas.bytes_per_line) : 0;
}

QImage ImagenDeCuadros(const std::vector<CuadroEscaneado>& cuadros)
{
    if (const CuadroEscaneado* color = Buscar(cuadros, SANE_FRAME_RGB))
        return EnColor(*color);
    if (const CuadroEscaneado* gris = Buscar(cuadros, SANE_FRAME_GRAY))
        return EnGris(*gris);
    const CuadroEscaneado* rojo = Buscar(cuadros, SANE_FRAME_RED);
    const CuadroEscaneado* verde = Buscar(cuadros, SANE_FRAME_GREEN);
    const CuadroEscaneado* azul = Buscar(cuadros, SANE_FRAME_BLUE);
    return rojo && verde && azul ? EnTresPasadas(*rojo, *verde, *azul) : QImage();
}

} // namespace valmerix
