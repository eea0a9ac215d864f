#pragma once

#include "report/list_sentences.h"

namespace valmerix {

// What the report says of the building and of the dwelling.

inline constexpr FilaFrase kFilasZaguan[] = {
    {u"Bien acabado", u"con buenos acabados"},
    {u"Calidad sencilla", u"con acabados de calidades sencillas"},
    {u"Anticuado", u"con materiales actualmente en desuso"},
};
inline constexpr FrasesLista kZaguan{{}, kFilasZaguan, {}};

inline constexpr FilaFrase kFilasEscalera[] = {
    {u"Bien acabada", u"con materiales actuales de buena calidad"},
    {u"Calidad sencilla", u"acabada con materiales de calidad sencilla"},
    {u"Anticuada", u"de aspecto anticuado"},
};
inline constexpr FrasesLista kEscalera{{}, kFilasEscalera, {}};

inline constexpr FilaFrase kFilasTipologia[] = {
    {u"Edificio aislado",
     u"aislada o exenta, es decir, no comparte ningún cerramiento con otra edificación."},
    {u"Entre medianeras", u"entre medianeras."},
};
inline constexpr FrasesLista kTipologia{u"Se trata de una edificación ", kFilasTipologia};

inline constexpr FilaFrase kFilasTipologiaCasa[] = {
    {u"Vivienda unifamiliar aislada",
     u"aislada o exenta, es decir, no comparte ningún cerramiento con otra edificación."},
    {u"Edificio entre medianeras", u"vivienda unifamiliar entre medianeras."},
    {u"Adosada con jardín",
     u"vivienda unifamiliar adosada, con una parte de solar privativo destinado a jardín."},
    {u"Explotación agropecuaria", u"vivienda unifamiliar ligada a una explotación agropecuaria."},
};
inline constexpr FrasesLista kTipologiaCasa{u"Edificación tipificada como ", kFilasTipologiaCasa};

inline constexpr FilaFrase kFilasEstructura[] = {
    {u"Hormigón", u"porticada, mediante pilares y jácenas de hormigón armado."},
    {u"Muros de carga", u"mediante muros de carga."},
    {u"Mixta", u"mixta, combinando muros de carga y pilares."},
    {u"Metálica", u"metálica, a base de pilares y jácenas formados por perfiles metálicos."},
};
inline constexpr FrasesLista kEstructura{u"La estructura del edificio es ", kFilasEstructura};

inline constexpr FilaFrase kFilasFachada[] = {
    {u"Ladrillo caravista", u"de ladrillo caravista"},
    {u"Enfoscado mortero", u"con enfoscado de mortero de cemento"},
    {u"Pintura pétrea", u"revestida con pintura pétrea rugosa"},
    {u"Mampostería", u"de piedra natural, con aspecto exterior de mampostería"},
    {u"Chapa prelacada", u"de chapa prelacada"},
    {u"Chapa galvanizada", u"de chapa galvanizada"},
    {u"Muro de bloque de hormigón", u"de muro de bloque de hormigón"},
};
inline constexpr FrasesLista kFachada{u"Fachada ", kFilasFachada, {}};

inline constexpr FilaFrase kFilasCubierta[] = {
    {u"Inclinada teja", u"inclinada de teja"},
    {u"Plana pisable", u"plana, transitable, tipo azotea"},
    {u"Plana no pisable", u"plana, pero no transitable"},
    {u"Fibrocemento", u"inclinada con placas onduladas de fibrocemento"},
    {u"Chapa prelacada", u"de chapa prelacada"},
    {u"Chapa galvanizada", u"de chapa galvanizada"},
};
inline constexpr FrasesLista kCubiertas{{}, kFilasCubierta, {}};

inline constexpr QStringView kAperturaEstado = u"En el momento de realizar la presente tasación el edificio ";

inline constexpr FraseOpcion kEstados[] = {
    {u"se encuentra en buen estado de conservación."},
    {u"se encuentra en un estado aceptable para su antigüedad, sin grandes síntomas de deterioro."},
    {u"presenta síntomas evidentes de deterioro."},
    {u"se halla en estado ruinoso, completamente inhabitable."},
    {u"está recien terminado, por lo que aún no presenta ningún síntoma de deterioro."},
    {u"se halla aún en fase de construcción, por lo que no procede hablar de su conservación."},
};

inline constexpr FraseOpcion kCarpinteriaInterior[] = {
    {u"madera de mbero"},  {u"madera de oregón"}, {u"madera de roble"},
    {u"madera de sapely"}, {{}, u"BoxRoble"},
};

inline constexpr FraseOpcion kCarpinteriaExterior[] = {
    {u"aluminio"}, {u"madera"}, {u"P.V.C."}, {u"hierro"}, {{}, u"BoxHierro"},
};

inline constexpr FraseOpcion kMobiliario[] = {
    {u"madera natural"},    {u"tablero lacado"}, {u"madera natural con acabado rústico"},
    {u"laminado plástico"}, {{}, u"BoxMobK"},
};

inline constexpr FraseOpcion kParedes[] = {{u"pintura a la gota"}, {u"pintura lisa"}, {{}, u"BoxLisa"}};

inline constexpr QStringView kAperturaConservacion = u"En la actualidad el inmueble ";

inline constexpr FraseOpcion kConservaciones[] = {
    {u"se encuentra en buen estado de conservación."},
    {u"se encuentra en mal estado de conservación."},
    {u"se encuentra habitable y en un estado aceptable."},
    {u"se halla aún en construcción, por lo que no resulta apropiado hablar todavía de conservación."},
};

inline constexpr FraseOpcion kCalidades[] = {
    {u"de baja calidad."}, {u"de calidades sencillas."}, {u"de buena calidad."}, {u"de gran calidad."}};

} // namespace valmerix
