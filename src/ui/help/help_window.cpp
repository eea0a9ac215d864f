#include "ui/help/help_window.h"

#include "ui/help/help_find_bar.h"
#include "ui/help/help_page.h"
#include "ui/look/icons.h"
#include "ui/look/theme.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamaño(1040, 720);
constexpr int kAnchoIndice = 290;
constexpr int kAireDeLinea = 8;
constexpr QSize kIcono(22, 22);
constexpr int kEnPagina = Qt::UserRole;    ///< name of the page
constexpr int kEnAncla = Qt::UserRole + 1; ///< place in it

QTreeWidgetItem* Rama(const QString& titulo, const QString& pagina, const QString& ancla)
{
    auto* rama = new QTreeWidgetItem({titulo});
    rama->setData(0, kEnPagina, pagina);
    rama->setData(0, kEnAncla, ancla);
    rama->setToolTip(0, titulo);
    rama->setSizeHint(0, QSize(0, QFontMetrics(QApplication::font()).height() + kAireDeLinea));
    return rama;
}

} // namespace

VentanaAyuda::VentanaAyuda()
    : QWidget(nullptr, Qt::Window)
    , pagina_(new PaginaAyuda(this))
    , enPagina_(new BarraEnPagina(*pagina_, this))
{
    setObjectName(u"Ayuda"_s);
    setWindowTitle(u"Valmerix - Manual"_s);
    setWindowIcon(Icono(u"ayuda"_s));
    auto* derecha = new QWidget(this);
    auto* columna = new QVBoxLayout(derecha);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(pagina_, 1);
    columna->addWidget(enPagina_);
    auto* partes = new QSplitter(this);
    partes->addWidget(Indice());
    partes->addWidget(derecha);
    partes->setStretchFactor(1, 1);
    partes->setChildrenCollapsible(false);
    partes->setSizes({kAnchoIndice, kTamaño.width() - kAnchoIndice});
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(0);
    todo->addWidget(Barra());
    todo->addWidget(partes, 1);
    CrearAtajos();
    connect(pagina_, &QTextBrowser::sourceChanged, this, &VentanaAyuda::SeguirPagina);
    resize(kTamaño.boundedTo(screen()->availableSize()));
}

QToolButton* VentanaAyuda::CrearBoton(const QString& icono, const QString& titulo, const QKeySequence& atajo)
{
    auto* boton = new QToolButton(this);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    boton->setIcon(Icono(icono));
    boton->setIconSize(kIcono);
    boton->setAccessibleName(titulo);
    boton->setToolTip(titulo + u" ("_s + atajo.toString(QKeySequence::NativeText) + u')');
    auto* tecla = new QShortcut(atajo, this);
    connect(tecla, &QShortcut::activated, boton, &QToolButton::click);
    return boton;
}

QWidget* VentanaAyuda::Barra()
{
    auto* barra = new QWidget(this);
    auto* fila = new QHBoxLayout(barra);
    fila->setContentsMargins(medida::kBorde, medida::kEntreLineas, medida::kBorde, medida::kEntreLineas);
    fila->setSpacing(medida::kEntreLineas);
    atras_ = CrearBoton(u"anterior"_s, u"Página anterior"_s, QKeySequence(u"Alt+Left"_s));
    adelante_ = CrearBoton(u"siguiente"_s, u"Página siguiente"_s, QKeySequence(u"Alt+Right"_s));
    auto* inicio = CrearBoton(u"ayuda"_s, u"Primera página del manual"_s, QKeySequence(u"Alt+Home"_s));
    auto* menor = CrearBoton(u"alejar"_s, u"Letra menor"_s, QKeySequence(u"Ctrl+-"_s));
    auto* mayor = CrearBoton(u"acercar"_s, u"Letra mayor"_s, QKeySequence(u"Ctrl++"_s));
    auto* buscar = CrearBoton(u"buscar"_s, u"Buscar en esta página"_s, QKeySequence(u"Ctrl+F"_s));
    connect(atras_, &QToolButton::clicked, pagina_, &QTextBrowser::backward);
    connect(adelante_, &QToolButton::clicked, pagina_, &QTextBrowser::forward);
    connect(pagina_, &QTextBrowser::backwardAvailable, atras_, &QToolButton::setEnabled);
    connect(pagina_, &QTextBrowser::forwardAvailable, adelante_, &QToolButton::setEnabled);
    connect(inicio, &QToolButton::clicked, this, [this] {
        if (manual_)
            pagina_->Mostrar(manual_->paginas().front().nombre);
    });
    connect(menor, &QToolButton::clicked, pagina_, [this] { pagina_->zoomOut(); });
    connect(mayor, &QToolButton::clicked, pagina_, [this] { pagina_->zoomIn(); });
    connect(buscar, &QToolButton::clicked, enPagina_, &BarraEnPagina::Pedir);
    for (QWidget* boton : {atras_, adelante_, inicio})
        fila->addWidget(boton);
    fila->addStretch();
    for (QWidget* boton : {menor, mayor, buscar})
        fila->addWidget(boton);
    atras_->setEnabled(false);
    adelante_->setEnabled(false);
    return barra;
}

