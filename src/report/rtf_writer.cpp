#include "report/rtf_writer.h"

#include "report/report_error.h"

#include <QSaveFile>
#include <algorithm>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// A4 with margins of 2 cm, measures in twips; the font's size in half points.
constexpr QByteArrayView kCabecera = R"({\rtf1\ansi\ansicpg1252\uc1\deff0\deflang3082
{\fonttbl{\f0\froman\fcharset0 Times New Roman;}}
\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134
)";
constexpr QByteArrayView kPie = "}\n";
constexpr QByteArrayView kCuerpo = "\\f0\\fs22";

QByteArrayView OrdenDe(Alineacion alineacion)
{
    switch (alineacion) {
    case Alineacion::Derecha:
        return "\\qr";
    case Alineacion::Centro:
        return "\\qc";
    case Alineacion::Izquierda:
        break;
    }
    return "\\ql";
}

// What windows-1252 has between 0x80 and 0x9F, in its order; 0 where it has nothing.
constexpr std::array<char16_t, 32> kCp1252 = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                              0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// The character in the document's code page, "?" when it has none there.
int EnCp1252(char16_t u)
{
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
        return u;
    }
    const auto sitio = std::find(kCp1252.begin(), kCp1252.end(), u);
    return sitio == kCp1252.end() ? '?' : 0x80 + static_cast<int>(sitio - kCp1252.begin());
}

/// As a Unicode escape. The number is signed; readers that do not know it take the fallback behind it, which
/// some of them only find when it is a hexadecimal one.
void EscribirEscape(QByteArray& rtf, char16_t u)
{
    rtf += "\\u" + QByteArray::number(static_cast<qint16>(u)) + "\\'" + QByteArray::number(EnCp1252(u), 16);
}

void EscribirUnidad(QByteArray& rtf, char16_t u)
{
    if (u == u'\\' || u == u'{' || u == u'}') {
        rtf += '\\';
        rtf += static_cast<char>(u);
    } else if (u == u'\t') {
        rtf += "\\tab ";
    } else if (u >= 0x20 && u < 0x7F) {
        rtf += static_cast<char>(u);
    } else if (u >= 0x80) {
        EscribirEscape(rtf, u);
    }
}

class Escritor
{
public:
    explicit Escritor(const TextoEnriquecido& texto)
        : texto_(texto)
    {
    }

    QByteArray Escribir()
    {
        rtf_.reserve(texto_.Text().size() * 4 + 1024);
        rtf_ += kCabecera;
        AbrirParrafo();
        const QString& todo = texto_.Text();
        for (int i = 0; i < todo.size(); ++i) {
            AjustarNegrita(i);
            if (todo[i] == u'\n') {
                rtf_ += "\\par\n";
                AbrirParrafo();
            } else {
                EscribirCaracter(i);
            }
        }
        rtf_ += kPie;
        return rtf_;
    }

private:
    void AbrirParrafo()
    {
        rtf_ += "\\pard";
        rtf_ += OrdenDe(texto_.alineacion(parrafo_++));
        rtf_ += kCuerpo;
        rtf_ += ' ';
    }

    // Word processors meddle with runs of bare blanks, so these are escaped.
    void EscribirCaracter(int i)
    {
        const QString& todo = texto_.Text();
        const auto hayBlanco = [&](int j) { return j >= 0 && j < todo.size() && todo[j] == u' '; };
        if (hayBlanco(i) && (hayBlanco(i - 1) || hayBlanco(i + 1))) {
            EscribirEscape(rtf_, u' ');
        } else {
            EscribirUnidad(rtf_, todo[i].unicode());
        }
    }

    void AjustarNegrita(int posicion)
    {
        const auto& tramos = texto_.negritas();
        if (enNegrita_ && posicion == tramos[tramo_].fin) {
            rtf_ += "\\b0 ";
            enNegrita_ = false;
            ++tramo_;
        }
        if (!enNegrita_ && tramo_ < tramos.size() && posicion == tramos[tramo_].inicio) {
            rtf_ += "\\b ";
            enNegrita_ = true;
        }
    }

    const TextoEnriquecido& texto_;
    QByteArray rtf_;
    int parrafo_ = 0;
    size_t tramo_ = 0;
    bool enNegrita_ = false;
};

} // namespace

QByteArray TextoRTF(const TextoEnriquecido& texto)
{
    return Escritor(texto).Escribir();
}

void GuardarRTF(const TextoEnriquecido& texto, const QString& ruta)
{
    QSaveFile fichero(ruta);
    const QByteArray bytes = TextoRTF(texto);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(bytes) != bytes.size() || !fichero.commit()) {
        throw ErrorInforme(u"No se ha podido guardar "_s + ruta + u": "_s + fichero.errorString());
    }
}

} // namespace valmerix
