#include "store/row_order.h"

#include "common/spanish_text.h"
#include "store/snapshot_data.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <numeric>

namespace valmerix {

namespace {

// Numbers stand together, whole or not.
int Rango(ClaseCelda clase)
{
    return clase == ClaseCelda::Nula ? 0 : clase == ClaseCelda::Texto ? 2 : 1;
}

// Exactly, where a whole number of many digits is no double; the engine stores no NaN.
int CompararNumeros(qint64 entero, double real)
{
    constexpr double kFuera = 9223372036854775808.0; // 2^63
    if (real >= kFuera)
        return -1;
    if (real < -kFuera)
        return 1;
    const double parte = std::trunc(real);
    const auto truncado = static_cast<qint64>(parte);
    if (entero != truncado)
        return entero < truncado ? -1 : 1;
    return real == parte ? 0 : real > parte ? -1 : 1;
}

template <class T>
int Signo(T a, T b)
{
    return a < b ? -1 : a > b ? 1 : 0;
}

int CompararNumeros(const ColumnaResultado& columna, quint32 a, quint32 b)
{
    const bool enteroA = columna.clase(a) == ClaseCelda::Entero;
    const bool enteroB = columna.clase(b) == ClaseCelda::Entero;
    if (enteroA && enteroB)
        return Signo(columna.entero(a), columna.entero(b));
    if (enteroA)
        return CompararNumeros(columna.entero(a), columna.real(b));
    if (enteroB)
        return -CompararNumeros(columna.entero(b), columna.real(a));
    return Signo(columna.real(a), columna.real(b));
}

int CompararCeldas(const ColumnaResultado& columna, quint32 a, quint32 b)
{
    const int rango = Rango(columna.clase(a));
    const int rangoB = Rango(columna.clase(b));
    if (rango != rangoB)
        return Signo(rango, rangoB);
    if (rango == Rango(ClaseCelda::Texto))
        return CompararEspañol(columna.texto(a), columna.texto(b));
    return rango == Rango(ClaseCelda::Nula) ? 0 : CompararNumeros(columna, a, b);
}

/// The order of two rows by their cells.
class OrdenDeFilas
{
public:
    OrdenDeFilas(const ConjuntoResultados::Datos& datos, const std::vector<int>& columnas)
    {
        for (const int columna : columnas)
            columnas_.push_back(&datos.columnas[static_cast<size_t>(columna)]);
    }
    bool operator()(quint32 a, quint32 b) const
    {
        for (const ColumnaResultado* columna : columnas_) {
            if (const int orden = CompararCeldas(*columna, a, b))
                return orden < 0;
        }
        return false;
    }

private:
    std::vector<const ColumnaResultado*> columnas_;
};

using Lugares = std::vector<quint32>;

// Where each ordered run of rows begins, and the end of the last.
std::vector<std::ptrdiff_t> Rachas(quint32 filas, const OrdenDeFilas& antes)
{
    std::vector<std::ptrdiff_t> comienzos{0};
    for (quint32 fila = 1; fila < filas; ++fila) {
        if (antes(fila, fila - 1))
            comienzos.push_back(fila);
    }
    comienzos.push_back(filas);
    return comienzos;
}

// Merges the runs by pairs; half of them are left.
Lugares Fundir(const Lugares& lugares, std::vector<std::ptrdiff_t>& comienzos, const OrdenDeFilas& antes)
{
    Lugares fundidos(lugares.size());
    std::vector<std::ptrdiff_t> quedan{0};
    const auto lugar = [&](size_t racha) { return lugares.begin() + comienzos[racha]; };
    for (size_t i = 0; i + 1 < comienzos.size(); i += 2) {
        const size_t fin = std::min(i + 2, comienzos.size() - 1);
        std::merge(lugar(i), lugar(i + 1), lugar(i + 1), lugar(fin), fundidos.begin() + comienzos[i], antes);
        quedan.push_back(comienzos[fin]);
    }
    comienzos = std::move(quedan);
    return fundidos;
}

} // namespace

void OrdenarFilas(ConjuntoResultados::Datos& datos, const std::vector<int>& columnas)
{
    const OrdenDeFilas antes(datos, columnas);
    std::vector<std::ptrdiff_t> comienzos = Rachas(datos.filas, antes);
    if (comienzos.size() <= 2)
        return;
    Lugares lugares(datos.filas);
    std::iota(lugares.begin(), lugares.end(), 0U);
    while (comienzos.size() > 2)
        lugares = Fundir(lugares, comienzos, antes);
    datos.orden = std::move(lugares);
}

} // namespace valmerix
