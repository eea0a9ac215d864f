#include "report/report_text.h"

namespace valmerix {

namespace {

constexpr QStringView kFinDeLinea = u"\r\n";
constexpr qsizetype kLargoUsual = 24000;

} // namespace

TextoInforme::TextoInforme()
{
    texto_.reserve(kLargoUsual);
}

void TextoInforme::Linea(Nivel nivel, QStringView texto)
{
    texto_.resize(texto_.size() + static_cast<int>(nivel), u' ');
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c == u'\r' && i + 1 < texto.size() && texto[i + 1] == u'\n') {
            continue;
        }
        if (c == u'\n' || c == u'\r') {
            texto_ += kFinDeLinea;
        } else {
            texto_ += c;
        }
    }
    texto_ += kFinDeLinea;
}

void TextoInforme::NL(int cuantas)
{
    for (; cuantas > 0; --cuantas) {
        texto_ += kFinDeLinea;
    }
}

} // namespace valmerix
