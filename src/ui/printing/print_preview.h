#pragma once

#include "common/ports.h"
#include "ui/printing/page_output.h"
#include "ui/printing/print_choices.h"

#include <QDialog>

class QLabel;

namespace valmerix {

class ListaPaginas;
class VistaPaginas;

/// "Visor de Informes": pages, a list of them, zoom, printing, PDF. The document outlives the window.
class VentanaPrevia : public QDialog
{
    Q_OBJECT

public:
    /// `zoom` in percent.
    VentanaPrevia(DocumentoPaginado& documento, const QString& caption, int zoom, Dialogos& dialogos,
                  EleccionesPrevia elecciones, QWidget* padre = nullptr);

    VistaPaginas& vista() { return *vista_; }

    void Imprimir();
    void GuardarComoPdf();

private:
    void Montar();
    void Unir();
    /// Runs `trabajo`; what takes long shows how far it is and can be given up. False when it was.
    bool ConAvance(const QString& rotulo, const std::function<void(const Avance&)>& trabajo);

    DocumentoPaginado& documento_;
    Dialogos& dialogos_;
    EleccionesPrevia elecciones_;
    VistaPaginas* vista_;
    ListaPaginas* lista_;
    QLabel* nota_;
};

} // namespace valmerix
