#include "ui/printed_samples.h"

#include <QStringList>
#include <random>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

const QString kPrimerNivel(14, u' ');
const QString kSegundoNivel(28, u' ');
const QString kResultado(42, u' ');

QString Parrafo(std::mt19937& azar, int palabras)
{
    static const QStringList kPalabras =
        u"la vivienda edificio oficina finca con superficie de calificación señalización suficiente y "
        "acometida eléctrica alcantarillado público según los planos del Registro de la Propiedad número "
        "siete de Logroño donde confluyen tráfico fluido aparcamientos difíciles"_s.split(u' ');
    QStringList frase;
    for (int i = 0; i < palabras; ++i)
        frase << kPalabras[static_cast<qsizetype>(azar() % static_cast<size_t>(kPalabras.size()))];
    return frase.join(u' ') + u'.';
}

void Capitulo(std::vector<LineaImpresa>& lineas, std::mt19937& azar, int numero)
{
    lineas.insert(lineas.end(), 3, LineaImpresa{});
    lineas.push_back({u"%1.  CAPITULO DE MUESTRA:"_s.arg(numero), true});
    lineas.push_back({});
    const int apartados = 1 + static_cast<int>(azar() % 4);
    for (int i = 1; i <= apartados; ++i) {
        lineas.push_back({kPrimerNivel + u"%1.%2. Apartado:"_s.arg(numero).arg(i), true});
        const int parrafos = 1 + static_cast<int>(azar() % 3);
        for (int j = 0; j < parrafos; ++j)
            lineas.push_back({kPrimerNivel + Parrafo(azar, 3 + static_cast<int>(azar() % 70)), false});
        lineas.push_back({kSegundoNivel + u"%1.%2.1. Punto:"_s.arg(numero).arg(i), true});
        lineas.push_back({kSegundoNivel + Parrafo(azar, 3 + static_cast<int>(azar() % 30)), false});
        lineas.push_back({});
    }
    lineas.push_back({kResultado + u"Valor del inmueble (Vt)  =        %1.500,00 €"_s.arg(numero), false});
}

} // namespace

DocumentoImpreso InformeDeMuestra(int capitulos)
{
    std::mt19937 azar(20261120);
    DocumentoImpreso documento;
    documento.caption = u"Previsualización de Impresión"_s;
    documento.zoom = 90;
    documento.titulo = u"Informe de tasación número 12"_s;
    documento.autor = u"Begoña Núñez"_s;
    documento.lineas = {{u"INFORME DE TASACION"_s, true}, {}, {u"SOLICITANTE:"_s, true}, {}};
    for (int i = 1; i <= capitulos; ++i)
        Capitulo(documento.lineas, azar, i);
    return documento;
}

MembreteImpreso MembreteDeMuestra()
{
    return {{},
            u"Tasaciones del Iregua, S.L."_s,
            u"Avenida de la Constitución, 14, 3.º"_s,
            u"Logroño"_s,
            u"26004"_s,
            u"La Rioja"_s,
            u"B26000000"_s};
}

} // namespace valmerix
