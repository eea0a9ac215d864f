#include "ui/machine.h"
#include "ui/pictures/capture_folder.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <iostream>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct CaptureFolder : testing::Test
{
    QTemporaryDir lugar;

    QStringList carpetas() const { return QDir(lugar.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot); }
    static void Escribir(const QString& ruta)
    {
        QFile fichero(ruta);
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly)) << qPrintable(ruta);
    }
    /// A process that takes a picture and ends as the program does at its exit: no destructor runs.
    void OtroProceso() const
    {
        const pid_t hijo = fork();
        if (hijo == 0) {
            CarpetaCapturas carpeta(lugar.path());
            Escribir(carpeta.RutaNueva());
            _exit(0);
        }
        int estado = -1;
        waitpid(hijo, &estado, 0);
        ASSERT_EQ(estado, 0);
    }
};

TEST_F(CaptureFolder, IsMadeForTheFirstPictureAndGoesWithTheProgram)
{
    {
        CarpetaCapturas carpeta(lugar.path());
        EXPECT_TRUE(carpetas().isEmpty());
        const QString una = carpeta.RutaNueva();
        const QString otra = carpeta.RutaNueva();
        EXPECT_NE(una, otra);
        EXPECT_EQ(QFileInfo(una).path(), QFileInfo(otra).path());
        Escribir(una);
        Escribir(otra);
        EXPECT_EQ(carpetas().size(), 1);
    }
    EXPECT_TRUE(carpetas().isEmpty());
}

TEST_F(CaptureFolder, ServesAgainAfterItWasEmptied)
{
    CarpetaCapturas carpeta(lugar.path());
    Escribir(carpeta.RutaNueva());
    carpeta.Retirar();
    EXPECT_TRUE(carpetas().isEmpty());
    Escribir(carpeta.RutaNueva());
    EXPECT_EQ(carpetas().size(), 1);
}

TEST_F(CaptureFolder, OfAProcessThatIsGoneIsSweptByTheNext)
{
    OtroProceso();
    OtroProceso();
    EXPECT_EQ(carpetas().size(), 1) << "the second has swept what the first one left";
    const CarpetaCapturas carpeta(lugar.path());
    EXPECT_TRUE(carpetas().isEmpty());
}

TEST_F(CaptureFolder, OfAnotherRunningProgramIsLeftAlone)
{
    CarpetaCapturas una(lugar.path());
    const QString imagen = una.RutaNueva();
    Escribir(imagen);
    ASSERT_TRUE(QDir(lugar.path()).mkpath(u"valmerix-otra-cosa"_s));
    const CarpetaCapturas otra(lugar.path());
    EXPECT_TRUE(QFileInfo::exists(imagen));
    EXPECT_EQ(carpetas().size(), 2);
}

TEST_F(CaptureFolder, ThatCannotBeMadeShowsWhenThePictureIsWritten)
{
    CarpetaCapturas carpeta(lugar.filePath(u"no/hay"_s));
    QFile fichero(carpeta.RutaNueva());
    EXPECT_FALSE(fichero.open(QIODevice::WriteOnly));
}

TEST(MachineDeathTest, WhatIsToBeTidiedUpIsDoneBeforeTheProcessEnds)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const QTemporaryDir carpeta;
    SistemaQt sistema(carpeta.path());
    sistema.setAlTerminar([] { std::cerr << "recogido\n"; });
    EXPECT_EXIT(sistema.TerminarProceso(0), testing::ExitedWithCode(0), "recogido");
}

} // namespace

} // namespace valmerix
