#include "ui/question_view.h"

#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kIcono = 40;
constexpr int kAnchoTexto = 360;
constexpr qreal kLetraTitulo = 1.25; // of the common size

} // namespace

VistaPregunta::VistaPregunta(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    CerrarConEscape();
    auto* icono = new QLabel(this);
    icono->setPixmap(style()
                         ->standardIcon(QStyle::SP_MessageBoxQuestion)
                         .pixmap(QSize(kIcono, kIcono), devicePixelRatioF()));
    auto* pregunta = dynamic_cast<QLabel*>(enlazador().Crear(u"Label1", this));
    QFont letra = pregunta->font();
    letra.setBold(true);
    letra.setPointSizeF(letra.pointSizeF() * kLetraTitulo);
    pregunta->setFont(letra);
    auto* explicacion = dynamic_cast<QLabel*>(enlazador().Crear(u"Label2", this));
    explicacion->setWordWrap(true);
    explicacion->setMinimumWidth(kAnchoTexto);

    auto* textos = new QVBoxLayout;
    textos->setSpacing(medida::kEntreLineas + 2);
    textos->addWidget(pregunta);
    textos->addWidget(explicacion);
    textos->addStretch();
    auto* arriba = new QHBoxLayout;
    arriba->setSpacing(medida::kBorde);
    arriba->addWidget(icono, 0, Qt::AlignTop);
    arriba->addLayout(textos, 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    std::vector<Control*> pulsables;
    for (const QStringView nombre : {u"SSCommand1", u"SSCommand2"}) {
        QWidget* boton = enlazador().Crear(nombre, this);
        botones->addWidget(boton);
        pulsables.push_back(&ventana.control(nombre));
        // A hasty Return changes nothing.
        if (ventana.control(nombre).Caption() == u"NO")
            boton->setFocus();
    }
    RepartirMnemonicos(enlazador(), pulsables);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde + 4, medida::kBorde + 4, medida::kBorde + 4, medida::kBorde);
    todo->setSpacing(medida::kBorde);
    todo->addLayout(arriba);
    todo->addLayout(botones);
}

} // namespace valmerix
