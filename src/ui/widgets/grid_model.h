#pragma once

#include "controls/grid.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <QTableView>

namespace valmerix {

/// The data rows of a grid for the view, without a copy. Row 0 of the grid is the header.
class ModeloRejilla : public QAbstractTableModel
{
    Q_OBJECT

public:
    ModeloRejilla(Rejilla& rejilla, QObject* padre);

    int rowCount(const QModelIndex& padre) const override;
    int columnCount(const QModelIndex& padre) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// First column that shows, where the tick of a row stands.
    int primeraVisible() const;

private:
    QPointer<Rejilla> rejilla_;
};

/// A grid on screen.
class TablaRejilla : public QTableView
{
    Q_OBJECT

public:
    TablaRejilla(Rejilla& rejilla, QWidget* padre);

    /// Coming to a row with the arrow keys is a click on it. Otherwise the space bar is.
    void setElegirAlPasar(bool valor) { elegirAlPasar_ = valor; }

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;

private:
    void AjustarColumnas();
    void MostrarFila();

    QPointer<Rejilla> rejilla_;
    ModeloRejilla* modelo_;
    bool elegirAlPasar_ = false;
};

} // namespace valmerix
