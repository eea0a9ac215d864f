#pragma once

#include <QPainter>
#include <QString>

namespace valmerix {

/// Pages of A4, from 0, as the preview, the PDF and the paper show them alike.
class DocumentoPaginado
{
public:
    virtual ~DocumentoPaginado() = default;

    virtual int paginas() const = 0; ///< at least 1
    virtual QString titulo() const = 0;
    virtual QString autor() const = 0;
    /// What is written on the page, for those who listen to it.
    virtual QString texto(int pagina) const = 0;

    /// Whether all pictures of the page are at hand.
    virtual bool preparada(int pagina) const = 0;
    /// Brings the next missing picture of the page to hand; it may take a while.
    virtual void Preparar(int pagina) = 0;
    /// Draws in page units (see hoja). A picture that is not at hand is an empty frame.
    virtual void Pintar(QPainter& pintor, int pagina) const = 0;
};

} // namespace valmerix
