#include "ui/binder.h"

#include "ui/look/application.h"
#include "ui/look/theme.h"
#include "ui/widgets/option_widget.h"
#include "ui/widgets/widget_factory.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QString SinDosPuntos(QString titulo)
{
    if (titulo.endsWith(u':'))
        titulo.chop(1);
    return titulo.simplified();
}

// The area's own procedure would do with the caret of a field.
void MostrarEntero(QScrollArea& zona, const QWidget& widget)
{
    const QRect sitio(widget.mapTo(zona.widget(), QPoint()), widget.size());
    zona.ensureVisible(sitio.right(), sitio.bottom(), medida::kBorde, medida::kBorde);
    zona.ensureVisible(sitio.left(), sitio.top(), medida::kBorde, medida::kBorde);
}

// Brings the page and the place where a widget lies before her eyes.
void SacarALaVista(QWidget& widget)
{
    for (QWidget* w = &widget; w->parentWidget(); w = w->parentWidget()) {
        if (auto* pila = qobject_cast<QStackedWidget*>(w->parentWidget());
            pila && pila->currentWidget() != w) {
            auto* solapas = qobject_cast<QTabWidget*>(pila->parentWidget());
            solapas ? solapas->setCurrentWidget(w) : pila->setCurrentWidget(w);
        }
    }
    for (QWidget* w = widget.parentWidget(); w; w = w->parentWidget()) {
        if (auto* zona = qobject_cast<QScrollArea*>(w))
            MostrarEntero(*zona, widget);
    }
}

QWidget* ReceptorDeFoco(QWidget* widget)
{
    auto* grupo = qobject_cast<GrupoBotones*>(widget);
    if (!grupo)
        return widget;
    for (int i = 0; i < grupo->cuenta(); ++i) {
        if (grupo->boton(i)->isChecked())
            return grupo->boton(i);
    }
    return grupo->cuenta() > 0 ? grupo->boton(0) : widget;
}

} // namespace

Enlazador::Enlazador(Ventana& ventana, QObject* padre)
    : QObject(padre)
    , ventana_(&ventana)
{
    connect(&ventana, &Ventana::FocoCambiado, this, &Enlazador::MostrarFoco);
    AtarTemporizadores();
}

QWidget* Enlazador::de(QStringView nombre) const
{
    return ventana_ ? de(ventana_->buscar(nombre)) : nullptr;
}

QWidget* Enlazador::Crear(QStringView nombre, QWidget* padre)
{
    return Fabricar(ventana_->control(nombre), padre);
}

QWidget* Enlazador::Fabricar(Control& control, QWidget* padre)
{
    QWidget* nuevo = FabricarWidget(control, padre);
    if (nuevo)
        Atar(control, nuevo);
    return nuevo;
}

void Enlazador::Atar(Control& control, QWidget* widget)
{
    widgets_.insert(&control, widget);
    widget->setObjectName(control.nombre());
    connect(&control, &Control::PresentacionCambiada, this, [this, &control, vivo = QPointer(widget)] {
        if (vivo)
            Mostrar(control, *vivo);
    });
    Mostrar(control, *widget);
    AtarFoco(control, widget);
    if (auto* grupo = qobject_cast<GrupoBotones*>(widget)) {
        const auto atar = [this, grupo, &control] {
            for (int i = 0; i < grupo->cuenta(); ++i)
                AtarFoco(control, grupo->boton(i));
        };
        connect(grupo, &GrupoBotones::BotonesCambiados, this, atar);
        atar();
    }
    if (auto* solapas = qobject_cast<QTabWidget*>(widget))
        AtarFoco(control, solapas->tabBar());
}

void Enlazador::AtarBoton(Boton& boton, QAbstractButton* widget)
{
    Atar(boton, widget);
    connect(widget, &QAbstractButton::clicked, &boton, [&boton] { Protegido([&] { boton.Pulsar(); }); });
}

void Enlazador::AtarFoco(Control& control, QWidget* widget)
{
    porFoco_.insert(widget, &control);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this](QObject* muerto) { porFoco_.remove(muerto); });
}

