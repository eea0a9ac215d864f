#include "ui/start_view.h"

#include "ui/look/icons.h"
#include "ui/look/kind_colours.h"
#include "ui/look/theme.h"
#include "ui/title_page.h"
#include "ui/widgets/section_panel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamaño(960, 640);
constexpr int kIconoTipo = 72;
constexpr QSize kBotonTipo(176, 156);

// The kinds in the order of SSCommand2(0..5).
constexpr QStringView kTipos[] = {u"Piso", u"Apto", u"Casa", u"Trno", u"Nave", u"Loca"};
constexpr int kTiposPorFila = 2;

} // namespace

VistaInicio::VistaInicio(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
    , partes_(new QStackedWidget(this))
{
    partes_->addWidget(Portada());
    partes_->addWidget(Menu());
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(partes_);
    connect(&ventana.control(u"Picture1"), &Control::PresentacionCambiada, this, &VistaInicio::MostrarParte);
    MostrarParte();
}

QSize VistaInicio::sizeHint() const
{
    return kTamaño;
}

void VistaInicio::MostrarParte()
{
    if (ventana())
        partes_->setCurrentIndex(ventana()->control(u"Picture1").Visible() ? 1 : 0);
}

QWidget* VistaInicio::Portada()
{
    return new PaginaTitulo(*ventana(), this);
}

QWidget* VistaInicio::Menu()
{
    auto* menu = new QWidget(this);
    auto* todo = new QVBoxLayout(menu);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->setSpacing(medida::kEntreCampos);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(medida::kEntrePaneles);
    fila->addWidget(Tipos(menu));
    fila->addWidget(Guardadas(menu), 1);
    todo->addLayout(fila, 1);
    todo->addLayout(Recuperacion(menu));
    std::vector<Control*> botones{&ventana()->control(u"cmdAbrir"), &ventana()->control(u"cmdCopiar"),
                                  &ventana()->control(u"cmdRecuperar")};
    for (int i = 0; i < static_cast<int>(std::size(kTipos)); ++i)
        botones.push_back(&ventana()->control(Ventana::Indice(u"SSCommand2", i)));
    RepartirMnemonicos(enlazador(), botones);
    return menu;
}

QWidget* VistaInicio::Tipos(QWidget* padre)
{
    auto* panel = new PanelSeccion({}, padre);
    enlazador().Atar(ventana()->control(u"Picture1"), panel->titulo());
    auto* rejilla = new QGridLayout;
    rejilla->setSpacing(medida::kEntreCampos);
    for (int i = 0; i < static_cast<int>(std::size(kTipos)); ++i) {
        const ColoresTipo colores = ColoresEnPantalla(kTipos[i]);
        Control& tipo = ventana()->control(Ventana::Indice(u"SSCommand2", i));
        auto* boton = new BotonTipo(colores.uno, colores.otro, panel);
        boton->setIcon(Icono(kTipos[i].toString().toLower()));
        boton->setIconSize(QSize(kIconoTipo, kIconoTipo));
        boton->setFixedSize(kBotonTipo);
        boton->setFocusPolicy(Qt::StrongFocus);
        enlazador().AtarBoton(dynamic_cast<Boton&>(tipo), boton);
        rejilla->addWidget(boton, i / kTiposPorFila, i % kTiposPorFila);
    }
    panel->cuerpo()->addLayout(rejilla);
    panel->cuerpo()->addStretch();
    return panel;
}

// One quiet line below the rest, only when there is something to recover.
QLayout* VistaInicio::Recuperacion(QWidget* padre)
{
    auto* linea = new QHBoxLayout;
    auto* recuperar = enlazador().como<QPushButton>(u"cmdRecuperar", padre);
    recuperar->setFlat(true);
    recuperar->setAutoDefault(false);
    auto* detalle = enlazador().como<QLabel>(u"lblRecuperar", padre);
    detalle->setTextFormat(Qt::PlainText);
    detalle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // cut short, never widening
    detalle->setForegroundRole(QPalette::PlaceholderText);
    linea->addWidget(recuperar);
    linea->addWidget(detalle, 1);
    return linea;
}

QWidget* VistaInicio::Guardadas(QWidget* padre)
{
    auto* panel = new PanelSeccion({}, padre);
    enlazador().Atar(ventana()->control(u"SSPanel1"), panel->titulo());
    QWidget* arbol = enlazador().Crear(u"Arbol", panel);
    panel->titulo()->setBuddy(arbol);
    panel->cuerpo()->addWidget(arbol, 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    for (const QStringView nombre : {u"cmdAbrir", u"cmdCopiar"})
        botones->addWidget(enlazador().Crear(nombre, panel));
    qobject_cast<QPushButton*>(enlazador().de(u"cmdAbrir"))->setDefault(true);
    panel->cuerpo()->addLayout(botones);
    return panel;
}

} // namespace valmerix
