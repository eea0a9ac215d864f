#include "controls/grid.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct RejillaDe : ::testing::Test
{
    Rejilla rejilla{u"fgrSeleccion"_s};
    int avisos = 0;
    RejillaDe()
    {
        rejilla.setColumnas({{}, u"Fecha"_s}, {0, 960});
        QObject::connect(&rejilla, &Rejilla::ContenidoCambiado, [this] { ++avisos; });
    }
};

TEST_F(RejillaDe, StartsWithItsHeaderOnly)
{
    EXPECT_EQ(rejilla.Rows(), 1);
    EXPECT_EQ(rejilla.Cols(), 2);
    EXPECT_EQ(rejilla.ColWidth(1), 960);
    EXPECT_EQ(rejilla.TextMatrix(0, 1), u"Fecha"_s);
}

TEST_F(RejillaDe, ALineIsSplitAtItsTabs)
{
    rejilla.AddItem(u"7\t20/11/2026"_s);
    EXPECT_EQ(rejilla.TextMatrix(1, 0), u"7"_s);
    EXPECT_EQ(rejilla.TextMatrix(1, 1), u"20/11/2026"_s);
}

TEST_F(RejillaDe, ARowPutFirstStandsBeforeTheOthers)
{
    rejilla.AddItem(u"1"_s);
    rejilla.AddItem(u"2"_s, 1);
    rejilla.AddItem(u"3"_s, 99);
    EXPECT_EQ(rejilla.TextMatrix(1, 0), u"2"_s);
    EXPECT_EQ(rejilla.TextMatrix(2, 0), u"1"_s);
    EXPECT_EQ(rejilla.TextMatrix(3, 0), u"3"_s);
}

TEST_F(RejillaDe, PaddingAddsEmptyRowsAndNeverCuts)
{
    rejilla.AddItem(u"1"_s);
    rejilla.Rellenar(10);
    EXPECT_EQ(rejilla.Rows(), 10);
    EXPECT_EQ(rejilla.TextMatrix(9, 1), QString());
    EXPECT_EQ(rejilla.marca(9), MarcaCelda::Ninguna);
    rejilla.Rellenar(3);
    EXPECT_EQ(rejilla.Rows(), 10);
}

TEST_F(RejillaDe, TheHeaderStaysWhateverIsCut)
{
    rejilla.AddItem(u"1"_s);
    rejilla.setRows(0);
    EXPECT_EQ(rejilla.Rows(), 1);
    rejilla.RemoveItem(0);
    EXPECT_EQ(rejilla.TextMatrix(0, 1), u"Fecha"_s);
}

TEST_F(RejillaDe, RemovingTheLastRowMovesTheCurrentOne)
{
    rejilla.AddItem(u"1"_s);
    rejilla.AddItem(u"2"_s);
    rejilla.setRow(2);
    rejilla.RemoveItem(2);
    EXPECT_EQ(rejilla.Row(), 1);
    rejilla.RemoveItem(7);
    EXPECT_EQ(rejilla.Rows(), 2);
}

TEST_F(RejillaDe, CellsOutsideAreEmptyAndCannotBeWritten)
{
    rejilla.setTextMatrix(5, 0, u"x"_s);
    rejilla.setTextMatrix(0, 5, u"x"_s);
    rejilla.setTextMatrix(-1, 0, u"x"_s);
    EXPECT_EQ(rejilla.TextMatrix(5, 0), QString());
    EXPECT_EQ(rejilla.TextMatrix(-1, 0), QString());
    EXPECT_EQ(rejilla.TextMatrix(0, -1), QString());
    EXPECT_EQ(avisos, 0);
}

TEST_F(RejillaDe, ACellOfAShortRowCanBeWritten)
{
    rejilla.Rellenar(2);
    rejilla.setTextMatrix(1, 1, u"x"_s);
    EXPECT_EQ(rejilla.TextMatrix(1, 1), u"x"_s);
}

TEST_F(RejillaDe, ViewsAreToldOnceWhenRedrawReturns)
{
    rejilla.setRedraw(false);
    rejilla.AddItem(u"1"_s);
    rejilla.AddItem(u"2"_s);
    EXPECT_EQ(avisos, 0);
    rejilla.setRedraw(true);
    rejilla.setRedraw(true);
    EXPECT_EQ(avisos, 1);
}

TEST_F(RejillaDe, MarksGoWithTheirRow)
{
    rejilla.AddItem(u"1"_s);
    rejilla.AddItem(u"2"_s);
    rejilla.setMarca(2, MarcaCelda::Marcada);
    rejilla.RemoveItem(1);
    EXPECT_EQ(rejilla.marca(1), MarcaCelda::Marcada);
    rejilla.setMarca(9, MarcaCelda::Marcada);
    EXPECT_EQ(rejilla.marca(9), MarcaCelda::Ninguna);
}

TEST_F(RejillaDe, AClickMakesTheRowCurrent)
{
    rejilla.Rellenar(5);
    int clics = 0;
    int dobles = 0;
    int tecla = 0;
    QObject::connect(&rejilla, &Rejilla::Click, [&] { clics = rejilla.Row(); });
    QObject::connect(&rejilla, &Rejilla::DblClick, [&] { dobles = rejilla.Row(); });
    QObject::connect(&rejilla, &Rejilla::KeyUp, [&](int t) { tecla = t; });
    rejilla.Pulsar(3);
    rejilla.DoblePulsar(99);
    rejilla.SoltarTecla(46);
    EXPECT_EQ(clics, 3);
    EXPECT_EQ(dobles, 4);
    EXPECT_EQ(tecla, 46);
}

TEST_F(RejillaDe, NewColumnsDropTheRows)
{
    rejilla.Rellenar(10);
    rejilla.setRow(8);
    rejilla.setColumnas({u"A"_s}, {100});
    EXPECT_EQ(rejilla.Rows(), 1);
    EXPECT_EQ(rejilla.Row(), 0);
}

} // namespace

} // namespace valmerix
