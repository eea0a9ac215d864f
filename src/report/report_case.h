#pragma once

#include "common/shared_state.h"
#include "controls/window.h"
#include "store/program_options.h"
#include "valuation/calculation_state.h"

namespace valmerix {

/// The case that a report is drafted from: its window, whose fields are read by name, and the state beside
/// it. All of it outlives the drafting.
struct CasoInforme
{
    Ventana& ventana; ///< drafting leaves the valuer's degree in the Tag of `cboNombreTasador`
    QString tipo;     ///< kind word: "Piso", "Apto", "Casa"
    const EstadoCalculo& calculo;
    const FrasesInforme& frases;
    const OpcionesPrograma& opciones;
    const EstadoCompartido& compartido;

    bool apartado(int i) const { return Activa(u"chkApartados", i); }
    bool punto(int i) const { return Activa(u"chkPuntos", i); }
    const QString& texto(QStringView nombre) const { return ventana.texto(nombre); }
    QString minusculas(QStringView nombre) const { return texto(nombre).toLower(); }

private:
    /// A box that the kind does not have is off.
    bool Activa(QStringView grupo, int i) const
    {
        const auto* casilla = dynamic_cast<const Casilla*>(ventana.buscar(Ventana::Indice(grupo, i)));
        return casilla && casilla->Value() == 1;
    }
};

} // namespace valmerix
