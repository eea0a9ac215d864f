#include "ui/form_builder.h"

#include "ui/caption_bar.h"
#include "ui/field_widths.h"
#include "ui/look/icons.h"
#include "ui/look/theme.h"
#include "ui/widgets/option_widget.h"
#include "ui/widgets/section_panel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColumnaPunto = 0;
constexpr int kColumnaTitulo = 1;
constexpr int kColumnaCampo = 2;
constexpr int kColumnas = 3;
constexpr int kHolguraCampo = 18; // pixels: frame and margins around the letters
constexpr int kAltoTabla = 190;
constexpr int kCasillasSeguidas = 6; // as many check boxes stand in two columns

// The label that heads the column of amounts at the right.
constexpr QStringView kCabeceraDeImportes = u"EtiquetaValorEstimado";

struct IconoDeBoton
{
    QStringView nombre;
    QStringView icono;
};

// Small buttons beside a field: a picture says enough.
constexpr IconoDeBoton kIconos[] = {
    {u"BttFecha", u"calendario"},
    {u"BotonFicha", u"ficha"},
};

bool EsCampo(const ControlForma& fila)
{
    switch (fila.clase) {
    case ClaseControl::Texto:
    case ClaseControl::Fecha:
    case ClaseControl::Lista:
    case ClaseControl::ListaCerrada:
    case ClaseControl::Resultado:
        return true;
    default:
        return false;
    }
}

bool SonCasillasSolas(std::span<const ControlForma> filas)
{
    return std::all_of(filas.begin(), filas.end(), [](const ControlForma& f) {
        return f.clase == ClaseControl::Casilla && !f.mismaLinea && !f.titulo.isEmpty() && f.punto < 0;
    });
}

// One past the rows that share the line of the first one.
size_t FinDeLinea(std::span<const ControlForma> filas, size_t desde)
{
    size_t fin = desde + 1;
    while (fin < filas.size() && filas[fin].mismaLinea)
        ++fin;
    return fin;
}

QString NombreLegible(const ControlForma& fila)
{
    QString nombre = (fila.titulo.isEmpty() ? fila.ayuda : fila.titulo).toString().simplified();
    if (nombre.endsWith(u':'))
        nombre.chop(1);
    return nombre;
}

void FijarAncho(QWidget& widget, QStringView nombre)
{
    const int letras = AnchoDe(nombre).letras;
    if (letras > 0)
        widget.setFixedWidth(widget.fontMetrics().horizontalAdvance(u'0') * letras + kHolguraCampo);
}

// A free text without a caption says in grey what it is for.
void PonerPista(QWidget& widget, const ControlForma& fila, QStringView pista)
{
    auto* linea = qobject_cast<QLineEdit*>(&widget);
    if (linea && fila.titulo.isEmpty() && fila.clase == ClaseControl::Texto &&
        AnchoDe(fila.nombre).letras == 0)
        linea->setPlaceholderText(pista.toString());
}

} // namespace

PanelSeccion* ConstructorFormulario::Panel(const SeccionForma& seccion, QWidget* padre)
{
    auto* panel = new PanelSeccion(seccion.titulo.toString(), padre);
    if (seccion.apartado >= 0) {
        panel->PonerAnteTitulo(
            CasillaPerfil(u"chkApartados", seccion.apartado, seccion.titulo.toString(), panel));
    }
    if (SonCasillasSolas(seccion.controles)) {
        Casillas(seccion.controles, *panel);
    } else {
        Lineas(seccion.controles, *panel);
    }
    return panel;
}

void ConstructorFormulario::Casillas(Filas filas, PanelSeccion& panel)
{
    auto* rejilla = new QGridLayout;
    rejilla->setVerticalSpacing(medida::kEntreLineas);
    rejilla->setHorizontalSpacing(medida::kEntreCampos);
    const auto cuantas = static_cast<int>(filas.size());
    const int columnas = cuantas >= kCasillasSeguidas ? 2 : 1;
    const int alto = (cuantas + columnas - 1) / columnas;
    for (int i = 0; i < cuantas; ++i)
        rejilla->addWidget(Widget(filas[static_cast<size_t>(i)], &panel), i % alto, i / alto);
    for (int c = 0; c < columnas; ++c)
        rejilla->setColumnStretch(c, 1);
    panel.cuerpo()->addLayout(rejilla);
    panel.cuerpo()->addStretch();
}

void ConstructorFormulario::Lineas(Filas filas, PanelSeccion& panel)
{
    auto* rejilla = new QGridLayout;
    rejilla->setVerticalSpacing(medida::kEntreLineas);
    rejilla->setHorizontalSpacing(medida::kEntreCampos);
    rejilla->setColumnStretch(kColumnaCampo, 1);
    bool crece = false;
    for (size_t i = 0; i < filas.size();) {
        const size_t fin = FinDeLinea(filas, i);
        if (filas[i].opcion >= 0) {
            JuntoALaOpcion(filas[i], &panel);
        } else {
            Linea(filas.subspan(i, fin - i), *rejilla, &panel);
        }
        crece = crece || filas[i].clase == ClaseControl::Rejilla ||
                filas[i].clase == ClaseControl::TextoLargo || filas[i].clase == ClaseControl::Imagen;
        i = fin;
    }
    panel.cuerpo()->addLayout(rejilla, crece ? 1 : 0);
    if (!crece)
        panel.cuerpo()->addStretch();
}

