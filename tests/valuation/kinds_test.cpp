#include "support/test_form.h"
#include "valuation/figures.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

TEST(Casa, FillsItsOwnPlot)
{
    CasoDePrueba casa(kDescripcionCasa, {{u"BoxConst", u"200"}, {u"BoxPlantas", u"1"}});
    casa.form.CALCULADOR();
    EXPECT_EQ(casa.form.estado().SuperficieSolar, 100.0);
    EXPECT_EQ(casa.texto(u"BoxSobreRasante"), u"200,00"_s);
}

TEST(Casa, WithoutUpperFloorsThePlotIsTheBuiltSurface)
{
    CasoDePrueba casa(kDescripcionCasa, {{u"BoxConst", u"3"}});
    casa.form.CALCULADOR();
    EXPECT_EQ(casa.form.estado().SuperficieSolar, 3.0);
    casa.form.PonerValorVivienda(Importe(1000));
    casa.form.DEDUCTOR();
    EXPECT_EQ(casa.form.estado().SuperficieSolar, 3.0);
}

TEST(Casa, ItsStoreysFollowTheGroundFloorInTheSentence)
{
    CasoDePrueba casa(kDescripcionCasa, {{u"BoxPlantas", u"1"}});
    EXPECT_EQ(casa.frases.FrasePlantas, u" y una planta alta"_s);
    casa.Escribir({{u"BoxPlantas", u"2"}});
    EXPECT_EQ(casa.frases.FrasePlantas, u" y dos plantas altas"_s);
    casa.Escribir({{u"BoxPlantas", u""}});
    EXPECT_EQ(casa.frases.FrasePlantas, QString());
}

TEST(Casa, HasNoFloorsOfDwellings)
{
    const CasoDePrueba casa(kDescripcionCasa);
    for (const QStringView nombre : {u"BoxVPP", u"BoxAscen", u"ComboBaja", u"ComboEscalera1",
                                     u"ComboEscalera2", u"ComboZaguan1", u"ComboZaguan2"})
        EXPECT_EQ(casa.form.buscar(nombre), nullptr);
    EXPECT_EQ(casa.form.Caption(), u"Valmerix - Casas"_s);
    EXPECT_EQ(casa.form.letra(), u"C"_s);
    EXPECT_EQ(
        casa.form.lista(u"ComboTipol").List().join(u'|'),
        u"Vivienda unifamiliar aislada|Edificio entre medianeras|Adosada con jardín|Explotación agropecuaria"_s);
}

TEST(Casa, ItsProfileHasItsOwnIndexes)
{
    const CasoDePrueba casa(kDescripcionCasa);
    EXPECT_EQ(casa.form.perfil().size(), 23 + 13);
    QStringList puntos(CuentaPuntos(SeccionesCasa()));
    QStringList apartados(CuentaApartados(SeccionesCasa()));
    for (const SeccionForma& seccion : SeccionesCasa()) {
        if (seccion.apartado >= 0)
            apartados[seccion.apartado] = seccion.controles.front().nombre.toString();
        for (const ControlForma& fila : seccion.controles) {
            if (fila.punto >= 0)
                puntos[fila.punto] = fila.nombre.toString();
        }
    }
    EXPECT_EQ(puntos.mid(5).join(u' '),
              u"BoxPlantas BoxAntig BoxSot ComboTipol ComboSotano ComboEstructura ComboCubierta "
              u"ComboFachada"_s);
    EXPECT_EQ(apartados.mid(7, 6).join(u' '),
              u"BoxPlantas SitUrb CheckPis CheckPis2 OptionEstado CheckEstar"_s);
    EXPECT_FALSE(apartados.contains(QString()));
}

TEST(Casa, CountsWhatItHasOnItsPlot)
{
    CasoDePrueba casa(kDescripcionCasa);
    casa.form.casilla(u"CheckPis2").Pulsar();
    casa.form.casilla(u"CheckHuerto").Pulsar();
    const ContadoresEnumeracion& c = casa.form.contadores();
    EXPECT_EQ(c.Despues(u"CheckPis2"), 1);
    EXPECT_EQ(c.Antes(u"CheckHuerto"), 1);
    EXPECT_EQ(c.Antes(u"CheckCol2"), 1);
    EXPECT_EQ(c.Despues(u"CheckCol2"), 1);
    EXPECT_EQ(casa.form.control(u"CheckHuerto").Caption(), u"Huerto particular."_s);
}

