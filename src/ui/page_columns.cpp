#include "ui/page_columns.h"

#include <algorithm>
#include <numeric>

namespace valmerix {

namespace {

// Fills column after column up to `tope`; what does not fit in the last one stays there.
std::vector<int> LlenarHasta(const std::vector<int>& altos, int columnas, int tope)
{
    std::vector<int> reparto(1, 0);
    int alto = 0;
    for (const int panel : altos) {
        const bool cabe = alto == 0 || alto + panel <= tope;
        if (!cabe && static_cast<int>(reparto.size()) < columnas) {
            reparto.push_back(0);
            alto = 0;
        }
        alto += panel;
        ++reparto.back();
    }
    return reparto;
}

} // namespace

int AltoDe(const std::vector<int>& altos, const std::vector<int>& reparto)
{
    int mayor = 0;
    auto panel = altos.begin();
    for (const int cuantos : reparto) {
        mayor = std::max(mayor, std::accumulate(panel, panel + cuantos, 0));
        panel += cuantos;
    }
    return mayor;
}

std::vector<int> RepartirEnColumnas(const std::vector<int>& altos, int columnas)
{
    std::vector<int> mejor = LlenarHasta(altos, 1, 0);
    // The lowest height for which the columns hold everything, by halving.
    int bajo = 0;
    int alto = std::accumulate(altos.begin(), altos.end(), 0);
    while (bajo <= alto) {
        const int tope = (bajo + alto) / 2;
        std::vector<int> reparto = LlenarHasta(altos, columnas, tope);
        if (AltoDe(altos, reparto) <= tope) {
            mejor = std::move(reparto);
            alto = tope - 1;
        } else {
            bajo = tope + 1;
        }
    }
    return mejor;
}

} // namespace valmerix
