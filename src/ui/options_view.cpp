#include "ui/options_view.h"

#include "ui/look/theme.h"
#include "ui/widgets/section_panel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAnchoNumero = 70;
constexpr int kAnchoNombre = 140;
constexpr int kPiezas = 9;
constexpr int kPiezasPorColumna = 3;
constexpr QSize kLogo(220, 110);

QGridLayout* NuevaRejilla()
{
    auto* rejilla = new QGridLayout;
    rejilla->setVerticalSpacing(medida::kEntreLineas);
    rejilla->setHorizontalSpacing(medida::kEntreCampos);
    return rejilla;
}

QBoxLayout* EnColumna(std::initializer_list<QWidget*> paneles)
{
    auto* columna = new QVBoxLayout;
    columna->setSpacing(medida::kEntrePaneles);
    for (QWidget* panel : paneles)
        columna->addWidget(panel);
    return columna;
}

} // namespace

VistaOpciones::VistaOpciones(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    CerrarConEscape();
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->setSpacing(medida::kEntrePaneles);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(medida::kEntrePaneles);
    columnas->addLayout(EnColumna({Edades(), Moneda()}));
    columnas->addLayout(EnColumna({Logotipo()}), 1);
    todo->addLayout(columnas);
    todo->addWidget(Procesador());
    todo->addWidget(Cabecera());
    todo->addStretch();
    todo->addWidget(Botonera());
    std::vector<Control*> botones;
    for (const auto& control : ventana.controles()) {
        if (qobject_cast<QPushButton*>(enlazador().de(control.get())))
            botones.push_back(control.get());
    }
    RepartirMnemonicos(enlazador(), botones);
}

void VistaOpciones::Linea(QStringView campo, int ancho, QGridLayout& rejilla, QWidget* panel)
{
    const int linea = rejilla.count() == 0 ? 0 : rejilla.rowCount();
    rejilla.addWidget(enlazador().CrearEtiqueta(campo, panel), linea, 0);
    QWidget* entrada = enlazador().Crear(campo, panel);
    entrada->setFixedWidth(ancho);
    rejilla.addWidget(entrada, linea, 1, Qt::AlignLeft);
    rejilla.setColumnStretch(2, 1);
}

QWidget* VistaOpciones::Edades()
{
    auto* panel = new PanelSeccion(u"Vida útil de los edificios"_s, this);
    QGridLayout* rejilla = NuevaRejilla();
    rejilla->addWidget(new QLabel(u"Edad máxima"_s, panel), 0, 2);
    for (const QStringView edad : {u"Text1", u"Text2", u"Text3"}) {
        Linea(edad, kAnchoNumero, *rejilla, panel);
        QWidget* limite = enlazador().Crear(u"Limite"_s + edad.toString(), panel);
        rejilla->addWidget(limite, rejilla->rowCount() - 1, 2);
    }
    panel->cuerpo()->addLayout(rejilla);
    return panel;
}

QWidget* VistaOpciones::Moneda()
{
    auto* panel = new PanelSeccion(u"Moneda"_s, this);
    QGridLayout* rejilla = NuevaRejilla();
    for (const QStringView nombre : {u"Text4", u"Text5"})
        Linea(nombre, kAnchoNombre, *rejilla, panel);
    for (const QStringView numero : {u"Text6", u"Text7"})
        Linea(numero, kAnchoNumero, *rejilla, panel);
    rejilla->addWidget(enlazador().Crear(u"Genero", panel), 0, 2, rejilla->rowCount(), 1, Qt::AlignTop);
    panel->cuerpo()->addLayout(rejilla);
    return panel;
}

QWidget* VistaOpciones::Logotipo()
{
    auto* panel = new PanelSeccion(u"Logotipo y membrete"_s, this);
    QWidget* logo = enlazador().Crear(u"imgLogo", panel);
    logo->setMinimumSize(kLogo);
    panel->cuerpo()->addWidget(logo, 1);
    for (const QStringView fuente : {u"optFile", u"optCamera", u"optScanner"})
        panel->cuerpo()->addWidget(enlazador().Crear(fuente, panel));
    auto* ordenes = new QHBoxLayout;
    ordenes->addWidget(enlazador().Crear(u"cmdLogo", panel));
    ordenes->addWidget(enlazador().Crear(u"Command1", panel));
    ordenes->addStretch();
    panel->cuerpo()->addLayout(ordenes);
    panel->cuerpo()->addWidget(enlazador().Crear(u"chkMembrete", panel));
    return panel;
}

QWidget* VistaOpciones::Procesador()
{
    auto* panel = new PanelSeccion(u"Procesador de textos"_s, this);
    panel->cuerpo()->addWidget(enlazador().CrearEtiqueta(u"TrayecBox", panel));
    auto* fila = new QHBoxLayout;
    fila->addWidget(enlazador().Crear(u"TrayecBox", panel), 1);
    fila->addWidget(enlazador().Crear(u"cmdPath", panel));
    panel->cuerpo()->addLayout(fila);
    panel->cuerpo()->addWidget(enlazador().Crear(u"chkCerrar", panel));
    return panel;
}

QWidget* VistaOpciones::Cabecera()
{
    auto* panel = new PanelSeccion(u"Párrafo de presentación"_s, this);
    QGridLayout* rejilla = NuevaRejilla();
    for (int i = 0; i < kPiezas; ++i) {
        rejilla->addWidget(enlazador().Crear(Ventana::Indice(u"chkEncabezamiento", i), panel),
                           i % kPiezasPorColumna, i / kPiezasPorColumna);
    }
    panel->cuerpo()->addLayout(rejilla);
    return panel;
}

QWidget* VistaOpciones::Botonera()
{
    auto* caja = new QWidget(this);
    auto* fila = new QHBoxLayout(caja);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addStretch();
    auto* guardar = qobject_cast<QPushButton*>(enlazador().Crear(u"cmdOK", caja));
    guardar->setDefault(true);
    fila->addWidget(guardar);
    return caja;
}

} // namespace valmerix
