#include "ui/printing/page_breaking.h"

#include <algorithm>

namespace valmerix {

namespace {

constexpr int kRenglonesTitulo = 3; // a bold paragraph of more lines is text

bool EsTitulo(const ParrafoRenglonado& parrafo)
{
    return parrafo.negrita && !parrafo.blanco && parrafo.renglones <= kRenglonesTitulo;
}

// Between line j and the next, both counted from 0, of a paragraph of `total`.
bool DejariaUnoSolo(int j, int total)
{
    return j + 1 < total && (j == 0 || total - j - 1 == 1);
}

int UltimoEscrito(const std::vector<Renglonado>& renglones)
{
    const auto escrito = std::find_if(renglones.rbegin(), renglones.rend(), [](auto r) { return !r.blanco; });
    return static_cast<int>(renglones.rend() - escrito);
}

// Where a page that begins at `inicio` and could hold everything before `fin` ends.
int Corte(const std::vector<Renglonado>& renglones, int inicio, int fin)
{
    const int minimo = inicio + (fin - inicio) / 2;
    int corte = fin;
    while (corte > minimo && renglones[static_cast<size_t>(corte) - 1].atado)
        --corte;
    return corte > minimo ? corte : fin;
}

} // namespace

std::vector<Renglonado> AtarRenglones(const std::vector<ParrafoRenglonado>& parrafos)
{
    std::vector<Renglonado> renglones;
    bool trasTitulo = false; // nothing but blanks since a heading
    for (const ParrafoRenglonado& parrafo : parrafos) {
        const bool titulo = EsTitulo(parrafo);
        trasTitulo = titulo || (trasTitulo && parrafo.blanco);
        for (int j = 0; j < parrafo.renglones; ++j)
            renglones.push_back({parrafo.blanco, trasTitulo || DejariaUnoSolo(j, parrafo.renglones)});
    }
    return renglones;
}

std::vector<TramoPagina> RepartirEnPaginas(const std::vector<Renglonado>& renglones, int cabenPrimera,
                                           int caben)
{
    const int total = UltimoEscrito(renglones);
    std::vector<TramoPagina> paginas;
    int inicio = 0;
    do {
        const int fin = inicio + (paginas.empty() ? cabenPrimera : caben);
        const int corte = fin >= total ? total : Corte(renglones, inicio, fin);
        paginas.push_back({inicio, corte});
        inicio = corte;
        while (inicio < total && renglones[static_cast<size_t>(inicio)].blanco)
            ++inicio;
    } while (inicio < total);
    return paginas;
}

} // namespace valmerix
