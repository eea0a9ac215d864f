#pragma once

#include <QWidget>
#include <functional>

class QBoxLayout;
class QComboBox;
class QLineEdit;
class QToolButton;

namespace valmerix {

class VistaPaginas;

/// Buttons over the preview: printing, PDF, zoom, the way through the pages.
class BarraPrevia : public QWidget
{
    Q_OBJECT

public:
    BarraPrevia(VistaPaginas& vista, int paginas, QWidget* padre);

Q_SIGNALS:
    void ImpresionPedida();
    void PdfPedido();
    void ListaPedida(bool visible);
    void CierrePedido();

private:
    /// `tecla` works beside the mnemonic of `texto`; it is named in the tool tip.
    QToolButton* Boton(const QString& icono, const QString& texto, const QString& ayuda,
                       const QKeySequence& tecla, const std::function<void()>& orden);
    void Separar();
    void PonerSalidas();
    void PonerZoom();
    void PonerPaginas();
    void PonerCierre();
    void MostrarPagina();
    void MostrarZoom();
    void TomarPagina();
    void TomarZoom(const QString& texto);

    VistaPaginas& vista_;
    int paginas_;
    QBoxLayout* fila_;
    QToolButton* ancho_ = nullptr;
    QToolButton* entera_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLineEdit* pagina_ = nullptr;
    QToolButton* primera_ = nullptr;
    QToolButton* anterior_ = nullptr;
    QToolButton* siguiente_ = nullptr;
    QToolButton* ultima_ = nullptr;
};

} // namespace valmerix