TEST(Casa, ItsSentencesComposeWithoutTheFieldsItLacks)
{
    CasoDePrueba casa(kDescripcionCasa, {{u"BoxPlantas", u"1"}});
    casa.form.ComponerFrasesDelEdificio();
    EXPECT_EQ(casa.frases.FrasePlantas, u" y una planta alta"_s);
    EXPECT_EQ(casa.frases.FraseAntiguedad, u"De nueva planta."_s);
    EXPECT_EQ(casa.frases.FraseViviendasPlanta, QString());
    EXPECT_EQ(casa.frases.FraseAscensores, QString());
}

TEST(Apto, DiffersInTwoLists)
{
    const CasoDePrueba apto(kDescripcionApto);
    EXPECT_EQ(
        apto.form.lista(u"Combo4").List().join(u'|'),
        u"Centro urbano|Dentro del casco urbano|En la zona costera|En zona de montaña|Próximo a estación de "
        u"esquí|Próximo a un parque temático"_s);
    EXPECT_EQ(
        apto.form.lista(u"Combo5").List().join(u'|'),
        u"Residencia Estival|Urbanización próxima al mar|Apartamentos primera línea de playa|Negocios de "
        u"hostelería|Sin edificar en su mayoría"_s);
    EXPECT_EQ(apto.form.Caption(), u"Valmerix - Apartamentos"_s);
    EXPECT_EQ(apto.form.controles().size(), PisoDePrueba().form.controles().size());
    EXPECT_EQ(apto.form.perfil().size(), 39);
}

TEST(Apto, GivesTheFlatsFiguresToTheLastDecimal)
{
    const CasoDePrueba::Textos entrada = {
        {u"BoxConst", u"97,43"},        {u"BoxPlantas", u"6"}, {u"BoxVPP", u"4"},
        {u"BoxAntig", u"17"},           {u"BoxCc", u"613,77"}, {u"BoxK", u"1,37"},
        {u"BoxRepercusion", u"288,31"}, {u"Text9", u"1234,5"}, {u"BoxTrastero", u"4321"},
        {u"BoxProvisional", u"98765"}};
    PisoDePrueba piso(entrada);
    CasoDePrueba apto(kDescripcionApto, entrada);
    const auto enAmbos = [&](const auto& gesto) {
        for (CasoDePrueba* caso : {static_cast<CasoDePrueba*>(&piso), &apto})
            gesto(*caso);
        CompararFiguras(piso.calculo, apto.calculo);
        for (const QStringView campo : kCamposResultado)
            EXPECT_EQ(piso.texto(campo), apto.texto(campo)) << campo.toString().toStdString();
        EXPECT_FALSE(piso.calculo.ValorTotal.esCero());
    };
    for (const int superficie : {0, 1}) {
        for (const QStringView provisional : {u"98765", u""}) {
            enAmbos([&](CasoDePrueba& caso) { // backward, then forward
                caso.form.opciones(u"Sup").Elegir(superficie);
                caso.form.DejarCampo(u"BoxTrastero");
                caso.Escribir({{u"BoxProvisional", provisional}, {u"BoxRepercusion", u"288,31"}});
                caso.form.DejarCampo(u"BoxProvisional");
            });
            enAmbos([](CasoDePrueba& caso) { caso.form.REDONDEADOR(); });
            enAmbos([](CasoDePrueba& caso) { caso.form.boton(u"SSCommand7").Pulsar(); });
        }
    }
}

TEST(Descripciones, AreFoundByTheirLetter)
{
    EXPECT_EQ(DescripcionDe(u'P'), &kDescripcionPiso);
    EXPECT_EQ(DescripcionDe(u'A'), &kDescripcionApto);
    EXPECT_EQ(DescripcionDe(u'C'), &kDescripcionCasa);
    EXPECT_EQ(DescripcionDe(u'X'), nullptr);
}

TEST(Descripciones, EachHasItsOwnProfile)
{
    EntornoDePrueba entorno;
    entorno.opciones.PerfilPiso = u"0"_s;
    entorno.opciones.PerfilApartamento = u"10"_s;
    entorno.opciones.PerfilCasa = u"110"_s;
    const std::pair<const DescripcionForma*, QString> casos[] = {
        {&kDescripcionPiso, u"011"_s}, {&kDescripcionApto, u"101"_s}, {&kDescripcionCasa, u"110"_s}};
    for (const auto& [descripcion, inicio] : casos) {
        Formulario form(*descripcion, entorno.servicios);
        form.AplicarOpciones();
        EXPECT_EQ(form.perfil().left(3), inicio);
    }
}

} // namespace

} // namespace valmerix
