#include "ui/viewer_view.h"

#include "ui/caption_bar.h"
#include "ui/look/icons.h"
#include "ui/look/theme.h"
#include "ui/widgets/list_widget.h"
#include "ui/widgets/rich_text_widget.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSizeGrip>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamaño(1000, 720);
constexpr int kCapitulos = 11;
constexpr QSize kIcono(26, 20); // wider than high: air between picture and words
constexpr int kAnchoBusqueda = 120;
constexpr int kAnchoBusquedaMayor = 240;
constexpr int kAnchoCapitulo = 30;
constexpr qreal kLetraInforme = 11;

} // namespace

VistaVisor::VistaVisor(Ventana& ventana)
    : VistaVentana(ventana, Marco::Propio)
{
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(0);
    todo->addWidget(Cabecera());
    todo->addWidget(Barra());
    auto* texto = dynamic_cast<EditorInforme*>(enlazador().Crear(u"Texto", this));
    QFont letra = texto->font();
    letra.setPointSizeF(kLetraInforme);
    texto->setFont(letra);
    texto->setFrameShape(QFrame::NoFrame);
    texto->setAccessibleName(u"Texto del informe"_s);
    todo->addWidget(texto, 1);
    texto->setFocus();

    auto* buscar = new QShortcut(QKeySequence::Find, this);
    connect(buscar, &QShortcut::activated, this, [this] {
        if (QWidget* caja = enlazador().de(u"Combo1"))
            caja->setFocus(Qt::ShortcutFocusReason);
    });
}

QSize VistaVisor::sizeHint() const
{
    return kTamaño;
}

CabeceraVentana* VistaVisor::Cabecera()
{
    auto* cabecera = new CabeceraVentana(enlazador(), u"EtiquetaCaption", this);
    cabecera->PonerIcono(Icono(u"informe"_s));
    cabecera->PonerBoton(u"SSCommand2", u"minimizar"_s);
    QAbstractButton* tamaño = cabecera->PonerBoton(u"SSCommand3", u"maximizar"_s);
    cabecera->PonerBoton(u"SSCommand1", u"salir"_s);
    connect(cabecera, &CabeceraVentana::DobleClic, tamaño, &QAbstractButton::click);
    return cabecera;
}

QWidget* VistaVisor::Barra()
{
    auto* barra = new QWidget(this);
    auto* fila = new QHBoxLayout(barra);
    fila->setContentsMargins(medida::kBorde, medida::kEntreLineas, medida::kBorde, medida::kEntreLineas);
    fila->setSpacing(medida::kEntreLineas);
    fila->addWidget(Capitulos(barra));
    fila->addStretch();
    auto* busqueda = dynamic_cast<CajaLista*>(enlazador().Crear(u"Combo1", barra));
    busqueda->setMinimumWidth(kAnchoBusqueda);
    busqueda->setMaximumWidth(kAnchoBusquedaMayor);
    busqueda->lineEdit()->setPlaceholderText(u"Texto"_s);
    busqueda->setAccessibleName(u"Texto que se busca"_s);
    fila->addWidget(busqueda, 1);
    auto* buscar = qobject_cast<QAbstractButton*>(Orden(u"BttBuscar", u"buscar"_s, barra));
    connect(busqueda->lineEdit(), &QLineEdit::returnPressed, buscar, &QAbstractButton::click);
    fila->addWidget(buscar);
    fila->addSpacing(medida::kBorde);
    fila->addWidget(enlazador().Crear(u"chkEditable", barra));
    fila->addSpacing(medida::kBorde);
    fila->addWidget(Orden(u"BttImprimir", u"imprimir"_s, barra));
    fila->addWidget(Orden(u"BttMaquina", u"procesador"_s, barra));
    return barra;
}

QWidget* VistaVisor::Capitulos(QWidget* padre)
{
    auto* grupo = new QWidget(padre);
    auto* fila = new QHBoxLayout(grupo);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(2);
    for (int i = 0; i < kCapitulos; ++i) {
        auto& capitulo = ventana()->boton(Ventana::Indice(u"SSCommand5", i));
        auto* boton = new QToolButton(grupo);
        boton->setAutoRaise(true);
        boton->setFocusPolicy(Qt::TabFocus);
        enlazador().AtarBoton(capitulo, boton);
        boton->setMinimumWidth(std::max(kAnchoCapitulo, boton->sizeHint().width()));
        if (!capitulo.ToolTip().isEmpty())
            boton->setAccessibleName(capitulo.ToolTip());
        fila->addWidget(boton);
    }
    return grupo;
}

QWidget* VistaVisor::Orden(QStringView nombre, const QString& icono, QWidget* padre)
{
    auto* boton = new QToolButton(padre);
    boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    boton->setAutoRaise(true);
    // The text loses the focus to it, and the next search starts from where its caret stands.
    boton->setFocusPolicy(Qt::StrongFocus);
    boton->setIcon(Icono(icono));
    boton->setIconSize(kIcono);
    enlazador().AtarBoton(ventana()->boton(nombre), boton);
    return boton;
}

} // namespace valmerix
