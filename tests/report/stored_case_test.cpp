#include "report/drafting.h"
#include "report/heading_rules.h"

#include "store/case_loading.h"
#include "store/case_saving.h"
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

namespace {

class Muestras : public testing::Test
{
protected:
    Muestras() { CrearBaseDeMuestras(ruta()); }

    QString ruta() const { return carpeta_.filePath(u"muestras.mdb"_s); }
    ConjuntoResultados Leer(const QString& sql) const
    {
        AccesoDatos::clsConsulta consulta;
        consulta.AbrirBaseDatosEmpresa(ruta());
        return consulta.Instantanea2(u"Empresa"_s, sql);
    }
    /// Calls `accion` with each sample case loaded into its window, and with its town.
    template <class Accion>
    void ConCada(Accion accion) const
    {
        const ConjuntoResultados casos =
            Leer(u"SELECT Tipo, NombreTasador, NumeroTasacion, Municipio FROM Viviendas"_s);
        ASSERT_EQ(casos.RecordCount(), 14);
        for (qint32 fila = 1; fila <= casos.RecordCount(); ++fila) {
            const QString letra = casos.Texto(u"Tipo", fila);
            FormularioDePrueba f(*DescripcionDe(letra.front()), ruta());
            CargaVivienda(f.formulario, f.entorno.compartido, letra, casos.Texto(u"NombreTasador", fila),
                          static_cast<qint32>(casos.Entero(u"NumeroTasacion", fila)));
            accion(f, casos.Texto(u"Municipio", fila));
        }
    }
    /// Every row of every table that a save writes, in the order of its text.
    QStringList Contenido() const
    {
        QStringList filas;
        for (const QString& tabla : {u"Viviendas"_s, u"Testigos"_s, u"TestigosInforme"_s,
                                     u"ImagenesAsociadas"_s, u"ProblemasUrbanisticos"_s, u"Tasadores"_s}) {
            const ConjuntoResultados datos = Leer(u"SELECT * FROM "_s + tabla);
            for (qint32 fila = 1; fila <= datos.RecordCount(); ++fila)
                filas << tabla + u' ' + datos.ValorRegistroGrid(fila);
        }
        filas.sort();
        return filas;
    }

private:
    QTemporaryDir carpeta_;
};

} // namespace

TEST_F(Muestras, DraftFromTheirRows)
{
    ConCada([](FormularioDePrueba& f, const QString& municipio) {
        const QString texto = Redactar(f.caso);
        EXPECT_TRUE(texto.startsWith(u"INFORME DE TASACION\r\n\r\n"_s));
        EXPECT_TRUE(texto.contains(u"1.2. Municipio:\r\n              "_s + municipio));
        EXPECT_TRUE(texto.contains(u"     Asciende el importe de la presente tasación"_s));
    });
}

TEST_F(Muestras, AreSavedAsTheyWereStored)
{
    const QStringList antes = Contenido();
    EXPECT_GT(antes.size(), 14 * 3);
    ConCada([](FormularioDePrueba& f, const QString& /*municipio*/) {
        f.entorno.dialogos.respuestas = {true};
        EXPECT_TRUE(SalvaVivienda(f.formulario, f.entorno.compartido, f.entorno.dialogos));
    });
    EXPECT_EQ(Contenido(), antes);
}

} // namespace valmerix
