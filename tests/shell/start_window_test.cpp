#include "shell/start_window.h"

#include "shell/case_tree.h"
#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "support/test_database.h"

#include <QFile>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class InicioTest : public testing::Test
{
protected:
    InicioTest()
        : base(entorno.compartido)
        , inicio(entorno.compartido, entorno.reloj, entorno.sistema, pantalla)
    {
        entorno.sistema.carpeta = base.carpeta();
        entorno.compartido.FormatoMoneda.clear();
        entorno.compartido.SeparadorFecha.clear();
    }

    void GuardarCaso(const QString& tabla, const QString& tasador, const QString& tipo, int numero,
                     const QString& situacion, const QString& municipio)
    {
        base.Ejecutar(u"INSERT INTO "_s + tabla +
                      u" (NombreTasador,Tipo,NumeroTasacion,Situacion,Municipio) VALUES ('"_s + tasador +
                      u"','"_s + tipo + u"',"_s + QString::number(numero) + u",'"_s + situacion + u"','"_s +
                      municipio + u"')"_s);
    }
    QStringList Textos(size_t carpeta) const
    {
        QStringList textos;
        for (const NodoArbol& n : inicio.como<Arbol>(u"Arbol").carpetas()[carpeta].hijos)
            textos << n.texto.toString();
        return textos;
    }
    Temporizador& reloj(QStringView nombre) { return inicio.como<Temporizador>(nombre); }

    EntornoDePrueba entorno;
    BaseDePrueba base;
    FakePantalla pantalla;
    Form1 inicio;
};

TEST_F(InicioTest, AnEmptyDatabaseGivesSixFoldersWithNoChildren)
{
    inicio.Load();
    const auto& carpetas = inicio.como<Arbol>(u"Arbol").carpetas();
    ASSERT_EQ(carpetas.size(), 6u);
    QStringList rotulos;
    for (const CarpetaArbol& c : carpetas) {
        rotulos << c.clave + u' ' + c.texto;
        EXPECT_TRUE(c.hijos.empty());
    }
    EXPECT_EQ(rotulos, (QStringList{u"P Pisos"_s, u"A Apartamentos"_s, u"C Casas"_s, u"L Locales"_s,
                                    u"N Naves"_s, u"T Terrenos"_s}));
}

TEST_F(InicioTest, LeavesStandUnderTheFolderOfTheirLetterInTheOrderOfTheirText)
{
    GuardarCaso(u"Viviendas"_s, u"Rosa"_s, u"P"_s, 1, u"Calle Zurbano, 3"_s, u"Madrid"_s);
    GuardarCaso(u"Viviendas"_s, u"Rosa"_s, u"P"_s, 2, u"Ávila, 9"_s, u"Barcelona"_s);
    GuardarCaso(u"Viviendas"_s, u"Pau"_s, u"P"_s, 1, u"avenida del Puerto, 1"_s, u"València"_s);
    GuardarCaso(u"Viviendas"_s, u"Pau"_s, u"A"_s, 5, u"Playa, 2"_s, u"Dénia"_s);
    GuardarCaso(u"Locales"_s, u"Pau"_s, u"L"_s, 6, QString(), QString());
    inicio.Load();
    EXPECT_EQ(Textos(0), (QStringList{u"avenida del Puerto, 1 (València)"_s, u"Ávila, 9 (Barcelona)"_s,
                                      u"Calle Zurbano, 3 (Madrid)"_s}));
    EXPECT_EQ(Textos(1), QStringList{u"Playa, 2 (Dénia)"_s});
    EXPECT_TRUE(Textos(2).isEmpty());
    EXPECT_EQ(Textos(3), QStringList{u" ()"_s});
}

TEST_F(InicioTest, LeavesKeepEveryLetterOfTheirTexts)
{
    GuardarCaso(u"Viviendas"_s, u"Íñigo €"_s, u"P"_s, 1, u"Plaça d’Àngel 𝄞, 5.ª"_s, u"L’Alcúdia"_s);
    GuardarCaso(u"Viviendas"_s, u"Íñigo €"_s, u"P"_s, -2147483648, u"ß\uFEFF߿ࠀ￿"_s, u"Peñíscola"_s);
    inicio.Load();
    EXPECT_EQ(Textos(0),
              (QStringList{u"Plaça d’Àngel 𝄞, 5.ª (L’Alcúdia)"_s, u"ß\uFEFF߿ࠀ￿ (Peñíscola)"_s}));
    const auto& hijos = inicio.como<Arbol>(u"Arbol").carpetas()[0].hijos;
    EXPECT_EQ(hijos[0].clave, u"Íñigo €#1#P"_s);
    EXPECT_EQ(hijos[1].clave, u"Íñigo €#-2147483648#P"_s);
}

