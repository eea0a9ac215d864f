#include "report/printing.h"

#include "common/logo_path.h"
#include "support/fake_ports.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class ImpresionVigilada : public FakeImpresion
{
public:
    explicit ImpresionVigilada(const AlmacenDePrueba& almacen)
        : almacen_(almacen)
    {
    }

    void Previsualizar(const DocumentoImpreso& documento) override
    {
        FakeImpresion::Previsualizar(documento);
        lineasEnTabla = almacen_.Dato(u"SELECT COUNT(*) AS N FROM Informe"_s);
        fotosEnTabla = almacen_.Dato(u"SELECT COUNT(*) AS N FROM FotosInforme"_s);
    }

    QString lineasEnTabla;
    QString fotosEnTabla;

private:
    const AlmacenDePrueba& almacen_;
};

class Printing : public testing::Test
{
protected:
    AlmacenDePrueba almacen;
    ImpresionVigilada impresion{almacen};
    Rejilla fotos{u"GridImagen"_s};
    DatosImpresion datos{almacen.compartido, {}, {}, fotos, false, u"Ana Núñez"_s};

    void SetUp() override { fotos.setColumnas({{}, u"Nombre"_s}, {0, 2500}); }

    const DocumentoImpreso& Impreso()
    {
        ImprimirInforme(datos, impresion);
        return impresion.vistos.back();
    }
    QStringList Negritas()
    {
        QStringList negritas;
        for (const LineaImpresa& linea : Impreso().lineas) {
            if (linea.negrita)
                negritas << linea.texto;
        }
        return negritas;
    }
    QString Restos() const
    {
        return almacen.Dato(u"SELECT COUNT(*) AS N FROM Informe"_s) +
               almacen.Dato(u"SELECT COUNT(*) AS N FROM FotosInforme"_s);
    }
};

} // namespace

TEST_F(Printing, TheStatementsRunAsTheyAlwaysDid)
{
    fotos.AddItem(u"C:\\fotos\\a.jpg\tFachada"_s);
    datos.texto = u"INFORME DE TASACION\r\n\r\n              1.1. Tipo:\n"_s;
    datos.oColNegrita = {u"1.1. Tipo:"_s, {}, u"INFORME DE TASACION"_s};
    datos.membrete = true;
    almacen.sql.clear();
    ImprimirInforme(datos, impresion);
    const QStringList esperado{
        u"DELETE FROM Informe"_s,
        u"DELETE FROM FotosInforme"_s,
        u"INSERT INTO FotosInforme VALUES ('C:\\fotos\\a.jpg', 'Fachada')"_s,
        u"SELECT * FROM FotosInforme"_s,
        u"INSERT INTO Informe VALUES(' ','INFORME DE TASACION')"_s,
        u"INSERT INTO Informe VALUES(' ','')"_s,
        u"INSERT INTO Informe VALUES(' ','              1.1. Tipo:')"_s,
        u"UPDATE Informe SET Formato = 'N' WHERE TextoLinea LIKE '%1.1. Tipo:%'"_s,
        u"UPDATE Informe SET Formato = 'N' WHERE TextoLinea LIKE '%INFORME DE TASACION%'"_s,
        u"SELECT * FROM Empresa"_s,
        u"SELECT * FROM Informe"_s,
        u"DELETE FROM Informe"_s,
        u"DELETE FROM FotosInforme"_s,
    };
    EXPECT_EQ(almacen.sql, esperado);
}

TEST_F(Printing, ThePreviewOpensAtNinetyUnderItsCaption)
{
    almacen.compartido.NumeroTasacionActual = 12;
    const DocumentoImpreso& documento = Impreso();
    EXPECT_EQ(documento.caption, u"Previsualización de Impresión"_s);
    EXPECT_EQ(documento.zoom, 90);
    EXPECT_EQ(documento.titulo, u"Informe de tasación número 12"_s);
    EXPECT_EQ(documento.autor, u"Ana Núñez"_s);
}

TEST_F(Printing, ACaseThatIsNotStoredYetHasNoNumberInItsTitle)
{
    EXPECT_EQ(Impreso().titulo, u"Informe de tasación"_s);
}

