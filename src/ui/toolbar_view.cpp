#include "ui/toolbar_view.h"

#include "shell/toolbar.h"
#include "shell/window_places.h"
#include "ui/caption_bar.h"
#include "ui/look/icons.h"
#include "ui/look/kind_colours.h"
#include "ui/look/theme.h"
#include "ui/window_drag.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAltoTitulo = 42;
constexpr QSize kIcono(30, 22); // wider than high: air between picture and words
constexpr int kAnchoOrden = 152;
constexpr qreal kFinDelTitulo = 0.78; // of the width: the title stands on the first colour alone

// By the index of Botonera.
constexpr QStringView kIconos[] = {
    u"informe",  u"cerrar_visor", u"opciones", u"reinicio",  u"abrir_filtros", u"guardar",
    u"importar", u"exportar",     u"ayuda",    u"extension", u"listados",      u"testigos",
};

struct GrupoOrdenes
{
    QStringView titulo;
    std::initializer_list<int> ordenes;
};

const GrupoOrdenes kGrupos[] = {
    {u"Navegación", {0, 1, 3, 4}},
    {u"Datos", {5, 6, 7, 11, 10}},
    {u"Sistema", {2, 9, 8}},
};

/// The title picture: a field of the kind's colours.
class Franja : public QWidget
{
public:
    Franja(const QColor& uno, const QColor& otro, QWidget* padre)
        : QWidget(padre)
        , uno_(uno)
        , otro_(otro)
    {
        setFixedHeight(kAltoTitulo);
    }

protected:
    void paintEvent(QPaintEvent* /*evento*/) override
    {
        QPainter pintor(this);
        if (!uno_.isValid())
            return pintor.fillRect(rect(), ColorPanel(palette()));
        QLinearGradient mezcla(rect().topLeft(), rect().topRight());
        mezcla.setColorAt(kFinDelTitulo, uno_);
        mezcla.setColorAt(1, otro_);
        pintor.fillRect(rect(), mezcla);
    }

private:
    QColor uno_;
    QColor otro_;
};

} // namespace

VistaPaleta::VistaPaleta(Ventana& ventana)
    : VistaVentana(ventana, Marco::Herramienta)
{
    setAttribute(Qt::WA_AlwaysShowToolTips); // it never is the active window
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(1, 1, 1, medida::kBorde);
    todo->setSpacing(0);
    todo->addWidget(Titulo());
    int grupo = 0;
    for (const GrupoOrdenes& g : kGrupos) {
        const QString nombre = Ventana::Indice(u"Label1", grupo++);
        auto* rotulo = qobject_cast<QLabel*>(ventana.buscar(nombre) ? enlazador().Crear(nombre, this)
                                                                    : new QLabel(g.titulo.toString(), this));
        QFont letra = rotulo->font();
        letra.setBold(true);
        rotulo->setFont(letra);
        rotulo->setContentsMargins(medida::kEntreCampos, medida::kBorde, 0, medida::kEntreLineas / 2);
        todo->addWidget(rotulo);
        for (const int orden : g.ordenes)
            todo->addWidget(CrearOrden(orden));
    }
    todo->addStretch();
}

QRect VistaPaleta::LugarPosible(QRect pedido) const
{
    return AjustarAPantallas(VistaVentana::LugarPosible(pedido), PantallasUtiles());
}

QWidget* VistaPaleta::Titulo()
{
    const QColor uno = ColorDeTexto(ventana()->control(u"Image1").Tag());
    auto* franja = new Franja(uno, ColorDeTexto(ventana()->control(u"Image2").Tag()), this);
    auto* fila = new QHBoxLayout(franja);
    fila->setContentsMargins(medida::kBorde, 0, medida::kEntreLineas, 0);
    auto* titulo = new QLabel(ventana()->Caption(), franja);
    QFont letra = titulo->font();
    letra.setBold(true);
    titulo->setFont(letra);
    auto* cerrar =
        qobject_cast<QToolButton*>(CrearBotonIcono(enlazador(), u"SSCommand3", u"salir"_s, franja));
    cerrar->setFocusPolicy(Qt::NoFocus);
    if (uno.isValid()) {
        QPalette paleta;
        paleta.setColor(QPalette::WindowText, TextoSobre(uno));
        titulo->setPalette(paleta);
        cerrar->setIcon(Icono(u"salir"_s, TextoSobre(ColorDeTexto(ventana()->control(u"Image2").Tag()))));
    }
    fila->addWidget(titulo);
    fila->addStretch();
    fila->addWidget(cerrar);
    ArrastrarPor(*franja);
    return franja;
}

QWidget* VistaPaleta::CrearOrden(int indice)
{
    auto& orden = ventana()->boton(Ventana::Indice(u"Botonera", indice));
    auto* boton = new QToolButton(this);
    boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    boton->setIcon(Icono(kIconos[indice].toString()));
    boton->setIconSize(kIcono);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::NoFocus);
    boton->setFixedWidth(kAnchoOrden);
    boton->setProperty("atajo", OrdenesDePaleta()[static_cast<size_t>(indice)].atajo.toString());
    enlazador().AtarBoton(orden, boton);
    return boton;
}

void VistaPaleta::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.fillRect(rect(), ColorPanel(palette()));
    pintor.setPen(ColorLinea(palette()));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace valmerix
