#include "store/case_saving_fixture.h"

using namespace Qt::StringLiterals;

namespace valmerix {

TEST_F(CaseSaving, ANewCaseRunsTheseStatementsInThisOrder)
{
    ASSERT_TRUE(Salvar());
    const QString clausula = u" WHERE Tipo = 'P' AND NombreTasador = 'Ana' AND NumeroTasacion = 42"_s;
    const QStringList esperado{
        u"SELECT Contador FROM Tasadores WHERE Nombre = 'Ana'"_s,
        u"UPDATE Tasadores SET Contador = 42 WHERE Nombre = 'Ana'"_s,
        u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('Ana','P',42)"_s,
        u"INSERT INTO Testigos (Origen,Tipo,Tasacion) VALUES ('I','P',-42)"_s,
        u"SELECT NumeroTasacion FROM Viviendas "_s + clausula,
        u"UPDATE Viviendas SET Plaza = '', Fecha = fecha('20/11/2026'), Presentacion = 0, "
        u"Situacion = 'Calle Mayor, 3', Municipio = 'Sueca', CP = '', Provincia = '', Zona = '', Registro = "
        u"'', "
        u"Tomo = '', Libro = '', Folio = '', Finca = '', Inscripcion = '', Anotacion = '', NombreSolicitante "
        u"= '', "
        u"DomicilioSolicitante = '', PoblacionSolicitante = '', ProvinciaSolicitante = '', CPSolicitante = "
        u"'', "
        u"NIFSolicitante = '', OpcionFinalidad = 0, TextoFinalidad = '', Actividad = '', Renta = '', Censo = "
        u"'', "
        u"HabitantesDerecho = 0, HabitantesHecho = 0"_s +
            clausula,
        u"UPDATE Viviendas SET OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '', Consolidacion "
        u"= 0.00, "
        u"Delimitacion = '', Uso = '', Infraestructuras = '0000000', Comunicaciones = '0000000', "
        u"Documentacion = '0000', TextoDocumentacion = '', ValorProvisional = 0.00, SuperficieSolar = 0.00, "
        u"SitUrb = 0, EquipamientosBasicos = '00000', EquipamientosLudicos = '00000', Plantas = 0.00, "
        u"Antiguedad = 0, Sotanos = 0, Tipologia = '', UsoSotano = '', Estructura = '', Cubierta = '', "
        u"Fachada = '', ServiciosComunes = '000000', VivPorPlanta = 0.00, Ascensores = 0.00, UsoBaja = '', "
        u"Zaguan = '', Escalera = '', AcabZaguan = '', AcabEscalera = '', Conservacion = 0, "
        u"Composicion = '0000000000', Otros = 0, Otros2 = 0, NombreOtros = '', NombreOtros2 = '', "
        u"Dormitorios = 0, "
        u"Baños = 0, Terrazas = 0, Aseos = 0, Pavimentos = '00000'"_s +
            clausula,
        u"UPDATE Viviendas SET CarpinteriaInterior = 0, TextoCarpinteriaInterior = '', CarpinteriaExterior = "
        u"0, "
        u"TextoCarpinteriaExterior = '', MobiliarioK = 0, TextoMobiliarioK = '', AcabadoInterior = 0, "
        u"TextoAcabadoInterior = '', Sup = 0, SupUtil = 0.00, SupConst = 1093.46, ConservacionViv = 0, "
        u"CalidadesGrales = 0, PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = '', ValorGaraje = "
        u"0.00, "
        u"DescripcionAnexo = '', ValorAnexo = 0.00, Anexos = '000', Repercusion = 0.00, "
        u"SuperficieSobreRasante = 0.00, CosteConstruccion = 0.00, CoeficienteK = 0.00, ValorFinal = 125000.00"_s +
            clausula,
        u"UPDATE Viviendas SET Observaciones = '' "_s + clausula,
        u"DELETE FROM ImagenesAsociadas "_s + clausula,
        u"DELETE FROM TestigosInforme "_s + clausula,
        u"UPDATE Testigos SET Fecha = fecha('20/11/2026'), Situacion = 'Calle Mayor, 3', CP = '', "
        u"Municipio = 'Sueca', Provincia = '', Zona = '', Antiguedad = 0, Dormitorios = 0, SupUtil = 0.00, "
        u"Superficie = 1093.46, ValorFinal = 125000.00, UnidadMedida = 'm²', Ascensor = 'N' WHERE Tipo = 'P' "
        u"AND Tasacion = -42"_s,
    };
    ASSERT_EQ(almacen.sql.size(), esperado.size());
    for (qsizetype i = 0; i < esperado.size(); ++i)
        EXPECT_EQ(almacen.sql[i], esperado[i]);
}

TEST_F(CaseSaving, SuccessIsTold)
{
    Salvar();
    ASSERT_EQ(dialogos.mensajes.size(), 1U);
    EXPECT_EQ(dialogos.mensajes[0].texto, u"Informe guardado con éxito"_s);
    EXPECT_EQ(dialogos.mensajes[0].titulo, u"Aviso"_s);
    EXPECT_EQ(dialogos.mensajes[0].icono, IconoMensaje::Informacion);
}

TEST_F(CaseSaving, TheAnswerNoWritesNothingNotEvenTheImages)
{
    piso.ventana_.rejilla(u"GridImagen").AddItem(u"/fotos\ta.jpg"_s);
    ASSERT_TRUE(Salvar());
    piso.ventana_.rejilla(u"GridImagen").setRows(1);
    dialogos.respuestas = {false};
    EXPECT_FALSE(Salvar());
    EXPECT_EQ(almacen.sql, QStringList());
    EXPECT_EQ(dialogos.mensajes.size(), 1U);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM ImagenesAsociadas"_s), u"1"_s);
}

TEST_F(CaseSaving, AHouseWritesItsPrivateServicesInThePlaceOfWhatItHasNot)
{
    FakeCasoAbierto casa(u"Casa"_s, {u"Ana"_s});
    Rellenar(casa);
    casa.ventana_.Añadir<CampoTexto>(u"BoxAscen"_s).setText(u"2"_s);
    casa.ventana_.casilla(u"CheckHuerto").setValue(1);
    ASSERT_TRUE(Salvar(casa));
    EXPECT_EQ(
        almacen.sql[6],
        u"UPDATE Viviendas SET OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '', Consolidacion "
        u"= 0.00, "
        u"Delimitacion = '', Uso = '', Infraestructuras = '0000000', Comunicaciones = '0000000', "
        u"Documentacion = '0000', TextoDocumentacion = '', ValorProvisional = 0.00, SuperficieSolar = 0.00, "
        u"SitUrb = 0, EquipamientosBasicos = '00000', EquipamientosLudicos = '00000', Plantas = 0.00, "
        u"Antiguedad = 0, Sotanos = 0, Tipologia = '', UsoSotano = '', Estructura = '', Cubierta = '', "
        u"Fachada = '', ServiciosComunes = '000000', ServiciosIndividuales = '000001', Conservacion = 0, "
        u"Composicion = '0000000000', Otros = 0, Otros2 = 0, NombreOtros = '', NombreOtros2 = '', "
        u"Dormitorios = 0, Baños = 0, Terrazas = 0, Aseos = 0, Pavimentos = '00000' WHERE Tipo = 'C' AND "
        u"NombreTasador = 'Ana' AND NumeroTasacion = 42"_s);
    // No blank before WHERE, as it has always been.
    EXPECT_TRUE(almacen.sql.last().endsWith(
        u"UnidadMedida = 'm²', Ascensor = 'N'WHERE Tipo = 'C' AND Tasacion = -42"_s));
    EXPECT_EQ(almacen.Dato(u"SELECT Ascensor FROM Testigos"_s), u"N"_s);
}

TEST_F(CaseSaving, AFlatWithLiftsSaysSoInItsComparableAndLeavesPrivateServicesAlone)
{
    piso.Escribir(u"BoxAscen", u"1"_s);
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.Dato(u"SELECT Ascensor FROM Testigos"_s), u"S"_s);
    EXPECT_EQ(almacen.sql.filter(u"ServiciosIndividuales"_s), QStringList());
    EXPECT_FALSE(almacen.Leer(u"SELECT ServiciosIndividuales FROM Viviendas"_s)
                     .Valor(u"ServiciosIndividuales")
                     .isValid());
}

