#include "controls/control.h"
#include "controls/option_group.h"
#include "controls/tree.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

TEST(Control, TellsOnlyRealChangesOfItsLook)
{
    Etiqueta etiqueta(u"Label1"_s);
    int veces = 0;
    QObject::connect(&etiqueta, &Control::PresentacionCambiada, [&] { ++veces; });
    etiqueta.setCaption(u"Piso"_s);
    etiqueta.setCaption(u"Piso"_s);
    etiqueta.setEnabled(false);
    etiqueta.setVisible(false);
    etiqueta.setAspecto(Aspecto::Pendiente);
    etiqueta.setAspecto(Aspecto::Pendiente);
    etiqueta.setToolTip(u"ayuda"_s);
    etiqueta.setTag(u"S"_s);
    EXPECT_EQ(veces, 5);
    EXPECT_EQ(etiqueta.Tag(), u"S"_s);
    EXPECT_FALSE(etiqueta.aceptaFoco());
}

TEST(Casilla, AnyValueButZeroIsOneAndClicksOnlyWhenItChanges)
{
    Casilla casilla(u"Check1"_s);
    int clics = 0;
    QObject::connect(&casilla, &Casilla::Click, [&] { ++clics; });
    casilla.setValue(7);
    EXPECT_EQ(casilla.Value(), 1);
    casilla.setValue(1);
    casilla.setValue(0);
    casilla.setValue(0);
    EXPECT_EQ(clics, 2);
}

TEST(Casilla, TheUsersClickFlipsItUnlessItIsDisabled)
{
    Casilla casilla(u"Check1"_s);
    casilla.Pulsar();
    EXPECT_EQ(casilla.Value(), 1);
    casilla.setEnabled(false);
    casilla.Pulsar();
    EXPECT_EQ(casilla.Value(), 1);
}

TEST(OpcionSuelta, SettingOneClearsTheOthersWithoutTheirClick)
{
    OpcionSuelta fichero(u"optFile"_s);
    OpcionSuelta camara(u"optCamera"_s);
    OpcionSuelta escaner(u"optScanner"_s);
    OpcionSuelta::Agrupar({&fichero, &camara, &escaner});
    QStringList clics;
    for (const auto* una : {&fichero, &camara, &escaner})
        QObject::connect(una, &Casilla::Click, una, [una, &clics] { clics << una->nombre(); });
    fichero.setValue(1);
    camara.Pulsar();
    camara.Pulsar();
    EXPECT_EQ(fichero.Value(), 0);
    EXPECT_EQ(camara.Value(), 1);
    EXPECT_EQ(clics, QStringList({u"optFile"_s, u"optCamera"_s}));
    camara.setValue(0);
    EXPECT_EQ(fichero.Value() + camara.Value() + escaner.Value(), 0) << "none may be set";
    escaner.setEnabled(false);
    escaner.Pulsar();
    EXPECT_EQ(escaner.Value(), 0);
}

TEST(Boton, DisabledItDoesNotClick)
{
    Boton boton(u"SSCommand7"_s);
    int clics = 0;
    QObject::connect(&boton, &Boton::Click, [&] { ++clics; });
    boton.Pulsar();
    boton.setEnabled(false);
    boton.Pulsar();
    EXPECT_EQ(clics, 1);
}

TEST(Temporizador, TicksOnlyWhileEnabled)
{
    Temporizador reloj(u"Timer1"_s);
    int veces = 0;
    QObject::connect(&reloj, &Temporizador::Timer, [&] { ++veces; });
    reloj.Tic();
    reloj.setEnabled(false);
    reloj.Tic();
    EXPECT_EQ(veces, 1);
}

TEST(GrupoOpciones, SetsOneAndClearsTheOthers)
{
    GrupoOpciones grupo(u"Calidad"_s);
    grupo.setTitulos({u"Baja."_s, u"Sencillas."_s, u"Buenas."_s});
    std::vector<int> clics;
    QObject::connect(&grupo, &GrupoOpciones::Click, [&](int i) { clics.push_back(i); });
    EXPECT_EQ(BuscaOpcion(grupo), 0);
    EXPECT_FALSE(grupo.Value(-1));
    grupo.Elegir(2);
    grupo.Elegir(2);
    grupo.Pulsar(1);
    grupo.Elegir(3);
    grupo.Elegir(-1);
    EXPECT_EQ(clics, (std::vector<int>{2, 1}));
    EXPECT_TRUE(grupo.Value(1));
    EXPECT_FALSE(grupo.Value(2));
    EXPECT_EQ(BuscaOpcion(grupo), 1);
    grupo.Quitar();
    EXPECT_EQ(grupo.elegida(), -1);
    grupo.setEnabled(false);
    grupo.Pulsar(0);
    EXPECT_EQ(grupo.elegida(), -1);
    EXPECT_EQ(clics.size(), 2U);
}

TEST(Solapas, GoOnlyToPagesThatThereAre)
{
    Solapas solapas(u"SSTab1"_s);
    solapas.setPaginas(7);
    int clics = 0;
    QObject::connect(&solapas, &Solapas::Click, [&] { ++clics; });
    solapas.setTab(6);
    solapas.setTab(7);
    solapas.setTab(-1);
    solapas.setTab(6);
    EXPECT_EQ(solapas.Tab(), 6);
    EXPECT_EQ(clics, 1);
}

TEST(Arbol, ReplacesItsLeavesAndForgetsTheSelection)
{
    Arbol arbol(u"Arbol"_s);
    arbol.setCarpetas({{u"A"_s, u"Ana"_s, {{u"Ana#1#P"_s, u"1"_s}}}});
    int dobles = 0;
    QObject::connect(&arbol, &Arbol::DblClick, [&] { ++dobles; });
    arbol.DoblePulsar(u"Ana#1#P"_s);
    EXPECT_EQ(dobles, 1);
    EXPECT_EQ(arbol.seleccion(), u"Ana#1#P"_s);
    arbol.setCarpetas({});
    EXPECT_TRUE(arbol.seleccion().isEmpty());
    EXPECT_TRUE(arbol.carpetas().empty());
}

TEST(BarraProgresoEImagen, TellTheirChanges)
{
    BarraProgreso barra(u"ProgressBar1"_s);
    Imagen imagen(u"Image1"_s);
    int veces = 0;
    for (const Control* c : {static_cast<Control*>(&barra), static_cast<Control*>(&imagen)})
        QObject::connect(c, &Control::PresentacionCambiada, [&] { ++veces; });
    barra.setValue(50);
    barra.setValue(50);
    imagen.setPicture(u"/fondo.bmp"_s);
    imagen.setPicture(u"/fondo.bmp"_s);
    EXPECT_EQ(veces, 2);
}

} // namespace

} // namespace valmerix
