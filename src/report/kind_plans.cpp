#include "report/building.h"
#include "report/building_tables.h"
#include "report/draft_context.h"
#include "report/dwelling_groups.h"
#include "report/environment_tables.h"

#include <algorithm>
#include <stdexcept>

namespace valmerix {

namespace {

constexpr PlanInforme kPlanes[] = {
    {.tipo = u"Piso",
     .clase = Clase::Piso,
     .inmueble = u"Piso o vivienda en edificio plurifamiliar.",
     .delimitacion = kDelimitacion,
     .significacion = kSignificacion,
     .tipologia = kTipologia,
     .grupos = kGruposEnBloque,
     .DescripcionEdificio = DescripcionEnBloque,
     .serviciosIndividuales = false,
     .edad = &OpcionesPrograma::EdadViviendas,
     .ambitoEdad = u"viviendas"},
    {.tipo = u"Apto",
     .clase = Clase::Apto,
     .inmueble = u"El objeto de tasación del presente informe es un apartamento.",
     .delimitacion = kDelimitacionApto,
     .significacion = kSignificacionApto,
     .tipologia = kTipologia,
     .grupos = kGruposEnBloque,
     .DescripcionEdificio = DescripcionEnBloque,
     .serviciosIndividuales = false,
     .edad = &OpcionesPrograma::EdadViviendas,
     .ambitoEdad = u"viviendas"},
    {.tipo = u"Casa",
     .clase = Clase::Casa,
     .inmueble = u"El objeto de tasación del presente informe es una vivienda unifamiliar.",
     .delimitacion = kDelimitacion,
     .significacion = kSignificacion,
     .tipologia = kTipologiaCasa,
     .grupos = kGruposCasa,
     .DescripcionEdificio = DescripcionCasa,
     .serviciosIndividuales = true,
     .edad = &OpcionesPrograma::EdadViviendas,
     .ambitoEdad = u"viviendas"},
};

} // namespace

const PlanInforme& PlanDe(QStringView tipo)
{
    const auto plan = std::find_if(std::begin(kPlanes), std::end(kPlanes),
                                   [&](const PlanInforme& p) { return p.tipo == tipo; });
    if (plan == std::end(kPlanes)) {
        throw std::out_of_range("No hay informe para " + tipo.toString().toStdString());
    }
    return *plan;
}

} // namespace valmerix
