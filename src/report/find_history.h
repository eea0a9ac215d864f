#pragma once

#include <QByteArray>
#include <QStringList>

namespace valmerix {

inline constexpr int kBusquedasRecordadas = 8;

/// `Visor.ini`: records of 80 bytes; the first begins with the count (16 bits, little-endian), each of the
/// others holds one search in UTF-8, padded with blanks. Whatever is not such a file gives an empty list.
QStringList LeerRegistrosBusqueda(const QByteArray& fichero);
/// At most eight searches; what does not fit a record is cut between characters.
QByteArray RegistrosBusqueda(const QStringList& busquedas);

/// Empty for a missing, damaged or unreadable file.
QStringList CargarBusquedas(const QString& ruta);
/// Whole or not at all. Throws ErrorInforme.
void GuardarBusquedas(const QString& ruta, const QStringList& busquedas);

} // namespace valmerix
