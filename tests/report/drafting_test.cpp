#include "report/drafting.h"

#include "report/report_fixture.h"

#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A whole report kept beside the tests. VALMERIX_UPDATE_GOLDEN rewrites it.
void CompararConModelo(const CasoDePrueba& caso, const QString& nombre)
{
    QFile fichero(QString::fromUtf8(VALMERIX_TESTS_DIR) + u"/report/golden/"_s + nombre);
    const QString texto = caso.lineas().join(u'\n') + u'\n';
    if (qEnvironmentVariableIsSet("VALMERIX_UPDATE_GOLDEN")) {
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto.toUtf8());
        return;
    }
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly)) << fichero.fileName().toStdString();
    EXPECT_EQ(texto.toStdString(), fichero.readAll().toStdString());
}

} // namespace

TEST(Drafting, AFlatWithItsWholeProfile)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    CompararConModelo(piso, u"flat_full.txt"_s);
}

TEST(Drafting, AFlatWithItsProfileOffKeepsTheFixedChapters)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Perfil(false);
    piso.Escribir({{u"txtObservaciones", u""}});
    CompararConModelo(piso, u"flat_bare.txt"_s);
}

TEST(Drafting, AFlatWithItsSectionsOffIsTheSameWhateverItsLines)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    for (int i = 0; i < kApartadosDePrueba; ++i)
        piso.Apartados({i}, 0);
    piso.Escribir({{u"txtObservaciones", u""}});
    CompararConModelo(piso, u"flat_bare.txt"_s);
}

TEST(Drafting, TheSentencesOfASilentSectionAreComposedAllTheSame)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Perfil(false);
    const InformeRedactado informe = RedactarInforme(piso.caso);
    EXPECT_EQ(informe.frases.FraseDistribucion,
              u"Interiormente la vivienda se distribuye en  cocina,  galería, sala de estar, tres "
              u"dormitorios, una estancia destinada a despacho, un baño, un aseo y dos terrazas."_s);
    EXPECT_EQ(informe.frases.FraseDocumentacion,
              u"Se adjuntan escritura pública de propiedad y nota simple."_s);
    for (const QString& frase : {informe.frases.FraseDistribucion, informe.frases.FraseDocumentacion})
        EXPECT_FALSE(informe.texto.contains(frase));
}

TEST(Drafting, AnApartmentWithItsWholeProfile)
{
    CasoDePrueba apto(u"Apto"_s);
    RellenarPiso(apto);
    apto.Escribir({{u"Combo4", u"En la zona costera"}, {u"Combo5", u"Negocios de hostelería"}});
    CompararConModelo(apto, u"apartment_full.txt"_s);
}

TEST(Drafting, AHouseWithItsWholeProfile)
{
    CasoDePrueba casa(u"Casa"_s);
    RellenarPiso(casa);
    casa.frases.FrasePlantas = u" y una planta alta"_s;
    casa.Escribir({{u"ComboTipol", u"Adosada con jardín"}});
    casa.Marcar({u"CheckPis2", u"CheckHuerto"});
    CompararConModelo(casa, u"house_full.txt"_s);
}

TEST(Drafting, ChaptersMoveUpWhenOneIsSilent)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    piso.Apartados({11, 21}, 0);
    const QStringList lineas = piso.lineas();
    for (const QStringView titulo : {u"5.  CARACTERISTICAS DE LA VIVIENDA:", u"6.  OBSERVACIONES:",
                                     u"7.  CALCULO DE LOS VALORES UNITARIOS:", u"8.  VALOR DE TASACION:"})
        EXPECT_TRUE(lineas.contains(titulo.toString())) << titulo.toString().toStdString();
}

TEST(Drafting, TheBoldTextsAreTheHeadingsInTheirOrderWithEmptyOnesForTheSilent)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const QStringList todos = RedactarInforme(piso.caso).oColNegrita;
    EXPECT_EQ(todos.mid(0, 3), (QStringList{u"3.  LOCALIDAD Y ENTORNO:"_s, u"3.1. Tipo de núcleo:"_s,
                                            u"3.2. Número de habitantes:"_s}));
    EXPECT_EQ(todos.last(), u"10.  VALOR DE TASACION:"_s);
    piso.Puntos({3}, 0);
    EXPECT_EQ(RedactarInforme(piso.caso).oColNegrita[2], QString());
}

TEST(Drafting, EveryReportStartsWithFreshCounters)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    EXPECT_EQ(Redactar(piso.caso), Redactar(piso.caso));
}

TEST(Drafting, HugeTextsAndTypographyPassUnchanged)
{
    CasoDePrueba piso;
    RellenarPiso(piso);
    const QString largo(60000, u'ñ');
    piso.ventana.campo(u"txtObservaciones").setText(largo + u"’“”—𝄞"_s);
    EXPECT_TRUE(Redactar(piso.caso).contains(largo + u"’“”—𝄞\r\n"_s));
}

} // namespace valmerix
