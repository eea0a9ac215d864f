#include "ui/printing/preview_bar.h"

#include "ui/look/icons.h"
#include "ui/look/theme.h"
#include "ui/printing/page_view.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kIcono = 20; // logical pixels
constexpr int kAnchoPagina = 44;
constexpr int kPorcentajes[] = {25, 50, 75, 90, 100, 125, 150, 200, 300, 400};

QString Porcentaje(int zoom)
{
    return QString::number(zoom) + u" %"_s;
}

} // namespace

BarraPrevia::BarraPrevia(VistaPaginas& vista, int paginas, QWidget* padre)
    : QWidget(padre)
    , vista_(vista)
    , paginas_(paginas)
    , fila_(new QHBoxLayout(this))
{
    fila_->setContentsMargins(medida::kBorde, medida::kEntreLineas, medida::kBorde, medida::kEntreLineas);
    fila_->setSpacing(3);
    PonerSalidas();
    Separar();
    PonerZoom();
    Separar();
    PonerPaginas();
    fila_->addStretch();
    PonerCierre();
    connect(&vista_, &VistaPaginas::PaginaCambiada, this, &BarraPrevia::MostrarPagina);
    connect(&vista_, &VistaPaginas::ZoomCambiado, this, &BarraPrevia::MostrarZoom);
    MostrarPagina();
    MostrarZoom();
}

QToolButton* BarraPrevia::Boton(const QString& icono, const QString& texto, const QString& ayuda,
                                const QKeySequence& tecla, const std::function<void()>& orden)
{
    auto* boton = new QToolButton(this);
    boton->setObjectName(u"Btt"_s + icono);
    boton->setText(texto);
    boton->setIcon(Icono(icono));
    boton->setIconSize({kIcono, kIcono});
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    boton->setAccessibleName(QString(texto).remove(u'&'));
    boton->setToolTip(tecla.isEmpty() ? ayuda
                                      : ayuda + u" ("_s + tecla.toString(QKeySequence::NativeText) + u')');
    connect(boton, &QToolButton::clicked, this, orden);
    if (!tecla.isEmpty())
        connect(new QShortcut(tecla, window()), &QShortcut::activated, boton, &QToolButton::click);
    fila_->addWidget(boton);
    return boton;
}

void BarraPrevia::Separar()
{
    auto* raya = new QFrame(this);
    raya->setFrameShape(QFrame::VLine);
    raya->setFrameShadow(QFrame::Plain);
    raya->setForegroundRole(QPalette::Mid);
    fila_->addSpacing(medida::kEntreCampos);
    fila_->addWidget(raya);
    fila_->addSpacing(medida::kEntreCampos);
}

