#include "store/schema.h"

#include "store/case_fields.h"
#include "store/program_options.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

#include <QDir>
#include <QFile>
#include <SQLiteCpp/Database.h>
#include <set>

using namespace Qt::StringLiterals;

namespace valmerix {

using AccesoDatos::clsConsulta;

TEST(Schema, EveryFieldOfTheTableOfFieldsIsAColumnOfItsTables)
{
    const AlmacenDePrueba almacen;
    for (const TablaCasos& tabla : kTablasDeCasos) {
        const ConjuntoResultados filas = almacen.Leer(u"SELECT * FROM %1"_s.arg(tabla.nombre));
        for (const CampoCaso& campo : CamposDeCaso()) {
            if (campo.es(tabla.tipos)) {
                EXPECT_GE(filas.Columna(campo.columna), 0);
            }
        }
        for (const QStringView clave : {u"NombreTasador", u"Tipo", u"NumeroTasacion"})
            EXPECT_GE(filas.Columna(clave), 0);
    }
}

TEST(Schema, AKindNeverHasOneControlOrColumnTwiceForTheSameUse)
{
    for (const Tipos tipo : {kPiso, kApto, kCasa, kNave, kLocal, kSolar, kFinca}) {
        for (const bool lectura : {true, false}) {
            std::set<QString> columnas;
            std::set<QString> controles;
            for (const CampoCaso& campo : CamposDeCaso()) {
                if (!campo.es(tipo) || !(lectura ? campo.seLee() : campo.seEscribe()))
                    continue;
                EXPECT_TRUE(columnas.insert(campo.columna.toString()).second)
                    << campo.columna.toString().toStdString();
                for (const QStringView control : campo.controles.split(u'|'))
                    EXPECT_TRUE(controles.insert(control.toString()).second)
                        << control.toString().toStdString();
            }
        }
    }
}

TEST(Schema, TheNewInstallationHasOneCompanyOneRowOfOptionsAndNoValuer)
{
    const AlmacenDePrueba almacen;
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Empresa"_s), u"1"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Nombre FROM Empresa"_s), u""_s);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Tasadores"_s), u"0"_s);
    EXPECT_EQ(
        almacen.Leer(u"SELECT * FROM Opciones"_s).ValorRegistroGrid(1),
        u"100\t50\t35\t\tF\teuro\teuros\t€\t2\tM\t111111111\tN\tConst\tV\t%1\t%1\t%2\t%3\t%4\t%5\t831,0964"_s
            .arg(QString(39, u'1'), QString(36, u'1'), QString(35, u'1'), QString(35, u'1'),
                 QString(31, u'1')));
}

TEST(Schema, EveryTableOfTheProgramIsThere)
{
    const AlmacenDePrueba almacen;
    for (const QString& tabla :
         {u"Viviendas"_s, u"Naves"_s, u"Locales"_s, u"Terrenos"_s, u"ProblemasUrbanisticos"_s,
          u"ImagenesAsociadas"_s, u"TestigosInforme"_s, u"Testigos"_s, u"Tasadores"_s, u"Empresa"_s,
          u"Opciones"_s, u"Informe"_s, u"FotosInforme"_s}) {
        EXPECT_EQ(Fallo([&] { almacen.Leer(u"SELECT * FROM "_s + tabla); }), u""_s);
    }
    EXPECT_EQ(almacen.Leer(u"SELECT * FROM FotosInforme"_s).Campos(), 2);
    EXPECT_EQ(almacen.Leer(u"SELECT * FROM Testigos"_s).Campos(), 16);
}

