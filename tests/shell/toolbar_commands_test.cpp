// The toolbar's commands that reach outside: the manual and the extension module.

#include "report/viewer.h"
#include "shell/application.h"
#include "shell/start_window.h"
#include "support/manual_sample.h"
#include "support/test_database.h"
#include "support/test_ports.h"
#include "valuation/case_form.h"

#include <algorithm>
#include <functional>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class FakeAyuda : public VisorAyuda
{
public:
    QStringList paginas;
    void Mostrar(const std::shared_ptr<const Manual>&, const QString& pagina) override { paginas << pagina; }
};

using Trabajo = std::function<void(VentanaExtension&, VentanaExtension*&, VentanaExtension*&,
                                   VentanaExtension*&, const QString&)>;

class ExtensionDePrueba : public clsVMXtension
{
public:
    explicit ExtensionDePrueba(Trabajo trabajo)
        : trabajo_(std::move(trabajo))
    {
    }
    void Iniciar(VentanaExtension& Form2, VentanaExtension*& Visor, VentanaExtension*& FormularioActual,
                 VentanaExtension*& Opciones, const QString& carpeta) override
    {
        trabajo_(Form2, Visor, FormularioActual, Opciones, carpeta);
    }
    QStringList oColNegrita() const override { return {u"CERTIFICADO"_s}; }

private:
    Trabajo trabajo_;
};

class FakeCargador : public CargadorExtensiones
{
public:
    Trabajo trabajo;
    QString motivo;
    QStringList carpetas;

    ExtensionCargada Crear(const QString& carpeta) override
    {
        carpetas << carpeta;
        if (!trabajo)
            return {nullptr, motivo};
        return {std::make_unique<ExtensionDePrueba>(trabajo), {}};
    }
};

class ToolbarCommands : public testing::Test, protected PuertosDePrueba
{
protected:
    ToolbarCommands()
    {
        sistema.carpeta = carpeta.path();
        aplicacion.Arrancar();
        aplicacion.inicio()->boton(u"SSCommand2(0)").Pulsar();
    }
    Formulario& forma() { return *aplicacion.FormularioActual(); }
    void PulsarExtension() { aplicacion.paleta()->boton(u"Botonera(9)").Pulsar(); }

    const QString sinExtension =
        u"No se ha encontrado ningún módulo de extensión para Valmerix cargado. Si dispone de un kit de "
        u"extensión debe instalarlo para para disponer de dicha ampliación."_s;

    FakeAyuda ayuda;
    FakeCargador cargador;
    Aplicacion aplicacion{{dialogos, reloj, sistema, pantalla, captura, impresion, &ayuda, &cargador}};
};

TEST_F(ToolbarCommands, HelpOpensTheManualThatStandsInTheProgramsFolder)
{
    EscribirManual(carpeta.filePath(u"Valmerix.chm"_s), ManualDePrueba());
    aplicacion.paleta()->boton(u"Botonera(8)").Pulsar();
    aplicacion.MostrarAyuda(u"Piso"_s);
    aplicacion.MostrarAyuda(u"Form1"_s);
    EXPECT_EQ(ayuda.paginas, (QStringList{QString(), u"02-calculo"_s, u"01-inicio"_s}));
    EXPECT_TRUE(dialogos.mensajes.empty());
}

TEST_F(ToolbarCommands, HelpWithoutAManualSaysWhereItIsMissed)
{
    aplicacion.paleta()->boton(u"Botonera(8)").Pulsar();
    ASSERT_EQ(dialogos.mensajes.size(), 1u);
    EXPECT_EQ(dialogos.mensajes[0].texto,
              u"No se encuentra el manual «%1/Valmerix.chm»."_s.arg(carpeta.path()));
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_TRUE(ayuda.paginas.isEmpty());
    EscribirManual(carpeta.filePath(u"Valmerix.chm"_s), ManualDePrueba());
    aplicacion.paleta()->boton(u"Botonera(8)").Pulsar();
    EXPECT_EQ(ayuda.paginas.size(), 1);
}

TEST_F(ToolbarCommands, WithoutAnExtensionItsMessageIsShownAndTheViewerClosed)
{
    aplicacion.EjecutarOrden(OrdenPaleta::Informe);
    ASSERT_NE(aplicacion.visor(), nullptr);
    PulsarExtension();
    ASSERT_EQ(dialogos.mensajes.size(), 1u);
    EXPECT_EQ(dialogos.mensajes[0].texto, sinExtension);
    EXPECT_EQ(aplicacion.visor(), nullptr);
    EXPECT_EQ(cargador.carpetas, QStringList{carpeta.path()});
}

