#include "report/enumerations.h"

#include "report/dwelling_groups.h"
#include "report/report_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

FrasesEnumeradas Frases(const CasoDePrueba& caso)
{
    return ComponerEnumeraciones(caso.caso, kGruposCasa, u"cero "_s);
}

/// The same rule, counted the slow way: what stands before and after in the list of ticked boxes.
QString FraseEsperada(const Grupo& grupo, const std::vector<bool>& marcadas)
{
    const auto total = std::ranges::count(marcadas, true);
    QString frase = (total == 0   ? grupo.arranque.ninguno
                     : total == 1 ? grupo.arranque.uno
                                  : grupo.arranque.varios)
                        .toString();
    for (size_t i = 0; i < marcadas.size(); ++i) {
        if (!marcadas[i])
            continue;
        const auto antes = std::count(marcadas.begin(), marcadas.begin() + static_cast<long>(i), true);
        const QString x = grupo.fragmentos[i].texto.toString();
        const bool ultimo = antes == total - 1;
        if (antes == 0)
            frase += u' ' + x + (ultimo ? u"."_s : QString());
        else if (ultimo)
            frase += (x.startsWith(u'i') ? u" e "_s : u" y "_s) + x + u'.';
        else
            frase += u", "_s + x;
    }
    return frase;
}

} // namespace

TEST(Enumerations, EveryCombinationOfEveryGroupOfPlainBoxesFollowsTheRule)
{
    for (const Grupo& grupo : kGruposCasa) {
        if (!grupo.contadas.empty() || !grupo.fragmentos.back().campo.isEmpty())
            continue;
        const size_t n = grupo.fragmentos.size();
        for (unsigned bits = 0; bits < (1U << n); ++bits) {
            CasoDePrueba casa(u"Casa"_s);
            std::vector<bool> marcadas(n);
            for (size_t i = 0; i < n; ++i) {
                marcadas[i] = (bits >> i & 1U) != 0;
                casa.Marcar({grupo.fragmentos[i].casilla}, marcadas[i] ? 1 : 0);
            }
            const FrasesEnumeradas frases = ComponerEnumeraciones(casa.caso, std::span(&grupo, 1), QString());
            EXPECT_EQ(frases.*grupo.frase, FraseEsperada(grupo, marcadas));
        }
    }
}

TEST(Enumerations, OneInfrastructureKeepsItsTwoBlanks)
{
    CasoDePrueba piso;
    piso.Marcar({u"CheckAgua"});
    EXPECT_EQ(Frases(piso).FraseInfraestructuras, u"Cuenta únicamente con suministro  de agua potable."_s);
}

TEST(Enumerations, TwoInfrastructuresAreJoinedByY)
{
    CasoDePrueba piso;
    piso.Marcar({u"CheckPavi", u"CheckTel"});
    EXPECT_EQ(
        Frases(piso).FraseInfraestructuras,
        u"Las infraestructuras o servicios urbanísticos con los que cuenta son pavimentado de calzadas y "
        u"tendido telefónico."_s);
}

TEST(Enumerations, ThreeInfrastructuresTakeACommaAndY)
{
    CasoDePrueba piso;
    piso.Marcar({u"CheckPavi", u"CheckAlum", u"CheckAgua"});
    EXPECT_EQ(
        Frases(piso).FraseInfraestructuras,
        u"Las infraestructuras o servicios urbanísticos con los que cuenta son pavimentado de calzadas, "
        u"alumbrado público y suministro  de agua potable."_s);
}

TEST(Enumerations, SportsLastAreJoinedByEOnlyThen)
{
    CasoDePrueba piso;
    piso.Marcar({u"CheckPark", u"CheckDep"});
    EXPECT_EQ(Frases(piso).FraseEquipLudicos,
              u"cuenta con parques o jardines públicos e instalaciones deportivas."_s);
    piso.Marcar({u"CheckCine"});
    EXPECT_EQ(Frases(piso).FraseEquipLudicos,
              u"cuenta con parques o jardines públicos, instalaciones deportivas y salas de cine."_s);
}

TEST(Enumerations, FragmentsThatBeginWithABlankKeepIt)
{
    CasoDePrueba piso;
    piso.Marcar({u"CheckCeramico"});
    EXPECT_EQ(Frases(piso).FrasePavimentos, u"todo el pavimento es  cerámico."_s);
    piso.Marcar({u"CheckTerrazo"});
    EXPECT_EQ(Frases(piso).FrasePavimentos, u"combina pavimentos de terrazo y  cerámico."_s);
}

