#pragma once

#include "controls/window.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class QAbstractButton;
class QLabel;
class QWidget;

namespace valmerix {

/// Ties the controls of a window to widgets, both ways: names, captions, state, looks, texts, choices, focus.
/// It holds no rule: what a control does is told by its window.
class Enlazador : public QObject
{
    Q_OBJECT

public:
    explicit Enlazador(Ventana& ventana, QObject* padre = nullptr);

    Ventana* ventana() const { return ventana_; }

    /// Makes the widget that suits the control and ties it. Throws std::out_of_range for an unknown name.
    QWidget* Crear(QStringView nombre, QWidget* padre);
    template <class W>
    W* como(QStringView nombre, QWidget* padre)
    {
        return dynamic_cast<W*>(Crear(nombre, padre));
    }

    /// A label with the caption of a control, that shows and hides with it and whose mnemonic leads to it.
    QLabel* CrearEtiqueta(QStringView nombre, QWidget* padre);

    /// Ties what every control has to a widget that the view has made and filled itself.
    void Atar(Control& control, QWidget* widget);
    /// The same for a button of another make than the common one, whose clicks are the control's.
    void AtarBoton(Boton& boton, QAbstractButton* widget);
    /// The widget of a control, null when the view has none for it.
    QWidget* de(const Control* control) const { return widgets_.value(control); }
    QWidget* de(QStringView nombre) const;

    /// Puts the window's focus where its model says.
    void MostrarFoco();
    /// The letter behind "&" that a control's caption gets on screen; a null one takes it away.
    void PonerMnemonico(const Control& control, QChar letra);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QWidget* Fabricar(Control& control, QWidget* padre);
    void Mostrar(const Control& control, QWidget& widget);
    void MostrarTitulo(const Control& control, QWidget& widget) const;
    void AtarFoco(Control& control, QWidget* widget);
    void AtarTemporizadores();

    QPointer<Ventana> ventana_;
    QHash<const Control*, QWidget*> widgets_;
    QHash<const QObject*, Control*> porFoco_;
    QHash<const Control*, QChar> mnemonicos_;
};

/// A caption for the screen: its own "&" doubled, the mnemonic's letter marked.
QString ConMnemonico(const QString& texto, QChar letra);

/// Gives each of the controls a letter of its caption that no other one has; those without a free letter go
/// without. `ocupadas`: letters that the window uses otherwise.
void RepartirMnemonicos(Enlazador& enlazador, const std::vector<Control*>& controles, QString ocupadas = {});

} // namespace valmerix
