#include "ui/look/style_painting.h"

#include "ui/look/theme.h"

#include <algorithm>

namespace valmerix::pintura {

namespace {

constexpr int kLineaSolapa = 3;
constexpr qreal kEntornoAsidero = 4; // pixels around the handle of a scroll bar

class Pincel
{
public:
    explicit Pincel(QPainter& pintor)
        : pintor_(pintor)
    {
        pintor_.save();
        pintor_.setRenderHint(QPainter::Antialiasing);
    }
    Pincel(const Pincel&) = delete;
    Pincel& operator=(const Pincel&) = delete;
    ~Pincel() { pintor_.restore(); }

private:
    QPainter& pintor_;
};

QRectF AlPixel(const QRect& r)
{
    return QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
}

bool Con(const QStyleOption& o, QStyle::StateFlag estado)
{
    return o.state.testFlag(estado);
}

QColor Vivo(const QStyleOption& o, QPalette::ColorRole rol)
{
    return o.palette.color(QPalette::Active, rol);
}

QColor LineaDeCampo(const QStyleOption& o)
{
    if (Con(o, QStyle::State_Enabled) && Con(o, QStyle::State_HasFocus))
        return Vivo(o, QPalette::Link);
    return Con(o, QStyle::State_Enabled) ? Vivo(o, QPalette::Mid) : ColorLinea(o.palette);
}

QColor FondoDeBoton(const QStyleOption& o, bool principal)
{
    const QColor fondo = o.palette.color(principal ? QPalette::Highlight : QPalette::Button);
    if (!Con(o, QStyle::State_Enabled))
        return Vivo(o, QPalette::Midlight);
    if (Con(o, QStyle::State_Sunken) || Con(o, QStyle::State_On))
        return fondo.darker(115);
    return Con(o, QStyle::State_MouseOver) ? fondo.lighter(107) : fondo;
}

struct ColoresDeMarca
{
    QColor linea;
    QColor fondo;
    QColor marca;
};

ColoresDeMarca MarcaDe(const QStyleOption& o, bool puesta)
{
    if (!Con(o, QStyle::State_Enabled))
        return {ColorLinea(o.palette), Vivo(o, QPalette::Window),
                o.palette.color(QPalette::Disabled, QPalette::Text)};
    const QColor acento = Vivo(o, QPalette::Highlight);
    if (puesta)
        return {acento, acento, Vivo(o, QPalette::HighlightedText)};
    const bool viva = Con(o, QStyle::State_HasFocus) || Con(o, QStyle::State_MouseOver);
    return {viva ? Vivo(o, QPalette::Link) : ColorSecundario(o.palette), Vivo(o, QPalette::Base), acento};
}

} // namespace

void Campo(const QStyleOption& o, QPainter& p)
{
    const Pincel pincel(p);
    p.setPen(QPen(LineaDeCampo(o), 1));
    // What cannot be edited lies flat in the window's colour.
    p.setBrush(o.palette.color(Con(o, QStyle::State_ReadOnly) ? QPalette::Window : QPalette::Base));
    p.drawRoundedRect(AlPixel(o.rect), medida::kRadio - 1, medida::kRadio - 1);
}

void Marco(const QStyleOption& o, QPainter& p)
{
    const Pincel pincel(p);
    p.setPen(QPen(LineaDeCampo(o), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(AlPixel(o.rect));
}

void Boton(const QStyleOption& o, QPainter& p)
{
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(&o);
    const bool principal = boton && boton->features.testFlag(QStyleOptionButton::DefaultButton);
    const Pincel pincel(p);
    p.setPen(QPen(principal && Con(o, QStyle::State_Enabled) ? FondoDeBoton(o, true) : LineaDeCampo(o), 1));
    p.setBrush(FondoDeBoton(o, principal));
    p.drawRoundedRect(AlPixel(o.rect), medida::kRadio, medida::kRadio);
    if (!principal || !Con(o, QStyle::State_HasFocus))
        return;
    // On the accent colour a line of the same colour would not be seen.
    p.setPen(QPen(Vivo(o, QPalette::HighlightedText), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(AlPixel(o.rect).adjusted(2, 2, -2, -2), medida::kRadio - 2, medida::kRadio - 2);
}

void Casilla(const QStyleOption& o, QPainter& p)
{
    const bool puesta = Con(o, QStyle::State_On);
    const ColoresDeMarca colores = MarcaDe(o, puesta);
    const Pincel pincel(p);
    p.setPen(QPen(colores.linea, 1));
    p.setBrush(colores.fondo);
    const QRectF r = AlPixel(o.rect);
    p.drawRoundedRect(r, 3, 3);
    if (!puesta)
        return;
    p.setPen(QPen(colores.marca, r.width() / 7.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    const auto punto = [&](qreal x, qreal y) {
        return QPointF(r.x() + x * r.width(), r.y() + y * r.height());
    };
    p.drawPolyline(QPolygonF{punto(0.24, 0.52), punto(0.43, 0.71), punto(0.77, 0.32)});
}

void Redonda(const QStyleOption& o, QPainter& p)
{
    const bool puesta = Con(o, QStyle::State_On);
    const ColoresDeMarca colores = MarcaDe(o, puesta);
    const Pincel pincel(p);
    p.setPen(QPen(colores.linea, 1));
    p.setBrush(colores.fondo);
    const QRectF r = AlPixel(o.rect);
    p.drawEllipse(r);
    if (!puesta)
        return;
    p.setPen(Qt::NoPen);
    p.setBrush(colores.marca);
    p.drawEllipse(r.center(), r.width() / 4.6, r.height() / 4.6);
}

void Foco(const QStyleOption& o, QPainter& p)
{
    const Pincel pincel(p);
    p.setPen(QPen(Vivo(o, QPalette::Link), 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(AlPixel(o.rect), 3, 3);
}

void Desplegable(const QStyleOptionComboBox& o, QPainter& p, const QRect& flecha)
{
    Campo(o, p);
    const Pincel pincel(p);
    const QPointF c = QRectF(flecha).center();
    p.setPen(QPen(o.palette.color(QPalette::ButtonText), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(QPolygonF{c + QPointF(-3.5, -1.5), c + QPointF(0, 2), c + QPointF(3.5, -1.5)});
}

void CabeceraTabla(const QStyleOption& o, QPainter& p)
{
    p.fillRect(o.rect, Vivo(o, QPalette::Midlight));
    p.setPen(ColorLinea(o.palette));
    p.drawLine(o.rect.bottomLeft(), o.rect.bottomRight());
}

void Solapa(const QStyleOptionTab& o, QPainter& p)
{
    const bool elegida = Con(o, QStyle::State_Selected);
    if (Con(o, QStyle::State_MouseOver) && !elegida)
        p.fillRect(o.rect.adjusted(0, 0, 0, -1), Vivo(o, QPalette::Midlight));
    if (!elegida)
        return;
    const QRect linea(o.rect.left(), o.rect.bottom() - kLineaSolapa + 1, o.rect.width(), kLineaSolapa);
    p.fillRect(linea, Vivo(o, QPalette::Link));
}

void BarraDesplazamiento(const QStyleOptionComplex& o, QPainter& p, const QRect& asidero)
{
    p.fillRect(o.rect, Vivo(o, QPalette::Window));
    if (!Con(o, QStyle::State_Enabled) || asidero.isEmpty())
        return;
    const bool viva = Con(o, QStyle::State_Sunken) ||
                      (Con(o, QStyle::State_MouseOver) && o.activeSubControls == QStyle::SC_ScrollBarSlider);
    const Pincel pincel(p);
    p.setPen(Qt::NoPen);
    p.setBrush(Vivo(o, viva ? QPalette::Link : QPalette::PlaceholderText));
    const QRectF r =
        QRectF(asidero).adjusted(kEntornoAsidero, kEntornoAsidero, -kEntornoAsidero, -kEntornoAsidero);
    const qreal radio = std::min(r.width(), r.height()) / 2;
    p.drawRoundedRect(r, radio, radio);
}

void BaseSolapas(const QStyleOption& o, QPainter& p)
{
    p.setPen(ColorLinea(o.palette));
    p.drawLine(o.rect.bottomLeft(), o.rect.bottomRight());
}

} // namespace valmerix::pintura
