#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/tree.h"
#include "store/snapshot.h"

#include <optional>

namespace valmerix {

/// Where the ini file says the database is, the default place in the program folder otherwise.
QString RutaBaseDatosConfigurada(const Sistema& sistema);
/// The default place in the program folder.
QString RutaBaseDatosPorDefecto(const Sistema& sistema);

namespace ArbolCasos {

/// The stored cases of a kind, by its letter; nothing when the store fails.
std::optional<ConjuntoResultados> Busqueda(const EstadoCompartido& compartido, const QString& letra);

/// Gives a folder the leaves of these cases, in the order of their text.
void LlenarCarpeta(CarpetaArbol& carpeta, const ConjuntoResultados& casos);

/// Reads the path of the database and fills the tree: six folders, the children of each in the order of
/// their text. A leaf's key is "valuer#number#letter".
void CargarArbol(Arbol& arbol, EstadoCompartido& compartido, const Sistema& sistema);

} // namespace ArbolCasos

/// The parts of a leaf's key.
struct ClaveCaso
{
    QString NombreTasador;
    qint32 NumeroTasacion = 0;
    QString Tipo;
};

/// Nothing for a folder's key, which has no "#".
std::optional<ClaveCaso> PartirClave(const QString& clave);

} // namespace valmerix