TEST_F(ToolbarCommands, AnExtensionThatCannotBeUsedIsToldWithItsReason)
{
    cargador.motivo = u"El fichero está dañado."_s;
    PulsarExtension();
    ASSERT_EQ(dialogos.mensajes.size(), 1u);
    EXPECT_EQ(dialogos.mensajes[0].texto, sinExtension + u"\n\nEl fichero está dañado."_s);
}

TEST_F(ToolbarCommands, TheExtensionGetsTheFiveArguments)
{
    QStringList nombres;
    QString suCarpeta;
    cargador.trabajo = [&](auto& paleta, auto*& visor, auto*& caso, auto*& opciones, const QString& c) {
        nombres = {paleta.nombre(), visor->nombre(), caso->nombre(), opciones->nombre()};
        suCarpeta = c;
    };
    PulsarExtension();
    EXPECT_EQ(nombres, (QStringList{u"Form2"_s, u"Visor"_s, u"Piso"_s, u"Opciones"_s}));
    EXPECT_EQ(suCarpeta, carpeta.path());
    EXPECT_TRUE(dialogos.mensajes.empty());
}

TEST_F(ToolbarCommands, TheExtensionReadsAndWritesTheCase)
{
    forma().campo(u"BoxSit").setText(u"Calle Mayor, 5"_s);
    QVariant leido;
    cargador.trabajo = [&](auto&, auto*&, auto*& caso, auto*&, const QString&) {
        leido = caso->Leer(u"BoxSit"_s);
        EXPECT_TRUE(caso->Escribir(u"BoxMun"_s, u"L’Eliana"_s));
        EXPECT_TRUE(caso->Escribir(u"CheckPavi"_s, 1));
        EXPECT_TRUE(caso->Escribir(u"Finalidad"_s, 2));
        EXPECT_TRUE(caso->Escribir(u"BoxConst"_s, u"100"_s));
        EXPECT_FALSE(caso->Escribir(u"NoExiste"_s, 1));
        EXPECT_FALSE(caso->Leer(u"NoExiste"_s).isValid());
        EXPECT_FALSE(caso->Pulsar(u"BoxMun"_s));
        EXPECT_TRUE(caso->controles().contains(u"BoxMun"_s));
    };
    PulsarExtension();
    EXPECT_EQ(leido.toString(), u"Calle Mayor, 5"_s);
    EXPECT_EQ(forma().texto(u"BoxMun"), u"L’Eliana"_s);
    EXPECT_TRUE(forma().marcada(u"CheckPavi"));
    EXPECT_EQ(forma().opciones(u"Finalidad").elegida(), 2);
}

TEST_F(ToolbarCommands, WhatTheExtensionPutsIntoTheViewerPrintsWithItsBoldWordsAndNoLetterhead)
{
    cargador.trabajo = [](auto&, auto*& visor, auto*&, auto*&, const QString&) {
        visor->Escribir(u"Texto"_s, u"CERTIFICADO\nVale.\n"_s);
        visor->Mostrar();
    };
    PulsarExtension();
    ASSERT_NE(aplicacion.visor(), nullptr);
    EXPECT_EQ(pantalla.enFrente, aplicacion.visor());
    EXPECT_EQ(aplicacion.visor()->oColNegrita(), QStringList{u"CERTIFICADO"_s});
    EXPECT_EQ(aplicacion.visor()->TipoDocumento(), u"VMXtension"_s);
    aplicacion.visor()->boton(u"BttImprimir").Pulsar();
    ASSERT_EQ(impresion.vistos.size(), 1u);
}

TEST_F(ToolbarCommands, AViewerThatTheExtensionLetsGoIsClosed)
{
    cargador.trabajo = [](auto&, auto*& visor, auto*&, auto*&, const QString&) { visor = nullptr; };
    PulsarExtension();
    EXPECT_EQ(aplicacion.visor(), nullptr);
}

TEST_F(ToolbarCommands, AConfigurationThatTheExtensionHasChangedIsTheOneShownNext)
{
    cargador.trabajo = [](auto&, auto*&, auto*&, auto*& opciones, const QString&) {
        opciones->Escribir(u"Text6"_s, u"Dr."_s);
    };
    PulsarExtension();
    QString abreviatura;
    pantalla.guion[u"Opciones"_s] = [&](Ventana& v) {
        abreviatura = v.texto(u"Text6");
        v.Cerrar();
    };
    aplicacion.EjecutarOrden(OrdenPaleta::Opciones);
    EXPECT_EQ(abreviatura, u"Dr."_s);
    aplicacion.EjecutarOrden(OrdenPaleta::Opciones);
    EXPECT_EQ(abreviatura, u"Dr."_s) << "stored at the first closing";
}

