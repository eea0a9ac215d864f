#include "report/number_strings.h"

#include "common/dates.h"
#include "common/number_pattern.h"
#include "common/number_words.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kSuperficie = u"####,##0.00";
constexpr QStringView kCoeficiente = u"##0.00";
constexpr QStringView kAntesDelImporte = u":          ";
constexpr Currency kUno = Currency::deDiezmilesimas(10000);

struct CadenaSuperficie
{
    QString CadenasNumericas::*cadena;
    double EstadoCalculo::*valor;
    QStringView patron;
};

constexpr CadenaSuperficie kCifras[] = {
    {&CadenasNumericas::TxtConstruida, &EstadoCalculo::SuperficieConstruida, kSuperficie},
    {&CadenasNumericas::TxtUtil, &EstadoCalculo::SuperficieUtil, kSuperficie},
    {&CadenasNumericas::TxtD, &EstadoCalculo::CoefDepreciacion, kCoeficiente},
    {&CadenasNumericas::TxtSolar, &EstadoCalculo::SuperficieSolar, kSuperficie},
    {&CadenasNumericas::TxtSobreRasante, &EstadoCalculo::SuperficieSobreRasante, kSuperficie},
    {&CadenasNumericas::TxtK, &EstadoCalculo::CoeficienteK, kCoeficiente},
};

struct CadenaDinero
{
    QString CadenasNumericas::*cadena;
    Currency EstadoCalculo::*valor;
};

constexpr CadenaDinero kImportes[] = {
    {&CadenasNumericas::TxtRS, &EstadoCalculo::RepercusionSolar},
    {&CadenasNumericas::TxtCc, &EstadoCalculo::CosteConstruccion},
    {&CadenasNumericas::TxtCR, &EstadoCalculo::ValorReposicion},
    {&CadenasNumericas::TxtVr, &EstadoCalculo::ValorUnitario},
    {&CadenasNumericas::TxtVt, &EstadoCalculo::ValorVivienda},
    {&CadenasNumericas::TxtTotal, &EstadoCalculo::ValorTotal},
    {&CadenasNumericas::TxtSueloUnitario, &EstadoCalculo::ValorUnitarioSuelo},
};

QString LineaAnexo(const CasoInforme& caso, const QString& nombre, Currency valor)
{
    if (valor <= Currency()) {
        return {};
    }
    return nombre % kAntesDelImporte % Formatear(valor, caso.compartido.FormatoMoneda) % u' ' +
           caso.opciones.MonedaAbreviatura;
}

/// First letter in capitals, the rest in lower case.
QString Capitalizado(const QString& texto)
{
    return texto.left(1).toUpper() + texto.mid(1).toLower();
}

void EscribirAnexos(const CasoInforme& caso, CadenasNumericas& cadenas)
{
    const EstadoCalculo& e = caso.calculo;
    cadenas.LineaTrastero =
        LineaAnexo(caso, u"Trastero en planta "_s + caso.minusculas(u"Combo8"), e.ValorTrastero);
    cadenas.LineaGaraje =
        LineaAnexo(caso, u"Garaje en planta "_s + caso.minusculas(u"Combo7"), e.ValorGaraje);
    cadenas.LineaOtroAnexo = LineaAnexo(caso, Capitalizado(caso.texto(u"Text8")), e.ValorOtroAnexo);
}

bool EsMillonJusto(Currency total)
{
    return total.diezmilesimas() % 10000 == 0 &&
           QString::number(total.diezmilesimas() / 10000).endsWith(u"000000"_s);
}

void EscribirTotalEnLetras(const CasoInforme& caso, CadenasNumericas& cadenas)
{
    const Currency total = caso.calculo.ValorTotal;
    const OpcionesPrograma& moneda = caso.opciones;
    const Currency importe =
        total.esCero() ? Currency() : RedondeoFormato(total, caso.compartido.FormatoMoneda);
    cadenas.TextoLetras = moneda.MonedaMasculina ? EnLetrasMasculino(importe) : EnLetrasFemenino(importe);
    if (total == kUno) {
        cadenas.TotalEnLetras =
            (moneda.MonedaMasculina ? u"UN "_s : u"UNA "_s) + moneda.MonedaSingular + u'.';
        return;
    }
    // The name of the currency and its "de" stand in small letters, as the reports have always said it.
    cadenas.TotalEnLetras = cadenas.TextoLetras.toUpper() + (EsMillonJusto(total) ? u"de "_s : QString()) +
                            moneda.MonedaPlural + u'.';
}

} // namespace

CadenasNumericas NUMFORMAT(const CasoInforme& caso)
{
    CadenasNumericas cadenas;
    for (const CadenaSuperficie& fila : kCifras) {
        cadenas.*fila.cadena = Formatear(caso.calculo.*fila.valor, fila.patron);
    }
    for (const CadenaDinero& fila : kImportes) {
        cadenas.*fila.cadena = Formatear(caso.calculo.*fila.valor, caso.compartido.FormatoMoneda);
    }
    if (const auto fecha = LeerFecha(caso.texto(u"BoxFecha"))) {
        cadenas.FechaLarga = FechaLarga(*fecha);
    }
    EscribirAnexos(caso, cadenas);
    EscribirTotalEnLetras(caso, cadenas);
    return cadenas;
}

} // namespace valmerix
