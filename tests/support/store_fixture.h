#pragma once

#include "common/shared_state.h"
#include "store/query.h"
#include "store/schema.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {

/// A freshly installed database in a folder of its own, and the SQL that ran on it through `compartido`.
class AlmacenDePrueba
{
public:
    QTemporaryDir carpeta;
    EstadoCompartido compartido;
    QStringList sql;

    AlmacenDePrueba()
    {
        compartido.RutaBaseDatos = ruta(QStringLiteral("valmerix.mdb"));
        compartido.FormatoMoneda = QStringLiteral("###,###,##0.00");
        compartido.SeparadorFecha = QStringLiteral("/");
        compartido.alEjecutarSQL = [this](const QString& /*base*/, const QString& texto) { sql << texto; };
        InstalarBaseDatos(compartido.RutaBaseDatos);
    }
    AlmacenDePrueba(const AlmacenDePrueba&) = delete;
    AlmacenDePrueba& operator=(const AlmacenDePrueba&) = delete;

    QString ruta(const QString& fichero) const { return carpeta.filePath(fichero); }

    ConjuntoResultados Leer(const QString& texto) const
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
        return consulta.Instantanea2(QStringLiteral("Empresa"), texto);
    }
    void Ejecutar(const QString& texto) const
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
        consulta.EjecutarSentencia(QStringLiteral("Empresa"), texto);
        consulta.Confirmar();
    }
    void AltaDeTasador(const QString& nombre, int contador = 0) const
    {
        Ejecutar(QStringLiteral("INSERT INTO Tasadores (Nombre,Contador) VALUES ('%1',%2)")
                     .arg(nombre)
                     .arg(contador));
    }
    /// The first field of the first row, as text.
    QString Dato(const QString& texto) const
    {
        const ConjuntoResultados filas = Leer(texto);
        return filas.RecordCount() == 0 ? QStringLiteral("(nada)") : filas.Texto(filas.NombreCampo(0));
    }
};

/// The engine's message of what `accion` throws; "" when it throws nothing.
template <class Accion>
QString Fallo(Accion accion)
{
    try {
        accion();
    } catch (const ErrorAlmacen& fallo) {
        return fallo.mensaje();
    }
    return {};
}

} // namespace valmerix
