#include "shell/safety_net.h"

#include "support/running_program.h"
#include "valuation/enumeration_counters.h"

#include <QFile>
#include <QJsonDocument>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class RedTest : public testing::Test, protected ProgramaDePrueba
{
protected:
    /// An open case of the kind of button `indice`, nothing of it changed.
    void Abierto(int indice = 0)
    {
        Arrancar();
        if (Leer(u"SELECT * FROM Tasadores"_s).RecordCount() == 0)
            ConTasador();
        aplicacion->NuevoCaso(indice);
    }
    void Rellenar();
    QList<int> Contadores()
    {
        QList<int> cuentas;
        for (size_t g = 0; g < kGruposCasillas; ++g) {
            const auto grupo = static_cast<GrupoCasillas>(g);
            for (size_t i = 0; i < CasillasDe(grupo).size(); ++i)
                cuentas << forma().contadores().Antes(grupo, i) << forma().contadores().Despues(grupo, i);
        }
        return cuentas;
    }
    void Guardar()
    {
        forma().lista(u"cboNombreTasador").Elegir(0);
        aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    }
    void Reiniciar()
    {
        pantalla.guion[u"Reinicio"_s] = [](Ventana& v) { v.boton(u"SSCommand1").Pulsar(); };
        aplicacion->EjecutarOrden(OrdenPaleta::Reinicio);
    }
    bool marca() { return forma().modificada(); }
};

// Something in every control that takes something, as odd as typing and choosing can leave it.
void RedTest::Rellenar()
{
    Formulario& f = forma();
    f.lista(u"cboNombreTasador").Elegir(0);
    int n = 0;
    for (const auto& control : f.controles()) {
        ++n;
        if (auto* casilla = dynamic_cast<Casilla*>(control.get())) {
            if (n % 3 != 0)
                casilla->Pulsar();
        } else if (auto* grupo = dynamic_cast<GrupoOpciones*>(control.get())) {
            grupo->Elegir(grupo->Count() - 1);
        } else if (auto* lista = dynamic_cast<Lista*>(control.get())) {
            lista->Elegir(lista->ListCount() - 1);
        } else if (auto* campo = dynamic_cast<CampoTexto*>(control.get())) {
            f.Enfocar(campo);
            campo->Teclear(u"1"_s + QString::number(n % 10) + u" ñ«\"\\\n"_s);
        } else if (auto* rejilla = dynamic_cast<Rejilla*>(control.get())) {
            rejilla->AddItem(u"-7\tuno\tdos «tres»\t\tcinco"_s, 1);
            rejilla->setMarca(1, MarcaCelda::Marcada);
            rejilla->setRow(1);
        }
    }
    f.como<Solapas>(u"SSTab1").setTab(3);
}

class RedDeCadaTipo : public RedTest, public testing::WithParamInterface<int>
{
};

TEST_P(RedDeCadaTipo, AFullCaseStandsAfterRecoveryExactlyAsItStood)
{
    Abierto(GetParam());
    Rellenar();
    Teclear(u"BoxConst", u"104"_s); // left in the middle of a figure, its results pending
    Teclear(u"BoxK", u"1,3"_s);
    Teclear(u"BoxCc", u"690"_s);
    const QJsonObject antes = Todo();
    const QList<int> cuentas = Contadores();
    ASSERT_EQ(forma().control(u"BoxTotal").aspecto(), Aspecto::Pendiente);
    PasaElTiempo();
    Arrancar();
    recuperar().Pulsar();
    ASSERT_NE(aplicacion->FormularioActual(), nullptr);
    EXPECT_EQ(Todo(), antes);
    EXPECT_EQ(Contadores(), cuentas);
    EXPECT_EQ(forma().conFoco(), &forma().control(u"BoxCc"));
}

TEST_P(RedDeCadaTipo, ARecoveredCaseGoesOnLikeOneThatWasNeverInterrupted)
{
    const auto seguir = [this] {
        forma().campo(u"BoxCc").Teclear(u"5"_s);
        forma().Enfocar(u"BoxPlantas");
        forma().campo(u"BoxPlantas").Teclear(u"4"_s);
        forma().boton(u"SSCommand7").Pulsar();
        forma().Enfocar(nullptr);
        return Todo();
    };
    Abierto(GetParam());
    Teclear(u"BoxConst", u"104"_s);
    Teclear(u"BoxK", u"1,3"_s);
    Teclear(u"BoxCc", u"69"_s);
    PasaElTiempo();
    const auto queda = LoQueQueda();
    const QJsonObject seguido = seguir();
    Caer(queda);
    Arrancar();
    recuperar().Pulsar();
    EXPECT_EQ(seguir(), seguido);
}

INSTANTIATE_TEST_SUITE_P(Tipos, RedDeCadaTipo, testing::Values(0, 1, 2));

TEST_F(RedTest, EveryControlOfACaseWindowIsOfASortThatADraftKnows)
{
    for (const int tipo : {0, 1, 2}) {
        Abierto(tipo);
        for (const auto& control : forma().controles()) {
            EXPECT_EQ(dynamic_cast<TextoEnriquecido*>(control.get()), nullptr);
            EXPECT_EQ(dynamic_cast<Arbol*>(control.get()), nullptr);
        }
    }
}

