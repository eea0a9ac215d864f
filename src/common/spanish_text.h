#pragma once

#include <QString>
#include <QStringView>
#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
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

/// Appends the bytes whose plain order is the first level of CompararEspañol.
void AñadirClaveDeOrden(QStringView texto, std::string& clave);

/// Sorts `elementos` in Spanish order of `texto(elemento)`, which gives a QString or a view that lives on.
template <class T, class Texto>
void OrdenarEspañol(std::vector<T>& elementos, Texto texto)
{
    std::string claves;
    std::vector<size_t> inicios{0};
    inicios.reserve(elementos.size() + 1);
    for (const T& elemento : elementos) {
        AñadirClaveDeOrden(texto(elemento), claves);
        inicios.push_back(claves.size());
    }
    const auto clave = [&](size_t i) {
        return std::string_view(claves).substr(inicios[i], inicios[i + 1] - inicios[i]);
    };
    std::vector<size_t> orden(elementos.size());
    std::iota(orden.begin(), orden.end(), size_t{0});
    std::stable_sort(orden.begin(), orden.end(), [&](size_t a, size_t b) {
        const int primero = clave(a).compare(clave(b));
        return primero != 0 ? primero < 0 : CompararEspañol(texto(elementos[a]), texto(elementos[b])) < 0;
    });
    std::vector<T> ordenados;
    ordenados.reserve(elementos.size());
    for (const size_t i : orden)
        ordenados.push_back(std::move(elementos[i]));
    elementos = std::move(ordenados);
}

} // namespace valmerix
