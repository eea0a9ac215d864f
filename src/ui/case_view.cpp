#include "ui/case_view.h"

#include "ui/caption_bar.h"
#include "ui/form_builder.h"
#include "ui/look/icons.h"
#include "ui/look/kind_colours.h"
#include "ui/look/theme.h"
#include "ui/page_columns.h"
#include "ui/widgets/grid_model.h"
#include "ui/widgets/section_panel.h"
#include "valuation/case_form.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTabBar>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamaño(1100, 740);
constexpr int kAltoPagina = 628; // what a page shows without scrolling
constexpr int kColumnasMayor = 3;

QBoxLayout* Columna(const std::vector<PanelSeccion*>& paneles, size_t desde, int cuantos)
{
    auto* columna = new QVBoxLayout;
    columna->setSpacing(medida::kEntrePaneles);
    for (size_t i = desde; i < desde + static_cast<size_t>(cuantos); ++i)
        columna->addWidget(paneles[i], paneles[i]->property("crece").toBool() ? 1 : 0);
    return columna;
}

bool Crece(const SeccionForma& seccion)
{
    return std::any_of(seccion.controles.begin(), seccion.controles.end(), [](const ControlForma& f) {
        return f.clase == ClaseControl::Rejilla || f.clase == ClaseControl::TextoLargo ||
               f.clase == ClaseControl::Imagen;
    });
}

// Columns in the order of the panels, so that the tabulator goes down one and on to the next.
void Disponer(QWidget* cuerpo, const std::vector<PanelSeccion*>& paneles)
{
    std::vector<int> altos(paneles.size());
    std::transform(paneles.begin(), paneles.end(), altos.begin(), [](const PanelSeccion* panel) {
        return panel->sizeHint().height() + medida::kEntrePaneles;
    });
    std::vector<int> reparto = RepartirEnColumnas(altos, 2);
    for (int n = 3; n <= kColumnasMayor && AltoDe(altos, reparto) > kAltoPagina; ++n)
        reparto = RepartirEnColumnas(altos, n);
    auto* fila = new QHBoxLayout(cuerpo);
    fila->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    fila->setSpacing(medida::kEntrePaneles);
    size_t desde = 0;
    for (const int cuantos : reparto) {
        QBoxLayout* columna = Columna(paneles, desde, cuantos);
        const bool crece = std::any_of(paneles.begin() + static_cast<std::ptrdiff_t>(desde),
                                       paneles.begin() + static_cast<std::ptrdiff_t>(desde) + cuantos,
                                       [](PanelSeccion* p) { return p->property("crece").toBool(); });
        if (!crece)
            columna->addStretch();
        fila->addLayout(columna, 1);
        desde += static_cast<size_t>(cuantos);
    }
}

} // namespace

VistaCaso::VistaCaso(Ventana& ventana)
    : VistaVentana(ventana, Marco::Propio)
    , formulario_(dynamic_cast<Formulario&>(ventana))
{
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(0);
    PonerCabecera();
    PonerPaginas();
    DestacarCalculo();
    PonerMnemonicos();
}

QSize VistaCaso::sizeHint() const
{
    return kTamaño;
}

void VistaCaso::PonerCabecera()
{
    auto* cabecera = new CabeceraVentana(enlazador(), u"EtiquetaCaption", this);
    const ColoresTipo colores = ColoresEnPantalla(formulario_.nombre());
    cabecera->PonerColores(colores.uno, colores.otro);
    cabecera->PonerIcono(Icono(formulario_.nombre().toLower()));
    cabecera->PonerBoton(u"SSCommand4", u"anterior"_s);
    cabecera->PonerBoton(u"SSCommand5", u"siguiente"_s);
    cabecera->PonerHueco();
    cabecera->PonerBoton(u"SSCommand3", u"paleta"_s);
    cabecera->PonerBoton(u"SSCommand2", u"minimizar"_s);
    cabecera->PonerBoton(u"SSCommand1", u"salir"_s);
    layout()->addWidget(cabecera);
}

void VistaCaso::PonerPaginas()
{
    paginas_ = enlazador().como<QTabWidget>(u"SSTab1", this);
    paginas_->setDocumentMode(true);
    paginas_->tabBar()->setAccessibleName(u"Páginas del expediente"_s);
    paginas_->tabBar()->setExpanding(false);
    const QSignalBlocker silencio(paginas_);
    for (int i = 0; i < static_cast<int>(std::size(kPaginas)); ++i)
        paginas_->addTab(Pagina(i), kPaginas[i].toString());
    paginas_->setCurrentIndex(formulario_.como<Solapas>(u"SSTab1").Tab());
    if (auto* imagenes = qobject_cast<TablaRejilla*>(enlazador().de(u"GridImagen")))
        imagenes->setElegirAlPasar(true);
    layout()->addWidget(paginas_);
}

QWidget* VistaCaso::Pagina(int pagina)
{
    auto* zona = new QScrollArea(this);
    zona->setWidgetResizable(true);
    zona->setFrameShape(QFrame::NoFrame);
    zona->setFocusPolicy(Qt::NoFocus);
    auto* cuerpo = new QWidget(zona);
    ConstructorFormulario constructor(enlazador());
    std::vector<PanelSeccion*> paneles;
    for (const SeccionForma& seccion : formulario_.descripcion().secciones()) {
        if (seccion.pagina != pagina)
            continue;
        paneles.push_back(constructor.Panel(seccion, cuerpo));
        paneles.back()->setProperty("crece", Crece(seccion));
        paneles.back()->setSizePolicy(QSizePolicy::Preferred,
                                      Crece(seccion) ? QSizePolicy::Expanding : QSizePolicy::Maximum);
    }
    Disponer(cuerpo, paneles);
    zona->setWidget(cuerpo);
    return zona;
}

void VistaCaso::DestacarCalculo()
{
    for (const QStringView nombre : {u"SSCommand7", u"BoxTotal"}) {
        QWidget* widget = enlazador().de(nombre);
        if (!widget)
            continue;
        QFont letra = widget->font();
        letra.setBold(true);
        widget->setFont(letra);
    }
    if (auto* calcular = qobject_cast<QPushButton*>(enlazador().de(u"SSCommand7")))
        calcular->setDefault(true);
}

void VistaCaso::PonerMnemonicos()
{
    // The pages come first, by their numbers: they never change places.
    for (int i = 0; i < paginas_->count(); ++i)
        paginas_->setTabText(i, u"&"_s + QString::number(i + 1) + u"  "_s + kPaginas[i].toString());
    std::vector<Control*> botones;
    for (const auto& control : formulario_.controles()) {
        auto* boton = qobject_cast<QPushButton*>(enlazador().de(control.get()));
        if (boton)
            botones.push_back(control.get());
    }
    RepartirMnemonicos(enlazador(), botones);
}

} // namespace valmerix
