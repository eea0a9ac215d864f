#pragma once

#include "common/shared_state.h"
#include "store/snapshot.h"

#include <QString>
#include <memory>
#include <stdexcept>

namespace valmerix {

/// A failure of the store: the engine's message and the SQL that failed.
class ErrorAlmacen : public std::runtime_error
{
public:
    ErrorAlmacen(const QString& mensaje, QString sql = {});
    QString mensaje() const { return mensaje_; }
    QString sql() const { return sql_; }

private:
    QString mensaje_;
    QString sql_;
};

namespace AccesoDatos {

class Conexion;

/// The connection object: one lives for one user action. Two named databases: "Empresa" and "Ejercicio".
/// Statements run at once; all of one clsConsulta are committed together by Confirmar or, when an exception
/// unwinds, by the destructor: what was executed before the failing statement stays done. A kill or a power
/// cut before leaves the file as it was.
class clsConsulta
{
public:
    clsConsulta();
    /// Tells `compartido.alEjecutarSQL` of each text it runs; `compartido` outlives this object.
    explicit clsConsulta(const EstadoCompartido& compartido);
    ~clsConsulta();
    clsConsulta(const clsConsulta&) = delete;
    clsConsulta& operator=(const clsConsulta&) = delete;

    /// Throw ErrorAlmacen when the file is missing, no database, or not ours to open.
    void AbrirBaseDatosEmpresa(const QString& ruta);
    void AbrirBaseDatosEjercicio(const QString& ruta);

    /// Runs one SELECT, nothing else, and returns its whole result, which outlives this object.
    /// Throws ErrorAlmacen, also for any other text, before running any of it.
    ConjuntoResultados Instantanea2(const QString& base, const QString& sql);

    /// Runs one INSERT, UPDATE or DELETE, or the two-statement form of the savers (DELETE, line break,
    /// INSERT on one table). Throws ErrorAlmacen; any other text is refused before a byte is written.
    void EjecutarSentencia(const QString& base, const QString& sql);

    /// Commits what was executed so far. Throws ErrorAlmacen when the disk refuses, or when the engine has
    /// already undone it: then nothing of it stands.
    void Confirmar();
    /// The same for the way out of a failure: true when what was executed stands.
    bool ConfirmarLoHecho() noexcept;

    QString sInicioFecha() const; ///< opens a date literal; the text inside is "dd/mm/yyyy"
    QString sFinalFecha() const;
    QString sComodin() const;
    QString sUnion() const;
    QString FormatoFechaSelect(const QString& columna, const QString& alias) const;
    QString FormatoMonedaSelect(const QString& columna, int decimales, const QString& alias) const;

private:
    Conexion& conexion(const QString& base, const QString& sql) const;
    void Avisar(const QString& base, const QString& sql) const;
    void AvisarDeLaPrimeraEscritura();

    const EstadoCompartido* compartido_ = nullptr;
    std::unique_ptr<Conexion> empresa_;
    std::unique_ptr<Conexion> ejercicio_;
    bool haEscrito_ = false;
};

} // namespace AccesoDatos

} // namespace valmerix
