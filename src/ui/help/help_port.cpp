#include "ui/help/help_port.h"

#include "ui/help/help_window.h"

#include <QApplication>
#include <QWindow>

namespace valmerix {

AyudaQt::AyudaQt() = default;
AyudaQt::~AyudaQt() = default;

void AyudaQt::Mostrar(const std::shared_ptr<const Manual>& manual, const QString& pagina)
{
    if (!ventana_)
        ventana_ = std::make_unique<VentanaAyuda>();
    ventana_->Abrir(manual, pagina);
    // A window that waits for an answer lets only those in front of it be used.
    QWidget* delante = QApplication::activeModalWidget();
    ventana_->winId();
    if (delante)
        delante->winId();
    ventana_->windowHandle()->setTransientParent(delante ? delante->window()->windowHandle() : nullptr);
    ventana_->show();
    ventana_->raise();
    ventana_->activateWindow();
}

} // namespace valmerix
