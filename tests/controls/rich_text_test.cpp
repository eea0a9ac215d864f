#include "controls/rich_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

struct Rico : ::testing::Test
{
    TextoEnriquecido texto{u"Texto"_s};

    void Negrita(const QString& palabra)
    {
        ASSERT_GE(texto.Find(palabra), 0);
        texto.SelBold();
    }
};

TEST_F(Rico, FindIsBlindToCaseAndSelects)
{
    texto.setText(u"Valor del inmueble (Vt)"_s);
    EXPECT_EQ(texto.Find(u"Valor del Inmueble"_s), 0);
    EXPECT_EQ(texto.SelLength(), 18);
    EXPECT_EQ(texto.Find(u"INMUEBLE"_s, 3), 10);
}

TEST_F(Rico, AccentsCountInFind)
{
    texto.setText(u"Tasación, TASACIÓN"_s);
    EXPECT_EQ(texto.Find(u"tasacion"_s), -1);
    EXPECT_EQ(texto.Find(u"tasación"_s, 1), 10);
}

TEST_F(Rico, FoldingKeepsPositionsBehindLettersThatFoldLonger)
{
    texto.setText(u"Straße ĲK Total"_s);
    EXPECT_EQ(texto.Find(u"total"_s), 10);
}

TEST_F(Rico, FindOfNothingAndOfWhatIsNotThereSelectsNothing)
{
    texto.setText(u"abc"_s);
    texto.Seleccionar(1, 1);
    EXPECT_EQ(texto.Find({}), -1);
    EXPECT_EQ(texto.Find(u"z"_s), -1);
    EXPECT_EQ(texto.Find(u"a"_s, 1), -1);
    EXPECT_EQ(texto.Find(u"a"_s, 99), -1);
    EXPECT_EQ(texto.Find(u"a"_s, -5), 0);
    EXPECT_EQ(texto.SelStart(), 0);
}

TEST_F(Rico, CarriageReturnsGoAndLineFeedsMakeParagraphs)
{
    texto.setText(u"uno\r\ndos\r\n"_s);
    EXPECT_EQ(texto.Text(), u"uno\ndos\n"_s);
    EXPECT_EQ(texto.parrafos(), 3);
}

TEST_F(Rico, BoldStretchesStandInOrderAndMeltWhereTheyTouch)
{
    texto.setText(u"uno dos tres"_s);
    Negrita(u"tres"_s);
    Negrita(u"uno"_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{0, 3}, Tramo{8, 12}));
    Negrita(u" dos "_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{0, 12}));
    Negrita(u"dos"_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{0, 12}));
}

TEST_F(Rico, NothingSelectedIsNotBold)
{
    texto.setText(u"abc"_s);
    texto.setSelLength(0);
    texto.SelBold();
    EXPECT_THAT(texto.negritas(), IsEmpty());
}

TEST_F(Rico, AlignmentTakesTheParagraphsOfTheSelection)
{
    texto.setText(u"uno\ndos\ntres"_s);
    texto.Seleccionar(5, 5);
    texto.SelAlignment(Alineacion::Derecha);
    EXPECT_EQ(texto.alineacion(0), Alineacion::Izquierda);
    EXPECT_EQ(texto.alineacion(1), Alineacion::Derecha);
    EXPECT_EQ(texto.alineacion(2), Alineacion::Derecha);
    EXPECT_EQ(texto.alineacion(9), Alineacion::Izquierda);
}

TEST_F(Rico, ANewTextDropsEveryMark)
{
    texto.setText(u"uno\ndos"_s);
    Negrita(u"dos"_s);
    texto.SelAlignment(Alineacion::Centro);
    texto.setText(u"uno\ndos"_s);
    EXPECT_THAT(texto.negritas(), IsEmpty());
    EXPECT_EQ(texto.alineacion(1), Alineacion::Izquierda);
}

