#include "report/viewer.h"
#include "shell/application.h"
#include "shell/start_window.h"
#include "store/query.h"
#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "ui/desktop.h"
#include "ui/look/application.h"
#include "valuation/case_form.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <optional>

// One flat, from the empty program to the file for the word processor, as she does it: real windows, real
// keys.

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

/// Types a text, accents included, key by key into whatever has the focus.
void Teclear(const QString& texto)
{
    for (const QChar letra : texto) {
        for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent tecla(tipo, letra.toUpper().unicode(), Qt::NoModifier, QString(letra));
            QApplication::sendEvent(QApplication::focusWidget(), &tecla);
        }
    }
}

class CaminoTest : public testing::Test
{
protected:
    CaminoTest()
    {
        sistema.carpeta = carpeta.path();
        Arrancar();
    }

    void Arrancar()
    {
        aplicacion.reset();
        aplicacion.emplace(Puertos{dialogos, reloj, sistema, pantalla, captura, impresion});
        aplicacion->Arrancar();
    }

    template <class W>
    W& widget(const Ventana& ventana, const QString& nombre)
    {
        auto* vista = pantalla.vista(ventana);
        if (!vista)
            throw std::runtime_error("no view: " + ventana.nombre().toStdString());
        auto* hallado = vista->findChild<W*>(nombre);
        if (!hallado)
            throw std::runtime_error("no widget: " + nombre.toStdString());
        return *hallado;
    }
    Formulario& forma() { return *aplicacion->FormularioActual(); }

