#include "ui/pictures/capture_window.h"

#include "ui/look/theme.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kLienzo(480, 320);
constexpr int kMargenTexto = 24;
constexpr int kAltoAvance = 8;
constexpr int kFinDeEscala = 1000; // steps of the progress bar

QPushButton* NuevoBoton(const QString& titulo, QWidget* padre)
{
    auto* boton = new QPushButton(titulo, padre);
    boton->setAutoDefault(false);
    return boton;
}

} // namespace

LienzoCaptura::LienzoCaptura(QWidget* padre)
    : QWidget(padre)
{
    setAccessibleName(u"Vista previa"_s);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(kLienzo / 2);
}

QSize LienzoCaptura::sizeHint() const
{
    return kLienzo;
}

void LienzoCaptura::MostrarImagen(const QImage& imagen)
{
    imagen_ = imagen;
    texto_.clear();
    setAccessibleDescription({});
    update();
}

void LienzoCaptura::MostrarTexto(const QString& texto)
{
    imagen_ = {};
    texto_ = texto;
    setAccessibleDescription(texto);
    update();
    if (!isVisible())
        return;
    QAccessibleEvent aviso(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&aviso);
}

void LienzoCaptura::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.setPen(ColorLinea(palette()));
    pintor.setBrush(ColorPanel(palette()));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect dentro = rect().adjusted(1, 1, -1, -1);
    if (!imagen_.isNull()) {
        pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        QRect sitio(QPoint(), imagen_.size().scaled(dentro.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
        sitio.moveCenter(dentro.center());
        pintor.drawImage(sitio, imagen_);
        return;
    }
    pintor.setPen(palette().color(QPalette::WindowText));
    pintor.drawText(dentro.adjusted(kMargenTexto, kMargenTexto, -kMargenTexto, -kMargenTexto),
                    Qt::AlignCenter | Qt::TextWordWrap, texto_);
}

VentanaCaptura::VentanaCaptura(FuenteCaptura& fuente, const TextosCaptura& textos, QWidget* padre)
    : QDialog(padre)
    , fuente_(fuente)
    , textos_(textos)
    , etiqueta_(new QLabel(textos.aparatos.toString(), this))
    , aparatos_(new QComboBox(this))
    , buscar_(NuevoBoton(u"&Buscar de nuevo"_s, this))
    , lienzo_(new LienzoCaptura(this))
    , avance_(new QProgressBar(this))
    , capturar_(NuevoBoton(textos.capturar.toString(), this))
    , aceptar_(NuevoBoton(u"&Aceptar"_s, this))
    , cancelar_(NuevoBoton(u"&Cancelar"_s, this))
{
    setWindowTitle(textos.titulo.toString());
    etiqueta_->setBuddy(aparatos_);
    aparatos_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    avance_->setTextVisible(false);
    avance_->setFixedHeight(kAltoAvance);
    Disponer();
    Conectar();
    Vaciar();
}

void VentanaCaptura::Disponer()
{
    auto* arriba = new QHBoxLayout;
    arriba->setSpacing(medida::kEntreCampos);
    arriba->addWidget(etiqueta_);
    arriba->addWidget(aparatos_, 1);
    arriba->addWidget(buscar_);
    auto* abajo = new QHBoxLayout;
    abajo->setSpacing(medida::kEntreCampos);
    abajo->addWidget(capturar_);
    abajo->addStretch();
    abajo->addWidget(aceptar_);
    abajo->addWidget(cancelar_);
    QSizePolicy sitio = avance_->sizePolicy();
    sitio.setRetainSizeWhenHidden(true);
    avance_->setSizePolicy(sitio);
    avance_->hide();
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->setSpacing(medida::kEntrePaneles);
    todo->addLayout(arriba);
    todo->addWidget(lienzo_, 1);
    todo->addWidget(avance_);
    todo->addLayout(abajo);
}

void VentanaCaptura::Conectar()
{
    connect(&fuente_, &FuenteCaptura::Hallados, this, &VentanaCaptura::MostrarAparatos);
    connect(&fuente_, &FuenteCaptura::Vista, this, &VentanaCaptura::MostrarVista);
    connect(&fuente_, &FuenteCaptura::Avance, this, &VentanaCaptura::MostrarAvance);
    connect(&fuente_, &FuenteCaptura::Capturada, this, &VentanaCaptura::Recibir);
    connect(&fuente_, &FuenteCaptura::Fallo, this, &VentanaCaptura::MostrarFallo);
    connect(aparatos_, &QComboBox::activated, this, &VentanaCaptura::Preparar);
    connect(buscar_, &QPushButton::clicked, this, &VentanaCaptura::Buscar);
    connect(capturar_, &QPushButton::clicked, this, &VentanaCaptura::Capturar);
    connect(aceptar_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelar_, &QPushButton::clicked, this, &QDialog::reject);
}

void VentanaCaptura::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    if (buscado_)
        return;
    buscado_ = true;
    Ocupar(textos_.buscando.toString());
    // The window stands before a search that may take its time.
    QTimer::singleShot(0, this, &VentanaCaptura::Buscar);
}

