#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace valmerix {

/// Lower case, accents off: "Órgano de Güímar" gives "organo de guimar". The ñ is a letter of its own and
/// stays; ç becomes c, ü becomes u. Accents written as combining marks go as well.
QString Plegar(QStringView texto);
/// The same over UTF-8, appended to `plegado`; damaged bytes stay as they are.
void PlegarUtf8(std::string_view texto, std::string& plegado);

/// Spanish order, below, equal or above 0: letters blind to case and accents, ñ between n and o, digits and
/// signs before letters; ties by accent (plain first), then by case (small first). Total: 0 only for equal
/// texts.
int CompararEspañol(QStringView a, QStringView b);
int CompararEspañol(std::string_view utf8A, std::string_view utf8B);

/// Appends the first level of CompararEspañol as bytes: they sort as the texts do, and none of them is zero.
void AñadirPesos(QStringView texto, std::string& claves);

} // namespace valmerix
