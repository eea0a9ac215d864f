#pragma once

#include "shell/application.h"
#include "shell/start_window.h"
#include "store/query.h"
#include "support/test_ports.h"
#include "valuation/case_form.h"

#include <optional>

namespace valmerix {

/// The whole program on ports that record, its store in a folder of its own.
class AplicacionTest : public testing::Test, protected PuertosDePrueba
{
protected:
    AplicacionTest() { sistema.carpeta = carpeta.path(); }

    void Arrancar()
    {
        aplicacion.emplace(Puertos{dialogos, reloj, sistema, pantalla, captura, impresion});
        aplicacion->Arrancar();
    }
    void ConTasador(const QString& nombre = QStringLiteral("Rosa Peña"))
    {
        Ejecutar(QStringLiteral("UPDATE Empresa SET Nombre = 'Túria'"));
        Ejecutar(QStringLiteral("INSERT INTO Tasadores (Nombre,Contador,Poblacion,Provincia) VALUES ('") +
                 nombre + QStringLiteral("',4,'Alcoi','Alicante')"));
    }
    void Ejecutar(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        consulta.EjecutarSentencia(QStringLiteral("Empresa"), sql);
        consulta.Confirmar();
    }
    ConjuntoResultados Leer(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        return consulta.Instantanea2(QStringLiteral("Empresa"), sql);
    }
    QString ruta() const { return carpeta.path() + QStringLiteral("/Datos/valmerix.mdb"); }
    Formulario& forma() { return *aplicacion->FormularioActual(); }
    void Escribir(QStringView campo, const QString& texto)
    {
        forma().Enfocar(campo);
        forma().campo(campo).setText({});
        forma().campo(campo).Teclear(texto);
        forma().Enfocar(nullptr);
    }
    void UnPisoGuardado()
    {
        ConTasador();
        aplicacion->NuevoCaso(0);
        forma().lista(u"cboNombreTasador").Elegir(0);
        Escribir(u"BoxSit", QStringLiteral("Calle Mayor, 5"));
        Escribir(u"BoxMun", QStringLiteral("Alcoi"));
        Escribir(u"BoxConst", QStringLiteral("100"));
        Escribir(u"BoxCc", QStringLiteral("600"));
        Escribir(u"BoxK", QStringLiteral("1,3"));
        forma().boton(u"SSCommand7").Pulsar();
        aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    }

    std::optional<Aplicacion> aplicacion;
};

} // namespace valmerix
