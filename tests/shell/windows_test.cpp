#include "shell/exit_restart.h"
#include "shell/minimized_bars.h"
#include "shell/toolbar.h"

#include "support/fake_ports.h"
#include "support/fake_screen.h"

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

TEST(Salida, TextsAndButtonsAreTheSystems)
{
    FakeSistema sistema;
    FakePantalla pantalla;
    SALIDA salida(sistema, pantalla);
    EXPECT_EQ(salida.Caption(), u"Fin de Valmerix"_s);
    EXPECT_EQ(salida.control(u"Label1").Caption(), u"¿Desea abandonar Valmerix?"_s);
    EXPECT_EQ(
        salida.control(u"Label2").Caption(),
        u"Pulse SI para dar por terminada esta sesión, pulse NO para cancelar esta orden y continuar la "
        u"ejecución del programa."_s);
    EXPECT_EQ(salida.control(u"SSCommand1").Caption(), u"NO"_s);
    EXPECT_EQ(salida.control(u"SSCommand2").Caption(), u"SI"_s);
    salida.boton(u"SSCommand1").Pulsar();
    EXPECT_FALSE(salida.abierta());
    EXPECT_TRUE(sistema.finales.empty());
}

TEST(Salida, YesEndsTheProcessAtOnceWithoutAskingAnyWindow)
{
    FakeSistema sistema;
    FakePantalla pantalla;
    SALIDA salida(sistema, pantalla);
    salida.boton(u"SSCommand2").Pulsar();
    EXPECT_EQ(sistema.finales, std::vector<int>{0});
}

TEST(VentanaReinicio, FirstButtonConfirmsSecondCancels)
{
    FakePantalla pantalla;
    Reinicio reinicio(pantalla);
    EXPECT_EQ(reinicio.Caption(), u"Solicitud de REINICIO"_s);
    EXPECT_EQ(reinicio.control(u"Label1").Caption(), u"¿Desea volver al menú gráfico inicial?"_s);
    EXPECT_EQ(reinicio.control(u"Label2").Caption(),
              u"Esta orden supone la pérdida de todos los datos que no hayan sido salvados previamente."_s);
    int confirmados = 0;
    QObject::connect(&reinicio, &Reinicio::Confirmado, [&] { ++confirmados; });
    reinicio.boton(u"SSCommand1").Pulsar();
    EXPECT_EQ(confirmados, 1);
    reinicio.boton(u"SSCommand2").Pulsar();
    EXPECT_EQ(confirmados, 1);
    EXPECT_FALSE(reinicio.abierta());
}

TEST(Paleta, TwelveButtonsUnderThreeGroupsOnlyTheLivingOnesEnabled)
{
    Form2 paleta(u"Piso"_s);
    EXPECT_EQ(paleta.control(u"Label1(0)").Caption(), u"Navegación"_s);
    EXPECT_EQ(paleta.control(u"Label1(1)").Caption(), u"Datos"_s);
    EXPECT_EQ(paleta.control(u"Label1(2)").Caption(), u"Sistema"_s);
    std::vector<int> vivos;
    for (int i = 0; i < 12; ++i) {
        const Boton& boton = paleta.boton(Ventana::Indice(u"Botonera", i));
        EXPECT_FALSE(boton.ToolTip().isEmpty());
        if (boton.Enabled())
            vivos.push_back(i);
    }
    EXPECT_EQ(vivos, (std::vector<int>{0, 1, 2, 3, 5, 8, 9}));
    std::vector<OrdenPaleta> pedidas;
    QObject::connect(&paleta, &Form2::Pedida, [&](OrdenPaleta o) { pedidas.push_back(o); });
    paleta.boton(u"Botonera(5)").Pulsar();
    paleta.boton(u"Botonera(11)").Pulsar();
    EXPECT_EQ(pedidas, std::vector<OrdenPaleta>{OrdenPaleta::Guardar});
}

TEST(Paleta, TitleColoursFollowTheKind)
{
    EXPECT_EQ(Form2(u"Piso"_s).control(u"Image1").Tag(), u"230,0,0"_s);
    Form2 apto(u"Apto"_s);
    EXPECT_EQ(apto.control(u"Image1").Tag(), u"255,0,130"_s);
    EXPECT_EQ(apto.control(u"Image2").Tag(), u"0,255,230"_s);
    EXPECT_EQ(Form2(u"Casa"_s).control(u"Image2").Tag(), u"153,0,0"_s);
}

