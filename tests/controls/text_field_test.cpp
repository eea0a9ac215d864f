#include "controls/text_field.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct Campo : ::testing::Test
{
    CampoTexto campo{u"Box"_s};
    int cambios = 0;
    Campo()
    {
        QObject::connect(&campo, &CampoTexto::Change, [this] { ++cambios; });
    }
};

TEST_F(Campo, WritingTheTextItHasRaisesNothing)
{
    campo.setText(u"Lugo"_s);
    campo.setText(u"Lugo"_s);
    EXPECT_EQ(cambios, 1);
    campo.setText({});
    EXPECT_EQ(cambios, 2);
}

TEST_F(Campo, EachTypedKeyIsOneChange)
{
    campo.Teclear(u"Ávila"_s);
    EXPECT_EQ(campo.Text(), u"Ávila"_s);
    EXPECT_EQ(cambios, 5);
    EXPECT_EQ(campo.SelStart(), 5);
}

TEST_F(Campo, TypingReplacesTheSelection)
{
    campo.setText(u"1.234"_s);
    campo.SeleccionarTodo();
    campo.Teclear(u"56"_s);
    EXPECT_EQ(campo.Text(), u"56"_s);
}

TEST_F(Campo, TypingGoesWhereTheCaretIs)
{
    campo.setText(u"ac"_s);
    campo.Seleccionar(1, 0);
    campo.Teclear(u"b"_s);
    EXPECT_EQ(campo.Text(), u"abc"_s);
}

TEST_F(Campo, BackspaceDeletesBeforeTheCaretOrTheSelection)
{
    campo.Teclear(u"abc"_s);
    campo.PulsarTecla(8);
    EXPECT_EQ(campo.Text(), u"ab"_s);
    campo.SeleccionarTodo();
    campo.PulsarTecla(8);
    EXPECT_EQ(campo.Text(), QString());
    campo.PulsarTecla(8);
    EXPECT_EQ(cambios, 5);
}

TEST_F(Campo, TheLengthStopsTypingAndCutsAPasteButNotAProcedure)
{
    campo.setMaxLength(3);
    campo.Teclear(u"12345"_s);
    EXPECT_EQ(campo.Text(), u"123"_s);
    campo.SeleccionarTodo();
    campo.Pegar(u"987654"_s);
    EXPECT_EQ(campo.Text(), u"987"_s);
    campo.setText(u"1.234.567"_s);
    EXPECT_EQ(campo.Text(), u"1.234.567"_s);
    campo.Seleccionar(9, 0);
    campo.Teclear(u"8"_s);
    EXPECT_EQ(campo.Text(), u"1.234.567"_s);
}

TEST_F(Campo, APasteOfSixtyThousandCharactersIsTakenWhole)
{
    const QString largo(60000, u'x');
    campo.Pegar(largo);
    EXPECT_EQ(campo.Text(), largo);
    EXPECT_EQ(cambios, 1);
}

TEST_F(Campo, LockedOrDisabledItTakesNoKeyButProceduresWrite)
{
    campo.setLocked(true);
    campo.Teclear(u"a"_s);
    campo.Pegar(u"b"_s);
    campo.setLocked(false);
    campo.setEnabled(false);
    campo.Teclear(u"c"_s);
    campo.Pegar(u"d"_s);
    EXPECT_EQ(campo.Text(), QString());
    campo.setText(u"e"_s);
    EXPECT_EQ(campo.Text(), u"e"_s);
}

TEST_F(Campo, AStraightApostropheBecomesTypographicTypedOrPasted)
{
    campo.Teclear(u"L'Alcúdia "_s);
    campo.Pegar(u"d'Hortanova'"_s);
    EXPECT_EQ(campo.Text(), u"L’Alcúdia d’Hortanova’"_s);
}

TEST_F(Campo, AHandlerChangesOrSwallowsAKeyAndIsAskedOnce)
{
    int veces = 0;
    QObject::connect(&campo, &CampoTexto::KeyPress, [&veces](int& tecla) {
        ++veces;
        tecla = tecla == u'.' ? u',' : tecla == u'x' ? 0 : tecla;
    });
    campo.Teclear(u"1.x5"_s);
    EXPECT_EQ(campo.Text(), u"1,5"_s);
    EXPECT_EQ(veces, 4);
}

TEST_F(Campo, ReturnIsACharacterOnlyInAFieldOfSeveralLines)
{
    campo.Teclear(u"a\nb\r"_s);
    campo.Pegar(u"c\r\nd"_s);
    EXPECT_EQ(campo.Text(), u"abcd"_s);
    campo.setText({});
    campo.setMultiLine(true);
    campo.Teclear(u"a\rb"_s);
    EXPECT_EQ(campo.Text(), u"a\nb"_s);
}

TEST_F(Campo, ControlKeysWriteNothing)
{
    campo.PulsarTecla(27);
    campo.PulsarTecla(9);
    campo.PulsarTecla(0);
    EXPECT_EQ(campo.Text(), QString());
}

TEST_F(Campo, TheSelectionNeverLeavesTheText)
{
    campo.setText(u"abc"_s);
    campo.Seleccionar(-4, 99);
    EXPECT_EQ(campo.SelStart(), 0);
    EXPECT_EQ(campo.SelLength(), 3);
    campo.Seleccionar(99, 99);
    EXPECT_EQ(campo.SelStart(), 3);
    EXPECT_EQ(campo.SelLength(), 0);
    campo.SeleccionarTodo();
    campo.setText(u"a"_s);
    EXPECT_EQ(campo.SelStart() + campo.SelLength(), 0);
}

