#pragma once

#include "controls/rich_text.h"

#include <QPointer>
#include <QTextEdit>

namespace valmerix {

/// The report on screen: bold stretches and alignments of its control, edited by her once it is unlocked.
class EditorInforme : public QTextEdit
{
    Q_OBJECT

public:
    EditorInforme(TextoEnriquecido& texto, QWidget* padre);

    /// Brings the screen up to date with the control at once. Otherwise many marks in a row are drawn
    /// together, when the events run.
    void Sincronizar();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void insertFromMimeData(const QMimeData* datos) override;
    QMimeData* createMimeDataFromSelection() const override;
    void paintEvent(QPaintEvent* evento) override;

private:
    void Aplazar();
    void MostrarContenido();
    void MostrarSeleccion();
    void MostrarCandado();
    void TomarEdicion(int posicion, int quitados, int puestos);
    void TomarSeleccion();

    QPointer<TextoEnriquecido> texto_;
    bool contenidoViejo_ = true;
    bool seleccionVieja_ = false;
    bool alPrincipio_ = false;
    bool aplazado_ = false;
    bool sincronizando_ = false;
};

} // namespace valmerix
