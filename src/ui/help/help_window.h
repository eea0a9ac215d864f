#pragma once

#include "shell/manual.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QUrl;

namespace valmerix {

class BarraEnPagina;
class PaginaAyuda;

/// The help window: contents and search at the left, the page at the right, find in the page below it.
class VentanaAyuda : public QWidget
{
    Q_OBJECT

public:
    VentanaAyuda();

    void Abrir(std::shared_ptr<const Manual> manual, const QString& pagina);

    PaginaAyuda* pagina() const { return pagina_; }
    QTreeWidget* contenido() const { return contenido_; }
    QListWidget* hallazgos() const { return hallazgos_; }
    QLineEdit* busqueda() const { return busqueda_; }
    BarraEnPagina* enPagina() const { return enPagina_; }

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QWidget* Barra();
    QWidget* Indice();
    QToolButton* CrearBoton(const QString& icono, const QString& titulo, const QKeySequence& atajo);
    void CrearAtajos();
    void LlenarContenido();
    void BuscarEnManual(const QString& texto);
    void AbrirHallazgo();
    void AbrirDelContenido();
    /// The contents show where she is. The page's own `source` still is the one before when it tells of it.
    void SeguirPagina(const QUrl& url);

    std::shared_ptr<const Manual> manual_;
    PaginaAyuda* pagina_;
    BarraEnPagina* enPagina_;
    QToolButton* atras_ = nullptr;
    QToolButton* adelante_ = nullptr;
    QLineEdit* busqueda_ = nullptr;
    QStackedWidget* partes_ = nullptr;
    QTreeWidget* contenido_ = nullptr;
    QListWidget* hallazgos_ = nullptr;
    QLabel* cuenta_ = nullptr;
};

} // namespace valmerix
