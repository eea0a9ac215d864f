#include "report/rtf_writer.h"

#include "report/report_error.h"

#include <QSaveFile>

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

void EscribirUnidad(QByteArray& rtf, QChar c)
{
    const char16_t u = c.unicode();
    if (u == u'\\' || u == u'{' || u == u'}') {
        rtf += '\\';
        rtf += static_cast<char>(u);
    } else if (u == u'\t') {
        rtf += "\\tab ";
    } else if (u >= 0x20 && u < 0x7F) {
        rtf += static_cast<char>(u);
    } else if (u >= 0x80) {
        // The number is signed; readers that do not know the escape take the fallback behind it.
        rtf += "\\u" + QByteArray::number(static_cast<qint16>(u));
        rtf += u >= 0xA0 && u <= 0xFF ? "\\'" + QByteArray::number(u, 16) : QByteArray("?");
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
        rtf_.reserve(texto_.Text().size() * 2 + 1024);
        rtf_ += kCabecera;
        AbrirParrafo();
        const QString& todo = texto_.Text();
        for (int i = 0; i < todo.size(); ++i) {
            AjustarNegrita(i);
            if (todo[i] == u'\n') {
                rtf_ += "\\par\n";
                AbrirParrafo();
            } else {
                EscribirUnidad(rtf_, todo[i]);
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
