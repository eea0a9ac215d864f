#include "settings/options.h"

#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "support/test_database.h"

#include <QFile>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class OpcionesTest : public testing::Test, public CapturaImagenes, public EntornoOpciones
{
protected:
    OpcionesTest()
        : base(entorno.compartido)
    {
    }

    std::optional<QString> LoadCapture(FuenteImagen fuente, const QString&) override
    {
        fuentes.push_back(fuente);
        return capturada;
    }
    void MostrarBusqueda(CampoTexto& trayecto) override { trayecto.setText(u"/usr/bin/soffice"_s); }

    std::unique_ptr<Opciones> Abrir()
    {
        auto ventana = std::make_unique<Opciones>(entorno.compartido, entorno.opciones, entorno.sistema,
                                                  *this, *this, pantalla);
        ventana->Load();
        return ventana;
    }
    QString Valor(const QString& columna) { return base.Leer(u"SELECT * FROM Opciones"_s).Texto(columna); }

    EntornoDePrueba entorno;
    BaseDePrueba base;
    FakePantalla pantalla;
    std::vector<FuenteImagen> fuentes;
    std::optional<QString> capturada;
};

TEST_F(OpcionesTest, LoadShowsTheInstalledRow)
{
    const auto ventana = Abrir();
    EXPECT_EQ(ventana->Caption(), u"Configuración"_s);
    EXPECT_EQ(ventana->texto(u"Text1"), u"100"_s);
    EXPECT_EQ(ventana->texto(u"Text2"), u"50"_s);
    EXPECT_EQ(ventana->texto(u"Text3"), u"35"_s);
    EXPECT_EQ(ventana->texto(u"Text5"), u"euros"_s);
    EXPECT_EQ(ventana->texto(u"Text7"), u"2"_s);
    EXPECT_TRUE(ventana->opciones(u"Genero").Value(0));
    EXPECT_TRUE(ventana->marcada(u"chkEncabezamiento(8)"));
    EXPECT_FALSE(ventana->marcada(u"chkMembrete"));
    EXPECT_EQ(ventana->control(u"chkEncabezamiento(1)").Caption(), u"Número/Fecha Inscripción"_s);
}

TEST_F(OpcionesTest, LoadReadsTheWholeRowOnceAndNothingElse)
{
    QStringList textos;
    entorno.compartido.alEjecutarSQL = [&](QStringView, QStringView sql) { textos << sql.toString(); };
    const auto ventana = Abrir();
    EXPECT_EQ(textos, QStringList{u"SELECT * FROM Opciones"_s});
}

TEST_F(OpcionesTest, ClosingByAKeyRunsTheRuleOfTheFieldInHand)
{
    const auto ventana = Abrir();
    ventana->Enfocar(u"Text4");
    ventana->campo(u"Text4").setText({});
    EXPECT_TRUE(ventana->Cerrar());
    EXPECT_EQ(Valor(u"MonedaSingular"_s), u"peseta"_s);
    const auto otra = Abrir();
    otra->Enfocar(u"TrayecBox");
    otra->campo(u"TrayecBox").setText(u"/usr/bin/lowriter"_s);
    EXPECT_TRUE(otra->Cerrar());
    EXPECT_EQ(entorno.compartido.ProcesadorTextos, u"/usr/bin/lowriter"_s);
}

TEST_F(OpcionesTest, AnUnsetGenderOpensAsMasculine)
{
    for (const QString& genero : {u"''"_s, u"NULL"_s}) {
        base.Ejecutar(u"UPDATE Opciones SET MonedaGenero = "_s + genero);
        const auto ventana = Abrir();
        EXPECT_TRUE(ventana->opciones(u"Genero").Value(0));
        EXPECT_TRUE(ventana->Cerrar());
        EXPECT_EQ(Valor(u"MonedaGenero"_s), u"M"_s);
    }
}