TEST_F(ToolbarCommands, AConfigurationThatTheExtensionLetsGoIsReadAfresh)
{
    cargador.trabajo = [](auto&, auto*&, auto*&, auto*& opciones, const QString&) {
        opciones->Escribir(u"Text6"_s, u"Dr."_s);
        opciones = nullptr;
    };
    PulsarExtension();
    pantalla.guion[u"Opciones"_s] = [](Ventana& v) {
        EXPECT_NE(v.texto(u"Text6"), u"Dr."_s);
        v.Cerrar();
    };
    aplicacion.EjecutarOrden(OrdenPaleta::Opciones);
}

TEST_F(ToolbarCommands, AnExtensionThatFailsIsToldAndTheNextCallWorks)
{
    cargador.trabajo = [](auto&, auto*&, auto*&, auto*&, const QString&) {
        throw std::logic_error("no hay plantilla");
    };
    try {
        aplicacion.EjecutarOrden(OrdenPaleta::Extension);
        ADD_FAILURE() << "the failure was lost";
    } catch (const std::runtime_error& fallo) {
        EXPECT_EQ(QString::fromUtf8(fallo.what()), u"El módulo de extensión ha fallado: no hay plantilla"_s);
    }
    bool corrio = false;
    cargador.trabajo = [&](auto&, auto*&, auto*&, auto*&, const QString&) { corrio = true; };
    PulsarExtension();
    EXPECT_TRUE(corrio);
}

TEST_F(ToolbarCommands, TheExtensionsKeyHandsItTheToolbarThoughItIsClosed)
{
    forma().boton(u"SSCommand3").Pulsar();
    ASSERT_EQ(aplicacion.paleta(), nullptr);
    const auto& atajos = forma().atajos();
    const auto tecla = std::find_if(atajos.begin(), atajos.end(),
                                    [](const Atajo& atajo) { return atajo.teclas == u"Ctrl+M"; });
    ASSERT_NE(tecla, atajos.end());
    tecla->orden();
    EXPECT_EQ(dialogos.mensajes.size(), 1U) << "without a module, its message";
    QString recibida;
    cargador.trabajo = [&](VentanaExtension& Form2, VentanaExtension*& Visor, auto&&...) {
        recibida = Form2.nombre();
        Visor = nullptr;
    };
    tecla->orden();
    EXPECT_EQ(recibida, u"Form2"_s);
    EXPECT_EQ(aplicacion.paleta(), nullptr) << "closed it was, closed it stays";
}

TEST_F(ToolbarCommands, AnExtensionMayRunTheToolbarButNotItself)
{
    int veces = 0;
    cargador.trabajo = [&](auto& paleta, auto*&, auto*&, auto*&, const QString&) {
        ++veces;
        EXPECT_TRUE(paleta.Pulsar(u"Botonera(9)"_s));
        EXPECT_TRUE(paleta.Pulsar(u"Botonera(0)"_s));
        EXPECT_FALSE(paleta.Pulsar(u"Botonera(4)"_s)) << "disabled";
    };
    PulsarExtension();
    EXPECT_EQ(veces, 1);
    ASSERT_NE(aplicacion.visor(), nullptr);
    EXPECT_TRUE(aplicacion.visor()->Texto().Text().contains(u"INFORME DE TASACION"_s));
}

TEST_F(ToolbarCommands, AnExtensionThatRestartsTheProgramLeavesItWhole)
{
    pantalla.guion[u"Reinicio"_s] = [](Ventana& v) { v.boton(u"SSCommand1").Pulsar(); };
    cargador.trabajo = [](auto& paleta, auto*&, auto*& caso, auto*&, const QString&) {
        paleta.Pulsar(u"Botonera(3)"_s);
        EXPECT_FALSE(caso->Escribir(u"BoxMun"_s, u"Alcoi"_s));
        EXPECT_TRUE(caso->controles().isEmpty());
    };
    PulsarExtension();
    EXPECT_EQ(aplicacion.FormularioActual(), nullptr);
    EXPECT_EQ(aplicacion.visor(), nullptr);
    ASSERT_NE(aplicacion.inicio(), nullptr);
}

TEST_F(ToolbarCommands, ButtonOneDoesNothingVisibleWhileTheViewerIsClosed)
{
    const QStringList antes = pantalla.mostradas;
    aplicacion.paleta()->boton(u"Botonera(1)").Pulsar();
    EXPECT_EQ(pantalla.mostradas, antes);
    EXPECT_EQ(aplicacion.visor(), nullptr);
    EXPECT_TRUE(dialogos.mensajes.empty());
}

} // namespace
} // namespace valmerix
