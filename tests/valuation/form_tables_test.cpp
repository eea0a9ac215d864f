#include "support/test_form.h"

#include <gtest/gtest.h>
#include <map>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QString Titulo(const Formulario& form, QStringView nombre)
{
    return form.control(nombre).Caption();
}

TEST(Tablas, TheFlatHasEveryFieldOfItsRecord)
{
    const PisoDePrueba piso;
    const QStringList nombres =
        u"BoxPlaza BoxFecha BttFecha cboNombreTasador Check1 BotonFicha BoxSit BoxMun BoxProv BoxCP cboZona "
        u"BoxNomSol "
        u"BoxNIFSol BoxDomSol BoxCPSol BoxPobSol BoxProvSol txtRegistro BoxTomo BoxLibro BoxFolio BoxFinca "
        u"BoxInsc "
        u"BoxAnot Finalidad BoxFin Combo1 Combo2 Combo3 BoxDerecho BoxHecho TipoNucleo BoxSatelite "
        u"BoxOtroNucleo "
        u"CheckPavi CheckEnci CheckAlum CheckAlca CheckElec CheckAgua CheckTel CheckNac CheckAutov CheckAut "
        u"CheckLoc "
        u"CheckBus CheckTren CheckMetro Combo4 Combo5 BoxPorcen CheckCome CheckSan CheckPol CheckEdu "
        u"CheckAdmi CheckPark "
        u"CheckDep CheckCine CheckTea CheckBar BoxPlantas BoxVPP BoxAscen BoxAntig BoxSot ComboTipol "
        u"ComboBaja "
        u"ComboSotano ComboEstructura ComboCubierta ComboFachada ComboEscalera1 ComboEscalera2 ComboZaguan1 "
        u"ComboZaguan2 "
        u"CheckPis CheckDep2 CheckApar CheckJardin CheckCol CheckPort OptionEstado SitUrb SSCommand6 "
        u"CheckEstar "
        u"CheckComedor CheckTerrazas BoxTerrazas CheckGaleria CheckCocina CheckAseos BoxAseos CheckBaños "
        u"BoxBaños "
        u"CheckDormitorios BoxDormitorios CheckOtros txtOtros BoxOtros CheckOtros2 txtOtros2 BoxOtros2 "
        u"CheckTerrazo "
        u"CheckCeramico CheckMadera CheckMarmol CheckBaldosa CarpInt BoxRoble CarpExt BoxHierro MobK BoxMobK "
        u"Interior "
        u"BoxLisa Sup BoxUtil BoxConst Conserv Calidad CheckEscritura CheckLicencia CheckContribucion "
        u"CheckOtra "
        u"BoxDocumentacion BoxK BoxProvisional BoxSolar BoxRepercusion BoxSobreRasante BoxCc BoxReposicion "
        u"CheckTrast "
        u"Combo8 BoxTrastero CheckGrj Combo7 BoxGaraje CheckOtra2 Text8 Text9 BoxVr BoxVivienda BoxAnexos "
        u"BoxTotal "
        u"SSCommand7 txtObservaciones cmdObservaciones fgrBusqueda fgrSeleccion GridImagen Imagen SSTab1 "
        u"SSCommand1 "
        u"SSCommand2 SSCommand3 SSCommand4 SSCommand5 EtiquetaCaption Image1 txtProvincia txtPoblacion "
        u"txtPalabrasDireccion txtCodigoPostal cboTipoZona txtFechaDesde txtFechaHasta txtSuperficieDesde "
        u"txtSuperficieHasta cboTipoSup txtImporteDesde txtImporteHasta txtEdadDesde txtEdadHasta"_s.split(
            u' ');
    for (const QString& nombre : nombres)
        EXPECT_NE(piso.form.buscar(nombre), nullptr) << nombre.toStdString();
}

