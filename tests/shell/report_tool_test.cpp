#include "shell/report_tool.h"
#include "shell/state_json.h"

#include "support/fake_ports.h"
#include "support/test_database.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

struct Resultado
{
    int codigo = 0;
    QByteArray salida;
    QString errores;
};

Resultado Ejecutar(const QStringList& argumentos)
{
    QBuffer salida;
    QBuffer errores;
    salida.open(QIODevice::WriteOnly);
    errores.open(QIODevice::WriteOnly);
    Resultado r;
    r.codigo = EjecutarInforme(argumentos, salida, errores);
    r.salida = salida.data();
    r.errores = QString::fromUtf8(errores.data());
    return r;
}

class HerramientaTest : public testing::Test
{
protected:
    HerramientaTest()
        : base(compartido)
    {
        base.Ejecutar(
            u"INSERT INTO Tasadores (Nombre,Contador,Titulacion) VALUES ('Íñigo Sáenz',3,'Arquitecto')"_s);
        base.Ejecutar(
            u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion,Situacion,Municipio,Fecha,SupConst,"
            u"CosteConstruccion,CoeficienteK,Repercusion,Sup,Antiguedad,Infraestructuras,OpcionFinalidad) "
            u"VALUES "
            u"('Íñigo Sáenz','P',3,'Calle Mayor, 5','Logroño','2026-11-20',100,600,1.25,400,1,20,"
            u"'1000010',2)"_s);
    }

    QStringList Caso(const QStringList& mas = {}) const
    {
        return QStringList{base.ruta(), u"P"_s, u"Íñigo Sáenz"_s, u"3"_s} + mas;
    }

    EstadoCompartido compartido;
    BaseDePrueba base;
};

TEST_F(HerramientaTest, PrintsTheReportInUtf8WithCrLf)
{
    const Resultado r = Ejecutar(Caso());
    EXPECT_EQ(r.codigo, 0) << r.errores.toStdString();
    EXPECT_TRUE(r.salida.startsWith("INFORME DE TASACION\r\n\r\n"));
    EXPECT_EQ(r.salida.count('\n'), r.salida.count("\r\n"));
    EXPECT_TRUE(r.salida.contains("Logroño.\r\n"));
    EXPECT_TRUE(r.salida.contains("CIENTO DIEZ MIL euros.\r\n"));
    EXPECT_TRUE(r.errores.isEmpty());
}

TEST_F(HerramientaTest, WritesTheMarkedUpReport)
{
    const QString rtf = base.carpeta() + u"/informe.rtf"_s;
    EXPECT_EQ(Ejecutar(Caso({u"--rtf"_s, rtf})).codigo, 0);
    QFile fichero(rtf);
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    const QByteArray contenido = fichero.readAll();
    EXPECT_TRUE(contenido.startsWith("{\\rtf1"));
    EXPECT_TRUE(contenido.contains("\\b "));
}

TEST_F(HerramientaTest, TheStateIsOneJsonObject)
{
    const Resultado r = Ejecutar(Caso({u"--estado"_s}));
    ASSERT_EQ(r.codigo, 0);
    const QJsonObject objeto = QJsonDocument::fromJson(r.salida).object();
    EXPECT_EQ(objeto.keys(), (QStringList{u"controles"_s, u"estado"_s, u"frases"_s, u"negritas"_s}));
    const QJsonObject controles = objeto[u"controles"].toObject();
    EXPECT_EQ(controles[u"BoxSit"].toString(), u"Calle Mayor, 5"_s);
    EXPECT_EQ(controles[u"CheckPavi"].toInt(-1), 1);
    EXPECT_EQ(controles[u"CheckEnci"].toInt(-1), 0);
    EXPECT_EQ(controles[u"Finalidad"].toInt(-1), 2);
    EXPECT_TRUE(controles[u"GridImagen"].isArray());
    EXPECT_EQ(controles[u"BoxTotal"].toString(), u"110.000,00"_s);
    const QJsonObject estado = objeto[u"estado"].toObject();
    EXPECT_EQ(estado.size(), 20);
    EXPECT_EQ(estado[u"ValorTotal"].toString(), u"110000.0000"_s);
    EXPECT_EQ(estado[u"CoefDepreciacion"].toDouble(), 0.2);
    EXPECT_EQ(estado[u"Antiguedad"].toInt(), 20);
    EXPECT_EQ(objeto[u"frases"].toObject()[u"FraseAntiguedad"].toString(), u"Tiene veinte años."_s);
    EXPECT_EQ(objeto[u"frases"].toObject().size(), 6);
    EXPECT_TRUE(objeto[u"negritas"].toArray().contains(u"2.  FINALIDAD:"_s));
}

