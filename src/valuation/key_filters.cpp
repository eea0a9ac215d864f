#include "valuation/key_filters.h"

namespace valmerix {

namespace {

constexpr int kRetroceso = 8;

bool EsCifra(int tecla)
{
    return tecla >= u'0' && tecla <= u'9';
}

constexpr ReglaTecla kReglasTecla[] = {
    {u"BoxAntig", FiltroEntero},         {u"BoxAscen", FiltroEntero},
    {u"BoxAseos", FiltroEntero},         {u"BoxBaños", FiltroEntero},
    {u"BoxCPSol", FiltroEntero},         {u"BoxDerecho", FiltroEntero},
    {u"BoxDormitorios", FiltroEntero},   {u"BoxOtros", FiltroEntero},
    {u"BoxOtros2", FiltroEntero},        {u"BoxHecho", FiltroEntero},
    {u"BoxPlantas", FiltroEntero},       {u"BoxPorcen", FiltroEntero},
    {u"BoxSot", FiltroEntero},           {u"BoxTerrazas", FiltroEntero},
    {u"BoxVPP", FiltroEntero},           {u"BoxFecha", FiltroEntero},
    {u"BoxCc", FiltroDecimal},           {u"BoxConst", FiltroDecimal},
    {u"BoxGaraje", FiltroDecimal},       {u"BoxK", FiltroDecimal},
    {u"BoxProvisional", FiltroDecimal},  {u"BoxRepercusion", FiltroDecimal},
    {u"BoxSobreRasante", FiltroDecimal}, {u"BoxSolar", FiltroDecimal},
    {u"BoxTrastero", FiltroDecimal},     {u"BoxUtil", FiltroDecimal},
    {u"Text9", FiltroDecimal},
};

} // namespace

void FiltroEntero(int& TeclaPulsada, Sistema& sistema)
{
    if (TeclaPulsada == kRetroceso || EsCifra(TeclaPulsada))
        return;
    TeclaPulsada = 0;
    sistema.Pitar();
}

void FiltroDecimal(int& TeclaPulsada, Sistema& sistema)
{
    if (TeclaPulsada == u'.')
        TeclaPulsada = u','; // the numeric block's point
    if (TeclaPulsada != u',')
        FiltroEntero(TeclaPulsada, sistema);
}

std::span<const ReglaTecla> ReglasTecla()
{
    return kReglasTecla;
}

void ConectarFiltros(Ventana& ventana, Sistema& sistema)
{
    for (const ReglaTecla& regla : kReglasTecla) {
        if (auto* campo = dynamic_cast<CampoTexto*>(ventana.buscar(regla.campo)))
            QObject::connect(campo, &CampoTexto::KeyPress, &ventana,
                             [&sistema, filtro = regla.filtro](int& tecla) { filtro(tecla, sistema); });
    }
}

} // namespace valmerix
