#pragma once

#include "report/headings.h"

namespace valmerix {

/// A set of box indexes, one bit each.
using Indices = quint64;

constexpr Indices Entre(int desde, int hasta)
{
    Indices indices = 0;
    for (int i = desde; i <= hasta; ++i) {
        indices |= Indices{1} << i;
    }
    return indices;
}

template <class... T>
constexpr Indices Alguno(T... i)
{
    return (Entre(i, i) | ...);
}

template <class... T>
constexpr unsigned Clases(T... clase)
{
    return (static_cast<unsigned>(clase) | ...);
}

inline constexpr unsigned kTodas = ~0U;
inline constexpr unsigned kViviendas = Clases(Clase::Piso, Clase::Apto, Clase::Casa);
inline constexpr unsigned kEnBloque = Clases(Clase::Piso, Clase::Apto);
inline constexpr unsigned kCasaNave = Clases(Clase::Casa, Clase::Nave);
inline constexpr unsigned kSuelo = Clases(Clase::Solar, Clase::Finca);

/// When a heading is printed, for some kinds: any of the chkApartados, any of the chkPuntos and a filled
/// field, each where it is told.
struct ReglaTitulo
{
    QStringView titulo;
    unsigned clases = kTodas;
    Indices apartados = 0;
    Indices puntos = 0;
    QStringView campo = {};
};

inline constexpr QStringView kCerramientos = u"Cerramientos Exteriores";
inline constexpr QStringView kCubierta = u"Cubierta";

inline constexpr ReglaTitulo kReglasTitulos[] = {
    // Chapters
    {u"LOCALIDAD Y ENTORNO", kTodas, Entre(0, 6)},
    {u"CARACTERISTICAS DEL EDIFICIO", kEnBloque, Alguno(7), Entre(5, 15)},
    {u"CARACTERISTICAS DEL EDIFICIO", kCasaNave, Alguno(7), Entre(5, 12)},
    {u"CARACTERISTICAS DEL EDIFICIO", Clases(Clase::Loca), Alguno(7), Entre(5, 10)},
    {u"CARACTERISTICAS DE LA NAVE", kTodas, Entre(12, 19)},
    {u"CARACTERISTICAS DEL LOCAL", kTodas, Entre(14, 21)},
    {u"CARACTERISTICAS DE LA VIVIENDA", kViviendas, Entre(12, 20)},
    {u"REGIMEN DE TENENCIA", kTodas, Alguno(11)},
    {u"DESCRIPCION DE LA FINCA", kTodas, Alguno(8, 9, 19)},
    {u"EDIFICACIONES EXISTENTES", kTodas, Alguno(10)},
    {u"SITUACION URBANISTICA", kEnBloque, Alguno(11)},
    {u"SITUACION URBANISTICA", Clases(Clase::Casa, Clase::Nave, Clase::Loca), Alguno(8)},
    {u"SITUACION URBANISTICA", Clases(Clase::Solar), Alguno(19)},
    {u"SITUACION URBANISTICA", Clases(Clase::Finca), Alguno(25)},
    {u"DOCUMENTACION", kViviendas, Alguno(21)},
    {u"DOCUMENTACION", Clases(Clase::Nave, Clase::Finca), Alguno(20)},
    {u"DOCUMENTACION", Clases(Clase::Loca), Alguno(22)},
    {u"DOCUMENTACION", Clases(Clase::Solar), Alguno(23)},
    {u"OBSERVACIONES", kTodas, 0, 0, u"txtObservaciones"},
    {u"CALCULO DE LOS VALORES UNITARIOS", kViviendas, Alguno(22)},
    {u"CALCULO DE LOS VALORES UNITARIOS", Clases(Clase::Nave), Alguno(21)},
    {u"CALCULO DE LOS VALORES UNITARIOS", Clases(Clase::Loca), Alguno(23)},
    {u"VALOR DE TASACION"},
    {u"CARACTERISTICAS URBANISTICAS"},
    {u"INFORMACION DE MERCADO"},
    // Second level
    {u"Tipo de núcleo", kTodas, Alguno(1)},
    {u"Número de habitantes", kTodas, Alguno(1), Alguno(3)},
    {u"Crecimiento de la población", kTodas, Alguno(1), Alguno(2)},
    {u"Delimitación del entorno", kTodas, Alguno(4)},
    {u"Actividad dominante", kTodas, Alguno(1), Alguno(0)},
    {u"Nivel de Renta", kTodas, Alguno(1), Alguno(1)},
    {u"Rasgos urbanos del entorno", kTodas, Alguno(2, 3, 5, 6)},
    {u"Consolidación", ~kSuelo, Alguno(4), 0, u"BoxPorcen"},
    {u"Consolidación", kSuelo, Alguno(3), 0, u"BoxPorcen"},
    {u"Descripción y usos", kEnBloque, Alguno(7, 8)},
    {u"Descripción y usos", kCasaNave, Alguno(7)},
    {u"Descripción y usos", Clases(Clase::Loca), Alguno(7, 9)},
    {u"Tipología", kViviendas, Alguno(7), Alguno(10)},
    {u"Uso y destino actual", Clases(Clase::Nave), Alguno(7), Alguno(8)},
    {u"Características constructivas", kEnBloque, Alguno(7), Entre(13, 15)},
    {u"Características constructivas", kCasaNave, Alguno(7), Entre(10, 12)},
    {u"Características constructivas", Clases(Clase::Loca), Alguno(7), Entre(8, 10)},
    {u"Antigüedad del edificio", kEnBloque, Alguno(7), Alguno(8)},
    {u"Antigüedad del edificio", Clases(Clase::Casa, Clase::Nave, Clase::Loca), Alguno(7), Alguno(6)},
    {u"Tipificación industrial", kTodas, Alguno(9)},
    {u"Servicios comunes", kTodas, Alguno(9)},
    {u"Servicios individuales", kCasaNave, Alguno(10)},
    {u"Situación actual", kEnBloque, Alguno(10)},
    {u"Situación actual", Clases(Clase::Casa, Clase::Nave, Clase::Loca), Alguno(11)},
    {u"Tipología de la nave", kTodas, Alguno(12)},
    {u"Descripción", kTodas, Alguno(14)},
    {u"Accesibilidad y tráfico", kTodas, Alguno(4)},
    {u"Tipología de la vivienda", kViviendas, Alguno(12)},
    {u"Superficies", kViviendas, Alguno(18)},
    {u"Superficies", Clases(Clase::Nave), Alguno(17)},
    {u"Superficies", Clases(Clase::Loca), Alguno(19)},
    {u"Situación actual (inmueble)", kViviendas, Alguno(19)},
    {u"Situación actual (inmueble)", Clases(Clase::Nave), Alguno(18)},
    {u"Situación actual (inmueble)", Clases(Clase::Loca), Alguno(20)},
    {u"Evaluación de los materiales empleados", kViviendas, Alguno(20)},
    {u"Evaluación de los materiales empleados", Clases(Clase::Nave), Alguno(19)},
    {u"Evaluación de los materiales empleados", Clases(Clase::Loca), Alguno(21)},
    {u"Clasificación urbanística", kTodas, Alguno(12)},
    {u"Estado del planeamiento", kTodas, Alguno(13)},
    {u"Masas de cultivo", kTodas, Alguno(9)},
    {u"Sistema de riego", kTodas, Alguno(8)},
    {u"Cargas y mejoras de la finca", kTodas, Alguno(19)},
    {u"Superficie"},
    {u"Calificación urbanística y edificabilidad"},
    {u"Coste de reposición (CR)"},
    {u"Coeficiente de mercado (K)"},
    {u"Valor de realización (Vr)"},
    // Third level
    {u"Significación", kTodas, Alguno(4)},
    {u"Infraestructura", kTodas, Alguno(2)},
    {u"Equipamiento", kTodas, Alguno(5, 6)},
    {u"Comunicaciones", kTodas, Alguno(3)},
    {u"Tipificación comercial", kTodas, Alguno(5)},
    {u"Equipamiento y accesos", kTodas, Entre(5, 7)},
    {u"Equipamiento y comunicaciones", kTodas, Entre(14, 16)},
    {u"Estructura", kEnBloque, 0, Alguno(13)},
    {u"Estructura", kCasaNave, 0, Alguno(10)},
    {u"Estructura", Clases(Clase::Loca), 0, Alguno(8)},
    {kCerramientos, kEnBloque, 0, Alguno(15)},
    {kCerramientos, kCasaNave, 0, Alguno(12)},
    {kCerramientos, Clases(Clase::Loca), 0, Alguno(10)},
    {kCubierta, kEnBloque, 0, Alguno(14)},
    {kCubierta, kCasaNave, 0, Alguno(11)},
    {kCubierta, Clases(Clase::Loca), 0, Alguno(9)},
};

} // namespace valmerix