TEST_F(CaseSaving, AnApartmentLeavesPrivateServicesAloneToo)
{
    FakeCasoAbierto apto(u"Apto"_s, {u"Ana"_s});
    Rellenar(apto);
    ASSERT_TRUE(Salvar(apto));
    EXPECT_EQ(almacen.sql.size(), 12);
    EXPECT_EQ(almacen.sql.filter(u"ServiciosIndividuales"_s), QStringList());
    EXPECT_EQ(almacen.sql.filter(u"VivPorPlanta = 0.00"_s).size(), 1);
    almacen.Ejecutar(u"UPDATE Viviendas SET ServiciosIndividuales = '101010'"_s);
    dialogos.respuestas = {true};
    ASSERT_TRUE(Salvar(apto));
    EXPECT_EQ(almacen.Dato(u"SELECT ServiciosIndividuales FROM Viviendas"_s), u"101010"_s);
}

TEST_F(CaseSaving, FieldsAColumnHoldsForAnotherKindStayAsTheyWere)
{
    FakeCasoAbierto casa(u"Casa"_s, {u"Ana"_s});
    Rellenar(casa);
    ASSERT_TRUE(Salvar(casa));
    almacen.Ejecutar(u"UPDATE Viviendas SET VivPorPlanta = 4, UsoBaja = 'Comercial', Escalera = 'Amplia'"_s);
    dialogos.respuestas = {true};
    ASSERT_TRUE(Salvar(casa));
    EXPECT_EQ(almacen.Leer(u"SELECT VivPorPlanta, UsoBaja, Escalera FROM Viviendas"_s).ValorRegistroGrid(1),
              u"4\tComercial\tAmplia"_s);
}

