#pragma once

#include "common/currency.h"
#include "controls/window.h"

namespace valmerix {

/// What loaders and savers ask of the case window in hand; fields are reached by control name.
class CasoAbierto
{
public:
    virtual ~CasoAbierto() = default;

    virtual Ventana& ventana() = 0;
    /// First letter of the window's name: "P", "A", "C", "N", "L", "T".
    virtual QString letra() const = 0;

    virtual void CALCULADOR() = 0;
    virtual void DEDUCTOR() = 0;
    virtual void CASILLAS() = 0;
    /// The known value, before DEDUCTOR runs on it.
    virtual void PonerValorVivienda(Currency valor) = 0;
    /// The sentences on age, storeys, dwellings a floor, lifts and basements, as they read for what the
    /// fields hold now, empty ones included.
    virtual void ComponerFrasesDelEdificio() = 0;

    virtual QString fraseUrbanistica() const = 0;
    virtual void PonerFraseUrbanistica(const QString& frase) = 0;

    virtual void CargaGridImagenesAsociadas() = 0;
    virtual void InicializarGrids(const QString& nombre) = 0;
    virtual void CargaGridTestigosAsociados() = 0;
};

/// True when the trimmed name equals a trimmed entry of the window's list of valuers.
bool TasadorEnLista(const Ventana& ventana, const QString& nombre);

} // namespace valmerix