TEST_F(InicioTest, KeysHoldTheNameSoThatTwoValuersMayHaveTheSameNumber)
{
    GuardarCaso(u"Viviendas"_s, u"Rosa"_s, u"P"_s, 1, u"B"_s, u"M"_s);
    GuardarCaso(u"Viviendas"_s, u"Pau"_s, u"P"_s, 1, u"A"_s, u"M"_s);
    inicio.Load();
    const auto& hijos = inicio.como<Arbol>(u"Arbol").carpetas()[0].hijos;
    EXPECT_EQ(hijos[0].clave, u"Pau#1#P"_s);
    EXPECT_EQ(hijos[1].clave, u"Rosa#1#P"_s);
}

TEST_F(InicioTest, TheQueryOfEachFolderIsTheSystemsOwn)
{
    QStringList textos;
    entorno.compartido.alEjecutarSQL = [&](QStringView, QStringView sql) { textos << sql.toString(); };
    inicio.Load();
    QStringList esperado;
    for (const auto& [tabla, letra] : {std::pair{u"Viviendas"_s, u"P"_s},
                                       {u"Viviendas"_s, u"A"_s},
                                       {u"Viviendas"_s, u"C"_s},
                                       {u"Locales"_s, u"L"_s},
                                       {u"Naves"_s, u"N"_s},
                                       {u"Terrenos"_s, u"T"_s}}) {
        esperado << u"SELECT NombreTasador, NumeroTasacion, Tipo, Situacion, Municipio FROM %1 WHERE Tipo = "
                    u"'%2' ORDER BY NombreTasador, NumeroTasacion"_s.arg(tabla, letra);
    }
    esperado << u"SELECT MonedaDecimales FROM Opciones"_s;
    EXPECT_EQ(textos, esperado);
}

TEST_F(InicioTest, TheStartFixesSeparatorPatternAndPlace)
{
    inicio.Load();
    EXPECT_EQ(entorno.compartido.SeparadorFecha, u"/"_s);
    EXPECT_EQ(entorno.compartido.FormatoMoneda, u"###,###,##0.00"_s);
    EXPECT_EQ(inicio.lugar().x(), (1280 - inicio.lugar().width()) / 2);
    EXPECT_EQ(inicio.lugar().y(), (800 - inicio.lugar().height()) / 2);
    EXPECT_EQ(entorno.sistema.punteros, (std::vector<bool>{true, false}));
    EXPECT_FALSE(entorno.compartido.RestauracionHecha);
}

TEST_F(InicioTest, NoDecimalsGiveAPatternWithoutDecimalMark)
{
    base.Ejecutar(u"UPDATE Opciones SET MonedaDecimales = 0"_s);
    inicio.Load();
    EXPECT_EQ(entorno.compartido.FormatoMoneda, u"###,###,##0"_s);
}

TEST_F(InicioTest, SettingsWithNoRowLeaveThePatternEmpty)
{
    base.Ejecutar(u"DELETE FROM Opciones"_s);
    inicio.Load();
    EXPECT_EQ(entorno.compartido.FormatoMoneda, QString());
}

TEST_F(InicioTest, ASecondInstanceEndsAtOnceAfterCentring)
{
    entorno.sistema.otra = true;
    inicio.Load();
    EXPECT_EQ(entorno.sistema.finales, std::vector<int>{0});
    EXPECT_NE(inicio.lugar().x(), 0);
    EXPECT_TRUE(inicio.como<Arbol>(u"Arbol").carpetas().empty());
    EXPECT_TRUE(entorno.dialogos.mensajes.empty());
}

TEST_F(InicioTest, AMissingDatabaseEndsTheStartWithTheStoresError)
{
    QFile::remove(base.ruta());
    EXPECT_THROW(inicio.Load(), ErrorAlmacen);
}

