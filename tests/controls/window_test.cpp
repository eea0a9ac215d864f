#include "controls/window.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <typeinfo>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct VentanaDePrueba : Ventana
{
    using Ventana::Ventana;
    bool puede = true;
    bool falla = false;
    int finales = 0;

protected:
    bool PuedeCerrar() override { return puede; }
    void AlCerrar() override
    {
        ++finales;
        if (falla)
            throw std::runtime_error("store");
    }
};

struct DosCampos : ::testing::Test
{
    VentanaDePrueba ventana{u"Piso"_s, u"Valmerix - Pisos"_s};
    CampoTexto& a{ventana.Añadir<CampoTexto>(u"BoxA"_s)};
    CampoTexto& b{ventana.Añadir<CampoTexto>(u"BoxB"_s)};
    QStringList sucesos;

    DosCampos()
    {
        for (CampoTexto* campo : {&a, &b}) {
            QObject::connect(campo, &Control::GotFocus, [this, campo] { sucesos << u'+' + campo->nombre(); });
            QObject::connect(campo, &Control::LostFocus,
                             [this, campo] { sucesos << u'-' + campo->nombre(); });
        }
    }
};

TEST_F(DosCampos, ControlsAreFoundByName)
{
    EXPECT_EQ(ventana.buscar(u"BoxA"), &a);
    EXPECT_EQ(ventana.buscar(u"boxa"), nullptr);
    EXPECT_EQ(&ventana.campo(u"BoxB"), &b);
    EXPECT_EQ(ventana.controles().size(), 2U);
    EXPECT_EQ(ventana.controles()[0].get(), &a);
}

TEST_F(DosCampos, AMissingControlOrOneOfAnotherKindIsAnErrorThatNamesIt)
{
    try {
        ventana.control(u"BoxBaños");
        FAIL();
    } catch (const std::out_of_range& error) {
        EXPECT_NE(std::string(error.what()).find("BoxBaños"), std::string::npos);
    }
    EXPECT_THROW(ventana.casilla(u"BoxA"), std::bad_cast);
}

TEST_F(DosCampos, ANameIsGivenOnce)
{
    EXPECT_THROW(ventana.Añadir<Boton>(u"BoxA"_s), std::logic_error);
    EXPECT_EQ(ventana.controles().size(), 2U);
}

TEST_F(DosCampos, TheFocusLeavesOneBeforeItReachesTheOther)
{
    ventana.Enfocar(u"BoxA");
    ventana.Enfocar(u"BoxB");
    ventana.Enfocar(u"BoxB");
    ventana.Enfocar(nullptr);
    EXPECT_EQ(sucesos, (QStringList{u"+BoxA"_s, u"-BoxA"_s, u"+BoxB"_s, u"-BoxB"_s}));
    EXPECT_EQ(ventana.conFoco(), nullptr);
}

TEST_F(DosCampos, AProcedureThatMovesTheFocusWhileItIsLostHasItsWay)
{
    CampoTexto& c = ventana.Añadir<CampoTexto>(u"BoxC"_s);
    QObject::connect(&a, &Control::LostFocus, [&] { ventana.Enfocar(&c); });
    ventana.Enfocar(&a);
    ventana.Enfocar(&b);
    EXPECT_EQ(ventana.conFoco(), &c);
    EXPECT_FALSE(sucesos.contains(u"+BoxB"_s));
}

TEST_F(DosCampos, ALabelOrADisabledOrHiddenControlDoesNotTakeTheFocus)
{
    Etiqueta& etiqueta = ventana.Añadir<Etiqueta>(u"Label1"_s);
    ventana.Enfocar(&a);
    ventana.Enfocar(&etiqueta);
    b.setEnabled(false);
    ventana.Enfocar(&b);
    b.setEnabled(true);
    b.setVisible(false);
    ventana.Enfocar(&b);
    EXPECT_EQ(ventana.conFoco(), &a);
    EXPECT_EQ(sucesos, QStringList{u"+BoxA"_s});
}

TEST_F(DosCampos, AWindowMayRefuseToClose)
{
    ventana.puede = false;
    EXPECT_FALSE(ventana.Cerrar());
    EXPECT_TRUE(ventana.abierta());
    EXPECT_EQ(ventana.finales, 0);
}

TEST_F(DosCampos, ClosingRunsItsEndOnceAndHidesIt)
{
    int cerradas = 0;
    QObject::connect(&ventana, &Ventana::Cerrada, [&] {
        ++cerradas;
        ventana.Cerrar();
    });
    ventana.setVisible(true);
    EXPECT_TRUE(ventana.Cerrar());
    EXPECT_TRUE(ventana.Cerrar());
    EXPECT_EQ(cerradas, 1);
    EXPECT_EQ(ventana.finales, 1);
    EXPECT_FALSE(ventana.visible());
}

TEST_F(DosCampos, AFailureAtTheEndLeavesItOpenAndItCanBeClosedLater)
{
    ventana.setVisible(true);
    ventana.falla = true;
    EXPECT_THROW(ventana.Cerrar(), std::runtime_error);
    EXPECT_TRUE(ventana.abierta());
    EXPECT_TRUE(ventana.visible());
    ventana.falla = false;
    EXPECT_TRUE(ventana.Cerrar());
    EXPECT_FALSE(ventana.abierta());
}

TEST_F(DosCampos, TheStateTellsOfItsChangesOnly)
{
    int veces = 0;
    QObject::connect(&ventana, &Ventana::Resize, [&] { ++veces; });
    ventana.setWindowState(EstadoVentana::Minimizada);
    ventana.setWindowState(EstadoVentana::Minimizada);
    ventana.setWindowState(EstadoVentana::Normal);
    EXPECT_EQ(veces, 2);
}

TEST(Ventana, MembersOfAnArrayAreCalledByTheirIndex)
{
    EXPECT_EQ(Ventana::Indice(u"chkApartados", 12), u"chkApartados(12)"_s);
}

struct PantallaDePrueba : Pantalla
{
    void Mostrar(Ventana& ventana) override { ventana.setVisible(true); }
    void MostrarModal(Ventana& ventana) override { ventana.setVisible(true); }
    QRect area() const override { return {0, 0, 1280, 800}; }
};

TEST(Ventana, IsCentredInTheScreen)
{
    Ventana ventana(u"SALIDA"_s);
    ventana.Mover({5, 5, 400, 200});
    Centrar(ventana, PantallaDePrueba());
    EXPECT_EQ(ventana.lugar(), QRect(440, 300, 400, 200));
}

} // namespace

} // namespace valmerix
