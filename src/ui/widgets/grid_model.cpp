#include "ui/widgets/grid_model.h"

#include "ui/look/application.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace valmerix {

namespace {

constexpr int kTwipsPorPixel = 12; // our letters are wider than those that the widths were made for
constexpr int kHolguraFila = 8;

} // namespace

ModeloRejilla::ModeloRejilla(Rejilla& rejilla, QObject* padre)
    : QAbstractTableModel(padre)
    , rejilla_(&rejilla)
{
    connect(&rejilla, &Rejilla::ContenidoCambiado, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int ModeloRejilla::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() || !rejilla_ ? 0 : rejilla_->Rows() - 1;
}

int ModeloRejilla::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() || !rejilla_ ? 0 : rejilla_->Cols();
}

int ModeloRejilla::primeraVisible() const
{
    for (int c = 0; rejilla_ && c < rejilla_->Cols(); ++c) {
        if (rejilla_->ColWidth(c) > 0)
            return c;
    }
    return -1;
}

QVariant ModeloRejilla::data(const QModelIndex& indice, int papel) const
{
    if (!rejilla_ || !indice.isValid())
        return {};
    const int fila = indice.row() + 1;
    if (papel == Qt::DisplayRole || papel == Qt::ToolTipRole)
        return rejilla_->TextMatrix(fila, indice.column());
    if (papel == Qt::CheckStateRole && indice.column() == primeraVisible()) {
        const MarcaCelda marca = rejilla_->marca(fila);
        if (marca != MarcaCelda::Ninguna)
            return marca == MarcaCelda::Marcada ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

QVariant ModeloRejilla::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (!rejilla_ || papel != Qt::DisplayRole || orientacion != Qt::Horizontal)
        return {};
    return rejilla_->TextMatrix(0, seccion);
}

TablaRejilla::TablaRejilla(Rejilla& rejilla, QWidget* padre)
    : QTableView(padre)
    , rejilla_(&rejilla)
    , modelo_(new ModeloRejilla(rejilla, this))
{
    setModel(modelo_);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kHolguraFila);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& i) {
        if (rejilla_)
            Protegido([&] { rejilla_->Pulsar(i.row() + 1); });
    });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        if (rejilla_)
            Protegido([&] { rejilla_->DoblePulsar(i.row() + 1); });
    });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& i) {
        if (rejilla_ && i.isValid())
            rejilla_->setRow(i.row() + 1);
    });
    connect(&rejilla, &Control::PresentacionCambiada, this, &TablaRejilla::AjustarColumnas);
    connect(modelo_, &QAbstractItemModel::modelReset, this, &TablaRejilla::MostrarFila);
    AjustarColumnas();
}

void TablaRejilla::AjustarColumnas()
{
    if (!rejilla_)
        return;
    int ultima = -1;
    for (int c = 0; c < rejilla_->Cols(); ++c) {
        const int ancho = rejilla_->ColWidth(c) / kTwipsPorPixel;
        setColumnHidden(c, ancho == 0);
        if (ancho == 0)
            continue;
        setColumnWidth(c, ancho);
        ultima = c;
    }
    horizontalHeader()->setStretchLastSection(ultima == rejilla_->Cols() - 1);
}

void TablaRejilla::MostrarFila()
{
    AjustarColumnas();
    if (!rejilla_ || rejilla_->Row() < 1)
        return;
    const QModelIndex indice = modelo_->index(rejilla_->Row() - 1, std::max(modelo_->primeraVisible(), 0));
    if (indice.isValid())
        setCurrentIndex(indice);
}

void TablaRejilla::keyPressEvent(QKeyEvent* evento)
{
    const int antes = currentIndex().row();
    const bool espacio = evento->key() == Qt::Key_Space && evento->modifiers() == Qt::NoModifier;
    if (!espacio)
        QTableView::keyPressEvent(evento);
    const int fila = currentIndex().row();
    if (rejilla_ && fila >= 0 && (espacio || (elegirAlPasar_ && fila != antes)))
        Protegido([&] { rejilla_->Pulsar(fila + 1); });
}

void TablaRejilla::keyReleaseEvent(QKeyEvent* evento)
{
    QTableView::keyReleaseEvent(evento);
    const int tecla = evento->key();
    if (rejilla_)
        Protegido([&] { rejilla_->SoltarTecla(tecla); });
}

} // namespace valmerix
