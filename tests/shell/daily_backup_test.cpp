#include "shell/daily_backup.h"

#include "support/fake_ports.h"
#include "support/test_database.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class CopiaDiariaTest : public testing::Test
{
protected:
    CopiaDiariaTest()
        : base(entorno.compartido)
        , copia(entorno.compartido, entorno.dialogos, entorno.reloj)
    {
        entorno.compartido.antesDeEscribir = [this] { copia.AntesDeEscribir(); };
    }

    QStringList Copias() const
    {
        return QDir(CopiaDiaria::carpeta(base.ruta())).entryList(QDir::Files, QDir::Name);
    }
    QString EmpresaEn(const QString& ruta)
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta);
        return consulta.Instantanea2(u"Empresa"_s, u"SELECT Nombre FROM Empresa"_s).Texto(u"Nombre");
    }

    EntornoDePrueba entorno;
    BaseDePrueba base;
    CopiaDiaria copia;
};

TEST_F(CopiaDiariaTest, TheFirstWriteOfADayIsPrecededByACopyOfWhatWasThere)
{
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Uno'"_s);
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Dos'"_s);
    EXPECT_EQ(Copias(), QStringList{u"valmerix-2026-11-20.mdb"_s});
    EXPECT_EQ(EmpresaEn(CopiaDiaria::carpeta(base.ruta()) + u"/valmerix-2026-11-20.mdb"_s), QString());
    entorno.reloj.fecha = QDate(2026, 11, 21);
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Tres'"_s);
    EXPECT_EQ(Copias().size(), 2);
    EXPECT_EQ(EmpresaEn(CopiaDiaria::carpeta(base.ruta()) + u"/valmerix-2026-11-21.mdb"_s), u"Dos"_s);
    EXPECT_TRUE(entorno.dialogos.mensajes.empty());
}

TEST_F(CopiaDiariaTest, ReadingMakesNoCopy)
{
    base.Leer(u"SELECT * FROM Empresa"_s);
    EXPECT_TRUE(Copias().isEmpty());
}

TEST_F(CopiaDiariaTest, AFailedCopyIsToldOnceAndTheWriteGoesOn)
{
    QFile estorbo(CopiaDiaria::carpeta(base.ruta()));
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly)); // a file where the folder should be
    estorbo.close();
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Uno'"_s);
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Dos'"_s);
    ASSERT_EQ(entorno.dialogos.mensajes.size(), 1u);
    EXPECT_TRUE(entorno.dialogos.mensajes[0].texto.startsWith(
        u"No se ha podido hacer la copia de seguridad de hoy. Se sigue trabajando sin ella.\n\n"_s));
    EXPECT_EQ(entorno.dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_EQ(entorno.dialogos.mensajes[0].icono, IconoMensaje::Aviso);
    EXPECT_EQ(EmpresaEn(base.ruta()), u"Dos"_s);
}

TEST_F(CopiaDiariaTest, WhatAKilledCopyingLeftIsSweptByTheNext)
{
    const QString copias = CopiaDiaria::carpeta(base.ruta());
    ASSERT_TRUE(QDir().mkpath(copias));
    for (const QString& nombre :
         {u"valmerix-2026-11-18.mdb.parcial"_s, u"valmerix-2026-11-18.mdb.parcial-journal"_s,
          u"valmerix-2026-11-18.mdb"_s, u"notas.parcial"_s}) {
        QFile fichero(copias + u'/' + nombre);
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    }
    base.Ejecutar(u"UPDATE Empresa SET Nombre = 'Uno'"_s);
    EXPECT_EQ(Copias(),
              QStringList({u"notas.parcial"_s, u"valmerix-2026-11-18.mdb"_s, u"valmerix-2026-11-20.mdb"_s}));
}

TEST_F(CopiaDiariaTest, ADamagedDatabaseGivesNoCopy)
{
    QFile fichero(base.ruta());
    ASSERT_TRUE(fichero.open(QIODevice::ReadWrite));
    fichero.resize(fichero.size() / 2);
    fichero.close();
    copia.AntesDeEscribir();
    EXPECT_TRUE(Copias().isEmpty());
    EXPECT_EQ(entorno.dialogos.mensajes.size(), 1u);
}

// A file that is held gives no rows and no error: the copy would be an empty file, which is sound too.
TEST_F(CopiaDiariaTest, ADatabaseThatAnotherProgramHoldsGivesNoCopy)
{
    sqlite3* otro = nullptr;
    sqlite3_open(base.ruta().toUtf8().constData(), &otro);
    ASSERT_EQ(sqlite3_exec(otro, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    copia.AntesDeEscribir();
    sqlite3_close(otro);
    EXPECT_TRUE(Copias().isEmpty());
    EXPECT_EQ(entorno.dialogos.mensajes.size(), 1u);
}

TEST(RetiradaDeCopias, SevenDaysAreKeptThenOneAMonthForAYear)
{
    const QDate hoy(2026, 11, 21);
    QStringList nombres;
    for (QDate dia = hoy.addDays(-500); dia <= hoy; dia = dia.addDays(1))
        nombres << CopiaDiaria::nombre(dia);
    nombres << u"valmerix.mdb"_s << u"valmerix-ayer.mdb"_s << u"notas.txt"_s;
    QStringList quedan;
    const QStringList sobran = CopiaDiaria::Sobrantes(nombres, hoy);
    for (const QString& nombre : nombres) {
        if (!sobran.contains(nombre))
            quedan << nombre;
    }
    EXPECT_TRUE(quedan.contains(u"notas.txt"_s));
    EXPECT_TRUE(quedan.contains(u"valmerix-ayer.mdb"_s));
    EXPECT_TRUE(quedan.contains(u"valmerix-2026-11-15.mdb"_s));
    EXPECT_FALSE(quedan.contains(u"valmerix-2026-11-14.mdb"_s));
    EXPECT_TRUE(quedan.contains(u"valmerix-2026-11-01.mdb"_s));
    EXPECT_TRUE(quedan.contains(u"valmerix-2025-12-01.mdb"_s));
    EXPECT_FALSE(quedan.contains(u"valmerix-2025-11-01.mdb"_s));
    EXPECT_EQ(quedan.size(), 7 + 12 + 3);
}

} // namespace
} // namespace valmerix
