#include "report/progress.h"

#include "report/report_error.h"
#include "report/viewer_fixture.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

TEST(Progress, HasItsLabelsItsBarAndASleepingTimer)
{
    VisorDePrueba v;
    Calculos calculos(v.piso.caso, *v.visor, v.sistema, v.entorno);
    EXPECT_EQ(calculos.control(u"Label1").Caption(), u"0 %"_s);
    EXPECT_EQ(calculos.control(u"Label3").Caption(), u"50 %"_s);
    EXPECT_EQ(calculos.control(u"Label2").Caption(), u"100 %"_s);
    EXPECT_FALSE(calculos.control(u"Timer1").Enabled());
    EXPECT_EQ(calculos.como<Temporizador>(u"Timer1").Interval(), 100);
}

TEST(Progress, TheTextStageFillsTheViewerAndWakesTheTimer)
{
    VisorDePrueba v;
    Calculos calculos(v.piso.caso, *v.visor, v.sistema, v.entorno);
    calculos.TipoDocumento = u"Informe"_s;
    calculos.Load();
    QString esperado = Redactar(v.piso.caso);
    EXPECT_EQ(v.texto().Text(), esperado.remove(u'\r'));
    EXPECT_TRUE(calculos.control(u"Timer1").Enabled());
    EXPECT_TRUE(v.texto().negritas().empty());
    EXPECT_TRUE(v.entorno.llamadas.isEmpty());
    EXPECT_TRUE(calculos.abierta());
}

TEST(Progress, TheTickMarksClosesAndShowsTheViewer)
{
    VisorDePrueba v;
    Calculos calculos(v.piso.caso, *v.visor, v.sistema, v.entorno);
    calculos.TipoDocumento = u"Informe"_s;
    calculos.Load();
    calculos.como<Temporizador>(u"Timer1").Tic();
    EXPECT_FALSE(calculos.control(u"Timer1").Enabled());
    EXPECT_FALSE(calculos.abierta());
    EXPECT_FALSE(v.texto().negritas().empty());
    EXPECT_DOUBLE_EQ(calculos.como<BarraProgreso>(u"ProgressBar1").Value(), 100.0);
    EXPECT_EQ(v.entorno.llamadas, QStringList{u"MostrarVisor"_s});
    EXPECT_EQ(v.visor->TipoDocumento(), u"Informe"_s);
    EXPECT_EQ(v.visor->oColNegrita().last(), u"INFORME DE TASACION"_s);
}

TEST(Progress, ACertificateHasNoBoldAndNoAlignment)
{
    VisorDePrueba v;
    v.Redactar(u"Certificado"_s);
    EXPECT_TRUE(v.texto().negritas().empty());
    for (int p = 0; p < v.texto().parrafos(); ++p)
        EXPECT_EQ(v.texto().alineacion(p), Alineacion::Izquierda);
    EXPECT_EQ(v.entorno.llamadas, QStringList{u"MostrarVisor"_s});
}

TEST(Progress, TheTemporaryFileNeverSurvives)
{
    VisorDePrueba v;
    v.Redactar();
    EXPECT_TRUE(QDir(v.carpeta.path()).entryList(QDir::Files).isEmpty());
}

TEST(Progress, TheTextPassesThroughTheFileUnchanged)
{
    QTemporaryDir carpeta;
    const QString texto = u"á ñ € 𝄞’\r\n\t\r\n"_s;
    EXPECT_EQ(PasarPorFichero(carpeta.path(), texto), texto);
    EXPECT_EQ(PasarPorFichero(carpeta.path(), QString()), QString());
}

TEST(Progress, AFolderThatCannotBeWrittenEndsTheRunWithAMessage)
{
    VisorDePrueba v;
    v.sistema.carpeta = v.ruta(u"no/existe"_s);
    Calculos calculos(v.piso.caso, *v.visor, v.sistema, v.entorno);
    try {
        calculos.Load();
        FAIL();
    } catch (const ErrorInforme& fallo) {
        EXPECT_TRUE(fallo.mensaje().startsWith(u"No se ha podido escribir "_s));
        EXPECT_TRUE(fallo.mensaje().contains(u"TASACION.TXT"_s));
    }
    EXPECT_FALSE(calculos.control(u"Timer1").Enabled());
    EXPECT_EQ(v.texto().Text(), QString());
}

TEST(Progress, DraftingAgainLosesTheEditsOfTheViewer)
{
    VisorDePrueba v;
    v.Redactar();
    const QString redactado = v.texto().Text();
    v.visor->casilla(u"chkEditable").Pulsar();
    v.texto().Editar(0, 7, u"NOTA"_s);
    EXPECT_NE(v.texto().Text(), redactado);
    v.Redactar();
    EXPECT_EQ(v.texto().Text(), redactado);
}

} // namespace valmerix
