#include "report/draft_context.h"

#include "report/comparables_block.h"

namespace valmerix {

Redaccion::Redaccion(const CasoInforme& elCaso)
    : caso(elCaso)
    , plan(PlanDe(elCaso.tipo))
    , cadenas(NUMFORMAT(elCaso))
    , ResumenTestigos(AgregarTestigos(elCaso))
    , titulos(elCaso, plan.clase)
{
}

QString Redaccion::Capitulo(const QString& titulo)
{
    QString encabezado = titulos.GetNumber(titulo, 0, 0);
    if (!encabezado.isEmpty()) {
        L0(encabezado);
        NL();
    }
    return encabezado;
}

QString Redaccion::Apartado(const QString& titulo)
{
    QString encabezado = titulos.GetNumber(titulo, titulos.Capitulo, 0);
    if (!encabezado.isEmpty()) {
        L1(encabezado);
    }
    return encabezado;
}

QString Redaccion::Punto(const QString& titulo)
{
    QString encabezado = titulos.GetNumber(titulo, titulos.Capitulo, 1);
    if (!encabezado.isEmpty()) {
        L2(encabezado);
    }
    return encabezado;
}

} // namespace valmerix
