#include "report/drafting.h"

#include "report/building.h"
#include "report/draft_context.h"
#include "report/dwelling.h"
#include "report/environment.h"
#include "report/identification.h"
#include "report/valuation_chapter.h"

namespace valmerix {

namespace {

void CheckViv(Redaccion& r)
{
    r.frases = ComponerEnumeraciones(r.caso, r.plan.grupos, r.cadenas.TextoLetras);
}

void Resto(Redaccion& r)
{
    RestoDelEdificio(r);
    CaracteristicasDeLaVivienda(r);
    SituacionDocumentacionObservaciones(r);
    CalculoDeLosValoresUnitarios(r);
    ValorDeTasacion(r);
}

} // namespace

InformeRedactado RedactarInforme(const CasoInforme& caso)
{
    Redaccion r(caso);
    Ident(r);
    DelimitacionDelEntorno(r);
    Actv(r);
    Significacion(r);
    CheckViv(r);
    IECC(r);
    CaracteristicasDelEdificio(r);
    Resto(r);
    return {r.texto.texto(), r.cadenas, r.titulos.oColNegrita, r.frases};
}

QString Redactar(const CasoInforme& caso)
{
    return RedactarInforme(caso).texto;
}

} // namespace valmerix
