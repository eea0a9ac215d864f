#include "support/store_fixture.h"
#include "support/test_form.h"

#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A new installation with two valuers.
struct ConBase : ::testing::Test
{
    AlmacenDePrueba almacen;
    EntornoDePrueba entorno;

    ConBase()
    {
        entorno.compartido = almacen.compartido;
        Tasador(u"Ruiz, Berta"_s, u"Xàtiva"_s, u"Valencia"_s);
        Tasador(u"Álvarez, Ana"_s, u"Teruel"_s, u"Teruel"_s);
    }

    void Tasador(const QString& nombre, const QString& poblacion, const QString& provincia) const
    {
        Ejecutar(
            u"INSERT INTO Tasadores (Nombre, Contador, Poblacion, Provincia) VALUES ('%1', 0, '%2', '%3')"_s
                .arg(nombre, poblacion, provincia));
    }

    void Ejecutar(const QString& sql) const { almacen.Ejecutar(sql); }
    QString Opcion(QStringView campo) const { return almacen.Leer(u"SELECT * FROM Opciones"_s).Texto(campo); }
};

TEST_F(ConBase, TheStartFillsValuersOptionsAndDate)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    EXPECT_EQ(piso.lista(u"cboNombreTasador").List(), (QStringList{u"Álvarez, Ana"_s, u"Ruiz, Berta"_s}));
    EXPECT_EQ(piso.texto(u"cboNombreTasador"), QString());
    EXPECT_TRUE(piso.opciones(u"Sup").Value(1));
    EXPECT_TRUE(piso.marcada(u"Check1"));
    EXPECT_EQ(piso.texto(u"BoxFecha"), u"20/11/2026"_s);
    EXPECT_EQ(piso.control(u"EtiquetaMoneda(1)").Caption(), u"€/m²"_s);
    EXPECT_EQ(entorno.sistema.punteros, (std::vector<bool>{true, false}));
    EXPECT_EQ(entorno.entorno.llamadas, QStringList{u"MostrarPaleta(true)"_s});
    EXPECT_TRUE(entorno.compartido.PaletaAbierta);
}

TEST_F(ConBase, WithoutARowOfOptionsTheWindowOpensAsItIs)
{
    Ejecutar(u"DELETE FROM Opciones"_s);
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    EXPECT_EQ(piso.opciones(u"Sup").elegida(), -1);
    EXPECT_FALSE(piso.marcada(u"Check1"));
}

TEST_F(ConBase, ChoosingAValuerBringsTownAndProvince)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    piso.lista(u"cboNombreTasador").Elegir(1);
    EXPECT_EQ(piso.texto(u"BoxPlaza"), u"Xàtiva"_s);
    EXPECT_EQ(piso.texto(u"BoxProv"), u"Valencia"_s);
    EXPECT_EQ(piso.texto(u"BoxProvSol"), u"Valencia"_s);
}

TEST_F(ConBase, TheValuersAreReadAgainBehindTheirRecord)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    piso.lista(u"cboNombreTasador").Elegir(1);
    Tasador(u"Bosch, Carles"_s, {}, {});
    piso.boton(u"BotonFicha").Pulsar();
    EXPECT_EQ(entorno.entorno.llamadas.last(), u"MostrarFicha"_s);
    EXPECT_EQ(piso.lista(u"cboNombreTasador").ListCount(), 3);
    EXPECT_EQ(piso.texto(u"cboNombreTasador"), u"Ruiz, Berta"_s);
    Ejecutar(u"DELETE FROM Tasadores WHERE Nombre = 'Ruiz, Berta'"_s);
    piso.boton(u"BotonFicha").Pulsar();
    EXPECT_EQ(piso.texto(u"cboNombreTasador"), QString());
}

