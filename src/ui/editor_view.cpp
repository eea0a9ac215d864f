#include "ui/editor_view.h"

#include "ui/look/theme.h"
#include "ui/widgets/text_widgets.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace valmerix {

namespace {

constexpr QSize kTamaño(620, 420);

} // namespace

VistaEditor::VistaEditor(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    CerrarConEscape();
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->setSpacing(medida::kEntreCampos);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    std::vector<Control*> pulsables;
    for (const auto& control : ventana.controles()) {
        QWidget* widget = enlazador().Crear(control->nombre(), this);
        if (qobject_cast<QPushButton*>(widget)) {
            botones->addWidget(widget);
            pulsables.push_back(control.get());
            continue;
        }
        if (qobject_cast<CampoLargo*>(widget)) {
            if (widget->accessibleName().isEmpty())
                widget->setAccessibleName(ventana.Caption());
            todo->addWidget(enlazador().CrearEtiqueta(control->nombre(), this));
        }
        todo->addWidget(widget, qobject_cast<CampoLargo*>(widget) ? 1 : 0);
    }
    todo->addLayout(botones);
    RepartirMnemonicos(enlazador(), pulsables);
}

QSize VistaEditor::sizeHint() const
{
    return kTamaño;
}

} // namespace valmerix
