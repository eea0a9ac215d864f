#pragma once

#include <QStringView>
#include <span>

namespace valmerix {

enum class ClaseControl {
    Texto,
    TextoLargo,   ///< several lines
    Fecha,        ///< date mask
    Lista,        ///< open list
    ListaCerrada, ///< items only
    Casilla,
    Opciones,
    Boton,
    Etiqueta,
    Resultado, ///< a field that the calculators fill
    Rejilla,
    Imagen,
};

/// One control of a case window, one row of its table. The order of the rows is the tab order.
struct ControlForma
{
    QStringView nombre;
    ClaseControl clase = ClaseControl::Texto;
    QStringView titulo;      ///< caption, as shown
    QStringView elementos;   ///< items of a list or captions of the options, joined by '|'
    int punto = -1;          ///< index of the chkPuntos box of its line, -1 none
    bool mismaLinea = false; ///< stands on the line of the control before it (a count beside its check)
    int opcion = -1;         ///< free text that belongs to this option of the group before it, -1 none
};

/// A titled panel of a page.
struct SeccionForma
{
    int pagina = 0; ///< 0 to 6
    QStringView titulo;
    int apartado = -1; ///< index of its chkApartados box, -1: always in the report
    std::span<const ControlForma> controles;
};

} // namespace valmerix
