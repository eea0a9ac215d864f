#include "valuation/key_filters.h"

#include "common/number_reading.h"

#include <algorithm>

namespace valmerix {

namespace {

constexpr int kRetroceso = 8;

// A longer number would not fit its place in the calculation, and a case stored with it could not be opened
// any more.
constexpr int kCifrasCuenta = 4;
constexpr int kCifrasK = 9;

bool EsCifra(int tecla)
{
    return tecla >= u'0' && tecla <= u'9';
}

constexpr ReglaTecla kReglasTecla[] = {
    {u"BoxAntig", FiltroEntero, kCifrasCuenta},
    {u"BoxAscen", FiltroEntero, kCifrasCuenta},
    {u"BoxAseos", FiltroEntero, kCifrasCuenta},
    {u"BoxBaños", FiltroEntero, kCifrasCuenta},
    {u"BoxCPSol", FiltroEntero},
    {u"BoxDerecho", FiltroEntero},
    {u"BoxDormitorios", FiltroEntero, kCifrasCuenta},
    {u"BoxOtros", FiltroEntero, kCifrasCuenta},
    {u"BoxOtros2", FiltroEntero, kCifrasCuenta},
    {u"BoxHecho", FiltroEntero},
    {u"BoxPlantas", FiltroEntero, kCifrasCuenta},
    {u"BoxPorcen", FiltroEntero},
    {u"BoxSot", FiltroEntero, kCifrasCuenta},
    {u"BoxTerrazas", FiltroEntero, kCifrasCuenta},
    {u"BoxVPP", FiltroEntero, kCifrasCuenta},
    {u"BoxFecha", FiltroEntero},
    {u"BoxCc", FiltroDecimal},
    {u"BoxConst", FiltroDecimal},
    {u"BoxGaraje", FiltroDecimal},
    {u"BoxK", FiltroDecimal, kCifrasK},
    {u"BoxProvisional", FiltroDecimal},
    {u"BoxRepercusion", FiltroDecimal},
    {u"BoxSobreRasante", FiltroDecimal},
    {u"BoxSolar", FiltroDecimal},
    {u"BoxTrastero", FiltroDecimal},
    {u"BoxUtil", FiltroDecimal},
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

void QuitarPuntosDeMiles(QString& pegado)
{
    const QString entera = pegado.trimmed().section(u',', 0, 0);
    const QStringList grupos = entera.split(u'.');
    const bool deTresEnTres =
        std::all_of(grupos.begin() + 1, grupos.end(), [](const QString& grupo) { return grupo.size() == 3; });
    if (grupos.size() > 1 && deTresEnTres && EsNumero(pegado))
        pegado.remove(u'.');
}

std::span<const ReglaTecla> ReglasTecla()
{
    return kReglasTecla;
}

void ConectarFiltros(Ventana& ventana, Sistema& sistema)
{
    for (const ReglaTecla& regla : kReglasTecla) {
        auto* campo = dynamic_cast<CampoTexto*>(ventana.buscar(regla.campo));
        if (!campo)
            continue;
        if (regla.longitud > 0)
            campo->setMaxLength(regla.longitud);
        QObject::connect(campo, &CampoTexto::KeyPress, &ventana,
                         [&sistema, filtro = regla.filtro](int& tecla) { filtro(tecla, sistema); });
        if (regla.filtro == FiltroDecimal)
            QObject::connect(campo, &CampoTexto::Paste, &ventana, QuitarPuntosDeMiles);
    }
}

} // namespace valmerix
