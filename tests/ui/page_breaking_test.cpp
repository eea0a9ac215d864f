#include "ui/printing/page_breaking.h"

#include <gtest/gtest.h>
#include <random>

namespace valmerix {

namespace {

constexpr int kPrimera = 40;
constexpr int kCaben = 51;

struct Linea
{
    size_t parrafo;
    int en; ///< line of its paragraph, from 0
};

std::vector<Linea> Lineas(const std::vector<ParrafoRenglonado>& parrafos)
{
    std::vector<Linea> lineas;
    for (size_t p = 0; p < parrafos.size(); ++p) {
        for (int j = 0; j < parrafos[p].renglones; ++j)
            lineas.push_back({p, j});
    }
    return lineas;
}

std::vector<ParrafoRenglonado> AlAzar(std::mt19937& azar, size_t cuantos)
{
    std::vector<ParrafoRenglonado> parrafos;
    while (parrafos.size() < cuantos) {
        if (azar() % 4 == 0) {
            parrafos.insert(parrafos.end(), azar() % 4, {1, true, false});
            parrafos.push_back({1 + static_cast<int>(azar() % 2), false, true});
            parrafos.insert(parrafos.end(), azar() % 2, {1, true, false});
        }
        parrafos.push_back({1 + static_cast<int>(azar() % 9), false, false});
    }
    return parrafos;
}

// What a careful typesetter sees at the end of every page but the last.
void ComprobarCortes(const std::vector<ParrafoRenglonado>& parrafos, const std::vector<TramoPagina>& paginas)
{
    const std::vector<Linea> lineas = Lineas(parrafos);
    for (size_t i = 0; i + 1 < paginas.size(); ++i) {
        auto ultima = static_cast<size_t>(paginas[i].ultimo) - 1;
        const Linea pie = lineas[ultima];
        const ParrafoRenglonado& parrafo = parrafos[pie.parrafo];
        if (pie.en + 1 < parrafo.renglones) {
            EXPECT_GE(pie.en, 1) << "first line alone at the foot of page " << i;
            EXPECT_GE(parrafo.renglones - pie.en - 1, 2) << "last line alone on top of page " << i + 1;
        }
        while (parrafos[lineas[ultima].parrafo].blanco)
            --ultima;
        EXPECT_FALSE(parrafos[lineas[ultima].parrafo].negrita) << "heading at the foot of page " << i;
    }
}

std::vector<TramoPagina> Repartir(const std::vector<ParrafoRenglonado>& parrafos)
{
    return RepartirEnPaginas(AtarRenglones(parrafos), kPrimera, kCaben);
}

} // namespace

TEST(PageBreaking, NoHeadingAndNoSingleLineStandsAloneWhateverTheLength)
{
    std::mt19937 azar(7);
    for (size_t cuantos = 1; cuantos < 400; ++cuantos) {
        const std::vector<ParrafoRenglonado> parrafos = AlAzar(azar, cuantos);
        ComprobarCortes(parrafos, Repartir(parrafos));
    }
}

TEST(PageBreaking, EveryWrittenLineIsPrintedOnceInOrder)
{
    std::mt19937 azar(11);
    for (size_t cuantos = 1; cuantos < 200; ++cuantos) {
        const std::vector<Renglonado> renglones = AtarRenglones(AlAzar(azar, cuantos));
        int esperado = 0;
        for (const TramoPagina& pagina : RepartirEnPaginas(renglones, kPrimera, kCaben)) {
            for (; esperado < pagina.primero; ++esperado)
                EXPECT_TRUE(renglones[static_cast<size_t>(esperado)].blanco);
            EXPECT_LE(pagina.ultimo - pagina.primero, esperado == 0 ? kPrimera : kCaben);
            EXPECT_LT(pagina.primero, pagina.ultimo);
            esperado = pagina.ultimo;
        }
        EXPECT_TRUE(static_cast<size_t>(esperado) == renglones.size() || renglones.back().blanco);
    }
}

TEST(PageBreaking, PagesAreAtLeastHalfFull)
{
    std::mt19937 azar(13);
    const auto paginas = Repartir(AlAzar(azar, 2000));
    ASSERT_GT(paginas.size(), 20U);
    for (size_t i = 1; i + 1 < paginas.size(); ++i)
        EXPECT_GT(paginas[i].ultimo - paginas[i].primero, kCaben / 2);
}

TEST(PageBreaking, NothingToPrintIsOneEmptyPage)
{
    const std::vector<TramoPagina> vacia{{0, 0}};
    EXPECT_EQ(Repartir({}), vacia);
    EXPECT_EQ(Repartir({{1, true, false}, {1, true, false}}), vacia);
}

TEST(PageBreaking, BlankLinesVanishOnTopOfAPageButNotOfTheFirst)
{
    std::vector<ParrafoRenglonado> parrafos(2, {1, true, false});
    parrafos.insert(parrafos.end(), kPrimera - 2, {1, false, false});
    parrafos.insert(parrafos.end(), 3, {1, true, false});
    parrafos.push_back({1, false, false});
    const std::vector<TramoPagina> esperado{{0, kPrimera}, {kPrimera + 3, kPrimera + 4}};
    EXPECT_EQ(Repartir(parrafos), esperado);
}

TEST(PageBreaking, AReportInBoldFillsItsPages)
{
    const auto paginas = Repartir(std::vector<ParrafoRenglonado>(kPrimera + 2 * kCaben, {1, false, true}));
    ASSERT_EQ(paginas.size(), 3U);
    EXPECT_EQ(paginas[0].ultimo, kPrimera);
    EXPECT_EQ(paginas[1].ultimo, kPrimera + kCaben);
}

TEST(PageBreaking, AChainOfHeadingsMovesWithWhatItLeadsTo)
{
    std::vector<ParrafoRenglonado> parrafos(kPrimera - 4, {1, false, false});
    const int corte = kPrimera - 4;
    parrafos.push_back({1, false, true});
    parrafos.push_back({1, true, false});
    parrafos.push_back({1, false, true});
    parrafos.push_back({3, false, false});
    const auto paginas = Repartir(parrafos);
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_EQ(paginas[0].ultimo, corte);
}

TEST(PageBreaking, AParagraphOfManyPagesKeepsTwoLinesAtItsEnds)
{
    const std::vector<ParrafoRenglonado> parrafos{{kPrimera + 2 * kCaben + 1, false, false}};
    const auto paginas = Repartir(parrafos);
    ASSERT_EQ(paginas.size(), 4U);
    ComprobarCortes(parrafos, paginas);
}

} // namespace valmerix
