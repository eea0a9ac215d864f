#pragma once

#include "report/report_case.h"

#include <span>

namespace valmerix {

/// What the report says for one text of a list.
struct FilaFrase
{
    QStringView texto; ///< as the list shows it
    QStringView frase; ///< from behind the opening to the end
};

/// The sentence of a list: an opening, then what its text says; a text of her own goes in lower case.
struct FrasesLista
{
    QStringView apertura;
    std::span<const FilaFrase> filas;
    QStringView cierre = u".";     ///< ends a text that is not among the rows
    QStringView aperturaOtro = {}; ///< stands before such a text, behind the opening
};

QString FraseDeLista(const FrasesLista& frases, const QString& texto);

/// What the report says when an option is set: fixed words, then perhaps a field.
struct FraseOpcion
{
    QStringView frase;
    QStringView campo = {};
    bool minusculas = true; ///< of the field
    QStringView cierre = {};
};

/// Empty when no option of the group is set.
QString FraseDeOpcion(const CasoInforme& caso, QStringView grupo, std::span<const FraseOpcion> frases);

} // namespace valmerix
