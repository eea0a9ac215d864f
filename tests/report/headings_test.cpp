#include "report/headings.h"

#include "report/heading_rules.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A window of 26 sections and 16 points, all off.
struct VentanaDeApartados
{
    Ventana ventana{u"Trno"_s};
    EstadoCalculo calculo;
    FrasesInforme frases;
    OpcionesPrograma opciones;
    EstadoCompartido compartido;
    CasoInforme caso{ventana, u"Trno"_s, calculo, frases, opciones, compartido};

    VentanaDeApartados()
    {
        for (int i = 0; i < 26; ++i)
            ventana.Añadir<Casilla>(Ventana::Indice(u"chkApartados", i));
        for (int i = 0; i < 16; ++i)
            ventana.Añadir<Casilla>(Ventana::Indice(u"chkPuntos", i));
        ventana.Añadir<CampoTexto>(u"txtObservaciones"_s);
        ventana.Añadir<CampoTexto>(u"BoxPorcen"_s);
    }

    void A(int i, int valor = 1) { ventana.casilla(Ventana::Indice(u"chkApartados", i)).setValue(valor); }
    void P(int i, int valor = 1) { ventana.casilla(Ventana::Indice(u"chkPuntos", i)).setValue(valor); }
    bool Sale(Clase clase, const QString& titulo)
    {
        Titulador titulador(caso, clase);
        return !titulador.GetNumber(titulo, 0, 0).isEmpty();
    }
};

struct Fila
{
    QStringView titulo;
    Clase clase;
    std::vector<int> apartados; ///< any one of them
    std::vector<int> puntos;    ///< and any one of these
};

std::vector<int> De(int desde, int hasta)
{
    std::vector<int> indices;
    for (int i = desde; i <= hasta; ++i)
        indices.push_back(i);
    return indices;
}

