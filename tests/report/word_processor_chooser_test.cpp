#include "report/word_processor_chooser.h"

#include "support/fake_ports.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct EleccionDePrueba
{
    QTemporaryDir carpeta;
    EstadoCompartido compartido;
    FakeDialogos dialogos;
    CampoTexto trayectoria{u"TrayecBox"_s};
    Busqueda ventana{compartido, &trayectoria, dialogos};

    EleccionDePrueba()
    {
        Crear(u"escritor"_s, true);
        Crear(u"notas.txt"_s, false);
        QDir(carpeta.path()).mkdir(u"Otros programas"_s);
        Crear(u"Otros programas/otro"_s, true);
        ventana.IrA(carpeta.path());
    }

    void Crear(const QString& nombre, bool ejecutable)
    {
        QFile fichero(carpeta.filePath(nombre));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.setPermissions(ejecutable ? QFile::ReadOwner | QFile::ExeOwner : QFile::ReadOwner);
    }
    QStringList lista(QStringView nombre) { return ventana.lista(nombre).List(); }
};

} // namespace

TEST(WordProcessorChooser, StartsAtTheRootOfTheVolumes)
{
    EstadoCompartido compartido;
    FakeDialogos dialogos;
    Busqueda ventana(compartido, nullptr, dialogos);
    EXPECT_EQ(ventana.Caption(), u"Cuadro de selección del tratamiento de textos"_s);
    EXPECT_EQ(ventana.carpeta(), QDir::rootPath());
    EXPECT_EQ(ventana.lista(u"Drive1").List().first(), QDir::rootPath());
    EXPECT_FALSE(ventana.lista(u"Dir1").List().contains(u".."_s));
}

TEST(WordProcessorChooser, ListsOnlyWhatCanBeRun)
{
    EleccionDePrueba e;
    EXPECT_EQ(e.lista(u"File1"), QStringList{u"escritor"_s});
    EXPECT_EQ(e.lista(u"Dir1"), (QStringList{u".."_s, u"Otros programas"_s}));
}

TEST(WordProcessorChooser, WalksDownAndUp)
{
    EleccionDePrueba e;
    e.ventana.lista(u"Dir1").Elegir(1);
    EXPECT_EQ(e.ventana.carpeta(), e.carpeta.filePath(u"Otros programas"_s));
    EXPECT_EQ(e.lista(u"File1"), QStringList{u"otro"_s});
    e.ventana.lista(u"Dir1").Elegir(0);
    EXPECT_EQ(e.ventana.carpeta(), e.carpeta.path());
    e.ventana.lista(u"Drive1").Elegir(0);
    EXPECT_EQ(e.ventana.carpeta(), QDir::rootPath());
}

TEST(WordProcessorChooser, ShowsAndStoresTheWholePath)
{
    EleccionDePrueba e;
    e.ventana.lista(u"File1").Elegir(0);
    EXPECT_EQ(e.ventana.texto(u"SelecBox"), e.carpeta.filePath(u"escritor"_s));
    e.ventana.boton(u"Nueva").Pulsar();
    EXPECT_EQ(e.compartido.ProcesadorTextos, e.carpeta.filePath(u"escritor"_s));
    EXPECT_EQ(e.trayectoria.Text(), e.carpeta.filePath(u"escritor"_s));
    EXPECT_FALSE(e.ventana.abierta());
}

TEST(WordProcessorChooser, NothingChosenStoresNothing)
{
    EleccionDePrueba e;
    e.compartido.ProcesadorTextos = u"/viejo"_s;
    e.ventana.boton(u"Nueva").Pulsar();
    EXPECT_TRUE(e.ventana.abierta());
    e.ventana.lista(u"File1").Elegir(0);
    e.ventana.lista(u"Dir1").Elegir(1);
    EXPECT_EQ(e.ventana.texto(u"SelecBox"), QString());
    e.ventana.boton(u"SSCommand2").Pulsar();
    EXPECT_FALSE(e.ventana.abierta());
    EXPECT_EQ(e.compartido.ProcesadorTextos, u"/viejo"_s);
}

TEST(WordProcessorChooser, AFolderThatIsNotThereChangesNothing)
{
    EleccionDePrueba e;
    e.ventana.IrA(e.carpeta.filePath(u"nada"_s));
    EXPECT_EQ(e.ventana.carpeta(), e.carpeta.path());
}

TEST(WordProcessorChooser, ExplainsItself)
{
    EleccionDePrueba e;
    e.ventana.boton(u"SSCommand3").Pulsar();
    ASSERT_EQ(e.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(
        e.dialogos.mensajes[0].texto,
        u"Seleccionar por orden la unidad, directorio y programa de tratamiento de textos deseado. La lista "
        u"solo facilita los ficheros con extensión *.exe para agilizar"_s);
    EXPECT_EQ(e.dialogos.mensajes[0].titulo, u"Cuadro de selección del tratamiento de textos"_s);
    EXPECT_EQ(e.dialogos.mensajes[0].icono, IconoMensaje::Informacion);
}

} // namespace valmerix
