// The whole road of one case for each of the dwellings: button, entry, store, report, folder, opening, copy.

#include "shell/application_fixture.h"

#include "report/viewer.h"

#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

struct Camino
{
    int boton;
    QStringView letra;
    QStringView ventana;
    QStringView barra;
    QStringView color; ///< of the toolbar's second title image
    QStringView carpeta;
    QStringView inmueble;
    QStringView edificio;
};

constexpr Camino kCaminos[] = {
    {0, u"P", u"Piso", u"Valmerix - Pisos", u"230,0,0", u"Pisos",
     u"Piso o vivienda en edificio plurifamiliar.",
     u"Se trata de un edificio compuesto de planta baja destinada a uso de  y una planta alta con "},
    {1, u"A", u"Apto", u"Valmerix - Apartamentos", u"0,255,230", u"Apartamentos",
     u"El objeto de tasación del presente informe es un apartamento.",
     u"Se trata de un edificio compuesto de planta baja destinada a uso de  y una planta alta con "},
    {2, u"C", u"Casa", u"Valmerix - Casas", u"153,0,0", u"Casas",
     u"El objeto de tasación del presente informe es una vivienda unifamiliar.",
     u"Se trata de un edificio de planta baja  y una planta alta destinado a vivienda unifamiliar."},
};

constexpr QStringView kTotal = u"78.000,00"; // 100 * 600 * 1,3, whatever the kind

class CaminoDeVivienda : public AplicacionTest, public testing::WithParamInterface<Camino>
{
protected:
    void TeclearCaso()
    {
        forma().lista(u"cboNombreTasador").Elegir(0);
        Escribir(u"BoxSit", u"Camí de l’Horta, 9"_s);
        Escribir(u"BoxMun", u"Sueca"_s);
        Escribir(u"BoxPlantas", u"1"_s);
        Escribir(u"BoxConst", u"100"_s);
        Escribir(u"BoxCc", u"600"_s);
        Escribir(u"BoxK", u"1,3"_s);
        forma().opciones(u"Finalidad").Pulsar(2);
        forma().boton(u"SSCommand7").Pulsar();
    }
    QString Informe()
    {
        aplicacion->EjecutarOrden(OrdenPaleta::Informe);
        return aplicacion->visor()->Texto().Text();
    }
    QStringList HojasDe(QStringView tipo)
    {
        QStringList hojas;
        for (const CarpetaArbol& c : aplicacion->inicio()->como<Arbol>(u"Arbol").carpetas()) {
            for (const NodoArbol& hoja : c.hijos) {
                EXPECT_EQ(c.texto, tipo) << "under the folder of another kind";
                hojas << hoja.clave.toString() + u' ' + hoja.texto.toString();
            }
        }
        return hojas;
    }
};

TEST_P(CaminoDeVivienda, FromItsButtonToItsFolderAndBack)
{
    const Camino& c = GetParam();
    const QString letra = c.letra.toString();
    Arrancar();
    ConTasador();
    aplicacion->inicio()->boton(Ventana::Indice(u"SSCommand2", c.boton)).Pulsar();
    EXPECT_EQ(forma().nombre(), c.ventana);
    EXPECT_EQ(aplicacion->barra()->Caption(), c.barra);
    EXPECT_EQ(aplicacion->paleta()->control(u"Image2").Tag(), c.color);
    TeclearCaso();
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(forma().texto(u"BoxTotal"), kTotal);
    EXPECT_EQ(Leer(u"SELECT Tipo, NumeroTasacion FROM Viviendas"_s).ValorRegistroGrid(1), letra + u"\t5"_s);
    EXPECT_EQ(Leer(u"SELECT Tipo, Tasacion, Ascensor FROM Testigos"_s).ValorRegistroGrid(1),
              letra + u"\t-5\tN"_s);

    aplicacion->Reiniciar();
    const QString clave = u"Rosa Peña#5#"_s + letra;
    EXPECT_EQ(HojasDe(c.carpeta), QStringList{clave + u" Camí de l’Horta, 9 (Sueca)"_s});
    aplicacion->inicio()->como<Arbol>(u"Arbol").DoblePulsar(clave);
    EXPECT_EQ(forma().nombre(), c.ventana);
    EXPECT_EQ(forma().texto(u"BoxTotal"), kTotal);
    const QString informe = Informe();
    EXPECT_TRUE(informe.contains(c.inmueble));
    EXPECT_TRUE(informe.contains(c.edificio)) << informe.toStdString();
    EXPECT_TRUE(informe.contains(u"IMPORTE TOTAL DE TASACION:        %1 €"_s.arg(kTotal)));
}

TEST_P(CaminoDeVivienda, ACopyIsOfTheSameKind)
{
    const QString letra = GetParam().letra.toString();
    Arrancar();
    ConTasador();
    aplicacion->NuevoCaso(GetParam().boton);
    TeclearCaso();
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    aplicacion->Reiniciar();
    aplicacion->inicio()->como<Arbol>(u"Arbol").Seleccionar(u"Rosa Peña#5#"_s + letra);
    aplicacion->inicio()->boton(u"cmdCopiar").Pulsar();
    EXPECT_EQ(forma().nombre(), GetParam().ventana);
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    const auto filas = Leer(u"SELECT Tipo, NumeroTasacion FROM Viviendas ORDER BY NumeroTasacion"_s);
    ASSERT_EQ(filas.RecordCount(), 2);
    EXPECT_EQ(filas.ValorRegistroGrid(1), letra + u"\t5"_s);
    EXPECT_EQ(filas.ValorRegistroGrid(2), letra + u"\t6"_s);
}

INSTANTIATE_TEST_SUITE_P(Viviendas, CaminoDeVivienda, testing::ValuesIn(kCaminos),
                         [](const auto& caso) { return caso.param.ventana.toString().toStdString(); });

} // namespace
} // namespace valmerix
