#include "ui/generic_view.h"

#include "ui/look/theme.h"

#include <QAbstractButton>
#include <QFormLayout>
#include <QLabel>
#include <QScrollArea>

namespace valmerix {

namespace {

constexpr QSize kTamañoMayor(720, 640);

} // namespace

VistaGenerica::VistaGenerica(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    auto* zona = new QScrollArea(this);
    zona->setWidgetResizable(true);
    zona->setFrameShape(QFrame::NoFrame);
    auto* cuerpo = new QWidget(zona);
    auto* lineas = new QFormLayout(cuerpo);
    lineas->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    lineas->setVerticalSpacing(medida::kEntreLineas);
    std::vector<Control*> botones;
    for (const auto& control : ventana.controles()) {
        Añadir(*control, cuerpo, lineas);
        if (qobject_cast<Boton*>(control.get()))
            botones.push_back(control.get());
    }
    zona->setWidget(cuerpo);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(zona);
    RepartirMnemonicos(enlazador(), botones);
    resize(cuerpo->sizeHint().boundedTo(kTamañoMayor));
}

void VistaGenerica::Añadir(const Control& control, QWidget* cuerpo, QFormLayout* lineas)
{
    QWidget* widget = enlazador().Crear(control.nombre(), cuerpo);
    if (!widget)
        return;
    const bool llevaSuTitulo = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLabel*>(widget);
    if (llevaSuTitulo || control.Caption().isEmpty()) {
        lineas->addRow(widget);
    } else {
        lineas->addRow(enlazador().CrearEtiqueta(control.nombre(), cuerpo), widget);
    }
}

} // namespace valmerix