TEST_F(Rico, WritingInsideABoldStretchIsBoldAndBeforeItMovesIt)
{
    texto.setText(u"ab negrita cd"_s);
    Negrita(u"negrita"_s);
    texto.Editar(5, 0, u"xx"_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{3, 12}));
    texto.Editar(0, 0, u"zz"_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{5, 14}));
    texto.Editar(14, 0, u"!"_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{5, 14}));
    EXPECT_EQ(texto.Text(), u"zzab nexxgrita! cd"_s);
}

TEST_F(Rico, DeletingABoldStretchDropsItsMark)
{
    texto.setText(u"ab negrita cd"_s);
    Negrita(u"negrita"_s);
    texto.Editar(2, 8, {});
    EXPECT_EQ(texto.Text(), u"ab cd"_s);
    EXPECT_THAT(texto.negritas(), IsEmpty());
}

TEST_F(Rico, DeletingAcrossItsEndShortensIt)
{
    texto.setText(u"ab negrita cd"_s);
    Negrita(u"negrita"_s);
    texto.Editar(8, 4, {});
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{3, 8}));
    texto.Editar(1, 4, u"Q"_s);
    EXPECT_EQ(texto.Text(), u"aQgrid"_s);
    EXPECT_THAT(texto.negritas(), ElementsAre(Tramo{2, 5}));
}

TEST_F(Rico, ANewParagraphTakesTheAlignmentOfItsOwn)
{
    texto.setText(u"uno\ndos\ntres"_s);
    texto.Seleccionar(4, 3);
    texto.SelAlignment(Alineacion::Derecha);
    texto.Editar(6, 0, u"\n"_s);
    EXPECT_EQ(texto.parrafos(), 4);
    EXPECT_EQ(texto.alineacion(1), Alineacion::Derecha);
    EXPECT_EQ(texto.alineacion(2), Alineacion::Derecha);
    EXPECT_EQ(texto.alineacion(3), Alineacion::Izquierda);
    texto.Editar(3, 6, {});
    EXPECT_EQ(texto.Text(), u"unotres"_s);
    EXPECT_EQ(texto.parrafos(), static_cast<int>(texto.Text().count(u'\n')) + 1);
}

TEST_F(Rico, EditingIsFoundAgain)
{
    texto.setText(u"abc"_s);
    texto.Editar(3, 0, u" ÑANDÚ"_s);
    EXPECT_EQ(texto.Find(u"ñandú"_s), 4);
}

TEST_F(Rico, EditingOutsideTheTextIsCutToIt)
{
    texto.setText(u"abc"_s);
    texto.Editar(99, 99, u"d"_s);
    EXPECT_EQ(texto.Text(), u"abcd"_s);
    texto.Editar(-1, 99, {});
    EXPECT_EQ(texto.Text(), QString());
    EXPECT_EQ(texto.parrafos(), 1);
}

TEST_F(Rico, ViewsHoldBackWhileRedrawIsOffAndAreToldOnce)
{
    texto.setText(u"uno dos uno"_s);
    int contenidos = 0;
    int selecciones = 0;
    QObject::connect(&texto, &TextoEnriquecido::ContenidoCambiado, &texto, [&] { ++contenidos; });
    QObject::connect(&texto, &TextoEnriquecido::SeleccionCambiada, &texto, [&] { ++selecciones; });
    texto.setRedraw(false);
    for (int i = 0; i < 3; ++i) {
        texto.Find(u"uno"_s, i * 4);
        texto.SelBold();
    }
    EXPECT_EQ(contenidos + selecciones, 0);
    texto.setRedraw(true);
    EXPECT_EQ(contenidos, 1);
    EXPECT_EQ(selecciones, 1);
    texto.setRedraw(true);
    EXPECT_EQ(contenidos + selecciones, 2);
}

TEST_F(Rico, RedrawWithNothingChangedTellsNothing)
{
    int avisos = 0;
    QObject::connect(&texto, &TextoEnriquecido::ContenidoCambiado, &texto, [&] { ++avisos; });
    texto.setRedraw(false);
    texto.setRedraw(true);
    EXPECT_EQ(avisos, 0);
}

TEST_F(Rico, ItStartsLocked)
{
    EXPECT_TRUE(texto.Locked());
}

} // namespace

} // namespace valmerix
