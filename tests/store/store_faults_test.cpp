#include "store/case_loading.h"
#include "store/case_saving.h"
#include "support/child_process.h"
#include "support/fake_open_case.h"
#include "support/fake_ports.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <SQLiteCpp/Database.h>
#include <csignal>
#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace valmerix {

using AccesoDatos::clsConsulta;

namespace {

constexpr QStringView kProtegida = u"La base de datos está protegida contra escritura (";
// A limit on the size of files is no full disk to the engine: the write itself fails.
constexpr QStringView kDiscoFalla = u"El disco ha fallado al leer o escribir la base de datos (";

class StoreFaults : public testing::Test
{
protected:
    AlmacenDePrueba almacen;
    FakeDialogos dialogos;
    FakeCasoAbierto piso{u"Piso"_s, {u"Ana"_s}};

    void SetUp() override
    {
        almacen.AltaDeTasador(u"Ana"_s, 41);
        piso.Elegir(u"Ana"_s);
        piso.Escribir(u"BoxFecha", u"20/11/2026"_s);
        piso.Escribir(u"BoxSit", u"Calle Mayor, 3"_s);
    }
    const QString& ruta() const { return almacen.compartido.RutaBaseDatos; }
    bool Salvar() { return SalvaVivienda(piso, almacen.compartido, dialogos); }
    void SalvarYCambiar()
    {
        ASSERT_TRUE(Salvar());
        dialogos.respuestas = {true};
        piso.Escribir(u"BoxSit", u"Calle Menor, 4"_s);
    }
    void ComprobarQueEstaComoAntes()
    {
        SQLite::Database base(ruta().toStdString(), SQLite::OPEN_READWRITE);
        EXPECT_EQ(base.execAndGet("PRAGMA integrity_check").getString(), "ok");
        EXPECT_EQ(base.execAndGet("SELECT Situacion FROM Viviendas WHERE NumeroTasacion = 42").getString(),
                  "Calle Mayor, 3");
        EXPECT_EQ(base.execAndGet("SELECT Situacion FROM Testigos WHERE Tasacion = -42").getString(),
                  "Calle Mayor, 3");
        EXPECT_EQ(base.execAndGet("SELECT COUNT(*) FROM Viviendas").getInt(), 1);
        EXPECT_EQ(base.execAndGet("SELECT Contador FROM Tasadores").getInt(), 42);
    }
    QString FalloAlAbrir(const QString& fichero) const
    {
        return Fallo([&] {
            clsConsulta consulta;
            consulta.AbrirBaseDatosEmpresa(fichero);
        });
    }
    QString Fichero(const QByteArray& contenido) const
    {
        QFile fichero(almacen.ruta(u"otro.mdb"_s));
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly | QIODevice::Truncate));
        fichero.write(contenido);
        return fichero.fileName();
    }
    QByteArray contenido() const
    {
        QFile fichero(ruta());
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        return fichero.readAll();
    }
    // The engine counts the commits of a file in its header.
    quint32 confirmaciones() const { return qFromBigEndian<quint32>(contenido().constData() + 24); }
};

/// Runs a save that must fail with a message of that beginning, tell no success, and leave the case without a
/// number, or with the one it had. 0 when it does.
int SalvarDebeFallar(FakeCasoAbierto& caso, EstadoCompartido& compartido, QStringView comienzo)
{
    const qint32 antes = compartido.NumeroTasacionActual;
    FakeDialogos dialogos;
    dialogos.respuestas = {true};
    try {
        SalvaVivienda(caso, compartido, dialogos);
        return 1;
    } catch (const ErrorAlmacen& fallo) {
        if (!dialogos.mensajes.empty())
            return 2;
        if (fallo.mensaje().isEmpty() || !fallo.mensaje().startsWith(comienzo)) {
            std::fprintf(stderr, "%s\n", qPrintable(fallo.mensaje()));
            return 4;
        }
    }
    return compartido.NumeroTasacionActual == antes ? 0 : 3;
}

bool SePuedeLeer(const EstadoCompartido& compartido)
{
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
    return consulta.Instantanea2(u"Empresa"_s, u"SELECT Nombre FROM Tasadores"_s).RecordCount() == 1;
}

} // namespace

