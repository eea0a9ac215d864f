#include "support/test_form.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

TEST(Inicio, TheOptionsRuleHeadingSurfaceAndCurrency)
{
    EntornoDePrueba entorno;
    entorno.opciones.MostrarCabecera = false;
    entorno.opciones.TipoSuperficie = u"Util"_s;
    Formulario form(kDescripcionPiso, entorno.servicios);
    form.AplicarOpciones();
    EXPECT_FALSE(form.marcada(u"Check1"));
    EXPECT_TRUE(form.opciones(u"Sup").Value(0));
    entorno.opciones.MostrarCabecera = true;
    entorno.opciones.TipoSuperficie = u"Const"_s;
    form.AplicarOpciones();
    EXPECT_TRUE(form.marcada(u"Check1"));
    EXPECT_TRUE(form.opciones(u"Sup").Value(1));
    EXPECT_EQ(form.control(u"EtiquetaMoneda(5)").Caption(), u"€"_s);
}

TEST(Inicio, SentencesAndAnnexesStartEmptyButTheRestOfTheStateStays)
{
    EntornoDePrueba entorno;
    entorno.frases.FraseUrbanistica = u"antes"_s;
    entorno.calculo.ValorGaraje = Importe(5);
    entorno.calculo.ValorTotal = Importe(7);
    Formulario form(kDescripcionPiso, entorno.servicios);
    form.IniciarCampos();
    EXPECT_EQ(form.fraseUrbanistica(), QString());
    EXPECT_TRUE(form.estado().ValorGaraje.esCero());
    EXPECT_EQ(form.estado().ValorTotal, Importe(7));
    EXPECT_EQ(form.texto(u"txtFechaDesde"), u"  /  /    "_s);
}

TEST(Rejillas, AResetGivesTheWidthsAndTenRows)
{
    PisoDePrueba piso;
    const Rejilla& busqueda = piso.form.rejilla(u"fgrBusqueda");
    const Rejilla& seleccion = piso.form.rejilla(u"fgrSeleccion");
    const int anchosBusqueda[] = {0, 260, 960, 1700, 740, 600, 800, 900, 1000, 1100};
    const int anchosSeleccion[] = {0, 960, 1955, 740, 600, 800, 900, 1000, 1100};
    ASSERT_EQ(busqueda.Cols(), 10);
    ASSERT_EQ(seleccion.Cols(), 9);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(busqueda.ColWidth(i), anchosBusqueda[i]);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(seleccion.ColWidth(i), anchosSeleccion[i]);
    EXPECT_EQ(busqueda.Rows(), 10);
    EXPECT_EQ(seleccion.Rows(), 10);
    EXPECT_TRUE(busqueda.Redraw());
}

TEST(Rejillas, ANameResetsThatOneOnly)
{
    PisoDePrueba piso;
    piso.form.rejilla(u"fgrBusqueda").setTextMatrix(1, 0, u"1"_s);
    piso.form.rejilla(u"fgrSeleccion").setTextMatrix(1, 0, u"2"_s);
    piso.form.InicializarGrids(u"fgrBusqueda"_s);
    EXPECT_EQ(piso.form.rejilla(u"fgrBusqueda").TextMatrix(1, 0), QString());
    EXPECT_EQ(piso.form.rejilla(u"fgrSeleccion").TextMatrix(1, 0), u"2"_s);
    piso.form.InicializarGrids(u"fgrSeleccion"_s);
    EXPECT_EQ(piso.form.rejilla(u"fgrSeleccion").TextMatrix(1, 0), QString());
}

TEST(Imagenes, TheGridHidesThePathAndStartsEmpty)
{
    PisoDePrueba piso;
    const Rejilla& imagenes = piso.form.rejilla(u"GridImagen");
    EXPECT_EQ(imagenes.Rows(), 1);
    EXPECT_EQ(imagenes.ColWidth(0), 0);
    EXPECT_EQ(imagenes.ColWidth(1), 2500);
    EXPECT_EQ(imagenes.TextMatrix(0, 1), u"Nombre"_s);
}

TEST(Imagenes, AClickShowsThePictureThatIsStillThere)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"fachada.jpg"_s);
    QFile fichero(ruta);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.close();
    PisoDePrueba piso;
    Rejilla& imagenes = piso.form.rejilla(u"GridImagen");
    imagenes.AddItem(ruta + u"\tfachada"_s);
    imagenes.AddItem(carpeta.filePath(u"perdida.jpg"_s) + u"\tperdida"_s);
    imagenes.Pulsar(1);
    EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"fachada"_s);
    EXPECT_EQ(piso.form.como<Imagen>(u"Imagen").Picture(), ruta);
    imagenes.Pulsar(2);
    EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"perdida"_s);
    EXPECT_EQ(piso.form.como<Imagen>(u"Imagen").Picture(), QString());
    imagenes.Pulsar(0);
    EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"perdida"_s);
}

struct Medio : ::testing::Test
{
    PisoDePrueba piso;
    Rejilla rejilla{u"fgrSeleccion"_s};
    Medio() { rejilla.setColumnas({u"k"_s, u"s"_s, u"v"_s}, {0, 1, 1}); }
};

TEST_F(Medio, IsTotalValueOverTotalSurface)
{
    rejilla.AddItem(u"1\t100\t150.000,00"_s);
    rejilla.AddItem(u"2\t50,5\t90.000,00"_s);
    EXPECT_EQ(piso.form.PrecioMedio(rejilla, 1, 2), Importe(240000 / 150.5));
    const FakeDialogos::Caja& caja = piso.dialogos.mensajes.at(0);
    EXPECT_EQ(caja.texto,
              u"Se ha calculado el precio medio (1.594,68) y se realizarán los ajustes en base al mismo."_s);
    EXPECT_EQ(caja.titulo, u"Aviso"_s);
}

