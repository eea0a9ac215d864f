#pragma once

#include "common/printed_document.h"
#include "ui/printing/line_breaking.h"
#include "ui/printing/page_breaking.h"

#include <QFont>
#include <QPainter>

namespace valmerix {

/// The report's text broken into lines and pages.
class PaginasTexto
{
public:
    /// `altoCabecera`: what the letterhead takes of the first page, page units.
    PaginasTexto(const std::vector<LineaImpresa>& lineas, qreal altoCabecera);

    int paginas() const { return static_cast<int>(tramos_.size()); }
    QString texto(int pagina) const;
    void Pintar(QPainter& pintor, int pagina) const;

private:
    struct RenglonCompuesto
    {
        Renglon renglon;
        bool negrita;
    };

    void Componer(const std::vector<LineaImpresa>& lineas);

    QFont normal_;
    QFont negrita_;
    qreal altoCabecera_;
    std::vector<RenglonCompuesto> renglones_;
    std::vector<ParrafoRenglonado> parrafos_;
    std::vector<TramoPagina> tramos_;
};

} // namespace valmerix