TEST(Enumerations, WithNothingTickedTheLeadsAreTheSentences)
{
    const FrasesEnumeradas frases = Frases(CasoDePrueba());
    EXPECT_EQ(frases.FraseInfraestructuras, u"Carece de todo tipo de infraestructuras."_s);
    EXPECT_EQ(frases.FraseEquipNecesarios, u"carece de todo tipo de equipamientos necesarios."_s);
    EXPECT_EQ(frases.FraseEquipLudicos, u"carece de todo tipo de equipamientos lúdicos."_s);
    EXPECT_EQ(frases.FraseComunicaciones, u"estas son muy deficientes."_s);
    EXPECT_EQ(frases.FraseServiciosComunes, u"No dispone de servicios comunes."_s);
    EXPECT_EQ(frases.FraseServiciosIndividuales, u"  Carece de servicios de tipo individual."_s);
    EXPECT_EQ(frases.FrasePavimentos, u"se encuentra sin pavimentar."_s);
    EXPECT_EQ(frases.FraseDistribucion, u"Se encuentra sin distribuir interiormente."_s);
    EXPECT_EQ(frases.FraseDocumentacion, u"No se adjunta ninguna documentación."_s);
}

TEST(Enumerations, OnlyAHouseSpeaksOfIndividualServices)
{
    CasoDePrueba piso;
    EXPECT_EQ(ComponerEnumeraciones(piso.caso, kGruposEnBloque, QString()).FraseServiciosIndividuales,
              QString());
    CasoDePrueba casa(u"Casa"_s);
    casa.Marcar({u"CheckHuerto"});
    EXPECT_EQ(Frases(casa).FraseServiciosIndividuales,
              u"  En cuanto a servicios de tipo individual, tan solo cuenta con servicio de portería."_s);
}

TEST(Enumerations, AHousesOwnParkingIsItsOwn)
{
    CasoDePrueba casa(u"Casa"_s);
    casa.Marcar({u"CheckApar2"});
    EXPECT_EQ(Frases(casa).FraseServiciosIndividuales,
              u"  En cuanto a servicios de tipo individual, tan solo cuenta con aparcamiento para uso "
              u"privativo."_s);
}

TEST(Enumerations, OtherDocumentsAreHerOwnWordsAndNeverTakeE)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxDocumentacion", u"INFORME Técnico"}});
    piso.Marcar({u"CheckOtra"});
    EXPECT_EQ(Frases(piso).FraseDocumentacion, u"Se adjunta informe técnico."_s);
    piso.Marcar({u"CheckLicencia"});
    EXPECT_EQ(Frases(piso).FraseDocumentacion,
              u"Se adjuntan licencia municipal de obras y informe técnico."_s);
}

TEST(Enumerations, ThreeBedroomsAloneAreStillOneSingleRoom)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxDormitorios", u"3"}});
    piso.Marcar({u"CheckDormitorios"});
    EXPECT_EQ(Frases(piso).FraseDistribucion, u"Tiene una única estancia destinada a tres dormitorios."_s);
}

TEST(Enumerations, PlainRoomsBringTheirBlankAndTheLeadHasOneToo)
{
    CasoDePrueba piso;
    piso.Marcar({u"CheckCocina"});
    EXPECT_EQ(Frases(piso).FraseDistribucion, u"Tiene una única estancia destinada a  cocina."_s);
    piso.Marcar({u"CheckEstar"});
    EXPECT_EQ(Frases(piso).FraseDistribucion,
              u"Interiormente la vivienda se distribuye en  cocina y sala de estar."_s);
    piso.Marcar({u"CheckCocina"}, 0);
    piso.Marcar({u"CheckGaleria"});
    EXPECT_EQ(Frases(piso).FraseDistribucion,
              u"Interiormente la vivienda se distribuye en   galería y sala de estar."_s);
}

TEST(Enumerations, CountedRoomsAreMasculineButForTerracesAndOtherRooms)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxDormitorios", u"1"},
                   {u"BoxOtros", u"21"},
                   {u"txtOtros", u"Despacho"},
                   {u"BoxOtros2", u"1"},
                   {u"txtOtros2", u"TALLER"},
                   {u"BoxBaños", u"2"},
                   {u"BoxAseos", u"1"},
                   {u"BoxTerrazas", u"1"}});
    piso.Marcar(
        {u"CheckDormitorios", u"CheckOtros", u"CheckOtros2", u"CheckBaños", u"CheckAseos", u"CheckTerrazas"});
    EXPECT_EQ(Frases(piso).FraseDistribucion,
              u"Interiormente la vivienda se distribuye en un dormitorio, veintiuna estancias destinadas a "
              u"despacho, una estancia destinada a taller, dos baños, un aseo y una terraza."_s);
}

TEST(Enumerations, TerracesAloneEndTheSentence)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxTerrazas", u"2"}});
    piso.Marcar({u"CheckTerrazas"});
    EXPECT_EQ(Frases(piso).FraseDistribucion, u"Tiene una única estancia destinada a dos terrazas."_s);
}

TEST(Enumerations, ATickedRoomWithAnEmptyCountRepeatsTheLastWords)
{
    CasoDePrueba piso;
    piso.Escribir({{u"BoxDormitorios", u"4"}});
    piso.Marcar({u"CheckDormitorios", u"CheckAseos"});
    EXPECT_EQ(Frases(piso).FraseDistribucion,
              u"Interiormente la vivienda se distribuye en cuatro dormitorios y cuatro aseos."_s);
}

} // namespace valmerix
