#include "common/number_reading.h"

#include "common/number_pattern.h"

#include <QVarLengthArray>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kDecimalesCurrency = 4;
constexpr qsizetype kEnterosCurrency = 15;

/// The parts of the number that a text begins with.
struct NumeroLeido
{
    bool negativo = false;
    QStringView enteros;   ///< digits and grouping dots
    QStringView decimales; ///< digits
    bool hay = false;      ///< at least one digit
    bool completo = false; ///< nothing follows it
};

bool EsCifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

NumeroLeido Separar(QStringView texto)
{
    const QStringView t = texto.trimmed();
    NumeroLeido leido;
    qsizetype i = 0;
    if (!t.isEmpty() && (t.front() == u'-' || t.front() == u'+')) {
        leido.negativo = t.front() == u'-';
        i = 1;
    }
    const qsizetype inicio = i;
    for (; i < t.size() && (EsCifra(t[i]) || t[i] == u'.'); ++i) {
        leido.hay = leido.hay || t[i] != u'.';
    }
    leido.enteros = t.sliced(inicio, i - inicio);
    if (i < t.size() && t[i] == u',') {
        const qsizetype primera = ++i;
        while (i < t.size() && EsCifra(t[i])) {
            ++i;
        }
        leido.decimales = t.sliced(primera, i - primera);
        leido.hay = leido.hay || !leido.decimales.isEmpty();
    }
    leido.completo = leido.hay && i == t.size();
    return leido;
}

using Buffer = QVarLengthArray<char, 64>;

/// Without dots and without zeros at its beginning.
Buffer CifrasEnteras(QStringView enteros)
{
    Buffer cifras;
    for (const QChar c : enteros) {
        if (c != u'.' && (c != u'0' || !cifras.isEmpty())) {
            cifras.append(c.toLatin1());
        }
    }
    return cifras;
}

[[noreturn]] void NoCabe()
{
    throw ErrorDesbordamiento("El número es demasiado grande.");
}

/// Whether the decimals behind the fourth lift the amount: above one half, or one half over an odd digit.
bool SubeDiezmilesima(QStringView sobrantes, bool impar)
{
    if (sobrantes.isEmpty() || sobrantes.front() != u'5') {
        return !sobrantes.isEmpty() && sobrantes.front() > u'5';
    }
    const QStringView cola = sobrantes.sliced(1);
    return impar || std::any_of(cola.begin(), cola.end(), [](QChar c) { return c != u'0'; });
}

} // namespace

double LeerNumero(QStringView texto)
{
    const NumeroLeido leido = Separar(texto);
    if (!leido.hay) {
        return 0;
    }
    Buffer cifras = CifrasEnteras(leido.enteros);
    const bool menorQueUno = cifras.isEmpty();
    if (menorQueUno) {
        cifras.append('0');
    }
    cifras.append('.');
    for (const QChar c : leido.decimales) {
        cifras.append(c.toLatin1());
    }
    double valor = 0;
    const auto estado = std::from_chars(cifras.data(), cifras.data() + cifras.size(), valor);
    if (estado.ec == std::errc::result_out_of_range) {
        valor = menorQueUno ? 0 : std::numeric_limits<double>::infinity();
    }
    return leido.negativo && valor != 0 ? -valor : valor;
}

Currency LeerMoneda(QStringView texto)
{
    const NumeroLeido leido = Separar(texto);
    Buffer cifras = CifrasEnteras(leido.enteros);
    if (cifras.size() > kEnterosCurrency) {
        NoCabe();
    }
    for (qsizetype i = 0; i < kDecimalesCurrency; ++i) {
        cifras.append(i < leido.decimales.size() ? leido.decimales[i].toLatin1() : '0');
    }
    quint64 magnitud = 0; // at most 19 digits
    for (const char c : cifras) {
        magnitud = magnitud * 10 + static_cast<quint64>(c - '0');
    }
    const QStringView sobrantes =
        leido.decimales.sliced(std::min(kDecimalesCurrency, leido.decimales.size()));
    if (SubeDiezmilesima(sobrantes, magnitud % 2 == 1)) {
        ++magnitud;
    }
    const quint64 limite =
        static_cast<quint64>(std::numeric_limits<qint64>::max()) + (leido.negativo ? 1 : 0);
    if (magnitud > limite) {
        NoCabe();
    }
    return Currency::deDiezmilesimas(static_cast<qint64>(leido.negativo ? 0 - magnitud : magnitud));
}

int LeerEntero(QStringView texto)
{
    const double valor = LeerNumero(texto);
    if (!(std::fabs(valor) < 40000)) {
        NoCabe();
    }
    const double suelo = std::floor(valor);
    const double resto = valor - suelo;
    int entero = static_cast<int>(suelo);
    if (resto > 0.5 || (resto == 0.5 && entero % 2 != 0)) {
        ++entero;
    }
    if (entero < std::numeric_limits<qint16>::min() || entero > std::numeric_limits<qint16>::max()) {
        NoCabe();
    }
    return entero;
}

bool EsNumero(QStringView texto)
{
    return Separar(texto).completo;
}

QString NumeroVisible(double valor, int decimales)
{
    if (valor == 0) {
        return {};
    }
    QString patron = u"###,##0"_s;
    if (decimales > 0) {
        patron += u'.' + QString(decimales, u'0');
    }
    return Formatear(valor, patron);
}

QString NumeroVisible(QStringView texto, int decimales)
{
    return NumeroVisible(LeerNumero(texto), decimales);
}

// Rounded first at the field's decimals, then brought to four of them, so that the mark falls at a known
// place.
QString NumeroSQL(QStringView texto, QStringView defecto, int decimales)
{
    if (texto.isEmpty()) {
        return defecto.toString();
    }
    const int pedidos = std::max(0, decimales);
    const QString redondeado = Formatear(LeerNumero(texto), u"##0."_s + QString(pedidos, u'0'));
    const QString r = Formatear(LeerNumero(redondeado), u"##0.0000");
    QString literal = r.chopped(kDecimalesCurrency + 1);
    if (pedidos > 0) {
        literal += u'.';
        literal +=
            QStringView(r).last(kDecimalesCurrency).first(std::min<qsizetype>(pedidos, kDecimalesCurrency));
    }
    return literal;
}

} // namespace valmerix