TEST_F(ConBase, TheEndStoresSurfaceHeadingAndProfileForTheNextOfItsKind)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    piso.opciones(u"Sup").Elegir(0);
    piso.casilla(u"Check1").setValue(0);
    piso.casilla(u"chkApartados(3)").setValue(0);
    piso.casilla(u"chkPuntos(15)").setValue(0);
    piso.Mover({7, 8, 900, 600});
    const QString perfil = piso.perfil();
    EXPECT_TRUE(piso.Cerrar());
    EXPECT_EQ(almacen.sql.last(),
              u"UPDATE Opciones SET TipoSuperficie = 'Util', MostrarCabecera = 'F', PerfilPiso = '"_s +
                  perfil + u"'"_s);
    EXPECT_EQ(Opcion(u"TipoSuperficie"), u"Util"_s);
    EXPECT_EQ(Opcion(u"MostrarCabecera"), u"F"_s);
    EXPECT_EQ(Opcion(u"PerfilPiso"), perfil);
    EXPECT_EQ(entorno.compartido.PosicionTop, 8.0F);

    Formulario otro(kDescripcionPiso, entorno.servicios);
    otro.Load();
    EXPECT_EQ(otro.perfil(), perfil);
    EXPECT_TRUE(otro.opciones(u"Sup").Value(0));
    EXPECT_FALSE(otro.marcada(u"Check1"));
}

TEST_F(ConBase, EachKindStoresItsProfileInItsOwnColumn)
{
    const auto cerrar = [this](const DescripcionForma& descripcion, QStringView apagada) {
        Formulario forma(descripcion, entorno.servicios);
        forma.Load();
        forma.casilla(apagada).setValue(0);
        forma.Cerrar();
        return almacen.sql.last();
    };
    const QString comienzo = u"UPDATE Opciones SET TipoSuperficie = 'Const', MostrarCabecera = 'V', "_s;
    QString apto(39, u'1');
    apto[38] = u'0';
    EXPECT_EQ(cerrar(kDescripcionApto, u"chkPuntos(15)"),
              comienzo + u"PerfilApartamento = '"_s + apto + u"'"_s);
    QString casa(36, u'1');
    casa[23] = u'0';
    EXPECT_EQ(cerrar(kDescripcionCasa, u"chkPuntos(0)"), comienzo + u"PerfilCasa = '"_s + casa + u"'"_s);
    EXPECT_EQ(Opcion(u"PerfilPiso"), QString(39, u'1'));
    EXPECT_EQ(Opcion(u"PerfilApartamento"), apto);
    EXPECT_EQ(Opcion(u"PerfilCasa"), casa);
}

TEST_F(ConBase, AStoreThatCannotBeOpenedStopsTheStartAndGivesThePointerBack)
{
    entorno.compartido.RutaBaseDatos = almacen.ruta(u"falta.mdb"_s);
    Formulario piso(kDescripcionPiso, entorno.servicios);
    EXPECT_THROW(piso.Load(), ErrorAlmacen);
    EXPECT_EQ(entorno.sistema.punteros.back(), false);
}

TEST_F(ConBase, WhatWasTypedStaysWhenTheEndFails)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    piso.Enfocar(u"BoxSit");
    piso.campo(u"BoxSit").Teclear(u"Calle Mayor"_s);
    ASSERT_TRUE(QFile::remove(entorno.compartido.RutaBaseDatos));
    EXPECT_THROW(piso.Cerrar(), ErrorAlmacen);
    EXPECT_TRUE(piso.abierta());
    EXPECT_EQ(piso.texto(u"BoxSit"), u"Calle Mayor"_s);
}