TEST_F(RedTest, ACaseThatSheOnlyWalksThroughHasNoMarkAndNoDraft)
{
    Abierto();
    Guardar();
    Reiniciar();
    aplicacion->AbrirCaso(u"Rosa Peña#5#P"_s);
    for (const auto& control : forma().controles())
        forma().Enfocar(control.get());
    forma().como<Solapas>(u"SSTab1").setTab(2);
    EXPECT_FALSE(marca());
    Acabar();
    EXPECT_TRUE(EnDisco().isEmpty());
}

TEST_F(RedTest, TheMarkComesWithHerFirstChangeAndGoesWithTheSave)
{
    Abierto();
    EXPECT_FALSE(marca());
    const QString caption = forma().Caption();
    Teclear(u"BoxSit", u"C"_s);
    EXPECT_TRUE(marca());
    EXPECT_TRUE(aplicacion->barra()->modificada());
    EXPECT_EQ(forma().Caption(), caption);
    EXPECT_EQ(forma().control(u"EtiquetaCaption").Caption(), caption);
    Guardar();
    EXPECT_FALSE(marca());
    EXPECT_FALSE(aplicacion->barra()->modificada());
    forma().casilla(u"CheckPavi").Pulsar();
    EXPECT_TRUE(marca());
}

TEST_F(RedTest, EverySortOfChangeBringsTheMark)
{
    using Cambio = std::function<void(Formulario&)>;
    const Cambio cambios[] = {
        [](Formulario& f) { f.campo(u"BoxConst").Teclear(u"1"_s); },
        [](Formulario& f) { f.casilla(u"CheckPavi").Pulsar(); },
        [](Formulario& f) { f.opciones(u"Finalidad").Pulsar(2); },
        [](Formulario& f) { f.lista(u"cboNombreTasador").Elegir(0); },
        [](Formulario& f) { f.casilla(u"chkApartados(0)").Pulsar(); },
        [](Formulario& f) { f.rejilla(u"GridImagen").AddItem(u"/a.png\tUna"_s); },
        [](Formulario& f) { f.rejilla(u"fgrSeleccion").RemoveItem(1); },
    };
    Abierto();
    for (const Cambio& cambio : cambios) {
        aplicacion->NuevoCaso(0);
        ASSERT_FALSE(marca());
        cambio(forma());
        EXPECT_TRUE(marca());
    }
}

TEST_F(RedTest, SearchingComparablesAndLookingAtPicturesChangesNothingOfTheCase)
{
    Abierto();
    forma().rejilla(u"GridImagen").AddItem(u"/a.png\tUna"_s);
    Guardar();
    forma().rejilla(u"GridImagen").Pulsar(1);
    forma().rejilla(u"fgrBusqueda").AddItem(u"7"_s);
    forma().campo(u"txtFechaDesde").Teclear(u"01012026"_s);
    EXPECT_FALSE(marca());
}

TEST_F(RedTest, AProblemWrittenInItsOwnWindowIsAChangeToo)
{
    Abierto();
    pantalla.guion[u"Problema"_s] = [](Ventana& v) { v.Cerrar(); };
    aplicacion->MostrarProblema();
    EXPECT_FALSE(marca());
    pantalla.guion[u"Problema"_s] = [this](Ventana& v) {
        aplicacion->frases().FraseUrbanistica = u"Fuera de ordenación."_s;
        v.Cerrar();
    };
    aplicacion->MostrarProblema();
    EXPECT_TRUE(marca());
}

TEST_F(RedTest, ASaveDropsTheDraftBeforeSheIsTold)
{
    Abierto();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    PasaElTiempo();
    ASSERT_EQ(EnDisco().size(), 1);
    Guardar();
    EXPECT_TRUE(EnDisco().isEmpty());
    Acabar();
    EXPECT_TRUE(EnDisco().isEmpty());
}

TEST_F(RedTest, ASaveThatSheCancelsKeepsDraftAndMark)
{
    Abierto();
    Guardar();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    dialogos.respuestas = {false};
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_TRUE(marca());
    Acabar();
    EXPECT_EQ(EnDisco().size(), 1);
}

TEST_F(RedTest, ASaveThatFailsKeepsDraftAndMark)
{
    Abierto();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    forma().lista(u"cboNombreTasador").Elegir(0);
    Ejecutar(u"DELETE FROM Tasadores"_s); // her valuer is gone: nothing can be numbered
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_TRUE(marca());
    Acabar();
    EXPECT_EQ(EnDisco().size(), 1);
}

TEST_F(RedTest, AConfirmedRestartDropsTheDraftAndACancelledOneKeepsIt)
{
    Abierto();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    PasaElTiempo();
    pantalla.guion[u"Reinicio"_s] = [](Ventana& v) { v.boton(u"SSCommand2").Pulsar(); };
    aplicacion->EjecutarOrden(OrdenPaleta::Reinicio);
    EXPECT_EQ(EnDisco().size(), 1);
    Reiniciar();
    EXPECT_TRUE(EnDisco().isEmpty());
    EXPECT_FALSE(recuperar().Visible());
    PasaElTiempo();
    EXPECT_TRUE(EnDisco().isEmpty());
}

