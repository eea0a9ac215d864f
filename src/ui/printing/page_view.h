#pragma once

#include "ui/printing/paged_document.h"

#include <QAbstractScrollArea>
#include <QTimer>

namespace valmerix {

/// Pages one below the other, drawn when they come into sight.
class VistaPaginas : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class Ajuste { Libre, Ancho, Pagina };
    static constexpr int kZoomMenor = 25; // percent
    static constexpr int kZoomMayor = 400;

    explicit VistaPaginas(DocumentoPaginado& documento, QWidget* padre = nullptr);

    int zoom() const { return qRound(zoom_); }
    Ajuste ajuste() const { return ajuste_; }
    /// The page that fills most of the view, from 0.
    int paginaActual() const { return actual_; }

    void setZoom(qreal porcentaje);
    void setAjuste(Ajuste ajuste);
    void Acercar();
    void Alejar();
    void IrA(int pagina);

Q_SIGNALS:
    void PaginaCambiada(int pagina);
    void ZoomCambiado(int porcentaje);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    QSize TamañoPagina() const;
    QRect SitioPagina(int pagina) const; ///< in the viewport
    int PaginaEn(int y) const;
    qreal ZoomDeAjuste() const;
    void AplicarZoom(qreal porcentaje);
    void AjustarBarras();
    void AnotarActual();
    void PintarPagina(QPainter& pintor, int pagina);
    void PrepararSiguiente();

    DocumentoPaginado& documento_;
    QTimer preparador_; ///< brings pictures to hand between events
    qreal zoom_ = 100;
    Ajuste ajuste_ = Ajuste::Libre;
    int actual_ = 0;
    QPoint arrastre_;
};

} // namespace valmerix
