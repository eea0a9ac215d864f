#pragma once

#include <QString>
#include <QStringView>
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace valmerix {

/// Lower case, accents off: "Órgano de Güímar" gives "organo de guimar". The ñ is a letter of its own and
/// stays; ç becomes c, ü becomes u. Accents written as combining marks go as well.
QString Plegar(QStringView texto);
/// The same over UTF-8, appended to `plegado`; damaged bytes stay as they are.
void PlegarUtf8(std::string_view texto, std::string& plegado);

/// Spanish order, below, equal or above 0: letters blind to case and accents, ñ between n and o, digits and
/// signs before letters; ties by accent (plain first), then by case (small first). Total: 0 only for equal
/// texts.
int CompararEspañol(QStringView a, QStringView b);
int CompararEspañol(std::string_view utf8A, std::string_view utf8B);

/// Sorts many texts by the first level of CompararEspañol: a key of bytes each, compared eight at a time.
class OrdenPorClaves
{
public:
    void Añadir(QStringView texto);
    /// After it `orden` gives places of texts in the order of their addition, `empates` the stretches
    /// [first, last) of `orden` whose texts are equal at the first level.
    void Ordenar();

    std::vector<size_t> orden;
    std::vector<std::pair<size_t, size_t>> empates;

private:
    struct Clave
    {
        quint64 trozo = 0; // the eight bytes in hand, as a number
        size_t inicio = 0;
        size_t fin = 0;
        size_t indice = 0;
    };

    struct Tramo // of claves_, equal up to `desde`
    {
        size_t primero = 0;
        size_t ultimo = 0;
        size_t desde = 0;
    };

    quint64 Trozo(const Clave& clave, size_t desde) const;
    void OrdenarTramo(const Tramo& tramo, std::vector<Tramo>& pendientes);

    std::string bytes_;
    std::vector<Clave> claves_;
};

/// Sorts `elementos` in Spanish order of `texto(elemento)`, which gives a QString or a view that lives on.
template <class T, class Texto>
void OrdenarEspañol(std::vector<T>& elementos, Texto texto)
{
    OrdenPorClaves claves;
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