TEST_F(RedTest, TheExitWithoutSavingKeepsEvenTheLastKeystroke)
{
    Abierto();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    QString enDisco;
    pantalla.guion[u"SALIDA"_s] = [&](Ventana& v) {
        // The process ends inside this click, and with it all that has not been written.
        if (const auto borrador = FicheroBorrador::MasReciente(borradores()))
            enDisco = borrador->texto(u"BoxSit");
        v.boton(u"SSCommand2").Pulsar();
    };
    aplicacion->MostrarSalida();
    EXPECT_EQ(enDisco, u"Calle Mayor, 5"_s);
    EXPECT_EQ(sistema.finales, std::vector<int>{0});
    EXPECT_TRUE(dialogos.preguntas.empty());
}

TEST_F(RedTest, WithoutADraftTheStartWindowOffersNothing)
{
    Arrancar();
    aplicacion->inicio()->TerminarPortada();
    EXPECT_FALSE(recuperar().Visible());
}

TEST_F(RedTest, TheStartWindowTellsWhichCaseAndWhenBehindItsTitle)
{
    Abierto();
    Guardar();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    Teclear(u"BoxMun", u"Alcoi"_s);
    Arrancar();
    EXPECT_FALSE(recuperar().Visible()) << "the title comes first";
    aplicacion->inicio()->TerminarPortada();
    EXPECT_TRUE(recuperar().Visible());
    EXPECT_EQ(recuperar().Caption(), u"Recuperar el trabajo no guardado"_s);
    EXPECT_EQ(recuperar().ToolTip(),
              u"Piso n.º 5 de Rosa Peña, Calle Mayor, 5 (Alcoi), hasta el 20/11/2026 a las 09:30"_s);
    recuperar().Pulsar();
    EXPECT_EQ(aplicacion->inicio(), nullptr);
    EXPECT_TRUE(dialogos.mensajes.size() == 1) << "only that of the save";
    EXPECT_TRUE(dialogos.preguntas.empty());
}

TEST_F(RedTest, ARecoveredCaseIsMarkedKeepsItsDraftAndIsSavedAsUsual)
{
    Abierto();
    Guardar();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    Arrancar();
    recuperar().Pulsar();
    EXPECT_TRUE(marca());
    EXPECT_EQ(EnDisco().size(), 1);
    EXPECT_EQ(aplicacion->compartido().NumeroTasacionActual, 5);
    dialogos.respuestas = {true};
    aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    EXPECT_EQ(Leer(u"SELECT Situacion FROM Viviendas"_s).Texto(u"Situacion"), u"Calle Mayor, 5"_s);
    EXPECT_FALSE(marca());
    EXPECT_TRUE(EnDisco().isEmpty());
}

TEST_F(RedTest, ARecoveredCaseWritesOnIntoItsOwnDraft)
{
    Abierto();
    Teclear(u"BoxSit", u"Calle Mayor"_s);
    Arrancar();
    recuperar().Pulsar();
    Teclear(u"BoxMun", u"Alcoi"_s);
    Arrancar();
    EXPECT_EQ(EnDisco().size(), 1);
    recuperar().Pulsar();
    EXPECT_EQ(forma().texto(u"BoxSit"), u"Calle Mayor"_s);
    EXPECT_EQ(forma().texto(u"BoxMun"), u"Alcoi"_s);
    Reiniciar();
    EXPECT_TRUE(EnDisco().isEmpty());
}

TEST_F(RedTest, AnotherCaseLeavesTheOlderDraftForLater)
{
    Abierto();
    Teclear(u"BoxSit", u"La primera"_s);
    Arrancar();
    reloj.hora = QTime(10, 0);
    aplicacion->NuevoCaso(1);
    Teclear(u"BoxSit", u"La segunda"_s);
    Arrancar();
    EXPECT_EQ(EnDisco().size(), 2);
    EXPECT_TRUE(recuperar().ToolTip().startsWith(u"Apartamento, La segunda,"_s));
    recuperar().Pulsar();
    Reiniciar();
    EXPECT_TRUE(recuperar().ToolTip().startsWith(u"Piso, La primera,"_s));
    EXPECT_TRUE(recuperar().Visible());
}

TEST_F(RedTest, ADraftThatVanishesMeanwhileIsToldAndTheStartWindowStays)
{
    Abierto();
    Teclear(u"BoxSit", u"Calle Mayor, 5"_s);
    Arrancar();
    QDir(borradores()).removeRecursively();
    EXPECT_THROW(recuperar().Pulsar(), std::runtime_error);
    EXPECT_NE(aplicacion->inicio(), nullptr);
}

TEST_F(RedTest, AnInterruptedActionMarksTheCase)
{
    Abierto();
    dialogos.respuestasFallo = {true};
    aplicacion->InformarFallo(std::runtime_error("a medias"));
    EXPECT_TRUE(marca());
}

} // namespace
} // namespace valmerix
