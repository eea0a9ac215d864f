#include "support/stored_cases.h"
#include "support/test_form.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class CasaYApto : public CasosGuardados
{
protected:
    /// A row as another program may have left it: the key, and what `valores` says.
    void AltaDeFila(const QString& letra, qint32 numero, const QString& valores)
    {
        almacen.Ejecutar(
            u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion,Fecha) VALUES ('Ana','%1',%2,fecha('20/11/2026'))"_s
                .arg(letra)
                .arg(numero));
        almacen.Ejecutar(u"UPDATE Viviendas SET %1 WHERE NumeroTasacion = %2"_s.arg(valores).arg(numero));
    }
};

} // namespace

TEST_F(CasaYApto, AHouseIsOpenedWithItsPlotItsTotalAndItsStoreys)
{
    AltaDeFila(u"C"_s, 7,
               u"SupConst = 200, Plantas = 1, CosteConstruccion = 600, CoeficienteK = 1, Sup = 1, "
               u"ServiciosIndividuales = '100001'"_s);
    const auto casa = Abrir(kDescripcionCasa, 7);
    EXPECT_EQ(entorno.compartido.NumeroTasacionActual, 7);
    EXPECT_EQ(entorno.calculo.SuperficieSolar, 100.0);
    EXPECT_EQ(casa->texto(u"BoxTotal"), u"120.000,00"_s);
    EXPECT_EQ(entorno.frases.FrasePlantas, u" y una planta alta"_s);
    EXPECT_TRUE(casa->marcada(u"CheckPis2"));
    EXPECT_TRUE(casa->marcada(u"CheckHuerto"));

    almacen.Ejecutar(u"INSERT INTO Testigos (Origen,Tipo,Tasacion) VALUES ('I','C',-7)"_s);
    Salvar(*casa);
    EXPECT_EQ(Vivienda(7)[u"ValorFinal"_s].toDouble(), 120000);
    EXPECT_EQ(Vivienda(7)[u"ServiciosIndividuales"_s], u"100001"_s);
    EXPECT_EQ(Testigo(7)[u"ValorFinal"_s].toDouble(), 120000);
    EXPECT_EQ(Testigo(7)[u"Ascensor"_s], u"N"_s);
}

TEST_F(CasaYApto, AnApartmentIsOpenedWithTheFlatsFigures)
{
    AltaDeFila(u"A"_s, 8,
               u"SupConst = 100, Plantas = 3, VivPorPlanta = 2, Ascensores = 1, Antiguedad = 25, "
               u"Repercusion = 400, SuperficieSobreRasante = 768, CosteConstruccion = 600, "
               u"CoeficienteK = 1.5, Sup = 1, ServiciosIndividuales = '010101'"_s);
    const auto apto = Abrir(kDescripcionApto, 8);
    EXPECT_EQ(entorno.calculo.SuperficieSolar, 192.0); // (100 - 4) * 2
    EXPECT_EQ(entorno.calculo.ValorUnitarioSuelo, Importe(1600));
    EXPECT_EQ(apto->texto(u"BoxTotal"), u"127.500,00"_s); // (400 + 600 * 0,75) * 1,5 * 100
    EXPECT_EQ(entorno.frases.FrasePlantas, u"tres plantas altas con "_s);
    EXPECT_EQ(entorno.frases.FraseAscensores, u"Solo cuenta con un ascensor."_s);

    almacen.Ejecutar(u"INSERT INTO Testigos (Origen,Tipo,Tasacion) VALUES ('I','A',-8)"_s);
    Salvar(*apto);
    EXPECT_EQ(Vivienda(8)[u"ValorFinal"_s].toDouble(), 127500);
    EXPECT_EQ(Vivienda(8)[u"ServiciosIndividuales"_s], u"010101"_s) << "not a flat's to write";
    EXPECT_EQ(Testigo(8)[u"Ascensor"_s], u"S"_s);
}

TEST_F(CasaYApto, ACaseWithoutAPlanningProblemSaysThatItComplies)
{
    AltaDeFila(u"A"_s, 9, u"SitUrb = 0, Municipio = 'Alcoi'"_s);
    entorno.frases.FraseUrbanistica = u"Fuera de ordenación."_s;
    const auto apto = Abrir(kDescripcionApto, 9);
    EXPECT_EQ(entorno.frases.FraseUrbanistica, u"Cumple toda la normativa urbanística existente en Alcoi."_s);
}

} // namespace valmerix