TEST_F(ConBase, TheComparablesAndPicturesOfTheCaseFillTheirGrids)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    piso.lista(u"cboNombreTasador").Elegir(1);
    entorno.compartido.NumeroTasacionActual = 4;
    for (const int numero : {-9, 12}) {
        const QString origen = numero < 0 ? u"I"_s : u"E"_s;
        Ejecutar(u"INSERT INTO Testigos (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Antiguedad, Ascensor, "
                 u"Dormitorios, "
                 u"Superficie, ValorFinal) VALUES ('%1', 'P', %2, '2026-03-05', 'Calle Ancha', '46001', 12, "
                 u"'S', 3, 90.5, "
                 u"150000.5)"_s.arg(origen)
                     .arg(numero));
        Ejecutar(u"INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES "
                 u"('Ruiz, Berta', 'P', 4, '%1', %2)"_s.arg(origen)
                     .arg(numero));
    }
    Ejecutar(u"INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES "
             u"('Ruiz, Berta', 'C', 4, 'E', 13)"_s);
    Ejecutar(u"INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES "
             u"('Ruiz, Berta', 'P', 4, 'fachada', '/fotos/fachada.jpg')"_s);
    piso.CargaGridTestigosAsociados();
    piso.CargaGridImagenesAsociadas();

    const Rejilla& testigos = piso.rejilla(u"fgrSeleccion");
    EXPECT_EQ(testigos.Rows(), 10);
    QStringList claves{testigos.TextMatrix(1, 0), testigos.TextMatrix(2, 0)};
    claves.sort();
    EXPECT_EQ(claves, (QStringList{u"-9"_s, u"12"_s}));
    EXPECT_EQ(testigos.TextMatrix(1, 1), u"05/03/2026"_s);
    EXPECT_EQ(testigos.TextMatrix(1, 8), u"150.000,50"_s);
    EXPECT_EQ(testigos.TextMatrix(3, 0), QString());
    EXPECT_EQ(piso.PrecioMedio(testigos, 7, 8), Importe(300001.0 / 181.0));

    const Rejilla& imagenes = piso.rejilla(u"GridImagen");
    EXPECT_EQ(imagenes.Rows(), 2);
    EXPECT_EQ(imagenes.TextMatrix(1, 0), u"/fotos/fachada.jpg"_s);
    EXPECT_EQ(imagenes.TextMatrix(1, 1), u"fachada"_s);
}

TEST_F(ConBase, TheQueriesAreTheseLiterally)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    EXPECT_TRUE(almacen.sql.contains(u"SELECT Nombre FROM Tasadores ORDER BY Nombre"_s));
    piso.lista(u"cboNombreTasador").Elegir(1);
    EXPECT_EQ(almacen.sql.last(),
              u"SELECT Poblacion, Provincia FROM Tasadores WHERE Nombre = 'Ruiz, Berta'"_s);
    entorno.compartido.NumeroTasacionActual = 4;
    piso.CargaGridImagenesAsociadas();
    EXPECT_EQ(
        almacen.sql.last(),
        u"SELECT Ruta, Nombre FROM ImagenesAsociadas WHERE NombreTasador = 'Ruiz, Berta' AND NumeroTasacion = 4"_s);
    piso.CargaGridTestigosAsociados();
    AccesoDatos::clsConsulta consulta;
    const QString u = consulta.sUnion();
    EXPECT_EQ(almacen.sql.last(), u"SELECT Tasacion, "_s +
                                      consulta.FormatoFechaSelect(u"Fecha"_s, u"FechaF"_s) +
                                      u", Situacion, CP, Antiguedad, Ascensor, Dormitorios, Superficie, "_s +
                                      consulta.FormatoMonedaSelect(u"ValorFinal"_s, 2, u"ValorFinalF"_s) +
                                      u" FROM Testigos WHERE Tipo "_s + u + u"'#'"_s + u +
                                      u" Tasacion IN (SELECT  Tipo "_s + u + u"'#'"_s + u +
                                      u" Testigo FROM TestigosInforme WHERE NombreTasador = 'Ruiz, Berta' "
                                      u"AND Tipo = 'P' AND NumeroTasacion "
                                      u"= 4)"_s);
}

TEST_F(ConBase, ACaseWithoutComparablesLeavesTheGridAsItIs)
{
    Formulario piso(kDescripcionPiso, entorno.servicios);
    piso.Load();
    piso.lista(u"cboNombreTasador").Elegir(0);
    piso.rejilla(u"fgrSeleccion").setTextMatrix(1, 0, u"7"_s);
    entorno.compartido.NumeroTasacionActual = 4;
    piso.CargaGridTestigosAsociados();
    EXPECT_EQ(piso.rejilla(u"fgrSeleccion").TextMatrix(1, 0), u"7"_s);
    EXPECT_EQ(piso.rejilla(u"fgrSeleccion").Rows(), 10);
}

} // namespace

} // namespace valmerix
