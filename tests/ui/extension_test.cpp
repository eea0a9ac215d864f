// Extension modules loaded from files, as the program loads them.

#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "support/test_database.h"

#include "report/viewer.h"
#include "shell/application.h"
#include "shell/start_window.h"
#include "ui/extension_loader.h"
#include "valuation/case_form.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

QString Modulo(const QString& nombre)
{
    return QStringLiteral(VALMERIX_EXTENSIONS_DIR "/") + nombre + u"/VMXtension.so"_s;
}

class ExtensionModule : public testing::Test
{
protected:
    void Instalar(const QString& nombre) const
    {
        ASSERT_TRUE(QFile::copy(Modulo(nombre), carpeta.filePath(u"VMXtension.so"_s)));
    }
    void Escribir(const QByteArray& bytes) const
    {
        QFile fichero(carpeta.filePath(u"VMXtension.so"_s));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(bytes);
    }

    QTemporaryDir carpeta;
    CargadorQt cargador;
};

TEST_F(ExtensionModule, NoFileIsNoModuleAndNoReason)
{
    const ExtensionCargada nada = cargador.Crear(carpeta.path());
    EXPECT_EQ(nada.componente, nullptr);
    EXPECT_EQ(nada.motivo, QString());
}

TEST_F(ExtensionModule, AFileThatIsNoModuleIsToldWithoutACrash)
{
    Instalar(u"sample_extension"_s);
    QFile bueno(Modulo(u"sample_extension"_s));
    ASSERT_TRUE(bueno.open(QIODevice::ReadOnly));
    const QByteArray entero = bueno.readAll();
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("texto"), entero.left(64), entero.left(entero.size() / 2),
          entero.chopped(1), QByteArray(5000, '\0')}) {
        Escribir(bytes);
        const ExtensionCargada rota = cargador.Crear(carpeta.path());
        EXPECT_EQ(rota.componente, nullptr) << bytes.size();
        EXPECT_TRUE(rota.motivo.contains(u"no se puede usar"_s)) << bytes.size();
    }
}

TEST_F(ExtensionModule, AModuleForAnotherInterfaceIsToldAndNotRun)
{
    Instalar(u"other_interface"_s);
    const ExtensionCargada ajena = cargador.Crear(carpeta.path());
    EXPECT_EQ(ajena.componente, nullptr);
    EXPECT_TRUE(ajena.motivo.contains(u"otra versión de Valmerix"_s)) << ajena.motivo.toStdString();
}

TEST_F(ExtensionModule, EachCallGetsAFreshComponent)
{
    Instalar(u"sample_extension"_s);
    ExtensionCargada una = cargador.Crear(carpeta.path());
    ASSERT_NE(una.componente, nullptr) << una.motivo.toStdString();
    una.componente.reset();
    const ExtensionCargada otra = cargador.Crear(carpeta.path());
    ASSERT_NE(otra.componente, nullptr);
    EXPECT_EQ(otra.componente->oColNegrita().first(), QString());
}

class ExtensionAtWork : public ExtensionModule
{
protected:
    ExtensionAtWork()
    {
        sistema.carpeta = carpeta.path();
        Instalar(u"sample_extension"_s);
        aplicacion.Arrancar();
        aplicacion.inicio()->boton(u"SSCommand2(0)").Pulsar();
    }

    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakePantalla pantalla;
    FakeCaptura captura;
    FakeImpresion impresion;
    Aplicacion aplicacion{{dialogos, reloj, sistema, pantalla, captura, impresion, nullptr, &cargador}};
};

TEST_F(ExtensionAtWork, GoesBothWays)
{
    Formulario& piso = *aplicacion.FormularioActual();
    piso.campo(u"BoxSit").setText(u"Calle Mayor, 5"_s);
    aplicacion.paleta()->boton(u"Botonera(9)").Pulsar();
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_EQ(piso.texto(u"BoxMun"), u"Alcoi"_s);
    ASSERT_NE(aplicacion.visor(), nullptr);
    const QString texto = aplicacion.visor()->Texto().Text();
    EXPECT_TRUE(texto.startsWith(u"CERTIFICADO DE Form2\nCalle Mayor, 5 ("_s)) << texto.toStdString();
    EXPECT_TRUE(texto.contains(carpeta.path()));
    EXPECT_EQ(aplicacion.visor()->oColNegrita(),
              (QStringList{u"CERTIFICADO DE Form2"_s, u"texto literal"_s}));
    aplicacion.paleta()->boton(u"Botonera(9)").Pulsar();
    EXPECT_EQ(aplicacion.visor()->Texto().Text(), texto);
}

TEST_F(ExtensionAtWork, ItsFailureIsToldInItsWords)
{
    try {
        aplicacion.EjecutarOrden(OrdenPaleta::Extension);
        ADD_FAILURE() << "the failure was lost";
    } catch (const std::runtime_error& fallo) {
        EXPECT_EQ(QString::fromUtf8(fallo.what()),
                  u"El módulo de extensión ha fallado: falta la situación"_s);
    }
}

} // namespace
} // namespace valmerix
