#include "text_samples.h"

#include "controls/control.h"
#include "ui/look/theme.h"
#include "ui/title_page.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QStyle>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>

namespace valmerix {

namespace {

constexpr int kAumento = 3;
constexpr int kBordeCampo = 4;
constexpr int kBordeBoton = 7;
constexpr int kFilas = 12; // of a table or list: the others look the same
constexpr int kColumnas = 6;
constexpr int kAltoTexto = 60;

/// Gathers the texts of one widget after another.
class Recolector
{
public:
    explicit Recolector(QWidget& ventana)
        : ventana_(ventana)
    {
    }

    void Mirar(QWidget& w)
    {
        if (auto* rotulo = qobject_cast<QLabel*>(&w)) {
            Tomar(w, w.contentsRect(), rotulo->text());
        } else if (auto* linea = qobject_cast<QLineEdit*>(&w)) {
            DeLinea(*linea);
        } else if (auto* lista = qobject_cast<QComboBox*>(&w); lista && !lista->isEditable()) {
            const int flecha = lista->height();
            Tomar(w, w.rect().adjusted(kBordeCampo, kBordeCampo, -flecha, -kBordeCampo),
                  lista->currentText());
        } else if (auto* boton = qobject_cast<QAbstractButton*>(&w)) {
            DeBoton(*boton);
        } else if (auto* solapas = qobject_cast<QTabBar*>(&w)) {
            for (int i = 0; i < solapas->count(); ++i)
                Tomar(w, solapas->tabRect(i).adjusted(3, 5, -3, -5), solapas->tabText(i));
        } else if (auto* cabecera = qobject_cast<QHeaderView*>(&w)) {
            DeCabecera(*cabecera);
        } else if (auto* celdas = qobject_cast<QAbstractItemView*>(&w)) {
            DeCeldas(*celdas);
        } else if (auto* largo = qobject_cast<QPlainTextEdit*>(&w)) {
            DeTexto(*largo->viewport(), largo->toPlainText());
        } else if (auto* rico = qobject_cast<QTextEdit*>(&w)) {
            DeTexto(*rico->viewport(), rico->toPlainText());
        }
    }

    std::vector<TextoEnPantalla> textos;

private:
    void Tomar(QWidget& w, const QRect& sitio, const QString& texto, bool apagado = false)
    {
        const QRect visible = sitio & w.visibleRegion().boundingRect();
        if (texto.trimmed().isEmpty() || visible != sitio || sitio.isEmpty())
            return;
        textos.push_back(
            {QRect(w.mapTo(&ventana_, sitio.topLeft()), sitio.size()), texto, apagado || !w.isEnabled()});
    }

    void DeLinea(QLineEdit& linea)
    {
        // A stale result is not to be read: nothing may bring it up.
        if (linea.property("aspecto").toInt() == static_cast<int>(Aspecto::Pendiente))
            return;
        linea.deselect();
        const QString texto = linea.text().isEmpty() ? linea.placeholderText() : linea.displayText();
        Tomar(linea, linea.rect().adjusted(kBordeCampo, kBordeCampo, -kBordeCampo, -kBordeCampo), texto);
    }

    void DeBoton(QAbstractButton& boton)
    {
        QRect sitio = boton.rect().adjusted(kBordeBoton, kBordeBoton - 3, -kBordeBoton, -kBordeBoton + 3);
        const bool marca = qobject_cast<QCheckBox*>(&boton) || qobject_cast<QRadioButton*>(&boton);
        auto* orden = qobject_cast<QToolButton*>(&boton);
        if (marca) {
            sitio.setLeft(boton.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 4);
        } else if (dynamic_cast<BotonTipo*>(&boton)) {
            sitio = QRect(kBordeBoton, boton.height() - 50, boton.width() - 2 * kBordeBoton, 34);
        } else if (orden && orden->toolButtonStyle() == Qt::ToolButtonTextBesideIcon) {
            sitio.setLeft(orden->iconSize().width() + kBordeBoton);
        }
        Tomar(boton, sitio, boton.text());
    }

