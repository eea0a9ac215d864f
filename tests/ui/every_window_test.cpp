#include "every_window.h"
#include "photos.h"

#include <QAbstractButton>
#include <QLabel>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// Every text of a label or button stands whole: its width, its lines' height.
void ComprobarQueCabe(const QWidget& vista)
{
    const auto cabe = [](const QWidget& widget, const QString& texto, QSize pedido) {
        EXPECT_GE(widget.width(), pedido.width()) << texto.toStdString();
        EXPECT_GE(widget.height(), pedido.height()) << texto.toStdString();
    };
    for (const auto* rotulo : vista.findChildren<QLabel*>()) {
        if (!rotulo->isVisible() || rotulo->text().isEmpty())
            continue;
        const bool envuelve = rotulo->wordWrap();
        cabe(*rotulo, rotulo->text(),
             envuelve ? QSize(0, rotulo->heightForWidth(rotulo->width())) : rotulo->minimumSizeHint());
    }
    for (const auto* boton : vista.findChildren<QAbstractButton*>()) {
        if (boton->isVisible() && !boton->text().isEmpty())
            cabe(*boton, boton->text(), {boton->minimumSizeHint().width(), boton->fontMetrics().height()});
    }
}

} // namespace

TEST_P(EveryWindow, FitsTheScreenAndShowsItsTextsWhole)
{
    const bool oscuro = GetParam() == Tema::Oscuro;
    Recorrer([&](QWidget& ventana, const QString& nombre) {
        SCOPED_TRACE(nombre.toStdString());
        EXPECT_EQ(EsOscura(ventana.palette()), oscuro);
        EXPECT_LE(ventana.width(), pantalla.area().width());
        EXPECT_LE(ventana.height(), pantalla.area().height());
        ComprobarQueCabe(ventana);
        Fotografiar(ventana, (oscuro ? u"oscuro-"_s : u"claro-"_s) + nombre);
    });
}

INSTANTIATE_TEST_SUITE_P(Palettes, EveryWindow, testing::Values(Tema::Claro, Tema::Oscuro),
                         [](const auto& caso) { return caso.param == Tema::Oscuro ? "Dark" : "Light"; });

} // namespace valmerix
