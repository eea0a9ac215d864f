#include "ui/look/style.h"

#include "ui/look/icons.h"
#include "ui/look/style_painting.h"

#include <QStyleOptionSlider>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCasilla = 16;
constexpr int kMargenBoton = 12;
constexpr int kAireBoton = 12; // at least, at either side of a button's text
constexpr int kMargenCelda = 4;
constexpr int kMargenCabecera = kMargenCelda + 1; // headings stand over the texts of their cells
constexpr int kAsideroMenor = 28;
constexpr int kMargenCampo = 3; // more than Fusion leaves beside a field's text
constexpr int kAltoSolapa = 34;
constexpr int kAnchoSolapa = 10; // more than Fusion leaves beside a tab's text

bool EsPlano(const QStyleOption& o)
{
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(&o);
    return boton && boton->features.testFlag(QStyleOptionButton::Flat) &&
           !o.state.testAnyFlags(QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_On);
}

int Largo(const QStyleOptionSlider& barra)
{
    return barra.orientation == Qt::Horizontal ? barra.rect.width() : barra.rect.height();
}

struct Tramo
{
    int desde = 0;
    int largo = 0;
};

Tramo Asidero(const QStyleOptionSlider& barra)
{
    const int todo = Largo(barra);
    const qint64 recorrido = qint64(barra.maximum) - barra.minimum;
    if (recorrido <= 0)
        return {0, 0}; // nothing to go through, nothing to hold
    const auto justo = static_cast<int>(qint64(todo) * barra.pageStep / (recorrido + barra.pageStep));
    const int largo = std::min(std::max(justo, kAsideroMenor), todo);
    return {QStyle::sliderPositionFromValue(barra.minimum, barra.maximum, barra.sliderPosition, todo - largo,
                                            barra.upsideDown),
            largo};
}

QRect EnBarra(const QStyleOptionSlider& barra, const Tramo& tramo)
{
    const QRect& r = barra.rect;
    const int largo = std::min(tramo.largo, Largo(barra) - tramo.desde);
    if (barra.orientation == Qt::Vertical)
        return {r.x(), r.y() + tramo.desde, r.width(), largo};
    return QStyle::visualRect(barra.direction, r, {r.x() + tramo.desde, r.y(), largo, r.height()});
}

struct IconoDeCaja
{
    QStyle::StandardPixmap cual;
    QStringView icono;
    QRgb color;
};

constexpr IconoDeCaja kIconosDeCaja[] = {
    {QStyle::SP_MessageBoxInformation, u"informacion", 0xFF2F7BCB},
    {QStyle::SP_MessageBoxQuestion, u"ayuda", 0xFF2F7BCB},
    {QStyle::SP_MessageBoxWarning, u"aviso", 0xFFC98A00},
    {QStyle::SP_MessageBoxCritical, u"critico", 0xFFD0342C},
};

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
            return pintura::Campo(*opcion, *pintor);
        break;
    case PE_FrameLineEdit:
        return pintura::Campo(*opcion, *pintor);
    case PE_Frame:
        return pintura::Marco(*opcion, *pintor);
    case PE_PanelButtonCommand:
        return EsPlano(*opcion) ? void() : pintura::Boton(*opcion, *pintor);
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return pintura::Casilla(*opcion, *pintor);
    case PE_IndicatorRadioButton:
        return pintura::Redonda(*opcion, *pintor);
    case PE_FrameFocusRect:
        return pintura::Foco(*opcion, *pintor);
    case PE_FrameTabBarBase:
        return pintura::BaseSolapas(*opcion, *pintor);
    default:
        break;
    }
    QProxyStyle::drawPrimitive(elemento, opcion, pintor, widget);
}

void EstiloValmerix::drawControl(ControlElement elemento, const QStyleOption* opcion, QPainter* pintor,
                                 const QWidget* widget) const
{
    if (elemento == CE_HeaderSection)
        return pintura::CabeceraTabla(*opcion, *pintor);
    if (elemento == CE_TabBarTabShape) {
        if (const auto* solapa = qstyleoption_cast<const QStyleOptionTab*>(opcion))
            return pintura::Solapa(*solapa, *pintor);
    }
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(opcion);
    if (elemento == CE_PushButtonLabel && boton &&
        boton->features.testFlag(QStyleOptionButton::DefaultButton)) {
        QStyleOptionButton principal(*boton);
        for (const auto grupo : {QPalette::Active, QPalette::Inactive}) {
            principal.palette.setColor(grupo, QPalette::ButtonText,
                                       boton->palette.color(grupo, QPalette::HighlightedText));
        }
        return QProxyStyle::drawControl(elemento, &principal, pintor, widget);
    }
    QProxyStyle::drawControl(elemento, opcion, pintor, widget);
}

