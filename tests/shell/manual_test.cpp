#include "support/manual_sample.h"

#include "support/fake_ports.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

QStringList Titulos(const std::vector<HallazgoManual>& hallados)
{
    QStringList titulos;
    for (const HallazgoManual& h : hallados)
        titulos << h.titulo;
    return titulos;
}

TEST(ManualSearch, FindsAWordByItsBeginningBlindToCaseAndAccents)
{
    const Manual manual = ManualDePrueba();
    EXPECT_EQ(Titulos(manual.Buscar(u"TASACION"_s)), (QStringList{u"Primeros pasos"_s, u"El cálculo"_s}));
    EXPECT_EQ(Titulos(manual.Buscar(u"tasación"_s)), Titulos(manual.Buscar(u"TASACION"_s)));
    EXPECT_EQ(Titulos(manual.Buscar(u"trast"_s)), QStringList{u"El cálculo › Anexos"_s});
    EXPECT_TRUE(manual.Buscar(u"rastero"_s).empty());
}

TEST(ManualSearch, KeepsTheEnyeALetterOfItsOwn)
{
    const Manual manual = ManualDePrueba();
    EXPECT_EQ(manual.Buscar(u"AÑO"_s).size(), 1u);
    EXPECT_TRUE(manual.Buscar(u"ano"_s).empty());
}

TEST(ManualSearch, WantsEveryWordAndPutsTitlesFirst)
{
    const Manual manual = ManualDePrueba();
    EXPECT_EQ(Titulos(manual.Buscar(u"garaje, trastero"_s)), QStringList{u"El cálculo › Anexos"_s});
    EXPECT_TRUE(manual.Buscar(u"garaje árbol"_s).empty());
    const auto valor = manual.Buscar(u"el"_s);
    ASSERT_EQ(valor.size(), 3u);
    EXPECT_EQ(valor.front().titulo, u"El cálculo"_s);
}

TEST(ManualSearch, ATextWithoutLettersFindsNothing)
{
    const Manual manual = ManualDePrueba();
    for (const auto& nada : {u""_s, u"   "_s, u"¿?"_s, u"'"_s, u"%"_s})
        EXPECT_TRUE(manual.Buscar(nada).empty()) << nada.toStdString();
    EXPECT_TRUE(manual.Buscar(QString(100000, u'z')).empty());
}

TEST(ManualSearch, ShowsTheWordsAroundTheFirstOneFound)
{
    PaginaManual larga{u"l"_s, u"Larga"_s, {}, {}, {}};
    larga.secciones.push_back(
        {u"Larga"_s, {}, u"palabra "_s.repeated(100) + u"aquí está el Ático "_s + u"otra "_s.repeated(100)});
    const auto hallados = Manual({larga}, {}).Buscar(u"atico"_s);
    ASSERT_EQ(hallados.size(), 1u);
    EXPECT_TRUE(hallados[0].extracto.startsWith(u"… palabra"_s)) << hallados[0].extracto.toStdString();
    EXPECT_TRUE(hallados[0].extracto.contains(u"aquí está el Ático"_s));
    EXPECT_TRUE(hallados[0].extracto.endsWith(u"otra …"_s));
}

TEST(ManualPages, TheWindowsPageOrTheFirst)
{
    const Manual manual = ManualDePrueba();
    EXPECT_EQ(manual.PaginaDe(u"Casa")->nombre, u"02-calculo"_s);
    EXPECT_EQ(manual.PaginaDe(u"Nave")->nombre, u"01-inicio"_s);
    EXPECT_EQ(manual.pagina(u"03-nada"), nullptr);
    EXPECT_EQ(Manual({}, {}).PaginaDe(u"Casa"), nullptr);
}

class ManualFile : public testing::Test
{
protected:
    QString ruta() const { return carpeta.filePath(u"Valmerix.chm"_s); }
    QByteArray Bytes() const
    {
        QFile fichero(ruta());
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        return fichero.readAll();
    }
    void Escribir(const QByteArray& bytes) const
    {
        QFile fichero(ruta());
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(bytes);
    }
    QTemporaryDir carpeta;
};

