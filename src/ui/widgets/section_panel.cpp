#include "ui/widgets/section_panel.h"

#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>

namespace valmerix {

PanelSeccion::PanelSeccion(const QString& titulo, QWidget* padre)
    : QWidget(padre)
    , cabeza_(new QHBoxLayout)
    , titulo_(new QLabel(titulo, this))
    , cuerpo_(new QVBoxLayout)
{
    QFont letra = titulo_->font();
    letra.setBold(true);
    titulo_->setFont(letra);
    titulo_->setTextFormat(Qt::PlainText);
    titulo_->setVisible(!titulo.isEmpty());
    cabeza_->setSpacing(medida::kEntreCampos);
    cabeza_->addWidget(titulo_);
    cabeza_->addStretch();
    cuerpo_->setSpacing(medida::kEntreLineas);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kEnPanel, medida::kEnPanel - 2, medida::kEnPanel, medida::kEnPanel);
    todo->setSpacing(medida::kEntreLineas + 2);
    todo->addLayout(cabeza_);
    todo->addLayout(cuerpo_, 1);
}

void PanelSeccion::PonerAnteTitulo(QWidget* widget)
{
    cabeza_->insertWidget(0, widget);
}

void PanelSeccion::setTitulo(const QString& titulo)
{
    titulo_->setText(titulo);
    titulo_->setVisible(!titulo.isEmpty());
}

void PanelSeccion::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(ColorLinea(palette()));
    pintor.setBrush(ColorPanel(palette()));
    pintor.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), medida::kRadio, medida::kRadio);
}

} // namespace valmerix
