#pragma once

#include "common/spanish_text.h"

#include <QStringView>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace valmerix {

/// Sorts many texts by the first level of CompararEspañol: a key of bytes each, made once.
class OrdenPorClaves
{
public:
    /// Room for so many texts of so many units together; more may come.
    void Reservar(size_t textos, size_t letras);
    void Añadir(QStringView texto);
    /// After it `orden` gives places of texts in the order of their addition, `empates` the stretches
    /// [first, last) of `orden` whose texts are equal at the first level, in the order of their addition.
    void Ordenar();

    std::vector<size_t> orden;
    std::vector<std::pair<size_t, size_t>> empates;

private:
    struct Clave
    {
        quint64 trozo; // the eight bytes in hand, as a number
        size_t inicio;
        quint32 bytes;
        quint32 indice;
    };

    struct Tramo // of claves_, equal up to `desde`
    {
        size_t primero;
        size_t ultimo;
        size_t desde;
    };

    quint64 Trozo(const Clave& clave, size_t desde) const;
    quint64 TomarTrozos(const Tramo& tramo);
    void OrdenarTramo(const Tramo& tramo);
    void Comparar(const Tramo& tramo);
    void Repartir(const Tramo& tramo, unsigned byte);
    void Dejar(const Tramo& tramo, bool acabadas);

    std::string bytes_;
    std::vector<Clave> claves_;
    std::vector<Clave> reparto_;
    std::vector<Tramo> pendientes_;
};

/// Sorts `elementos` in Spanish order of `texto(elemento)`, which gives a view that lives on.
template <class T, class Texto>
void OrdenarEspañol(std::vector<T>& elementos, Texto texto)
{
    OrdenPorClaves claves;
    size_t letras = 0;
    for (const T& elemento : elementos)
        letras += static_cast<size_t>(texto(elemento).size());
    claves.Reservar(elementos.size(), letras);
    for (const T& elemento : elementos)
        claves.Añadir(texto(elemento));
    claves.Ordenar();
    for (const auto& [primero, ultimo] : claves.empates) {
        std::stable_sort(claves.orden.begin() + static_cast<std::ptrdiff_t>(primero),
                         claves.orden.begin() + static_cast<std::ptrdiff_t>(ultimo), [&](size_t a, size_t b) {
                             return CompararEspañol(texto(elementos[a]), texto(elementos[b])) < 0;
                         });
    }
    std::vector<T> ordenados;
    ordenados.reserve(elementos.size());
    for (const size_t i : claves.orden)
        ordenados.push_back(std::move(elementos[i]));
    elementos = std::move(ordenados);
}

} // namespace valmerix
