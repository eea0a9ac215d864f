#pragma once

#include "ui/printing/paged_document.h"

#include <QAbstractListModel>
#include <QCache>
#include <QListView>
#include <QPixmap>
#include <QTimer>

namespace valmerix {

/// One row a page: its number and a small picture of it, made when the row is first shown.
class ModeloMiniaturas : public QAbstractListModel
{
    Q_OBJECT

public:
    ModeloMiniaturas(DocumentoPaginado& documento, qreal densidad, QObject* padre);

    int rowCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;

    static QSize tamaño(); ///< of a picture, in logical pixels

private:
    QPixmap Miniatura(int pagina) const;
    void PrepararSiguiente();

    DocumentoPaginado& documento_;
    qreal densidad_; ///< device pixels per logical pixel
    mutable QCache<int, QPixmap> hechas_;
    mutable QList<int> pendientes_; ///< pages shown before their photographs were at hand
    mutable QTimer preparador_;
};

/// The list of pages beside the preview.
class ListaPaginas : public QListView
{
    Q_OBJECT

public:
    explicit ListaPaginas(DocumentoPaginado& documento, QWidget* padre = nullptr);

    /// Marks a page without telling of it.
    void Marcar(int pagina);

Q_SIGNALS:
    void PaginaElegida(int pagina);

protected:
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;

private:
    bool callada_ = false;
};

} // namespace valmerix
