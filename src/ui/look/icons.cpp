#include "ui/look/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// Draws an SVG whose strokes and fills say "currentColor" in the colour that its place asks for.
class MotorSvg : public QIconEngine
{
public:
    MotorSvg(QByteArray dibujo, const QColor& color)
        : dibujo_(std::move(dibujo))
        , color_(color)
    {
    }

    void paint(QPainter* pintor, const QRect& sitio, QIcon::Mode modo, QIcon::State /*estado*/) override
    {
        QByteArray coloreado = dibujo_;
        coloreado.replace("currentColor", ColorDe(modo).name().toLatin1());
        const int lado = std::min(sitio.width(), sitio.height());
        QRect cuadro(0, 0, lado, lado);
        cuadro.moveCenter(sitio.center());
        QSvgRenderer(coloreado).render(pintor, cuadro);
    }

    QPixmap pixmap(const QSize& tamaño, QIcon::Mode modo, QIcon::State estado) override
    {
        QPixmap lienzo(tamaño);
        lienzo.fill(Qt::transparent);
        QPainter pintor(&lienzo);
        paint(&pintor, QRect({}, tamaño), modo, estado);
        return lienzo;
    }

    QIconEngine* clone() const override { return new MotorSvg(*this); }

private:
    QColor ColorDe(QIcon::Mode modo) const
    {
        const QPalette paleta = QGuiApplication::palette();
        if (modo == QIcon::Disabled)
            return paleta.color(QPalette::Disabled, QPalette::ButtonText);
        if (color_.isValid())
            return color_;
        return paleta.color(QPalette::Active,
                            modo == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
    }

    QByteArray dibujo_;
    QColor color_;
};

} // namespace

QIcon Icono(const QString& nombre, const QColor& color)
{
    QFile fichero(u":/valmerix/icons/"_s + nombre + u".svg"_s);
    if (!fichero.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new MotorSvg(fichero.readAll(), color));
}

} // namespace valmerix
