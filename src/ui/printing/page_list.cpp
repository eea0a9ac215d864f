#include "ui/printing/page_list.h"

#include "ui/printing/page_metrics.h"

#include <QScrollBar>
#include <QStyledItemDelegate>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAncho = 92; // logical pixels
constexpr int kAlto = 130; // of A4 at that width
constexpr int kBorde = 10;
constexpr int kAltoNumero = 20;
constexpr int kRecordadas = 400; // pictures, some 50 kB each

class Pintor : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& /*opcion*/, const QModelIndex& /*indice*/) const override
    {
        return {kAncho + 2 * kBorde, kAlto + kAltoNumero + 2 * kBorde};
    }

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        const QPalette& paleta = opcion.palette;
        const bool elegida = opcion.state.testFlag(QStyle::State_Selected);
        const QRect hoja(opcion.rect.center().x() - kAncho / 2, opcion.rect.top() + kBorde, kAncho, kAlto);
        if (elegida)
            pintor->fillRect(opcion.rect.adjusted(2, 2, -2, -2), paleta.highlight());
        pintor->drawPixmap(hoja, indice.data(Qt::DecorationRole).value<QPixmap>());
        pintor->setPen(paleta.color(QPalette::Mid));
        pintor->drawRect(hoja.adjusted(-1, -1, 0, 0));
        pintor->setPen(paleta.color(elegida ? QPalette::HighlightedText : QPalette::Text));
        pintor->drawText(QRect(opcion.rect.left(), hoja.bottom() + 3, opcion.rect.width(), kAltoNumero),
                         Qt::AlignCenter, QString::number(indice.row() + 1));
    }
};

} // namespace

ModeloMiniaturas::ModeloMiniaturas(DocumentoPaginado& documento, qreal densidad, QObject* padre)
    : QAbstractListModel(padre)
    , documento_(documento)
    , densidad_(densidad)
    , hechas_(kRecordadas)
{
    preparador_.setSingleShot(true);
    preparador_.setInterval(0);
    connect(&preparador_, &QTimer::timeout, this, &ModeloMiniaturas::PrepararSiguiente);
}

QSize ModeloMiniaturas::tamaño()
{
    return {kAncho, kAlto};
}

int ModeloMiniaturas::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : documento_.paginas();
}

QVariant ModeloMiniaturas::data(const QModelIndex& indice, int papel) const
{
    switch (papel) {
    case Qt::DisplayRole:
        return QString::number(indice.row() + 1);
    case Qt::AccessibleTextRole:
        return u"Página "_s + QString::number(indice.row() + 1);
    case Qt::DecorationRole:
        return Miniatura(indice.row());
    default:
        return {};
    }
}

QPixmap ModeloMiniaturas::Miniatura(int pagina) const
{
    if (const QPixmap* hecha = hechas_.object(pagina))
        return *hecha;
    QPixmap miniatura(tamaño() * densidad_);
    miniatura.setDevicePixelRatio(densidad_);
    miniatura.fill(Qt::white);
    {
        QPainter pintor(&miniatura);
        pintor.scale(kAncho / hoja::kAncho, kAlto / hoja::kAlto);
        documento_.Pintar(pintor, pagina);
    }
    if (documento_.preparada(pagina)) {
        hechas_.insert(pagina, new QPixmap(miniatura));
    } else if (!pendientes_.contains(pagina)) {
        pendientes_.append(pagina);
        preparador_.start();
    }
    return miniatura;
}

// The page asked for last comes first: it is the one in sight.
void ModeloMiniaturas::PrepararSiguiente()
{
    if (pendientes_.isEmpty())
        return;
    const int pagina = pendientes_.last();
    documento_.Preparar(pagina);
    if (documento_.preparada(pagina)) {
        pendientes_.removeLast();
        Miniatura(pagina);
        Q_EMIT dataChanged(index(pagina), index(pagina), {Qt::DecorationRole});
    }
    if (!pendientes_.isEmpty())
        preparador_.start();
}

ListaPaginas::ListaPaginas(DocumentoPaginado& documento, QWidget* padre)
    : QListView(padre)
{
    setObjectName(u"ListaPaginas"_s);
    setAccessibleName(u"Lista de páginas"_s);
    setModel(new ModeloMiniaturas(documento, devicePixelRatioF(), this));
    setItemDelegate(new Pintor(this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setFixedWidth(kAncho + 2 * kBorde + verticalScrollBar()->sizeHint().width() + 4);
}

void ListaPaginas::Marcar(int pagina)
{
    callada_ = true;
    setCurrentIndex(model()->index(pagina, 0));
    callada_ = false;
}

void ListaPaginas::currentChanged(const QModelIndex& actual, const QModelIndex& anterior)
{
    QListView::currentChanged(actual, anterior);
    if (!callada_ && actual.isValid())
        Q_EMIT PaginaElegida(actual.row());
}

} // namespace valmerix
