#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace valmerix {

class PaginaAyuda;

/// Find in the page of the manual, hidden until it is asked for: Ctrl+F, then F3 and Shift+F3.
class BarraEnPagina : public QWidget
{
    Q_OBJECT

public:
    BarraEnPagina(PaginaAyuda& pagina, QWidget* padre);

    /// Shows itself and takes the focus.
    void Pedir();
    /// The next place or the one before; asks for a text first when there is none.
    void Buscar(bool haciaAtras);
    /// Another page has come into view.
    void Olvidar();
    QLineEdit* texto() const { return texto_; }

private:
    void CrearBoton(const QString& icono, const QString& titulo, const QKeySequence& atajo, bool haciaAtras);

    PaginaAyuda& pagina_;
    QLineEdit* texto_;
    QLabel* resultado_;
};

} // namespace valmerix
