#pragma once

#include "report/report_case.h"

#include <span>

namespace valmerix {

/// The ready sentences of the enumerated groups.
struct FrasesEnumeradas
{
    QString FraseInfraestructuras;
    QString FraseEquipNecesarios;
    QString FraseEquipLudicos;
    QString FraseComunicaciones;
    QString FraseServiciosComunes;
    QString FraseServiciosIndividuales; ///< empty for the kinds that have none
    QString FrasePavimentos;
    QString FraseDistribucion;
    QString FraseDocumentacion;
};

/// One item of a group and what the report says of it.
struct Fragmento
{
    QStringView casilla;
    QStringView texto;      ///< a leading blank is printed on top of the rule's own
    QStringView campo = {}; ///< the text is this field's, in lower case; it is never joined with "e"
};

enum class GeneroEstancia { Masculino, Femenino };

/// An item of the rooms that is counted: its words come before the noun.
struct EstanciaContada
{
    QStringView casilla;
    QStringView campo; ///< the count
    QStringView singular;
    QStringView plural;
    GeneroEstancia genero;
    QStringView destino = {}; ///< this field's text, in lower case, follows the noun
};

/// The opening of the sentence for none, one, or more ticked boxes.
struct Arranque
{
    QStringView ninguno, uno, varios;
};

struct Grupo
{
    QString FrasesEnumeradas::*frase;
    Arranque arranque;
    std::span<const Fragmento> fragmentos;
    std::span<const EstanciaContada> contadas = {}; ///< behind the fragments
};

/// Composes the sentences of `grupos`, in order. `TextoLetras` is the running text of the word routine: a
/// ticked room with an empty count repeats it.
FrasesEnumeradas ComponerEnumeraciones(const CasoInforme& caso, std::span<const Grupo> grupos,
                                       QString TextoLetras);

} // namespace valmerix
