#pragma once

#include "controls/tree.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QPointer>
#include <QTreeView>

namespace valmerix {

/// The tree's own nodes for the view, without a copy: 100,000 leaves cost nothing until they are drawn.
class ModeloArbol : public QAbstractItemModel
{
    Q_OBJECT

public:
    ModeloArbol(Arbol& arbol, QObject* padre);

    QModelIndex index(int fila, int columna, const QModelIndex& padre) const override;
    QModelIndex parent(const QModelIndex& indice) const override;
    int rowCount(const QModelIndex& padre) const override;
    int columnCount(const QModelIndex& padre) const override;
    bool hasChildren(const QModelIndex& padre) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;

    /// Key of the node, empty for none.
    QString clave(const QModelIndex& indice) const;

private:
    const CarpetaArbol* carpeta(const QModelIndex& indice) const;
    const NodoArbol* hoja(const QModelIndex& indice) const;

    QPointer<Arbol> arbol_;
    QIcon iconoCarpeta_;
    QIcon iconoElemento_;
};

/// The tree on screen: current row and double click (or Return) go to its control.
class VistaArbol : public QTreeView
{
    Q_OBJECT

public:
    VistaArbol(Arbol& arbol, QWidget* padre);

private:
    void Seleccionar(const QModelIndex& indice);
    void Abrir(const QModelIndex& indice);

    QPointer<Arbol> arbol_;
    ModeloArbol* modelo_;
};

} // namespace valmerix