void EstiloValmerix::drawComplexControl(ComplexControl control, const QStyleOptionComplex* opcion,
                                        QPainter* pintor, const QWidget* widget) const
{
    const auto* lista = qstyleoption_cast<const QStyleOptionComboBox*>(opcion);
    if (control == CC_ComboBox && lista && lista->frame) {
        const QRect flecha = subControlRect(CC_ComboBox, opcion, SC_ComboBoxArrow, widget);
        return pintura::Desplegable(*lista, *pintor, flecha);
    }
    const auto* orden = qstyleoption_cast<const QStyleOptionToolButton*>(opcion);
    if (control == CC_ToolButton && orden && orden->features.testFlag(QStyleOptionToolButton::HasMenu)) {
        QStyleOptionToolButton sinFlecha(*orden); // it would stand upon the last letter
        sinFlecha.features.setFlag(QStyleOptionToolButton::HasMenu, false);
        return QProxyStyle::drawComplexControl(control, &sinFlecha, pintor, widget);
    }
    if (control == CC_ScrollBar) {
        const QRect asidero = subControlRect(CC_ScrollBar, opcion, SC_ScrollBarSlider, widget);
        return pintura::BarraDesplazamiento(*opcion, *pintor, asidero);
    }
    QProxyStyle::drawComplexControl(control, opcion, pintor, widget);
}

// No arrows at the ends: all of its length is for the handle.
QRect EstiloValmerix::subControlRect(ComplexControl control, const QStyleOptionComplex* opcion,
                                     SubControl parte, const QWidget* widget) const
{
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(opcion);
    if (control != CC_ScrollBar || !barra)
        return QProxyStyle::subControlRect(control, opcion, parte, widget);
    const Tramo asidero = Asidero(*barra);
    switch (parte) {
    case SC_ScrollBarSlider:
        return EnBarra(*barra, asidero);
    case SC_ScrollBarSubPage:
        return EnBarra(*barra, {0, asidero.desde});
    case SC_ScrollBarAddPage:
        return EnBarra(*barra, {asidero.desde + asidero.largo, Largo(*barra)});
    case SC_ScrollBarGroove:
        return barra->rect;
    default:
        return {};
    }
}

QRect EstiloValmerix::subElementRect(SubElement elemento, const QStyleOption* opcion,
                                     const QWidget* widget) const
{
    const QRect propio = QProxyStyle::subElementRect(elemento, opcion, widget);
    if (elemento != SE_LineEditContents)
        return propio;
    return propio.adjusted(kMargenCampo, 0, -kMargenCampo, 0);
}

QSize EstiloValmerix::sizeFromContents(ContentsType tipo, const QStyleOption* opcion, const QSize& contenido,
                                       const QWidget* widget) const
{
    QSize propio = QProxyStyle::sizeFromContents(tipo, opcion, contenido, widget);
    if (tipo == CT_TabBarTab)
        propio = QSize(propio.width() + kAnchoSolapa, std::max(propio.height(), kAltoSolapa));
    if (tipo == CT_PushButton && !contenido.isEmpty())
        propio.setWidth(std::max(propio.width(), contenido.width() + 2 * kAireBoton));
    return propio;
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
    case PM_FocusFrameHMargin:
        return kMargenCelda;
    case PM_HeaderMargin:
        return kMargenCabecera;
    case PM_TabBarTabOverlap:
    case PM_TabBarTabShiftVertical:
        return 0;
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

QIcon EstiloValmerix::standardIcon(StandardPixmap cual, const QStyleOption* opcion,
                                   const QWidget* widget) const
{
    for (const IconoDeCaja& caja : kIconosDeCaja) {
        if (caja.cual == cual)
            return Icono(caja.icono.toString(), QColor::fromRgb(caja.color));
    }
    return QProxyStyle::standardIcon(cual, opcion, widget);
}

} // namespace valmerix
