#include "ui/widgets/rows_widget.h"

#include "ui/look/application.h"

#include <QSignalBlocker>

namespace valmerix {

CajaFilas::CajaFilas(Lista& lista, Gesto gesto, QWidget* padre)
    : QListWidget(padre)
    , lista_(&lista)
{
    setUniformItemSizes(true);
    connect(&lista, &CampoTexto::Change, this, &CajaFilas::Mostrar);
    connect(&lista, &Control::PresentacionCambiada, this, &CajaFilas::Mostrar);
    if (gesto == Gesto::Sencillo) {
        connect(this, &QListWidget::currentRowChanged, this, &CajaFilas::Elegir);
    } else {
        connect(this, &QListWidget::itemActivated, this,
                [this](QListWidgetItem* fila) { Elegir(row(fila)); });
    }
    Mostrar();
}

void CajaFilas::Mostrar()
{
    if (!lista_)
        return;
    QStringList actuales;
    for (int i = 0; i < count(); ++i)
        actuales.append(item(i)->text());
    const QSignalBlocker silencio(this);
    if (actuales != lista_->List()) {
        clear();
        addItems(lista_->List());
    }
    if (lista_->ListIndex() >= 0)
        setCurrentRow(lista_->ListIndex());
}

void CajaFilas::Elegir(int fila)
{
    if (lista_)
        Protegido([&] { lista_->Elegir(fila); });
}

} // namespace valmerix
