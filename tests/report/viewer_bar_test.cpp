#include "report/viewer_bar.h"

#include "report/viewer_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

TEST(ViewerBar, HidesTheViewerAndTakesItsPlace)
{
    VisorDePrueba v;
    v.visor->Mover(QRect(10, 20, 300, 200));
    v.visor->setVisible(true);
    VisorMin barra(*v.visor);
    EXPECT_EQ(barra.Caption(), u"Valmerix - Visor"_s);
    barra.MinimizarVisor();
    EXPECT_FALSE(v.visor->visible());
    EXPECT_EQ(barra.WindowState(), EstadoVentana::Minimizada);
    EXPECT_EQ(barra.lugar(), v.visor->lugar());
    EXPECT_EQ(barra.Caption(), u"Valmerix - Visor"_s);
}

TEST(ViewerBar, BringsTheViewerBackAndClosesWhenItIsLeft)
{
    VisorDePrueba v;
    v.visor->setVisible(true);
    VisorMin barra(*v.visor);
    barra.MinimizarVisor();
    barra.Desactivar();
    EXPECT_TRUE(barra.abierta());
    v.visor->setWindowState(EstadoVentana::Maximizada);
    barra.setWindowState(EstadoVentana::Normal);
    EXPECT_TRUE(v.visor->visible());
    EXPECT_EQ(v.visor->WindowState(), EstadoVentana::Normal);
    barra.Activar();
    EXPECT_EQ(barra.lugar().topLeft(), QPoint(-5000, 100000));
    barra.Desactivar();
    EXPECT_FALSE(barra.abierta());
}

} // namespace valmerix
