#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace valmerix {

/// What a command of poppler says; a command that fails is a failure of the test.
QByteArray Poppler(const QString& orden, const QStringList& argumentos);

/// Text of one page (from 1), blanks and line breaks collapsed into single blanks.
QString TextoPdf(const QString& ruta, int pagina);
int PaginasPdf(const QString& ruta);
/// Runs of blanks and line breaks as one blank, none at the ends.
QString Allanado(const QString& texto);

} // namespace valmerix
