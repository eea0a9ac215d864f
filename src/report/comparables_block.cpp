#include "report/comparables_block.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// Kind words; land has no age.
constexpr QStringView kDeEdificios = u"Piso Apto Casa Nave Loca";
constexpr QStringView kDeTodos = u"Piso Apto Casa Nave Loca Trno";

struct LineaTestigo
{
    QStringView rotulo;
    int columna; ///< of fgrSeleccion
    QStringView cola = {};
    QStringView tipos = kDeTodos;
};

constexpr LineaTestigo kLineasTestigo[] = {
    {u"\t\tFecha Operación: ", 1},
    {u"\t\tSituación: ", 2},
    {u"\t\tAntigüedad: ", 4, u" años ", kDeEdificios},
    {u"\t\tSuperficie: ", 7},
    {u"\t\tValoración: ", 8},
};

constexpr QStringView kFinDeLinea = u"\r\n";

} // namespace

QString AgregarTestigos(const CasoInforme& caso)
{
    const Rejilla& testigos = caso.ventana.rejilla(u"fgrSeleccion");
    QString resumen;
    for (int i = 1; i < testigos.Rows() && !testigos.TextMatrix(i, 0).isEmpty(); ++i) {
        resumen += kFinDeLinea % u"\t Testigo Nº "_s % QString::number(i) % kFinDeLinea;
        for (const LineaTestigo& linea : kLineasTestigo) {
            if (linea.tipos.contains(caso.tipo)) {
                resumen += linea.rotulo % testigos.TextMatrix(i, linea.columna) % linea.cola % kFinDeLinea;
            }
        }
    }
    return resumen;
}

} // namespace valmerix