TEST_F(ManualFile, ReadsBackWhatWasWritten)
{
    const Manual escrito = ManualDePrueba();
    EscribirManual(ruta(), escrito);
    const auto leido = LeerManual(ruta());
    ASSERT_EQ(leido->paginas().size(), 2u);
    for (size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(leido->paginas()[i].nombre, escrito.paginas()[i].nombre);
        EXPECT_EQ(leido->paginas()[i].titulo, escrito.paginas()[i].titulo);
        EXPECT_EQ(leido->paginas()[i].html, escrito.paginas()[i].html);
        EXPECT_EQ(leido->paginas()[i].ventanas, escrito.paginas()[i].ventanas);
        ASSERT_EQ(leido->paginas()[i].secciones.size(), escrito.paginas()[i].secciones.size());
    }
    EXPECT_EQ(leido->paginas()[1].secciones[1].ancla, u"anexos"_s);
    EXPECT_EQ(leido->imagenes(), escrito.imagenes());
    EXPECT_TRUE(leido->imagen(u"img/otra.png"_s).isEmpty());
}

TEST_F(ManualFile, IsTheSameForTheSamePages)
{
    EscribirManual(ruta(), ManualDePrueba());
    const QByteArray una = Bytes();
    EscribirManual(ruta(), ManualDePrueba());
    EXPECT_EQ(Bytes(), una);
}

TEST_F(ManualFile, AMissingOneIsToldWithItsPath)
{
    try {
        LeerManual(ruta());
        ADD_FAILURE() << "read a file that is not there";
    } catch (const ErrorManual& fallo) {
        EXPECT_EQ(QString::fromUtf8(fallo.what()), u"No se encuentra el manual «%1»."_s.arg(ruta()));
    }
}

TEST_F(ManualFile, EveryTruncationIsTold)
{
    EscribirManual(ruta(), ManualDePrueba());
    const QByteArray entero = Bytes();
    for (qsizetype largo = 0; largo < entero.size(); largo += 509) {
        Escribir(entero.left(largo));
        EXPECT_THROW(LeerManual(ruta()), ErrorManual) << largo;
    }
}

TEST_F(ManualFile, DamagedBytesNeverCrash)
{
    EscribirManual(ruta(), ManualDePrueba());
    const QByteArray entero = Bytes();
    for (qsizetype sitio = 0; sitio < entero.size(); sitio += 97) {
        QByteArray roto = entero;
        for (qsizetype i = sitio; i < std::min(sitio + 24, roto.size()); ++i)
            roto[i] = static_cast<char>(~roto[i]);
        Escribir(roto);
        try {
            LeerManual(ruta())->Buscar(u"trastero"_s);
        } catch (const ErrorManual& fallo) {
            EXPECT_TRUE(QString::fromUtf8(fallo.what()).contains(ruta()));
        }
    }
}

TEST_F(ManualFile, AnotherProgramsDatabaseIsNotTheManual)
{
    {
        SQLite::Database ajena(ruta().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        ajena.exec("CREATE TABLE Paginas (Orden, Nombre, Titulo, Html, Ventanas)");
    }
    try {
        LeerManual(ruta());
        ADD_FAILURE() << "took another program's file";
    } catch (const ErrorManual& fallo) {
        EXPECT_TRUE(QString::fromUtf8(fallo.what()).contains(u"no es el manual"_s));
    }
    Escribir("PK\x03\x04 no es una base de datos, sino otra cosa bastante distinta");
    EXPECT_THROW(LeerManual(ruta()), ErrorManual);
    EXPECT_THROW(LeerManual(carpeta.path()), ErrorManual);
}

TEST_F(ManualFile, OneWithoutPagesIsTold)
{
    EscribirManual(ruta(), Manual({}, {}));
    EXPECT_THROW(LeerManual(ruta()), ErrorManual);
    EXPECT_THROW(EscribirManual(carpeta.path() + u"/no/esta.chm"_s, Manual({}, {})), ErrorManual);
}

class Instalado : public FakeSistema
{
public:
    QString instalada;
    QString carpetaInstalacion() const override { return instalada; }
};

TEST_F(ManualFile, StandsInTheProgramsFolderOrAmongTheInstalledFiles)
{
    Instalado sistema;
    sistema.carpeta = carpeta.path();
    sistema.instalada = carpeta.path() + u"/instalada"_s;
    ASSERT_TRUE(QDir().mkpath(sistema.instalada));
    EXPECT_EQ(RutaManual(sistema), ruta());
    EscribirManual(sistema.instalada + u"/Valmerix.chm"_s, ManualDePrueba());
    EXPECT_EQ(RutaManual(sistema), sistema.instalada + u"/Valmerix.chm"_s);
    EscribirManual(ruta(), ManualDePrueba());
    EXPECT_EQ(RutaManual(sistema), ruta());
}

} // namespace
} // namespace valmerix