TEST_F(Campo, EditingOnScreenRaisesOneChangeAndKeepsTheCaret)
{
    campo.setTextoEditado(u"abc"_s, 2);
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(campo.SelStart(), 2);
    campo.setTextoEditado(u"abc"_s, 1);
    EXPECT_EQ(cambios, 1);
}

struct Mascara : Campo
{
    Mascara()
    {
        campo.setMask(u"99/99/9999"_s);
        campo.setText(campo.mascaraVacia());
        cambios = 0;
    }
};

TEST_F(Mascara, UnfilledItReadsItsBlanks)
{
    EXPECT_EQ(campo.Text(), u"  /  /    "_s);
}

TEST_F(Mascara, DigitsFillTheBlanksAndJumpOverTheSeparators)
{
    campo.Teclear(u"01122026"_s);
    EXPECT_EQ(campo.Text(), u"01/12/2026"_s);
    campo.Teclear(u"9"_s);
    EXPECT_EQ(campo.Text(), u"01/12/2026"_s);
}

TEST_F(Mascara, TypedSeparatorsAreTakenToo)
{
    campo.Teclear(u"01/12/2026"_s);
    EXPECT_EQ(campo.Text(), u"01/12/2026"_s);
}

TEST_F(Mascara, TypingOverTheSelectedDateStartsANewOne)
{
    campo.setText(u"20/11/2026"_s);
    campo.SeleccionarTodo();
    campo.Teclear(u"3"_s);
    EXPECT_EQ(campo.Text(), u"3 /  /    "_s);
}

TEST_F(Mascara, BackspaceBlanksTheDigitBefore)
{
    campo.Teclear(u"0112"_s);
    campo.PulsarTecla(8);
    EXPECT_EQ(campo.Text(), u"01/1 /    "_s);
    campo.PulsarTecla(8);
    campo.PulsarTecla(8);
    campo.PulsarTecla(8);
    EXPECT_EQ(campo.Text(), u"  /  /    "_s);
    campo.PulsarTecla(8);
    EXPECT_EQ(campo.SelStart(), 0);
}

TEST_F(Mascara, BackspaceOverASelectionBlanksIt)
{
    campo.setText(u"20/11/2026"_s);
    campo.SeleccionarTodo();
    campo.PulsarTecla(8);
    EXPECT_EQ(campo.Text(), u"  /  /    "_s);
}

TEST_F(Mascara, LettersWriteNothing)
{
    campo.Teclear(u"a1b"_s);
    EXPECT_EQ(campo.Text(), u"1 /  /    "_s);
}

TEST_F(Mascara, APastedDateFallsIntoPlace)
{
    campo.Pegar(u"05/06/2025"_s);
    EXPECT_EQ(campo.Text(), u"05/06/2025"_s);
    EXPECT_EQ(cambios, 1);
}

struct ListaDe : ::testing::Test
{
    Lista lista{u"Combo"_s};
    int cambios = 0;
    int clics = 0;
    ListaDe()
    {
        lista.setList({u"Media"_s, u"Buena"_s, u"Mala"_s});
        QObject::connect(&lista, &CampoTexto::Change, [this] { ++cambios; });
        QObject::connect(&lista, &Lista::Click, [this] { ++clics; });
    }
};

TEST_F(ListaDe, OpenItTakesAnyText)
{
    lista.Teclear(u"Regular"_s);
    EXPECT_EQ(lista.Text(), u"Regular"_s);
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_EQ(clics, 0);
}

TEST_F(ListaDe, ChoosingRaisesClickAlsoForTheItemShown)
{
    lista.Elegir(1);
    lista.Elegir(1);
    EXPECT_EQ(lista.Text(), u"Buena"_s);
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_EQ(clics, 2);
    EXPECT_EQ(cambios, 0);
    lista.Elegir(3);
    lista.Elegir(-1);
    EXPECT_EQ(clics, 2);
}

TEST_F(ListaDe, ChoosingAShorterItemKeepsTheSelectionInside)
{
    lista.setText(u"Texto bastante largo"_s);
    lista.SeleccionarTodo();
    lista.Elegir(2);
    EXPECT_LE(lista.SelStart() + lista.SelLength(), 4);
    lista.Teclear(u"x"_s);
    EXPECT_EQ(lista.Text(), u"x"_s);
}

TEST_F(ListaDe, ClosedItTakesItsItemsOrNone)
{
    lista.setCerrada(true);
    lista.setText(u"Buena"_s);
    EXPECT_EQ(clics, 1);
    lista.setText(u"Buena"_s);
    EXPECT_EQ(clics, 1);
    lista.setText(u"Regular"_s);
    EXPECT_EQ(lista.Text(), QString());
    EXPECT_EQ(clics, 1);
    EXPECT_EQ(cambios, 2);
    lista.setText(u"Pésima"_s);
    EXPECT_EQ(cambios, 2);
}

TEST_F(ListaDe, ItemsAreAddedAndRemovedByPlace)
{
    lista.AddItem(u"Óptima"_s, 0);
    lista.AddItem(u"Pésima"_s);
    lista.RemoveItem(2);
    lista.RemoveItem(17);
    EXPECT_EQ(lista.List(), (QStringList{u"Óptima"_s, u"Media"_s, u"Mala"_s, u"Pésima"_s}));
    lista.Clear();
    EXPECT_EQ(lista.ListCount(), 0);
}

} // namespace

} // namespace valmerix