TEST(Schema, TheKeyStaysUniqueWhateverTheCaseOfItsLetters)
{
    const AlmacenDePrueba almacen;
    almacen.Ejecutar(u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('Ana','P',1)"_s);
    almacen.Ejecutar(u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('Ana','C',1)"_s);
    EXPECT_NE(Fallo([&] {
                  almacen.Ejecutar(
                      u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('ANA','p',1)"_s);
              }),
              u""_s);
}

TEST(Schema, NoTableOfCasesTakesAKeyTwice)
{
    const AlmacenDePrueba almacen;
    for (const auto& [tabla, letra] : {std::pair{u"Viviendas"_s, u"A"_s},
                                       {u"Naves"_s, u"N"_s},
                                       {u"Locales"_s, u"L"_s},
                                       {u"Terrenos"_s, u"T"_s}}) {
        const QString alta =
            u"INSERT INTO %1 (NombreTasador, Tipo, NumeroTasacion) VALUES ('Ana','%2',42)"_s.arg(tabla,
                                                                                                 letra);
        almacen.Ejecutar(alta);
        const QString fallo = Fallo([&] { almacen.Ejecutar(alta); });
        EXPECT_TRUE(fallo.startsWith(u"Ya hay una fila con la misma clave ("_s)) << fallo.toStdString();
        EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM "_s + tabla), u"1"_s);
    }
}

TEST(Schema, NeverTouchesAFileThatIsThere)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"valmerix.mdb"_s);
    QFile fichero(ruta);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("mis datos");
    fichero.close();
    EXPECT_THROW(InstalarBaseDatos(ruta), ErrorAlmacen);
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    EXPECT_EQ(fichero.readAll(), "mis datos");
}

TEST(Schema, MakesTheFolderAndLeavesNothingElseInIt)
{
    const QTemporaryDir carpeta;
    InstalarBaseDatos(carpeta.filePath(u"Datos/valmerix.mdb"_s));
    EXPECT_EQ(QDir(carpeta.filePath(u"Datos"_s)).entryList(QDir::Files), QStringList{u"valmerix.mdb"_s});
}

TEST(Schema, AnInstallationThatFailsLeavesNothing)
{
    const QTemporaryDir carpeta;
    ASSERT_TRUE(QDir(carpeta.path()).mkpath(u"valmerix.mdb.parcial"_s)); // its place is taken
    EXPECT_THROW(InstalarBaseDatos(carpeta.filePath(u"valmerix.mdb"_s)), ErrorAlmacen);
    EXPECT_FALSE(QFile::exists(carpeta.filePath(u"valmerix.mdb"_s)));
    QFile estorbo(carpeta.filePath(u"Datos"_s));
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    estorbo.close();
    EXPECT_THROW(InstalarBaseDatos(carpeta.filePath(u"Datos/valmerix.mdb"_s)), ErrorAlmacen);
}

TEST(Schema, TheFileCarriesNoCollationOfOurs)
{
    const AlmacenDePrueba almacen;
    SQLite::Database otra(almacen.compartido.RutaBaseDatos.toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("INSERT INTO Tasadores (Nombre, Contador) VALUES ('Ana', 3)");
    EXPECT_EQ(otra.execAndGet("SELECT Contador FROM Tasadores WHERE Nombre = 'ANA' ORDER BY Nombre").getInt(),
              3);
    EXPECT_EQ(otra.execAndGet("PRAGMA integrity_check").getString(), "ok");
}

TEST(ProgramOptions, OfANewInstallationAreTheDefaults)
{
    const AlmacenDePrueba almacen;
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    OpcionesPrograma leidas;
    leidas.EdadNaves = 1;
    ASSERT_TRUE(LeerOpciones(consulta, leidas));
    EXPECT_EQ(leidas.EdadViviendas, 100);
    EXPECT_EQ(leidas.EdadLocales, 50);
    EXPECT_EQ(leidas.EdadNaves, 35);
    EXPECT_EQ(leidas.MonedaAbreviatura, u"€"_s);
    EXPECT_EQ(leidas.MonedaDecimales, 2);
    EXPECT_TRUE(leidas.MonedaMasculina);
    EXPECT_TRUE(leidas.MostrarCabecera);
    EXPECT_FALSE(leidas.Membrete);
    EXPECT_FALSE(leidas.CerrarAlSalir);
    EXPECT_EQ(leidas.TipoSuperficie, u"Const"_s);
    EXPECT_EQ(leidas.PerfilCasa, QString(36, u'1'));
    EXPECT_EQ(leidas.Equivalencia, u"831,0964"_s);
    EXPECT_TRUE(leidas.encabezamiento(8));
    EXPECT_FALSE(leidas.encabezamiento(9));
}

TEST(ProgramOptions, ValuesThatMakeNoSenseLeaveTheDefaults)
{
    const AlmacenDePrueba almacen;
    almacen.Ejecutar(
        u"UPDATE Opciones SET EdadViviendas = 'mucha', EdadLocales = 0, EdadNaves = NULL, "
        u"MonedaSingular = NULL, MonedaDecimales = 1e300, MonedaGenero = 'X', MostrarCabecera = NULL, "
        u"Membrete = 'S', Cabecera = '101', PerfilPiso = NULL, CerrarAlSalir = 'V'"_s);
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    OpcionesPrograma leidas;
    ASSERT_TRUE(LeerOpciones(consulta, leidas));
    EXPECT_EQ(leidas.EdadViviendas, 100);
    EXPECT_EQ(leidas.EdadLocales, 50);
    EXPECT_EQ(leidas.EdadNaves, 35);
    EXPECT_EQ(leidas.MonedaSingular, u"euro"_s);
    EXPECT_EQ(leidas.MonedaDecimales, 2);
    EXPECT_TRUE(leidas.MonedaMasculina);
    EXPECT_TRUE(leidas.MostrarCabecera);
    EXPECT_TRUE(leidas.Membrete);
    EXPECT_TRUE(leidas.CerrarAlSalir);
    EXPECT_FALSE(leidas.encabezamiento(1));
    EXPECT_FALSE(leidas.encabezamiento(5));
}

TEST(ProgramOptions, WithoutARowStayAsTheyWere)
{
    const AlmacenDePrueba almacen;
    almacen.Ejecutar(u"DELETE FROM Opciones"_s);
    clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(almacen.compartido.RutaBaseDatos);
    OpcionesPrograma leidas;
    leidas.EdadNaves = 12;
    EXPECT_FALSE(LeerOpciones(consulta, leidas));
    EXPECT_EQ(leidas.EdadNaves, 12);
}

} // namespace valmerix
