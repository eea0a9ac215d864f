#include "store/case_loading.h"

#include "store/case_saving.h"
#include "support/fake_open_case.h"
#include "support/fake_ports.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

#include <random>

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

class CaseLoading : public testing::Test
{
protected:
    AlmacenDePrueba almacen;
    FakeCasoAbierto piso{u"Piso"_s, {u" Ana "_s, u"Eva"_s}};

    void Guardar(const QString& campos, const QString& tipo = u"P"_s)
    {
        almacen.Ejecutar(
            u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('Ana','%1',42)"_s.arg(tipo));
        if (!campos.isEmpty())
            almacen.Ejecutar(u"UPDATE Viviendas SET "_s + campos);
    }
    void Cargar(FakeCasoAbierto& caso)
    {
        almacen.sql.clear();
        CargaVivienda(caso, almacen.compartido, caso.letra(), u"Ana"_s, 42);
    }
    void Cargar() { Cargar(piso); }
    QString texto(QStringView control) const { return piso.ventana_.texto(control); }
};

} // namespace

TEST_F(CaseLoading, ReadsTheCaseWithOneQueryAndThenRecalculatesAndFillsTheGrids)
{
    Guardar({});
    Cargar();
    EXPECT_EQ(
        almacen.sql,
        QStringList{
            u"SELECT * FROM Viviendas WHERE Tipo = 'P' AND NombreTasador = 'Ana' AND NumeroTasacion = 42"_s});
    EXPECT_EQ(piso.llamadas, (QStringList{u"ComponerFrasesDelEdificio"_s, u"CALCULADOR"_s, u"CASILLAS"_s,
                                          u"CargaGridImagenesAsociadas"_s, u"InicializarGrids fgrBusqueda"_s,
                                          u"CargaGridTestigosAsociados"_s}));
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 42);
    EXPECT_EQ(texto(u"cboNombreTasador"), u"Ana"_s);
}

TEST_F(CaseLoading, AKnownValueIsDeducedFrom)
{
    Guardar(u"ValorProvisional = 125000.5"_s);
    Cargar();
    EXPECT_EQ(texto(u"BoxProvisional"), u"125.000,50"_s);
    EXPECT_EQ(piso.llamadas.mid(1, 3),
              (QStringList{u"PonerValorVivienda 125000.5000"_s, u"DEDUCTOR"_s, u"CASILLAS"_s}));
}

TEST_F(CaseLoading, EachFormOfFieldReachesItsControl)
{
    Guardar(u"Plaza = 'Alzira', Fecha = fecha('7/3/2026'), Presentacion = 1, OpcionFinalidad = 2, "
            u"Infraestructuras = '1010001', HabitantesDerecho = 12345, Consolidacion = 80.6, Plantas = 4.5, "
            u"SupConst = 1093.456, CoeficienteK = 1.2, Observaciones = 'Nada que decir', SitUrb = 0"_s);
    Cargar();
    EXPECT_EQ(texto(u"BoxPlaza"), u"Alzira"_s);
    EXPECT_EQ(texto(u"BoxFecha"), u"07/03/2026"_s);
    EXPECT_TRUE(piso.ventana_.marcada(u"Check1"));
    EXPECT_EQ(piso.ventana_.opciones(u"Finalidad").elegida(), 2);
    EXPECT_TRUE(piso.ventana_.marcada(u"CheckPavi"));
    EXPECT_FALSE(piso.ventana_.marcada(u"CheckEnci"));
    EXPECT_TRUE(piso.ventana_.marcada(u"CheckTel"));
    EXPECT_EQ(texto(u"BoxDerecho"), u"12.345"_s);
    EXPECT_EQ(piso.ventana_.campo(u"BoxDerecho").MaxLength(), 6);
    EXPECT_EQ(texto(u"BoxPorcen"), u"81"_s) << "the fraction is lost from sight";
    EXPECT_EQ(texto(u"BoxPlantas"), u"5"_s);
    EXPECT_EQ(texto(u"BoxConst"), u"1.093,46"_s);
    EXPECT_EQ(texto(u"BoxK"), u"1,20"_s);
    EXPECT_EQ(texto(u"txtObservaciones"), u"Nada que decir"_s);
}

