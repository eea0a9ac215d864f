#pragma once

#include "report/list_sentences.h"

namespace valmerix {

// What the report says of the purpose and of the surroundings.

inline constexpr FraseOpcion kFinalidades[] = {
    {u"Se realiza la misma para verificar la validez de la garantía en un préstamo hipotecario."},
    {u"Se realiza la misma para determinar la cobertura de una póliza de seguro."},
    {u"Se realiza la misma para determinar la cuantía del patrimonio del interesado."},
    {u"Se realiza la misma para establecer un justiprecio ante la posible expropiación del inmueble."},
    {u"Se realiza la misma con motivo de su solicitud por ", u"BoxFin", true, u"."},
};

inline constexpr FraseOpcion kTiposNucleo[] = {
    {u"Se trata de la capital de la provincia."},
    {u"El inmueble se encuentra enclavado en un pequeño núcleo autónomo."},
    {u"La población referida tiene la consideración de núcleo satélite dependiente de ", u"BoxSatelite",
     false, u"."},
    {u"La población referida tiene la consideración de ", u"BoxOtroNucleo", true, u"."},
};

inline constexpr FilaFrase kFilasCrecimiento[] = {
    {u"Población creciente",
     u"Atendiendo a la evolución del censo se constata que la tendencia actual es al crecimiento de la "
     u"población."},
    {u"Población decreciente",
     u"Atendiendo a la evolución del censo puede afirmarse que recientemente ha disminuido el número de "
     u"habitantes, por lo que la tendencia actual es indudablemente decreciente."},
    {u"Crecimiento lento",
     u"Evoluciona muy lentamente, aunque en un periodo dilatado de tiempo se observa una "
     u"leve tendencia al crecimiento."},
    {u"Estable",
     u"En líneas generales no se producen alteraciones significativas en el número de habitantes."},
};
inline constexpr FrasesLista kCrecimiento{
    {},
    kFilasCrecimiento,
    u".",
    u"Atendiendo a la evolución del censo puede afirmarse que recientemente ha disminuido el número de "
    u"habitantes, por lo que la tendencia actual es de "};

// "antíguo" with its accent: as the list and the reports have always said it.
inline constexpr FilaFrase kFilasDelimitacion[] = {
    {u"Centro urbano", u"en pleno centro urbano."},
    {u"Dentro del casco urbano", u"dentro del casco urbano de la misma."},
    {u"Casco antíguo", u"dentro del casco antíguo de la misma."},
    {u"Zona de ensanche", u"en una zona de ensanche."},
    {u"Barrio periférico", u"en un barrio periférico de la población."},
    {u"Ciudad dormitorio", u"en lo que se denomina una ciudad dormitorio."},
};
inline constexpr FrasesLista kDelimitacion{
    u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla ",
    kFilasDelimitacion};

inline constexpr FilaFrase kFilasDelimitacionApto[] = {
    {u"Centro urbano", u"en pleno centro urbano."},
    {u"Dentro del casco urbano", u"dentro del casco urbano de la misma."},
    {u"En la zona costera", u"en la zona costera."},
    {u"En zona de montaña", u"en un enclave montañoso."},
    {u"Próximo a estación de esquí", u"en una zona próxima a una estación de esquí."},
    {u"Próximo a un parque temático", u"cercano a un parque de atracciones temático."},
};
inline constexpr FrasesLista kDelimitacionApto{
    u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
    u"halla ",
    kFilasDelimitacionApto};

inline constexpr FilaFrase kFilasActividad[] = {
    {u"Agricultura", u"la agricultura."},
    {u"Comercio", u"el comercio."},
    {u"Industria", u"el desempeño de los empleos generados por la industria local."},
    {u"Turismo", u"el trabajo relacionado con el turismo."},
    {u"Artesanía", u"la artesanía."},
};
inline constexpr FrasesLista kActividad{
    u"La ocupación más característica de los residentes en esta población es ", kFilasActividad};

inline constexpr QStringView kAperturaSignificacion = u"El entorno próximo al inmueble es de ";

inline constexpr FilaFrase kFilasSignificacion[] = {
    {u"Residencial", u"carácter claramente residencial."},
    {u"Comercial", u"carácter fundamentalmente comercial."},
    {u"Industrial", u"carácter principalmente industrial."},
    {u"Almacenes", u"edificios destinados a almacenaje."},
    {u"Sin edificar en su mayoría", u"solares sin edificar en su mayoría."},
};
inline constexpr FrasesLista kSignificacion{kAperturaSignificacion, kFilasSignificacion};

// "caracter" without its accent, and rows whose texts differ from the items of the list (which then speak
// for themselves, in lower case): as the reports have always said it.
inline constexpr FilaFrase kFilasSignificacionApto[] = {
    {u"Residencia estival", u"residencia estival."},
    {u"Urbanización próxima al mar", u"urbanización próxima al mar."},
    {u"Apartamentos 1ª línea de playa", u"apartamentos 1ª línea de playa."},
    {u"Negocios de hostelería", u"caracter comercial, con predominio de los negocios de hostelería."},
    {u"Sin edificar en su mayoría", u"solares sin edificar en su mayoría."},
};
inline constexpr FrasesLista kSignificacionApto{kAperturaSignificacion, kFilasSignificacionApto};

} // namespace valmerix
