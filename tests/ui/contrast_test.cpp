#include "every_window.h"
#include "text_samples.h"

#include "ui/widgets/section_panel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal kLegible = 4.5;
constexpr qreal kDistinguible = 3; // what cannot be used at the moment steps back, but is there

class Contrast : public EveryWindow
{
};

} // namespace

TEST_P(Contrast, EveryTextOfEveryWindowCanBeReadWithEase)
{
    int medidos = 0;
    Recorrer([&](QWidget& ventana, const QString& nombre) {
        const std::vector<TextoEnPantalla> textos = TextosDe(ventana);
        EXPECT_FALSE(textos.empty()) << nombre.toStdString();
        const QImage dibujo = Ampliada(ventana);
        for (const TextoEnPantalla& t : textos) {
            EXPECT_GE(ContrasteMedido(dibujo, t.sitio), t.apagado ? kDistinguible : kLegible)
                << nombre.toStdString() << ": " << t.texto.left(40).toStdString();
            ++medidos;
        }
    });
    EXPECT_GT(medidos, 500);
}

TEST_P(Contrast, SelectedTextAndTheButtonUnderThePointerCanBeReadToo)
{
    const QPalette paleta = QApplication::palette();
    const QColor acento = paleta.color(QPalette::Highlight);
    EXPECT_GE(Contraste(paleta.color(QPalette::HighlightedText), acento), kLegible);
    EXPECT_GE(Contraste(paleta.color(QPalette::ToolTipText), paleta.color(QPalette::ToolTipBase)), kLegible);
    for (const auto funcion : {QStyleOptionButton::None, QStyleOptionButton::DefaultButton}) {
        QStyleOptionButton opcion;
        opcion.palette = paleta;
        opcion.text = u"Aceptar"_s;
        opcion.features = funcion;
        opcion.rect = QRect(0, 0, 120, 32);
        for (const auto estado : {QStyle::State_None, QStyle::State_MouseOver, QStyle::State_Sunken}) {
            opcion.state = QStyle::State_Enabled | QStyle::State_Active | estado;
            QImage lienzo(opcion.rect.size() * 3, QImage::Format_RGB32);
            lienzo.setDevicePixelRatio(3);
            lienzo.fill(paleta.color(QPalette::Window));
            QPainter pintor(&lienzo);
            QApplication::style()->drawControl(QStyle::CE_PushButton, &opcion, &pintor);
            EXPECT_GE(ContrasteMedido(lienzo, opcion.rect.adjusted(6, 6, -6, -6)), kLegible)
                << int(funcion) << ' ' << int(estado);
        }
    }
}

TEST_P(Contrast, AButtonShowsThatItHasTheFocusTheDefaultOneToo)
{
    for (const auto funcion : {QStyleOptionButton::None, QStyleOptionButton::DefaultButton}) {
        const auto pintado = [&](QStyle::State estado) {
            QStyleOptionButton opcion;
            opcion.palette = QApplication::palette();
            opcion.features = funcion;
            opcion.rect = QRect(0, 0, 120, 32);
            opcion.state = QStyle::State_Enabled | QStyle::State_Active | estado;
            QImage lienzo(opcion.rect.size(), QImage::Format_RGB32);
            lienzo.fill(opcion.palette.color(QPalette::Window));
            QPainter pintor(&lienzo);
            QApplication::style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &opcion, &pintor);
            return lienzo;
        };
        const QImage sin = pintado(QStyle::State_None);
        const QImage con = pintado(QStyle::State_HasFocus);
        qreal mejor = 1;
        for (int y = 0; y < sin.height() / 2; ++y)
            mejor = std::max(mejor, Contraste(sin.pixelColor(60, y), con.pixelColor(60, y)));
        EXPECT_GE(mejor, kDistinguible) << int(funcion);
    }
}

TEST_P(Contrast, LockedFieldsAndHintsCanBeReadOnTheirPanel)
{
    PanelSeccion panel(u"Resultados"_s, nullptr);
    auto* bloqueado = new QLineEdit(u"1.234,56"_s, &panel);
    bloqueado->setReadOnly(true);
    bloqueado->setPalette(PaletaDe(Aspecto::Bloqueado, QApplication::palette()));
    auto* pista = new QLineEdit(&panel);
    pista->setPlaceholderText(u"Otra finalidad"_s);
    auto* apagado = new QLineEdit(u"Cerrado"_s, &panel);
    apagado->setEnabled(false);
    for (QLineEdit* campo : {bloqueado, pista, apagado})
        panel.cuerpo()->addWidget(campo);
    ASSERT_TRUE((panel.show(), QTest::qWaitForWindowExposed(&panel)));
    const QImage dibujo = Ampliada(panel);
    const auto textos = TextosDe(panel);
    ASSERT_EQ(textos.size(), 4u);
    for (const TextoEnPantalla& t : textos) {
        EXPECT_GE(ContrasteMedido(dibujo, t.sitio), t.apagado ? kDistinguible : kLegible)
            << t.texto.toStdString();
    }
}

TEST(ContrastOfColours, IsThatOfTheGuidelines)
{
    EXPECT_NEAR(Contraste(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(Contraste(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(Contraste(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.001);
    EXPECT_NEAR(Contraste(Qt::red, Qt::red), 1, 0.001);
    EXPECT_EQ(TextoSobre(QColor(255, 0, 130)), QColor(Qt::black)) << "5.6 against 3.8";
    EXPECT_EQ(TextoSobre(QColor(56, 56, 168)), QColor(Qt::white));
}

TEST(ContrastOfColours, AFaintTextIsFoundOutByItsDrawing)
{
    QWidget ventana;
    ventana.resize(200, 60);
    auto* rotulo = new QLabel(u"Apenas"_s, &ventana);
    rotulo->setGeometry(10, 10, 150, 30);
    QPalette paleta;
    paleta.setColor(QPalette::Window, Qt::white);
    paleta.setColor(QPalette::WindowText, QColor(0xAA, 0xAA, 0xAA));
    ventana.setPalette(paleta);
    ASSERT_TRUE((ventana.show(), QTest::qWaitForWindowExposed(&ventana)));
    const auto textos = TextosDe(ventana);
    ASSERT_EQ(textos.size(), 1u);
    EXPECT_NEAR(ContrasteMedido(Ampliada(ventana), textos[0].sitio), 2.32, 0.05);
}

INSTANTIATE_TEST_SUITE_P(Palettes, Contrast, testing::Values(Tema::Claro, Tema::Oscuro),
                         [](const auto& caso) { return caso.param == Tema::Oscuro ? "Dark" : "Light"; });

} // namespace valmerix