TEST_F(CaseLoading, AStoredZeroAndAStoredNullShowAsEmptyFields)
{
    Guardar(u"Antiguedad = 0, SupUtil = 0, Plaza = NULL, HabitantesHecho = NULL"_s);
    piso.Escribir(u"BoxAntig", u"7"_s);
    piso.Escribir(u"BoxPlaza", u"antes"_s);
    Cargar();
    EXPECT_EQ(texto(u"BoxAntig"), u""_s);
    EXPECT_EQ(texto(u"BoxUtil"), u""_s);
    EXPECT_EQ(texto(u"BoxPlaza"), u""_s);
    EXPECT_EQ(texto(u"BoxHecho"), u""_s);
    EXPECT_EQ(texto(u"BoxFecha"), u""_s);
}

TEST_F(CaseLoading, AMissingDateLeavesTheMaskUnfilled)
{
    Guardar(u"Fecha = NULL"_s);
    piso.ventana_.campo(u"BoxFecha").setMask(u"99/99/9999"_s);
    Cargar();
    EXPECT_EQ(texto(u"BoxFecha"), u"  /  /    "_s);
}

TEST_F(CaseLoading, TheLengthOfTheInhabitantsIsSetBeforeTheirText)
{
    Guardar(u"HabitantesDerecho = 1234567"_s);
    CampoTexto& campo = piso.ventana_.campo(u"BoxDerecho");
    campo.setMaxLength(3);
    int alCambiar = 0;
    QObject::connect(&campo, &CampoTexto::Change, [&] { alCambiar = campo.MaxLength(); });
    Cargar();
    EXPECT_EQ(alCambiar, 9);
}

TEST_F(CaseLoading, AListOfBoxesShorterThanItsBoxesLeavesTheRestUnticked)
{
    Guardar(u"Pavimentos = '11', Documentacion = ''"_s);
    piso.ventana_.casilla(u"CheckBaldosa").setValue(1);
    Cargar();
    EXPECT_TRUE(piso.ventana_.marcada(u"CheckCeramico"));
    EXPECT_FALSE(piso.ventana_.marcada(u"CheckMadera"));
    EXPECT_FALSE(piso.ventana_.marcada(u"CheckBaldosa"));
    EXPECT_FALSE(piso.ventana_.marcada(u"CheckOtra"));
}

TEST_F(CaseLoading, ACaseOfAValuerWhoIsGoneOpensAsNewWithoutAValuer)
{
    Guardar(u"Plaza = 'Alzira'"_s);
    FakeCasoAbierto otro(u"Piso"_s, {u"Eva"_s});
    otro.Elegir(u"Eva"_s);
    Cargar(otro);
    EXPECT_EQ(otro.ventana_.texto(u"cboNombreTasador"), u""_s);
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 0);
    EXPECT_EQ(otro.ventana_.texto(u"BoxPlaza"), u"Alzira"_s);
}

TEST_F(CaseLoading, TheProblemTextComesWithItsOption)
{
    Guardar(u"SitUrb = 1"_s);
    almacen.Ejecutar(u"INSERT INTO ProblemasUrbanisticos VALUES ('Ana','P',42,'Fuera de ordenación')"_s);
    Cargar();
    EXPECT_EQ(piso.frase, u"Fuera de ordenación"_s);
    EXPECT_EQ(almacen.sql.last(),
              u"SELECT Problema FROM ProblemasUrbanisticos WHERE Tipo = 'P' AND NombreTasador = "
              u"'Ana' AND NumeroTasacion = 42"_s);
}

