#include "common/spanish_sort.h"

#include "support/qt_printers.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

QStringList Ordenados(const QStringList& textos)
{
    std::vector<QString> v(textos.begin(), textos.end());
    OrdenarEspañol(v, [](const QString& t) -> QStringView { return t; });
    return QStringList(v.begin(), v.end());
}

int Signo(int n)
{
    return n < 0 ? -1 : n > 0 ? 1 : 0;
}

} // namespace

TEST(SpanishText, FoldingTakesCaseAndAccentsOffButKeepsTheEñe)
{
    EXPECT_EQ(Plegar(u"Órgano de GÜÍMAR, Plaça d’Àngel"), u"organo de guimar, placa d’angel"_s);
    EXPECT_EQ(Plegar(u"Peñíscola NUÑO"), u"peñiscola nuño"_s);
    EXPECT_EQ(Plegar(u"Łódź Žižek Œuvre 12 m²"), u"łodz zizek œuvre 12 m²"_s);
}

TEST(SpanishText, FoldingReadsCombiningMarksAsTheLettersTheyMake)
{
    EXPECT_EQ(Plegar(u"Cadiz\u0301"), u"cadiz"_s);
    EXPECT_EQ(Plegar(u"Pen\u0303a"), u"peña"_s);
}

TEST(SpanishText, FoldingUtf8AgreesWithFoldingUtf16)
{
    const QString texto = u"Ágreda, Núñez Pen\u0303a, Àlaba 𝄞 €"_s;
    std::string plegado;
    PlegarUtf8(texto.toStdString(), plegado);
    EXPECT_EQ(QString::fromStdString(plegado), Plegar(texto));
}

TEST(SpanishText, DamagedBytesStayAsTheyAre)
{
    std::string plegado;
    PlegarUtf8("A\xFF\xC3", plegado);
    EXPECT_EQ(plegado, "a\xFF\xC3");
    plegado.clear();
    PlegarUtf8("\xE0\x80\x80\xF4\x90\x80\x80", plegado);
    EXPECT_EQ(plegado, "\xE0\x80\x80\xF4\x90\x80\x80");
}

TEST(SpanishText, TheEñeStandsBetweenNAndO)
{
    EXPECT_EQ(Ordenados({u"caoba"_s, u"caña"_s, u"canuto"_s, u"cana"_s, u"cañada"_s}),
              (QStringList{u"cana"_s, u"canuto"_s, u"caña"_s, u"cañada"_s, u"caoba"_s}));
}

TEST(SpanishText, AccentsAndCaseOnlyBreakTies)
{
    EXPECT_EQ(Ordenados({u"Úbeda"_s, u"Valencia"_s, u"Ávila"_s, u"Alcoi"_s, u"Zamora"_s, u"Elda"_s}),
              (QStringList{u"Alcoi"_s, u"Ávila"_s, u"Elda"_s, u"Úbeda"_s, u"Valencia"_s, u"Zamora"_s}));
    EXPECT_EQ(Ordenados({u"Solá"_s, u"SOLA"_s, u"sola"_s, u"Sola"_s, u"solá"_s}),
              (QStringList{u"sola"_s, u"Sola"_s, u"SOLA"_s, u"solá"_s, u"Solá"_s}));
}

TEST(SpanishText, DigitsAndSignsComeBeforeLettersAndShorterBeforeLonger)
{
    EXPECT_EQ(Ordenados({u"b"_s, u"1"_s, u"a"_s, u""_s, u" a"_s, u"ab"_s}),
              (QStringList{u""_s, u" a"_s, u"1"_s, u"a"_s, u"ab"_s, u"b"_s}));
}

TEST(SpanishText, LongSharedBeginningsSortToo)
{
    const QString largo = QString(60000, u'ñ');
    EXPECT_EQ(Ordenados({largo + u"b"_s, largo + u"Á"_s, largo + u"a"_s, largo, largo + u"a"_s}),
              (QStringList{largo, largo + u"a"_s, largo + u"a"_s, largo + u"Á"_s, largo + u"b"_s}));
    EXPECT_EQ(
        Ordenados({u"Calle Mayor, 12"_s, u"calle mayor, 1"_s, u"Calle Mayor, 1"_s, u"Calle Mayor"_s}),
        (QStringList{u"Calle Mayor"_s, u"calle mayor, 1"_s, u"Calle Mayor, 1"_s, u"Calle Mayor, 12"_s}));
}

TEST(SpanishText, ComparingIsATotalOrderThatBothEncodingsAndTheSortKeyShare)
{
    std::mt19937 azar(7);
    const QString letras = u"aAáÁnNñÑoüÜçz 1ß€\u0303\u0301"_s;
    std::vector<QString> textos;
    for (int i = 0; i < 300; ++i) {
        QString texto;
        for (unsigned n = azar() % 5; n > 0; --n)
            texto += letras[static_cast<qsizetype>(azar() % static_cast<unsigned>(letras.size()))];
        textos.push_back(texto);
    }
    for (const QString& a : textos) {
        for (const QString& b : textos) {
            const int orden = CompararEspañol(QStringView(a), QStringView(b));
            EXPECT_EQ(orden == 0, a == b);
            EXPECT_EQ(Signo(orden), -Signo(CompararEspañol(QStringView(b), QStringView(a))));
            EXPECT_EQ(Signo(orden), Signo(CompararEspañol(a.toStdString(), b.toStdString())));
        }
    }
    std::vector<QString> porClaves = textos;
    OrdenarEspañol(porClaves, [](const QString& t) -> QStringView { return t; });
    std::ranges::sort(textos, [](const QString& a, const QString& b) {
        return CompararEspañol(QStringView(a), QStringView(b)) < 0;
    });
    EXPECT_EQ(porClaves, textos);
    for (size_t i = 0; i < textos.size(); ++i) {
        for (size_t j = i + 1; j < textos.size(); ++j)
            EXPECT_LE(CompararEspañol(QStringView(textos[i]), QStringView(textos[j])), 0);
    }
}

} // namespace valmerix
