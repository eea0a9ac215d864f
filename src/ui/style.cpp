#include "ui/style.h"

#include "ui/theme.h"

#include <QPainter>
#include <QStyleOption>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCasilla = 16;
constexpr int kMargenBoton = 14;

class Pincel
{
public:
    explicit Pincel(QPainter* pintor)
        : pintor_(pintor)
    {
        pintor_->save();
        pintor_->setRenderHint(QPainter::Antialiasing);
    }
    Pincel(const Pincel&) = delete;
    Pincel& operator=(const Pincel&) = delete;
    ~Pincel() { pintor_->restore(); }

private:
    QPainter* pintor_;
};

QRectF AlPixel(const QRect& r)
{
    return QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
}

bool Con(const QStyleOption* o, QStyle::StateFlag estado)
{
    return o->state.testFlag(estado);
}

QColor LineaDeCampo(const QStyleOption* o)
{
    if (Con(o, QStyle::State_Enabled) && Con(o, QStyle::State_HasFocus))
        return o->palette.color(QPalette::Active, QPalette::Highlight);
    const QColor linea = o->palette.color(QPalette::Active, QPalette::Mid);
    return Con(o, QStyle::State_Enabled) ? linea : ColorLinea(o->palette);
}

void PintarCampo(const QStyleOption* o, QPainter* p)
{
    const Pincel pincel(p);
    p->setPen(QPen(LineaDeCampo(o), 1));
    p->setBrush(o->palette.color(QPalette::Base));
    p->drawRoundedRect(AlPixel(o->rect), medida::kRadio - 1, medida::kRadio - 1);
}

QColor FondoDeBoton(const QStyleOption* o, bool principal)
{
    QColor fondo = o->palette.color(principal ? QPalette::Highlight : QPalette::Button);
    if (!Con(o, QStyle::State_Enabled))
        return o->palette.color(QPalette::Active, QPalette::Midlight);
    if (Con(o, QStyle::State_Sunken) || Con(o, QStyle::State_On))
        return fondo.darker(115);
    return Con(o, QStyle::State_MouseOver) ? fondo.lighter(106) : fondo;
}

void PintarBoton(const QStyleOption* o, QPainter* p)
{
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(o);
    const bool principal = boton && boton->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool plano = boton && boton->features.testFlag(QStyleOptionButton::Flat);
    if (plano && !Con(o, QStyle::State_MouseOver) && !Con(o, QStyle::State_Sunken) &&
        !Con(o, QStyle::State_On))
        return;
    const Pincel pincel(p);
    p->setPen(QPen(principal ? FondoDeBoton(o, true) : LineaDeCampo(o), 1));
    p->setBrush(FondoDeBoton(o, principal));
    p->drawRoundedRect(AlPixel(o->rect), medida::kRadio, medida::kRadio);
}

struct ColoresDeMarca
{
    QColor linea;
    QColor fondo;
    QColor marca;
};

ColoresDeMarca MarcaDe(const QStyleOption* o, bool puesta)
{
    const QPalette& c = o->palette;
    if (!Con(o, QStyle::State_Enabled))
        return {ColorLinea(c), c.color(QPalette::Active, QPalette::Window),
                c.color(QPalette::Disabled, QPalette::Text)};
    const QColor acento = c.color(QPalette::Active, QPalette::Highlight);
    if (puesta)
        return {acento, acento, c.color(QPalette::Active, QPalette::HighlightedText)};
    const bool viva = Con(o, QStyle::State_HasFocus) || Con(o, QStyle::State_MouseOver);
    return {viva ? acento : c.color(QPalette::Active, QPalette::Mid).darker(EsOscura(c) ? 80 : 118),
            c.color(QPalette::Active, QPalette::Base), acento};
}

void PintarCasilla(const QStyleOption* o, QPainter* p)
{
    const bool puesta = Con(o, QStyle::State_On);
    const ColoresDeMarca colores = MarcaDe(o, puesta);
    const Pincel pincel(p);
    p->setPen(QPen(colores.linea, 1));
    p->setBrush(colores.fondo);
    const QRectF r = AlPixel(o->rect);
    p->drawRoundedRect(r, 3, 3);
    if (!puesta)
        return;
    p->setPen(QPen(colores.marca, r.width() / 7.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p->setBrush(Qt::NoBrush);
    const auto punto = [&](qreal x, qreal y) {
        return QPointF(r.x() + x * r.width(), r.y() + y * r.height());
    };
    p->drawPolyline(QPolygonF{punto(0.24, 0.52), punto(0.43, 0.71), punto(0.77, 0.32)});
}

void PintarRedonda(const QStyleOption* o, QPainter* p)
{
    const bool puesta = Con(o, QStyle::State_On);
    const ColoresDeMarca colores = MarcaDe(o, puesta);
    const Pincel pincel(p);
    p->setPen(QPen(colores.linea, 1));
    p->setBrush(colores.fondo);
    const QRectF r = AlPixel(o->rect);
    p->drawEllipse(r);
    if (!puesta)
        return;
    p->setPen(Qt::NoPen);
    p->setBrush(colores.marca);
    p->drawEllipse(r.center(), r.width() / 4.6, r.height() / 4.6);
}

void PintarFoco(const QStyleOption* o, QPainter* p)
{
    const Pincel pincel(p);
    QColor acento = o->palette.color(QPalette::Active, QPalette::Highlight);
    p->setPen(QPen(acento, 1, Qt::DotLine));
    p->setBrush(Qt::NoBrush);
    p->drawRoundedRect(AlPixel(o->rect), 3, 3);
}

} // namespace

EstiloValmerix::EstiloValmerix()
    : QProxyStyle(u"fusion"_s)
{
}

void EstiloValmerix::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                                   const QWidget* widget) const
{
    switch (elemento) {
    case PE_PanelLineEdit:
        if (const auto* marco = qstyleoption_cast<const QStyleOptionFrame*>(opcion);
            marco && marco->lineWidth > 0)
            return PintarCampo(opcion, pintor);
        break;
    case PE_FrameLineEdit:
        return PintarCampo(opcion, pintor);
    case PE_PanelButtonCommand:
        return PintarBoton(opcion, pintor);
    case PE_IndicatorCheckBox:
        return PintarCasilla(opcion, pintor);
    case PE_IndicatorRadioButton:
        return PintarRedonda(opcion, pintor);
    case PE_FrameFocusRect:
        return PintarFoco(opcion, pintor);
    default:
        break;
    }
    QProxyStyle::drawPrimitive(elemento, opcion, pintor, widget);
}

int EstiloValmerix::pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* widget) const
{
    switch (medida) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kCasilla;
    case PM_ButtonMargin:
        return kMargenBoton;
    default:
        return QProxyStyle::pixelMetric(medida, opcion, widget);
    }
}

int EstiloValmerix::styleHint(StyleHint pista, const QStyleOption* opcion, const QWidget* widget,
                              QStyleHintReturn* respuesta) const
{
    switch (pista) {
    case SH_UnderlineShortcut:
        return 1;
    case SH_ComboBox_Popup:
        return 0; // a list under the field, not a menu over it
    default:
        return QProxyStyle::styleHint(pista, opcion, widget, respuesta);
    }
}

} // namespace valmerix
