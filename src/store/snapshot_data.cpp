#include "store/snapshot_data.h"

#include "store/query.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <sqlite3.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

ClaseCelda ClaseDe(int tipo)
{
    switch (tipo) {
    case SQLITE_INTEGER:
        return ClaseCelda::Entero;
    case SQLITE_FLOAT:
        return ClaseCelda::Real;
    case SQLITE_NULL:
        return ClaseCelda::Nula;
    default:
        return ClaseCelda::Texto;
    }
}

qint64 Numero(ClaseCelda clase, sqlite3_value* valor)
{
    return clase == ClaseCelda::Entero ? sqlite3_value_int64(valor)
                                       : std::bit_cast<qint64>(sqlite3_value_double(valor));
}

std::string_view Texto(sqlite3_value* valor)
{
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(valor));
    return {texto == nullptr ? "" : texto, static_cast<size_t>(sqlite3_value_bytes(valor))};
}

} // namespace

void ColumnaResultado::Añadir(quint32 fila, sqlite3_value* valor)
{
    const ClaseCelda clase = ClaseDe(sqlite3_value_type(valor));
    if (clase_ == ClaseCelda::Nula && clase != ClaseCelda::Nula)
        Fundar(clase, fila);
    if (clase == clase_) {
        if (clase == ClaseCelda::Texto)
            AñadirTexto(Texto(valor));
        else if (clase != ClaseCelda::Nula)
            numeros_.Añadir(Numero(clase, valor));
        return;
    }
    AñadirAparte(fila, clase, valor);
}

// The column's place of a cell that stands apart is kept empty.
void ColumnaResultado::AñadirAparte(quint32 fila, ClaseCelda clase, sqlite3_value* valor)
{
    if (clase_ == ClaseCelda::Texto)
        AñadirTexto({});
    else
        numeros_.Añadir(qint64{0});
    if (clase == ClaseCelda::Nula)
        MarcarNula(fila);
    else if (clase == ClaseCelda::Texto)
        aparte_.push_back({fila, clase, 0, std::string(Texto(valor))});
    else
        aparte_.push_back({fila, clase, Numero(clase, valor), {}});
}

void ColumnaResultado::AñadirTexto(std::string_view texto)
{
    if (texto.size() > std::numeric_limits<quint32>::max() - letras_.size())
        throw ErrorAlmacen(u"La consulta devuelve demasiado texto."_s);
    letras_.Añadir(texto.data(), texto.size());
    finales_.Añadir(static_cast<quint32>(letras_.size()));
}

// The first value tells the column's class; the rows before it were all NULL.
void ColumnaResultado::Fundar(ClaseCelda clase, quint32 fila)
{
    clase_ = clase;
    for (quint32 i = 0; i < fila; ++i) {
        MarcarNula(i);
        if (clase == ClaseCelda::Texto)
            finales_.Añadir(quint32{0});
        else
            numeros_.Añadir(qint64{0});
    }
}

void ColumnaResultado::MarcarNula(quint32 fila)
{
    while (nulas_.size() <= fila / 64)
        nulas_.Añadir(quint64{0});
    nulas_[fila / 64] |= quint64{1} << (fila % 64);
}

bool ColumnaResultado::nula(quint32 fila) const
{
    return fila / 64 < nulas_.size() && ((nulas_[fila / 64] >> (fila % 64)) & 1U) != 0;
}

const ColumnaResultado::Aparte* ColumnaResultado::aparte(quint32 fila) const
{
    const auto lugar = std::ranges::lower_bound(aparte_, fila, {}, &Aparte::fila);
    return lugar != aparte_.end() && lugar->fila == fila ? &*lugar : nullptr;
}

void ColumnaResultado::Ajustar()
{
    numeros_.Ajustar();
    finales_.Ajustar();
    letras_.Ajustar();
    nulas_.Ajustar();
}

ClaseCelda ColumnaResultado::claseMezclada(quint32 fila) const
{
    if (clase_ == ClaseCelda::Nula || nula(fila))
        return ClaseCelda::Nula;
    const Aparte* suelta = aparte(fila);
    return suelta == nullptr ? clase_ : suelta->clase;
}

qint64 ColumnaResultado::entero(quint32 fila) const
{
    const Aparte* suelta = aparte_.empty() ? nullptr : aparte(fila);
    return suelta == nullptr ? numeros_[fila] : suelta->numero;
}

double ColumnaResultado::real(quint32 fila) const
{
    return std::bit_cast<double>(entero(fila));
}

std::string_view ColumnaResultado::textoMezclado(quint32 fila) const
{
    if (const Aparte* suelta = aparte(fila))
        return suelta->texto;
    if (clase_ != ClaseCelda::Texto)
        return {};
    return textoPropio(fila);
}

size_t ColumnaResultado::bytes() const
{
    size_t total = numeros_.bytes() + finales_.bytes() + letras_.bytes() + nulas_.bytes();
    for (const Aparte& suelta : aparte_)
        total += sizeof suelta + suelta.texto.capacity();
    return total;
}

size_t ColumnaResultado::bytesDeTexto() const
{
    size_t total = letras_.size();
    for (const Aparte& suelta : aparte_)
        total += suelta.texto.size();
    return total;
}

size_t PicadilloSinCaja::operator()(QStringView s) const noexcept
{
    size_t picadillo = 0;
    for (const QChar c : s)
        picadillo = picadillo * 31 + c.toCaseFolded().unicode();
    return picadillo;
}

LecturaConsulta LeerTodo(sqlite3_stmt* sentencia, const QString& sql)
{
    LecturaConsulta lectura{std::make_shared<ConjuntoResultados::Datos>()};
    ConjuntoResultados::Datos& datos = *lectura.datos;
    datos.sql = sql;
    const int columnas = sqlite3_column_count(sentencia);
    datos.columnas.reserve(static_cast<size_t>(columnas));
    for (int i = 0; i < columnas; ++i) {
        const char* tipo = sqlite3_column_decltype(sentencia, i);
        datos.columnas.emplace_back(QString::fromUtf8(sqlite3_column_name(sentencia, i)),
                                    tipo != nullptr && std::string_view(tipo) == "DATE");
        datos.porNombre.try_emplace(datos.columnas.back().nombre(), i);
    }
    while ((lectura.codigo = sqlite3_step(sentencia)) == SQLITE_ROW) {
        if (datos.filas == std::numeric_limits<qint32>::max())
            throw ErrorAlmacen(u"La consulta devuelve demasiadas filas."_s, sql);
        // Read through the value: one look-up a cell. Sound, as the connection serves one thread.
        for (int i = 0; i < columnas; ++i)
            datos.columnas[static_cast<size_t>(i)].Añadir(datos.filas, sqlite3_column_value(sentencia, i));
        ++datos.filas;
    }
    for (ColumnaResultado& columna : datos.columnas)
        columna.Ajustar();
    return lectura;
}

} // namespace valmerix
