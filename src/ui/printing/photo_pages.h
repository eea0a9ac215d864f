#pragma once

#include "common/printed_document.h"

#include <QCache>
#include <QFont>
#include <QImage>
#include <QPainter>

namespace valmerix {

/// The photographs of a case, two a page, each with its caption below. They are read at print size when a
/// page needs them, and only the last few stay in memory.
class PaginasFotos
{
public:
    explicit PaginasFotos(std::vector<FotografiaImpresa> fotografias);

    int paginas() const; ///< 0 without photographs
    QString texto(int pagina) const;
    bool preparada(int pagina) const;
    /// Reads the next photograph of the page that is not at hand.
    void Preparar(int pagina);
    void Pintar(QPainter& pintor, int pagina) const;

private:
    int Pendiente(int pagina) const;
    QStringList Pie(int foto) const;
    void PintarFoto(QPainter& pintor, int foto, qreal arriba) const;
    void PintarPie(QPainter& pintor, const QStringList& lineas, qreal arriba) const;

    std::vector<FotografiaImpresa> fotografias_;
    std::vector<bool> ilegibles_;
    mutable QCache<int, QImage> leidas_; // looking one up is a use of it
    QFont letra_;
};

} // namespace valmerix
