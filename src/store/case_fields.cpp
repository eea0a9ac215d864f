#include "store/case_fields.h"

namespace valmerix {

namespace {

using enum FormaCampo;
using enum UsoCampo;

// Groups of boxes that serve columns of several tables.
constexpr QStringView kBasicos = u"CheckCome|CheckSan|CheckPol|CheckEdu|CheckAdmi";
constexpr QStringView kLudicos = u"CheckPark|CheckDep|CheckCine|CheckTea|CheckBar";
constexpr QStringView kSeisComunes = u"CheckPis|CheckDep2|CheckApar|CheckJardin|CheckCol|CheckPort";
constexpr QStringView kSeisPropios = u"CheckPis2|CheckDep3|CheckApar2|CheckJardin2|CheckCol2|CheckHuerto";

constexpr CampoCaso kCampos[] = {
    // Request and place.
    {u"Plaza", Texto, u"BoxPlaza"},
    {u"Fecha", Fecha, u"BoxFecha"},
    {u"Presentacion", Casilla, u"Check1"},
    {u"Situacion", Texto, u"BoxSit"},
    {u"Municipio", Texto, u"BoxMun"},
    {u"CP", Texto, u"BoxCP"},
    {u"Provincia", Texto, u"BoxProv"},
    {u"Zona", Texto, u"cboZona"},
    {u"Registro", Texto, u"txtRegistro"},
    {u"Tomo", Texto, u"BoxTomo"},
    {u"Libro", Texto, u"BoxLibro"},
    {u"Folio", Texto, u"BoxFolio"},
    {u"Finca", Texto, u"BoxFinca"},
    {u"Inscripcion", Texto, u"BoxInsc"},
    {u"Anotacion", Texto, u"BoxAnot"},
    {u"NombreSolicitante", Texto, u"BoxNomSol"},
    {u"DomicilioSolicitante", Texto, u"BoxDomSol"},
    {u"PoblacionSolicitante", Texto, u"BoxPobSol"},
    {u"ProvinciaSolicitante", Texto, u"BoxProvSol"},
    {u"CPSolicitante", Texto, u"BoxCPSol"},
    {u"NIFSolicitante", Texto, u"BoxNIFSol"},
    {u"OpcionFinalidad", Opcion, u"Finalidad"},
    {u"TextoFinalidad", Texto, u"BoxFin"},
    // Surroundings.
    {u"Actividad", Texto, u"Combo1"},
    {u"Renta", Texto, u"Combo2"},
    {u"Censo", Texto, u"Combo3"},
    {u"HabitantesDerecho", Habitantes, u"BoxDerecho"},
    {u"HabitantesHecho", Habitantes, u"BoxHecho"},
    {u"OpcionTipoNucleo", Opcion, u"TipoNucleo"},
    {u"TextoSatelite", Texto, u"BoxSatelite"},
    {u"TextoTipoNucleo", Texto, u"BoxOtroNucleo"},
    // The choice of plot or estate refills what comes after it, so it is made here.
    {u"TipoTerreno", Opcion, u"RustiSol", kTerrenos},
    // Shown without the decimals that it is written with: a fraction goes at the next save.
    {u"Consolidacion", Numero, u"BoxPorcen", kTodos, 0, 2},
    {u"Delimitacion", Texto, u"Combo4"},
    {u"Uso", Texto, u"Combo5"},
    {u"Infraestructuras", Casillas, u"CheckPavi|CheckEnci|CheckAlum|CheckAlca|CheckElec|CheckAgua|CheckTel"},
    {u"Comunicaciones", Casillas, u"CheckNac|CheckAutov|CheckAut|CheckLoc|CheckBus|CheckTren|CheckMetro"},
    // Documents, provisional value, planning.
    {u"Documentacion", Casillas, u"CheckEscritura|CheckLicencia|CheckContribucion|CheckOtra",
     kEdificios | kSolar},
    {u"Documentacion", Casillas, u"Check32|Check31|Check30|Check29", kFinca},
    {u"TextoDocumentacion", Texto, u"BoxDocumentacion", kEdificios | kSolar},
    {u"TextoDocumentacion", Texto, u"Text5", kFinca},
    {u"ValorProvisional", Numero, u"BoxProvisional", kEdificios | kSolar, 2, 2},
    {u"ValorProvisional", Numero, u"Text18", kFinca, 2, 2},
    {u"SuperficieSolar", Numero, u"BoxSolar", kEdificios | kSolar, 2, 2},
    {u"SitUrb", Opcion, u"SitUrb", kEdificios | kSolar},
    // Premises of their own, as they are read.
    {u"TipoLocal", Opcion, u"TipoLocal", kLocal, 0, 0, Lectura},
    {u"TextoTipoLocal", Texto, u"Text1", kLocal, 0, 0, Lectura},
    {u"CapacidadGaraje", SinComillas, u"Text4", kLocal, 0, 0, Lectura},
    {u"PlantasLocal", Numero, u"Text3", kLocal, 0, 0, Lectura},
    {u"PlantasSotanoLocal", Numero, u"Text2", kLocal, 0, 0, Lectura},
    {u"PlantaAcceso", TextoConBlanco, u"Combo6", kLocal, 0, 0, Lectura},
    // Facilities and building.
    {u"EquipamientosBasicos", Casillas, kBasicos, kViviendas | kNave | kSolar},
    {u"EquipamientosBasicos", Casillas, u"Check24|Check25|Check26|Check27|Check28", kFinca},
    {u"TipificacionComercial", Casillas, kBasicos, kLocal},
    {u"EquipamientosLudicos", Casillas, kLudicos, kViviendas | kNave | kSolar},
    {u"Identificabilidad", Casillas, kLudicos, kLocal},
    {u"Plantas", Numero, u"BoxPlantas", kViviendas | kNave, 0, 2},
    {u"Plantas", Numero, u"BoxPlantas", kLocal, 0, 0},
    {u"Antiguedad", Numero, u"BoxAntig", kEdificios, 0, 0},
    {u"Sotanos", Numero, u"BoxSot", kEdificios, 0, 0},
    {u"Tipologia", Texto, u"ComboTipol", kViviendas},
    {u"UsoNave", Texto, u"ComboTipol", kNave},
    {u"UsoSotano", Texto, u"ComboSotano", kViviendas | kNave},
    {u"Estructura", Texto, u"ComboEstructura", kEdificios},
    {u"Cubierta", Texto, u"ComboCubierta", kEdificios},
    {u"Fachada", Texto, u"ComboFachada", kEdificios},
    // The same premises, as they are written.
    {u"TipoLocal", Opcion, u"TipoLocal", kLocal, 0, 0, Escritura},
    {u"TextoTipoLocal", Texto, u"Text1", kLocal, 0, 0, Escritura},
    {u"CapacidadGaraje", SinComillas, u"Text4", kLocal, 0, 0, Escritura},
    {u"PlantasLocal", Numero, u"Text3", kLocal, 0, 0, Escritura},
    {u"PlantasSotanoLocal", Numero, u"Text2", kLocal, 0, 0, Escritura},
    {u"PlantaAcceso", TextoConBlanco, u"Combo6", kLocal, 0, 0, Escritura},
    {u"ServiciosComunes", Casillas, kSeisComunes, kViviendas},
    {u"Tipificacion", Casillas, kSeisComunes, kNave},
    {u"VivPorPlanta", Numero, u"BoxVPP", kPiso | kApto, 0, 2},
    {u"Ascensores", Numero, u"BoxAscen", kPiso | kApto, 0, 2},
    {u"UsoBaja", Texto, u"ComboBaja", kPiso | kApto},
    {u"Zaguan", Texto, u"ComboZaguan1", kPiso | kApto},
    {u"Escalera", Texto, u"ComboEscalera1", kPiso | kApto},
    {u"AcabZaguan", Texto, u"ComboZaguan2", kPiso | kApto},
    {u"AcabEscalera", Texto, u"ComboEscalera2", kPiso | kApto},
    {u"ServiciosIndividuales", Casillas, kSeisPropios, kCasa | kNave},
    {u"Dotaciones", Casillas, kSeisPropios, kLocal},
    {u"Conservacion", Opcion, u"OptionEstado", kEdificios},
    // Rooms and finishes.
    {u"Composicion", Casillas,
     u"CheckCocina|CheckGaleria|CheckComedor|CheckEstar|CheckDormitorios|CheckOtros|CheckOtros2|CheckBaños|"
     u"CheckAseos|CheckTerrazas",
     kViviendas},
    {u"Composicion", Casillas,
     u"CheckCocina|CheckGaleria|CheckComedor|CheckEstar|CheckPrincipal|CheckSencillos|CheckDobles|CheckBaños|"
     u"CheckAseos|CheckTerrazas",
     kNave | kLocal},
    {u"Otros", Numero, u"BoxOtros", kViviendas, 0, 0},
    {u"Otros2", Numero, u"BoxOtros2", kViviendas, 0, 0},
    {u"NombreOtros", Texto, u"txtOtros", kViviendas},
    {u"NombreOtros2", Texto, u"txtOtros2", kViviendas},
    {u"Dormitorios", Numero, u"BoxDormitorios", kViviendas, 0, 0},
    {u"Baños", Numero, u"BoxBaños", kViviendas, 0, 0},
    {u"Terrazas", Numero, u"BoxTerrazas", kViviendas, 0, 0},
    {u"Despachos", Numero, u"BoxSencillos", kNave | kLocal, 0, 0},
    {u"Archivos", Numero, u"BoxDobles", kNave, 0, 0},
    {u"Probadores", Numero, u"BoxDobles", kLocal, 0, 0},
    {u"Vestuarios", Numero, u"BoxBaños", kNave | kLocal, 0, 0},
    {u"Duchas", Numero, u"BoxTerrazas", kNave | kLocal, 0, 0},
    {u"Aseos", Numero, u"BoxAseos", kEdificios, 0, 0},
    {u"Pavimentos", Casillas, u"CheckTerrazo|CheckCeramico|CheckMadera|CheckMarmol|CheckBaldosa", kEdificios},
    {u"CarpinteriaInterior", Opcion, u"CarpInt", kEdificios},
    {u"TextoCarpinteriaInterior", Texto, u"BoxRoble", kEdificios},
    {u"CarpinteriaExterior", Opcion, u"CarpExt", kEdificios},
    {u"TextoCarpinteriaExterior", Texto, u"BoxHierro", kEdificios},
    {u"MobiliarioK", Opcion, u"MobK", kViviendas},
    {u"TextoMobiliarioK", Texto, u"BoxMobK", kViviendas},
    {u"AcabadoInterior", Opcion, u"Interior", kEdificios},
    {u"TextoAcabadoInterior", Texto, u"BoxLisa", kEdificios},
    // Surfaces, annexes, figures.
    {u"Sup", Opcion, u"Sup", kEdificios},
    {u"SupUtil", Numero, u"BoxUtil", kEdificios, 2, 2},
    {u"SupConst", Numero, u"BoxConst", kEdificios, 2, 2},
    {u"ConservacionViv", Opcion, u"Conserv", kEdificios},
    {u"CalidadesGrales", Opcion, u"Calidad", kEdificios},
    {u"PlantaTrastero", Texto, u"Combo8", kViviendas | kLocal},
    {u"ValorTrastero", Numero, u"BoxTrastero", kEdificios, 2, 2},
    {u"PlantaGaraje", Texto, u"Combo7", kViviendas | kLocal},
    {u"ValorGaraje", Numero, u"BoxGaraje", kEdificios, 2, 2},
    {u"DescripcionAnexo", Texto, u"Text8", kEdificios},
    {u"ValorAnexo", Numero, u"Text9", kEdificios, 2, 2},
    {u"Anexos", Casillas, u"CheckTrast|CheckGrj|CheckOtra2", kEdificios},
    {u"Repercusion", Numero, u"BoxRepercusion", kEdificios, 2, 2},
    {u"SuperficieSobreRasante", Numero, u"BoxSobreRasante", kEdificios, 2, 2},
    {u"CosteConstruccion", Numero, u"BoxCc", kEdificios, 2, 2},
    {u"CoeficienteK", Numero, u"BoxK", kEdificios, 2, 2},
    // Land.
    {u"Clasificacion", Opcion, u"OptionUrb", kTerrenos},
    {u"EstadoPlaneamiento", OpcionesSueltas,
     u"OptionPlanGeneral|OptionPlanParcial|OptionDetalle|OptionProgramaActuacion|OptionPlanEspecial|"
     u"OptionComplementarias",
     kTerrenos, 0, 0, LecturaYEscritura, 2},
    {u"TextoPlaneamiento", Texto, u"BoxEspecial", kTerrenos},
    {u"UsosAutorizados", Casillas, kSeisComunes, kTerrenos},
    {u"UsosProhibidos", Casillas, kSeisPropios, kTerrenos},
    {u"Edificabilidad", Numero, u"Text1", kTerrenos, 2, 2},
    {u"Aprovechabilidad", Numero, u"Text3", kTerrenos, 2, 2},
    {u"ValorReposicion", Numero, u"BoxReposicion", kSolar, 2, 2},
    {u"CosteUrbanizacion", Numero, u"Text10", kSolar, 2, 2},
    {u"EquipamientosAgricolas", Casillas, u"Check19|Check21|Check20|Check22|Check23", kFinca},
    {u"Accesos", Casillas, u"Check14|Check15|Check16|Check17|Check18", kFinca},
    {u"SistemaRiego", Opcion, u"Riego", kFinca},
    {u"TextoRiego", Texto, u"Text2", kFinca},
    {u"RegimenTenencia", Opcion, u"Tenencia", kFinca},
    {u"TextoTenencia", Texto, u"Text4", kFinca},
    {u"Cultivos", Casillas, u"Check13|Check12|Check11|Check10|Check9|Check8", kFinca},
    {u"Edificaciones", Casillas, u"Check2|Check3|Check4|Check5|Check6|Check7", kFinca},
    {u"Consideraciones", OpcionesSueltas, u"OptionNoCumple|OptionCumple", kFinca},
    {u"UnidadSuperficie", Texto, u"Combo6", kFinca},
    {u"Equivalencia", Texto, u"BoxEquivalencia", kFinca},
    {u"Metros", Numero, u"Text15", kFinca, 2, 2},
    {u"Hectareas", Numero, u"Text14", kFinca, 2, 2},
    {u"Areas", Numero, u"Text13", kFinca, 2, 2},
    {u"Centiareas", Numero, u"Text12", kFinca, 2, 2},
    {u"dm2", Numero, u"Text11", kFinca, 2, 2},
    {u"Hanegadas", Numero, u"Text6", kFinca, 2, 2},
    {u"Brazas", Numero, u"Text7", kFinca, 2, 2},
    {u"PrecioUnitarioFinca", Numero, u"Text17", kFinca, 2, 2},
    // The total of a building follows from the rest when it is read.
    {u"ValorFinal", Numero, u"BoxTotal", kEdificios, 2, 2, Escritura},
    {u"ValorFinal", Numero, u"BoxTotal", kSolar, 2, 2},
    {u"ValorFinal", Numero, u"Text16", kFinca, 2, 2},
    {u"Observaciones", Texto, u"txtObservaciones"},
};

struct LetraTipo
{
    QStringView letra;
    Tipos tipo;
};

constexpr LetraTipo kLetras[] = {
    {u"P", kPiso}, {u"A", kApto}, {u"C", kCasa}, {u"N", kNave}, {u"L", kLocal},
};

} // namespace

std::span<const CampoCaso> CamposDeCaso()
{
    return kCampos;
}

Tipos TipoDeLetra(QStringView letra)
{
    for (const LetraTipo& fila : kLetras) {
        if (fila.letra == letra)
            return fila.tipo;
    }
    return 0;
}

} // namespace valmerix
