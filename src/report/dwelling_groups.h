#pragma once

#include "report/enumerations.h"

#include <array>

namespace valmerix {

// The groups of boxes of a dwelling and what the report says of each. Doubled blanks, leading blanks and
// the porter of `CheckHuerto` are as the reports have always said it.

inline constexpr Fragmento kInfraestructuras[] = {
    {u"CheckPavi", u"pavimentado de calzadas"},
    {u"CheckEnci", u"encintado de aceras"},
    {u"CheckAlum", u"alumbrado público"},
    {u"CheckAlca", u"red de alcantarillado"},
    {u"CheckElec", u"tendido eléctrico de baja tensión"},
    {u"CheckAgua", u"suministro  de agua potable"},
    {u"CheckTel", u"tendido telefónico"},
};

inline constexpr Fragmento kEquipNecesarios[] = {
    {u"CheckCome", u"equipamientos comerciales"}, {u"CheckSan", u"servicios sanitarios"},
    {u"CheckPol", u"dotación policial"},          {u"CheckEdu", u"centros de enseñanza"},
    {u"CheckAdmi", u"servicios administrativos"},
};

inline constexpr Fragmento kEquipLudicos[] = {
    {u"CheckPark", u"parques o jardines públicos"},
    {u"CheckDep", u"instalaciones deportivas"},
    {u"CheckCine", u"salas de cine"},
    {u"CheckTea", u"teatro"},
    {u"CheckBar", u"locales destinados a bar o restaurant"},
};

inline constexpr Fragmento kComunicaciones[] = {
    {u"CheckNac", u"acceso a carretera nacional"},
    {u"CheckAutov", u"paso de autovía"},
    {u"CheckAut", u"proximidad a una salida de autopista de peaje"},
    {u"CheckLoc", u"carretera local o comarcal"},
    {u"CheckBus", u"parada de autobuses cercana"},
    {u"CheckTren", u"estación de pasajeros de línea ferroviaria"},
    {u"CheckMetro", u"metro"},
};

inline constexpr Fragmento kServiciosComunes[] = {
    {u"CheckPis", u"piscina privada"},
    {u"CheckDep2", u"zona de pistas deportivas"},
    {u"CheckApar", u"aparcamiento para uso exclusivo de la comunidad"},
    {u"CheckJardin", u"zona ajardinada"},
    {u"CheckCol", u"área de juegos infantiles y columpios"},
    {u"CheckPort", u"servicio de portería"},
};

inline constexpr Fragmento kServiciosIndividuales[] = {
    {u"CheckPis2", u"piscina privada"},
    {u"CheckDep3", u"zona de pistas deportivas"},
    {u"CheckApar2", u"aparcamiento para uso privativo"},
    {u"CheckJardin2", u"zona ajardinada"},
    {u"CheckCol2", u"área de juegos infantiles y columpios"},
    {u"CheckHuerto", u"servicio de portería"},
};

inline constexpr Fragmento kPavimentos[] = {
    {u"CheckTerrazo", u"de terrazo"},
    {u"CheckCeramico", u" cerámico"},
    {u"CheckMadera", u"de madera"},
    {u"CheckMarmol", u"de piedra natural"},
    {u"CheckBaldosa", u"de baldosa hidráulica"},
};

inline constexpr Fragmento kEstancias[] = {
    {u"CheckCocina", u"cocina"},
    {u"CheckGaleria", u" galería"},
    {u"CheckComedor", u"comedor"},
    {u"CheckEstar", u"sala de estar"},
};

inline constexpr EstanciaContada kEstanciasContadas[] = {
    {u"CheckDormitorios", u"BoxDormitorios", u"dormitorio", u"dormitorios", GeneroEstancia::Masculino},
    {u"CheckOtros", u"BoxOtros", u"estancia destinada a ", u"estancias destinadas a ",
     GeneroEstancia::Femenino, u"txtOtros"},
    {u"CheckOtros2", u"BoxOtros2", u"estancia destinada a ", u"estancias destinadas a ",
     GeneroEstancia::Femenino, u"txtOtros2"},
    {u"CheckBaños", u"BoxBaños", u"baño", u"baños", GeneroEstancia::Masculino},
    {u"CheckAseos", u"BoxAseos", u"aseo", u"aseos", GeneroEstancia::Masculino},
    {u"CheckTerrazas", u"BoxTerrazas", u"terraza", u"terrazas", GeneroEstancia::Femenino},
};

inline constexpr Fragmento kDocumentos[] = {
    {u"CheckEscritura", u"escritura pública de propiedad"},
    {u"CheckLicencia", u"licencia municipal de obras"},
    {u"CheckContribucion", u"recibo de contribución territorial urbana"},
    {u"CheckOtra", {}, u"BoxDocumentacion"},
};

inline constexpr Grupo kGrupoInfraestructuras{
    &FrasesEnumeradas::FraseInfraestructuras,
    {u"Carece de todo tipo de infraestructuras.", u"Cuenta únicamente con",
     u"Las infraestructuras o servicios urbanísticos con los que cuenta son"},
    kInfraestructuras};

inline constexpr Grupo kGrupoEquipNecesarios{
    &FrasesEnumeradas::FraseEquipNecesarios,
    {u"carece de todo tipo de equipamientos necesarios.", u"tan solo cuenta con", u"cuenta con"},
    kEquipNecesarios};

inline constexpr Grupo kGrupoEquipLudicos{
    &FrasesEnumeradas::FraseEquipLudicos,
    {u"carece de todo tipo de equipamientos lúdicos.", u"solo cuenta con", u"cuenta con"},
    kEquipLudicos};

inline constexpr Grupo kGrupoComunicaciones{
    &FrasesEnumeradas::FraseComunicaciones,
    {u"estas son muy deficientes.", u"solo cuenta con", u"dispone de"},
    kComunicaciones};

inline constexpr Grupo kGrupoServiciosComunes{
    &FrasesEnumeradas::FraseServiciosComunes,
    {u"No dispone de servicios comunes.", u"Solo cuenta con", u"Dispone de"},
    kServiciosComunes};

inline constexpr Grupo kGrupoServiciosIndividuales{
    &FrasesEnumeradas::FraseServiciosIndividuales,
    {u"  Carece de servicios de tipo individual.",
     u"  En cuanto a servicios de tipo individual, tan solo cuenta con",
     u"  En cuanto a servicios de tipo individual, cuenta con"},
    kServiciosIndividuales};

inline constexpr Grupo kGrupoPavimentos{
    &FrasesEnumeradas::FrasePavimentos,
    {u"se encuentra sin pavimentar.", u"todo el pavimento es", u"combina pavimentos"},
    kPavimentos};

// These openings end in a blank because the counted rooms bring none of their own.
inline constexpr Grupo kGrupoDistribucion{&FrasesEnumeradas::FraseDistribucion,
                                          {u"Se encuentra sin distribuir interiormente.",
                                           u"Tiene una única estancia destinada a ",
                                           u"Interiormente la vivienda se distribuye en "},
                                          kEstancias,
                                          kEstanciasContadas};

inline constexpr Grupo kGrupoDocumentos{
    &FrasesEnumeradas::FraseDocumentacion,
    {u"No se adjunta ninguna documentación.", u"Se adjunta", u"Se adjuntan"},
    kDocumentos};

inline constexpr std::array kGruposEnBloque{
    kGrupoInfraestructuras, kGrupoEquipNecesarios, kGrupoEquipLudicos, kGrupoComunicaciones,
    kGrupoServiciosComunes, kGrupoPavimentos,      kGrupoDistribucion, kGrupoDocumentos,
};

inline constexpr std::array kGruposCasa{
    kGrupoInfraestructuras, kGrupoEquipNecesarios,  kGrupoEquipLudicos,
    kGrupoComunicaciones,   kGrupoServiciosComunes, kGrupoServiciosIndividuales,
    kGrupoPavimentos,       kGrupoDistribucion,     kGrupoDocumentos,
};

} // namespace valmerix
