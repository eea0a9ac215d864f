#include "store/snapshot.h"

#include "common/dates.h"
#include "common/number_reading.h"
#include "store/query.h"
#include "store/snapshot_data.h"
#include "store/stored_date.h"

#include <cmath>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// As cells and fields show a number that nobody formatted: up to 15 digits, decimal comma, no grouping.
QString TextoDeNumero(double valor)
{
    QString texto = QString::number(valor, 'g', 15);
    return texto.replace(u'.', u',');
}

QString TextoDe(const ColumnaResultado& columna, quint32 fila)
{
    switch (columna.clase(fila)) {
    case ClaseCelda::Nula:
        return {};
    case ClaseCelda::Entero:
        return QString::number(columna.entero(fila));
    case ClaseCelda::Real:
        return TextoDeNumero(columna.real(fila));
    case ClaseCelda::Texto:
        break;
    }
    const std::string_view utf8 = columna.texto(fila);
    if (columna.esFecha())
        return FechaVisible(LeerFechaGuardada(utf8));
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

double NumeroDe(const ColumnaResultado& columna, quint32 fila)
{
    switch (columna.clase(fila)) {
    case ClaseCelda::Entero:
        return static_cast<double>(columna.entero(fila));
    case ClaseCelda::Real:
        return columna.real(fila);
    case ClaseCelda::Texto:
        return LeerNumero(TextoDe(columna, fila));
    case ClaseCelda::Nula:
        break;
    }
    return 0;
}

// The nearest whole number, the limits for what lies beyond them.
qint64 EnteroDe(const ColumnaResultado& columna, quint32 fila)
{
    if (columna.clase(fila) == ClaseCelda::Entero)
        return columna.entero(fila);
    constexpr double kLimite = 9.2e18;
    const double valor = NumeroDe(columna, fila);
    return std::isnan(valor) ? 0 : std::llround(std::clamp(valor, -kLimite, kLimite));
}

} // namespace

ConjuntoResultados::ConjuntoResultados()
    : datos_(std::make_shared<const Datos>())
{
}

ConjuntoResultados::ConjuntoResultados(std::shared_ptr<const Datos> datos)
    : datos_(std::move(datos))
{
}

qint32 ConjuntoResultados::RecordCount() const
{
    return static_cast<qint32>(datos_->filas);
}

int ConjuntoResultados::Campos() const
{
    return static_cast<int>(datos_->columnas.size());
}

QString ConjuntoResultados::NombreCampo(int columna) const
{
    return datos_->columnas.at(static_cast<size_t>(columna)).nombre();
}

int ConjuntoResultados::Columna(QStringView campo) const
{
    const auto lugar = datos_->porNombre.find(campo);
    if (lugar == datos_->porNombre.end())
        throw ErrorAlmacen(u"La consulta no devuelve el campo «%1»."_s.arg(campo), datos_->sql);
    return lugar->second;
}

quint32 ConjuntoResultados::Fila(qint32 fila) const
{
    if (fila < 1 || fila > RecordCount())
        throw ErrorAlmacen(u"La consulta no devuelve la fila %1."_s.arg(fila), datos_->sql);
    const auto lugar = static_cast<quint32>(fila - 1);
    return datos_->orden.empty() ? lugar : datos_->orden[lugar];
}

const ColumnaResultado& ConjuntoResultados::columna(QStringView campo) const
{
    return datos_->columnas[static_cast<size_t>(Columna(campo))];
}

QVariant ConjuntoResultados::Valor(QStringView campo, qint32 fila) const
{
    const quint32 i = Fila(fila);
    const ColumnaResultado& c = columna(campo);
    switch (c.clase(i)) {
    case ClaseCelda::Nula:
        return {};
    case ClaseCelda::Entero:
        return qlonglong{c.entero(i)};
    case ClaseCelda::Real:
        return c.real(i);
    case ClaseCelda::Texto:
        break;
    }
    if (c.esFecha())
        return LeerFechaGuardada(c.texto(i));
    return TextoDe(c, i);
}

QString ConjuntoResultados::Texto(QStringView campo, qint32 fila) const
{
    const quint32 i = Fila(fila);
    return TextoDe(columna(campo), i);
}

double ConjuntoResultados::Numero(QStringView campo, qint32 fila) const
{
    const quint32 i = Fila(fila);
    return NumeroDe(columna(campo), i);
}

qint64 ConjuntoResultados::Entero(QStringView campo, qint32 fila) const
{
    const quint32 i = Fila(fila);
    return EnteroDe(columna(campo), i);
}

QDate ConjuntoResultados::Fecha(QStringView campo, qint32 fila) const
{
    const quint32 i = Fila(fila);
    return LeerFechaGuardada(columna(campo).texto(i));
}

QString ConjuntoResultados::ValorRegistroGrid(qint32 fila) const
{
    const quint32 i = Fila(fila);
    QString linea;
    for (const ColumnaResultado& c : datos_->columnas) {
        if (&c != &datos_->columnas.front())
            linea += u'\t';
        linea += TextoDe(c, i);
    }
    return linea;
}

qint64 ConjuntoResultados::Entero(int columna, qint32 fila) const
{
    const quint32 i = Fila(fila);
    return EnteroDe(datos_->columnas.at(static_cast<size_t>(columna)), i);
}

QUtf8StringView ConjuntoResultados::Utf8(int columna, qint32 fila) const
{
    const quint32 i = Fila(fila);
    const std::string_view texto = datos_->columnas.at(static_cast<size_t>(columna)).texto(i);
    return {texto.data(), static_cast<qsizetype>(texto.size())};
}

qsizetype ConjuntoResultados::Utf8Bytes(int columna) const
{
    return static_cast<qsizetype>(datos_->columnas.at(static_cast<size_t>(columna)).bytesDeTexto());
}

size_t ConjuntoResultados::bytes() const
{
    size_t total = datos_->orden.capacity() * sizeof(quint32);
    for (const ColumnaResultado& columna : datos_->columnas)
        total += columna.bytes();
    return total;
}

void ConjuntoResultados::Cerrar()
{
    datos_ = std::make_shared<const Datos>();
}

} // namespace valmerix
