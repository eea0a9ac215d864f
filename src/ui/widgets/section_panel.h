#pragma once

#include <QWidget>

class QBoxLayout;
class QHBoxLayout;
class QLabel;

namespace valmerix {

/// A titled panel with a thin edge.
class PanelSeccion : public QWidget
{
    Q_OBJECT

public:
    PanelSeccion(const QString& titulo, QWidget* padre);

    /// A widget at the left of the title, such as the box that leaves the section out of the report.
    void PonerAnteTitulo(QWidget* widget);
    void setTitulo(const QString& titulo);
    QLabel* titulo() const { return titulo_; }
    /// Where the panel's lines go.
    QBoxLayout* cuerpo() const { return cuerpo_; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QHBoxLayout* cabeza_;
    QLabel* titulo_;
    QBoxLayout* cuerpo_;
};

} // namespace valmerix
