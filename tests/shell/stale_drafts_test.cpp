#include "support/running_program.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class BorradoresViejos : public testing::Test, protected ProgramaDePrueba
{
protected:
    void UnPisoGuardado()
    {
        Arrancar();
        ConTasador();
        aplicacion->NuevoCaso(0);
        forma().lista(u"cboNombreTasador").Elegir(0);
        aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    }
};

TEST_F(BorradoresViejos, ASaveDropsEveryDraftOfItsCaseAndOfNoOther)
{
    UnPisoGuardado();
    Teclear(u"BoxSit", u"Ayer"_s);
    Acabar();
    Arrancar();
    aplicacion->NuevoCaso(1);
    Teclear(u"BoxSit", u"Otra"_s);
    Acabar();
    Arrancar();
    aplicacion->AbrirCaso(u"Rosa Peña#5#P"_s);
    Teclear(u"BoxSit", u"Hoy"_s);
    PasaElTiempo();
    EXPECT_EQ(EnDisco().size(), 3);
    dialogos.respuestas = {true};
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(EnDisco().size(), 1);
    EXPECT_EQ(Leer(u"SELECT Situacion FROM Viviendas"_s).Texto(u"Situacion"), u"Hoy"_s);
    Acabar();
    Arrancar();
    EXPECT_TRUE(recuperar().ToolTip().startsWith(u"Apartamento, Otra,"_s))
        << "yesterday's text is not offered";
}

TEST_F(BorradoresViejos, ACopyIsUnsavedWorkFromTheStart)
{
    UnPisoGuardado();
    Acabar();
    Arrancar();
    aplicacion->CopiarCaso(u"Rosa Peña#5#P"_s);
    EXPECT_TRUE(forma().modificada());
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
}

TEST_F(BorradoresViejos, ADraftThatCouldNotBeWrittenIsTriedAgainAtTheEnd)
{
    UnPisoGuardado();
    QFile estorbo(QFileInfo(aplicacion->compartido().RutaBaseDatos).path() + u"/borradores"_s);
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly)); // a file where the folder should be
    estorbo.close();
    dialogos.mensajes.clear();
    Teclear(u"BoxSit", u"Lo último"_s);
    PasaElTiempo();
    PasaElTiempo();
    EXPECT_EQ(dialogos.mensajes.size(), 1u) << "told once";
    ASSERT_TRUE(estorbo.remove());
    Acabar();
    EXPECT_EQ(EnDisco().size(), 1);
}

TEST_F(BorradoresViejos, AStoredCaseThatIsGoneComesBackAsANewOne)
{
    UnPisoGuardado();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    Acabar();
    Ejecutar(u"DELETE FROM Viviendas"_s);
    Arrancar();
    recuperar().Pulsar();
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(Leer(u"SELECT Situacion FROM Viviendas"_s).Texto(u"Situacion"), u"Calle Mayor, 5"_s);
}

TEST_F(BorradoresViejos, TheNewestTwentyAreKeptAndTheOthersGoWithoutAWord)
{
    UnPisoGuardado();
    Teclear(u"BoxSit", u"Calle Mayor"_s);
    Acabar();
    Borrador viejo = FicheroBorrador::MasReciente(borradores()).value();
    const QDateTime ahora = viejo.cuando;
    QFile::remove(viejo.fichero);
    for (int dia = 1; dia <= 25; ++dia) {
        viejo.cuando = ahora.addDays(-dia);
        const QString fichero = FicheroBorrador::NombreLibre(borradores());
        ASSERT_EQ(FicheroBorrador::Escribir(fichero, FicheroBorrador::Contenido(viejo)), QString());
    }
    for (int i = 0; i < 30; ++i) { // damaged, and written later than any
        QFile roto(FicheroBorrador::NombreLibre(borradores()));
        ASSERT_TRUE(roto.open(QIODevice::WriteOnly));
    }
    Arrancar();
    dialogos.mensajes.clear();
    aplicacion->NuevoCaso(1);
    EXPECT_EQ(EnDisco().size(), 55) << "nothing goes before a newer one stands";
    Teclear(u"BoxSit", u"La última"_s);
    Acabar();
    EXPECT_EQ(EnDisco().size(), FicheroBorrador::kGuardados);
    QSet<qint64> dias;
    for (const QString& nombre : EnDisco()) {
        const auto borrador = FicheroBorrador::Leer(borradores() + u'/' + nombre);
        ASSERT_TRUE(borrador) << qPrintable(nombre);
        dias.insert(borrador->cuando.daysTo(ahora));
    }
    EXPECT_EQ(dias.size(), FicheroBorrador::kGuardados);
    EXPECT_EQ(*std::max_element(dias.begin(), dias.end()), FicheroBorrador::kGuardados - 1);
    EXPECT_TRUE(dialogos.mensajes.empty());
    Arrancar();
    EXPECT_TRUE(recuperar().ToolTip().startsWith(u"Apartamento, La última,"_s));
}

TEST_F(BorradoresViejos, TheDraftInUseStaysThoughTheClockWasPutBack)
{
    UnPisoGuardado();
    Teclear(u"BoxSit", u"Calle Mayor"_s);
    Acabar();
    const Borrador viejo = FicheroBorrador::MasReciente(borradores()).value();
    for (int i = 0; i < FicheroBorrador::kGuardados; ++i) {
        FicheroBorrador::Escribir(FicheroBorrador::NombreLibre(borradores()),
                                  FicheroBorrador::Contenido(viejo));
    }
    reloj.fecha = reloj.fecha.addYears(-1);
    Arrancar();
    aplicacion->NuevoCaso(1);
    Teclear(u"BoxSit", u"La de hoy"_s);
    Acabar();
    EXPECT_EQ(EnDisco().size(), FicheroBorrador::kGuardados);
    QStringList situaciones;
    for (const QString& nombre : EnDisco())
        situaciones << FicheroBorrador::Leer(borradores() + u'/' + nombre)->texto(u"BoxSit");
    EXPECT_TRUE(situaciones.contains(u"La de hoy"_s));
}

TEST_F(BorradoresViejos, AValuerWhoIsGoneHasToBeChosenAgain)
{
    UnPisoGuardado();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    Acabar();
    Ejecutar(u"UPDATE Tasadores SET Nombre = 'Otra'"_s);
    Arrancar();
    recuperar().Pulsar();
    EXPECT_EQ(forma().texto(u"cboNombreTasador"), QString());
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 0);
    EXPECT_EQ(forma().texto(u"BoxSit"), u"Calle Mayor, 5"_s);
}

} // namespace
} // namespace valmerix
