#include "shell/draft_keeper.h"

#include "support/child_process.h"
#include "support/fake_ports.h"
#include "support/qt_printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <sys/resource.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

Borrador Con(const QString& texto, const QDateTime& cuando = {})
{
    Borrador borrador;
    borrador.letra = u"P"_s;
    borrador.cuando = cuando.isValid() ? cuando : QDateTime({2026, 11, 20}, {9, 30});
    borrador.controles = {{u"BoxSit"_s, texto}};
    return borrador;
}

class GuardaBorradoresTest : public testing::Test
{
protected:
    GuardaBorradoresTest() { Empezar(); }

    void Empezar(const QString& fichero = {})
    {
        guarda.Empezar(
            carpeta(),
            [this] {
                ++retratos;
                return Con(texto);
            },
            fichero);
    }
    void Cambiar(const QString& nuevo)
    {
        texto = nuevo;
        guarda.Apuntar();
    }
    /// Two seconds go by.
    void PasaElTiempo()
    {
        ASSERT_EQ(sistema.aplazadas.size(), 1U);
        EXPECT_EQ(sistema.aplazadas.front().milisegundos, 2000);
        sistema.CorrerAplazadas();
        QThread::msleep(1); // the writing goes on beside us
    }
    QString carpeta() const { return raiz.filePath(u"Datos/borradores"_s); }
    QString EnDisco() const
    {
        const auto borrador = FicheroBorrador::MasReciente(carpeta());
        return borrador ? borrador->texto(u"BoxSit") : u"(nada)"_s;
    }

    QTemporaryDir raiz;
    FakeDialogos dialogos;
    FakeSistema sistema;
    QString texto;
    int retratos = 0;
    GuardaBorradores guarda{dialogos, sistema};
};

TEST_F(GuardaBorradoresTest, AThousandKeystrokesCostOnePictureEveryTwoSeconds)
{
    for (int i = 0; i < 1000; ++i)
        Cambiar(QString::number(i));
    EXPECT_EQ(retratos, 0);
    PasaElTiempo();
    EXPECT_EQ(retratos, 1);
    for (int i = 0; i < 1000; ++i)
        Cambiar(QString::number(i));
    EXPECT_EQ(retratos, 1);
    guarda.Volcar();
    EXPECT_EQ(retratos, 2);
    EXPECT_EQ(EnDisco(), u"999"_s);
}

TEST_F(GuardaBorradoresTest, TheLastChangeReachesTheDiskAndThenThereIsQuiet)
{
    Cambiar(u"a"_s);
    PasaElTiempo();
    Cambiar(u"ab"_s);
    for (int vuelta = 0; vuelta < 5000 && !sistema.aplazadas.empty(); ++vuelta)
        PasaElTiempo();
    EXPECT_TRUE(sistema.aplazadas.empty());
    EXPECT_EQ(EnDisco(), u"ab"_s);
    EXPECT_EQ(retratos, 2);
}

TEST_F(GuardaBorradoresTest, WithoutAnOpenCaseNothingIsWritten)
{
    guarda.Terminar();
    guarda.Apuntar();
    EXPECT_TRUE(sistema.aplazadas.empty());
    guarda.Volcar();
    EXPECT_EQ(EnDisco(), u"(nada)"_s);
}

TEST_F(GuardaBorradoresTest, WhatIsDroppedDoesNotComeBack)
{
    Cambiar(u"a"_s);
    PasaElTiempo();
    Cambiar(u"ab"_s);
    guarda.Quitar();
    EXPECT_EQ(EnDisco(), u"(nada)"_s);
    PasaElTiempo();
    guarda.Volcar();
    EXPECT_EQ(EnDisco(), u"(nada)"_s);
    Cambiar(u"otra"_s);
    guarda.Volcar();
    EXPECT_EQ(EnDisco(), u"otra"_s);
}

TEST_F(GuardaBorradoresTest, ATickThatComesAfterItsKeeperHasGoneDoesNothing)
{
    {
        GuardaBorradores otra(dialogos, sistema);
        otra.Empezar(carpeta(), [] { return Con(u"nunca"_s); });
        otra.Apuntar();
    }
    sistema.CorrerAplazadas();
    EXPECT_EQ(EnDisco(), u"(nada)"_s);
}

