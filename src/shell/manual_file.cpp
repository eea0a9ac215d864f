// The manual's file: a small database of its own, so that a damaged one is told and never read past its end.

#include "common/ports.h"
#include "shell/manual.h"

#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeQuien = 0x564D584D; ///< application_id: no other program writes it
constexpr int kVersion = 1;
constexpr QChar kEntreVentanas = u' ';

constexpr char kEsquema[] =
    "CREATE TABLE Paginas (Orden INTEGER PRIMARY KEY, Nombre TEXT NOT NULL UNIQUE, Titulo TEXT NOT NULL,"
    " Html TEXT NOT NULL, Ventanas TEXT NOT NULL);"
    "CREATE TABLE Secciones (Pagina INTEGER NOT NULL, Titulo TEXT NOT NULL, Ancla TEXT NOT NULL,"
    " Texto TEXT NOT NULL);"
    "CREATE TABLE Imagenes (Nombre TEXT PRIMARY KEY, Datos BLOB NOT NULL);";

QString Texto(const SQLite::Column& columna)
{
    return QString::fromUtf8(columna.getText(), columna.getBytes());
}

bool EsDeValmerix(SQLite::Database& base)
{
    return base.execAndGet("PRAGMA application_id").getInt() == kDeQuien &&
           base.execAndGet("PRAGMA user_version").getInt() == kVersion;
}

std::vector<PaginaManual> LeerPaginas(SQLite::Database& base)
{
    std::vector<PaginaManual> paginas;
    SQLite::Statement fila(base, "SELECT Nombre, Titulo, Html, Ventanas FROM Paginas ORDER BY Orden");
    while (fila.executeStep()) {
        paginas.push_back({Texto(fila.getColumn(0)),
                           Texto(fila.getColumn(1)),
                           Texto(fila.getColumn(2)),
                           Texto(fila.getColumn(3)).split(kEntreVentanas, Qt::SkipEmptyParts),
                           {}});
    }
    SQLite::Statement parte(base, "SELECT Pagina, Titulo, Ancla, Texto FROM Secciones ORDER BY rowid");
    while (parte.executeStep()) {
        const qint64 pagina = parte.getColumn(0).getInt64();
        if (pagina < 0 || pagina >= static_cast<qint64>(paginas.size()))
            throw SQLite::Exception("section of no page");
        paginas[static_cast<size_t>(pagina)].secciones.push_back(
            {Texto(parte.getColumn(1)), Texto(parte.getColumn(2)), Texto(parte.getColumn(3))});
    }
    return paginas;
}

QMap<QString, QByteArray> LeerImagenes(SQLite::Database& base)
{
    QMap<QString, QByteArray> imagenes;
    SQLite::Statement fila(base, "SELECT Nombre, Datos FROM Imagenes");
    while (fila.executeStep()) {
        const SQLite::Column datos = fila.getColumn(1);
        imagenes.insert(Texto(fila.getColumn(0)),
                        QByteArray(static_cast<const char*>(datos.getBlob()), datos.getBytes()));
    }
    return imagenes;
}

void Poner(SQLite::Statement& sentencia, const QStringList& textos, int desde)
{
    for (qsizetype i = 0; i < textos.size(); ++i)
        sentencia.bind(desde + static_cast<int>(i), textos.at(i).toStdString());
    sentencia.exec();
    sentencia.reset();
}

void EscribirPaginas(SQLite::Database& base, const std::vector<PaginaManual>& paginas)
{
    SQLite::Statement fila(base, "INSERT INTO Paginas VALUES (?, ?, ?, ?, ?)");
    SQLite::Statement parte(base, "INSERT INTO Secciones VALUES (?, ?, ?, ?)");
    for (size_t i = 0; i < paginas.size(); ++i) {
        const PaginaManual& p = paginas[i];
        fila.bind(1, static_cast<int64_t>(i));
        Poner(fila, {p.nombre, p.titulo, p.html, p.ventanas.join(kEntreVentanas)}, 2);
        for (const SeccionManual& s : p.secciones) {
            parte.bind(1, static_cast<int64_t>(i));
            Poner(parte, {s.titulo, s.ancla, s.texto}, 2);
        }
    }
}

} // namespace

QString RutaManual(const Sistema& sistema)
{
    const QString nombre = u"/Valmerix.chm"_s;
    const QString propio = sistema.carpetaPrograma() + nombre;
    const QString instalado = sistema.carpetaInstalacion() + nombre;
    return !QFileInfo::exists(propio) && QFileInfo::exists(instalado) ? instalado : propio;
}

std::shared_ptr<const Manual> LeerManual(const QString& ruta)
{
    if (!QFileInfo(ruta).isFile())
        throw ErrorManual(u"No se encuentra el manual «%1»."_s.arg(ruta));
    try {
        SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READONLY);
        if (!EsDeValmerix(base))
            throw ErrorManual(u"El fichero «%1» no es el manual de esta versión de Valmerix."_s.arg(ruta));
        if (base.execAndGet("PRAGMA quick_check(1)").getString() != "ok")
            throw SQLite::Exception("damaged");
        auto manual = std::make_shared<const Manual>(LeerPaginas(base), LeerImagenes(base));
        if (manual->paginas().empty())
            throw ErrorManual(u"El manual «%1» no tiene ninguna página."_s.arg(ruta));
        return manual;
    } catch (const SQLite::Exception&) {
        throw ErrorManual(u"El manual «%1» está dañado y no se puede leer."_s.arg(ruta));
    }
}

void EscribirManual(const QString& ruta, const Manual& manual)
{
    QFile::remove(ruta);
    try {
        SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        base.exec("PRAGMA page_size = 4096");
        base.exec("PRAGMA application_id = " + std::to_string(kDeQuien));
        base.exec("PRAGMA user_version = " + std::to_string(kVersion));
        SQLite::Transaction todo(base);
        base.exec(kEsquema);
        EscribirPaginas(base, manual.paginas());
        SQLite::Statement fila(base, "INSERT INTO Imagenes VALUES (?, ?)");
        for (const auto& [nombre, datos] : manual.imagenes().asKeyValueRange()) {
            fila.bind(1, nombre.toStdString());
            fila.bind(2, datos.constData(), static_cast<int>(datos.size()));
            fila.exec();
            fila.reset();
        }
        todo.commit();
    } catch (const SQLite::Exception& fallo) {
        throw ErrorManual(u"No se puede escribir «%1»: %2"_s.arg(ruta, QString::fromUtf8(fallo.what())));
    }
}

} // namespace valmerix
