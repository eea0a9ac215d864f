#pragma once

#include <QIODevice>
#include <QStringList>

namespace valmerix {

/// The headless drafting tool: BASE TIPO "VALUER" NUMBER prints the report's text (UTF-8, CR LF) on `salida`;
/// `--rtf FILE` writes the marked-up report, `--estado` prints one JSON object with the loaded form, the
/// calculation state, the ready sentences and the bold texts. Messages in Spanish on `errores`.
/// Returns 0; 1 usage; 2 file missing or no database of ours; 3 no such case; 4 any other failure.
int EjecutarInforme(const QStringList& argumentos, QIODevice& salida, QIODevice& errores);

} // namespace valmerix