TEST_F(Printing, LinesComeInOrderWithTheirBlanksAndWithoutCarriageReturns)
{
    for (int i = 0; i < 1000; ++i)
        datos.texto += QString(i % 43, u' ') + u"línea \r%1\r\n"_s.arg((i * 7919) % 1000);
    const DocumentoImpreso& documento = Impreso();
    ASSERT_EQ(documento.lineas.size(), 1000U);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(documento.lineas[static_cast<size_t>(i)].texto,
                  QString(i % 43, u' ') + u"línea %1"_s.arg((i * 7919) % 1000));
}

TEST_F(Printing, ALastLineWithoutItsLineFeedIsNotPrinted)
{
    datos.texto = u"primera\nsegunda"_s;
    ASSERT_EQ(Impreso().lineas.size(), 1U);
    datos.texto = u"sola"_s;
    EXPECT_TRUE(Impreso().lineas.empty());
    datos.texto.clear();
    EXPECT_TRUE(Impreso().lineas.empty());
}

TEST_F(Printing, ALineThatHoldsAHeadingAnywherePrintsBold)
{
    datos.texto = u"1.  IDENTIFICACION:\nantes 1.  IDENTIFICACION: después\nIDENTIFICACION\n"_s;
    datos.oColNegrita = {u"1.  IDENTIFICACION:"_s};
    EXPECT_EQ(Negritas(), (QStringList{u"1.  IDENTIFICACION:"_s, u"antes 1.  IDENTIFICACION: después"_s}));
}

TEST_F(Printing, ASkippedSectionBoldsNothing)
{
    datos.texto = u"uno\n\ndos\n"_s;
    datos.oColNegrita = {{}, {}};
    EXPECT_TRUE(Negritas().isEmpty());
}

TEST_F(Printing, ThePhotographsComeInTheOrderOfTheirRows)
{
    fotos.AddItem(u"/fotos/b.jpg\tSalón"_s);
    fotos.AddItem(u"/fotos/a.jpg\tCocina"_s);
    const DocumentoImpreso& documento = Impreso();
    ASSERT_EQ(documento.fotografias.size(), 2U);
    EXPECT_EQ(documento.fotografias[0].ruta, u"/fotos/b.jpg"_s);
    EXPECT_EQ(documento.fotografias[0].pie, u"Salón"_s);
    EXPECT_EQ(documento.fotografias[1].ruta, u"/fotos/a.jpg"_s);
    EXPECT_EQ(impresion.fotosEnTabla, u"2"_s);
}

TEST_F(Printing, AReportWithoutPicturesHasNoSecondReport)
{
    almacen.sql.clear();
    EXPECT_TRUE(Impreso().fotografias.empty());
    EXPECT_FALSE(almacen.sql.contains(u"SELECT * FROM FotosInforme"_s));
}

TEST_F(Printing, TheLetterheadBringsTheCompanyAndTheLogoBesideTheDatabase)
{
    almacen.Ejecutar(u"UPDATE Empresa SET Nombre = 'Tasa, S.L.', Domicilio = 'Calle Ñ', Poblacion = 'Haro', "
                     "CodigoPostal = '26200', Provincia = 'La Rioja', NIF = 'B26'"_s);
    datos.membrete = true;
    const DocumentoImpreso& documento = Impreso();
    ASSERT_TRUE(documento.membrete.has_value());
    const MembreteImpreso& membrete = *documento.membrete;
    EXPECT_EQ(membrete.Logo, almacen.ruta(u"Logo.bmp"_s));
    EXPECT_EQ(membrete.lblNombreEmpresa, u"Tasa, S.L."_s);
    EXPECT_EQ(membrete.lblDomicilio, u"Calle Ñ"_s);
    EXPECT_EQ(membrete.lblPoblación, u"Haro"_s);
    EXPECT_EQ(membrete.lblCodigoPostal, u"26200"_s);
    EXPECT_EQ(membrete.lblProvincia, u"La Rioja"_s);
    EXPECT_EQ(membrete.lblNIF, u"B26"_s);
}

