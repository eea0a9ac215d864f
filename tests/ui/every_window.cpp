#include "every_window.h"

#include "printed_samples.h"
#include "support/fake_ports.h"
#include "support/manual_sample.h"
#include "ui/dialogs.h"
#include "ui/help/help_window.h"
#include "ui/pictures/capture_source.h"
#include "ui/pictures/capture_window.h"
#include "ui/printing/print_preview.h"
#include "ui/printing/report_pages.h"

#include <QDialog>
#include <QTabWidget>
#include <QTimer>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QApplication& Aplicacion_()
{
    return dynamic_cast<QApplication&>(*QCoreApplication::instance());
}

QWidget* DeNombre(const QString& nombre)
{
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        if (ventana->objectName() == nombre && ventana->isVisible())
            return ventana;
    }
    return nullptr;
}

/// A scanner that is always busy.
class EscanerOcupado : public FuenteCaptura
{
public:
    void Buscar() override { Q_EMIT Hallados({u"Escáner de la oficina"_s, u"Escáner de casa"_s}); }
    void Elegir(int /*aparato*/) override {}
    void Capturar() override { Q_EMIT Avance(0.5); }
    void Detener() override {}
};

void Rechazar(QWidget& caja)
{
    dynamic_cast<QDialog&>(caja).reject();
}

} // namespace

EveryWindow::EveryWindow()
{
    AplicarTema(Aplicacion_(), GetParam());
}

EveryWindow::~EveryWindow()
{
    const bool oscuro = qEnvironmentVariableIsSet("VALMERIX_OSCURO");
    AplicarTema(Aplicacion_(), oscuro ? Tema::Oscuro : Tema::Claro);
}

void EveryWindow::Recorrer(const Mirada& mirar)
{
    Inicio(mirar);
    Casos(mirar);
    aplicacion.NuevoCaso(0);
    Preguntas(mirar);
    Informe(mirar);
    Reducidas(mirar);
    Cajas(mirar);
    Aparatos(mirar);
    Lectura(mirar);
}

void EveryWindow::Modal(const Mirada& mirar, const QString& nombre, const std::function<void()>& abrir,
                        const std::function<void(QWidget&)>& cerrar)
{
    bool vista = false;
    QTimer espera;
    QObject::connect(&espera, &QTimer::timeout, &espera, [&] {
        QWidget* ventana = QApplication::activeModalWidget();
        if (!ventana || !ventana->isVisible())
            return;
        espera.stop();
        vista = true;
        EXPECT_TRUE(QTest::qWaitForWindowActive(ventana));
        EXPECT_TRUE(QTest::qWaitFor([ventana] {
            const QWidget* enMano = QApplication::focusWidget();
            return enMano && ventana->isAncestorOf(enMano);
        })) << ventana->objectName().toStdString()
            << nombre.toStdString() << ": no key would reach it";
        mirar(*ventana, nombre.isEmpty() ? ventana->objectName() : nombre);
        cerrar(*ventana);
    });
    espera.start(1);
    abrir();
    EXPECT_TRUE(vista) << nombre.toStdString();
}

void EveryWindow::ModalConBoton(const Mirada& mirar, const QString& cierre,
                                const std::function<void()>& abrir)
{
    Modal(mirar, {}, abrir, [&](QWidget& ventana) { Pulsar(ventana, cierre); });
}

void EveryWindow::Inicio(const Mirada& mirar)
{
    aplicacion.inicio()->TerminarPortada();
    QApplication::processEvents();
    mirar(Vista(*aplicacion.inicio()), u"Form1"_s);
    ModalConBoton(mirar, u"SSCommand1"_s, [this] { aplicacion.MostrarSalida(); });
}

void EveryWindow::Casos(const Mirada& mirar)
{
    for (int tipo = 0; tipo < 3; ++tipo) {
        aplicacion.NuevoCaso(tipo);
        const Ventana& caso = *aplicacion.FormularioActual();
        auto* paginas = Vista(caso).findChild<QTabWidget*>();
        ASSERT_NE(paginas, nullptr);
        for (int pagina = 0; pagina < paginas->count(); ++pagina) {
            paginas->setCurrentIndex(pagina);
            QApplication::processEvents();
            mirar(Vista(caso), caso.nombre() + u'-' + QString::number(pagina + 1));
        }
        mirar(Vista(*aplicacion.paleta()), u"Form2-"_s + caso.nombre());
        aplicacion.Reiniciar();
    }
}

