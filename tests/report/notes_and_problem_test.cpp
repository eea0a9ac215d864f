#include "report/notes_and_problem.h"

#include "report/report_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

TEST(Notes, AreWrittenBackWhenAccepted)
{
    CasoDePrueba piso;
    piso.Escribir({{u"txtObservaciones", u"uno"}});
    Observaciones notas(piso.ventana);
    EXPECT_EQ(notas.texto(u"txtEdicionObservaciones"), u"uno"_s);
    notas.campo(u"txtEdicionObservaciones").setText(u"uno\ndos"_s);
    EXPECT_EQ(piso.ventana.texto(u"txtObservaciones"), u"uno"_s);
    notas.boton(u"SSCommand1").Pulsar();
    EXPECT_EQ(piso.ventana.texto(u"txtObservaciones"), u"uno\ndos"_s);
    EXPECT_FALSE(notas.abierta());
}

TEST(Notes, StayAsTheyWereWhenLeft)
{
    CasoDePrueba piso;
    piso.Escribir({{u"txtObservaciones", u"uno"}});
    Observaciones notas(piso.ventana);
    notas.campo(u"txtEdicionObservaciones").setText(u"dos"_s);
    notas.boton(u"SSCommand2").Pulsar();
    EXPECT_EQ(piso.ventana.texto(u"txtObservaciones"), u"uno"_s);
    EXPECT_FALSE(notas.abierta());
}

TEST(Problem, OpensOnTheSentenceInHandUnlessItSpeaksOfNone)
{
    struct Fila
    {
        QStringView frase, caja;
    };
    for (const Fila& fila : {Fila{u"Fuera de ordenación.", u"Fuera de ordenación."}, Fila{u"", u""},
                             Fila{u"Cumple toda la normativa urbanística existente en Sueca.", u""},
                             Fila{u"No existen mejoras ni cargas.", u""},
                             Fila{u"No cumple toda la normativa", u"No cumple toda la normativa"}}) {
        FrasesInforme frases;
        frases.FraseUrbanistica = fila.frase.toString();
        EXPECT_EQ(Problema(frases).texto(u"BoxProblema"), fila.caja);
        EXPECT_EQ(frases.FraseUrbanistica, fila.frase);
    }
}

TEST(Problem, BecomesTheSentenceWhenAccepted)
{
    FrasesInforme frases;
    Problema problema(frases);
    EXPECT_EQ(problema.Caption(), u"Exposición del problema"_s);
    EXPECT_EQ(problema.control(u"Label1").Caption(), u"Irregularidades o falta de adecuación urbanística:"_s);
    problema.campo(u"BoxProblema").Pegar(u"Excede la altura.\nSin licencia."_s);
    problema.boton(u"SSCommand1").Pulsar();
    EXPECT_EQ(frases.FraseUrbanistica, u"Excede la altura.\nSin licencia."_s);
    EXPECT_FALSE(problema.abierta());
}

TEST(Problem, LeavesTheSentenceAloneWhenLeft)
{
    FrasesInforme frases;
    frases.FraseUrbanistica = u"x"_s;
    Problema problema(frases);
    problema.campo(u"BoxProblema").setText(u"y"_s);
    problema.boton(u"SSCommand2").Pulsar();
    EXPECT_EQ(frases.FraseUrbanistica, u"x"_s);
    EXPECT_FALSE(problema.abierta());
}

} // namespace valmerix
