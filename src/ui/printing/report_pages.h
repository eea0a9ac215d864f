#pragma once

#include "common/printed_document.h"
#include "ui/printing/letterhead.h"
#include "ui/printing/paged_document.h"
#include "ui/printing/photo_pages.h"
#include "ui/printing/text_pages.h"

#include <optional>

namespace valmerix {

/// A printed report: letterhead and text, then the photographs, "Página n de m" at the foot of every page.
class PaginasInforme : public DocumentoPaginado
{
public:
    explicit PaginasInforme(const DocumentoImpreso& documento);

    int paginas() const override { return texto_.paginas() + fotos_.paginas(); }
    QString titulo() const override { return titulo_; }
    QString autor() const override { return autor_; }
    QString texto(int pagina) const override;
    bool preparada(int pagina) const override;
    void Preparar(int pagina) override;
    void Pintar(QPainter& pintor, int pagina) const override;

private:
    void PintarPie(QPainter& pintor, int pagina) const;

    QString titulo_;
    QString autor_;
    std::optional<CabeceraMembrete> membrete_;
    PaginasTexto texto_;
    PaginasFotos fotos_;
    QFont letraPie_;
};

} // namespace valmerix