TEST_F(CaseSaving, AnOptionThatNobodyChoseIsStoredAsZero)
{
    piso.ventana_.opciones(u"CarpInt").Elegir(3);
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.Leer(u"SELECT CarpinteriaInterior, CarpinteriaExterior FROM Viviendas"_s)
                  .ValorRegistroGrid(1),
              u"3\t0"_s);
}

TEST_F(CaseSaving, NumbersTypedWithACommaReachTheDatabaseWithAPoint)
{
    piso.Escribir(u"BoxK", u"1,25"_s);
    piso.Escribir(u"BoxDerecho", u"12.345"_s);
    ASSERT_TRUE(Salvar());
    EXPECT_TRUE(almacen.sql[7].contains(u"CoeficienteK = 1.25,"_s));
    EXPECT_TRUE(almacen.sql[5].contains(u"HabitantesDerecho = 12345,"_s));
}

TEST_F(CaseSaving, TheProblemTextGoesOutAsOnePairOfStatements)
{
    piso.ventana_.opciones(u"SitUrb").Elegir(1);
    piso.frase = u"Fuera de ordenación;\r\nINSERT INTO nada -- y más"_s;
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.sql[9],
              u"DELETE FROM ProblemasUrbanisticos  WHERE Tipo = 'P' AND NombreTasador = 'Ana' AND "
              u"NumeroTasacion = 42\r\n"
              u"INSERT INTO ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion, Problema) VALUES "
              u"('Ana','P',42, 'Fuera de ordenación;\r\nINSERT INTO nada -- y más')"_s);
    dialogos.respuestas = {true};
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM ProblemasUrbanisticos"_s), u"1"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Problema FROM ProblemasUrbanisticos"_s), piso.frase);
}

