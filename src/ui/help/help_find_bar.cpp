#include "ui/help/help_find_bar.h"

#include "ui/help/help_page.h"
#include "ui/look/icons.h"
#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

BarraEnPagina::BarraEnPagina(PaginaAyuda& pagina, QWidget* padre)
    : QWidget(padre)
    , pagina_(pagina)
    , texto_(new QLineEdit(this))
    , resultado_(new QLabel(this))
{
    auto* rotulo = new QLabel(u"En esta página:"_s, this);
    rotulo->setBuddy(texto_);
    texto_->setAccessibleName(u"Buscar en esta página"_s);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(medida::kBorde, medida::kEntreLineas, medida::kBorde, medida::kEntreLineas);
    fila->addWidget(rotulo);
    fila->addWidget(texto_, 1);
    CrearBoton(u"anterior"_s, u"Anterior"_s, QKeySequence(Qt::SHIFT | Qt::Key_F3), true);
    CrearBoton(u"siguiente"_s, u"Siguiente"_s, QKeySequence(Qt::Key_F3), false);
    fila->addWidget(resultado_, 1);
    connect(texto_, &QLineEdit::returnPressed, this, [this] { Buscar(false); });
    hide();
}

void BarraEnPagina::CrearBoton(const QString& icono, const QString& titulo, const QKeySequence& atajo,
                               bool haciaAtras)
{
    auto* boton = new QToolButton(this);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    boton->setIcon(Icono(icono));
    boton->setAccessibleName(titulo);
    boton->setToolTip(titulo + u" ("_s + atajo.toString(QKeySequence::NativeText) + u')');
    layout()->addWidget(boton);
    connect(boton, &QToolButton::clicked, this, [this, haciaAtras] { Buscar(haciaAtras); });
    // The keys are the window's: they also bring the bar up.
    connect(new QShortcut(atajo, parentWidget()), &QShortcut::activated, this,
            [this, haciaAtras] { Buscar(haciaAtras); });
}

void BarraEnPagina::Pedir()
{
    show();
    texto_->setFocus(Qt::ShortcutFocusReason);
    texto_->selectAll();
}

void BarraEnPagina::Buscar(bool haciaAtras)
{
    if (!isVisible() || texto_->text().isEmpty())
        return Pedir();
    const int veces = pagina_.Cuenta(texto_->text());
    pagina_.Buscar(texto_->text(), haciaAtras);
    resultado_->setText(veces == 0   ? u"No está en esta página"_s
                        : veces == 1 ? u"1 vez"_s
                                     : u"%1 veces"_s.arg(veces));
}

void BarraEnPagina::Olvidar()
{
    resultado_->clear();
}

} // namespace valmerix