void ConstructorFormulario::Linea(Filas fila, QGridLayout& rejilla, QWidget* panel)
{
    const ControlForma& primero = fila.front();
    const int linea = rejilla.rowCount();
    if (primero.punto >= 0) {
        rejilla.addWidget(CasillaPerfil(u"chkPuntos", primero.punto, NombreLegible(primero), panel), linea,
                          kColumnaPunto);
    }
    const bool conTitulo = EsCampo(primero) || (primero.clase == ClaseControl::Casilla && fila.size() > 1);
    if (!conTitulo)
        return LineaSuelta(fila, rejilla, panel);
    auto* caja = new QHBoxLayout;
    caja->setSpacing(medida::kEntreCampos);
    QWidget* widget = Widget(primero, panel);
    if (primero.clase == ClaseControl::Casilla) {
        rejilla.addWidget(widget, linea, kColumnaTitulo);
    } else {
        rejilla.addWidget(Rotulo(primero, panel), linea, kColumnaTitulo);
        caja->addWidget(widget);
    }
    Resto(fila.subspan(1), *caja, panel);
    if (primero.clase == ClaseControl::Casilla && primero.titulo.isEmpty())
        PonerPista(*enlazador_.de(fila[1].nombre), fila[1], primero.ayuda);
    rejilla.addLayout(caja, linea, kColumnaCampo);
}

QWidget* ConstructorFormulario::Rotulo(const ControlForma& fila, QWidget* panel)
{
    QLabel* rotulo = enlazador_.CrearEtiqueta(fila.nombre, panel);
    if (!fila.titulo.isEmpty())
        return rotulo;
    // Without a caption of its own the field is called by what its help says.
    rotulo->setText(NombreLegible(fila) + u':');
    rotulo->show();
    return rotulo;
}

void ConstructorFormulario::Resto(Filas fila, QHBoxLayout& caja, QWidget* panel)
{
    bool seExtiende = caja.count() > 0 && caja.itemAt(0)->widget()->maximumWidth() == QWIDGETSIZE_MAX;
    for (const ControlForma& otro : fila) {
        QWidget* widget = Widget(otro, panel);
        if (EsCampo(otro) && !otro.titulo.isEmpty())
            caja.addWidget(enlazador_.CrearEtiqueta(otro.nombre, panel));
        caja.addWidget(widget);
        seExtiende = seExtiende || (EsCampo(otro) && AnchoDe(otro.nombre).letras == 0);
    }
    if (!seExtiende)
        caja.addStretch();
}

void ConstructorFormulario::LineaSuelta(Filas fila, QGridLayout& rejilla, QWidget* panel)
{
    const ControlForma& primero = fila.front();
    QWidget* widget = Widget(primero, panel);
    const int linea = rejilla.rowCount() - (primero.punto >= 0 ? 1 : 0);
    if (auto* etiqueta = qobject_cast<QLabel*>(widget))
        etiqueta->setWordWrap(true);
    if (fila.size() > 1) {
        auto* caja = new QHBoxLayout;
        caja->setSpacing(medida::kEntreCampos);
        caja->addWidget(widget);
        Resto(fila.subspan(1), *caja, panel);
        rejilla.addLayout(caja, linea, kColumnaTitulo, 1, kColumnas - 1);
        return;
    }
    const bool aLaDerecha = primero.clase == ClaseControl::Boton || primero.nombre == kCabeceraDeImportes;
    rejilla.addWidget(widget, linea, kColumnaTitulo, 1, kColumnas - 1,
                      aLaDerecha ? Qt::AlignRight : Qt::Alignment());
    const bool crece = primero.clase == ClaseControl::Rejilla || primero.clase == ClaseControl::TextoLargo ||
                       primero.clase == ClaseControl::Imagen;
    rejilla.setRowStretch(linea, crece ? 1 : 0);
}

void ConstructorFormulario::JuntoALaOpcion(const ControlForma& fila, QWidget* panel)
{
    // The group is the last one that was laid out before the field.
    const auto grupos = panel->findChildren<GrupoBotones*>();
    QWidget* widget = Widget(fila, panel);
    PonerPista(*widget, fila, fila.ayuda);
    if (!grupos.isEmpty())
        grupos.back()->PonerJunto(fila.opcion, widget);
}

QWidget* ConstructorFormulario::Widget(const ControlForma& fila, QWidget* panel)
{
    for (const IconoDeBoton& boton : kIconos) {
        if (boton.nombre == fila.nombre) {
            auto* nuevo = CrearBotonIcono(enlazador_, fila.nombre, boton.icono.toString(), panel);
            nuevo->setFocusPolicy(Qt::StrongFocus);
            return nuevo;
        }
    }
    QWidget* widget = enlazador_.Crear(fila.nombre, panel);
    if (widget->accessibleName().isEmpty())
        widget->setAccessibleName(NombreLegible(fila));
    if (EsCampo(fila))
        FijarAncho(*widget, fila.nombre);
    if (fila.clase == ClaseControl::Rejilla)
        widget->setMinimumHeight(kAltoTabla);
    if (AnchoDe(fila.nombre).cifra) {
        if (auto* linea = qobject_cast<QLineEdit*>(widget))
            linea->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    return widget;
}

QWidget* ConstructorFormulario::CasillaPerfil(QStringView nombre, int indice, const QString& deQue,
                                              QWidget* panel)
{
    const QString casilla = Ventana::Indice(nombre, indice);
    QWidget* widget = enlazador_.Crear(casilla, panel);
    widget->setAccessibleName(u"En el informe: "_s + deQue);
    return widget;
}

} // namespace valmerix
