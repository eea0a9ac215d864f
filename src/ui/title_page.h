#pragma once

#include "controls/window.h"

#include <QPointer>
#include <QToolButton>
#include <QWidget>

namespace valmerix {

/// The title: the picture behind, the name's letters appearing one by one over it, then the two lines under
/// them. A click anywhere on it ends the title.
class PaginaTitulo : public QWidget
{
    Q_OBJECT

public:
    PaginaTitulo(Ventana& ventana, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void PintarFondo(QPainter& pintor) const;
    void PintarLetras(QPainter& pintor) const;
    void PintarLinea(QPainter& pintor, QStringView etiqueta, const QRect& sitio, qreal tamaño) const;

    QPointer<Ventana> ventana_;
    QPixmap fondo_;
};

/// A big button for a kind, its two colours along the lower edge.
class BotonTipo : public QToolButton
{
    Q_OBJECT

public:
    BotonTipo(const QColor& uno, const QColor& otro, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QColor uno_;
    QColor otro_;
};

} // namespace valmerix
