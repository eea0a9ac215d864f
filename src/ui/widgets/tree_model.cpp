#include "ui/widgets/tree_model.h"

#include "ui/look/application.h"
#include "ui/look/icons.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kIcono = 20;

// Folders carry 0, leaves the row of their folder plus one.
constexpr quintptr kEsCarpeta = 0;

quintptr MarcaDeHoja(int carpeta)
{
    return static_cast<quintptr>(carpeta) + 1;
}

int CarpetaDe(const QModelIndex& hoja)
{
    return static_cast<int>(hoja.internalId() - 1);
}

} // namespace

ModeloArbol::ModeloArbol(Arbol& arbol, QObject* padre)
    : QAbstractItemModel(padre)
    , arbol_(&arbol)
    , iconoCarpeta_(Icono(u"carpeta"_s))
    , iconoElemento_(Icono(u"elemento"_s))
{
    connect(&arbol, &Arbol::ContenidoCambiado, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

const CarpetaArbol* ModeloArbol::carpeta(const QModelIndex& indice) const
{
    if (!arbol_ || !indice.isValid() || indice.internalId() != kEsCarpeta)
        return nullptr;
    const auto fila = static_cast<size_t>(indice.row());
    return fila < arbol_->carpetas().size() ? &arbol_->carpetas()[fila] : nullptr;
}

const NodoArbol* ModeloArbol::hoja(const QModelIndex& indice) const
{
    if (!arbol_ || !indice.isValid() || indice.internalId() == kEsCarpeta)
        return nullptr;
    const auto padre = static_cast<size_t>(CarpetaDe(indice));
    if (padre >= arbol_->carpetas().size())
        return nullptr;
    const auto& hijos = arbol_->carpetas()[padre].hijos;
    const auto fila = static_cast<size_t>(indice.row());
    return fila < hijos.size() ? &hijos[fila] : nullptr;
}

QModelIndex ModeloArbol::index(int fila, int columna, const QModelIndex& padre) const
{
    if (fila < 0 || columna != 0 || fila >= rowCount(padre))
        return {};
    return createIndex(fila, columna, padre.isValid() ? MarcaDeHoja(padre.row()) : kEsCarpeta);
}

QModelIndex ModeloArbol::parent(const QModelIndex& indice) const
{
    if (!indice.isValid() || indice.internalId() == kEsCarpeta)
        return {};
    return createIndex(CarpetaDe(indice), 0, kEsCarpeta);
}

int ModeloArbol::rowCount(const QModelIndex& padre) const
{
    if (!arbol_)
        return 0;
    if (!padre.isValid())
        return static_cast<int>(arbol_->carpetas().size());
    const CarpetaArbol* c = carpeta(padre);
    return c ? static_cast<int>(c->hijos.size()) : 0;
}

int ModeloArbol::columnCount(const QModelIndex& /*padre*/) const
{
    return 1;
}

bool ModeloArbol::hasChildren(const QModelIndex& padre) const
{
    return rowCount(padre) > 0;
}

Qt::ItemFlags ModeloArbol::flags(const QModelIndex& indice) const
{
    const Qt::ItemFlags comunes = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return hoja(indice) ? comunes | Qt::ItemNeverHasChildren : comunes;
}

QVariant ModeloArbol::data(const QModelIndex& indice, int papel) const
{
    const CarpetaArbol* c = carpeta(indice);
    const NodoArbol* h = c ? nullptr : hoja(indice);
    if (!c && !h)
        return {};
    if (papel == Qt::DisplayRole || papel == Qt::ToolTipRole)
        return c ? c->texto : h->texto.toString();
    if (papel == Qt::DecorationRole)
        return c ? iconoCarpeta_ : iconoElemento_;
    return {};
}

QString ModeloArbol::clave(const QModelIndex& indice) const
{
    if (const CarpetaArbol* c = carpeta(indice))
        return c->clave;
    const NodoArbol* h = hoja(indice);
    return h ? h->clave.toString() : QString();
}

VistaArbol::VistaArbol(Arbol& arbol, QWidget* padre)
    : QTreeView(padre)
    , arbol_(&arbol)
    , modelo_(new ModeloArbol(arbol, this))
{
    setModel(modelo_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIconSize(QSize(kIcono, kIcono));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setExpandsOnDoubleClick(true);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &VistaArbol::Seleccionar);
    // Double click, or Return on the row.
    connect(this, &QTreeView::activated, this, &VistaArbol::Abrir);
}

void VistaArbol::Seleccionar(const QModelIndex& indice)
{
    if (arbol_)
        arbol_->Seleccionar(modelo_->clave(indice));
}

void VistaArbol::Abrir(const QModelIndex& indice)
{
    if (arbol_)
        Protegido([&] { arbol_->DoblePulsar(modelo_->clave(indice)); });
}

} // namespace valmerix
