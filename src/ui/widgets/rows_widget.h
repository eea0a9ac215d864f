#pragma once

#include "controls/text_field.h"

#include <QListWidget>
#include <QPointer>

namespace valmerix {

/// A list whose items all stand in sight. Which gesture chooses an item depends on what choosing does: going
/// somewhere takes a double click or Return, looking at something only a click or an arrow key.
class CajaFilas : public QListWidget
{
    Q_OBJECT

public:
    enum class Gesto { Sencillo, Doble };

    CajaFilas(Lista& lista, Gesto gesto, QWidget* padre);

private:
    void Mostrar();
    void Elegir(int fila);

    QPointer<Lista> lista_;
};

} // namespace valmerix
