#include "ui/look/theme.h"

#include "ui/look/style.h"

#include <QFont>
#include <QIcon>
#include <algorithm>
#include <cmath>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct ColorDeRol
{
    QPalette::ColorRole rol;
    QRgb claro;
    QRgb oscuro;
};

constexpr ColorDeRol kColores[] = {
    {QPalette::Window, 0xFFF1F3F6, 0xFF1E2126},
    {QPalette::WindowText, 0xFF1C2733, 0xFFE3E7EC},
    {QPalette::Base, 0xFFFFFFFF, 0xFF15181C},
    {QPalette::AlternateBase, 0xFFF6F8FA, 0xFF1A1D22},
    {QPalette::Text, 0xFF1C2733, 0xFFE3E7EC},
    {QPalette::Button, 0xFFE6EAEF, 0xFF343A42},
    {QPalette::ButtonText, 0xFF1C2733, 0xFFE3E7EC},
    {QPalette::BrightText, 0xFFB42318, 0xFFFF8A80},
    {QPalette::Light, 0xFFFFFFFF, 0xFF3B424B},
    {QPalette::Midlight, 0xFFE9EDF1, 0xFF30363D},
    {QPalette::Mid, 0xFFC3CAD3, 0xFF4A525C},
    {QPalette::Dark, 0xFF8793A1, 0xFF0F1114},
    {QPalette::Shadow, 0xFF5B6775, 0xFF000000},
    {QPalette::Highlight, 0xFF1F5FA8, 0xFF306CB0},
    {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF1F5FA8, 0xFF7FB2E5},
    {QPalette::LinkVisited, 0xFF5B4A9E, 0xFFB0A3E6},
    {QPalette::ToolTipBase, 0xFF26313D, 0xFF3B424B},
    {QPalette::ToolTipText, 0xFFFFFFFF, 0xFFF0F2F5},
    {QPalette::PlaceholderText, 0xFF636F7C, 0xFF8792A0},
};

constexpr QRgb kApagadoClaro = 0xFF7B8693;
constexpr QRgb kApagadoOscuro = 0xFF78818C;
constexpr qreal kParteSecundaria = 0.32; // of the surface in a secondary text: it still reads with ease
constexpr int kLuzMedia = 128;
constexpr qreal kLetra = 10; // points

QPalette PaletaDelTema(Tema tema)
{
    const bool oscuro = tema == Tema::Oscuro;
    QPalette paleta;
    for (const ColorDeRol& c : kColores)
        paleta.setColor(c.rol, QColor::fromRgb(oscuro ? c.oscuro : c.claro));
    const QColor apagado = QColor::fromRgb(oscuro ? kApagadoOscuro : kApagadoClaro);
    for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paleta.setColor(QPalette::Disabled, rol, apagado);
    paleta.setColor(QPalette::Disabled, QPalette::Base, paleta.color(QPalette::Window));
    paleta.setColor(QPalette::Disabled, QPalette::Highlight, paleta.color(QPalette::Mid));
    return paleta;
}

QColor Mezclar(const QColor& a, const QColor& b, qreal parteDeB)
{
    const auto mezcla = [&](int x, int y) { return qRound(x * (1 - parteDeB) + y * parteDeB); };
    return {mezcla(a.red(), b.red()), mezcla(a.green(), b.green()), mezcla(a.blue(), b.blue())};
}

// Relative luminance of sRGB, 0 to 1.
qreal Luminancia(const QColor& color)
{
    const auto lineal = [](qreal v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
}

constexpr qreal kDestello = 0.05; // light that every screen throws back

} // namespace

bool EsOscura(const QPalette& paleta)
{
    return paleta.color(QPalette::Window).lightness() < kLuzMedia;
}

Tema TemaDelSistema()
{
    return EsOscura(QGuiApplication::palette()) ? Tema::Oscuro : Tema::Claro;
}

void AplicarTema(QApplication& aplicacion, Tema tema)
{
    QApplication::setStyle(new EstiloValmerix);
    QApplication::setPalette(PaletaDelTema(tema));
    QFont letra = QApplication::font();
    letra.setPointSizeF(kLetra);
    QApplication::setFont(letra);
    aplicacion.setWindowIcon(QIcon(u":/valmerix/icons/valmerix.svg"_s));
}

QPalette PaletaDe(Aspecto aspecto, const QPalette& comun)
{
    QPalette paleta;
    const QColor superficie = comun.color(QPalette::Active, QPalette::Window);
    if (aspecto == Aspecto::Pendiente) {
        // The same colour for everything: neither looking nor selecting brings the stale figure up.
        for (const auto rol : {QPalette::Base, QPalette::Text, QPalette::Highlight, QPalette::HighlightedText,
                               QPalette::PlaceholderText})
            paleta.setColor(rol, superficie);
    } else if (aspecto == Aspecto::Bloqueado) {
        paleta.setColor(QPalette::Base, superficie);
        paleta.setColor(QPalette::Text, ColorSecundario(comun));
    }
    return paleta;
}

QColor ColorSecundario(const QPalette& paleta)
{
    return Mezclar(paleta.color(QPalette::Active, QPalette::WindowText),
                   paleta.color(QPalette::Active, QPalette::Window), kParteSecundaria);
}

QColor ColorLinea(const QPalette& paleta)
{
    return Mezclar(paleta.color(QPalette::Active, QPalette::Mid),
                   paleta.color(QPalette::Active, QPalette::Window), 0.25);
}

QColor ColorPanel(const QPalette& paleta)
{
    return EsOscura(paleta) ? paleta.color(QPalette::Active, QPalette::Window).lighter(122)
                            : paleta.color(QPalette::Active, QPalette::Base);
}

qreal Contraste(const QColor& a, const QColor& b)
{
    const auto [oscura, clara] = std::minmax({Luminancia(a), Luminancia(b)}); // by value, not by reference
    return (clara + kDestello) / (oscura + kDestello);
}

QColor TextoSobre(const QColor& fondo)
{
    const QColor claro(Qt::white);
    const QColor oscuro(Qt::black);
    return Contraste(claro, fondo) >= Contraste(oscuro, fondo) ? claro : oscuro;
}

} // namespace valmerix
