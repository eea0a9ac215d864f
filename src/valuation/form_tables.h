#pragma once

#include <QStringView>
#include <span>

namespace valmerix {

class Ventana;

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
    int opcion = -1;         ///< field that stands beside this option of the group before it, -1 none;
                             ///< the option's caption is its label then
    QStringView ayuda;       ///< what the control is called where no caption of its own is shown
};

/// A titled panel of a page.
struct SeccionForma
{
    int pagina = 0; ///< 0 to 6
    QStringView titulo;
    int apartado = -1; ///< index of its chkApartados box, -1: always in the report
    std::span<const ControlForma> controles;
};

/// Titles of the pages, 0 to 6.
inline constexpr QStringView kPaginas[] = {
    u"Solicitud", u"Entorno", u"Edificio", u"Vivienda", u"Valoración", u"Testigos", u"Imágenes y notas",
};

std::span<const SeccionForma> SeccionesPiso();
std::span<const SeccionForma> SeccionesApto();
std::span<const SeccionForma> SeccionesCasa();

/// The buttons and labels around the pages, the same in every case window.
std::span<const ControlForma> ControlesVentana();

/// A label beside a field that names the currency, as such or by the square metre.
struct EtiquetaMoneda
{
    QStringView nombre;
    bool porMetro = false;
};
std::span<const EtiquetaMoneda> EtiquetasMoneda();

/// Boxes of the section profile that a window's tables ask for: one behind the highest index.
int CuentaApartados(std::span<const SeccionForma> secciones);
int CuentaPuntos(std::span<const SeccionForma> secciones);

/// Adds the table's controls to the window, in order, as they stand before any case is in them.
void DeclararControles(Ventana& ventana, std::span<const ControlForma> controles);

} // namespace valmerix
