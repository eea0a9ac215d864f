#pragma once

#include "common/printed_document.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <vector>

namespace valmerix {

/// Head of the first page: logo at the left, company beside it, a thin line below.
class CabeceraMembrete
{
public:
    explicit CabeceraMembrete(const MembreteImpreso& membrete);

    qreal alto() const; ///< page units, with the gap to the text
    QString texto() const;
    /// `x`, `y`: upper left corner; `ancho`: to the right margin.
    void Pintar(QPainter& pintor, qreal x, qreal y, qreal ancho) const;

private:
    struct Rotulo
    {
        QString texto;
        QFont letra;
        qreal alto;
    };

    void Poner(const QString& texto, const QFont& letra, qreal alto, qreal ancho);
    QSizeF TamañoLogo() const;
    qreal AltoRotulos() const;

    QImage logo_;
    std::vector<Rotulo> rotulos_;
};

} // namespace valmerix