const std::vector<Fila>& Filas()
{
    static const std::vector<Fila> kFilas = {
        {u"LOCALIDAD Y ENTORNO", Clase::Piso, De(0, 6), {}},
        {u"CARACTERISTICAS DEL EDIFICIO", Clase::Piso, {7}, De(5, 15)},
        {u"CARACTERISTICAS DEL EDIFICIO", Clase::Apto, {7}, De(5, 15)},
        {u"CARACTERISTICAS DEL EDIFICIO", Clase::Casa, {7}, De(5, 12)},
        {u"CARACTERISTICAS DEL EDIFICIO", Clase::Nave, {7}, De(5, 12)},
        {u"CARACTERISTICAS DEL EDIFICIO", Clase::Loca, {7}, De(5, 10)},
        {u"CARACTERISTICAS DE LA NAVE", Clase::Nave, De(12, 19), {}},
        {u"CARACTERISTICAS DEL LOCAL", Clase::Loca, De(14, 21), {}},
        {u"CARACTERISTICAS DE LA VIVIENDA", Clase::Casa, De(12, 20), {}},
        {u"REGIMEN DE TENENCIA", Clase::Finca, {11}, {}},
        {u"DESCRIPCION DE LA FINCA", Clase::Finca, {8, 9, 19}, {}},
        {u"EDIFICACIONES EXISTENTES", Clase::Finca, {10}, {}},
        {u"SITUACION URBANISTICA", Clase::Piso, {11}, {}},
        {u"SITUACION URBANISTICA", Clase::Apto, {11}, {}},
        {u"SITUACION URBANISTICA", Clase::Casa, {8}, {}},
        {u"SITUACION URBANISTICA", Clase::Nave, {8}, {}},
        {u"SITUACION URBANISTICA", Clase::Loca, {8}, {}},
        {u"SITUACION URBANISTICA", Clase::Solar, {19}, {}},
        {u"SITUACION URBANISTICA", Clase::Finca, {25}, {}},
        {u"DOCUMENTACION", Clase::Piso, {21}, {}},
        {u"DOCUMENTACION", Clase::Nave, {20}, {}},
        {u"DOCUMENTACION", Clase::Loca, {22}, {}},
        {u"DOCUMENTACION", Clase::Solar, {23}, {}},
        {u"DOCUMENTACION", Clase::Finca, {20}, {}},
        {u"CALCULO DE LOS VALORES UNITARIOS", Clase::Piso, {22}, {}},
        {u"CALCULO DE LOS VALORES UNITARIOS", Clase::Nave, {21}, {}},
        {u"CALCULO DE LOS VALORES UNITARIOS", Clase::Loca, {23}, {}},
        {u"Tipo de núcleo", Clase::Piso, {1}, {}},
        {u"Número de habitantes", Clase::Piso, {1}, {3}},
        {u"Crecimiento de la población", Clase::Piso, {1}, {2}},
        {u"Delimitación del entorno", Clase::Piso, {4}, {}},
        {u"Actividad dominante", Clase::Piso, {1}, {0}},
        {u"Nivel de Renta", Clase::Piso, {1}, {1}},
        {u"Rasgos urbanos del entorno", Clase::Piso, {2, 3, 5, 6}, {}},
        {u"Descripción y usos", Clase::Piso, {7, 8}, {}},
        {u"Descripción y usos", Clase::Apto, {7, 8}, {}},
        {u"Descripción y usos", Clase::Casa, {7}, {}},
        {u"Descripción y usos", Clase::Nave, {7}, {}},
        {u"Descripción y usos", Clase::Loca, {7, 9}, {}},
        {u"Tipología", Clase::Piso, {7}, {10}},
        {u"Uso y destino actual", Clase::Nave, {7}, {8}},
        {u"Características constructivas", Clase::Piso, {7}, {13, 14, 15}},
        {u"Características constructivas", Clase::Casa, {7}, {10, 11, 12}},
        {u"Características constructivas", Clase::Loca, {7}, {8, 9, 10}},
        {u"Antigüedad del edificio", Clase::Piso, {7}, {8}},
        {u"Antigüedad del edificio", Clase::Casa, {7}, {6}},
        {u"Antigüedad del edificio", Clase::Nave, {7}, {6}},
        {u"Antigüedad del edificio", Clase::Loca, {7}, {6}},
        {u"Tipificación industrial", Clase::Nave, {9}, {}},
        {u"Servicios comunes", Clase::Piso, {9}, {}},
        {u"Servicios individuales", Clase::Casa, {10}, {}},
        {u"Servicios individuales", Clase::Nave, {10}, {}},
        {u"Situación actual", Clase::Piso, {10}, {}},
        {u"Situación actual", Clase::Casa, {11}, {}},
        {u"Situación actual", Clase::Loca, {11}, {}},
        {u"Tipología de la nave", Clase::Nave, {12}, {}},
        {u"Descripción", Clase::Loca, {14}, {}},
        {u"Accesibilidad y tráfico", Clase::Loca, {4}, {}},
        {u"Tipología de la vivienda", Clase::Piso, {12}, {}},
        {u"Superficies", Clase::Piso, {18}, {}},
        {u"Superficies", Clase::Nave, {17}, {}},
        {u"Superficies", Clase::Loca, {19}, {}},
        {u"Situación actual (inmueble)", Clase::Piso, {19}, {}},
        {u"Situación actual (inmueble)", Clase::Nave, {18}, {}},
        {u"Situación actual (inmueble)", Clase::Loca, {20}, {}},
        {u"Evaluación de los materiales empleados", Clase::Piso, {20}, {}},
        {u"Evaluación de los materiales empleados", Clase::Nave, {19}, {}},
        {u"Evaluación de los materiales empleados", Clase::Loca, {21}, {}},
        {u"Clasificación urbanística", Clase::Solar, {12}, {}},
        {u"Estado del planeamiento", Clase::Solar, {13}, {}},
        {u"Masas de cultivo", Clase::Finca, {9}, {}},
        {u"Sistema de riego", Clase::Finca, {8}, {}},
        {u"Cargas y mejoras de la finca", Clase::Finca, {19}, {}},
        {u"Significación", Clase::Piso, {4}, {}},
        {u"Infraestructura", Clase::Piso, {2}, {}},
        {u"Equipamiento", Clase::Piso, {5, 6}, {}},
        {u"Comunicaciones", Clase::Piso, {3}, {}},
        {u"Tipificación comercial", Clase::Loca, {5}, {}},
        {u"Equipamiento y accesos", Clase::Finca, {5, 6, 7}, {}},
        {u"Equipamiento y comunicaciones", Clase::Solar, {14, 15, 16}, {}},
        {u"Estructura", Clase::Piso, {}, {13}},
        {u"Estructura", Clase::Casa, {}, {10}},
        {u"Estructura", Clase::Loca, {}, {8}},
    };
    return kFilas;
}

} // namespace

