#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

namespace valmerix {

/// The UTF-8 text of one SELECT, its ORDER BY turned to Spanish order. Throws ErrorAlmacen for any text
/// that is not exactly one SELECT: other statements, WITH, comments, semicolons, open quotes.
std::string ComprobarConsulta(const QString& sql);
/// The names in the ORDER BY of such a SELECT when it holds nothing but bare names; none otherwise.
QStringList NombresDelOrden(const QString& sql);

/// The UTF-8 texts of one INSERT INTO, UPDATE or DELETE FROM, or of the savers' pair: DELETE FROM, line
/// break, INSERT INTO the same table. Throws ErrorAlmacen for any other text.
std::vector<std::string> ComprobarEscritura(const QString& sql);

} // namespace valmerix
