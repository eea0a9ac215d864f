#include "ui/look/application.h"

#include "ui/look/theme.h"

#include <QLibraryInfo>
#include <QTranslator>
#include <QWidget>

// The pictures lie in a static library: without this call the linker would leave them out. The macro declares
// its function in the namespace around it, which must be the global one.
static void AbrirRecursos()
{
    Q_INIT_RESOURCE(ui);
}

namespace valmerix {

using namespace Qt::StringLiterals;

AplicacionQt::AplicacionQt(int& argc, char** argv)
    : QApplication(argc, argv)
{
    setApplicationName(u"valmerix"_s);
    setApplicationDisplayName(u"Valmerix"_s);
    setDesktopFileName(u"valmerix"_s);
    // Closing the start window while a case window opens must not end the program.
    setQuitOnLastWindowClosed(false);
    AbrirRecursos();
    CargarTraducciones();
    AplicarTema(*this, TemaDelSistema());
}

void AplicacionQt::CargarTraducciones()
{
    auto* traductor = new QTranslator(this);
    if (traductor->load(u"qtbase_es"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(traductor);
}

void AplicacionQt::Informar(const std::exception& fallo)
{
    if (!informe_)
        throw;
    informe_(fallo);
}

bool AplicacionQt::notify(QObject* receptor, QEvent* evento)
{
    try {
        return QApplication::notify(receptor, evento);
    } catch (const std::exception& fallo) {
        Informar(fallo);
        return true;
    }
}

QWidget* VentanaDelante()
{
    // News of the activation may come after the window has been hidden.
    QWidget* activa = QApplication::activeWindow();
    return activa && activa->isVisible() ? activa : nullptr;
}

void InformarFalloDePantalla(const std::exception& fallo)
{
    auto* aplicacion = qobject_cast<AplicacionQt*>(QCoreApplication::instance());
    if (!aplicacion)
        throw;
    aplicacion->Informar(fallo);
}

} // namespace valmerix
