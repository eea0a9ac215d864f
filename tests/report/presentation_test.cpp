#include "report/presentation.h"

#include "report/report_fixture.h"
#include "support/store_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A flat whose valuer and company are stored.
struct CasoConTasador
{
    AlmacenDePrueba almacen;
    CasoDePrueba piso;

    CasoConTasador()
    {
        piso.compartido = almacen.compartido;
        almacen.AltaDeTasador(u"Núria Ferrándiz"_s);
        almacen.Ejecutar(u"UPDATE Tasadores SET Domicilio = 'C/ Colón, 8', Poblacion = 'València', "
                         u"CodigoPostal = '46004', "
                         u"Provincia = 'Valencia', NIF = '22.333.444-L', Titulacion = 'Arquitecta Técnica', "
                         u"ColegioOficial = 'Aparejadores de Valencia', ColegiadoNumero = '1.877' "
                         u"WHERE Nombre = 'Núria Ferrándiz'"_s);
        almacen.Ejecutar(u"UPDATE Empresa SET Nombre = 'Tasaciones Turia, S.A.', NIF = 'A-46000000', "
                         u"NumeroInscripcion = '4.321', FechaInscripcion = '02/03/1999'"_s);
        piso.Escribir({{u"cboNombreTasador", u"Núria Ferrándiz"}});
        almacen.sql.clear();
    }
    QString Parrafo(const QString& cabecera)
    {
        piso.opciones.Cabecera = cabecera;
        return DatoCabecera(piso.caso);
    }
};

} // namespace

TEST(Presentation, SaysEveryPieceInItsOrder)
{
    CasoConTasador c;
    EXPECT_EQ(
        c.Parrafo(u"111111111"_s),
        u"Que emite Núria Ferrándiz, Arquitecta Técnica, perteneciente al Colegio Oficial de Aparejadores de "
        u"Valencia, colegiado en ejercicio número 1.877, con domicilio fiscal en C/ Colón, 8, código postal "
        u"46004 de València (Valencia) y cuyo N.I.F. es el 22.333.444-L. Dicho informe viene avalado por "
        u"Tasaciones Turia, S.A. con número de inscripción en el Banco de España 4.321 en fecha martes, 2 de "
        u"marzo de 1999, C.I.F. número A-46000000."_s);
}

TEST(Presentation, EachPieceHasItsOwnBox)
{
    CasoConTasador c;
    const QStringView piezas[] = {
        u". Dicho informe viene avalado por Tasaciones Turia, S.A.",
        u" con número de inscripción en el Banco de España 4.321 en fecha martes, 2 de "
        u"marzo de 1999, ",
        u"C.I.F. número A-46000000",
        u"Núria Ferrándiz, ",
        u"con domicilio fiscal en C/ Colón, 8, código postal 46004 de València (Valencia)",
        u" y cuyo N.I.F. es el 22.333.444-L",
        u"Arquitecta Técnica, ",
        u"perteneciente al Colegio Oficial de Aparejadores de Valencia, ",
        u"colegiado en ejercicio número 1.877, "};
    for (int i = 0; i < 9; ++i) {
        QString cabecera(9, u'0');
        cabecera[i] = u'1';
        EXPECT_EQ(c.Parrafo(cabecera), u"Que emite "_s + piezas[i].toString() + u'.');
    }
    EXPECT_EQ(c.Parrafo(u"000000000"_s), u"Que emite ."_s);
}

TEST(Presentation, TheDegreeIsKeptForTheSignatureWhateverTheBoxesSay)
{
    CasoConTasador c;
    c.Parrafo(u"000000000"_s);
    EXPECT_EQ(c.piso.ventana.control(u"cboNombreTasador").Tag(), u"Arquitecta Técnica"_s);
}

TEST(Presentation, AValuerThatIsNotStoredLeavesThePiecesEmpty)
{
    CasoConTasador c;
    c.piso.Escribir({{u"cboNombreTasador", u"Nadie"}});
    EXPECT_EQ(c.Parrafo(u"000100000"_s), u"Que emite , ."_s);
    EXPECT_EQ(c.piso.ventana.control(u"cboNombreTasador").Tag(), QString());
}

TEST(Presentation, ACompanyWithoutADateHasNone)
{
    CasoConTasador c;
    c.almacen.Ejecutar(u"UPDATE Empresa SET FechaInscripcion = '  /  /    '"_s);
    EXPECT_EQ(c.Parrafo(u"010000000"_s),
              u"Que emite  con número de inscripción en el Banco de España 4.321 en fecha , ."_s);
}

TEST(Presentation, TheParagraphAndTheSignatureComeAndGoTogether)
{
    CasoConTasador c;
    RellenarPiso(c.piso);
    c.piso.Escribir({{u"cboNombreTasador", u"Núria Ferrándiz"}});
    QStringList lineas = c.piso.lineas();
    EXPECT_FALSE(lineas.join(u'\n').contains(u"Que emite"_s));
    EXPECT_FALSE(lineas.join(u'\n').contains(u"Fdo."_s));

    c.piso.Marcar({u"Check1"});
    lineas = c.piso.lineas();
    EXPECT_EQ(lineas.mid(0, 2), (QStringList{u"INFORME DE TASACION"_s, QString()}));
    EXPECT_TRUE(lineas[2].startsWith(QString(14, u' ') + u"Que emite Núria Ferrándiz, "_s));
    EXPECT_EQ(lineas.mid(3, 4), (QStringList{QString(), QString(), u"SOLICITANTE:"_s, QString()}));
    const QString columna(40, u' ');
    EXPECT_EQ(lineas.last(8),
              (QStringList{columna + u"Valencia,  viernes, 20 de noviembre de 2026."_s,
                           columna + u"El Arquitecta Técnica"_s, QString(), QString(), QString(), QString(),
                           QString(), columna + u"Fdo.:  Núria Ferrándiz"_s}));
}

TEST(Presentation, AsksForTheValuerAndTheCompany)
{
    CasoConTasador c;
    c.almacen.sql.clear();
    c.Parrafo(u"111111111"_s);
    EXPECT_EQ(c.almacen.sql, (QStringList{u"SELECT * FROM Tasadores WHERE Nombre = 'Núria Ferrándiz'"_s,
                                          u"SELECT * FROM Empresa"_s}));
}

TEST(Presentation, AMissingDatabaseStopsTheDraft)
{
    CasoConTasador c;
    c.piso.Marcar({u"Check1"});
    c.piso.compartido.RutaBaseDatos = c.almacen.ruta(u"no.mdb"_s);
    EXPECT_THROW(c.piso.lineas(), ErrorAlmacen);
}

} // namespace valmerix