void EveryWindow::Preguntas(const Mirada& mirar)
{
    ModalConBoton(mirar, u"bttCancel"_s, [this] { aplicacion.MostrarFicha(); });
    ModalConBoton(mirar, u"cmdOK"_s, [this] { aplicacion.MostrarOpciones(); });
    ModalConBoton(mirar, u"SSCommand2"_s, [this] { aplicacion.MostrarObservaciones(); });
    ModalConBoton(mirar, u"SSCommand2"_s, [this] { aplicacion.MostrarProblema(); });
    ModalConBoton(mirar, u"SSCommand2"_s, [this] { aplicacion.EjecutarOrden(OrdenPaleta::Reinicio); });
    CampoTexto trayecto(u"TrayecBox"_s);
    ModalConBoton(mirar, u"SSCommand2"_s, [&] { aplicacion.MostrarBusqueda(trayecto); });
}

void EveryWindow::Informe(const Mirada& mirar)
{
    Pulsar(Vista(*aplicacion.paleta()), u"Botonera(0)"_s);
    QWidget* progreso = DeNombre(u"Calculos"_s);
    ASSERT_NE(progreso, nullptr);
    mirar(*progreso, u"Calculos"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return aplicacion.visor() && pantalla.vista(*aplicacion.visor()); }));
    QApplication::processEvents();
    mirar(Vista(*aplicacion.visor()), u"Visor"_s);
}

void EveryWindow::Reducidas(const Mirada& mirar)
{
    Pulsar(Vista(*aplicacion.visor()), u"SSCommand2"_s);
    Pulsar(Vista(*aplicacion.FormularioActual()), u"SSCommand2"_s);
    for (const auto& nombre : {u"VisorMin"_s, u"Minimizado"_s}) {
        QWidget* barra = DeNombre(nombre);
        ASSERT_NE(barra, nullptr) << nombre.toStdString();
        mirar(*barra, nombre);
        QTest::mouseClick(barra->findChild<QAbstractButton*>(), Qt::LeftButton);
    }
    QApplication::processEvents();
}

void EveryWindow::Cajas(const Mirada& mirar)
{
    DialogosQt cajas;
    struct Mensaje
    {
        QString nombre;
        QString texto;
        IconoMensaje icono;
    };
    const Mensaje mensajes[] = {
        {u"caja-aviso"_s,
         u"No se ha podido imprimir el documento. Compruebe que la impresora está encendida"_s,
         IconoMensaje::Aviso},
        {u"caja-informacion"_s, u"No se encuentra la cadena especificada"_s, IconoMensaje::Informacion},
        {u"caja-critica"_s, u"Función Buscar"_s, IconoMensaje::Critico},
        {u"caja-lisa"_s, u"Función Buscar"_s, IconoMensaje::Ninguno},
    };
    for (const Mensaje& m : mensajes)
        Modal(
            mirar, m.nombre, [&] { cajas.Mensaje(m.texto, u"Aviso"_s, m.icono); }, Rechazar);
    Modal(
        mirar, u"caja-pregunta"_s,
        [&] { cajas.Preguntar(u"¿Desea introducirlos ahora?"_s, u"Aviso"_s, IconoMensaje::Pregunta); },
        Rechazar);
    Modal(
        mirar, u"caja-fallo"_s,
        [&] {
            cajas.InformarFallo(u"No se ha podido guardar la tasación."_s, u"database or disk is full"_s);
        },
        Rechazar);
    Modal(
        mirar, u"calendario"_s,
        [&] {
            cajas.MostrarCalendario({2026, 11, 20});
        },
        Rechazar);
}

void EveryWindow::Aparatos(const Mirada& mirar)
{
    EscanerOcupado escaner;
    VentanaCaptura ventana(escaner, kTextosEscaner, nullptr);
    ventana.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    QApplication::processEvents();
    mirar(ventana, u"captura"_s);
}

void EveryWindow::Lectura(const Mirada& mirar)
{
    PaginasInforme paginas(InformeDeMuestra(4));
    FakeDialogos sinCajas;
    VentanaPrevia previa(paginas, u"Previsualización de Impresión"_s, 90, sinCajas, {});
    previa.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&previa));
    mirar(previa, u"frmVisor"_s);
    previa.close();
    VentanaAyuda ayuda;
    ayuda.Abrir(std::make_shared<const Manual>(ManualDePrueba()), {});
    ayuda.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ayuda));
    mirar(ayuda, u"Ayuda"_s);
}

} // namespace valmerix