TEST(EstadoEnJson, EachKindOfControlHasItsForm)
{
    Ventana ventana(u"Prueba"_s);
    ventana.Añadir<CampoTexto>(u"BoxBaños"_s).setText(u"2"_s);
    ventana.Añadir<GrupoOpciones>(u"Ninguna"_s).setTitulos({u"a"_s, u"b"_s});
    auto& grupo = ventana.Añadir<GrupoOpciones>(u"Segunda"_s);
    grupo.setTitulos({u"a"_s, u"b"_s});
    grupo.Elegir(1);
    auto& rejilla = ventana.Añadir<Rejilla>(u"Rejilla"_s);
    rejilla.setColumnas({QString(), u"Nombre"_s}, {0, 2500});
    rejilla.AddItem(u"/ruta\tfoto"_s);
    const QJsonObject controles = ControlesEnJson(ventana);
    EXPECT_EQ(controles[u"BoxBaños"], QJsonValue(u"2"_s));
    EXPECT_TRUE(controles[u"Ninguna"].isNull());
    EXPECT_EQ(controles[u"Segunda"], QJsonValue(1));
    EXPECT_EQ(controles[u"Rejilla"].toArray(),
              (QJsonArray{QJsonArray{QString(), u"Nombre"_s}, QJsonArray{u"/ruta"_s, u"foto"_s}}));
}

TEST_F(HerramientaTest, UsageIsExplainedInSpanish)
{
    for (const QStringList& mal :
         {QStringList{}, QStringList{u"a"_s, u"b"_s}, Caso({u"--rtf"_s}), Caso({u"sobra"_s}),
          QStringList{base.ruta(), u"X"_s, u"Íñigo Sáenz"_s, u"3"_s},
          QStringList{base.ruta(), u"P"_s, u"Íñigo Sáenz"_s, u"tres"_s}}) {
        const Resultado r = Ejecutar(mal);
        EXPECT_EQ(r.codigo, 1);
        EXPECT_TRUE(r.errores.startsWith(u"Uso: valmerix-informe BASE TIPO"_s));
        EXPECT_TRUE(r.salida.isEmpty());
    }
}

TEST_F(HerramientaTest, AMissingFileAForeignFileAndAMissingCaseHaveTheirCodesAndMessages)
{
    QStringList argumentos = Caso();
    argumentos[0] = base.carpeta() + u"/no_hay.mdb"_s;
    Resultado r = Ejecutar(argumentos);
    EXPECT_EQ(r.codigo, 2);
    EXPECT_TRUE(r.errores.startsWith(u"No se encuentra el fichero «"_s));

    QFile ajeno(base.carpeta() + u"/ajeno.mdb"_s);
    ASSERT_TRUE(ajeno.open(QIODevice::WriteOnly));
    ajeno.write(QByteArray(5000, 'x'));
    ajeno.close();
    argumentos[0] = ajeno.fileName();
    r = Ejecutar(argumentos);
    EXPECT_EQ(r.codigo, 2);
    EXPECT_FALSE(r.errores.isEmpty());
    EXPECT_TRUE(r.salida.isEmpty());

    argumentos = Caso();
    argumentos[3] = u"99"_s;
    r = Ejecutar(argumentos);
    EXPECT_EQ(r.codigo, 3);
    EXPECT_EQ(r.errores, u"No existe la tasación 99 de «Íñigo Sáenz» del tipo P.\n"_s);
}

TEST_F(HerramientaTest, AnRtfThatCannotBeWrittenIsTold)
{
    const Resultado r = Ejecutar(Caso({u"--rtf"_s, base.carpeta() + u"/no/hay/carpeta.rtf"_s}));
    EXPECT_EQ(r.codigo, 4);
    EXPECT_FALSE(r.errores.isEmpty());
}

TEST_F(HerramientaTest, ReadingLeavesTheDatabaseAsItWas)
{
    QFile fichero(base.ruta());
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    const QByteArray antes = fichero.readAll();
    Ejecutar(Caso({u"--estado"_s}));
    fichero.seek(0);
    EXPECT_EQ(fichero.readAll(), antes);
}

} // namespace
} // namespace valmerix
