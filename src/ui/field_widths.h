#pragma once

#include <QStringView>

namespace valmerix {

/// Digits or letters that a field shows at least; a field that is not here is as wide as there is room.
struct AnchoCampo
{
    QStringView nombre;
    int letras = 0;
    bool cifra = false; ///< a surface, an amount or a coefficient: aligned to the right
};

inline constexpr AnchoCampo kAnchos[] = {
    {u"BoxFecha", 11},
    {u"BoxCP", 8},
    {u"BoxNIFSol", 14},
    {u"BoxCPSol", 8},
    {u"BoxTomo", 10},
    {u"BoxLibro", 10},
    {u"BoxFolio", 10},
    {u"BoxFinca", 10},
    {u"BoxInsc", 10},
    {u"BoxAnot", 10},
    {u"BoxDerecho", 11},
    {u"BoxHecho", 11},
    {u"BoxPorcen", 5},
    {u"BoxPlantas", 5},
    {u"BoxVPP", 5},
    {u"BoxAscen", 5},
    {u"BoxAntig", 5},
    {u"BoxSot", 5},
    {u"BoxTerrazas", 4},
    {u"BoxAseos", 4},
    {u"BoxBaños", 4},
    {u"BoxDormitorios", 4},
    {u"BoxOtros", 4},
    {u"BoxOtros2", 4},
    {u"BoxUtil", 10, true},
    {u"BoxConst", 10, true},
    {u"BoxK", 14, true},
    {u"BoxProvisional", 14, true},
    {u"BoxSolar", 14, true},
    {u"BoxRepercusion", 14, true},
    {u"BoxSobreRasante", 14, true},
    {u"BoxCc", 14, true},
    {u"BoxReposicion", 14, true},
    {u"BoxTrastero", 13, true},
    {u"BoxGaraje", 13, true},
    {u"Text9", 13, true},
    {u"BoxVr", 16, true},
    {u"BoxVivienda", 16, true},
    {u"BoxAnexos", 16, true},
    {u"BoxTotal", 16, true},
    {u"txtCodigoPostal", 8},
    {u"txtFechaDesde", 11},
    {u"txtFechaHasta", 11},
    {u"txtSuperficieDesde", 9},
    {u"txtSuperficieHasta", 9},
    {u"txtImporteDesde", 11},
    {u"txtImporteHasta", 11},
    {u"txtEdadDesde", 5},
    {u"txtEdadHasta", 5},
};

/// 0 letters for a field that takes all the room.
constexpr AnchoCampo AnchoDe(QStringView nombre)
{
    for (const AnchoCampo& ancho : kAnchos) {
        if (ancho.nombre == nombre)
            return ancho;
    }
    return {nombre};
}

} // namespace valmerix