TEST(Tablas, CaptionsAreLiteral)
{
    const PisoDePrueba piso;
    const std::pair<QStringView, QString> casos[] = {
        {u"BoxPlaza", u"Realizado en:"_s},
        {u"BoxFecha", u"Con fecha:"_s},
        {u"cboNombreTasador", u"Nombre"_s},
        {u"Check1", u"Activar párrafo de presentación"_s},
        {u"BoxCP", u"Código Postal"_s},
        {u"BoxNIFSol", u"C.I.F ó N.I.F.:"_s},
        {u"BoxCPSol", u"C. Postal:"_s},
        {u"BoxInsc", u"Inscripción:"_s},
        {u"BoxDerecho", u"Habitantes de derecho (censo):"_s},
        {u"BoxHecho", u"Habitantes de hecho (si difiere):"_s},
        {u"CheckPavi", u"Pavimentado calzada."_s},
        {u"CheckTel", u"Tendido telefónico."_s},
        {u"CheckCome", u"Comercial necesario"_s},
        {u"BoxPlantas", u"Nº plantas altas (sin incluir la baja):"_s},
        {u"BoxVPP", u"Nº de viviendas por planta:"_s},
        {u"BoxAntig", u"Antigüedad del edificio (en años):"_s},
        {u"ComboBaja", u"Uso  planta baja:"_s},
        {u"ComboZaguan1", u"Descripción del portal o zaguan:"_s},
        {u"CheckMarmol", u"Granito o mármol."_s},
        {u"BoxUtil", u"Superficie UTIL vivienda:"_s},
        {u"BoxConst", u"Superficie CONSTRUIDA:"_s},
        {u"CheckContribucion", u"Recibo de contribución urbana."_s},
        {u"BoxK", u"Coeficiente de mercado utilizado (K):"_s},
        {u"BoxProvisional", u"Valor de la vivienda (solo si lo conoce):"_s},
        {u"BoxSolar", u"Superficie del solar (solo si la conoce):"_s},
        {u"BoxRepercusion", u"Repercusión solar por m² const.(RS):"_s},
        {u"BoxSobreRasante", u"Superficie construída sobre rasante (Cambiela si lo desea)"_s},
        {u"BoxCc", u"Coste de construcción (Cc):"_s},
        {u"BoxReposicion", u"Valor de reposición (CR):"_s},
        {u"BoxVr", u"Unitario (Vr):"_s},
        {u"BoxVivienda", u"Valor vivienda:"_s},
        {u"BoxAnexos", u"Valor anexos:"_s},
        {u"BoxTotal", QString()},
        {u"CheckTrast", u"Trastero en planta"_s},
        {u"CheckGrj", u"Garaje en planta"_s},
        {u"EtiquetaCaption", u"Valmerix - Pisos"_s},
    };
    for (const auto& [nombre, titulo] : casos)
        EXPECT_EQ(Titulo(piso.form, nombre), titulo) << nombre.toString().toStdString();
    EXPECT_EQ(piso.form.nombre(), u"Piso"_s);
    EXPECT_EQ(piso.form.Caption(), u"Valmerix - Pisos"_s);
}

TEST(Tablas, ListsHaveTheirItems)
{
    const PisoDePrueba piso;
    const std::pair<QStringView, QString> casos[] = {
        {u"cboZona", u"Media|Buena|Mala"_s},
        {u"Combo1", u"Agricultura|Comercio|Industria|Turismo|Artesanía"_s},
        {u"Combo2", u"Bajo|Medio|Elevado|Muy alto"_s},
        {u"Combo3", u"Población creciente|Población decreciente|Crecimiento lento|Estable"_s},
        {u"Combo4", u"Centro urbano|Dentro del casco urbano|Casco antíguo|Zona de ensanche|Barrio periférico|"
                    u"Ciudad dormitorio"_s},
        {u"Combo5", u"Residencial|Comercial|Industrial|Almacenes|Sin edificar en su mayoría"_s},
        {u"ComboTipol", u"Edificio aislado|Entre medianeras"_s},
        {u"ComboBaja", u"Comercial|Garaje|Vivienda|Trasteros|Patio cubierto"_s},
        {u"ComboSotano", u"Garaje|Comercial|Trasteros|Bodega"_s},
        {u"ComboEstructura", u"Hormigón|Muros de carga|Mixta|Metálica"_s},
        {u"ComboCubierta", u"Inclinada teja|Plana pisable|Plana no pisable|Fibrocemento"_s},
        {u"ComboFachada", u"Ladrillo caravista|Enfoscado mortero|Pintura pétrea|Mampostería"_s},
        {u"ComboEscalera1", u"Amplia|Estrecha"_s},
        {u"ComboEscalera2", u"Bien acabada|Calidad sencilla|Anticuada"_s},
        {u"ComboZaguan1", u"Amplio|Pequeño"_s},
        {u"ComboZaguan2", u"Bien acabado|Calidad sencilla|Anticuado"_s},
        {u"Combo7", u"baja|sótano primero|sótano segundo|sótano tercero|entresuelo"_s},
        {u"Combo8", u"baja|ático|sótano primero|sótano segundo|entresuelo"_s},
        {u"cboTipoSup", u"Util|Construida"_s},
    };
    for (const auto& [nombre, elementos] : casos)
        EXPECT_EQ(piso.form.lista(nombre).List().join(u'|'), elementos) << nombre.toString().toStdString();
    EXPECT_EQ(piso.texto(u"cboTipoSup"), u"Construida"_s);
    EXPECT_TRUE(piso.form.lista(u"cboNombreTasador").cerrada());
    EXPECT_FALSE(piso.form.lista(u"ComboTipol").cerrada());
}