TEST_F(CaseLoading, WithoutTheProblemOptionTheSentenceStaysThatOfTheLastCase)
{
    Guardar(u"SitUrb = 0"_s);
    almacen.Ejecutar(u"INSERT INTO ProblemasUrbanisticos VALUES ('Ana','P',42,'de otra vez')"_s);
    piso.frase = u"la del caso anterior"_s;
    Cargar();
    EXPECT_EQ(piso.frase, u"la del caso anterior"_s);
}

TEST_F(CaseLoading, AProblemWithoutItsRowIsEmpty)
{
    Guardar(u"SitUrb = 1"_s);
    piso.frase = u"la del caso anterior"_s;
    Cargar();
    EXPECT_EQ(piso.frase, u""_s);
}

TEST_F(CaseLoading, AHouseNeverTouchesTheLiftNorAFlatThePrivateServices)
{
    Guardar(u"Ascensores = 2, ServiciosIndividuales = '111111', Baños = 3"_s, u"C"_s);
    FakeCasoAbierto casa(u"Casa"_s, {u"Ana"_s});
    casa.ventana_.Añadir<CampoTexto>(u"BoxAscen"_s).setText(u"como estaba"_s);
    Cargar(casa);
    EXPECT_EQ(casa.ventana_.texto(u"BoxAscen"), u"como estaba"_s);
    EXPECT_TRUE(casa.ventana_.marcada(u"CheckHuerto"));
    EXPECT_EQ(casa.ventana_.texto(u"BoxBaños"), u"3"_s);

    Guardar(u"Ascensores = 2, ServiciosIndividuales = '111111'"_s);
    piso.ventana_.Añadir<Casilla>(u"CheckHuerto"_s);
    Cargar();
    EXPECT_EQ(texto(u"BoxAscen"), u"2"_s);
    EXPECT_FALSE(piso.ventana_.marcada(u"CheckHuerto"));
}

TEST_F(CaseLoading, TheSurfaceAboveGroundComesAfterWhatRecalculatesIt)
{
    Guardar(u"Plantas = 4, VivPorPlanta = 2, SuperficieSobreRasante = 800"_s);
    for (const QStringView nombre : {u"BoxPlantas", u"BoxVPP"}) {
        QObject::connect(&piso.ventana_.campo(nombre), &CampoTexto::Change,
                         [this] { piso.Escribir(u"BoxSobreRasante", u"1,00"_s); });
    }
    Cargar();
    EXPECT_EQ(texto(u"BoxSobreRasante"), u"800,00"_s);
}

TEST_F(CaseLoading, TheTotalIsNotReadButRecalculated)
{
    Guardar(u"ValorFinal = 99"_s);
    piso.Escribir(u"BoxTotal", u"como estaba"_s);
    Cargar();
    EXPECT_EQ(texto(u"BoxTotal"), u"como estaba"_s);
}

TEST_F(CaseLoading, AKeyWithoutARowIsAnError)
{
    piso.Escribir(u"BoxPlaza", u"lo tecleado"_s);
    EXPECT_EQ(Fallo([&] { Cargar(); }), u"No hay ninguna tasación 42 de tipo «P» de «Ana»."_s);
    EXPECT_EQ(texto(u"BoxPlaza"), u"lo tecleado"_s);
    EXPECT_TRUE(piso.llamadas.isEmpty());
}

TEST_F(CaseLoading, TheListOfValuersIsSearchedWithoutRegardToBlanksRound)
{
    EXPECT_TRUE(TasadorEnLista(piso.ventana_, u"Ana"_s));
    EXPECT_TRUE(TasadorEnLista(piso.ventana_, u"  Eva"_s));
    EXPECT_FALSE(TasadorEnLista(piso.ventana_, u"ana"_s));
    EXPECT_FALSE(TasadorEnLista(piso.ventana_, u""_s));
}

