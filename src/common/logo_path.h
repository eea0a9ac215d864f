#pragma once

#include <QString>

namespace valmerix {

/// Path of the company's logo: "valmerix.mdb" in the database's path gives way to "Logo.bmp". The name is
/// taken literally: a database that is called otherwise gives back its own path, which is no picture.
inline QString RutaLogo(QString rutaBaseDatos)
{
    return rutaBaseDatos.replace(QStringLiteral("valmerix.mdb"), QStringLiteral("Logo.bmp"));
}

} // namespace valmerix
