#include "ui/widgets/option_widget.h"

#include "ui/look/application.h"
#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QButtonGroup>

namespace valmerix {

GrupoBotones::GrupoBotones(GrupoOpciones& opciones, QWidget* padre)
    : QWidget(padre)
    , opciones_(&opciones)
    , grupo_(new QButtonGroup(this))
    , disposicion_(new QVBoxLayout(this))
{
    disposicion_->setContentsMargins(0, 0, 0, 0);
    disposicion_->setSpacing(medida::kEntreLineas);
    connect(&opciones, &Control::PresentacionCambiada, this, &GrupoBotones::Mostrar);
    Rehacer();
    Mostrar();
}

void GrupoBotones::Rehacer()
{
    qDeleteAll(botones_);
    qDeleteAll(lineas_);
    botones_.clear();
    lineas_.clear();
    for (int i = 0; i < opciones_->Count(); ++i) {
        auto* boton = new QRadioButton(this);
        boton->setObjectName(opciones_->nombre() + u'(' + QString::number(i) + u')');
        grupo_->addButton(boton, i);
        botones_.push_back(boton);
        auto* linea = new QHBoxLayout;
        linea->setSpacing(medida::kEntreCampos);
        linea->addWidget(boton);
        linea->addStretch();
        disposicion_->addLayout(linea);
        lineas_.push_back(linea);
        connect(boton, &QRadioButton::clicked, this, [this, i] {
            if (opciones_)
                Protegido([&] { opciones_->Pulsar(i); });
            Mostrar();
        });
    }
    Q_EMIT BotonesCambiados();
}

void GrupoBotones::PonerJunto(int indice, QWidget* widget)
{
    QBoxLayout* linea = lineas_.at(static_cast<size_t>(indice));
    const bool ocupaTodo = widget->maximumWidth() == QWIDGETSIZE_MAX;
    linea->addWidget(widget, ocupaTodo ? 1 : 0);
    linea->setStretch(1, ocupaTodo ? 0 : 1); // a narrow field stands at the right end
    if (const QString titulo = boton(indice)->text(); !titulo.isEmpty()) {
        widget->setAccessibleName(titulo);
    } else {
        boton(indice)->setAccessibleName(widget->accessibleName());
    }
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