namespace {

/// Fills every control with something a valuer could have left in it.
void RellenarAlAzar(FakeCasoAbierto& caso, std::mt19937& azar)
{
    const auto hasta = [&](unsigned n) { return azar() % n; };
    for (const CampoCaso& campo : CamposDeCaso()) {
        if (!campo.es(TipoDeLetra(caso.letra())) || !campo.seEscribe())
            continue;
        for (const QStringView control : campo.controles.split(u'|')) {
            switch (campo.forma) {
            case FormaCampo::Texto:
                caso.Escribir(control, u"Ñandú %1; \"x\" -- ’"_s.arg(hasta(1000)).left(hasta(20)).trimmed());
                break;
            case FormaCampo::Fecha:
                caso.Escribir(control, QDate(2000, 1, 1).addDays(hasta(9000)).toString(u"dd/MM/yyyy"_s));
                break;
            case FormaCampo::Numero:
            case FormaCampo::Habitantes:
                caso.Escribir(
                    control,
                    hasta(4) == 0 ? u""_s
                    : campo.decimalesVista == 0
                        ? u"%1"_s.arg(1 + hasta(900))
                        : u"%1.%2,%3"_s.arg(1 + hasta(900)).arg(hasta(900) + 100).arg(10 + hasta(90)));
                break;
            case FormaCampo::Opcion:
                caso.ventana_.opciones(control).Elegir(static_cast<int>(hasta(6)));
                break;
            default:
                caso.ventana_.casilla(control).setValue(static_cast<int>(hasta(2)));
            }
        }
    }
}

} // namespace

TEST_F(CaseLoading, SavingAndLoadingGivesBackEveryFieldButTheTotal)
{
    almacen.AltaDeTasador(u"Ana"_s);
    std::mt19937 azar(11);
    for (int vuelta = 0; vuelta < 60; ++vuelta) {
        const QString nombre = QStringList{u"Piso"_s, u"Apto"_s, u"Casa"_s}[vuelta % 3];
        FakeDialogos dialogos;
        FakeCasoAbierto escrito(nombre, {u"Ana"_s});
        escrito.Elegir(u"Ana"_s);
        RellenarAlAzar(escrito, azar);
        almacen.compartido.NumeroTasacionActual = 0;
        ASSERT_TRUE(SalvaVivienda(escrito, almacen.compartido, dialogos));
        FakeCasoAbierto leido(nombre, {u"Ana"_s});
        CargaVivienda(leido, almacen.compartido, leido.letra(), u"Ana"_s,
                      almacen.compartido.NumeroTasacionActual);
        escrito.Escribir(u"BoxTotal", {});
        EXPECT_EQ(leido.contenido(), escrito.contenido());

        dialogos.respuestas = {true};
        const QStringList filaAntes{almacen
                                        .Leer(u"SELECT * FROM Viviendas WHERE NumeroTasacion = %1"_s.arg(
                                            almacen.compartido.NumeroTasacionActual))
                                        .ValorRegistroGrid(1)};
        leido.Escribir(u"BoxTotal",
                       almacen.Dato(u"SELECT ValorFinal FROM Viviendas WHERE NumeroTasacion = %1"_s.arg(
                           almacen.compartido.NumeroTasacionActual)));
        ASSERT_TRUE(SalvaVivienda(leido, almacen.compartido, dialogos));
        EXPECT_EQ(almacen
                      .Leer(u"SELECT * FROM Viviendas WHERE NumeroTasacion = %1"_s.arg(
                          almacen.compartido.NumeroTasacionActual))
                      .ValorRegistroGrid(1),
                  filaAntes.first());
    }
}

TEST_F(CaseLoading, AFractionInConsolidationOrStoreysIsRoundedAwayAtTheNextSave)
{
    almacen.AltaDeTasador(u"Ana"_s, 42);
    Guardar(u"Consolidacion = 80.6, Plantas = 4.4, Fecha = fecha('1/1/2026')"_s);
    Cargar();
    FakeDialogos dialogos;
    dialogos.respuestas = {true};
    ASSERT_TRUE(SalvaVivienda(piso, almacen.compartido, dialogos));
    EXPECT_EQ(almacen.Leer(u"SELECT Consolidacion, Plantas FROM Viviendas"_s).ValorRegistroGrid(1),
              u"81\t4"_s);
}

} // namespace valmerix