TEST(Headings, EachIsPrintedByExactlyTheBoxesOfItsRule)
{
    VentanaDeApartados v;
    for (const Fila& fila : Filas()) {
        SCOPED_TRACE(fila.titulo.toString().toStdString() + " " +
                     std::to_string(static_cast<unsigned>(fila.clase)));
        const QString titulo = fila.titulo.toString();
        const auto probar = [&](int a, int p) {
            if (a >= 0)
                v.A(a);
            if (p >= 0)
                v.P(p);
            const bool apartado = fila.apartados.empty() || std::ranges::count(fila.apartados, a) > 0;
            const bool punto = fila.puntos.empty() || std::ranges::count(fila.puntos, p) > 0;
            EXPECT_EQ(v.Sale(fila.clase, titulo), apartado && punto) << a << " " << p;
            if (a >= 0)
                v.A(a, 0);
            if (p >= 0)
                v.P(p, 0);
        };
        for (int a = -1; a < 26; ++a)
            for (int p = -1; p < 16; ++p)
                probar(a, p);
    }
}

TEST(Headings, ThoseWithoutARuleAreAlwaysPrinted)
{
    VentanaDeApartados v;
    for (const QStringView titulo :
         {u"VALOR DE TASACION", u"CARACTERISTICAS URBANISTICAS", u"INFORMACION DE MERCADO", u"Superficie",
          u"Calificación urbanística y edificabilidad", u"Coste de reposición (CR)",
          u"Coeficiente de mercado (K)", u"Valor de realización (Vr)"})
        EXPECT_TRUE(v.Sale(Clase::Piso, titulo.toString()));
}

TEST(Headings, NotesCountWhenTheyHoldMoreThanBlanks)
{
    VentanaDeApartados v;
    EXPECT_FALSE(v.Sale(Clase::Piso, u"OBSERVACIONES"_s));
    v.ventana.campo(u"txtObservaciones").setText(u"  \n "_s);
    EXPECT_FALSE(v.Sale(Clase::Piso, u"OBSERVACIONES"_s));
    v.ventana.campo(u"txtObservaciones").setText(u" x "_s);
    EXPECT_TRUE(v.Sale(Clase::Piso, u"OBSERVACIONES"_s));
}

TEST(Headings, ConsolidationNeedsItsSectionAndAPercentage)
{
    VentanaDeApartados v;
    v.A(4);
    EXPECT_FALSE(v.Sale(Clase::Piso, u"Consolidación"_s));
    v.ventana.campo(u"BoxPorcen").setText(u"80"_s);
    EXPECT_TRUE(v.Sale(Clase::Piso, u"Consolidación"_s));
    EXPECT_FALSE(v.Sale(Clase::Solar, u"Consolidación"_s));
    v.A(4, 0);
    v.A(3);
    EXPECT_FALSE(v.Sale(Clase::Piso, u"Consolidación"_s));
    EXPECT_TRUE(v.Sale(Clase::Solar, u"Consolidación"_s));
}