TEST_F(Printing, WithoutTheOptionThereIsNoLetterhead)
{
    almacen.sql.clear();
    EXPECT_FALSE(Impreso().membrete.has_value());
    EXPECT_FALSE(almacen.sql.contains(u"SELECT * FROM Empresa"_s));
}

TEST_F(Printing, TheTablesAreFullWhileThePreviewStandsAndEmptyAfterwards)
{
    fotos.AddItem(u"/a.jpg\tA"_s);
    datos.texto = u"uno\ndos\n"_s;
    ImprimirInforme(datos, impresion);
    EXPECT_EQ(impresion.lineasEnTabla, u"2"_s);
    EXPECT_EQ(impresion.fotosEnTabla, u"1"_s);
    EXPECT_EQ(Restos(), u"00"_s);
}

TEST_F(Printing, AStraightQuoteEndsThePrintingAndTheNextOneClearsWhatItLeft)
{
    datos.texto = u"uno\nl'Hospitalet\n"_s;
    EXPECT_THROW(ImprimirInforme(datos, impresion), ErrorAlmacen);
    EXPECT_TRUE(impresion.vistos.empty());
    EXPECT_EQ(Restos(), u"10"_s) << "what ran before the failure stays done";
    datos.texto = u"l’Hospitalet\n"_s;
    ASSERT_EQ(Impreso().lineas.size(), 1U);
    EXPECT_EQ(Restos(), u"00"_s);
}

TEST_F(Printing, ACertificateHasNeitherPhotographsNorLetterhead)
{
    fotos.AddItem(u"/a.jpg\tA"_s);
    datos.texto = u"CERTIFICADO\ntexto\n"_s;
    datos.oColNegrita = {u"CERTIFICADO"_s};
    datos.membrete = true;
    almacen.sql.clear();
    ImprimirCertificado(datos, impresion);
    const DocumentoImpreso& documento = impresion.vistos.back();
    EXPECT_FALSE(documento.membrete.has_value());
    EXPECT_TRUE(documento.fotografias.empty());
    ASSERT_EQ(documento.lineas.size(), 2U);
    EXPECT_TRUE(documento.lineas[0].negrita);
    EXPECT_EQ(documento.titulo, u"Certificado de tasación"_s);
    const QStringList esperado{
        u"DELETE FROM Informe"_s,
        u"DELETE FROM FotosInforme"_s,
        u"INSERT INTO Informe VALUES(' ','CERTIFICADO')"_s,
        u"INSERT INTO Informe VALUES(' ','texto')"_s,
        u"UPDATE Informe SET Formato = 'N' WHERE TextoLinea LIKE '%CERTIFICADO%'"_s,
        u"SELECT * FROM Informe"_s,
        u"DELETE FROM Informe"_s,
        u"DELETE FROM FotosInforme"_s,
    };
    EXPECT_EQ(almacen.sql, esperado);
}

TEST_F(Printing, OnlyAReportIsPrintedAsOne)
{
    ImprimirDocumento(u"Informe", datos, impresion);
    EXPECT_EQ(impresion.vistos.back().titulo, u"Informe de tasación"_s);
    for (const QStringView tipo : {u"Certificado", u"", u"informe"}) {
        ImprimirDocumento(tipo, datos, impresion);
        EXPECT_EQ(impresion.vistos.back().titulo, u"Certificado de tasación"_s);
    }
}

TEST(LogoPath, TakesTheDatabasesPlace)
{
    EXPECT_EQ(RutaLogo(u"/d/valmerix.mdb"_s), u"/d/Logo.bmp"_s);
    EXPECT_EQ(RutaLogo(u"/d/Valmerix.mdb"_s), u"/d/Valmerix.mdb"_s) << "capitals count";
    EXPECT_EQ(RutaLogo(u"/d/otra.mdb"_s), u"/d/otra.mdb"_s);
}

TEST(LogoPath, TheLetterheadLooksBesideADatabaseOfAnyName)
{
    EXPECT_EQ(LogoJuntoA(u"/d/valmerix.mdb"_s), u"/d/Logo.bmp"_s);
    EXPECT_EQ(LogoJuntoA(u"/d/otra.mdb"_s), u"/d/Logo.bmp"_s);
}

} // namespace valmerix
