#pragma once

#include <QFileInfo>
#include <QString>

namespace valmerix {

/// Path of the company's logo as the settings keep it: "valmerix.mdb" in the database's path gives way to
/// "Logo.bmp". The name is taken literally: a database that is called otherwise gives back its own path,
/// which is no picture.
inline QString RutaLogo(QString rutaBaseDatos)
{
    return rutaBaseDatos.replace(QStringLiteral("valmerix.mdb"), QStringLiteral("Logo.bmp"));
}

/// Path of the logo that the letterhead prints: beside the database, whatever the database is called.
inline QString LogoJuntoA(const QString& rutaBaseDatos)
{
    return QFileInfo(rutaBaseDatos).path() + QStringLiteral("/Logo.bmp");
}

} // namespace valmerix