TEST_F(GuardaBorradoresTest, LeftoversOfAKilledWritingAreSweptAway)
{
    ASSERT_TRUE(QDir().mkpath(carpeta()));
    QFile resto(carpeta() + u"/borrador-1.json.XyZabc"_s);
    ASSERT_TRUE(resto.open(QIODevice::WriteOnly));
    resto.close();
    EXPECT_EQ(EnDisco(), u"(nada)"_s);
    Empezar();
    EXPECT_TRUE(QDir(carpeta()).entryList(QDir::Files).isEmpty());
}

TEST_F(GuardaBorradoresTest, AFolderThatCannotBeMadeIsToldOnceAndTypingGoesOn)
{
    QFile estorbo(raiz.filePath(u"Datos"_s));
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    estorbo.close();
    for (const auto* letra : {"a", "ab", "abc"}) {
        Cambiar(QString::fromLatin1(letra));
        guarda.Volcar();
    }
    ASSERT_EQ(dialogos.mensajes.size(), 1U);
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_TRUE(dialogos.mensajes[0].texto.startsWith(
        u"No se ha podido guardar el borrador del trabajo en curso."_s));
    EXPECT_TRUE(dialogos.mensajes[0].texto.contains(u"No se puede crear la carpeta"_s));
    QFile::remove(estorbo.fileName());
    Cambiar(u"abcd"_s);
    guarda.Volcar();
    EXPECT_EQ(EnDisco(), u"abcd"_s) << "with a folder again, it is kept again";
}

TEST_F(GuardaBorradoresTest, ATickTellsOfTheFailureOfTheWritingBefore)
{
    QFile estorbo(raiz.filePath(u"Datos"_s));
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    Cambiar(u"a"_s);
    for (int vuelta = 0; vuelta < 5000 && !sistema.aplazadas.empty(); ++vuelta)
        PasaElTiempo();
    EXPECT_EQ(dialogos.mensajes.size(), 1U);
}