    /// Brings a window to the front, as her click on it would.
    void Traer(const Ventana& ventana)
    {
        auto* vista = pantalla.vista(ventana);
        vista->activateWindow();
        // A window counts as active while its toolbar is; the keys go to the one that really is.
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == vista; }))
            << ventana.nombre().toStdString();
    }
    void Pulsar(const Ventana& ventana, const QString& boton)
    {
        QTest::mouseClick(&widget<QAbstractButton>(ventana, boton), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    /// Goes to a page with the keyboard's own buttons.
    void IrAPagina(int pagina)
    {
        auto& solapas = forma().como<Solapas>(u"SSTab1");
        for (int paso = 0; paso < 7 && solapas.Tab() != pagina; ++paso)
            Pulsar(forma(), u"SSCommand5"_s);
        ASSERT_EQ(solapas.Tab(), pagina);
    }
    /// Types into a field and leaves it with the tabulator.
    void Escribir(const QString& campo, const QString& texto)
    {
        Traer(forma());
        auto& entrada = widget<QWidget>(forma(), campo);
        entrada.setFocus(Qt::TabFocusReason);
        ASSERT_NE(QApplication::focusWidget(), nullptr) << campo.toStdString();
        Teclear(texto);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    void Marcar(const QString& casilla)
    {
        Traer(forma());
        widget<QWidget>(forma(), casilla).setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_TRUE(forma().marcada(casilla)) << casilla.toStdString();
    }

    /// Fills the valuers' record while it stands modal.
    void RellenarFicha()
    {
        QTimer::singleShot(0, qApp, [] {
            QWidget* ficha = QApplication::activeModalWidget();
            ASSERT_NE(ficha, nullptr);
            const auto escribir = [&](const QString& campo, const QString& texto) {
                auto* entrada = ficha->findChild<QWidget*>(campo);
                ASSERT_NE(entrada, nullptr) << campo.toStdString();
                entrada->setFocus();
                QTest::keyClicks(entrada, texto);
            };
            escribir(u"txtNombreEmpresa"_s, u"Tasaciones del Turia"_s);
            escribir(u"txtNombreTasador"_s, u"Rosa Valls"_s);
            escribir(u"txtTitulacionTasador"_s, u"Arquitecta"_s);
            escribir(u"txtPoblacionTasador"_s, u"Alcoi"_s);
            escribir(u"txtProvinciaTasador"_s, u"Alicante"_s);
            QTest::mouseClick(ficha->findChild<QAbstractButton*>(u"bttActualizar"_s), Qt::LeftButton);
            QTest::mouseClick(ficha->findChild<QAbstractButton*>(u"bttOK"_s), Qt::LeftButton);
        });
        Pulsar(forma(), u"BotonFicha"_s);
    }
    void ElegirTasador()
    {
        auto& lista = widget<QComboBox>(forma(), u"cboNombreTasador"_s);
        lista.setFocus();
        QTest::keyClick(&lista, Qt::Key_Down);
        EXPECT_EQ(forma().texto(u"cboNombreTasador"), u"Rosa Valls"_s);
        EXPECT_EQ(forma().texto(u"BoxPlaza"), u"Alcoi"_s);
    }
    void UnPiso()
    {
        Pulsar(*aplicacion->inicio(), u"SSCommand2(0)"_s);
        RellenarFicha();
        ElegirTasador();
        Escribir(u"BoxSit"_s, u"Carrer de l'Església, 5"_s);
        Escribir(u"BoxMun"_s, u"Alcoi"_s);
        Escribir(u"BoxNomSol"_s, u"Amparo Ibáñez"_s);
        IrAPagina(2);
        Escribir(u"BoxPlantas"_s, u"4"_s);
        Escribir(u"BoxVPP"_s, u"2"_s);
        Escribir(u"BoxAntig"_s, u"2x0"_s);
        IrAPagina(3);
        Marcar(u"CheckCocina"_s);
        Marcar(u"CheckDormitorios"_s);
        Escribir(u"BoxConst"_s, u"100"_s);
        IrAPagina(4);
        Escribir(u"BoxRepercusion"_s, u"400"_s);
        Escribir(u"BoxCc"_s, u"600"_s);
        Escribir(u"BoxK"_s, u"1.25"_s);
        Pulsar(forma(), u"SSCommand7"_s);
    }
    void Guardar()
    {
        Pulsar(*aplicacion->paleta(), u"Botonera(5)"_s);
        ASSERT_FALSE(dialogos.mensajes.empty());
        EXPECT_EQ(dialogos.mensajes.back().texto, u"Informe guardado con éxito"_s);
    }
    void Reiniciar()
    {
        QTimer::singleShot(0, qApp, [] {
            QWidget* caja = QApplication::activeModalWidget();
            ASSERT_NE(caja, nullptr);
            QTest::mouseClick(caja->findChild<QAbstractButton*>(u"SSCommand1"_s), Qt::LeftButton);
        });
        Pulsar(*aplicacion->paleta(), u"Botonera(3)"_s);
        ASSERT_NE(aplicacion->inicio(), nullptr);
    }
    void RedactarInforme()
    {
        Pulsar(*aplicacion->paleta(), u"Botonera(0)"_s);
        ASSERT_NE(aplicacion->visor(), nullptr);
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return pantalla.vista(*aplicacion->visor()) != nullptr; }, 5000));
    }

    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakeCaptura captura;
    FakeImpresion impresion;
    PantallaQt pantalla;
    std::optional<Aplicacion> aplicacion;
};

