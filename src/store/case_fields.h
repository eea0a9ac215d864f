#pragma once

#include <QString>
#include <QStringView>
#include <span>

namespace valmerix {

/// The kinds of property, as bits; land counts twice, as urban plot and as rural estate.
using Tipos = quint8;
inline constexpr Tipos kPiso = 1;
inline constexpr Tipos kApto = 2;
inline constexpr Tipos kCasa = 4;
inline constexpr Tipos kNave = 8;
inline constexpr Tipos kLocal = 16;
inline constexpr Tipos kSolar = 32;
inline constexpr Tipos kFinca = 64;
inline constexpr Tipos kViviendas = kPiso | kApto | kCasa;
inline constexpr Tipos kEdificios = kViviendas | kNave | kLocal;
inline constexpr Tipos kTerrenos = kSolar | kFinca;
inline constexpr Tipos kTodos = kEdificios | kTerrenos;

/// How a field is stored and shown.
enum class FormaCampo : quint8 {
    Texto,
    TextoConBlanco, ///< written with a blank behind it
    Fecha,
    Numero,
    Habitantes,      ///< a number whose control takes its text's length as greatest length
    SinComillas,     ///< a number written as it was typed
    Casilla,         ///< 0 or 1
    Opcion,          ///< index of the set option, 0 when none is
    OpcionesSueltas, ///< place in the list of the set one of several boxes, the default when none is
    Casillas,        ///< one digit a box, in the order of the list
};

/// Some fields stand at another place when they are read than when they are written, or are written only.
enum class UsoCampo : quint8 { LecturaYEscritura, Lectura, Escritura };

/// One field of a case. The order of the rows is the order of reading and writing.
struct CampoCaso
{
    QStringView columna;
    FormaCampo forma = FormaCampo::Texto;
    QStringView controles; ///< name of the control; of several, joined by '|'
    Tipos tipos = kTodos;
    qint8 decimalesVista = 0;
    qint8 decimalesEscritura = 0;
    UsoCampo uso = UsoCampo::LecturaYEscritura;
    qint8 porDefecto = 0; ///< of OpcionesSueltas

    bool es(Tipos de) const { return (tipos & de) != 0; }
    bool seLee() const { return uso != UsoCampo::Escritura; }
    bool seEscribe() const { return uso != UsoCampo::Lectura; }
};

/// Every field of the four case tables besides the key.
std::span<const CampoCaso> CamposDeCaso();

/// A table of cases and the kinds that it holds.
struct TablaCasos
{
    QStringView nombre;
    Tipos tipos;
};
inline constexpr TablaCasos kTablasDeCasos[] = {
    {u"Viviendas", kViviendas},
    {u"Naves", kNave},
    {u"Locales", kLocal},
    {u"Terrenos", kTerrenos},
};

/// The bit of a building's letter: "P", "A", "C", "N", "L"; 0 for any other.
Tipos TipoDeLetra(QStringView letra);

} // namespace valmerix
