#include "report/report_text.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

TEST(ReportText, LevelsAreZonesOfFourteenBlanks)
{
    TextoInforme texto;
    texto.Linea(Nivel::L0, u"a");
    texto.Linea(Nivel::L1, u"b");
    texto.Linea(Nivel::L2, u"c");
    texto.Linea(Nivel::L3, u"d");
    texto.Linea(Nivel::Firma, u"e");
    EXPECT_EQ(texto.texto(), u"a\r\n"_s + QString(14, u' ') + u"b\r\n"_s + QString(28, u' ') + u"c\r\n"_s +
                                 QString(42, u' ') + u"d\r\n"_s + QString(40, u' ') + u"e\r\n"_s);
}

TEST(ReportText, BlankLinesAreBare)
{
    TextoInforme texto;
    texto.NL(2);
    texto.NL();
    texto.NL(0);
    EXPECT_EQ(texto.texto(), u"\r\n\r\n\r\n"_s);
}

TEST(ReportText, EveryLineBreakInsideALineBecomesCarriageReturnAndLineFeed)
{
    TextoInforme texto;
    texto.Linea(Nivel::L0, u"a\nb\r\nc\rd\n");
    EXPECT_EQ(texto.texto(), u"a\r\nb\r\nc\r\nd\r\n\r\n"_s);
}

} // namespace valmerix