void BarraPrevia::PonerSalidas()
{
    QToolButton* imprimir = Boton(u"imprimir"_s, u"&Imprimir…"_s, u"Imprimir en papel"_s, QKeySequence::Print,
                                  [this] { Q_EMIT ImpresionPedida(); });
    imprimir->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QToolButton* pdf = Boton(u"guardar_pdf"_s, u"&Guardar como PDF…"_s, u"Guardar el documento como PDF"_s,
                             QKeySequence::Save, [this] { Q_EMIT PdfPedido(); });
    pdf->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void BarraPrevia::PonerZoom()
{
    Boton(u"alejar"_s, u"R&educir"_s, u"Reducir"_s, QKeySequence::ZoomOut, [this] { vista_.Alejar(); });
    zoom_ = new QComboBox(this);
    zoom_->setObjectName(u"Zoom"_s);
    zoom_->setAccessibleName(u"Zoom"_s);
    zoom_->setEditable(true);
    zoom_->setInsertPolicy(QComboBox::NoInsert);
    zoom_->setValidator(new QRegularExpressionValidator(QRegularExpression(u"\\d{1,3} ?%?"_s), zoom_));
    for (const int porcentaje : kPorcentajes)
        zoom_->addItem(Porcentaje(porcentaje));
    connect(zoom_, &QComboBox::textActivated, this, &BarraPrevia::TomarZoom);
    connect(zoom_->lineEdit(), &QLineEdit::editingFinished, this,
            [this] { TomarZoom(zoom_->currentText()); });
    fila_->addWidget(zoom_);
    Boton(u"acercar"_s, u"&Ampliar"_s, u"Ampliar"_s, QKeySequence::ZoomIn, [this] { vista_.Acercar(); });
    ancho_ =
        Boton(u"ajustar_ancho"_s, u"Anc&ho de página"_s, u"Ajustar al ancho"_s,
              QKeySequence(Qt::CTRL | Qt::Key_1), [this] { vista_.setAjuste(VistaPaginas::Ajuste::Ancho); });
    entera_ =
        Boton(u"ajustar_pagina"_s, u"Página &completa"_s, u"Ver la página completa"_s,
              QKeySequence(Qt::CTRL | Qt::Key_0), [this] { vista_.setAjuste(VistaPaginas::Ajuste::Pagina); });
    ancho_->setCheckable(true);
    entera_->setCheckable(true);
}

void BarraPrevia::PonerPaginas()
{
    primera_ = Boton(u"pagina_primera"_s, u"Primera página"_s, u"Primera página"_s,
                     QKeySequence(Qt::CTRL | Qt::Key_Home), [this] { vista_.IrA(0); });
    anterior_ =
        Boton(u"pagina_anterior"_s, u"Página anterior"_s, u"Página anterior"_s,
              QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] { vista_.IrA(vista_.paginaActual() - 1); });
    auto* rotulo = new QLabel(u"&Página"_s, this);
    pagina_ = new QLineEdit(this);
    pagina_->setObjectName(u"NumeroPagina"_s);
    pagina_->setAccessibleName(u"Número de página"_s);
    pagina_->setAlignment(Qt::AlignCenter);
    pagina_->setFixedWidth(kAnchoPagina);
    pagina_->setValidator(new QRegularExpressionValidator(QRegularExpression(u"\\d{1,5}"_s), pagina_));
    connect(pagina_, &QLineEdit::editingFinished, this, &BarraPrevia::TomarPagina);
    rotulo->setBuddy(pagina_);
    fila_->addWidget(rotulo);
    fila_->addWidget(pagina_);
    fila_->addWidget(new QLabel(u"de %1"_s.arg(paginas_), this));
    siguiente_ =
        Boton(u"pagina_siguiente"_s, u"Página siguiente"_s, u"Página siguiente"_s,
              QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] { vista_.IrA(vista_.paginaActual() + 1); });
    ultima_ = Boton(u"pagina_ultima"_s, u"Última página"_s, u"Última página"_s,
                    QKeySequence(Qt::CTRL | Qt::Key_End), [this] { vista_.IrA(paginas_ - 1); });
}

void BarraPrevia::PonerCierre()
{
    QToolButton* lista =
        Boton(u"miniaturas"_s, u"&Miniaturas"_s, u"Lista de páginas"_s, QKeySequence(Qt::Key_F9), [] {});
    lista->setCheckable(true);
    lista->setChecked(true);
    connect(lista, &QToolButton::toggled, this, &BarraPrevia::ListaPedida);
    QToolButton* cerrar = Boton({}, u"Ce&rrar"_s, u"Cerrar (Esc)"_s, {}, [this] { Q_EMIT CierrePedido(); });
    cerrar->setObjectName(u"Bttcerrar"_s);
    cerrar->setToolButtonStyle(Qt::ToolButtonTextOnly);
}

void BarraPrevia::MostrarPagina()
{
    const int actual = vista_.paginaActual();
    pagina_->setText(QString::number(actual + 1));
    primera_->setEnabled(actual > 0);
    anterior_->setEnabled(actual > 0);
    siguiente_->setEnabled(actual + 1 < paginas_);
    ultima_->setEnabled(actual + 1 < paginas_);
}

void BarraPrevia::MostrarZoom()
{
    zoom_->setCurrentText(Porcentaje(vista_.zoom()));
    ancho_->setChecked(vista_.ajuste() == VistaPaginas::Ajuste::Ancho);
    entera_->setChecked(vista_.ajuste() == VistaPaginas::Ajuste::Pagina);
}

void BarraPrevia::TomarPagina()
{
    if (const int pedida = pagina_->text().toInt(); pedida > 0 && pedida - 1 != vista_.paginaActual())
        vista_.IrA(pedida - 1);
    MostrarPagina();
}

void BarraPrevia::TomarZoom(const QString& texto)
{
    const int pedido = QString(texto).remove(u'%').trimmed().toInt();
    if (pedido > 0 && pedido != vista_.zoom())
        vista_.setZoom(pedido);
    MostrarZoom();
}

} // namespace valmerix