TEST(Headings, ThreeLevelsCountAndRestart)
{
    VentanaDeApartados v;
    v.A(1);
    v.A(2);
    v.A(4);
    Titulador t(v.caso, Clase::Piso);
    t.Capitulo = 2;
    t.Apartado = 1;
    EXPECT_EQ(t.GetNumber(u"LOCALIDAD Y ENTORNO"_s, 0, 0), u"3.  LOCALIDAD Y ENTORNO:"_s);
    EXPECT_EQ(t.GetNumber(u"Tipo de núcleo"_s, 3, 0), u"3.1. Tipo de núcleo:"_s);
    EXPECT_EQ(t.GetNumber(u"Significación"_s, 3, 1), u"3.1.1. Significación:"_s);
    EXPECT_EQ(t.GetNumber(u"Infraestructura"_s, 3, 1), u"3.1.2. Infraestructura:"_s);
    EXPECT_EQ(t.GetNumber(u"Delimitación del entorno"_s, 3, 0), u"3.2. Delimitación del entorno:"_s);
    EXPECT_EQ(t.GetNumber(u"Significación"_s, 3, 1), u"3.2.1. Significación:"_s);
    EXPECT_EQ(t.GetNumber(u"VALOR DE TASACION"_s, 0, 0), u"4.  VALOR DE TASACION:"_s);
    EXPECT_EQ(t.Apartado, 0);
    EXPECT_EQ(t.Punto, 0);
}

TEST(Headings, ASkippedSectionLeavesNoGapButAnEmptyItemAmongTheBoldTexts)
{
    VentanaDeApartados v;
    v.A(4);
    Titulador t(v.caso, Clase::Piso);
    EXPECT_EQ(t.GetNumber(u"Tipo de núcleo"_s, 3, 0), QString());
    EXPECT_EQ(t.GetNumber(u"Delimitación del entorno"_s, 3, 0), u"3.1. Delimitación del entorno:"_s);
    EXPECT_EQ(t.oColNegrita, (QStringList{QString(), u"3.1. Delimitación del entorno:"_s}));
}

TEST(Headings, FacadeAndRoofShareOneHeadingThatSaysWhatFollows)
{
    struct Muro
    {
        Clase clase;
        int fachada, cubierta;
    };
    for (const Muro& i : {Muro{Clase::Piso, 15, 14}, Muro{Clase::Apto, 15, 14}, Muro{Clase::Casa, 12, 11},
                          Muro{Clase::Nave, 12, 11}, Muro{Clase::Loca, 10, 9}}) {
        VentanaDeApartados v;
        const auto titulo = [&] {
            return Titulador(v.caso, i.clase).GetNumber(u"Fachada y Cubierta"_s, 4, 1);
        };
        EXPECT_EQ(titulo(), QString());
        v.P(i.cubierta);
        EXPECT_EQ(titulo(), u"4.0.1. Cubierta:"_s);
        v.P(i.fachada);
        EXPECT_EQ(titulo(), u"4.0.1. Cerramientos Exteriores y Cubierta:"_s);
        v.P(i.cubierta, 0);
        EXPECT_EQ(titulo(), u"4.0.1. Cerramientos Exteriores:"_s);
    }
}

TEST(Headings, TheStateOfThePropertyPrintsUnderAShorterName)
{
    VentanaDeApartados v;
    v.A(19);
    EXPECT_EQ(Titulador(v.caso, Clase::Piso).GetNumber(u"Situación actual (inmueble)"_s, 5, 0),
              u"5.1. Situación Actual:"_s);
}

TEST(Headings, AnUnknownOneIsAnError)
{
    VentanaDeApartados v;
    EXPECT_THROW(v.Sale(Clase::Piso, u"Tipologia"_s), std::out_of_range);
    EXPECT_THROW(v.Sale(Clase::Piso, u"Servicios individuales"_s), std::out_of_range);
}

} // namespace valmerix
