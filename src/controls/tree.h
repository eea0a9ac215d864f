#pragma once

#include "controls/control.h"

#include <memory>
#include <vector>

namespace valmerix {

/// A leaf; its letters lie with those of all the others of its folder.
struct NodoArbol
{
    QStringView clave;
    QStringView texto;
};

/// A folder of the tree with its leaves, which look into `letras`; copies share them.
struct CarpetaArbol
{
    QString clave;
    QString texto;
    std::vector<NodoArbol> hijos;
    std::shared_ptr<char16_t[]> letras = nullptr;
};

/// A tree of two levels: folders and leaves, each with a key. Built for hundreds of thousands of leaves.
class Arbol : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    const std::vector<CarpetaArbol>& carpetas() const { return carpetas_; }

    /// Replaces the whole tree at once and clears the selection.
    void setCarpetas(std::vector<CarpetaArbol> carpetas);

    /// Key of the selected node, empty when none is.
    const QString& seleccion() const { return seleccion_; }
    void Seleccionar(const QString& clave) { seleccion_ = clave; }
    void DoblePulsar(const QString& clave);

Q_SIGNALS:
    void DblClick();
    void ContenidoCambiado();

private:
    std::vector<CarpetaArbol> carpetas_;
    QString seleccion_;
};

} // namespace valmerix
