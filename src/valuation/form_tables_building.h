#pragma once

#include "valuation/form_rows.h"

// Pages 2 and 3 of the dwellings: the building and the dwelling.
namespace valmerix::filas {

inline constexpr ControlForma kPlantas = Texto(u"BoxPlantas", u"Nº plantas altas (sin incluir la baja):");
inline constexpr ControlForma kAntiguedad = Texto(u"BoxAntig", u"Antigüedad del edificio (en años):");
inline constexpr ControlForma kSotanos = Texto(u"BoxSot", u"Nº de plantas sótano o semisótano:");
inline constexpr ControlForma kUsoSotano =
    Combo(u"ComboSotano", u"Uso Sótanos:", u"Garaje|Comercial|Trasteros|Bodega");
inline constexpr ControlForma kEstructura =
    Combo(u"ComboEstructura", u"Tipo Estructura:", u"Hormigón|Muros de carga|Mixta|Metálica");
inline constexpr ControlForma kCubierta = Combo(
    u"ComboCubierta", u"Tipo de cubierta:", u"Inclinada teja|Plana pisable|Plana no pisable|Fibrocemento");
inline constexpr ControlForma kFachada =
    Combo(u"ComboFachada", u"Material fachada:",
          u"Ladrillo caravista|Enfoscado mortero|Pintura pétrea|Mampostería");

inline constexpr ControlForma kEdificio[] = {
    Punto(5, kPlantas),
    Punto(6, Texto(u"BoxVPP", u"Nº de viviendas por planta:")),
    Punto(7, Texto(u"BoxAscen", u"Número de ascensores:")),
    Punto(8, kAntiguedad),
    Punto(9, kSotanos),
    Punto(10, Combo(u"ComboTipol", u"Tipología:", u"Edificio aislado|Entre medianeras")),
    // The caption has always had two blanks.
    Punto(11,
          Combo(u"ComboBaja", u"Uso  planta baja:", u"Comercial|Garaje|Vivienda|Trasteros|Patio cubierto")),
    Punto(12, kUsoSotano),
    Punto(13, kEstructura),
    Punto(14, kCubierta),
    Punto(15, kFachada),
};

// A house has no floors of dwellings, and its lines are numbered without those of the flat.
inline constexpr ControlForma kEdificioCasa[] = {
    Punto(5, kPlantas),
    Punto(6, kAntiguedad),
    Punto(7, kSotanos),
    Punto(8, Combo(u"ComboTipol", u"Tipología:",
                   u"Vivienda unifamiliar aislada|Edificio entre medianeras|Adosada con jardín|"
                   u"Explotación agropecuaria")),
    Punto(9, kUsoSotano),
    Punto(10, kEstructura),
    Punto(11, kCubierta),
    Punto(12, kFachada),
};

inline constexpr ControlForma kEscalera[] = {
    Combo(u"ComboEscalera1", u"Descripción de la escalera:", u"Amplia|Estrecha"),
    Combo(u"ComboEscalera2", u"Nivel de acabados de escalera:", u"Bien acabada|Calidad sencilla|Anticuada"),
    Combo(u"ComboZaguan1", u"Descripción del portal o zaguan:", u"Amplio|Pequeño"),
    Combo(u"ComboZaguan2", u"Nivel de acabados del zaguan:", u"Bien acabado|Calidad sencilla|Anticuado"),
};

inline constexpr ControlForma kServiciosComunes[] = {
    Check(u"CheckPis", u"Piscina."),
    Check(u"CheckDep2", u"Zona deportiva."),
    Check(u"CheckApar", u"Aparcamiento."),
    Check(u"CheckJardin", u"Zona ajardinada."),
    Check(u"CheckCol", u"Columpios infantiles."),
    Check(u"CheckPort", u"Servicio de portería."),
};

inline constexpr ControlForma kServiciosIndividuales[] = {
    Check(u"CheckPis2", u"Piscina."),
    Check(u"CheckDep3", u"Zona deportiva."),
    Check(u"CheckApar2", u"Aparcamiento."),
    Check(u"CheckJardin2", u"Zona ajardinada."),
    Check(u"CheckCol2", u"Columpios infantiles."),
    Check(u"CheckHuerto", u"Huerto particular."),
};

inline constexpr ControlForma kEstadoEdificio[] = {
    Opciones(u"OptionEstado", u"En buen estado.|Aceptable estado.|En mal estado.|Ruinoso.|Recién terminado.|"
                              u"Edificio sin terminar."),
};

inline constexpr ControlForma kUrbanismo[] = {
    Opciones(u"SitUrb", u"Cumple toda la normativa urbanística vigente.|"
                        u"Presenta irregularidades o falta de adecuación."),
    Ayuda(u"Describir el problema urbanístico", Pulsador(u"SSCommand6", u"Problema")),
};

inline constexpr ControlForma kDistribucion[] = {
    Check(u"CheckEstar", u"Sala de estar"),
    Check(u"CheckComedor", u"Salón comedor"),
    Check(u"CheckTerrazas", u"Terrazas"),
    Junto(Ayuda(u"Número de terrazas", Texto(u"BoxTerrazas"))),
    Check(u"CheckGaleria", u"Galería"),
    Check(u"CheckCocina", u"Cocina"),
    Check(u"CheckAseos", u"Aseos"),
    Junto(Ayuda(u"Número de aseos", Texto(u"BoxAseos"))),
    Check(u"CheckBaños", u"Baños"),
    Junto(Ayuda(u"Número de baños", Texto(u"BoxBaños"))),
    Check(u"CheckDormitorios", u"Dormitorios"),
    Junto(Ayuda(u"Número de dormitorios", Texto(u"BoxDormitorios"))),
    Ayuda(u"Otras estancias", Check(u"CheckOtros")),
    Junto(Ayuda(u"Destino de las otras estancias", Texto(u"txtOtros"))),
    Junto(Ayuda(u"Número de las otras estancias", Texto(u"BoxOtros"))),
    Ayuda(u"Más estancias", Check(u"CheckOtros2")),
    Junto(Ayuda(u"Destino de las demás estancias", Texto(u"txtOtros2"))),
    Junto(Ayuda(u"Número de las demás estancias", Texto(u"BoxOtros2"))),
};

inline constexpr ControlForma kPavimentos[] = {
    Check(u"CheckTerrazo", u"Terrazo."),
    Check(u"CheckCeramico", u"Cerámico."),
    Check(u"CheckMadera", u"Madera."),
    Check(u"CheckMarmol", u"Granito o mármol."),
    Check(u"CheckBaldosa", u"Baldosa hidráulica."),
};

inline constexpr ControlForma kCarpinteriaInterior[] = {
    Opciones(u"CarpInt", u"Madera de MBERO.|Pino de OREGON.|Madera de ROBLE.|Madera SAPELY.|"),
    DeOpcion(4, Ayuda(u"Otra carpintería interior", Texto(u"BoxRoble"))),
};

inline constexpr ControlForma kCarpinteriaExterior[] = {
    Opciones(u"CarpExt", u"Aluminio.|Madera.|P.V.C.|Hierro.|"),
    DeOpcion(4, Ayuda(u"Otra carpintería exterior", Texto(u"BoxHierro"))),
};

inline constexpr ControlForma kCocina[] = {
    Opciones(u"MobK", u"Madera natural.|Tablero lacado.|Madera estilo rústico.|Laminado plástico.|"),
    DeOpcion(4, Ayuda(u"Otro mobiliario de cocina", Texto(u"BoxMobK"))),
};

inline constexpr ControlForma kPintura[] = {
    Opciones(u"Interior", u"Pintura a la GOTA.|Pintura LISA|"),
    DeOpcion(2, Ayuda(u"Otro acabado interior", Texto(u"BoxLisa"))),
};

inline constexpr ControlForma kSuperficies[] = {
    Rotulo(u"EtiquetaSuperficies", u"(Llenar y elegir al menos una)"),
    Opciones(u"Sup", u"Superficie UTIL vivienda:|Superficie CONSTRUIDA:"),
    DeOpcion(0, Texto(u"BoxUtil", u"Superficie UTIL vivienda:")),
    DeOpcion(1, Texto(u"BoxConst", u"Superficie CONSTRUIDA:")),
};

inline constexpr ControlForma kConservacion[] = {
    Opciones(u"Conserv", u"En buen estado.|En mal estado.|Aceptable.|Sin Terminar."),
};

inline constexpr ControlForma kCalidad[] = {
    Opciones(u"Calidad", u"Baja.|Sencillas.|Buenas.|Lujo."),
};

} // namespace valmerix::filas
