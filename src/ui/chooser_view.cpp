#include "ui/chooser_view.h"

#include "ui/look/theme.h"
#include "ui/widgets/rows_widget.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

namespace valmerix {

namespace {

constexpr QSize kTamaño(640, 460);

struct ListaDelSelector
{
    QStringView nombre;
    CajaFilas::Gesto gesto;
};

constexpr ListaDelSelector kListas[] = {
    {u"Dir1", CajaFilas::Gesto::Doble},
    {u"File1", CajaFilas::Gesto::Sencillo},
};

} // namespace

VistaSelector::VistaSelector(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    CerrarConEscape();
    auto* rejilla = new QGridLayout;
    rejilla->setSpacing(medida::kEntreCampos);
    QWidget* unidad = enlazador().Crear(u"Drive1", this);
    rejilla->addWidget(enlazador().CrearEtiqueta(u"Drive1", this), 0, 0);
    rejilla->addWidget(unidad, 1, 0, 1, 2);
    int columna = 0;
    for (const ListaDelSelector& fila : kListas) {
        auto* caja = new CajaFilas(ventana.lista(fila.nombre), fila.gesto, this);
        enlazador().Atar(ventana.control(fila.nombre), caja);
        rejilla->addWidget(enlazador().CrearEtiqueta(fila.nombre, this), 2, columna);
        rejilla->addWidget(caja, 3, columna++);
    }
    rejilla->setRowStretch(3, 1);
    QWidget* seleccion = enlazador().Crear(u"SelecBox", this);
    rejilla->addWidget(enlazador().CrearEtiqueta(u"SelecBox", this), 4, 0);
    rejilla->addWidget(seleccion, 5, 0, 1, 2);
    auto* botones = new QHBoxLayout;
    std::vector<Control*> pulsables;
    for (const QStringView nombre : {u"Nueva", u"SSCommand2", u"SSCommand3"}) {
        QWidget* boton = enlazador().Crear(nombre, this);
        pulsables.push_back(&ventana.control(nombre));
        if (nombre == u"Nueva")
            botones->addStretch();
        botones->addWidget(boton);
    }
    RepartirMnemonicos(enlazador(), pulsables);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->setSpacing(medida::kBorde);
    todo->addLayout(rejilla);
    todo->addLayout(botones);
}

QSize VistaSelector::sizeHint() const
{
    return kTamaño;
}

} // namespace valmerix