/// In a child: one draft stands, the next one must fail, be told, and leave the first.
int ElSegundoFalla(const QString& carpeta)
{
    FakeDialogos dialogos;
    FakeSistema sistema;
    GuardaBorradores guarda(dialogos, sistema);
    guarda.Empezar(
        carpeta, [] { return Con(QString(200'000, u'x')); }, carpeta + u"/borrador-1.json"_s);
    guarda.Apuntar();
    guarda.Volcar();
    guarda.Apuntar();
    guarda.Volcar();
    return dialogos.mensajes.size() == 1 ? 0 : 1;
}

TEST_F(GuardaBorradoresTest, AFullDiskIsToldAndTheLastCompleteDraftStays)
{
    Cambiar(u"entera"_s);
    guarda.Volcar();
    const int estado = EnOtroProceso([this] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{10'000, 10'000};
        return setrlimit(RLIMIT_FSIZE, &limite) == 0 ? ElSegundoFalla(carpeta()) : 10;
    });
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << WEXITSTATUS(estado);
    EXPECT_EQ(EnDisco(), u"entera"_s);
    EXPECT_EQ(QDir(carpeta()).entryList(QDir::Files).size(), 1) << "no provisional file stays behind";
}

TEST_F(GuardaBorradoresTest, AReadOnlyFolderIsToldAndTheLastCompleteDraftStays)
{
    Cambiar(u"entera"_s);
    guarda.Volcar();
    ASSERT_TRUE(QFile::setPermissions(raiz.path(), QFile::Permissions(0x7755)));
    ASSERT_TRUE(QFile::setPermissions(carpeta(), QFile::Permissions(0x5555)));
    const int estado = EnOtroProceso([this] { return DejarDeSerRoot() ? ElSegundoFalla(carpeta()) : 10; });
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << WEXITSTATUS(estado);
    EXPECT_EQ(EnDisco(), u"entera"_s);
    ASSERT_TRUE(QFile::setPermissions(carpeta(), QFile::Permissions(0x7755)));
}

class FicheroBorradorTest : public testing::Test
{
protected:
    QString Poner(int n, const QByteArray& contenido) const
    {
        const QString fichero = raiz.filePath(u"borrador-%1.json"_s.arg(n));
        QFile salida(fichero);
        EXPECT_TRUE(salida.open(QIODevice::WriteOnly | QIODevice::Truncate));
        salida.write(contenido);
        return fichero;
    }
    QString Ofrecido() const
    {
        const auto borrador = FicheroBorrador::MasReciente(raiz.path());
        return borrador ? borrador->texto(u"BoxSit") : u"(nada)"_s;
    }
    const QDateTime antes{{2026, 11, 20}, {9, 0}};
    const QDateTime luego{{2026, 11, 20}, {9, 0, 0, 1}};
    QTemporaryDir raiz;
};

TEST_F(FicheroBorradorTest, WhatIsReadIsWhatWasWritten)
{
    Borrador borrador = Con(u"«ñ» \"\\\n\t€ 🏠"_s, luego);
    borrador.NumeroTasacion = 123456;
    borrador.presentacion = {{u"foco"_s, u"BoxSit"_s}};
    borrador.calculo = {{u"CoeficienteK"_s, 0.1 + 0.2}};
    borrador.frases = {{u"FrasePlantas"_s, u"dos"_s}};
    const QString fichero = Poner(1, FicheroBorrador::Contenido(borrador));
    const auto leido = FicheroBorrador::Leer(fichero);
    ASSERT_TRUE(leido);
    EXPECT_EQ(leido->fichero, fichero);
    EXPECT_EQ(leido->letra, borrador.letra);
    EXPECT_EQ(leido->NumeroTasacion, borrador.NumeroTasacion);
    EXPECT_EQ(leido->cuando, borrador.cuando);
    EXPECT_EQ(leido->controles, borrador.controles);
    EXPECT_EQ(leido->presentacion, borrador.presentacion);
    EXPECT_EQ(leido->calculo, borrador.calculo);
    EXPECT_EQ(leido->frases, borrador.frases);
}

TEST_F(FicheroBorradorTest, TheNewestIsOfferedWhateverItsNumber)
{
    Poner(10, FicheroBorrador::Contenido(Con(u"vieja"_s, antes)));
    Poner(2, FicheroBorrador::Contenido(Con(u"nueva"_s, luego)));
    EXPECT_EQ(Ofrecido(), u"nueva"_s);
    EXPECT_EQ(FicheroBorrador::NombreLibre(raiz.path()), raiz.filePath(u"borrador-11.json"_s));
}

TEST_F(FicheroBorradorTest, ADamagedOneIsPassedOverInFavourOfTheNewestComplete)
{
    Poner(1, FicheroBorrador::Contenido(Con(u"vieja"_s, antes)));
    const QByteArray nueva = FicheroBorrador::Contenido(Con(u"nueva"_s, luego));
    for (qsizetype i = 0; i < nueva.size(); ++i) {
        Poner(2, nueva.first(i)); // cut short at every byte
        ASSERT_EQ(Ofrecido(), u"vieja"_s) << i;
        QByteArray rota = nueva;
        rota[i] = static_cast<char>(rota[i] ^ 0x10);
        Poner(2, rota);
        ASSERT_EQ(Ofrecido(), u"vieja"_s) << i;
    }
    Poner(2, nueva);
    EXPECT_EQ(Ofrecido(), u"nueva"_s);
}

TEST_F(FicheroBorradorTest, OtherVersionsAndForeignFilesAreNoDrafts)
{
    QByteArray otra = FicheroBorrador::Contenido(Con(u"futura"_s));
    otra.replace("BORRADOR 1\n", "BORRADOR 2\n");
    Poner(1, otra);
    Poner(2, {});
    Poner(3, "{}");
    Poner(4, QByteArray(100'000, '\0'));
    ASSERT_TRUE(QDir(raiz.path()).mkdir(u"borrador-5.json"_s));
    EXPECT_EQ(Ofrecido(), u"(nada)"_s);
}

} // namespace
} // namespace valmerix
