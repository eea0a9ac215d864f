#include "common/spanish_sort.h"

#include "support/qt_printers.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

struct Ficha
{
    QString texto;
    int entrada = 0; // the order they came in

    bool operator==(const Ficha&) const = default;
};

std::ostream& operator<<(std::ostream& salida, const Ficha& ficha)
{
    return salida << ficha.entrada << ' ' << ficha.texto.toStdString();
}

void ComprobarQueSeOrdenanComoPorComparacion(const QStringList& textos)
{
    std::vector<Ficha> fichas;
    for (const QString& texto : textos)
        fichas.push_back({texto, static_cast<int>(fichas.size())});
    std::vector<Ficha> esperadas = fichas;
    std::ranges::stable_sort(esperadas, [](const Ficha& a, const Ficha& b) {
        return CompararEspañol(QStringView(a.texto), QStringView(b.texto)) < 0;
    });
    OrdenarEspañol(fichas, [](const Ficha& f) -> QStringView { return f.texto; });
    for (size_t i = 0; i < esperadas.size(); ++i)
        ASSERT_EQ(fichas[i], esperadas[i]) << "place " << i;
}

} // namespace

TEST(SpanishSort, ThousandsOfAddressesSortAsByComparingEachPair)
{
    std::mt19937 azar(11);
    const auto uno = [&](const QStringList& de) { return de[static_cast<qsizetype>(azar() % de.size())]; };
    QStringList textos;
    for (int i = 0; i < 8000; ++i) {
        textos << uno({u"Calle de "_s, u"CALLE DE "_s, u"Avenida de la "_s, u"avenida de la "_s, QString()}) +
                      uno({u"Peña"_s, u"Pena"_s, u"Pen\u0303a"_s, u"Órgano"_s, u"Organo"_s, u"Reina €"_s,
                           u"Reina 𝄞"_s, u"Sant Gervasi de Cassoles"_s, QString(u'\0')}) +
                      u", "_s + QString::number(azar() % 500);
    }
    ComprobarQueSeOrdenanComoPorComparacion(textos);
}

TEST(SpanishSort, EqualTextsKeepTheOrderTheyCameIn)
{
    QStringList textos(300, u"Calle Mayor, 1 (Cuenca)"_s);
    textos << QStringList(300, u"Calle Mayor"_s) << QStringList(300, QString());
    ComprobarQueSeOrdenanComoPorComparacion(textos);
}

TEST(SpanishSort, TextsThatDifferOnlyAtTheirFarEndSortToo)
{
    QStringList textos;
    for (int i = 300; i > 0; --i)
        textos << QString(1000, u'ñ') + QString::number(i);
    ComprobarQueSeOrdenanComoPorComparacion(textos);
}

TEST(SpanishSort, NothingAndOneTextAreInOrder)
{
    ComprobarQueSeOrdenanComoPorComparacion({});
    ComprobarQueSeOrdenanComoPorComparacion({u"Solo"_s});
}

} // namespace valmerix
