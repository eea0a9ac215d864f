#pragma once

#include "controls/text_field.h"

#include <QComboBox>
#include <QPointer>

namespace valmerix {

/// A list bound to its control: open, any text may be typed; closed, only its items chosen. The wheel turns
/// it only while it has the focus.
class CajaLista : public QComboBox
{
    Q_OBJECT

public:
    CajaLista(Lista& lista, QWidget* padre);

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;

private:
    void PrepararEscritura();
    void MostrarPresentacion();
    void MostrarElegido();
    void Elegir(int indice);
    bool Mover(int pasos);

    QPointer<Lista> lista_;
};

} // namespace valmerix
