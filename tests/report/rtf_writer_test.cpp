#include "report/rtf_writer.h"

#include "report/report_error.h"
#include "report/viewer_fixture.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct Leido
{
    QString texto;
    std::vector<bool> negrita; ///< one a unit
    std::vector<Alineacion> alineaciones;
};

/// A reader of what the writer may write, and of nothing else: anything unknown fails the test.
class LectorRTF
{
public:
    explicit LectorRTF(const QByteArray& rtf)
        : rtf_(rtf)
    {
    }

    Leido Leer()
    {
        // The header is two groups of its own; the body begins with the first \pard.
        i_ = rtf_.indexOf("\\pard");
        EXPECT_GE(i_, 0);
        while (i_ < rtf_.size() && rtf_[i_] != '}')
            Paso();
        EXPECT_EQ(rtf_.mid(i_), "}\n");
        return leido_;
    }

private:
    void Poner(char16_t u)
    {
        leido_.texto += QChar(u);
        leido_.negrita.push_back(negrita_);
    }

    void Paso()
    {
        const char c = rtf_[i_];
        if (c == '\\')
            Orden();
        else if (c != '\n')
            Poner(static_cast<uchar>(c)), ++i_;
        else
            ++i_;
    }

    void Orden()
    {
        const char siguiente = rtf_[i_ + 1];
        if (siguiente == '\\' || siguiente == '{' || siguiente == '}') {
            Poner(static_cast<uchar>(siguiente));
            i_ += 2;
            return;
        }
        qsizetype fin = i_ + 1;
        while (fin < rtf_.size() && QChar::fromLatin1(rtf_[fin]).isLetter())
            ++fin;
        const QByteArray palabra = rtf_.mid(i_ + 1, fin - i_ - 1);
        qsizetype finNumero = fin;
        while (finNumero < rtf_.size() &&
               (rtf_[finNumero] == '-' || QChar::fromLatin1(rtf_[finNumero]).isDigit()))
            ++finNumero;
        const QByteArray numero = rtf_.mid(fin, finNumero - fin);
        i_ = finNumero + (rtf_.mid(finNumero, 1) == " " ? 1 : 0);
        Cumplir(palabra, numero);
    }

    void Cumplir(const QByteArray& palabra, const QByteArray& numero)
    {
        if (palabra == "u") {
            Poner(static_cast<char16_t>(numero.toInt()));
            EXPECT_EQ(rtf_.mid(i_, 2), "\\'");
            i_ += 4; // the fallback
        } else if (palabra == "tab") {
            Poner(u'\t');
        } else if (palabra == "par") {
            Poner(u'\n');
        } else if (palabra == "b") {
            negrita_ = numero != "0";
        } else if (palabra == "ql" || palabra == "qr" || palabra == "qc") {
            leido_.alineaciones.push_back(palabra == "ql"   ? Alineacion::Izquierda
                                          : palabra == "qr" ? Alineacion::Derecha
                                                            : Alineacion::Centro);
        } else {
            EXPECT_TRUE(palabra == "pard" || palabra == "f" || palabra == "fs") << palabra.toStdString();
        }
    }

    QByteArray rtf_;
    qsizetype i_ = 0;
    bool negrita_ = false;
    Leido leido_;
};

void ComprobarVuelta(const TextoEnriquecido& texto)
{
    const QByteArray rtf = TextoRTF(texto);
    for (const char c : rtf)
        ASSERT_TRUE(c == '\n' || (c >= 0x20 && c < 0x7F));
    const Leido leido = LectorRTF(rtf).Leer();
    EXPECT_EQ(leido.texto, texto.Text());
    for (int i = 0; i < texto.Text().size(); ++i) {
        const bool negrita =
            std::ranges::any_of(texto.negritas(), [i](const Tramo& t) { return t.inicio <= i && i < t.fin; });
        ASSERT_EQ(leido.negrita[static_cast<size_t>(i)], negrita) << i;
    }
    ASSERT_EQ(static_cast<int>(leido.alineaciones.size()), texto.parrafos());
    for (int p = 0; p < texto.parrafos(); ++p)
        EXPECT_EQ(leido.alineaciones[static_cast<size_t>(p)], texto.alineacion(p));
}

} // namespace

TEST(RtfWriter, AWholeReportReadsBackWithItsMarks)
{
    VisorDePrueba v;
    v.Redactar();
    ComprobarVuelta(v.texto());
}

TEST(RtfWriter, SpecialCharactersReadBack)
{
    TextoEnriquecido texto(u"Texto"_s);
    texto.setText(u"a\\b{c}d\te €ñÑ’“”…—º½ 𝄞 中 ~-9\n\n  doble  blanco \n1 2\n-3"_s);
    for (const auto& [inicio, longitud] : {std::pair{0, 3}, {5, 10}, {14, 20}, {37, 1}}) {
        texto.Seleccionar(inicio, longitud);
        texto.SelBold();
    }
    ComprobarVuelta(texto);
}

TEST(RtfWriter, BoldMayReachTheEndOfTheText)
{
    TextoEnriquecido texto(u"Texto"_s);
    texto.setText(u"uno\ndos"_s);
    texto.Seleccionar(2, 5);
    texto.SelBold();
    ComprobarVuelta(texto);
}

TEST(RtfWriter, AnEmptyTextIsAnEmptyPage)
{
    ComprobarVuelta(TextoEnriquecido(u"Texto"_s));
}

TEST(RtfWriter, EveryFallbackIsTheCharacterOfTheCodePage)
{
    TextoEnriquecido texto(u"Texto"_s);
    texto.setText(u"ñ€’ž中"_s);
    EXPECT_TRUE(TextoRTF(texto).contains("\\u241\\'f1\\u8364\\'80\\u8217\\'92\\u382\\'9e\\u20013\\'3f}"));
}

TEST(RtfWriter, RunsOfBlanksAreEscapedAndSingleOnesAreNot)
{
    TextoEnriquecido texto(u"Texto"_s);
    texto.setText(u"a b  c "_s);
    EXPECT_TRUE(TextoRTF(texto).contains(" a b\\u32\\'20\\u32\\'20c }"));
}

TEST(RtfWriter, ControlCharactersAreLeftOut)
{
    TextoEnriquecido texto(u"Texto"_s);
    texto.setText(u"a\u0001\u000C\u007Fb"_s);
    EXPECT_EQ(LectorRTF(TextoRTF(texto)).Leer().texto, u"ab"_s);
}

TEST(RtfWriter, ThePageIsA4)
{
    const QByteArray rtf = TextoRTF(TextoEnriquecido(u"Texto"_s));
    EXPECT_TRUE(rtf.startsWith("{\\rtf1\\ansi\\ansicpg1252\\uc1"));
    EXPECT_TRUE(rtf.contains("\\paperw11906\\paperh16838"));
}

TEST(RtfWriter, AFileIsWrittenWholeOrNotAtAll)
{
    VisorDePrueba v;
    v.Redactar();
    EXPECT_THROW(GuardarRTF(v.texto(), v.ruta(u"no/Tasacion.rtf"_s)), ErrorInforme);
    GuardarRTF(v.texto(), v.ruta(u"Tasacion.rtf"_s));
    GuardarRTF(v.texto(), v.ruta(u"Tasacion.rtf"_s));
    QFile fichero(v.ruta(u"Tasacion.rtf"_s));
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    EXPECT_EQ(fichero.readAll(), TextoRTF(v.texto()));
    EXPECT_EQ(QDir(v.carpeta.path()).entryList(QDir::Files), QStringList{u"Tasacion.rtf"_s});
}

} // namespace valmerix
