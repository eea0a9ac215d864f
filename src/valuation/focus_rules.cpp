#include "valuation/focus_rules.h"

#include "common/number_pattern.h"
#include "common/number_reading.h"

#include <algorithm>
#include <cmath>

namespace valmerix {

namespace {

// No pattern: all the digits, no grouping.
constexpr QStringView kLlano;

template <auto Miembro>
QString DelEstado(const EstadoCalculo& estado, const QString& /*texto*/, QStringView patron)
{
    return Formatear(estado.*Miembro, patron);
}

QString DelTexto(const EstadoCalculo& /*estado*/, const QString& texto, QStringView patron)
{
    return Formatear(LeerNumero(texto), patron);
}

QString ComoMoneda(const EstadoCalculo& /*estado*/, const QString& texto, QStringView patron)
{
    return Formatear(LeerMoneda(texto), patron);
}

QString ComoEntero(const EstadoCalculo& /*estado*/, const QString& texto, QStringView patron)
{
    return Formatear(std::nearbyint(LeerNumero(texto)), patron);
}

using E = EstadoCalculo;
using D = AlDejar;

constexpr QStringView kMoneda; // the money pattern of the options

constexpr ReglaFoco kReglas[] = {
    {u"BoxCc", DelEstado<&E::CosteConstruccion>, 9, D::Recalcular, DelTexto, 11, u"###,###,##0"},
    {u"BoxRepercusion", DelEstado<&E::RepercusionSolar>, 8, D::Recalcular, DelTexto, 10, kMoneda},
    {u"BoxSobreRasante", DelEstado<&E::SuperficieSobreRasante>, 10, D::Recalcular, DelTexto, 12,
     u"#,###,##0.00"},
    {u"BoxSolar", DelEstado<&E::SuperficieSolar>, 9, D::Recalcular, DelEstado<&E::SuperficieSolar>, 11,
     u"##,##0.00", true},
    {u"BoxProvisional", ComoMoneda, 9, D::Provisional, DelTexto, 11, kMoneda},
    {u"BoxTrastero", ComoEntero, 7, D::Anexo, DelTexto, 9, kMoneda},
    {u"BoxGaraje", ComoEntero, 7, D::Anexo, DelTexto, 9, kMoneda},
    {u"Text9", ComoEntero, 7, D::Anexo, DelTexto, 9, kMoneda},
    {u"BoxDerecho", ComoEntero, 7, D::Nada, DelTexto, 9, u"#,###,##0"},
    {u"BoxHecho", ComoEntero, 7, D::Nada, DelTexto, 9, u"#,###,##0"},
    {u"BoxConst", DelEstado<&E::SuperficieConstruida>, 6, D::Superficie, DelEstado<&E::SuperficieConstruida>,
     0, u"#,##0.00"},
    {u"BoxUtil", DelEstado<&E::SuperficieUtil>, 6, D::Superficie, DelEstado<&E::SuperficieUtil>, 0,
     u"#,##0.00"},
};

const ReglaFoco* Regla(QStringView campo)
{
    const auto* const hallada = std::find_if(std::begin(kReglas), std::end(kReglas),
                                             [&](const ReglaFoco& r) { return r.campo == campo; });
    return hallada == std::end(kReglas) ? nullptr : hallada;
}

} // namespace

std::span<const ReglaFoco> ReglasDeFoco()
{
    return kReglas;
}

ReglasFoco::ReglasFoco(Ventana& ventana, CalculadoresEdificio& calculadores, EstadoCalculo& estado,
                       const EstadoCompartido& compartido)
    : ventana_(ventana)
    , calculadores_(calculadores)
    , estado_(estado)
    , compartido_(compartido)
{
    for (const auto& control : ventana.controles()) {
        auto* campo = dynamic_cast<CampoTexto*>(control.get());
        if (!campo)
            continue;
        if (const ReglaFoco* regla = Regla(campo->nombre()))
            Conectar(*regla, *campo);
        else
            QObject::connect(campo, &Control::GotFocus, &ventana, [campo] { campo->SeleccionarTodo(); });
    }
}

void ReglasFoco::Conectar(const ReglaFoco& regla, CampoTexto& campo)
{
    campo.setMaxLength(regla.longitudVisible > 0 ? regla.longitudVisible : regla.longitudCrudo);
    QObject::connect(&campo, &Control::GotFocus, &ventana_, [this, &regla, &campo] { Tomar(regla, campo); });
    QObject::connect(&campo, &Control::LostFocus, &ventana_, [this, &regla, &campo] { Dejar(regla, campo); });
    if (regla.alDejar == AlDejar::Superficie) {
        QObject::connect(&campo, &CampoTexto::Change, &ventana_,
                         [this, &campo] { TextoSuperficie_ = campo.Text(); });
    }
}

void ReglasFoco::Tomar(const ReglaFoco& regla, CampoTexto& campo)
{
    campo.setMaxLength(regla.longitudCrudo);
    if (!campo.Text().isEmpty())
        campo.setText(regla.crudo(estado_, campo.Text(), kLlano));
    campo.SeleccionarTodo();
    if (regla.alDejar == AlDejar::Superficie)
        TextoSuperficie_ = campo.Text();
}

void ReglasFoco::Dejar(QStringView campo)
{
    if (const ReglaFoco* regla = Regla(campo))
        Dejar(*regla, ventana_.campo(campo));
}

void ReglasFoco::Dejar(const ReglaFoco& regla, CampoTexto& campo)
{
    bool vacia = campo.Text().isEmpty();
    switch (regla.alDejar) {
    case AlDejar::Nada:
        break;
    case AlDejar::Recalcular:
        calculadores_.Recalcular();
        break;
    case AlDejar::Provisional:
        DejarProvisional(campo);
        break;
    case AlDejar::Anexo:
        DejarAnexo(campo);
        break;
    case AlDejar::Superficie:
        calculadores_.RASANTEADOR();
        calculadores_.Recalcular();
        vacia = TextoSuperficie_.isEmpty();
        break;
    }
    if (regla.longitudVisible > 0)
        campo.setMaxLength(regla.longitudVisible);
    if (vacia && !regla.vaciaTambien)
        return;
    const QStringView patron = regla.patron.isEmpty() ? compartido_.FormatoMoneda : regla.patron;
    campo.setText(regla.visible(estado_, campo.Text(), patron));
    if (regla.longitudVisible == 0)
        campo.setMaxLength(static_cast<int>(campo.Text().size()));
}

void ReglasFoco::DejarProvisional(const CampoTexto& campo)
{
    if (campo.Text().isEmpty()) {
        calculadores_.CALCULADOR();
    } else {
        estado_.ValorVivienda = LeerMoneda(campo.Text());
        calculadores_.DEDUCTOR();
    }
    calculadores_.CASILLAS();
}

void ReglasFoco::DejarAnexo(const CampoTexto& campo)
{
    calculadores_.Recalcular();
    const auto* const anexo = std::find_if(kAnexos.begin(), kAnexos.end(),
                                           [&](const Anexo& a) { return a.campo == campo.nombre(); });
    ventana_.casilla(anexo->casilla).setValue(campo.Text().isEmpty() ? 0 : 1);
}

} // namespace valmerix