TEST_F(OpcionesTest, AgesStopAtTheirLimitWithABeep)
{
    const auto ventana = Abrir();
    struct Caso
    {
        QStringView campo;
        QString tecleado;
        QString queda;
    };
    for (const Caso& caso : {Caso{u"Text1", u"101"_s, u"100"_s}, Caso{u"Text2", u"51"_s, u"50"_s},
                             Caso{u"Text3", u"36"_s, u"35"_s}}) {
        entorno.sistema.pitidos = 0;
        ventana->campo(caso.campo).setText({});
        ventana->campo(caso.campo).Teclear(caso.tecleado);
        EXPECT_EQ(ventana->texto(caso.campo), caso.queda);
        EXPECT_EQ(entorno.sistema.pitidos, 1);
        ventana->campo(caso.campo).Teclear(u"x"_s);
        EXPECT_EQ(entorno.sistema.pitidos, 2);
    }
}

TEST_F(OpcionesTest, CurrencyNamesNeverStayEmptyThroughTheKeyboard)
{
    const auto ventana = Abrir();
    const std::pair<QStringView, QString> casos[] = {
        {u"Text4", u"peseta"_s}, {u"Text5", u"pesetas"_s}, {u"Text6", u"Pt"_s}};
    for (const auto& [nombre, defecto] : casos) {
        ventana->Enfocar(nombre);
        ventana->campo(nombre).setText({});
        ventana->Enfocar(nullptr);
        EXPECT_EQ(ventana->texto(nombre), defecto);
    }
}

TEST_F(OpcionesTest, ClosingWritesTheRowWithTheSystemsStatement)
{
    const auto ventana = Abrir();
    ventana->campo(u"Text4").setText(u"corona"_s);
    ventana->campo(u"Text7").setText(u"0"_s);
    ventana->opciones(u"Genero").Pulsar(1);
    ventana->casilla(u"chkEncabezamiento(2)").Pulsar();
    ventana->casilla(u"chkMembrete").Pulsar();
    ventana->casilla(u"chkCerrar").Pulsar();
    QStringList textos;
    entorno.compartido.alEjecutarSQL = [&](QStringView, QStringView sql) { textos << sql.toString(); };
    ventana->boton(u"cmdOK").Pulsar();
    EXPECT_FALSE(ventana->abierta());
    EXPECT_EQ(textos[0],
              u"UPDATE Opciones SET EdadViviendas = 100,EdadLocales = 50,EdadNaves = 35,Trayectoria = "
              u"'',CerrarAlSalir = 'V',MonedaSingular = 'corona',MonedaPlural= 'euros',MonedaAbreviatura = "
              u"'€',MonedaDecimales = 0,MonedaGenero = 'F',Cabecera = '110111111',Membrete = 'S'"_s);
    EXPECT_EQ(Valor(u"MonedaSingular"_s), u"corona"_s);
    EXPECT_EQ(Valor(u"PerfilPiso"_s).count(u'1'), Valor(u"PerfilPiso"_s).size());
    EXPECT_EQ(entorno.compartido.FormatoMoneda, u"###,###,##0"_s);
    EXPECT_EQ(entorno.opciones.MonedaSingular, u"corona"_s);
    EXPECT_FALSE(entorno.opciones.MonedaMasculina);
}

TEST_F(OpcionesTest, AnEmptyAgeWritesNothingAndSaysNothing)
{
    const auto ventana = Abrir();
    ventana->campo(u"Text1").setText({});
    ventana->campo(u"Text4").setText(u"corona"_s);
    EXPECT_TRUE(ventana->Cerrar());
    EXPECT_EQ(Valor(u"MonedaSingular"_s), u"euro"_s);
    EXPECT_TRUE(entorno.dialogos.mensajes.empty());
    EXPECT_TRUE(entorno.dialogos.fallos.empty());
}

TEST_F(OpcionesTest, AShortHeaderTextLeavesTheBoxesBeyondItAlone)
{
    base.Ejecutar(u"UPDATE Opciones SET Cabecera = '101'"_s);
    const auto ventana = Abrir();
    EXPECT_TRUE(ventana->marcada(u"chkEncabezamiento(0)"));
    EXPECT_FALSE(ventana->marcada(u"chkEncabezamiento(1)"));
    EXPECT_TRUE(ventana->marcada(u"chkEncabezamiento(2)"));
    EXPECT_FALSE(ventana->marcada(u"chkEncabezamiento(3)"));
}