QWidget* VentanaAyuda::Indice()
{
    auto* indice = new QWidget(this);
    auto* columna = new QVBoxLayout(indice);
    columna->setContentsMargins(medida::kBorde, 0, medida::kEntreCampos, medida::kBorde);
    columna->setSpacing(medida::kEntreLineas);
    busqueda_ = new QLineEdit(indice);
    busqueda_->setPlaceholderText(u"Buscar en el manual"_s);
    busqueda_->setAccessibleName(u"Buscar en el manual"_s);
    busqueda_->setToolTip(u"Buscar en todo el manual (Ctrl+Mayús+F)"_s);
    busqueda_->setClearButtonEnabled(true);
    busqueda_->setFixedHeight(busqueda_->sizeHint().height() + 2);
    contenido_ = new QTreeWidget(indice);
    contenido_->setHeaderHidden(true);
    contenido_->setAccessibleName(u"Contenido del manual"_s);
    hallazgos_ = new QListWidget(indice);
    hallazgos_->setWordWrap(true);
    hallazgos_->setSpacing(medida::kEntreLineas / 2);
    hallazgos_->setAccessibleName(u"Resultados de la búsqueda"_s);
    cuenta_ = new QLabel(indice);
    cuenta_->setVisible(false);
    partes_ = new QStackedWidget(indice);
    partes_->addWidget(contenido_);
    partes_->addWidget(hallazgos_);
    columna->addWidget(busqueda_);
    columna->addWidget(cuenta_);
    columna->addWidget(partes_, 1);
    connect(busqueda_, &QLineEdit::textChanged, this, &VentanaAyuda::BuscarEnManual);
    connect(busqueda_, &QLineEdit::returnPressed, this, &VentanaAyuda::AbrirHallazgo);
    connect(contenido_, &QTreeWidget::currentItemChanged, this, &VentanaAyuda::AbrirDelContenido);
    connect(hallazgos_, &QListWidget::currentItemChanged, this, &VentanaAyuda::AbrirHallazgo);
    return indice;
}

void VentanaAyuda::CrearAtajos()
{
    auto* enManual = new QShortcut(QKeySequence(u"Ctrl+Shift+F"_s), this);
    connect(enManual, &QShortcut::activated, this, [this] {
        busqueda_->setFocus(Qt::ShortcutFocusReason);
        busqueda_->selectAll();
    });
    auto* normal = new QShortcut(QKeySequence(u"Ctrl+0"_s), this);
    connect(normal, &QShortcut::activated, this, [this] { pagina_->setFont(QApplication::font()); });
}