TEST_F(Medio, StopsAtTheFirstRowWithoutSurface)
{
    rejilla.AddItem(u"1\t100\t1000"_s);
    rejilla.AddItem(u"2\t\t9999"_s);
    rejilla.AddItem(u"3\t100\t9999"_s);
    EXPECT_EQ(piso.form.PrecioMedio(rejilla, 1, 2), Importe(10));
}

TEST_F(Medio, OfNothingIsZeroAndSaysSo)
{
    rejilla.Rellenar(10);
    EXPECT_TRUE(piso.form.PrecioMedio(rejilla, 1, 2).esCero());
    EXPECT_TRUE(piso.dialogos.mensajes.at(0).texto.contains(u"(0,00)"_s));
    rejilla.setTextMatrix(1, 1, u"0"_s);
    rejilla.setTextMatrix(1, 2, u"5"_s);
    EXPECT_TRUE(piso.form.PrecioMedio(rejilla, 1, 2).esCero());
}

// A valuer's session: page by page, key by key, in no tidy order.
TEST(Sesion, AForwardValuationTypedFromTheFirstFigureToTheLast)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxSit", u"Avinguda d'Alacant, 14, 3.º");
    piso.Teclear(u"BoxMun", u"Gandía");
    piso.form.opciones(u"SitUrb").Pulsar(0);
    piso.Teclear(u"BoxCc", u"690"); // the cost before any surface is known
    piso.Teclear(u"BoxPlantas", u"5");
    piso.Teclear(u"BoxVPP", u"4");
    piso.Teclear(u"BoxAntig", u"12");
    piso.Teclear(u"BoxConst", u"104");
    piso.Teclear(u"BoxUtil", u"88.5");
    piso.Teclear(u"BoxRepercusion", u"420.5");
    piso.Teclear(u"BoxGaraje", u"15000");
    piso.form.lista(u"Combo7").Elegir(1);
    piso.Teclear(u"BoxK", u"1.4");
    piso.Salir();
    EXPECT_TRUE(piso.pendientes());
    piso.form.boton(u"SSCommand7").Pulsar();

    const EstadoCalculo& e = piso.form.estado();
    EXPECT_EQ(piso.texto(u"BoxUtil"), u"88,50"_s);
    EXPECT_EQ(piso.texto(u"BoxSobreRasante"), u"2.400,00"_s);
    EXPECT_EQ(e.SuperficieSolar, 400.0);
    EXPECT_EQ(e.ValorReposicion, Importe(1027.7)); // 420,5 + 690 * 0,88
    EXPECT_EQ(piso.texto(u"BoxVr"), u"1.438,78"_s);
    EXPECT_EQ(piso.texto(u"BoxVivienda"), u"149.633,12"_s);
    EXPECT_EQ(piso.texto(u"BoxAnexos"), u"15.000,00"_s);
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"164.633,12"_s);
    EXPECT_FALSE(piso.pendientes());
    EXPECT_EQ(piso.frases.FraseAntiguedad, u"Tiene doce años."_s);
    EXPECT_EQ(piso.texto(u"BoxSit"), u"Avinguda d’Alacant, 14, 3.º"_s);

    piso.form.opciones(u"Sup").Pulsar(0);
    EXPECT_EQ(e.CoefConstruidaUtil, 1.18);
    EXPECT_EQ(e.ValorReposicion, Importe(1212.686));
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"165.251,80"_s);
}

TEST(Sesion, AKnownValueIsTriedAndTakenBack)
{
    PisoDePrueba piso;
    piso.Teclear(u"BoxConst", u"100");
    piso.Teclear(u"BoxCc", u"600");
    piso.Teclear(u"BoxRepercusion", u"400");
    piso.Teclear(u"BoxK", u"1");
    piso.Teclear(u"BoxProvisional", u"150000");
    piso.Salir();
    EXPECT_EQ(piso.form.estado().RepercusionSolar, Importe(900));
    piso.form.Enfocar(u"BoxRepercusion");
    piso.form.campo(u"BoxRepercusion").Teclear(u"5"_s);
    EXPECT_EQ(piso.texto(u"BoxRepercusion"), QString());
    piso.form.Enfocar(u"BoxProvisional");
    piso.form.campo(u"BoxProvisional").PulsarTecla(8);
    piso.Teclear(u"BoxRepercusion", u"400");
    piso.Salir();
    piso.form.boton(u"SSCommand7").Pulsar();
    EXPECT_EQ(piso.texto(u"BoxTotal"), u"100.000,00"_s);
}

TEST(Sesion, TabbingThroughEveryControlOfAnEmptyWindowChangesNoFieldButThePlot)
{
    PisoDePrueba piso;
    std::map<QString, QString> antes;
    for (const auto& control : piso.form.controles()) {
        if (const auto* campo = dynamic_cast<const CampoTexto*>(control.get()))
            antes[campo->nombre()] = campo->Text();
    }
    for (const auto& control : piso.form.controles())
        piso.form.Enfocar(control.get());
    piso.Salir();
    antes[u"BoxSolar"_s] = u"0,00"_s;
    for (const auto& [nombre, texto] : antes)
        EXPECT_EQ(piso.texto(nombre), texto) << nombre.toStdString();
    EXPECT_EQ(piso.sistema.pitidos, 0);
}

} // namespace

} // namespace valmerix