TEST_F(StoreFaults, AMissingFileIsToldAndNotCreated)
{
    const QString fichero = almacen.ruta(u"nada.mdb"_s);
    EXPECT_EQ(FalloAlAbrir(fichero), u"No se encuentra la base de datos «%1»."_s.arg(fichero));
    EXPECT_FALSE(QFile::exists(fichero));
    EXPECT_EQ(FalloAlAbrir(u":memory:"_s), u"No se encuentra la base de datos «:memory:»."_s);
    EXPECT_EQ(FalloAlAbrir(almacen.carpeta.path()),
              u"«%1» no es un fichero de base de datos."_s.arg(almacen.carpeta.path()));
}

TEST_F(StoreFaults, ForeignFilesAreToldApart)
{
    QString fichero = Fichero("Esto no es una base de datos, sino una carta de varias líneas.\n");
    EXPECT_TRUE(FalloAlAbrir(fichero).startsWith(u"«%1»: El fichero no es una base de datos"_s.arg(fichero)));
    fichero = Fichero({});
    EXPECT_EQ(FalloAlAbrir(fichero), u"«%1» no es una base de datos de Valmerix."_s.arg(fichero));
    QFile::remove(fichero);
    SQLite::Database(fichero.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE a (b)");
    EXPECT_EQ(FalloAlAbrir(fichero), u"«%1» no es una base de datos de Valmerix."_s.arg(fichero));
    SQLite::Database(ruta().toStdString(), SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 99");
    EXPECT_EQ(FalloAlAbrir(ruta()), u"«%1» es de una versión posterior de Valmerix."_s.arg(ruta()));
}

TEST_F(StoreFaults, ATruncatedFileIsToldAsDamaged)
{
    const QByteArray entero = contenido();
    const QString mitad = Fichero(entero.left(entero.size() / 2));
    EXPECT_TRUE(FalloAlAbrir(mitad).contains(u"La base de datos está dañada"_s))
        << FalloAlAbrir(mitad).toStdString();
    EXPECT_NE(FalloAlAbrir(Fichero(entero.left(50))), u""_s);
}

TEST_F(StoreFaults, DamageInsideIsAnErrorAndNoCrash)
{
    QByteArray roto = contenido();
    for (qsizetype i = 4096; i < roto.size(); i += 97)
        roto[i] = static_cast<char>(roto[i] ^ 0x5A);
    almacen.compartido.RutaBaseDatos = Fichero(roto);
    EXPECT_EQ(SalvarDebeFallar(piso, almacen.compartido, u""), 0) << "any message: it depends on the page";
}

TEST_F(StoreFaults, AMissingTableIsNamed)
{
    SQLite::Database(ruta().toStdString(), SQLite::OPEN_READWRITE).exec("DROP TABLE Viviendas");
    EXPECT_EQ(Fallo([&] { CargaVivienda(piso, almacen.compartido, u"P"_s, u"Ana"_s, 1); }),
              u"En la base de datos falta la tabla «Viviendas» (no such table: Viviendas)."_s);
    EXPECT_EQ(SalvarDebeFallar(piso, almacen.compartido, u"En la base de datos falta la tabla «Viviendas»"),
              0);
}

TEST_F(StoreFaults, WhatAForeignFileDefinesBesidesTablesDoesNotRun)
{
    {
        SQLite::Database base(ruta().toStdString(), SQLite::OPEN_READWRITE);
        base.exec("CREATE TRIGGER espia AFTER INSERT ON Informe BEGIN DELETE FROM Tasadores; END");
        base.exec("CREATE VIEW mirilla AS SELECT * FROM Tasadores");
    }
    almacen.Ejecutar(u"INSERT INTO Informe VALUES(' ','linea')"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Tasadores"_s), u"1"_s);
    EXPECT_THROW(almacen.Leer(u"SELECT * FROM mirilla"_s), ErrorAlmacen);
}

TEST_F(StoreFaults, ASaveIsOneCommitAndLeavesOneFile)
{
    const quint32 antes = confirmaciones();
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(confirmaciones(), antes + 1);
    dialogos.respuestas = {true};
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(confirmaciones(), antes + 2);
    EXPECT_EQ(QDir(almacen.carpeta.path()).entryList(QDir::Files), QStringList{u"valmerix.mdb"_s});
}

TEST_F(StoreFaults, LoadingWritesNothing)
{
    ASSERT_TRUE(Salvar());
    const QByteArray antes = contenido();
    CargaVivienda(piso, almacen.compartido, u"P"_s, u"Ana"_s, 42);
    EXPECT_EQ(contenido(), antes);
}

TEST_F(StoreFaults, AReadOnlyFileIsReadAndRefusesToBeSavedInto)
{
    const QByteArray antes = contenido();
    ASSERT_TRUE(QFile::setPermissions(ruta(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    ASSERT_TRUE(QFile::setPermissions(almacen.carpeta.path(), QFile::Permissions(0x7777)));
    const int estado = EnOtroProceso([&] {
        return DejarDeSerRoot() && SePuedeLeer(almacen.compartido)
                   ? SalvarDebeFallar(piso, almacen.compartido, kProtegida)
                   : 10;
    });
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << WEXITSTATUS(estado);
    EXPECT_EQ(contenido(), antes);
}

TEST_F(StoreFaults, AReadOnlyFolderIsReadAndRefusesToBeSavedInto)
{
    const QByteArray antes = contenido();
    ASSERT_TRUE(QFile::setPermissions(ruta(), QFile::Permissions(0x6666)));
    ASSERT_TRUE(QFile::setPermissions(almacen.carpeta.path(), QFile::Permissions(0x5555)));
    const int estado = EnOtroProceso([&] {
        return DejarDeSerRoot() && SePuedeLeer(almacen.compartido)
                   ? SalvarDebeFallar(piso, almacen.compartido, kProtegida)
                   : 10;
    });
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << WEXITSTATUS(estado);
    EXPECT_EQ(contenido(), antes);
    EXPECT_TRUE(QFile::setPermissions(almacen.carpeta.path(), QFile::Permissions(0x7777)));
}

TEST_F(StoreFaults, AFullDiskStopsTheSaveAndLosesNothing)
{
    SalvarYCambiar();
    const auto lleno = static_cast<rlim_t>(QFileInfo(ruta()).size());
    for (const bool nuevo : {false, true}) {
        const int estado = EnOtroProceso([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limite{lleno, lleno};
            if (setrlimit(RLIMIT_FSIZE, &limite) != 0)
                return 10;
            piso.Escribir(u"txtObservaciones", QString(60000, u'x'));
            if (nuevo)
                almacen.compartido.NumeroTasacionActual = 0;
            return SalvarDebeFallar(piso, almacen.compartido, kDiscoFalla);
        });
        EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << WEXITSTATUS(estado);
        ComprobarQueEstaComoAntes();
    }
    EXPECT_TRUE(Salvar()) << "with room again, all that was typed is saved";
}

TEST_F(StoreFaults, AKillAtAnyStatementLeavesTheFileAsItWas)
{
    SalvarYCambiar();
    // Enough text for the engine to write pages into the file before the end.
    const QString enorme(4'000'000, u'x');
    for (const int sentencia : {2, 4, 6, 8}) {
        const int estado = EnOtroProceso([&] {
            int quedan = sentencia;
            almacen.compartido.alEjecutarSQL = [&](const QString&, const QString&) {
                if (--quedan == 0)
                    raise(SIGKILL);
            };
            piso.Escribir(u"txtObservaciones", enorme);
            Salvar();
            return 0;
        });
        EXPECT_TRUE(WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL);
        if (sentencia == 8) {
            EXPECT_TRUE(QFile::exists(ruta() + u"-journal"_s))
                << "the kill came in the middle of the writing";
        }
        ComprobarQueEstaComoAntes();
    }
}

TEST_F(StoreFaults, AnotherProgramAtTheFileIsWaitedForAndThenTold)
{
    SQLite::Database otra(ruta().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(SalvarDebeFallar(piso, almacen.compartido, u"Otro programa tiene ocupada la base de datos ("),
              0);
    otra.exec("ROLLBACK");
    EXPECT_TRUE(Salvar());
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 42);
}

} // namespace valmerix