void VentanaCaptura::Buscar()
{
    Vaciar();
    Ocupar(textos_.buscando.toString());
    buscar_->setEnabled(false);
    fuente_.Buscar();
}

void VentanaCaptura::Vaciar()
{
    aparatos_->clear();
    capturada_ = {};
    capturar_->setText(textos_.capturar.toString());
    aceptar_->setEnabled(false);
    Desocupar();
}

void VentanaCaptura::MostrarAparatos(const QStringList& titulos)
{
    Vaciar();
    aparatos_->addItems(titulos);
    Desocupar();
    if (titulos.isEmpty()) {
        lienzo_->MostrarTexto(textos_.ninguno.toString());
        return;
    }
    Preparar();
    capturar_->setDefault(true);
    capturar_->setFocus();
}

void VentanaCaptura::Preparar()
{
    Desocupar();
    capturada_ = {};
    aceptar_->setEnabled(false);
    capturar_->setEnabled(true);
    capturar_->setText(textos_.capturar.toString());
    lienzo_->MostrarTexto(textos_.preparado.toString());
    fuente_.Elegir(aparatos_->currentIndex());
}

// With a picture taken the button goes back, so that another one can be taken.
void VentanaCaptura::Capturar()
{
    if (!capturada_.isNull()) {
        Preparar();
        return;
    }
    capturar_->setEnabled(false);
    aparatos_->setEnabled(false);
    buscar_->setEnabled(false);
    Ocupar({});
    capturando_ = true;
    fuente_.Capturar();
}

void VentanaCaptura::MostrarVista(const QImage& imagen)
{
    if (capturada_.isNull())
        lienzo_->MostrarImagen(imagen);
}

void VentanaCaptura::MostrarAvance(double fraccion)
{
    if (!capturando_)
        return;
    avance_->setRange(0, fraccion < 0 ? 0 : kFinDeEscala);
    avance_->setValue(qRound(fraccion * kFinDeEscala));
}

void VentanaCaptura::Recibir(const QImage& imagen)
{
    Desocupar();
    capturada_ = imagen;
    lienzo_->MostrarImagen(imagen);
    capturar_->setText(u"&Repetir"_s);
    aceptar_->setEnabled(true);
    aceptar_->setDefault(true);
    aceptar_->setFocus();
}

void VentanaCaptura::MostrarFallo(const QString& texto)
{
    Desocupar();
    lienzo_->MostrarTexto(texto);
    capturar_->setFocus();
}

void VentanaCaptura::Ocupar(const QString& texto)
{
    avance_->setAccessibleName(texto.isEmpty() ? textos_.capturando.toString() : texto);
    avance_->setRange(0, 0);
    avance_->show();
    if (!texto.isEmpty()) {
        lienzo_->MostrarTexto(texto);
    } else if (lienzo_->imagen().isNull()) {
        lienzo_->MostrarTexto(textos_.capturando.toString());
    }
}

void VentanaCaptura::Desocupar()
{
    capturando_ = false;
    avance_->hide();
    aparatos_->setEnabled(aparatos_->count() > 1);
    buscar_->setEnabled(true);
    capturar_->setEnabled(aparatos_->count() > 0);
}

void VentanaCaptura::done(int resultado)
{
    fuente_.Detener();
    QDialog::done(resultado);
}

} // namespace valmerix
