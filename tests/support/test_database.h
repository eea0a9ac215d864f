#pragma once

#include "common/shared_state.h"
#include "store/query.h"
#include "store/schema.h"

#include <QTemporaryDir>

namespace valmerix {

/// A freshly installed database in a folder of its own, gone with the object.
class BaseDePrueba
{
public:
    explicit BaseDePrueba(EstadoCompartido& compartido)
        : compartido_(compartido)
    {
        InstalarBaseDatos(ruta());
        compartido.RutaBaseDatos = ruta();
    }

    QString carpeta() const { return carpeta_.path(); }
    QString ruta() const { return carpeta_.path() + QStringLiteral("/Datos/valmerix.mdb"); }

    void Ejecutar(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(ruta());
        consulta.EjecutarSentencia(QStringLiteral("Empresa"), sql);
        consulta.Confirmar();
    }
    ConjuntoResultados Leer(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(ruta());
        return consulta.Instantanea2(QStringLiteral("Empresa"), sql);
    }

private:
    EstadoCompartido& compartido_;
    QTemporaryDir carpeta_;
};

} // namespace valmerix
