#include "shell/state_json.h"

#include <QJsonArray>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

template <class T>
struct Variable
{
    QStringView nombre;
    T EstadoCalculo::*miembro;
};

constexpr std::array kDobles = {
    Variable<double>{u"SuperficieUtil", &EstadoCalculo::SuperficieUtil},
    Variable<double>{u"SuperficieConstruida", &EstadoCalculo::SuperficieConstruida},
    Variable<double>{u"SuperficieSolar", &EstadoCalculo::SuperficieSolar},
    Variable<double>{u"SuperficieSobreRasante", &EstadoCalculo::SuperficieSobreRasante},
    Variable<double>{u"CoeficienteK", &EstadoCalculo::CoeficienteK},
    Variable<double>{u"CoefConstruidaUtil", &EstadoCalculo::CoefConstruidaUtil},
    Variable<double>{u"CoefDepreciacion", &EstadoCalculo::CoefDepreciacion},
};

constexpr std::array kEnteros = {
    Variable<qint16>{u"PlantasAltas", &EstadoCalculo::PlantasAltas},
    Variable<qint16>{u"ViviendasPorPlanta", &EstadoCalculo::ViviendasPorPlanta},
    Variable<qint16>{u"Antiguedad", &EstadoCalculo::Antiguedad},
};

constexpr std::array kImportes = {
    Variable<Currency>{u"RepercusionSolar", &EstadoCalculo::RepercusionSolar},
    Variable<Currency>{u"CosteConstruccion", &EstadoCalculo::CosteConstruccion},
    Variable<Currency>{u"ValorReposicion", &EstadoCalculo::ValorReposicion},
    Variable<Currency>{u"ValorUnitario", &EstadoCalculo::ValorUnitario},
    Variable<Currency>{u"ValorVivienda", &EstadoCalculo::ValorVivienda},
    Variable<Currency>{u"ValorTrastero", &EstadoCalculo::ValorTrastero},
    Variable<Currency>{u"ValorGaraje", &EstadoCalculo::ValorGaraje},
    Variable<Currency>{u"ValorOtroAnexo", &EstadoCalculo::ValorOtroAnexo},
    Variable<Currency>{u"ValorTotal", &EstadoCalculo::ValorTotal},
    Variable<Currency>{u"ValorUnitarioSuelo", &EstadoCalculo::ValorUnitarioSuelo},
};

struct VariableFrase
{
    QStringView nombre;
    QString FrasesInforme::*miembro;
};

constexpr std::array kFrases = {
    VariableFrase{u"FraseAntiguedad", &FrasesInforme::FraseAntiguedad},
    VariableFrase{u"FrasePlantas", &FrasesInforme::FrasePlantas},
    VariableFrase{u"FraseViviendasPlanta", &FrasesInforme::FraseViviendasPlanta},
    VariableFrase{u"FraseAscensores", &FrasesInforme::FraseAscensores},
    VariableFrase{u"FraseSotanos", &FrasesInforme::FraseSotanos},
    VariableFrase{u"FraseUrbanistica", &FrasesInforme::FraseUrbanistica},
};

QJsonArray FilasEnJson(const Rejilla& rejilla)
{
    QJsonArray filas;
    for (int fila = 0; fila < rejilla.Rows(); ++fila) {
        QJsonArray celdas;
        for (int columna = 0; columna < rejilla.Cols(); ++columna)
            celdas.append(rejilla.TextMatrix(fila, columna));
        filas.append(celdas);
    }
    return filas;
}

QJsonValue ControlEnJson(const Control& control)
{
    if (const auto* campo = dynamic_cast<const CampoTexto*>(&control))
        return campo->Text();
    if (const auto* casilla = dynamic_cast<const Casilla*>(&control))
        return casilla->Value();
    if (const auto* grupo = dynamic_cast<const GrupoOpciones*>(&control))
        return grupo->elegida() < 0 ? QJsonValue() : QJsonValue(grupo->elegida());
    if (const auto* rejilla = dynamic_cast<const Rejilla*>(&control))
        return FilasEnJson(*rejilla);
    return control.Caption();
}

} // namespace

QJsonObject ControlesEnJson(const Ventana& ventana)
{
    QJsonObject controles;
    for (const auto& control : ventana.controles())
        controles.insert(control->nombre(), ControlEnJson(*control));
    return controles;
}

QJsonObject EstadoEnJson(const EstadoCalculo& estado)
{
    QJsonObject objeto;
    for (const auto& variable : kDobles)
        objeto.insert(variable.nombre, estado.*variable.miembro);
    for (const auto& variable : kEnteros)
        objeto.insert(variable.nombre, estado.*variable.miembro);
    for (const auto& variable : kImportes)
        objeto.insert(variable.nombre, (estado.*variable.miembro).decimal());
    return objeto;
}

EstadoCalculo EstadoDeJson(const QJsonObject& objeto)
{
    EstadoCalculo estado;
    for (const auto& variable : kDobles)
        estado.*variable.miembro = objeto.value(variable.nombre).toDouble();
    for (const auto& variable : kEnteros)
        estado.*variable.miembro = static_cast<qint16>(objeto.value(variable.nombre).toInt());
    for (const auto& variable : kImportes) {
        estado.*variable.miembro =
            Currency::deDecimal(objeto.value(variable.nombre).toString()).value_or(Currency());
    }
    return estado;
}

FrasesInforme FrasesDeJson(const QJsonObject& objeto)
{
    FrasesInforme frases;
    for (const auto& variable : kFrases)
        frases.*variable.miembro = objeto.value(variable.nombre).toString();
    return frases;
}

QJsonObject FrasesEnJson(const FrasesInforme& frases)
{
    QJsonObject objeto;
    for (const auto& variable : kFrases)
        objeto.insert(variable.nombre, frases.*variable.miembro);
    return objeto;
}

} // namespace valmerix