void Enlazador::Mostrar(const Control& control, QWidget& widget)
{
    MostrarTitulo(control, widget);
    const QString atajo = widget.property("atajo").toString();
    widget.setToolTip(atajo.isEmpty() ? control.ToolTip() : control.ToolTip() + u" ("_s + atajo + u')');
    widget.setEnabled(control.Enabled());
    if (widget.parentWidget())
        widget.setVisible(control.Visible());
    const auto aspecto = static_cast<int>(control.aspecto());
    if (widget.property("aspecto").toInt() == aspecto)
        return;
    widget.setProperty("aspecto", aspecto);
    widget.setPalette(PaletaDe(control.aspecto(), QApplication::palette()));
}

void Enlazador::MostrarTitulo(const Control& control, QWidget& widget) const
{
    if (!control.Caption().isEmpty())
        widget.setAccessibleName(SinDosPuntos(control.Caption()));
    if (widget.property("soloIcono").toBool())
        return;
    if (auto* boton = qobject_cast<QAbstractButton*>(&widget)) {
        boton->setText(ConMnemonico(control.Caption(), mnemonicos_.value(&control)));
    } else if (auto* etiqueta = qobject_cast<QLabel*>(&widget)) {
        etiqueta->setText(control.Caption());
    }
}

QLabel* Enlazador::CrearEtiqueta(QStringView nombre, QWidget* padre)
{
    Control& control = ventana_->control(nombre);
    auto* etiqueta = new QLabel(padre);
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setBuddy(de(&control));
    const auto mostrar = [this, &control, viva = QPointer(etiqueta)] {
        if (!viva)
            return;
        viva->setText(ConMnemonico(control.Caption(), mnemonicos_.value(&control)));
        viva->setVisible(control.Visible() && !control.Caption().isEmpty());
        viva->setEnabled(control.Enabled());
    };
    connect(&control, &Control::PresentacionCambiada, this, mostrar);
    mostrar();
    return etiqueta;
}

void Enlazador::PonerMnemonico(const Control& control, QChar letra)
{
    mnemonicos_.insert(&control, letra);
    if (QWidget* widget = de(&control))
        MostrarTitulo(control, *widget);
}

void Enlazador::MostrarFoco()
{
    if (!ventana_)
        return;
    const Control* control = ventana_->conFoco();
    QWidget* widget = ReceptorDeFoco(de(control));
    if (!widget) {
        for (QWidget* w : std::as_const(widgets_)) {
            if (QWidget* conFoco = w->window()->focusWidget();
                conFoco && porFoco_.contains(conFoco) && !control)
                return conFoco->clearFocus();
        }
        return;
    }
    SacarALaVista(*widget);
    QWidget* actual = widget->window()->focusWidget();
    if (actual && porFoco_.value(actual) == control)
        return;
    widget->setFocus(Qt::OtherFocusReason);
}

bool Enlazador::eventFilter(QObject* objeto, QEvent* evento)
{
    // Losing it says nothing: a menu, a list or another window takes it for a while. The next one that gets
    // it ends the field's turn.
    if (evento->type() == QEvent::FocusIn && ventana_ && ventana_->abierta()) {
        if (Control* control = porFoco_.value(objeto))
            Protegido([&] { ventana_->Enfocar(control); });
        // One that the arrows reach inside its group, or that only shows a result, is no news to the window.
        auto* widget = qobject_cast<QWidget*>(objeto);
        if (widget && static_cast<const QFocusEvent*>(evento)->reason() != Qt::MouseFocusReason)
            SacarALaVista(*widget);
    }
    return QObject::eventFilter(objeto, evento);
}

void Enlazador::AtarTemporizadores()
{
    for (const auto& control : ventana_->controles()) {
        auto* reloj = qobject_cast<Temporizador*>(control.get());
        if (!reloj)
            continue;
        auto* pulso = new QTimer(this);
        const auto ajustar = [reloj, pulso] {
            if (!reloj->Enabled() || reloj->Interval() <= 0) {
                pulso->stop();
            } else if (!pulso->isActive() || pulso->interval() != reloj->Interval()) {
                pulso->start(reloj->Interval());
            }
        };
        connect(reloj, &Control::PresentacionCambiada, pulso, ajustar);
        connect(pulso, &QTimer::timeout, reloj, [this, reloj] {
            if (ventana_ && ventana_->abierta())
                Protegido([&] { reloj->Tic(); });
        });
        ajustar();
    }
}

} // namespace valmerix
