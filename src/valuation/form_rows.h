#pragma once

#include "valuation/form_tables.h"

// How the rows of the window tables are written; only the tables include this.
namespace valmerix::filas {

constexpr ControlForma Fila(ClaseControl clase, QStringView nombre, QStringView titulo,
                            QStringView elementos = {})
{
    ControlForma fila;
    fila.clase = clase;
    fila.nombre = nombre;
    fila.titulo = titulo;
    fila.elementos = elementos;
    return fila;
}

constexpr ControlForma Texto(QStringView nombre, QStringView titulo = {})
{
    return Fila(ClaseControl::Texto, nombre, titulo);
}

constexpr ControlForma Combo(QStringView nombre, QStringView titulo, QStringView elementos)
{
    return Fila(ClaseControl::Lista, nombre, titulo, elementos);
}

constexpr ControlForma Check(QStringView nombre, QStringView titulo = {})
{
    return Fila(ClaseControl::Casilla, nombre, titulo);
}

constexpr ControlForma Opciones(QStringView nombre, QStringView elementos)
{
    return Fila(ClaseControl::Opciones, nombre, {}, elementos);
}

constexpr ControlForma Pulsador(QStringView nombre, QStringView titulo)
{
    return Fila(ClaseControl::Boton, nombre, titulo);
}

constexpr ControlForma Rotulo(QStringView nombre, QStringView titulo = {})
{
    return Fila(ClaseControl::Etiqueta, nombre, titulo);
}

constexpr ControlForma Resultado(QStringView nombre, QStringView titulo)
{
    return Fila(ClaseControl::Resultado, nombre, titulo);
}

/// The line can be left out of the report with the box of that index.
constexpr ControlForma Punto(int indice, ControlForma fila)
{
    fila.punto = indice;
    return fila;
}

/// On the line of the control before it.
constexpr ControlForma Junto(ControlForma fila)
{
    fila.mismaLinea = true;
    return fila;
}

/// Beside an option of the group before it.
constexpr ControlForma DeOpcion(int indice, ControlForma fila)
{
    fila.opcion = indice;
    return fila;
}

constexpr ControlForma Ayuda(QStringView ayuda, ControlForma fila)
{
    fila.ayuda = ayuda;
    return fila;
}

} // namespace valmerix::filas
