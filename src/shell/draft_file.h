#pragma once

#include "valuation/calculation_state.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>

namespace valmerix {

/// A case in hand as it stood at a moment: all that is needed to open it again so.
struct Borrador
{
    QString fichero; ///< where it was read from; not stored
    QString letra;   ///< of the kind
    qint32 NumeroTasacion = 0;
    QDateTime cuando;
    QJsonObject controles; ///< of the window, with their content
    QJsonObject presentacion;
    QJsonObject calculo;
    QJsonObject frases;

    /// A text field's content, empty when the window has no such field.
    QString texto(QStringView campo) const { return controles.value(campo).toString(); }
};

namespace FicheroBorrador {

/// The folder of the drafts of a database, beside it.
QString carpeta(const QString& rutaBaseDatos);
/// The names of the drafts that lie in a folder, whole or not.
QStringList EnCarpeta(const QString& carpeta);
/// A name that no draft of the folder has.
QString NombreLibre(const QString& carpeta);

/// A line that names the format and its version, a line with the checksum of the rest, the rest.
QByteArray Contenido(const Borrador& borrador);
/// Nothing for a file that is damaged, cut short, of another version, or no draft at all.
std::optional<Borrador> Leer(const QString& fichero);
/// Whole or not at all; makes the folder. Gives what has failed, in words; empty when nothing has.
QString Escribir(const QString& fichero, const QByteArray& contenido);

/// How many drafts of a folder are kept.
inline constexpr int kGuardados = 20;
/// Takes drafts off a folder, down to `kGuardados`: damaged ones first, then the oldest, never the one in
/// use.
void RetirarViejos(const QString& carpeta, const QString& enUso);

/// The newest complete one of a folder.
std::optional<Borrador> MasReciente(const QString& carpeta);

} // namespace FicheroBorrador

} // namespace valmerix
