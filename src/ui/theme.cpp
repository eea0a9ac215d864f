#include "ui/theme.h"

#include "ui/style.h"

#include <QFont>
#include <QIcon>

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
    {QPalette::Highlight, 0xFF1F5FA8, 0xFF3D7CC2},
    {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF1F5FA8, 0xFF7FB2E5},
    {QPalette::LinkVisited, 0xFF5B4A9E, 0xFFB0A3E6},
    {QPalette::ToolTipBase, 0xFF26313D, 0xFF3B424B},
    {QPalette::ToolTipText, 0xFFFFFFFF, 0xFFF0F2F5},
    {QPalette::PlaceholderText, 0xFF8793A1, 0xFF7C8794},
};

constexpr QRgb kApagadoClaro = 0xFF97A1AD;
constexpr QRgb kApagadoOscuro = 0xFF69727D;
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
                   paleta.color(QPalette::Active, QPalette::Window), 0.38);
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

QColor TextoSobre(const QColor& fondo)
{
    // Weights of the eye's answer to the three colours.
    const qreal luz = 0.299 * fondo.redF() + 0.587 * fondo.greenF() + 0.114 * fondo.blueF();
    return luz > 0.58 ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace valmerix
