#include "ui/caption_bar.h"

#include "ui/look/icons.h"
#include "ui/look/theme.h"
#include "ui/window_drag.h"
#include "ui/window_view.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAlto = 42;
constexpr int kFranja = 5;
constexpr int kIcono = 20;
constexpr int kIconoTipo = 26;
constexpr int kMarca = 9;

/// A point beside the caption while there are changes that are stored nowhere.
class MarcaSinGuardar : public QLabel
{
public:
    explicit MarcaSinGuardar(QWidget* padre)
        : QLabel(padre)
    {
        setObjectName(u"marcaSinGuardar"_s);
        setFixedSize(kMarca, kMarca);
        setToolTip(kCambiosSinGuardar.toString());
        setAccessibleName(kCambiosSinGuardar.toString());
    }

protected:
    void paintEvent(QPaintEvent* /*evento*/) override
    {
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(palette().link());
        pintor.drawEllipse(rect());
    }
};

} // namespace

QAbstractButton* CrearBotonIcono(Enlazador& enlazador, QStringView nombre, const QString& icono,
                                 QWidget* padre)
{
    Boton& orden = enlazador.ventana()->boton(nombre);
    auto* boton = new QToolButton(padre);
    boton->setProperty("soloIcono", true);
    boton->setAutoRaise(true);
    boton->setIcon(Icono(icono));
    boton->setIconSize(QSize(kIcono, kIcono));
    boton->setFocusPolicy(Qt::ClickFocus);
    enlazador.AtarBoton(orden, boton);
    if (boton->accessibleName().isEmpty())
        boton->setAccessibleName(orden.ToolTip());
    return boton;
}

CabeceraVentana::CabeceraVentana(Enlazador& enlazador, QStringView etiqueta, QWidget* padre)
    : QWidget(padre)
    , enlazador_(enlazador)
    , fila_(new QHBoxLayout(this))
    , icono_(new QLabel(this))
    , titulo_(new QLabel(this))
{
    setFixedHeight(kAlto);
    titulo_->setTextFormat(Qt::PlainText);
    QFont letra = font();
    letra.setBold(true);
    titulo_->setFont(letra);
    fila_->setContentsMargins(kFranja + medida::kBorde - 4, 0, medida::kEntreLineas, 0);
    fila_->setSpacing(2);
    icono_->hide();
    fila_->addWidget(icono_);
    fila_->addSpacing(medida::kEntreCampos);
    fila_->addWidget(titulo_);
    fila_->addSpacing(medida::kEntreCampos);
    PonerMarca();
    fila_->addStretch();
    enlazador.Atar(enlazador.ventana()->control(etiqueta), titulo_);
    ArrastrarPor(*this);
}

void CabeceraVentana::PonerMarca()
{
    auto* marca = new MarcaSinGuardar(this);
    fila_->addWidget(marca);
    Ventana* ventana = enlazador_.ventana();
    const auto mostrar = [ventana, marca] { marca->setVisible(ventana->modificada()); };
    connect(ventana, &Ventana::PresentacionCambiada, marca, mostrar);
    mostrar();
}

QAbstractButton* CabeceraVentana::PonerBoton(QStringView nombre, const QString& icono)
{
    auto* boton = CrearBotonIcono(enlazador_, nombre, icono, this);
    fila_->addWidget(boton);
    return boton;
}

void CabeceraVentana::PonerHueco()
{
    fila_->addSpacing(medida::kBorde);
}

void CabeceraVentana::PonerColores(const QColor& uno, const QColor& otro)
{
    color1_ = uno;
    color2_ = otro;
    update();
}

void CabeceraVentana::PonerIcono(const QIcon& icono)
{
    icono_->setPixmap(icono.pixmap(QSize(kIconoTipo, kIconoTipo), devicePixelRatioF()));
    icono_->show();
}

void CabeceraVentana::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.fillRect(rect(), ColorPanel(palette()));
    pintor.setPen(ColorLinea(palette()));
    pintor.drawLine(rect().bottomLeft(), rect().bottomRight());
    if (!color1_.isValid())
        return;
    pintor.fillRect(0, 0, kFranja, kAlto / 2, color1_);
    pintor.fillRect(0, kAlto / 2, kFranja, kAlto - kAlto / 2, color2_);
}

void CabeceraVentana::mouseDoubleClickEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::LeftButton)
        Q_EMIT DobleClic();
}

} // namespace valmerix