void VentanaAyuda::Abrir(std::shared_ptr<const Manual> manual, const QString& pagina)
{
    if (manual_ != manual) {
        manual_ = std::move(manual);
        pagina_->setManual(manual_);
        LlenarContenido();
    }
    if (!pagina.isEmpty() || pagina_->pagina().isEmpty())
        pagina_->Mostrar(pagina.isEmpty() ? manual_->paginas().front().nombre : pagina);
    if (!isVisible())
        contenido_->setFocus();
}

void VentanaAyuda::LlenarContenido()
{
    const QSignalBlocker callado(contenido_);
    contenido_->clear();
    for (const PaginaManual& p : manual_->paginas()) {
        QTreeWidgetItem* rama = Rama(p.titulo, p.nombre, {});
        for (const SeccionManual& s : p.secciones) {
            if (!s.ancla.isEmpty())
                rama->addChild(Rama(s.titulo, p.nombre, s.ancla));
        }
        contenido_->addTopLevelItem(rama);
    }
}

void VentanaAyuda::AbrirDelContenido()
{
    if (const QTreeWidgetItem* rama = contenido_->currentItem())
        pagina_->Mostrar(rama->data(0, kEnPagina).toString(), rama->data(0, kEnAncla).toString());
}

void VentanaAyuda::SeguirPagina(const QUrl& url)
{
    const QString pagina = PaginaAyuda::NombreDe(url);
    const QSignalBlocker callado(contenido_);
    for (int i = 0; i < contenido_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* rama = contenido_->topLevelItem(i);
        if (rama->data(0, kEnPagina).toString() != pagina)
            continue;
        rama->setExpanded(true);
        QTreeWidgetItem* aqui = rama;
        for (int j = 0; j < rama->childCount(); ++j) {
            if (rama->child(j)->data(0, kEnAncla).toString() == url.fragment())
                aqui = rama->child(j);
        }
        contenido_->setCurrentItem(aqui);
        contenido_->scrollToItem(aqui);
    }
    enPagina_->Olvidar();
}

void VentanaAyuda::BuscarEnManual(const QString& texto)
{
    const QSignalBlocker callado(hallazgos_);
    hallazgos_->clear();
    const bool buscando = !texto.trimmed().isEmpty();
    partes_->setCurrentWidget(buscando ? static_cast<QWidget*>(hallazgos_) : contenido_);
    cuenta_->setVisible(buscando);
    if (!buscando || !manual_)
        return;
    const std::vector<HallazgoManual> hallados = manual_->Buscar(texto);
    for (const HallazgoManual& h : hallados) {
        auto* linea = new QListWidgetItem(h.titulo + u'\n' + h.extracto, hallazgos_);
        linea->setData(kEnPagina, h.pagina);
        linea->setData(kEnAncla, h.ancla);
    }
    cuenta_->setText(hallados.empty()       ? u"Nada en el manual lo dice así"_s
                     : hallados.size() == 1 ? u"1 resultado"_s
                                            : u"%1 resultados"_s.arg(hallados.size()));
}

void VentanaAyuda::AbrirHallazgo()
{
    if (partes_->currentWidget() != hallazgos_ || hallazgos_->count() == 0)
        return;
    const QListWidgetItem* linea =
        hallazgos_->currentItem() ? hallazgos_->currentItem() : hallazgos_->item(0);
    pagina_->Mostrar(linea->data(kEnPagina).toString(), linea->data(kEnAncla).toString());
    pagina_->Buscar(busqueda_->text().trimmed(), false);
}

void VentanaAyuda::keyPressEvent(QKeyEvent* evento)
{
    const bool flechas = evento->key() == Qt::Key_Down && busqueda_->hasFocus();
    if (flechas && partes_->currentWidget() == hallazgos_ && hallazgos_->count() > 0) {
        hallazgos_->setFocus();
        hallazgos_->setCurrentRow(0);
        return;
    }
    if (evento->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(evento);
    if (enPagina_->isVisible()) {
        enPagina_->hide();
        pagina_->setFocus();
    } else if (!busqueda_->text().isEmpty()) {
        busqueda_->clear();
        contenido_->setFocus();
    } else {
        close();
    }
}

} // namespace valmerix
