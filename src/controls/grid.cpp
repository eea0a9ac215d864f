#include "controls/grid.h"

#include <algorithm>

namespace valmerix {

void Rejilla::Avisar()
{
    if (redibujar_)
        Q_EMIT ContenidoCambiado();
}

void Rejilla::setRows(int filas)
{
    filas_.resize(static_cast<size_t>(std::max(filas, 1)));
    fila_ = std::min(fila_, Rows() - 1);
    Avisar();
}

void Rejilla::setColumnas(const QStringList& titulos, const std::vector<int>& anchos)
{
    anchos_ = anchos;
    filas_.assign(1, Fila{titulos, MarcaCelda::Ninguna});
    fila_ = 0;
    Q_EMIT PresentacionCambiada();
    Avisar();
}

QString Rejilla::TextMatrix(int fila, int columna) const
{
    if (fila < 0 || fila >= Rows())
        return {};
    return filas_[static_cast<size_t>(fila)].celdas.value(columna);
}

void Rejilla::setTextMatrix(int fila, int columna, const QString& texto)
{
    if (fila < 0 || fila >= Rows() || columna < 0 || columna >= Cols())
        return;
    QStringList& celdas = filas_[static_cast<size_t>(fila)].celdas;
    while (celdas.size() <= columna)
        celdas.append(QString());
    celdas[columna] = texto;
    Avisar();
}

void Rejilla::AddItem(const QString& linea, int indice)
{
    Fila nueva{linea.split(u'\t'), MarcaCelda::Ninguna};
    const bool alFinal = indice < 1 || indice >= Rows();
    filas_.insert(alFinal ? filas_.end() : filas_.begin() + indice, std::move(nueva));
    Avisar();
}

void Rejilla::RemoveItem(int fila)
{
    if (fila < 1 || fila >= Rows())
        return;
    filas_.erase(filas_.begin() + fila);
    fila_ = std::min(fila_, Rows() - 1);
    Avisar();
}

void Rejilla::Rellenar(int filas)
{
    if (Rows() < filas)
        setRows(filas);
}

MarcaCelda Rejilla::marca(int fila) const
{
    return fila >= 0 && fila < Rows() ? filas_[static_cast<size_t>(fila)].marca : MarcaCelda::Ninguna;
}

void Rejilla::setMarca(int fila, MarcaCelda marca)
{
    if (fila < 0 || fila >= Rows())
        return;
    filas_[static_cast<size_t>(fila)].marca = marca;
    Avisar();
}

void Rejilla::setRow(int fila)
{
    fila_ = std::clamp(fila, 0, Rows() - 1);
}

void Rejilla::setRedraw(bool valor)
{
    const bool despierta = valor && !redibujar_;
    redibujar_ = valor;
    if (despierta)
        Q_EMIT ContenidoCambiado();
}

void Rejilla::Pulsar(int fila)
{
    setRow(fila);
    Q_EMIT Click();
}

void Rejilla::DoblePulsar(int fila)
{
    setRow(fila);
    Q_EMIT DblClick();
}

} // namespace valmerix
