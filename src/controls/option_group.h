#pragma once

#include "controls/control.h"

#include <QStringList>

namespace valmerix {

/// An array of options of which at most one is set. Indexes run from 0.
class GrupoOpciones : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    int Count() const { return static_cast<int>(titulos_.size()); }
    const QStringList& titulos() const { return titulos_; }
    void setTitulos(const QStringList& titulos);

    /// Index of the set option, -1 when none is.
    int elegida() const { return elegida_; }
    bool Value(int indice) const { return indice == elegida_ && indice >= 0; }

    /// Sets an option and clears the others; raises Click when it was not set before. An index outside the
    /// array is ignored.
    void Elegir(int indice);
    /// Clears them all, without an event.
    void Quitar();
    /// The user's click; nothing while disabled.
    void Pulsar(int indice);

Q_SIGNALS:
    void Click(int indice);

private:
    QStringList titulos_;
    int elegida_ = -1;
};

/// Index that a save writes: that of the set option, 0 when none is.
int BuscaOpcion(const GrupoOpciones& opciones);

} // namespace valmerix
