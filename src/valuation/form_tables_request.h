#pragma once

#include "valuation/form_rows.h"

// Pages 0 and 1 of the dwellings: who asks, where the property is, its surroundings.
namespace valmerix::filas {

inline constexpr ControlForma kEncabezamiento[] = {
    Texto(u"BoxPlaza", u"Realizado en:"),
    Fila(ClaseControl::Fecha, u"BoxFecha", u"Con fecha:"),
    Junto(Ayuda(u"Elegir la fecha en el calendario", Pulsador(u"BttFecha", u"Calendario"))),
    Fila(ClaseControl::ListaCerrada, u"cboNombreTasador", u"Nombre"),
    Junto(Ayuda(u"Ficha de los tasadores y de la empresa", Pulsador(u"BotonFicha", u"Ficha"))),
    Check(u"Check1", u"Activar párrafo de presentación"),
};

inline constexpr ControlForma kSituacion[] = {
    Texto(u"BoxSit", u"Situación:"),
    Texto(u"BoxMun", u"Municipio:"),
    Texto(u"BoxProv", u"Provincia:"),
    Texto(u"BoxCP", u"Código Postal"),
    Combo(u"cboZona", u"Tipo Zona:", u"Media|Buena|Mala"),
};

inline constexpr ControlForma kSolicitante[] = {
    Texto(u"BoxNomSol", u"Nombre:"),    Texto(u"BoxNIFSol", u"C.I.F ó N.I.F.:"),
    Texto(u"BoxDomSol", u"Domicilio:"), Texto(u"BoxCPSol", u"C. Postal:"),
    Texto(u"BoxPobSol", u"Población:"), Texto(u"BoxProvSol", u"Provincia:"),
};

inline constexpr ControlForma kRegistro[] = {
    Texto(u"txtRegistro", u"Registro:"), Texto(u"BoxTomo", u"Tomo:"),   Texto(u"BoxLibro", u"Libro:"),
    Texto(u"BoxFolio", u"Folio:"),       Texto(u"BoxFinca", u"Finca:"), Texto(u"BoxInsc", u"Inscripción:"),
    Texto(u"BoxAnot", u"Anotación:"),
};

inline constexpr ControlForma kFinalidad[] = {
    Opciones(u"Finalidad", u"Garantía hipotecaria de préstamo.|Cobertura compañía aseguradora.|"
                           u"Evaluación de patrimonio.|Justiprecio expropiatorio.|Solicitud por"),
    DeOpcion(4, Ayuda(u"Otra finalidad", Texto(u"BoxFin"))),
};

inline constexpr ControlForma kPoblacion[] = {
    Punto(0, Combo(u"Combo1", u"Actividad dominante:", u"Agricultura|Comercio|Industria|Turismo|Artesanía")),
    Punto(1, Combo(u"Combo2", u"Nivel de renta:", u"Bajo|Medio|Elevado|Muy alto")),
    Punto(2, Combo(u"Combo3", u"Evolución del censo:",
                   u"Población creciente|Población decreciente|Crecimiento lento|Estable")),
    Punto(3, Texto(u"BoxDerecho", u"Habitantes de derecho (censo):")),
    Punto(4, Texto(u"BoxHecho", u"Habitantes de hecho (si difiere):")),
};

// The last option has no words of its own: its field holds them.
inline constexpr ControlForma kNucleo[] = {
    Opciones(u"TipoNucleo", u"Capital de provincia.|Pequeño núcleo autónomo.|Núcleo satélite de:|"),
    DeOpcion(2, Ayuda(u"Núcleo del que es satélite", Texto(u"BoxSatelite"))),
    DeOpcion(3, Ayuda(u"Otro tipo de núcleo", Texto(u"BoxOtroNucleo"))),
};

inline constexpr ControlForma kInfraestructuras[] = {
    Check(u"CheckPavi", u"Pavimentado calzada."),   Check(u"CheckEnci", u"Encintado de aceras."),
    Check(u"CheckAlum", u"Alumbrado público."),     Check(u"CheckAlca", u"Red de alcantarillado."),
    Check(u"CheckElec", u"Red energía eléctrica."), Check(u"CheckAgua", u"Red de agua potable."),
    Check(u"CheckTel", u"Tendido telefónico."),
};

inline constexpr ControlForma kComunicaciones[] = {
    Check(u"CheckNac", u"Carretera nacional."),
    Check(u"CheckAutov", u"Autovía."),
    Check(u"CheckAut", u"Autopista de peaje."),
    Check(u"CheckLoc", u"Carretera local."),
    Check(u"CheckBus", u"Línea de autobús."),
    Check(u"CheckTren", u"Estación de trenes."),
    Check(u"CheckMetro", u"Metro."),
};

inline constexpr ControlForma kConsolidacion = Texto(u"BoxPorcen", u"Porcentaje de consolidación:");
inline constexpr ControlForma kTantoPorCiento = Junto(Rotulo(u"EtiquetaPorcen", u"%"));

inline constexpr ControlForma kZona[] = {
    Combo(u"Combo4", u"Delimitación:",
          u"Centro urbano|Dentro del casco urbano|Casco antíguo|Zona de ensanche|Barrio periférico|"
          u"Ciudad dormitorio"),
    Combo(u"Combo5", u"Uso predominante:",
          u"Residencial|Comercial|Industrial|Almacenes|Sin edificar en su mayoría"),
    kConsolidacion,
    kTantoPorCiento,
};

inline constexpr ControlForma kZonaVacacional[] = {
    Combo(u"Combo4", u"Delimitación:",
          u"Centro urbano|Dentro del casco urbano|En la zona costera|En zona de montaña|"
          u"Próximo a estación de esquí|Próximo a un parque temático"),
    Combo(u"Combo5", u"Uso predominante:",
          u"Residencia Estival|Urbanización próxima al mar|Apartamentos primera línea de playa|"
          u"Negocios de hostelería|Sin edificar en su mayoría"),
    kConsolidacion,
    kTantoPorCiento,
};

inline constexpr ControlForma kEquipamientos[] = {
    Check(u"CheckCome", u"Comercial necesario"),
    Check(u"CheckSan", u"Sanitarios."),
    Check(u"CheckPol", u"Policía."),
    Check(u"CheckEdu", u"Educativos."),
    Check(u"CheckAdmi", u"Administrativos."),
};

inline constexpr ControlForma kOcio[] = {
    Check(u"CheckPark", u"Parque público."),
    Check(u"CheckDep", u"Zonas deportivas."),
    Check(u"CheckCine", u"Cine."),
    Check(u"CheckTea", u"Teatro."),
    Check(u"CheckBar", u"Bares y restaurantes."),
};

} // namespace valmerix::filas