TEST_F(OpcionesTest, AMissingDatabaseOpensAndClosesInSilence)
{
    QFile::remove(base.ruta());
    const auto ventana = Abrir();
    EXPECT_TRUE(ventana->Cerrar());
}

TEST_F(OpcionesTest, TheWordProcessorsPathIsKeptInStep)
{
    const auto ventana = Abrir();
    EXPECT_EQ(entorno.compartido.ProcesadorTextos, QString());
    ventana->boton(u"cmdPath").Pulsar();
    ventana->Enfocar(u"TrayecBox");
    ventana->Enfocar(nullptr);
    EXPECT_EQ(entorno.compartido.ProcesadorTextos, u"/usr/bin/soffice"_s);
    ventana->Enfocar(u"TrayecBox");
    ventana->campo(u"TrayecBox").setText({});
    ventana->Enfocar(nullptr);
    EXPECT_EQ(entorno.compartido.ProcesadorTextos, u"Null Path"_s);
}

TEST_F(OpcionesTest, RemovingTheLogoDeletesItsFileAtTheCloseNotAtOnce)
{
    const QString logo = base.carpeta() + u"/Datos/Logo.bmp"_s;
    QFile fichero(logo);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("BM");
    fichero.close();
    const auto ventana = Abrir();
    EXPECT_EQ(ventana->como<Imagen>(u"imgLogo").Picture(), logo);
    ventana->boton(u"Command1").Pulsar();
    EXPECT_TRUE(QFile::exists(logo));
    ventana->Cerrar();
    EXPECT_FALSE(QFile::exists(logo));
}

TEST_F(OpcionesTest, ACapturedLogoIsSavedBesideTheDatabase)
{
    const QString nuevo = base.carpeta() + u"/captura.bmp"_s;
    QFile fichero(nuevo);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("BMnuevo");
    fichero.close();
    capturada = nuevo;
    const auto ventana = Abrir();
    ventana->casilla(u"optCamera").Pulsar();
    ventana->boton(u"cmdLogo").Pulsar();
    EXPECT_EQ(fuentes, std::vector<FuenteImagen>{FuenteImagen::Camara});
    ventana->Cerrar();
    QFile guardado(base.carpeta() + u"/Datos/Logo.bmp"_s);
    ASSERT_TRUE(guardado.open(QIODevice::ReadOnly));
    EXPECT_EQ(guardado.readAll(), QByteArray("BMnuevo"));
}

TEST_F(OpcionesTest, TheSourceIsTheFirstOneSetAndNoneWithoutOne)
{
    const auto ventana = Abrir();
    ventana->boton(u"cmdLogo").Pulsar();
    ventana->casilla(u"optScanner").Pulsar();
    ventana->boton(u"cmdLogo").Pulsar();
    ventana->casilla(u"optScanner").setValue(0);
    ventana->boton(u"cmdLogo").Pulsar();
    EXPECT_EQ(fuentes, std::vector<FuenteImagen>({FuenteImagen::Fichero, FuenteImagen::Escaner}));
}

TEST_F(OpcionesTest, ADatabaseOfAnotherNameIsNeverWrittenOverByALogo)
{
    const QString otra = base.carpeta() + u"/Datos/otra.mdb"_s;
    ASSERT_TRUE(QFile::rename(base.ruta(), otra));
    entorno.compartido.RutaBaseDatos = otra;
    capturada = base.carpeta() + u"/captura.bmp"_s;
    const auto ventana = Abrir();
    EXPECT_EQ(ventana->rutaLogo(), otra);
    ventana->boton(u"Command1").Pulsar();
    ventana->Cerrar();
    EXPECT_TRUE(QFile::exists(otra));
}

} // namespace
} // namespace valmerix
