#include "ui/title_page.h"

#include "ui/look/application.h"
#include "ui/look/theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace valmerix {

namespace {

constexpr int kLetras = 8;
constexpr qreal kAltoLetra = 0.15; // of the page's height
constexpr qreal kAltoLinea = 0.035;
constexpr int kFranjaTipo = 4;

const QColor kFondoArriba(16, 44, 84);
const QColor kFondoAbajo(31, 95, 168);

} // namespace

PaginaTitulo::PaginaTitulo(Ventana& ventana, QWidget* padre)
    : QWidget(padre)
    , ventana_(&ventana)
{
    const auto repintar = [this] {
        fondo_ = {};
        if (ventana_)
            fondo_.load(ventana_->como<Imagen>(u"Image1").Picture());
        update();
    };
    connect(&ventana.control(u"Image1"), &Control::PresentacionCambiada, this, repintar);
    for (int i = 0; i < kLetras; ++i) {
        connect(&ventana.control(Ventana::Indice(u"Label1", i)), &Control::PresentacionCambiada, this,
                [this] { update(); });
    }
    for (const QStringView nombre : {u"Label2", u"Label3"})
        connect(&ventana.control(nombre), &Control::PresentacionCambiada, this, [this] { update(); });
    repintar();
}

void PaginaTitulo::PintarFondo(QPainter& pintor) const
{
    if (fondo_.isNull()) {
        QLinearGradient cielo(rect().topLeft(), rect().bottomLeft());
        cielo.setColorAt(0, kFondoArriba);
        cielo.setColorAt(1, kFondoAbajo);
        pintor.fillRect(rect(), cielo);
        return;
    }
    QRect sitio(QPoint(), fondo_.size().scaled(size(), Qt::KeepAspectRatioByExpanding));
    sitio.moveCenter(rect().center());
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor.drawPixmap(sitio, fondo_);
}

void PaginaTitulo::PintarLetras(QPainter& pintor) const
{
    QFont letra = font();
    letra.setPixelSize(static_cast<int>(height() * kAltoLetra));
    letra.setWeight(QFont::DemiBold);
    pintor.setFont(letra);
    const QFontMetrics medidas = pintor.fontMetrics();
    const int hueco = medidas.height() / 10;
    const auto ancho = [&](int i) {
        return medidas.horizontalAdvance(ventana_->control(Ventana::Indice(u"Label1", i)).Caption()) + hueco;
    };
    int total = -hueco;
    for (int i = 0; i < kLetras; ++i)
        total += ancho(i);
    int x = (width() - total) / 2;
    for (int i = 0; i < kLetras; ++i) {
        const Control& control = ventana_->control(Ventana::Indice(u"Label1", i));
        if (control.Visible())
            pintor.drawText(x, height() / 2, control.Caption());
        x += ancho(i);
    }
}

void PaginaTitulo::PintarLinea(QPainter& pintor, QStringView etiqueta, const QRect& sitio, qreal tamaño) const
{
    const Control& control = ventana_->control(etiqueta);
    if (!control.Visible())
        return;
    QFont letra = font();
    letra.setPixelSize(static_cast<int>(height() * tamaño));
    pintor.setFont(letra);
    pintor.drawText(sitio, Qt::AlignCenter, control.Caption());
}

void PaginaTitulo::paintEvent(QPaintEvent* /*evento*/)
{
    if (!ventana_)
        return;
    QPainter pintor(this);
    PintarFondo(pintor);
    pintor.setPen(Qt::white);
    PintarLetras(pintor);
    const int linea = height() / 12;
    PintarLinea(pintor, u"Label2", QRect(0, height() / 2 + linea / 4, width(), linea), kAltoLinea);
    PintarLinea(pintor, u"Label3", QRect(0, height() - linea, width(), linea), kAltoLinea * 0.62);
}

void PaginaTitulo::mouseReleaseEvent(QMouseEvent* /*evento*/)
{
    if (ventana_)
        Protegido([this] { ventana_->como<Imagen>(u"Image1").Pulsar(); });
}

BotonTipo::BotonTipo(const QColor& uno, const QColor& otro, QWidget* padre)
    : QToolButton(padre)
    , uno_(uno)
    , otro_(otro)
{
}

void BotonTipo::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const bool vivo = isEnabled() && (underMouse() || hasFocus());
    QColor fondo = palette().color(QPalette::Active, QPalette::Window);
    if (vivo)
        fondo = palette().color(isDown() ? QPalette::Mid : QPalette::Midlight);
    pintor.setPen(vivo && hasFocus() ? palette().color(QPalette::Link) : ColorLinea(palette()));
    pintor.setBrush(fondo);
    pintor.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), medida::kRadio, medida::kRadio);
    if (isEnabled() && uno_.isValid()) {
        QLinearGradient mezcla(rect().bottomLeft(), rect().bottomRight());
        mezcla.setColorAt(0, uno_);
        mezcla.setColorAt(1, otro_);
        const int margen = medida::kRadio * 3;
        pintor.fillRect(QRect(margen, height() - kFranjaTipo - 5, width() - 2 * margen, kFranjaTipo), mezcla);
    }
    const QSize lado = iconSize();
    const QRect dibujo(QPoint((width() - lado.width()) / 2, (height() - lado.height()) * 2 / 5 - kFranjaTipo),
                       lado);
    icon().paint(&pintor, dibujo, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QRect letrero(0, dibujo.bottom(), width(), height() - dibujo.bottom() - kFranjaTipo - 5);
    pintor.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    pintor.drawText(letrero, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

} // namespace valmerix
