#pragma once

#include "controls/window.h"

#include <array>
#include <span>
#include <vector>

namespace valmerix {

/// A group of boxes that the report says in one sentence, its items in the order of the sentence.
enum class GrupoCasillas {
    Infraestructuras,
    Equipamientos,
    Ocio,
    Comunicaciones,
    ServiciosComunes,
    Pavimentos,
    Distribucion,
    Documentos,
    ServiciosIndividuales,
};
inline constexpr size_t kGruposCasillas = 9;

std::span<const QStringView> CasillasDe(GrupoCasillas grupo);

/// For each item of each group, how many ticked items stand before it and behind it, kept up to date with
/// every click. Unsigned, 8 bits. The first item has nothing before it, the last nothing behind it; a group
/// that the window does not have counts nothing.
class ContadoresEnumeracion
{
public:
    /// Listens to the window's boxes, which live as long as it does.
    explicit ContadoresEnumeracion(const Ventana& ventana);
    ContadoresEnumeracion(const ContadoresEnumeracion&) = delete;
    ContadoresEnumeracion& operator=(const ContadoresEnumeracion&) = delete;

    /// Takes the counts from the boxes as they stand, for a window whose boxes were set without events.
    void Recontar(const Ventana& ventana);

    /// Items from 0 in the order of CasillasDe; throw std::out_of_range behind the last.
    quint8 Antes(GrupoCasillas grupo, size_t i) const { return pareja(grupo, i).antes; }
    quint8 Despues(GrupoCasillas grupo, size_t i) const { return pareja(grupo, i).despues; }
    /// The same by the name of a box; 0 for one that belongs to no group.
    quint8 Antes(QStringView casilla) const;
    quint8 Despues(QStringView casilla) const;

private:
    struct Pareja
    {
        quint8 antes = 0;
        quint8 despues = 0;
    };

    const Pareja& pareja(GrupoCasillas grupo, size_t i) const;
    const Pareja* buscar(QStringView casilla) const;
    void Contar(size_t grupo, size_t item, bool marcada);

    std::array<std::vector<Pareja>, kGruposCasillas> grupos_;
};

} // namespace valmerix
