#include "store/engine_message.h"

#include <sqlite3.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct FraseDeFallo
{
    int codigo;
    QStringView frase;
};

constexpr FraseDeFallo kPorCodigo[] = {
    {SQLITE_READONLY, u"La base de datos está protegida contra escritura"},
    {SQLITE_FULL, u"No queda sitio en el disco para guardar los datos"},
    {SQLITE_CORRUPT, u"La base de datos está dañada"},
    {SQLITE_NOTADB, u"El fichero no es una base de datos"},
    {SQLITE_BUSY, u"Otro programa tiene ocupada la base de datos"},
    {SQLITE_LOCKED, u"Otro programa tiene ocupada la base de datos"},
    {SQLITE_CANTOPEN, u"No se puede abrir la base de datos o escribir en su carpeta"},
    {SQLITE_IOERR, u"El disco ha fallado al leer o escribir la base de datos"},
    {SQLITE_NOMEM, u"Falta memoria para leer la base de datos"},
    {SQLITE_CONSTRAINT, u"Ya hay una fila con la misma clave"},
};

struct FraseDeTexto
{
    QStringView comienzo;
    QStringView frase;
};

constexpr FraseDeTexto kPorTexto[] = {
    {u"no such table: ", u"En la base de datos falta la tabla «%1»"},
    {u"no such column: ", u"En la base de datos falta el campo «%1»"},
};

QString Frase(int codigo, const QString& mensaje)
{
    for (const FraseDeFallo& fila : kPorCodigo) {
        if (fila.codigo == (codigo & 0xFF))
            return fila.frase.toString();
    }
    for (const FraseDeTexto& fila : kPorTexto) {
        if (mensaje.startsWith(fila.comienzo))
            return fila.frase.toString().arg(mensaje.mid(fila.comienzo.size()));
    }
    if (mensaje.endsWith(u"syntax error"))
        return u"La base de datos no entiende la sentencia"_s;
    return {};
}

} // namespace

QString MensajeDelMotor(int codigo, const QString& mensaje)
{
    const QString frase = Frase(codigo, mensaje);
    return frase.isEmpty() ? mensaje : u"%1 (%2)."_s.arg(frase, mensaje);
}

} // namespace valmerix