TEST_F(CaminoTest, FromTheFirstFigureToTheWordProcessor)
{
    UnPiso();
    EXPECT_EQ(forma().texto(u"BoxSit"), u"Carrer de l’Església, 5"_s);
    EXPECT_EQ(forma().texto(u"BoxAntig"), u"20"_s); // the wrong key was swallowed
    EXPECT_GE(sistema.pitidos, 1);
    EXPECT_EQ(forma().texto(u"BoxK"), u"1,25"_s); // the numeric block's point writes the comma
    // (400 + 600 * (1 - 0,20)) * 1,25 on 100 m²
    EXPECT_EQ(forma().texto(u"BoxVr"), u"1.100,00"_s);
    EXPECT_EQ(forma().texto(u"BoxTotal"), u"110.000,00"_s);
    Guardar();

    Reiniciar();
    const auto& pisos = aplicacion->inicio()->como<Arbol>(u"Arbol").carpetas()[0].hijos;
    ASSERT_EQ(pisos.size(), 1u);
    aplicacion->inicio()->como<Arbol>(u"Arbol").Seleccionar(pisos[0].clave.toString());
    Pulsar(*aplicacion->inicio(), u"cmdAbrir"_s);
    ASSERT_NE(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(forma().texto(u"BoxTotal"), u"110.000,00"_s);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 1);

    RedactarInforme();
    Visor& visor = *aplicacion->visor();
    EXPECT_TRUE(visor.Texto().Text().contains(
        u"la expresada cantidad de CIENTO DIEZ MIL euros."_s)); // capitals, then the name as it is kept
    EXPECT_FALSE(visor.Texto().negritas().empty());

    Traer(visor);
    widget<QWidget>(visor, u"Combo1"_s).setFocus();
    Teclear(u"dormitorio"_s);
    Pulsar(visor, u"BttBuscar"_s);
    EXPECT_EQ(visor.Texto().Text().mid(visor.Texto().SelStart(), visor.Texto().SelLength()), u"dormitorio"_s);

    aplicacion->compartido().ProcesadorTextos = u"/usr/bin/procesador"_s;
    Pulsar(visor, u"BttMaquina"_s);
    ASSERT_EQ(sistema.arranques.size(), 1u);
    QFile rtf(carpeta.path() + u"/Tasacion.rtf"_s);
    ASSERT_TRUE(rtf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(rtf.readAll().startsWith("{\\rtf1"));
}

TEST_F(CaminoTest, WhatWasNotSavedIsNotThereAfterARestart)
{
    UnPiso();
    Guardar();
    IrAPagina(0);
    Escribir(u"BoxMun"_s, u"Cocentaina"_s);
    Reiniciar();
    const auto& pisos = aplicacion->inicio()->como<Arbol>(u"Arbol").carpetas()[0].hijos;
    ASSERT_EQ(pisos.size(), 1u);
    EXPECT_EQ(pisos[0].texto, u"Carrer de l’Església, 5 (Alcoi)"_s);
}

TEST_F(CaminoTest, TheTabulatorVisitsEveryFieldOfAPageInTheOrderOfTheForm)
{
    Pulsar(*aplicacion->inicio(), u"SSCommand2(0)"_s);
    QStringList visitados;
    Traer(forma());
    QCoreApplication::processEvents(); // the windows that have just come up settle who is in front
    widget<QWidget>(forma(), u"BoxPlaza"_s).setFocus();
    ASSERT_EQ(forma().conFoco(), &forma().control(u"BoxPlaza"));
    for (int i = 0; i < 60 && forma().conFoco(); ++i) {
        visitados << forma().conFoco()->nombre();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (forma().conFoco() && forma().conFoco()->nombre() == u"BoxPlaza")
            break;
    }
    visitados = visitados.filter(u"Box"_s);
    const QStringList esperados = {
        u"BoxPlaza"_s,  u"BoxFecha"_s,  u"BoxSit"_s,    u"BoxMun"_s,   u"BoxProv"_s,   u"BoxCP"_s,
        u"BoxNomSol"_s, u"BoxNIFSol"_s, u"BoxDomSol"_s, u"BoxCPSol"_s, u"BoxPobSol"_s, u"BoxProvSol"_s,
        u"BoxTomo"_s,   u"BoxLibro"_s,  u"BoxFolio"_s,  u"BoxFinca"_s, u"BoxInsc"_s,   u"BoxAnot"_s};
    EXPECT_EQ(visitados.mid(0, esperados.size()), esperados) << visitados.join(u' ').toStdString();
}

} // namespace
} // namespace valmerix

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    valmerix::AplicacionQt aplicacion(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
