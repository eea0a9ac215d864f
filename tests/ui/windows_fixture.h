#pragma once

#include "report/viewer.h"
#include "shell/application.h"
#include "shell/start_window.h"
#include "store/query.h"
#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "ui/desktop.h"
#include "ui/widgets/rich_text_widget.h"
#include "valuation/case_form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

namespace valmerix {

/// The whole program on the real screen classes, its store in a folder of its own.
class Windows : public testing::Test
{
protected:
    Windows()
    {
        sistema.carpeta = carpeta.path();
        aplicacion.Arrancar();
        Ejecutar(QStringLiteral("UPDATE Empresa SET Nombre = 'Túria Tasaciones'"));
        Ejecutar(QStringLiteral("INSERT INTO Tasadores (Nombre,Contador,Poblacion,Provincia) VALUES ('Rosa "
                                "Peña',4,'Alcoi','Alicante')"));
    }

    void Ejecutar(const QString& sql)
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(aplicacion.compartido().RutaBaseDatos);
        consulta.EjecutarSentencia(QStringLiteral("Empresa"), sql);
        consulta.Confirmar();
    }

    VistaVentana& Vista(const Ventana& ventana)
    {
        VistaVentana* vista = pantalla.vista(ventana);
        if (!vista)
            throw std::logic_error("no view of " + ventana.nombre().toStdString());
        return *vista;
    }
    VistaVentana* VistaModal() { return qobject_cast<VistaVentana*>(QApplication::activeModalWidget()); }
    /// Runs once a modal window stands before her, however long that takes.
    void EnElModal(std::function<void()> guion)
    {
        espera_.disconnect();
        QObject::connect(&espera_, &QTimer::timeout, [this, guion = std::move(guion)] {
            if (!VistaModal() || !VistaModal()->isVisible())
                return;
            espera_.stop();
            guion();
        });
        espera_.start(1);
    }
    QAbstractButton& Boton_(QWidget& vista, const QString& nombre)
    {
        return *vista.findChild<QAbstractButton*>(nombre);
    }
    void Pulsar(QWidget& vista, const QString& nombre)
    {
        QTest::mouseClick(&Boton_(vista, nombre), Qt::LeftButton);
    }
    void Teclear(QStringView campo, const QString& texto)
    {
        Formulario& forma = *aplicacion.FormularioActual();
        forma.Enfocar(campo);
        QWidget* widget = Vista(forma).enlazador().de(campo);
        QTest::keyClicks(widget, texto);
    }
    void AbrirPiso()
    {
        aplicacion.inicio()->TerminarPortada();
        Pulsar(Vista(*aplicacion.inicio()), QStringLiteral("SSCommand2(0)"));
        Vista(*aplicacion.FormularioActual()).activateWindow();
    }
    void Redactar()
    {
        Pulsar(Vista(*aplicacion.paleta()), QStringLiteral("Botonera(0)"));
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return aplicacion.visor() && pantalla.vista(*aplicacion.visor()); }));
    }
    EditorInforme& Informe()
    {
        return *Vista(*aplicacion.visor()).findChild<EditorInforme*>(QStringLiteral("Texto"));
    }

    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    PantallaQt pantalla;
    FakeCaptura captura;
    FakeImpresion impresion;
    QTimer espera_;
    Aplicacion aplicacion{Puertos{dialogos, reloj, sistema, pantalla, captura, impresion}};
};

} // namespace valmerix
