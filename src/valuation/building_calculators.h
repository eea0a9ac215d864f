#pragma once

#include "common/shared_state.h"
#include "controls/window.h"
#include "valuation/calculation_state.h"
#include "valuation/kind_strategies.h"

#include <array>

namespace valmerix {

/// An annex: its check box, the field of its estimated value, its place in the calculation state.
struct Anexo
{
    QStringView casilla;
    QStringView campo;
    Currency EstadoCalculo::*valor = nullptr;
};

inline constexpr std::array<Anexo, 3> kAnexos{{
    {u"CheckTrast", u"BoxTrastero", &EstadoCalculo::ValorTrastero},
    {u"CheckGrj", u"BoxGaraje", &EstadoCalculo::ValorGaraje},
    {u"CheckOtra2", u"Text9", &EstadoCalculo::ValorOtroAnexo},
}};

/// The fields that show the results.
inline constexpr std::array<QStringView, 5> kCamposResultado{
    u"BoxReposicion", u"BoxVr", u"BoxVivienda", u"BoxAnexos", u"BoxTotal",
};

/// The arithmetic of a building over the fields of its window and the calculation state. An empty field
/// counts as 0, an empty K as 1. All throw ErrorDesbordamiento when a figure does not fit; what was worked
/// out until then stays in the state, no field is lost.
class CalculadoresEdificio
{
public:
    /// Keeps the references; all outlive it.
    CalculadoresEdificio(const Ventana& ventana, EstadoCalculo& estado, const EstadoCompartido& compartido,
                         const EstrategiasTipo& estrategias);

    /// Completes the pair of useful and built surface.
    void Superficial();
    /// Forward: from land, cost, age and K to the value. Writes no field.
    void CALCULADOR();
    /// Backward: from `ValorVivienda` to the land charge. Writes no field.
    void DEDUCTOR();
    /// Shows the results.
    void CASILLAS();
    /// Round figures for a deduced value; nothing while `BoxProvisional` is empty.
    void REDONDEADOR();
    /// Proposes the surface above grade.
    void RASANTEADOR();
    /// DEDUCTOR or CALCULADOR, as `BoxProvisional` says, then CASILLAS.
    void Recalcular();

    void PintarResultadosPendientes() { PintarResultados(Aspecto::Pendiente); }
    void PintarResultados(Aspecto aspecto);

private:
    bool conSuperficieUtil() const { return Sup_.Value(0); }
    const QString& formatoMoneda() const { return compartido_.FormatoMoneda; }
    Currency Redondear(Currency valor) const;

    void LeerSolar();
    void LeerDepreciacion();
    void LeerCoeficienteK();
    void LeerAnexos();
    void RelacionarSuperficies();
    Currency CosteDepreciado() const;
    Currency Reposicion() const;
    Currency RepercusionDeducida();
    Currency SueloUnitario() const;
    double superficieValorada() const;
    Currency sumaAnexos() const;

    struct AnexoEnVentana
    {
        const Casilla* casilla = nullptr;
        const CampoTexto* campo = nullptr;
        Currency EstadoCalculo::*valor = nullptr;
    };

    EstadoCalculo& estado_;
    const EstadoCompartido& compartido_;
    const EstrategiasTipo& estrategias_;
    const GrupoOpciones& Sup_;
    const CampoTexto& BoxUtil_;
    const CampoTexto& BoxConst_;
    const CampoTexto& BoxPlantas_;
    const CampoTexto* BoxVPP_; // a house has none
    const CampoTexto& BoxAntig_;
    const CampoTexto& BoxK_;
    const CampoTexto& BoxProvisional_;
    const CampoTexto& BoxSolar_;
    const CampoTexto& BoxRepercusion_;
    CampoTexto& BoxSobreRasante_;
    const CampoTexto& BoxCc_;
    std::array<CampoTexto*, kCamposResultado.size()> resultados_{};
    std::array<AnexoEnVentana, kAnexos.size()> anexos_{};
};

} // namespace valmerix
