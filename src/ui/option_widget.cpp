#include "ui/option_widget.h"

#include "ui/application.h"
#include "ui/theme.h"

#include <QButtonGroup>
#include <QGridLayout>

namespace valmerix {

GrupoBotones::GrupoBotones(GrupoOpciones& opciones, QWidget* padre)
    : QWidget(padre)
    , opciones_(&opciones)
    , grupo_(new QButtonGroup(this))
    , disposicion_(new QGridLayout(this))
{
    disposicion_->setContentsMargins(0, 0, 0, 0);
    disposicion_->setHorizontalSpacing(medida::kEntreCampos);
    disposicion_->setVerticalSpacing(medida::kEntreLineas);
    connect(&opciones, &Control::PresentacionCambiada, this, &GrupoBotones::Mostrar);
    Rehacer();
    Mostrar();
}

void GrupoBotones::Rehacer()
{
    qDeleteAll(botones_);
    botones_.clear();
    for (int i = 0; i < opciones_->Count(); ++i) {
        auto* boton = new QRadioButton(this);
        boton->setObjectName(opciones_->nombre() + u'(' + QString::number(i) + u')');
        grupo_->addButton(boton, i);
        botones_.push_back(boton);
        connect(boton, &QRadioButton::clicked, this, [this, i] {
            if (opciones_)
                Protegido([&] { opciones_->Pulsar(i); });
            Mostrar();
        });
    }
    Colocar();
    Q_EMIT BotonesCambiados();
}

void GrupoBotones::Colocar()
{
    for (int i = 0; i < cuenta(); ++i)
        disposicion_->addWidget(boton(i), i / columnas_, columnas_ == 1 ? 0 : i % columnas_);
    if (columnas_ == 1)
        disposicion_->setColumnStretch(1, 1);
}

void GrupoBotones::setColumnas(int columnas)
{
    columnas_ = std::max(columnas, 1);
    for (QRadioButton* boton : botones_)
        disposicion_->removeWidget(boton);
    Colocar();
}

void GrupoBotones::PonerJunto(int indice, QWidget* widget)
{
    disposicion_->addWidget(widget, indice / columnas_, 1);
    if (const QString titulo = boton(indice)->text(); !titulo.isEmpty())
        widget->setAccessibleName(titulo);
    else
        boton(indice)->setAccessibleName(widget->accessibleName());
}

void GrupoBotones::Mostrar()
{
    if (!opciones_)
        return;
    if (cuenta() != opciones_->Count())
        Rehacer();
    // An exclusive group would not let the last one go.
    grupo_->setExclusive(false);
    for (int i = 0; i < cuenta(); ++i) {
        QString titulo = opciones_->titulos().at(i);
        boton(i)->setText(titulo.replace(u'&', QStringLiteral("&&")));
        boton(i)->setChecked(opciones_->Value(i));
    }
    grupo_->setExclusive(true);
}

} // namespace valmerix