    void DeCabecera(QHeaderView& cabecera)
    {
        for (int c = 0; c < std::min(cabecera.count(), kColumnas); ++c) {
            const QRect sitio(cabecera.sectionViewportPosition(c), 1, cabecera.sectionSize(c),
                              cabecera.height() - 3);
            Tomar(*cabecera.viewport(), sitio,
                  cabecera.model()->headerData(c, cabecera.orientation()).toString());
        }
    }

    void DeCeldas(QAbstractItemView& celdas)
    {
        const QAbstractItemModel* modelo = celdas.model();
        if (!modelo)
            return;
        const QColor gris = celdas.palette().color(QPalette::Disabled, QPalette::Text);
        for (int f = 0; f < std::min(modelo->rowCount(celdas.rootIndex()), kFilas); ++f) {
            for (int c = 0; c < std::min(modelo->columnCount(celdas.rootIndex()), kColumnas); ++c) {
                const QModelIndex indice = modelo->index(f, c, celdas.rootIndex());
                const bool apagado = indice.data(Qt::ForegroundRole).value<QBrush>().color() == gris;
                Tomar(*celdas.viewport(), FranjaDeTexto(celdas, indice), indice.data().toString(), apagado);
            }
        }
    }

    // A picture of its own stands over the text.
    static QRect FranjaDeTexto(const QAbstractItemView& celdas, const QModelIndex& indice)
    {
        const QRect celda = celdas.visualRect(indice).adjusted(1, 1, -1, -1);
        const int alto = std::min(celda.height(), celdas.fontMetrics().height());
        const auto* lista = qobject_cast<const QListView*>(&celdas);
        if (!lista || lista->viewMode() != QListView::IconMode)
            return celda;
        return {celda.left(), celda.bottom() - alto, celda.width(), alto};
    }

    void DeTexto(QWidget& hoja, const QString& texto)
    {
        Tomar(hoja, QRect(6, 2, hoja.width() - 12, std::min(kAltoTexto, hoja.height() - 4)), texto);
    }

    QWidget& ventana_;
};

} // namespace

std::vector<TextoEnPantalla> TextosDe(QWidget& ventana)
{
    if (QWidget* enMano = ventana.focusWidget())
        enMano->clearFocus(); // its caret and its mark are no texts
    Recolector recolector(ventana);
    for (QWidget* w : ventana.findChildren<QWidget*>()) {
        if (w->isVisible() && w->window() == &ventana)
            recolector.Mirar(*w);
    }
    return recolector.textos;
}

QImage Ampliada(QWidget& ventana)
{
    QImage lienzo(ventana.size() * kAumento, QImage::Format_RGB32);
    lienzo.setDevicePixelRatio(kAumento);
    ventana.render(&lienzo);
    return lienzo;
}

qreal ContrasteMedido(const QImage& ampliada, const QRect& sitio)
{
    const QRect zona = QRect(sitio.topLeft() * kAumento, sitio.size() * kAumento) & ampliada.rect();
    QSet<QRgb> fondos;
    for (int x = zona.left(); x <= zona.right(); ++x)
        fondos.insert(ampliada.pixel(x, zona.top()));
    QSet<QRgb> colores;
    for (int y = zona.top(); y <= zona.bottom(); ++y) {
        for (int x = zona.left(); x <= zona.right(); ++x)
            colores.insert(ampliada.pixel(x, y));
    }
    qreal mejor = 1;
    for (const QRgb color : std::as_const(colores)) {
        qreal peor = 21;
        for (const QRgb fondo : std::as_const(fondos))
            peor = std::min(peor, Contraste(QColor(color), QColor(fondo)));
        mejor = std::max(mejor, peor);
    }
    return mejor;
}

} // namespace valmerix
