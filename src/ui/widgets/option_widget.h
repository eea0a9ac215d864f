#pragma once

#include "controls/option_group.h"

#include <QPointer>
#include <QRadioButton>
#include <QWidget>
#include <vector>

class QButtonGroup;
class QBoxLayout;

namespace valmerix {

/// An array of options as radio buttons, one under the other, each with room at its right for the free text
/// that belongs to it.
class GrupoBotones : public QWidget
{
    Q_OBJECT

public:
    GrupoBotones(GrupoOpciones& opciones, QWidget* padre);

    int cuenta() const { return static_cast<int>(botones_.size()); }
    QRadioButton* boton(int indice) const { return botones_.at(static_cast<size_t>(indice)); }
    /// Puts a widget at the right of an option.
    void PonerJunto(int indice, QWidget* widget);

Q_SIGNALS:
    /// The buttons were made afresh.
    void BotonesCambiados();

private:
    void Rehacer();
    void Mostrar();

    QPointer<GrupoOpciones> opciones_;
    QButtonGroup* grupo_;
    QBoxLayout* disposicion_;
    std::vector<QRadioButton*> botones_;
    std::vector<QBoxLayout*> lineas_;
};

} // namespace valmerix
