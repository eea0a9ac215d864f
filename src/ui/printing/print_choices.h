#pragma once

#include <QPrinter>
#include <QWidget>
#include <functional>

namespace valmerix {

/// What the preview asks her before it prints or writes.
struct EleccionesPrevia
{
    /// Path of the PDF, "" for none; `titulo` is offered as its name.
    std::function<QString(QWidget* padre, const QString& titulo)> fichero;
    /// The printer and which of the document's pages go to it; false for nothing.
    std::function<bool(QWidget* padre, QPrinter& impresora, int paginas)> impresora;
};

/// The system's own dialogs.
EleccionesPrevia EleccionesConDialogos();

} // namespace valmerix