TEST_F(CaseSaving, LeavingTheProblemOptionClearsTheSentenceAndKeepsTheStoredRow)
{
    piso.ventana_.opciones(u"SitUrb").Elegir(1);
    piso.frase = u"Fuera de ordenación"_s;
    ASSERT_TRUE(Salvar());
    piso.ventana_.opciones(u"SitUrb").Elegir(0);
    dialogos.respuestas = {true};
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(piso.frase, u""_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Problema FROM ProblemasUrbanisticos"_s), u"Fuera de ordenación"_s);
}

TEST_F(CaseSaving, EveryRowOfTheImageGridIsStoredAndAnEmptyGridEmptiesThem)
{
    Rejilla& rejilla = piso.ventana_.rejilla(u"GridImagen");
    rejilla.AddItem(u"/fotos\tfachada.jpg"_s);
    rejilla.Rellenar(3);
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.sql[10],
              u"INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES "
              u"('Ana','P',42, 'fachada.jpg', '/fotos')"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM ImagenesAsociadas"_s), u"2"_s)
        << "the empty row goes in too";
    rejilla.setRows(1);
    dialogos.respuestas = {true};
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM ImagenesAsociadas"_s), u"0"_s);
}

TEST_F(CaseSaving, ChosenComparablesAreStoredUpToTheFirstEmptyRow)
{
    Rejilla& rejilla = piso.ventana_.rejilla(u"fgrSeleccion");
    rejilla.AddItem(u"7\tx"_s);
    rejilla.AddItem(u"-5\ty"_s);
    rejilla.AddItem(u"\tvacía"_s);
    rejilla.AddItem(u"9\tdetrás"_s);
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(
        almacen.sql.filter(u"INSERT INTO TestigosInforme"_s),
        (QStringList{
            u"INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES "
            u"('Ana','P',42, 'E', 7)"_s,
            u"INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES "
            u"('Ana','P',42, 'I', -5)"_s}));
}

TEST_F(CaseSaving, TheNotesAreStoredTrimmed)
{
    piso.Escribir(u"txtObservaciones", u"  \r\nVisto el interior. \n"_s);
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.Dato(u"SELECT Observaciones FROM Viviendas"_s), u"Visto el interior."_s);
}

TEST_F(CaseSaving, AStraightQuoteStopsTheSaveWhereItStandsAndWhatWasDoneStays)
{
    piso.Escribir(u"BoxRoble", u"d'Oregon"_s); // third statement of the fields
    EXPECT_THROW(Salvar(), ErrorAlmacen);
    EXPECT_TRUE(dialogos.mensajes.empty());
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 42);
    EXPECT_EQ(almacen.Dato(u"SELECT Contador FROM Tasadores"_s), u"42"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT Situacion FROM Viviendas"_s), u"Calle Mayor, 3"_s);
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Testigos WHERE Situacion IS NULL"_s), u"1"_s);

    piso.Escribir(u"BoxRoble", u"d’Oregon"_s);
    dialogos.respuestas = {true};
    EXPECT_TRUE(Salvar()) << "once mended the same case is saved";
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Viviendas"_s), u"1"_s);
}

TEST_F(CaseSaving, AnAbsurdNumberStopsTheSaveWithoutHarm)
{
    piso.Escribir(u"BoxCc", QString(400, u'9'));
    EXPECT_THROW(Salvar(), ErrorDesbordamiento);
    EXPECT_EQ(almacen.compartido.NumeroTasacionActual, 42);
    piso.Escribir(u"BoxCc", u"450"_s);
    dialogos.respuestas = {true};
    EXPECT_TRUE(Salvar());
}

TEST_F(CaseSaving, LongTextsAreStoredWhole)
{
    const QString largo = QString(60000, u'ñ');
    piso.Escribir(u"txtObservaciones", largo);
    ASSERT_TRUE(Salvar());
    EXPECT_EQ(almacen.Dato(u"SELECT Observaciones FROM Viviendas"_s), largo);
}

} // namespace valmerix
