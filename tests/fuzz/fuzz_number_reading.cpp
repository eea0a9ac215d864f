#include "common/number_pattern.h"
#include "common/number_reading.h"
#include "fuzz_support.h"

#include <cmath>

using namespace valmerix;
using pruebas::Exigir;

namespace {

// The money read and the number read are the same amount, or both are too large.
void CompararConMoneda(const QString& texto, double numero)
{
    try {
        const double importe = LeerMoneda(texto).aDouble();
        Exigir(std::fabs(importe - numero) <= 0.00005 + std::fabs(numero) * 1e-15);
    } catch (const ErrorDesbordamiento&) {
        Exigir(std::fabs(numero) >= 922337203685477.0);
    }
}

void CompararConEntero(const QString& texto, double numero)
{
    try {
        const int entero = LeerEntero(texto);
        Exigir(std::fabs(entero - numero) <= 0.5);
        Exigir(std::fabs(entero - numero) < 0.5 || entero % 2 == 0);
    } catch (const ErrorDesbordamiento&) {
        Exigir(numero >= 32767.5 || numero < -32768.5);
    }
}

// A literal has the shape -?digits(.digits)? whatever was typed, so that it can stand in a statement.
void ComprobarSQL(const QString& texto, double numero, int decimales)
{
    try {
        const QString literal = NumeroSQL(texto, u"0", decimales);
        const QStringView sinSigno = QStringView(literal).sliced(literal.startsWith(u'-') ? 1 : 0);
        const qsizetype punto = sinSigno.indexOf(u'.');
        Exigir(punto == (decimales > 0 ? sinSigno.size() - decimales - 1 : -1));
        qsizetype cifras = 0;
        for (const QChar c : sinSigno) {
            Exigir(c == u'.' || (c >= u'0' && c <= u'9'));
            cifras += c == u'.' ? 0 : 1;
        }
        Exigir(cifras > decimales);
        const double unidad = std::pow(10.0, -decimales);
        Exigir(std::fabs(literal.toDouble() - numero) <= unidad / 2 + std::fabs(numero) * 1e-14);
    } catch (const ErrorDesbordamiento&) {
        Exigir(std::fabs(numero) > 1.797693e308);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    pruebas::Entrada entrada(datos, largo);
    const int decimales = entrada.Tomar<std::uint8_t>() % 5;
    const QString texto = entrada.TomarTexto(4096);

    const double numero = LeerNumero(texto);
    Exigir(!std::isnan(numero));
    Exigir(!(numero == 0 && std::signbit(numero)));
    CompararConMoneda(texto, numero);
    CompararConEntero(texto, numero);
    if (!texto.isEmpty()) {
        ComprobarSQL(texto, numero, decimales);
    }
    if (EsNumero(texto)) {
        Exigir(LeerNumero(texto + QStringLiteral(" m²")) == numero);
        Exigir(std::isinf(numero) || EsNumero(Formatear(numero, u"###,##0.00##")));
    }
    return 0;
}