TEST(Tablas, OptionGroupsHaveTheirCaptions)
{
    const PisoDePrueba piso;
    const std::pair<QStringView, QString> casos[] = {
        {u"Finalidad",
         u"Garantía hipotecaria de préstamo.|Cobertura compañía aseguradora.|Evaluación de patrimonio.|"
         u"Justiprecio expropiatorio.|Solicitud por"_s},
        {u"TipoNucleo", u"Capital de provincia.|Pequeño núcleo autónomo.|Núcleo satélite de:|"_s},
        {u"OptionEstado", u"En buen estado.|Aceptable estado.|En mal estado.|Ruinoso.|Recién terminado.|"
                          u"Edificio sin terminar."_s},
        {u"SitUrb",
         u"Cumple toda la normativa urbanística vigente.|Presenta irregularidades o falta de adecuación."_s},
        {u"CarpInt", u"Madera de MBERO.|Pino de OREGON.|Madera de ROBLE.|Madera SAPELY.|"_s},
        {u"CarpExt", u"Aluminio.|Madera.|P.V.C.|Hierro.|"_s},
        {u"MobK", u"Madera natural.|Tablero lacado.|Madera estilo rústico.|Laminado plástico.|"_s},
        {u"Interior", u"Pintura a la GOTA.|Pintura LISA|"_s},
        {u"Conserv", u"En buen estado.|En mal estado.|Aceptable.|Sin Terminar."_s},
        {u"Calidad", u"Baja.|Sencillas.|Buenas.|Lujo."_s},
    };
    for (const auto& [nombre, titulos] : casos)
        EXPECT_EQ(piso.form.opciones(nombre).titulos().join(u'|'), titulos)
            << nombre.toString().toStdString();
    EXPECT_EQ(piso.form.opciones(u"Sup").Count(), 2);
}

TEST(Tablas, MoneyLabelsNameTheCurrency)
{
    PisoDePrueba piso;
    int porMetro = 0;
    piso.opciones.MonedaAbreviatura = u"Pts."_s;
    piso.form.ActualizarMoneda(piso.opciones.MonedaAbreviatura);
    EXPECT_EQ(EtiquetasMoneda().size(), 6U);
    for (const EtiquetaMoneda& etiqueta : EtiquetasMoneda()) {
        porMetro += etiqueta.porMetro ? 1 : 0;
        EXPECT_EQ(Titulo(piso.form, etiqueta.nombre), etiqueta.porMetro ? u"Pts./m²"_s : u"Pts."_s);
    }
    EXPECT_EQ(porMetro, 4);
}

std::map<int, QStringList> Apartados(std::span<const SeccionForma> secciones)
{
    std::map<int, QStringList> porIndice;
    for (const SeccionForma& seccion : secciones) {
        EXPECT_GE(seccion.pagina, 0);
        EXPECT_LT(seccion.pagina, 7);
        EXPECT_FALSE(seccion.titulo.isEmpty());
        if (seccion.apartado >= 0)
            porIndice[seccion.apartado] << seccion.controles.front().nombre.toString();
    }
    return porIndice;
}

TEST(Perfil, EveryIndexBelongsToOneSectionOfTheFlat)
{
    const auto porIndice = Apartados(SeccionesPiso());
    const QStringList primeros =
        u"Combo1 TipoNucleo CheckPavi CheckNac Combo4 CheckCome CheckPark BoxPlantas ComboEscalera1 CheckPis "
        u"OptionEstado "
        u"SitUrb CheckEstar CheckTerrazo CarpInt CarpExt MobK Interior EtiquetaSuperficies Conserv Calidad "
        u"CheckEscritura BoxK"_s.split(u' ');
    ASSERT_EQ(porIndice.size(), 23U);
    for (const auto& [indice, nombres] : porIndice)
        EXPECT_EQ(nombres, QStringList{primeros.at(indice)});
}

TEST(Perfil, EveryLineOfTheBuildingAndThePopulationHasItsBox)
{
    QStringList porPunto(CuentaPuntos(SeccionesPiso()));
    for (const SeccionForma& seccion : SeccionesPiso()) {
        for (const ControlForma& fila : seccion.controles) {
            if (fila.punto >= 0)
                porPunto[fila.punto] = fila.nombre.toString();
        }
    }
    EXPECT_EQ(
        porPunto.join(u' '),
        u"Combo1 Combo2 Combo3 BoxDerecho BoxHecho BoxPlantas BoxVPP BoxAscen BoxAntig BoxSot ComboTipol "
        u"ComboBaja ComboSotano ComboEstructura ComboCubierta ComboFachada"_s);
}

