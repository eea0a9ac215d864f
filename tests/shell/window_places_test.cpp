#include "shell/window_places.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

const QRect kPortatil(0, 0, 1366, 740);
const QRect kMonitor(1366, -200, 1920, 1080);

TEST(AjusteAPantallas, APlaceOnAScreenStaysAsItIs)
{
    const QRect lugar(1400, -100, 900, 600);
    EXPECT_EQ(AjustarAPantallas(lugar, {kPortatil, kMonitor}), lugar);
}

TEST(AjusteAPantallas, APlaceOnAScreenThatIsGoneComesToTheFirstOne)
{
    EXPECT_EQ(AjustarAPantallas({1400, -100, 900, 600}, {kPortatil}), QRect(466, 0, 900, 600));
    EXPECT_EQ(AjustarAPantallas({-5000, 100000, 900, 600}, {kPortatil, kMonitor}), QRect(0, 140, 900, 600));
}

TEST(AjusteAPantallas, AWindowThatHangsOverTheEdgeIsBroughtInOnTheScreenThatShowsMostOfIt)
{
    EXPECT_EQ(AjustarAPantallas({1300, 100, 900, 600}, {kPortatil, kMonitor}), QRect(1366, 100, 900, 600));
    EXPECT_EQ(AjustarAPantallas({900, 100, 900, 600}, {kPortatil, kMonitor}), QRect(466, 100, 900, 600));
}

TEST(AjusteAPantallas, AWindowThatIsLargerThanTheScreenShrinks)
{
    EXPECT_EQ(AjustarAPantallas({100, 100, 3000, 2000}, {kPortatil}), kPortatil);
}

TEST(AjusteAPantallas, WithoutAnyScreenNothingIsMoved)
{
    EXPECT_EQ(AjustarAPantallas({1, 2, 300, 400}, {}), QRect(1, 2, 300, 400));
}

TEST(AjusteAPantallas, AWindowThatHasToGrowIsMeasuredByItsOwnScreen)
{
    const QRect enMonitor(1500, 0, 1800, 800);
    EXPECT_EQ(AgrandarEnPantallas(enMonitor, {400, 300}, {kPortatil, kMonitor}), enMonitor)
        << "wider than the first screen, yet it stands on the second";
    EXPECT_EQ(AgrandarEnPantallas({1500, 0, 300, 200}, {400, 300}, {kPortatil, kMonitor}),
              QRect(1450, -50, 400, 300));
    EXPECT_EQ(AgrandarEnPantallas({1370, -198, 300, 200}, {2500, 1200}, {kPortatil, kMonitor}), kMonitor);
    EXPECT_EQ(AgrandarEnPantallas({-40, 500, 300, 200}, {100, 100}, {kPortatil, kMonitor}),
              QRect(-40, 500, 300, 200))
        << "what is large enough stays where it is";
}

TEST(AjusteAPantallas, TheScreenOfAPlaceIsTheOneThatShowsMostOfIt)
{
    EXPECT_EQ(PantallaDe({1300, 100, 900, 600}, {kPortatil, kMonitor}), kMonitor);
    EXPECT_EQ(PantallaDe({900, 100, 900, 600}, {kPortatil, kMonitor}), kPortatil);
    EXPECT_EQ(PantallaDe({90000, 100, 900, 600}, {kPortatil, kMonitor}), kPortatil) << "none does";
    EXPECT_EQ(PantallaDe({0, 0, 10, 10}, {}), QRect());
    EXPECT_EQ(AgrandarEnPantallas({5, 5, 10, 10}, {30, 30}, {}).size(), QSize(30, 30));
}

class LugaresTest : public testing::Test
{
protected:
    void Poner(const QByteArray& contenido)
    {
        QFile salida(fichero);
        ASSERT_TRUE(salida.open(QIODevice::WriteOnly));
        salida.write(contenido);
    }
    std::optional<QRect> Leido(const QString& ventana)
    {
        LugaresVentanas lugares;
        lugares.Leer(fichero);
        return lugares.LugarDe(ventana, {kPortatil});
    }
    QTemporaryDir raiz;
    QString fichero = raiz.filePath(u"ventanas.json"_s);
};