class BarraTest : public testing::Test, public EntornoMinimizado
{
protected:
    BarraTest()
        : caso(u"Piso"_s)
        , barra(compartido, *this)
    {
        caso.Añadir<Boton>(u"SSCommand3"_s).setTag(u"S"_s);
        caso.Añadir<Etiqueta>(u"EtiquetaCaption"_s).setCaption(u"Valmerix - Pisos"_s);
        caso.Mover(QRect(40, 30, 600, 450));
        caso.setVisible(true);
    }

    Ventana* ventanaDelCaso() override { return hayCaso ? &caso : nullptr; }
    void MostrarPaletaEn(int izquierda, int arriba) override { paletas.push_back({izquierda, arriba}); }
    void CerrarPaleta() override
    {
        ++cierres;
        if (alCerrarPaleta)
            alCerrarPaleta();
    }

    EstadoCompartido compartido;
    Ventana caso;
    Minimizado barra;
    bool hayCaso = true;
    std::vector<QPoint> paletas;
    int cierres = 0;
    std::function<void()> alCerrarPaleta;
};

TEST_F(BarraTest, MinimisingHidesTheCaseAndItsToolbarAndKeepsTheCaption)
{
    barra.MinimizarCaso();
    EXPECT_FALSE(caso.visible());
    EXPECT_EQ(cierres, 1);
    EXPECT_EQ(barra.WindowState(), EstadoVentana::Minimizada);
    EXPECT_EQ(barra.Caption(), u"Valmerix - Pisos"_s);
    EXPECT_EQ(barra.lugar(), QRect(40, 30, 600, 450));
    EXPECT_FALSE(compartido.MinimizadoPendiente);
    EXPECT_FALSE(compartido.RestauracionHecha);
}

TEST_F(BarraTest, WhetherTheToolbarStoodOpenIsRememberedAfterItHasClosed)
{
    compartido.RestauracionHecha = true;
    alCerrarPaleta = [this] { compartido.PaletaAbierta = false; };
    barra.MinimizarCaso();
    EXPECT_TRUE(compartido.PaletaAbierta);
}

TEST_F(BarraTest, ClosedFromTheTaskBarItGivesTheCaseBackAndAsks)
{
    barra.MinimizarCaso();
    barra.PedirCierre();
    EXPECT_EQ(barra.WindowState(), EstadoVentana::Normal);
    EXPECT_TRUE(barra.abierta());
    EXPECT_FALSE(caso.abierta()) << "a plain window closes when it is asked to";
}

TEST_F(BarraTest, RestoringBringsBackTheCaseAndTheToolbarAtItsRightEdge)
{
    barra.MinimizarCaso();
    barra.setWindowState(EstadoVentana::Normal);
    EXPECT_TRUE(caso.visible());
    ASSERT_EQ(paletas.size(), 1u);
    EXPECT_EQ(paletas[0], QPoint(640, 30));
    EXPECT_TRUE(compartido.PaletaAbierta);
    EXPECT_TRUE(compartido.RestauracionHecha);
    EXPECT_EQ(compartido.PosicionWidth, 600);
    barra.Activar();
    EXPECT_EQ(barra.lugar().topLeft(), QPoint(-5000, 100000));
}

TEST_F(BarraTest, AClosedToolbarStaysClosedAfterARestore)
{
    caso.control(u"SSCommand3").setTag(u"N"_s);
    barra.MinimizarCaso();
    barra.setWindowState(EstadoVentana::Maximizada);
    EXPECT_TRUE(paletas.empty());
    EXPECT_FALSE(compartido.PaletaAbierta);
}

TEST_F(BarraTest, ASecondResizeAfterTheRestoreShowsNoSecondToolbar)
{
    barra.MinimizarCaso();
    barra.setWindowState(EstadoVentana::Normal);
    barra.setWindowState(EstadoVentana::Maximizada);
    EXPECT_EQ(paletas.size(), 1u);
}

TEST_F(BarraTest, WithoutACaseItDoesNothing)
{
    hayCaso = false;
    barra.MinimizarCaso();
    barra.Activar();
    barra.setWindowState(EstadoVentana::Minimizada);
    barra.setWindowState(EstadoVentana::Normal);
    EXPECT_TRUE(caso.visible());
    EXPECT_EQ(cierres, 0);
}

} // namespace
} // namespace valmerix