TEST(Perfil, IsOneDigitABoxSectionsFirst)
{
    PisoDePrueba piso;
    EXPECT_EQ(piso.form.perfil(), QString(39, u'1'));
    piso.form.casilla(u"chkApartados(0)").setValue(0);
    piso.form.casilla(u"chkApartados(22)").setValue(0);
    piso.form.casilla(u"chkPuntos(0)").setValue(0);
    EXPECT_EQ(piso.form.perfil(), u'0' + QString(21, u'1') + u"00"_s + QString(15, u'1'));
    EXPECT_EQ(piso.form.buscar(u"chkApartados(23)"), nullptr);
    EXPECT_EQ(piso.form.buscar(u"chkPuntos(16)"), nullptr);
}

TEST(Perfil, ReadBackItIsTheSameAndAShortOrEmptyOneLeavesTheRest)
{
    PisoDePrueba piso;
    const QString variado = u"010011000111010011010100101101011010110"_s;
    piso.form.PonerPerfil(variado);
    EXPECT_EQ(piso.form.perfil(), variado);
    piso.form.PonerPerfil({});
    EXPECT_EQ(piso.form.perfil(), variado);
    piso.form.PonerPerfil(u"1"_s);
    EXPECT_EQ(piso.form.perfil(), u'1' + variado.mid(1));
    piso.form.PonerPerfil(variado + QString(100, u'1'));
    EXPECT_EQ(piso.form.perfil(), variado);
}

TEST(Contadores, OnlyWaterTicked)
{
    PisoDePrueba piso;
    piso.form.casilla(u"CheckAgua").Pulsar();
    const ContadoresEnumeracion& c = piso.form.contadores();
    EXPECT_EQ(c.Antes(u"CheckTel"), 1);
    for (const QStringView antes : {u"CheckPavi", u"CheckEnci", u"CheckAlum", u"CheckAlca", u"CheckElec"}) {
        EXPECT_EQ(c.Despues(antes), 1);
        EXPECT_EQ(c.Antes(antes), 0);
    }
    EXPECT_EQ(c.Antes(u"CheckAgua"), 0);
    EXPECT_EQ(c.Despues(u"CheckAgua"), 0);
    EXPECT_EQ(c.Despues(u"CheckTel"), 0);
}

TEST(Contadores, TickingAndClearingLeavesEveryCounterAsItWas)
{
    PisoDePrueba piso;
    for (size_t g = 0; g < kGruposCasillas; ++g) {
        const auto grupo = static_cast<GrupoCasillas>(g);
        for (const QStringView nombre : CasillasDe(grupo)) {
            if (!piso.form.buscar(nombre))
                continue;
            piso.form.casilla(nombre).Pulsar();
            piso.form.casilla(nombre).Pulsar();
        }
        for (size_t i = 0; i < CasillasDe(grupo).size(); ++i) {
            EXPECT_EQ(piso.form.contadores().Antes(grupo, i), 0);
            EXPECT_EQ(piso.form.contadores().Despues(grupo, i), 0);
        }
    }
}

TEST(Contadores, CountWhatStandsBeforeAndBehindForEveryChoiceOfBoxes)
{
    PisoDePrueba piso;
    const auto nombres = CasillasDe(GrupoCasillas::Infraestructuras);
    for (unsigned eleccion = 0; eleccion < 128; ++eleccion) {
        for (size_t i = 0; i < nombres.size(); ++i)
            piso.form.casilla(nombres[i]).setValue(static_cast<int>(eleccion >> i & 1U));
        int antes = 0;
        int total = 0;
        for (size_t i = 0; i < nombres.size(); ++i)
            total += piso.form.casilla(nombres[i]).Value();
        for (size_t i = 0; i < nombres.size(); ++i) {
            const int propia = piso.form.casilla(nombres[i]).Value();
            ASSERT_EQ(piso.form.contadores().Antes(GrupoCasillas::Infraestructuras, i), antes);
            ASSERT_EQ(piso.form.contadores().Despues(GrupoCasillas::Infraestructuras, i),
                      total - antes - propia);
            antes += propia;
        }
    }
}

TEST(Contadores, EveryBoxOfAGroupOfTheFlatIsInItsWindow)
{
    const PisoDePrueba piso;
    for (size_t g = 0; g < kGruposCasillas - 1; ++g) {
        for (const QStringView nombre : CasillasDe(static_cast<GrupoCasillas>(g)))
            EXPECT_NO_THROW(piso.form.casilla(nombre)) << nombre.toString().toStdString();
    }
}

} // namespace

} // namespace valmerix
