#include "store/query.h"

#include "store/connection.h"
#include "store/statement_check.h"

#include <utility>

namespace valmerix {

using namespace Qt::StringLiterals;

ErrorAlmacen::ErrorAlmacen(const QString& mensaje, QString sql)
    : std::runtime_error(mensaje.toStdString())
    , mensaje_(mensaje)
    , sql_(std::move(sql))
{
}

namespace AccesoDatos {

clsConsulta::clsConsulta() = default;

clsConsulta::clsConsulta(const EstadoCompartido& compartido)
    : compartido_(&compartido)
{
}

// When an exception is on its way there is nobody left to tell of a second failure.
clsConsulta::~clsConsulta()
{
    ConfirmarLoHecho();
}

void clsConsulta::AbrirBaseDatosEmpresa(const QString& ruta)
{
    empresa_ = std::make_unique<Conexion>(ruta);
}

void clsConsulta::AbrirBaseDatosEjercicio(const QString& ruta)
{
    ejercicio_ = std::make_unique<Conexion>(ruta);
}

Conexion& clsConsulta::conexion(const QString& base, const QString& sql) const
{
    const auto& abierta = base == u"Empresa" ? empresa_ : ejercicio_;
    if ((base != u"Empresa" && base != u"Ejercicio") || abierta == nullptr)
        throw ErrorAlmacen(u"No hay ninguna base de datos abierta con el nombre «%1»."_s.arg(base), sql);
    return *abierta;
}

void clsConsulta::Avisar(const QString& base, const QString& sql) const
{
    if (compartido_ != nullptr && compartido_->alEjecutarSQL)
        compartido_->alEjecutarSQL(base, sql);
}

void clsConsulta::AvisarDeLaPrimeraEscritura()
{
    if (std::exchange(haEscrito_, true) || compartido_ == nullptr || !compartido_->antesDeEscribir)
        return;
    compartido_->antesDeEscribir();
}

ConjuntoResultados clsConsulta::Instantanea2(const QString& base, const QString& sql)
{
    Conexion& abierta = conexion(base, sql);
    const std::string comprobada = ComprobarConsulta(sql);
    Avisar(base, sql);
    return abierta.Leer(sql, comprobada, NombresDelOrden(sql));
}

void clsConsulta::EjecutarSentencia(const QString& base, const QString& sql)
{
    Conexion& abierta = conexion(base, sql);
    const std::vector<std::string> comprobadas = ComprobarEscritura(sql);
    if (&abierta == empresa_.get())
        AvisarDeLaPrimeraEscritura();
    Avisar(base, sql);
    abierta.Escribir(sql, comprobadas);
}

void clsConsulta::Confirmar()
{
    for (const auto* abierta : {&empresa_, &ejercicio_}) {
        if (*abierta != nullptr)
            (*abierta)->Confirmar();
    }
}

bool clsConsulta::ConfirmarLoHecho() noexcept
{
    bool todo = true;
    for (const auto* abierta : {&empresa_, &ejercicio_}) {
        try {
            if (*abierta != nullptr)
                (*abierta)->Confirmar();
        } catch (const std::exception&) {
            todo = false;
        }
    }
    return todo;
}

QString clsConsulta::sInicioFecha() const
{
    return u"fecha('"_s;
}

QString clsConsulta::sFinalFecha() const
{
    return u"')"_s;
}

QString clsConsulta::sComodin() const
{
    return u"%"_s;
}

QString clsConsulta::sUnion() const
{
    return u"||"_s;
}

QString clsConsulta::FormatoFechaSelect(const QString& columna, const QString& alias) const
{
    return u"fecha_visible(%1) AS %2"_s.arg(columna, alias);
}

QString clsConsulta::FormatoMonedaSelect(const QString& columna, int decimales, const QString& alias) const
{
    return u"moneda_visible(%1, %2) AS %3"_s.arg(columna).arg(decimales).arg(alias);
}

} // namespace AccesoDatos

} // namespace valmerix