TEST_F(InicioTest, TheIniKeySaysWhereTheDatabaseIs)
{
    QFile ini(base.carpeta() + u"/Valmerix.ini"_s);
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Datos]\r\nRutaAcceso=/no/existe/otra.mdb\r\n");
    ini.close();
    EXPECT_EQ(RutaBaseDatosConfigurada(entorno.sistema), u"/no/existe/otra.mdb"_s);
}

TEST_F(InicioTest, TheTitleShowsALetterATickThenTheRest)
{
    inicio.Load();
    EXPECT_EQ(reloj(u"Timer2").Interval(), 60);
    EXPECT_EQ(reloj(u"Timer1").Interval(), 4000);
    EXPECT_FALSE(reloj(u"Timer1").Enabled());
    QString vistas;
    for (int tic = 0; tic < 8; ++tic) {
        reloj(u"Timer2").Tic();
        vistas += inicio.control(Ventana::Indice(u"Label1", tic)).Caption();
        EXPECT_TRUE(inicio.control(Ventana::Indice(u"Label1", tic)).Visible());
        EXPECT_FALSE(inicio.control(u"Label2").Visible());
    }
    EXPECT_EQ(vistas, u"VALMERIX"_s);
    reloj(u"Timer2").Tic();
    EXPECT_TRUE(inicio.control(u"Label2").Visible());
    EXPECT_TRUE(inicio.control(u"Label3").Visible());
    EXPECT_FALSE(reloj(u"Timer2").Enabled());
    EXPECT_TRUE(reloj(u"Timer1").Enabled());
    EXPECT_FALSE(inicio.control(u"Arbol").Visible());
    reloj(u"Timer1").Tic();
    EXPECT_TRUE(inicio.control(u"Arbol").Visible());
    EXPECT_TRUE(inicio.control(u"cmdCopiar").Visible());
    EXPECT_FALSE(inicio.control(u"Label1(0)").Visible());
    EXPECT_FALSE(inicio.control(u"Image1").Visible());
    EXPECT_FALSE(reloj(u"Timer1").Enabled());
}

TEST_F(InicioTest, AClickOnThePictureEndsTheTitle)
{
    inicio.Load();
    EXPECT_EQ(inicio.como<Imagen>(u"Image1").Picture(), base.carpeta() + u"/fondo.bmp"_s);
    inicio.como<Imagen>(u"Image1").Pulsar();
    EXPECT_TRUE(inicio.control(u"Picture1").Visible());
    EXPECT_TRUE(inicio.control(u"SSPanel1").Visible());
    EXPECT_FALSE(reloj(u"Timer2").Enabled());
}

TEST_F(InicioTest, AfterARestartTheTitleDoesNotPlayButTheTreeIsReadAgain)
{
    GuardarCaso(u"Viviendas"_s, u"Rosa"_s, u"P"_s, 1, u"Mayor, 1"_s, u"Alcoi"_s);
    entorno.compartido.MostrarPortada = u"NO"_s;
    inicio.Load();
    EXPECT_TRUE(inicio.control(u"Arbol").Visible());
    EXPECT_EQ(inicio.como<Imagen>(u"Image1").Picture(), QString());
    EXPECT_EQ(Textos(0), QStringList{u"Mayor, 1 (Alcoi)"_s});
}

TEST_F(InicioTest, EscapeAsksForTheExitAndClosingDropsThePicture)
{
    int salidas = 0;
    QObject::connect(&inicio, &Form1::SalidaPedida, [&] { ++salidas; });
    inicio.Load();
    inicio.PulsarTecla(Qt::Key_Escape);
    inicio.PulsarTecla(Qt::Key_A);
    EXPECT_EQ(salidas, 1);
    inicio.Cerrar();
    EXPECT_EQ(inicio.como<Imagen>(u"Image1").Picture(), QString());
}

TEST(ClaveDelArbol, AFolderHasNoCase)
{
    EXPECT_FALSE(PartirClave(u"P"_s));
    const auto clave = PartirClave(u"Mª José Peña#12#P"_s);
    ASSERT_TRUE(clave);
    EXPECT_EQ(clave->NombreTasador, u"Mª José Peña"_s);
    EXPECT_EQ(clave->NumeroTasacion, 12);
    EXPECT_EQ(clave->Tipo, u"P"_s);
}

} // namespace
} // namespace valmerix
