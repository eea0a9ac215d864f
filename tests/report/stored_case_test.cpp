#include "report/drafting.h"
#include "report/heading_rules.h"

#include "store/case_loading.h"
#include "support/fake_ports.h"
#include "support/sample_base.h"
#include "support/store_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// The window of a kind with the state beside it, on a database of its own.
struct FormularioDePrueba
{
    EntornoDePrueba entorno;
    Formulario formulario;
    CasoInforme caso;

    FormularioDePrueba(const DescripcionForma& descripcion, const QString& ruta)
        : formulario((entorno.compartido.RutaBaseDatos = ruta, descripcion), entorno.servicios)
        , caso{formulario,       descripcion.ventana.toString(),
               entorno.calculo,  entorno.frases,
               entorno.opciones, entorno.compartido}
    {
        formulario.Load();
    }
};

void EncenderPerfil(Formulario& formulario)
{
    for (const auto& control : formulario.controles())
        if (control->nombre().startsWith(u"chkApartados("_s) || control->nombre().startsWith(u"chkPuntos("_s))
            dynamic_cast<Casilla&>(*control).setValue(1);
}

int ContarCasillas(const Formulario& formulario, const QString& grupo)
{
    return static_cast<int>(std::ranges::count_if(
        formulario.controles(), [&](const auto& c) { return c->nombre().startsWith(grupo + u'('); }));
}

} // namespace

TEST(StoredCase, TheWindowsOfTheDwellingsHaveAllThatTheReportReads)
{
    const AlmacenDePrueba almacen;
    for (const DescripcionForma* descripcion : {&kDescripcionPiso, &kDescripcionApto, &kDescripcionCasa}) {
        FormularioDePrueba f(*descripcion, almacen.compartido.RutaBaseDatos);
        EncenderPerfil(f.formulario);
        f.formulario.casilla(u"Check1").setValue(1);
        f.formulario.campo(u"BoxPorcen").setText(u"50"_s);
        f.formulario.campo(u"txtObservaciones").setText(u"x"_s);
        const InformeRedactado informe = RedactarInforme(f.caso);
        EXPECT_FALSE(informe.oColNegrita.contains(QString()))
            << descripcion->ventana.toString().toStdString();
        EXPECT_EQ(informe.oColNegrita.last(), u"10.  VALOR DE TASACION:"_s);
        EXPECT_EQ(ContarCasillas(f.formulario, u"chkApartados"_s), 23);
    }
}

TEST(StoredCase, TheSampleFlatsDraftFromTheirRows)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"muestras.mdb"_s);
    CrearBaseDeMuestras(ruta);
    AccesoDatos::clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(ruta);
    const ConjuntoResultados casos = consulta.Instantanea2(
        u"Empresa"_s, u"SELECT NombreTasador, NumeroTasacion, Municipio FROM Viviendas WHERE Tipo = 'P'"_s);
    ASSERT_EQ(casos.RecordCount(), 10);
    for (qint32 fila = 1; fila <= casos.RecordCount(); ++fila) {
        FormularioDePrueba f(kDescripcionPiso, ruta);
        CargaVivienda(f.formulario, f.entorno.compartido, u"P"_s, casos.Texto(u"NombreTasador", fila),
                      static_cast<qint32>(casos.Entero(u"NumeroTasacion", fila)));
        const QString texto = Redactar(f.caso);
        EXPECT_TRUE(texto.startsWith(u"INFORME DE TASACION\r\n\r\n"_s));
        EXPECT_TRUE(texto.contains(u"1.2. Municipio:\r\n              "_s + casos.Texto(u"Municipio", fila)));
        EXPECT_TRUE(texto.contains(u"     Asciende el importe de la presente tasación"_s));
        if (qEnvironmentVariableIsSet("VALMERIX_PRINT"))
            printf("%s\n", texto.toUtf8().constData());
    }
}

} // namespace valmerix
