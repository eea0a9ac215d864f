#pragma once

#include "controls/control.h"

#include <QStringList>
#include <vector>

namespace valmerix {

/// The tick of a grid cell; padding rows have none.
enum class MarcaCelda : char { Ninguna, Desmarcada, Marcada };

/// A table of text cells. Row 0 is the header; column 0 is usually hidden (width 0) and holds the key.
class Rejilla : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    int Rows() const { return static_cast<int>(filas_.size()); }
    int Cols() const { return static_cast<int>(anchos_.size()); }
    /// Cuts the rows or adds empty ones; at least the header stays.
    void setRows(int filas);
    /// Names and widths (in twips, 0 hidden) of the columns; leaves the header row only.
    void setColumnas(const QStringList& titulos, const std::vector<int>& anchos);
    int ColWidth(int columna) const { return anchos_[static_cast<size_t>(columna)]; }

    /// Empty for a cell outside the table.
    QString TextMatrix(int fila, int columna) const;
    void setTextMatrix(int fila, int columna, const QString& texto);

    /// One row from a tab-joined line, at the end or at `indice` (from 1).
    void AddItem(const QString& linea, int indice = -1);
    /// Removes a data row; the header cannot be removed.
    void RemoveItem(int fila);
    /// Adds empty rows until there are `filas` in all.
    void Rellenar(int filas);

    MarcaCelda marca(int fila) const;
    void setMarca(int fila, MarcaCelda marca);

    int Row() const { return fila_; }
    void setRow(int fila);

    /// Views hold back while redraw is off; turning it on tells them once.
    bool Redraw() const { return redibujar_; }
    void setRedraw(bool valor);

    void Pulsar(int fila);
    void DoblePulsar(int fila);
    void SoltarTecla(int tecla) { Q_EMIT KeyUp(tecla); }

Q_SIGNALS:
    void Click();
    void DblClick();
    void KeyUp(int tecla);
    /// Rows or cells changed (only while redraw is on).
    void ContenidoCambiado();

private:
    struct Fila
    {
        QStringList celdas;
        MarcaCelda marca = MarcaCelda::Ninguna;
    };

    void Avisar();

    std::vector<Fila> filas_{Fila{}};
    std::vector<int> anchos_;
    int fila_ = 0;
    bool redibujar_ = true;
};

} // namespace valmerix
