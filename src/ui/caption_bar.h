#pragma once

#include "ui/binder.h"

#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QHBoxLayout;
class QLabel;

namespace valmerix {

/// The caption bar of a frameless window: the text of a label control, the mark of changes that are stored
/// nowhere, the window's own buttons, and the place by which the window is dragged.
class CabeceraVentana : public QWidget
{
    Q_OBJECT

public:
    /// `etiqueta`: name of the control with the caption's text.
    CabeceraVentana(Enlazador& enlazador, QStringView etiqueta, QWidget* padre);

    /// A button at the right, behind those already there, that shows a picture only.
    QAbstractButton* PonerBoton(QStringView nombre, const QString& icono);
    /// A gap between the buttons.
    void PonerHueco();
    /// The colours of the kind, painted along the left edge.
    void PonerColores(const QColor& uno, const QColor& otro);
    void PonerIcono(const QIcon& icono);

Q_SIGNALS:
    void DobleClic();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    void PonerMarca();

    Enlazador& enlazador_;
    QHBoxLayout* fila_;
    QLabel* icono_;
    QLabel* titulo_;
    QColor color1_;
    QColor color2_;
};

/// A button that shows only a picture; the control's caption is read to who cannot see it.
QAbstractButton* CrearBotonIcono(Enlazador& enlazador, QStringView nombre, const QString& icono,
                                 QWidget* padre);

} // namespace valmerix
