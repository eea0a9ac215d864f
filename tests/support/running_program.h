#pragma once

#include "shell/application.h"
#include "shell/draft_file.h"
#include "shell/start_window.h"
#include "shell/state_json.h"
#include "shell/window_restoring.h"
#include "store/query.h"
#include "support/qt_printers.h"
#include "support/test_ports.h"
#include "valuation/case_form.h"

#include <QDir>
#include <QFile>
#include <QThread>
#include <map>
#include <optional>

namespace valmerix {

/// The whole program over a folder of its own, without a screen, to be started and ended at will.
class ProgramaDePrueba : public PuertosDePrueba
{
public:
    ProgramaDePrueba() { sistema.carpeta = carpeta.path(); }

    void Arrancar()
    {
        Acabar();
        aplicacion.emplace(Puertos{dialogos, reloj, sistema, pantalla, captura, impresion});
        aplicacion->Arrancar();
    }
    void Acabar()
    {
        aplicacion.reset();
        sistema.aplazadas.clear();
    }
    void ConTasador()
    {
        Ejecutar(QStringLiteral("UPDATE Empresa SET Nombre = 'Túria'"));
        Ejecutar(QStringLiteral("INSERT INTO Tasadores (Nombre,Contador,Poblacion,Provincia) VALUES ('Rosa "
                                "Peña',4,'Alcoi','Alicante')"));
    }
    void Ejecutar(const QString& sql) const
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        consulta.EjecutarSentencia(QStringLiteral("Empresa"), sql);
        consulta.Confirmar();
    }
    ConjuntoResultados Leer(const QString& sql) const
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        return consulta.Instantanea2(QStringLiteral("Empresa"), sql);
    }
    QString ruta() const { return carpeta.path() + QStringLiteral("/Datos/valmerix.mdb"); }
    QString borradores() const { return FicheroBorrador::carpeta(ruta()); }
    QStringList EnDisco() const { return FicheroBorrador::EnCarpeta(borradores()); }

    /// The event loop goes round until there is quiet and all that is kept lies on disk.
    void PasaElTiempo()
    {
        constexpr int kVueltas = 5000;
        for (int vuelta = 0; vuelta < kVueltas && !sistema.aplazadas.empty(); ++vuelta) {
            sistema.CorrerAplazadas();
            QThread::msleep(1); // the writing goes on beside us
        }
        EXPECT_TRUE(sistema.aplazadas.empty());
    }
    /// What lies on disk at this moment is all that a crash leaves: goes back to it with `Caer`.
    std::map<QString, QByteArray> LoQueQueda() const
    {
        std::map<QString, QByteArray> ficheros;
        for (const QString& nombre : EnDisco()) {
            QFile fichero(borradores() + u'/' + nombre);
            if (fichero.open(QIODevice::ReadOnly))
                ficheros[fichero.fileName()] = fichero.readAll();
        }
        return ficheros;
    }
    void Caer(const std::map<QString, QByteArray>& queda)
    {
        Acabar();
        QDir(borradores()).removeRecursively();
        QDir().mkpath(borradores());
        for (const auto& [nombre, contenido] : queda) {
            QFile fichero(nombre);
            if (fichero.open(QIODevice::WriteOnly))
                fichero.write(contenido);
        }
    }

    Formulario& forma() { return *aplicacion->FormularioActual(); }
    Boton& recuperar() { return aplicacion->inicio()->boton(u"cmdRecuperar"); }
    /// As she does, key by key; the field stays in hand.
    void Teclear(QStringView campo, const QString& texto)
    {
        forma().Enfocar(campo);
        forma().campo(campo).Teclear(texto);
    }
    /// All that the open case is made of.
    QJsonObject Todo()
    {
        return {{QStringLiteral("controles"), ControlesEnJson(forma())},
                {QStringLiteral("presentacion"), PresentacionEnJson(forma())},
                {QStringLiteral("calculo"), EstadoEnJson(aplicacion->calculo())},
                {QStringLiteral("frases"), FrasesEnJson(aplicacion->frases())},
                {QStringLiteral("numero"), aplicacion->compartido().NumeroTasacionActual}};
    }

    std::optional<Aplicacion> aplicacion;
};

} // namespace valmerix