TEST_F(LugaresTest, PlacesComeBackInTheNextRun)
{
    LugaresVentanas lugares;
    lugares.Leer(fichero);
    EXPECT_EQ(lugares.LugarDe(u"Piso"_s, {kPortatil}), std::nullopt);
    lugares.Apuntar(u"Piso"_s, {10, 20, 900, 600});
    lugares.Apuntar(u"Visor"_s, {30, 40, 500, 400});
    lugares.Guardar(fichero);
    EXPECT_EQ(Leido(u"Piso"_s), QRect(10, 20, 900, 600));
    EXPECT_EQ(Leido(u"Visor"_s), QRect(30, 40, 500, 400));
    EXPECT_EQ(Leido(u"Ficha"_s), std::nullopt);
}

TEST_F(LugaresTest, AMaximisedWindowIsRememberedSoWithThePlaceItGoesBackTo)
{
    LugaresVentanas lugares;
    lugares.Leer(fichero);
    lugares.Apuntar(u"Visor"_s, {30, 40, 500, 400}, true);
    lugares.Apuntar(u"Piso"_s, {10, 20, 900, 600});
    lugares.Guardar(fichero);
    LugaresVentanas leidos;
    leidos.Leer(fichero);
    EXPECT_TRUE(leidos.EstabaMaximizada(u"Visor"_s));
    EXPECT_EQ(leidos.LugarDe(u"Visor"_s, {kPortatil}), QRect(30, 40, 500, 400));
    EXPECT_FALSE(leidos.EstabaMaximizada(u"Piso"_s));
    EXPECT_FALSE(leidos.EstabaMaximizada(u"Ficha"_s)) << "never seen";
    leidos.Apuntar(u"Visor"_s, {30, 40, 500, 400}, false);
    leidos.Guardar(fichero);
    lugares.Leer(fichero);
    EXPECT_FALSE(lugares.EstabaMaximizada(u"Visor"_s)) << "the size alone is a change too";
}

TEST_F(LugaresTest, WindowsWhosePlaceOthersTellAreNotRemembered)
{
    LugaresVentanas lugares;
    for (const auto& nombre :
         {u"Form2"_s, u"SALIDA"_s, u"Reinicio"_s, u"Minimizado"_s, u"VisorMin"_s, u"Calculos"_s}) {
        lugares.Apuntar(nombre, {10, 20, 900, 600});
        EXPECT_EQ(lugares.LugarDe(nombre, {kPortatil}), std::nullopt) << nombre.toStdString();
    }
    lugares.Guardar(fichero);
    EXPECT_FALSE(QFile::exists(fichero)) << "nothing has changed";
}

TEST_F(LugaresTest, ADamagedFileIsIgnored)
{
    for (const QByteArray& contenido :
         {QByteArray(), QByteArray("{"), QByteArray("[1,2]"), QByteArray(5000, '\xff'),
          QByteArray("{\"Piso\": 7}"), QByteArray("{\"Piso\": [1, 2]}"),
          QByteArray("{\"Piso\": [1, 2, -300, 400]}"), QByteArray("{\"Piso\": [1, 2, 3, 4, true]}"),
          QByteArray("{\"Piso\": [\"a\", {}, null, 1e300]}"),
          QByteArray(2'000'000, ' ') + "{\"Piso\": [10, 20, 900, 600]}"}) {
        Poner(contenido);
        EXPECT_EQ(Leido(u"Piso"_s), std::nullopt) << contenido.left(60).toStdString();
    }
    Poner("{\"Piso\": [10, 20, 900, 600], \"Visor\": false}");
    EXPECT_EQ(Leido(u"Piso"_s), QRect(10, 20, 900, 600)) << "a good line beside a bad one counts";
    Poner("{\"Piso\": [10, 20, 900, 600, \"true\"]}");
    LugaresVentanas lugares;
    lugares.Leer(fichero);
    EXPECT_FALSE(lugares.EstabaMaximizada(u"Piso"_s));
}

TEST_F(LugaresTest, AFileThatCannotBeWrittenIsNoFailure)
{
    LugaresVentanas lugares;
    lugares.Apuntar(u"Piso"_s, {10, 20, 900, 600});
    lugares.Guardar(raiz.filePath(u"no/hay/tal.json"_s));
    EXPECT_EQ(lugares.LugarDe(u"Piso"_s, {kPortatil}), QRect(10, 20, 900, 600));
}

} // namespace
} // namespace valmerix
