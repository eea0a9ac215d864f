#include "ui/record_view.h"

#include "ui/caption_bar.h"
#include "ui/look/theme.h"
#include "ui/widgets/section_panel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAltoLista = 170;
constexpr int kAnchoMinimo = 840;
constexpr int kCamposPorLinea = 2;

} // namespace

VistaFicha::VistaFicha(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    CerrarConEscape();
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->setSpacing(medida::kEntrePaneles);
    todo->addWidget(Empresa());
    todo->addWidget(Tasadores(), 1);
    todo->addWidget(Botonera());
    setMinimumWidth(kAnchoMinimo);
    std::vector<Control*> botones;
    for (const auto& control : ventana.controles()) {
        if (qobject_cast<QPushButton*>(enlazador().de(control.get())))
            botones.push_back(control.get());
    }
    RepartirMnemonicos(enlazador(), botones);
}

void VistaFicha::Campos(std::initializer_list<QStringView> nombres, QGridLayout& rejilla, QWidget* panel)
{
    int n = 0;
    for (const QStringView nombre : nombres) {
        QWidget* campo = enlazador().Crear(nombre, panel);
        const int linea = n / kCamposPorLinea;
        const int columna = n % kCamposPorLinea * 2;
        rejilla.addWidget(enlazador().CrearEtiqueta(nombre, panel), linea, columna);
        rejilla.addWidget(campo, linea, columna + 1);
        rejilla.setColumnStretch(columna + 1, 1);
        ++n;
    }
    rejilla.setVerticalSpacing(medida::kEntreLineas);
    rejilla.setHorizontalSpacing(medida::kEntreCampos);
}

QWidget* VistaFicha::Empresa()
{
    auto* panel = new PanelSeccion(u"Empresa"_s, this);
    auto* rejilla = new QGridLayout;
    Campos({u"txtNombreEmpresa", u"txtNIFEmpresa", u"txtDomicilioEmpresa", u"txtCPEmpresa",
            u"txtPoblacionEmpresa", u"txtProvinciaEmpresa", u"txtNumeroInscripcion"},
           *rejilla, panel);
    QWidget* fecha = enlazador().Crear(u"txtFechaInscripcion", panel);
    auto* calendario = CrearBotonIcono(enlazador(), u"BttFechaInscripcion", u"calendario"_s, panel);
    calendario->setFocusPolicy(Qt::StrongFocus);
    auto* junto = new QHBoxLayout;
    junto->addWidget(fecha);
    junto->addWidget(calendario);
    rejilla->addWidget(enlazador().CrearEtiqueta(u"txtFechaInscripcion", panel), 3, 2);
    rejilla->addLayout(junto, 3, 3);
    panel->cuerpo()->addLayout(rejilla);
    return panel;
}

QWidget* VistaFicha::Tasadores()
{
    auto* panel = new PanelSeccion(u"Tasadores"_s, this);
    auto* rejilla = new QGridLayout;
    Campos({u"txtNombreTasador", u"txtNIFTasador", u"txtDomicilioTasador", u"txtCPTasador",
            u"txtPoblacionTasador", u"txtProvinciaTasador", u"txtTitulacionTasador",
            u"txtColegioOficialTasador", u"txtNumeroColegiadoTasador"},
           *rejilla, panel);
    panel->cuerpo()->addLayout(rejilla);
    auto* ordenes = new QHBoxLayout;
    ordenes->addStretch();
    for (const QStringView nombre : {u"bttActualizar", u"bttEliminar", u"bttLimpiar"})
        ordenes->addWidget(enlazador().Crear(nombre, panel));
    panel->cuerpo()->addLayout(ordenes);
    QWidget* lista = enlazador().Crear(u"Flexi", panel);
    lista->setMinimumHeight(kAltoLista);
    if (lista->accessibleName().isEmpty())
        lista->setAccessibleName(u"Tasadores"_s);
    lista->setToolTip(u"Doble clic: pasar el tasador a los campos"_s);
    panel->cuerpo()->addWidget(lista, 1);
    return panel;
}

QWidget* VistaFicha::Botonera()
{
    auto* caja = new QWidget(this);
    auto* fila = new QHBoxLayout(caja);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addStretch();
    auto* aceptar = qobject_cast<QPushButton*>(enlazador().Crear(u"bttOK", caja));
    aceptar->setDefault(true);
    fila->addWidget(aceptar);
    fila->addWidget(enlazador().Crear(u"bttCancel", caja));
    return caja;
}

} // namespace valmerix
