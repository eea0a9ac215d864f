#include "windows_fixture.h"

#include "ui/theme.h"

#include <QLabel>
#include <QTabWidget>
#include <functional>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// Every text of a label or button stands whole: its width, its lines' height.
void ComprobarQueCabe(const QWidget& vista)
{
    SCOPED_TRACE(vista.objectName().toStdString());
    EXPECT_TRUE(EsOscura(vista.palette()));
    const auto cabe = [](const QWidget& widget, const QString& texto, QSize pedido) {
        EXPECT_GE(widget.width(), pedido.width()) << texto.toStdString();
        EXPECT_GE(widget.height(), pedido.height()) << texto.toStdString();
    };
    for (const auto* rotulo : vista.findChildren<QLabel*>()) {
        if (!rotulo->isVisible() || rotulo->text().isEmpty())
            continue;
        const bool envuelve = rotulo->wordWrap();
        cabe(*rotulo, rotulo->text(),
             envuelve ? QSize(0, rotulo->heightForWidth(rotulo->width())) : rotulo->minimumSizeHint());
    }
    for (const auto* boton : vista.findChildren<QAbstractButton*>()) {
        if (boton->isVisible() && !boton->text().isEmpty())
            cabe(*boton, boton->text(), {boton->minimumSizeHint().width(), boton->fontMetrics().height()});
    }
}

void ComprobarPaginas(const QWidget& vista)
{
    auto* paginas = vista.findChild<QTabWidget*>();
    ASSERT_NE(paginas, nullptr);
    for (int pagina = 0; pagina < paginas->count(); ++pagina) {
        paginas->setCurrentIndex(pagina);
        QApplication::processEvents();
        SCOPED_TRACE(pagina);
        ComprobarQueCabe(vista);
    }
}

class EveryWindow : public Windows
{
protected:
    EveryWindow() { AplicarTema(dynamic_cast<QApplication&>(*QCoreApplication::instance()), Tema::Oscuro); }
    ~EveryWindow() override
    {
        const bool oscuro = qEnvironmentVariableIsSet("VALMERIX_OSCURO");
        AplicarTema(dynamic_cast<QApplication&>(*QCoreApplication::instance()),
                    oscuro ? Tema::Oscuro : Tema::Claro);
    }
    /// Opens a modal window, looks at it and closes it by that button.
    void Modal(const std::function<void()>& abrir, const QString& cierre)
    {
        bool vista = false;
        EnElModal([&] {
            vista = true;
            QApplication::processEvents();
            ComprobarQueCabe(*VistaModal());
            Pulsar(*VistaModal(), cierre);
        });
        abrir();
        EXPECT_TRUE(vista);
    }
};

} // namespace

TEST_F(EveryWindow, ShowsItsTextsWholeInTheDarkPalette)
{
    aplicacion.inicio()->TerminarPortada();
    QApplication::processEvents();
    ComprobarQueCabe(Vista(*aplicacion.inicio()));
    Modal([&] { aplicacion.MostrarSalida(); }, u"SSCommand1"_s);
    for (int tipo = 0; tipo < 3; ++tipo) {
        aplicacion.NuevoCaso(tipo);
        QApplication::processEvents();
        ComprobarPaginas(Vista(*aplicacion.FormularioActual()));
        ComprobarQueCabe(Vista(*aplicacion.paleta()));
        aplicacion.Reiniciar();
    }
    aplicacion.NuevoCaso(0);
    Modal([&] { aplicacion.MostrarFicha(); }, u"bttCancel"_s);
    Modal([&] { aplicacion.MostrarOpciones(); }, u"cmdOK"_s);
    Modal([&] { aplicacion.MostrarObservaciones(); }, u"SSCommand2"_s);
    Modal([&] { aplicacion.MostrarProblema(); }, u"SSCommand2"_s);
    Modal([&] { aplicacion.EjecutarOrden(OrdenPaleta::Reinicio); }, u"SSCommand2"_s);
    CampoTexto trayecto(u"TrayecBox"_s);
    Modal([&] { aplicacion.MostrarBusqueda(trayecto); }, u"SSCommand2"_s);
    Redactar();
    QApplication::processEvents();
    ComprobarQueCabe(Vista(*aplicacion.visor()));
}

} // namespace valmerix
