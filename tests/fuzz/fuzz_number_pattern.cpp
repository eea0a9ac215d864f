#include "common/number_pattern.h"
#include "common/number_reading.h"
#include "common/number_words.h"
#include "fuzz_support.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace valmerix;
using pruebas::Exigir;

namespace {

/// What a reader of patterns needs to know to judge a shown number.
struct Medidas
{
    bool llano = false;
    bool marca = false;
    bool agrupa = false;
    int decimales = 0;
    int decimalesForzados = 0;
};

Medidas Medir(QStringView patron)
{
    const qsizetype punto = patron.indexOf(u'.');
    const QStringView enteros = punto < 0 ? patron : patron.first(punto);
    Medidas m{.llano = patron.isEmpty(), .marca = punto >= 0, .agrupa = enteros.contains(u',')};
    for (const QChar c : punto < 0 ? QStringView() : patron.sliced(punto + 1)) {
        m.decimales += c == u'#' || c == u'0' ? 1 : 0;
        m.decimalesForzados = c == u'0' ? m.decimales : m.decimalesForzados;
    }
    return m;
}

void ComprobarForma(QStringView texto, const Medidas& m)
{
    const QStringView cuerpo = texto.startsWith(u'-') ? texto.sliced(1) : texto;
    const qsizetype coma = cuerpo.indexOf(u',');
    const QStringView enteros = coma < 0 ? cuerpo : cuerpo.first(coma);
    const QStringView decimales = coma < 0 ? QStringView() : cuerpo.sliced(coma + 1);
    if (!m.llano) {
        Exigir((coma >= 0) == m.marca);
        Exigir(decimales.size() >= m.decimalesForzados && decimales.size() <= m.decimales);
        Exigir(decimales.size() == m.decimalesForzados || decimales.back() != u'0');
    }
    for (qsizetype i = 0; i < enteros.size(); ++i) {
        const bool lugarDePunto = m.agrupa && (enteros.size() - i) % 4 == 0;
        Exigir(lugarDePunto ? enteros[i] == u'.' : enteros[i] >= u'0' && enteros[i] <= u'9');
    }
    for (const QChar c : decimales) {
        Exigir(c >= u'0' && c <= u'9');
    }
    const bool esCero =
        std::none_of(cuerpo.begin(), cuerpo.end(), [](QChar c) { return c >= u'1' && c <= u'9'; });
    Exigir(!(esCero && texto.startsWith(u'-')));
}

void ProbarDouble(double valor, const QString& patron, const Medidas& m)
{
    const QString texto = Formatear(valor, patron);
    ComprobarForma(texto, m);
    const double vuelta = LeerNumero(texto);
    const double media = m.llano ? 0 : std::pow(10.0, -m.decimales) / 2;
    Exigir(std::isinf(vuelta) || std::fabs(vuelta - valor) <= media * 1.000001 + std::fabs(valor) * 1e-14);
    Exigir(vuelta == RedondeoFormato(valor, patron));
    if (std::fabs(vuelta) < 1e14) {
        Exigir(Formatear(vuelta, patron) == texto);
    }
}

void ProbarMoneda(Currency importe, const QString& patron, const Medidas& m)
{
    const QString texto = Formatear(importe, patron);
    ComprobarForma(texto, m);
    if (m.llano || m.decimales >= 4) {
        Exigir(LeerMoneda(texto) == importe);
    } else if (std::fabs(importe.aDouble()) < 9.2e14) {
        const qint64 unidad = static_cast<qint64>(std::pow(10.0, 4 - m.decimales));
        const qint64 resto = (RedondeoFormato(importe, patron) - importe).diezmilesimas();
        Exigir(std::abs(resto) <= unidad / 2);
        // A half goes away from zero.
        Exigir(std::abs(resto) < unidad / 2 || (resto > 0) == (importe.diezmilesimas() > 0));
    }
}

void ProbarLetras(Currency importe)
{
    const QString letras = EnLetrasFemenino(importe);
    Exigir(letras.endsWith(u' ') && !letras.contains(QStringLiteral("  ")) && letras == letras.toLower());
    Exigir(EnLetrasMasculino(importe).count(u' ') == letras.count(u' '));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    pruebas::Entrada entrada(datos, largo);
    const auto valor = entrada.Tomar<double>();
    const auto importe = Currency::deDiezmilesimas(entrada.Tomar<qint64>());
    QString patron = entrada.TomarTexto(200);
    // Most bytes become signs of a pattern; the others stay, to be passed over.
    for (QChar& c : patron) {
        constexpr QStringView kSignos = u"#0,.";
        c = c.unicode() < 0xC0 ? kSignos[c.unicode() % kSignos.size()] : c;
    }
    const Medidas medidas = Medir(patron);
    ProbarMoneda(importe, patron, medidas);
    ProbarLetras(importe);
    if (std::isfinite(valor)) {
        ProbarDouble(valor, patron, medidas);
        return 0;
    }
    try {
        Formatear(valor, patron);
        Exigir(false);
    } catch (const ErrorDesbordamiento&) {
    }
    return 0;
}
