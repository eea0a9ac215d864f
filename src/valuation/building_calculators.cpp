#include "valuation/building_calculators.h"

#include "common/number_pattern.h"
#include "common/number_reading.h"

namespace valmerix {

namespace {

constexpr QStringView kDosDecimales = u"###,##0.00";

/// Built over useful surface. Small dwellings lose a larger share to walls and common parts.
constexpr double kFactorGrande = 1.15;
constexpr double kFactorPequeño = 1.25;

// The two middle formulas are not inverse to each other; they have always been these.
double FactorDeConstruida(double c)
{
    if (c >= 135)
        return kFactorGrande;
    if (c <= 75)
        return kFactorPequeño;
    return RedondeoFormato(1.15 + 8 / c - (c - 75) / 15 * 0.016, u"#.##");
}

double FactorDeUtil(double u)
{
    if (u >= 120)
        return kFactorGrande;
    if (u <= 60)
        return kFactorPequeño;
    return RedondeoFormato(1.15 + 8 / (1.15 * u + 8) - (u - 60) / 10 * 0.016, u"#.##");
}

bool Falta(const QString& texto)
{
    return texto.isEmpty() || texto == u'0';
}

Currency Producto(Currency importe, double factor)
{
    return Currency::de(importe.aDouble() * factor);
}

} // namespace

CalculadoresEdificio::CalculadoresEdificio(const Ventana& ventana, EstadoCalculo& estado,
                                           const EstadoCompartido& compartido,
                                           const EstrategiasTipo& estrategias)
    : estado_(estado)
    , compartido_(compartido)
    , estrategias_(estrategias)
    , Sup_(ventana.opciones(u"Sup"))
    , BoxUtil_(ventana.campo(u"BoxUtil"))
    , BoxConst_(ventana.campo(u"BoxConst"))
    , BoxPlantas_(ventana.campo(u"BoxPlantas"))
    , BoxVPP_(dynamic_cast<const CampoTexto*>(ventana.buscar(u"BoxVPP")))
    , BoxAntig_(ventana.campo(u"BoxAntig"))
    , BoxK_(ventana.campo(u"BoxK"))
    , BoxProvisional_(ventana.campo(u"BoxProvisional"))
    , BoxSolar_(ventana.campo(u"BoxSolar"))
    , BoxRepercusion_(ventana.campo(u"BoxRepercusion"))
    , BoxSobreRasante_(ventana.campo(u"BoxSobreRasante"))
    , BoxCc_(ventana.campo(u"BoxCc"))
{
    for (size_t i = 0; i < resultados_.size(); ++i)
        resultados_.at(i) = &ventana.campo(kCamposResultado.at(i));
    for (size_t i = 0; i < anexos_.size(); ++i) {
        const Anexo& anexo = kAnexos.at(i);
        anexos_.at(i) = {&ventana.casilla(anexo.casilla), &ventana.campo(anexo.campo), anexo.valor};
    }
}

Currency CalculadoresEdificio::Redondear(Currency valor) const
{
    return RedondeoFormato(valor, formatoMoneda());
}

double CalculadoresEdificio::superficieValorada() const
{
    return conSuperficieUtil() ? estado_.SuperficieUtil : estado_.SuperficieConstruida;
}

Currency CalculadoresEdificio::sumaAnexos() const
{
    return estado_.ValorTrastero + estado_.ValorGaraje + estado_.ValorOtroAnexo;
}

void CalculadoresEdificio::Superficial()
{
    double& construida = estado_.SuperficieConstruida;
    double& util = estado_.SuperficieUtil;
    const bool faltaConstruida = Falta(BoxConst_.Text());
    const bool faltaUtil = Falta(BoxUtil_.Text());
    construida = faltaConstruida ? 0 : LeerNumero(BoxConst_.Text());
    util = faltaUtil ? 0 : LeerNumero(BoxUtil_.Text());
    if (faltaUtil && !faltaConstruida)
        util = RedondeoFormato(construida / FactorDeConstruida(construida), u"##0.00");
    if (faltaConstruida && !faltaUtil)
        construida = RedondeoFormato(util * FactorDeUtil(util), u"##0.00");
}

void CalculadoresEdificio::LeerSolar()
{
    estado_.SuperficieSolar =
        BoxSolar_.Text().isEmpty() ? estrategias_.SolarEstimado(estado_) : LeerNumero(BoxSolar_.Text());
}

// With an age the fraction is what the change of the age has set.
void CalculadoresEdificio::LeerDepreciacion()
{
    if (BoxAntig_.Text().isEmpty())
        estado_.CoefDepreciacion = 0;
}

void CalculadoresEdificio::LeerCoeficienteK()
{
    estado_.CoeficienteK = BoxK_.Text().isEmpty() ? 1.0 : LeerNumero(BoxK_.Text());
}

// An annex that is not ticked keeps its value: its box has set it to 0.
void CalculadoresEdificio::LeerAnexos()
{
    for (const AnexoEnVentana& anexo : anexos_) {
        if (anexo.casilla->Value() == 1)
            estado_.*anexo.valor = LeerMoneda(anexo.campo->Text());
    }
}

void CalculadoresEdificio::RelacionarSuperficies()
{
    const EstadoCalculo& e = estado_;
    estado_.CoefConstruidaUtil =
        e.SuperficieUtil == 0 ? 0 : RedondeoFormato(e.SuperficieConstruida / e.SuperficieUtil, kDosDecimales);
}

Currency CalculadoresEdificio::CosteDepreciado() const
{
    return Producto(estado_.CosteConstruccion, 1.0 - estado_.CoefDepreciacion);
}

Currency CalculadoresEdificio::Reposicion() const
{
    const Currency suma = estado_.RepercusionSolar + CosteDepreciado();
    return conSuperficieUtil() ? Producto(suma, estado_.CoefConstruidaUtil) : suma;
}

Currency CalculadoresEdificio::SueloUnitario() const
{
    const EstadoCalculo& e = estado_;
    if (e.SuperficieSolar == 0)
        return {};
    return Currency::de(e.RepercusionSolar.aDouble() * e.SuperficieSobreRasante / e.SuperficieSolar);
}

void CalculadoresEdificio::CALCULADOR()
{
    EstadoCalculo& e = estado_;
    Superficial();
    LeerSolar();
    e.RepercusionSolar = LeerMoneda(BoxRepercusion_.Text());
    e.SuperficieSobreRasante = LeerNumero(BoxSobreRasante_.Text());
    e.ValorUnitarioSuelo = SueloUnitario();
    e.CosteConstruccion = LeerMoneda(BoxCc_.Text());
    LeerDepreciacion();
    if (conSuperficieUtil())
        RelacionarSuperficies();
    e.ValorReposicion = Reposicion();
    LeerCoeficienteK();
    e.ValorUnitario = Producto(e.ValorReposicion, e.CoeficienteK);
    e.ValorVivienda = Producto(e.ValorUnitario, superficieValorada());
    LeerAnexos();
    e.ValorTotal = e.ValorVivienda + sumaAnexos();
}

// Below the depreciated cost the land charge is negative, and stays so.
Currency CalculadoresEdificio::RepercusionDeducida()
{
    if (!conSuperficieUtil())
        return Redondear(estado_.ValorReposicion - CosteDepreciado());
    RelacionarSuperficies();
    const double relacion = estado_.CoefConstruidaUtil;
    if (relacion == 0)
        return {};
    const double coste = estado_.CosteConstruccion.aDouble() * (1.0 - estado_.CoefDepreciacion) * relacion;
    const Currency suelo = estado_.ValorReposicion - Currency::de(coste);
    return Redondear(Currency::de(suelo.aDouble() / relacion));
}

void CalculadoresEdificio::DEDUCTOR()
{
    EstadoCalculo& e = estado_;
    Superficial();
    const double superficie = superficieValorada();
    const Currency unitario =
        superficie <= 0 ? Currency() : Currency::de(e.ValorVivienda.aDouble() / superficie);
    e.ValorUnitario = Redondear(unitario);
    LeerCoeficienteK();
    const Currency reposicion =
        e.CoeficienteK == 0 ? Currency() : Currency::de(e.ValorUnitario.aDouble() / e.CoeficienteK);
    e.ValorReposicion = Redondear(reposicion);
    LeerDepreciacion();
    e.CosteConstruccion = Currency::de(RedondeoFormato(LeerNumero(BoxCc_.Text()), u"###,###,##0"));
    e.RepercusionSolar = RepercusionDeducida();
    e.SuperficieSobreRasante = LeerNumero(BoxSobreRasante_.Text());
    LeerSolar();
    e.ValorUnitarioSuelo = Redondear(SueloUnitario());
    LeerAnexos();
    for (const AnexoEnVentana& anexo : anexos_) {
        if (anexo.casilla->Value() == 1)
            e.*anexo.valor = Redondear(e.*anexo.valor);
    }
    e.ValorTotal = Redondear(e.ValorVivienda + sumaAnexos());
}

void CalculadoresEdificio::CASILLAS()
{
    const EstadoCalculo& e = estado_;
    const auto mostrar = [&](size_t campo, Currency valor) {
        resultados_.at(campo)->setText(Formatear(valor, formatoMoneda()));
    };
    if (!e.ValorReposicion.esCero())
        mostrar(0, e.ValorReposicion);
    if (BoxK_.Text().isEmpty())
        return;
    mostrar(1, e.ValorUnitario);
    mostrar(2, e.ValorVivienda);
    mostrar(3, sumaAnexos());
    mostrar(4, e.ValorTotal);
}

void CalculadoresEdificio::REDONDEADOR()
{
    if (BoxProvisional_.Text().isEmpty())
        return;
    EstadoCalculo& e = estado_;
    DEDUCTOR();
    // The second comma groups; there is no decimal mark, so that tens are what is left.
    const double decenas = RedondeoFormato(e.CosteConstruccion.aDouble() / 10, u"###,##0,00");
    e.CosteConstruccion = Currency::de(decenas * 10);
    e.RepercusionSolar = RedondeoFormato(e.RepercusionSolar, u"###,##0");
    e.ValorUnitarioSuelo = RedondeoFormato(e.ValorUnitarioSuelo, u"###,##0");
    e.ValorReposicion = Redondear(Reposicion());
    e.ValorUnitario = Redondear(Producto(e.ValorReposicion, e.CoeficienteK));
    e.ValorVivienda = Redondear(Producto(e.ValorUnitario, superficieValorada()));
    e.ValorTotal = Redondear(e.ValorVivienda + sumaAnexos());
    CASILLAS();
}

void CalculadoresEdificio::RASANTEADOR()
{
    estado_.PlantasAltas = static_cast<qint16>(LeerEntero(BoxPlantas_.Text()));
    if (BoxVPP_)
        estado_.ViviendasPorPlanta = static_cast<qint16>(LeerEntero(BoxVPP_->Text()));
    Superficial();
    BoxSobreRasante_.setText(Formatear(estrategias_.SobreRasante(estado_), u"###,###,##0.00"));
}

void CalculadoresEdificio::Recalcular()
{
    if (BoxProvisional_.Text().isEmpty())
        CALCULADOR();
    else
        DEDUCTOR();
    CASILLAS();
}

void CalculadoresEdificio::PintarResultados(Aspecto aspecto)
{
    for (CampoTexto* campo : resultados_)
        campo->setAspecto(aspecto);
}

} // namespace valmerix
