-- Ten flats, two apartments and two houses as valuers meet them, for trying the program out, for the
-- report's tests and for measuring.
-- The database has been installed before: one row of Empresa, one of Opciones, no valuer.
-- Dates are ISO texts. A text of 0 and 1 has one digit for each box of its group; an option is its index.
-- People, companies, registry entries and pictures are invented; no text has a straight apostrophe.

-- The company and its valuers. Contador is the number last given to a case of the valuer.
UPDATE Empresa SET
    Nombre = 'Valoraciones del Turia, S.A.', Domicilio = 'Gran Vía del Marqués del Turia, 61, 2.º',
    Poblacion = 'Valencia', CodigoPostal = '46005', Provincia = 'Valencia', NIF = 'A-00000042',
    NumeroInscripcion = '4.999', FechaInscripcion = '17/03/1998';

INSERT INTO Tasadores
    (Nombre, Contador, Domicilio, Poblacion, CodigoPostal,
     Provincia, NIF, Titulacion, ColegioOficial, ColegiadoNumero)
VALUES
    ('Marta Ferrer Climent', 217, 'C/ de Cirilo Amorós, 18, 5.ª', 'Valencia', '46004', 'Valencia',
    '11111111-H', 'Arquitecto Técnico', 'Aparejadores y Arquitectos Técnicos de Valencia', '3.417');

INSERT INTO Tasadores
    (Nombre, Contador, Domicilio, Poblacion, CodigoPostal,
     Provincia, NIF, Titulacion, ColegioOficial, ColegiadoNumero)
VALUES
    ('Xosé Manuel Castro Lema', 58, 'Rúa da Galera, 27, 1.º', 'A Coruña', '15003', 'A Coruña', '22222222-J',
    'Arquitecto', 'Arquitectos de Galicia', '1.908');

INSERT INTO Tasadores
    (Nombre, Contador, Domicilio, Poblacion, CodigoPostal,
     Provincia, NIF, Titulacion, ColegioOficial, ColegiadoNumero)
VALUES
    ('Íñigo Sáenz de Urturi Ruiz', 34, 'Avda. de Portugal, 7, 4.º B', 'Logroño', '26001', 'La Rioja',
    '33333333-P', 'Arquitecto Técnico', 'Aparejadores y Arquitectos Técnicos de La Rioja', '655');

INSERT INTO Tasadores
    (Nombre, Contador, Domicilio, Poblacion, CodigoPostal,
     Provincia, NIF, Titulacion, ColegioOficial, ColegiadoNumero)
VALUES
    ('M.ª Dolores Núñez Peña', 89, 'C/ Ancha, 40, bajo', 'Cádiz', '11001', 'Cádiz', '44444444-A',
    'Ingeniero de Edificación', 'Aparejadores y Arquitectos Técnicos de Cádiz', '1.122');

INSERT INTO Tasadores
    (Nombre, Contador, Domicilio, Poblacion, CodigoPostal,
     Provincia, NIF, Titulacion, ColegioOficial, ColegiadoNumero)
VALUES
    ('Núria Puigdollers i Vila', 141, 'Carrer de l’Argenteria, 9, 2n', 'Girona', '17004', 'Girona',
    '55555555-K', 'Arquitecto', 'Arquitectos de Cataluña', '28.341');

-- Market observations entered by the valuers.
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('E', 'P', 1, '2026-02-11', 'C/ de Sueca, 51, 4.º', '46006', 'Valencia', 'Valencia',
     'Buena', 'S', 55, 3, 92.00, 108.00, 289900.00, 'm²'),
    ('E', 'P', 2, '2026-03-24', 'C/ de Cádiz, 28, 2.º', '46006', 'Valencia', 'Valencia',
     'Buena', 'S', 60, 2, 74.50, 88.00, 229000.00, 'm²'),
    ('E', 'P', 3, '2026-04-02', 'Gran Vía de las Germanías, 19, 6.º', '46006', 'Valencia', 'Valencia',
     'Buena', 'S', 48, 4, 118.00, 139.50, 378500.00, 'm²'),
    ('E', 'P', 4, '2025-11-19', 'Carrer de l’Alcoleja, 4, 1r', '03801', 'Alcoi', 'Alicante',
     'Normal', 'N', 70, 3, 76.00, 90.00, 58000.00, 'm²'),
    ('E', 'P', 5, '2026-01-30', 'Carrer de Sant Nicolau, 63, 3r', '03801', 'Alcoi', 'Alicante',
     'Normal', 'N', 82, 3, 81.00, 97.00, 66500.00, 'm²'),
    ('E', 'P', 6, '2026-05-12', 'Ronda de la Magdalena, 80, 5.º', '12004', 'Castelló de la Plana', 'Castellón',
     'Buena', 'S', 2, 3, 86.00, 105.00, 186000.00, 'm²'),
    ('E', 'P', 7, '2026-05-28', 'Avda. de Casalduch, 33, 2.º', '12005', 'Castelló de la Plana', 'Castellón',
     'Buena', 'S', 0, 3, 80.40, 99.00, 172500.00, 'm²'),
    ('E', 'P', 8, '2026-02-06', 'C/ Vara de Rey, 72, 3.º D', '26002', 'Logroño', 'La Rioja',
     'Buena', 'S', 38, 4, 98.00, 117.00, 219000.00, 'm²'),
    ('E', 'P', 9, '2026-03-13', 'Avda. de Colón, 26, 6.º A', '26003', 'Logroño', 'La Rioja',
     'Normal', 'S', 31, 3, 84.50, 101.00, 178000.00, 'm²'),
    ('E', 'P', 10, '2026-03-27', 'C/ Doce Ligero, 11, 1.º C', '26004', 'Logroño', 'La Rioja',
     'Normal', 'S', 35, 3, 88.00, 106.00, 181000.00, 'm²'),
    ('E', 'P', 11, '2026-06-09', 'Rúa de San Andrés, 118, 4.º', '15003', 'A Coruña', 'A Coruña',
     'Buena', 'S', 50, 3, 96.00, 117.00, 262000.00, 'm²'),
    ('E', 'P', 12, '2026-07-15', 'Avda. da Mariña, 22, 3.º', '15001', 'A Coruña', 'A Coruña',
     'Buena', 'S', 88, 4, 121.00, 146.00, 365000.00, 'm²'),
    ('E', 'P', 13, '2026-04-21', 'C/ Sagasta, 33, 2.º', '11001', 'Cádiz', 'Cádiz',
     'Media', 'N', 90, 2, 58.00, 70.00, 126000.00, 'm²'),
    ('E', 'P', 14, '2026-05-08', 'C/ de la Rosa, 15, 1.º', '11002', 'Cádiz', 'Cádiz',
     'Media', 'N', 80, 2, 64.50, 77.50, 139500.00, 'm²'),
    ('E', 'P', 15, '2026-06-17', 'Carrer de la Creu, 44, 3r 1a', '17002', 'Girona', 'Girona',
     'Buena', 'S', 27, 3, 86.00, 103.00, 239000.00, 'm²'),
    ('E', 'P', 16, '2026-07-02', 'Carrer d’Emili Grahit, 70, 5è 2a', '17003', 'Girona', 'Girona',
     'Buena', 'S', 34, 4, 95.00, 114.00, 251000.00, 'm²'),
    ('E', 'P', 17, '2026-01-22', 'Paseo de San Roque, 31, 2.º', '05003', 'Ávila', 'Ávila',
     'Normal', 'S', 30, 3, 82.00, 98.00, 109000.00, 'm²'),
    ('E', 'P', 18, '2026-08-04', 'Avda. de les Corts Valencianes, s/n', '46183', 'L’Eliana', 'Valencia',
     'Buena', 'S', 19, 3, 98.00, 116.00, 204000.00, 'm²'),
    ('E', 'P', 19, '2026-09-01', 'Carrer del Purgatori, 20', '46183', 'L’Eliana', 'Valencia',
     'Media', 'N', 24, 3, 90.00, 108.00, 176000.00, 'm²'),
    ('E', 'A', 20, '2026-05-19', 'Passeig Marítim, 40, 3r 2a', '17480', 'Roses', 'Girona',
     'Buena', 'S', 44, 2, 58.00, 69.50, 246000.00, 'm²'),
    ('E', 'A', 21, '2026-06-25', 'Avinguda de Rhode, 87, 1r 4a', '17480', 'Roses', 'Girona',
     'Buena', 'S', 51, 3, 70.25, 84.00, 268500.00, 'm²'),
    ('E', 'C', 22, '2026-04-30', 'C/ del Almendro, 5', '11140', 'Conil de la Frontera', 'Cádiz',
     'Buena', 'N', 18, 4, 150.00, 176.00, 338000.00, 'm²'),
    ('E', 'C', 23, '2026-07-10', 'Urbanización La Lobita, 22', '11140', 'Conil de la Frontera', 'Cádiz',
     'Media', 'N', 25, 3, 121.40, 143.00, 259000.00, 'm²');

-- 1. Valencia, Ruzafa: forward, built surface, a store room under the roof, mortgage.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Marta Ferrer Climent', 'P', 214);
UPDATE Viviendas SET
    Plaza = 'Valencia', Fecha = '2026-05-06', Presentacion = 1,
    Situacion = 'C/ del Literato Azorín, 23, 3.º, pta. 6',
    Municipio = 'Valencia', CP = '46006', Provincia = 'Valencia', Zona = 'Buena',
    Registro = 'de la Propiedad n.º 7 de Valencia', Tomo = '2.318', Libro = '604', Folio = '87',
    Finca = '41.226', Inscripcion = '5', Anotacion = '',
    NombreSolicitante = 'Amparo Soriano Gisbert', NIFSolicitante = '66666666-Q',
    DomicilioSolicitante = 'C/ del Literato Azorín, 23, 3.º, pta. 6', CPSolicitante = '46006',
    PoblacionSolicitante = 'Valencia', ProvinciaSolicitante = 'Valencia',
    OpcionFinalidad = 0, TextoFinalidad = '',
    Actividad = 'Comercio', Renta = 'Medio', Censo = 'Crecimiento lento', HabitantesDerecho = 824340,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 100, Delimitacion = 'Zona de ensanche', Uso = 'Residencial',
    Infraestructuras = '1111111', Comunicaciones = '0000111',
    EquipamientosBasicos = '11111', EquipamientosLudicos = '10011',
    Plantas = 7, VivPorPlanta = 2, Ascensores = 1, Antiguedad = 52, Sotanos = 0,
    Tipologia = 'Entre medianeras', UsoBaja = 'Comercial', UsoSotano = '',
    Estructura = 'Hormigón', Cubierta = 'Plana pisable', Fachada = 'Ladrillo caravista',
    Zaguan = 'Amplio', AcabZaguan = 'Bien acabado', Escalera = 'Estrecha',
    AcabEscalera = 'Calidad sencilla',
    ServiciosComunes = '000001', Conservacion = 0, SitUrb = 0,
    Composicion = '1110100111', Dormitorios = 3, Baños = 1, Aseos = 1, Terrazas = 1,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '01001', CarpinteriaInterior = 3, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 0, TextoCarpinteriaExterior = '',
    MobiliarioK = 3, TextoMobiliarioK = '',
    AcabadoInterior = 1, TextoAcabadoInterior = '',
    Sup = 1, SupUtil = 96.15, SupConst = 112.40, ConservacionViv = 0, CalidadesGrales = 2,
    Documentacion = '1010', TextoDocumentacion = '',
    Anexos = '100', PlantaTrastero = 'ático', ValorTrastero = 6000.00, PlantaGaraje = '',
    ValorGaraje = 0.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 245.00, Repercusion = 1350.00,
    SuperficieSobreRasante = 1734.40,
    CosteConstruccion = 980.00, CoeficienteK = 1.45, ValorFinal = 302688.79,
    Observaciones = 'La vivienda se encuentra arrendada; el contrato vence el 31 de julio de 2027. Conserva ' ||
        'los pavimentos hidráulicos originales en el salón y en dos dormitorios.'
WHERE NombreTasador = 'Marta Ferrer Climent' AND Tipo = 'P' AND NumeroTasacion = 214;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -214, '2026-05-06', 'C/ del Literato Azorín, 23, 3.º, pta. 6',
     '46006', 'Valencia', 'Valencia', 'Buena', 'S', 52, 3, 96.15, 112.40, 302688.79, 'm²');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Marta Ferrer Climent', 'P', 214, 'Fachada', '/srv/tasaciones/2026/214/Fachada.jpg'),
    ('Marta Ferrer Climent', 'P', 214, 'Salón', '/srv/tasaciones/2026/214/Salón.jpg'),
    ('Marta Ferrer Climent', 'P', 214, 'Galería', '/srv/tasaciones/2026/214/Galería.jpg');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Marta Ferrer Climent', 'P', 214, 'E', 1),
    ('Marta Ferrer Climent', 'P', 214, 'E', 2),
    ('Marta Ferrer Climent', 'P', 214, 'E', 3);

-- 2. Alcoi: backward from a known value, an old building outside the planning, no lift.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Marta Ferrer Climent', 'P', 215);
UPDATE Viviendas SET
    Plaza = 'Valencia', Fecha = '2026-05-20', Presentacion = 1,
    Situacion = 'Carrer de l’Escola Industrial, 12, 2n esquerra',
    Municipio = 'Alcoi', CP = '03801', Provincia = 'Alicante', Zona = 'Media',
    Registro = 'de la Propiedad de Alcoi', Tomo = '1.104', Libro = '733', Folio = '151', Finca = '12.870',
    Inscripcion = '9', Anotacion = 'B',
    NombreSolicitante = 'Hermanos Llopis Vilaplana, C.B.', NIFSolicitante = 'E-00000017',
    DomicilioSolicitante = 'Carrer de l’Alameda, 41', CPSolicitante = '03803',
    PoblacionSolicitante = 'Alcoi', ProvinciaSolicitante = 'Alicante',
    OpcionFinalidad = 2, TextoFinalidad = '',
    Actividad = 'Industria', Renta = 'Medio', Censo = 'Población decreciente', HabitantesDerecho = 59354,
    HabitantesHecho = 61000,
    OpcionTipoNucleo = 3, TextoSatelite = '', TextoTipoNucleo = 'Cabecera de comarca',
    Consolidacion = 90, Delimitacion = 'Dentro del casco urbano', Uso = 'Residencial',
    Infraestructuras = '1111110', Comunicaciones = '1100110',
    EquipamientosBasicos = '11010', EquipamientosLudicos = '11001',
    Plantas = 4, VivPorPlanta = 2, Ascensores = 0, Antiguedad = 74, Sotanos = 1,
    Tipologia = 'Entre medianeras', UsoBaja = 'Taller artesano', UsoSotano = 'Bodega',
    Estructura = 'Muros de carga', Cubierta = 'Inclinada teja', Fachada = 'Enfoscado mortero',
    Zaguan = 'Pequeño', AcabZaguan = 'Anticuado', Escalera = 'Estrecha', AcabEscalera = 'Anticuada',
    ServiciosComunes = '000000', Conservacion = 1, SitUrb = 1,
    Composicion = '1001100010', Dormitorios = 3, Baños = 0, Aseos = 1, Terrazas = 0,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '10001', CarpinteriaInterior = 4, TextoCarpinteriaInterior = 'Pino pintado',
    CarpinteriaExterior = 1, TextoCarpinteriaExterior = '',
    MobiliarioK = 3, TextoMobiliarioK = '',
    AcabadoInterior = 0, TextoAcabadoInterior = '',
    Sup = 1, SupUtil = 0.00, SupConst = 88.00, ConservacionViv = 2, CalidadesGrales = 1,
    Documentacion = '1000', TextoDocumentacion = '',
    Anexos = '000', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = '', ValorGaraje = 0.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 62000.00, SuperficieSolar = 0.00, Repercusion = 0.00,
    SuperficieSobreRasante = 840.00,
    CosteConstruccion = 850.00, CoeficienteK = 1.05, ValorFinal = 62000.00,
    Observaciones = 'No se ha podido acceder a la bodega del sótano, cuya llave guarda la comunidad. El ' ||
        'importe solicitado por la propiedad es de 65.000 €.'
WHERE NombreTasador = 'Marta Ferrer Climent' AND Tipo = 'P' AND NumeroTasacion = 215;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -215, '2026-05-20', 'Carrer de l’Escola Industrial, 12, 2n esquerra',
     '03801', 'Alcoi', 'Alicante', 'Media', 'N', 74, 3, 0.00, 88.00, 62000.00, 'm²');
INSERT INTO ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion, Problema) VALUES
    ('Marta Ferrer Climent', 'P', 215,
     'El edificio se encuentra fuera de ordenación por invadir en 1,20 m la alineación ' ||
        'prevista en el Plan General. Solo se autorizan en él obras de conservación y ornato, por ' ||
        'lo que la valoración se condiciona a la obtención del certificado municipal de ' ||
        'compatibilidad.');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Marta Ferrer Climent', 'P', 215, 'Portal', '/srv/tasaciones/2026/215/Portal.jpg');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Marta Ferrer Climent', 'P', 215, 'E', 4),
    ('Marta Ferrer Climent', 'P', 215, 'E', 5);

-- 3. Castelló de la Plana: new building, useful surface, garage and store room, swimming pool.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Marta Ferrer Climent', 'P', 216);
UPDATE Viviendas SET
    Plaza = 'Valencia', Fecha = '2026-06-12', Presentacion = 1,
    Situacion = 'Avinguda de l’Alcora, 115, esc. 2, 4.º B',
    Municipio = 'Castelló de la Plana', CP = '12006', Provincia = 'Castellón', Zona = 'Buena',
    Registro = 'de la Propiedad n.º 3 de Castelló', Tomo = '1.877', Libro = '402', Folio = '19',
    Finca = '38.551', Inscripcion = '1', Anotacion = '',
    NombreSolicitante = 'Joan Baptista Traver i Peris', NIFSolicitante = '77777777-B',
    DomicilioSolicitante = 'Carrer d’Enmig, 88, 2n', CPSolicitante = '12001',
    PoblacionSolicitante = 'Castelló de la Plana', ProvinciaSolicitante = 'Castellón',
    OpcionFinalidad = 0, TextoFinalidad = '',
    Actividad = 'Industria', Renta = 'Elevado', Censo = 'Población creciente', HabitantesDerecho = 179900,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 65, Delimitacion = 'Zona de ensanche', Uso = 'Residencial',
    Infraestructuras = '1111110', Comunicaciones = '1010100',
    EquipamientosBasicos = '11010', EquipamientosLudicos = '11000',
    Plantas = 6, VivPorPlanta = 4, Ascensores = 2, Antiguedad = 0, Sotanos = 2,
    Tipologia = 'Edificio aislado', UsoBaja = 'Vivienda', UsoSotano = 'Garaje',
    Estructura = 'Hormigón', Cubierta = 'Plana no pisable', Fachada = 'Ladrillo caravista',
    Zaguan = 'Amplio', AcabZaguan = 'Bien acabado', Escalera = 'Amplia', AcabEscalera = 'Bien acabada',
    ServiciosComunes = '101110', Conservacion = 4, SitUrb = 0,
    Composicion = '1110100101', Dormitorios = 3, Baños = 2, Aseos = 0, Terrazas = 2,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '01000', CarpinteriaInterior = 2, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 0, TextoCarpinteriaExterior = '',
    MobiliarioK = 1, TextoMobiliarioK = '',
    AcabadoInterior = 1, TextoAcabadoInterior = '',
    Sup = 0, SupUtil = 84.20, SupConst = 103.75, ConservacionViv = 0, CalidadesGrales = 2,
    Documentacion = '0101', TextoDocumentacion = 'Memoria de calidades de la promoción',
    Anexos = '110', PlantaTrastero = 'sótano primero', ValorTrastero = 4500.00,
    PlantaGaraje = 'sótano segundo', ValorGaraje = 14000.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 1860.00, Repercusion = 620.00,
    SuperficieSobreRasante = 3150.00,
    CosteConstruccion = 920.00, CoeficienteK = 1.12, ValorFinal = 197130.64,
    Observaciones = ''
WHERE NombreTasador = 'Marta Ferrer Climent' AND Tipo = 'P' AND NumeroTasacion = 216;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -216, '2026-06-12', 'Avinguda de l’Alcora, 115, esc. 2, 4.º B',
     '12006', 'Castelló de la Plana', 'Castellón', 'Buena', 'S', 0, 3, 84.20, 103.75, 197130.64, 'm²');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Marta Ferrer Climent', 'P', 216, 'Fachada', '/srv/tasaciones/2026/216/Fachada.png'),
    ('Marta Ferrer Climent', 'P', 216, 'Piscina', '/srv/tasaciones/2026/216/Piscina.png');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Marta Ferrer Climent', 'P', 216, 'E', 6),
    ('Marta Ferrer Climent', 'P', 216, 'E', 7);

-- 4. Logroño: forward, useful surface only (the built one is derived), garage, census and real population.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Íñigo Sáenz de Urturi Ruiz', 'P', 31);
UPDATE Viviendas SET
    Plaza = 'Logroño', Fecha = '2026-04-17', Presentacion = 1,
    Situacion = 'C/ Pérez Galdós, 46, 5.º izquierda',
    Municipio = 'Logroño', CP = '26002', Provincia = 'La Rioja', Zona = 'Buena',
    Registro = 'de la Propiedad n.º 1 de Logroño', Tomo = '987', Libro = '311', Folio = '204',
    Finca = '19.403', Inscripcion = '3', Anotacion = '',
    NombreSolicitante = 'Caja Rural del Iregua, S. Coop. de Crédito', NIFSolicitante = 'F-00000026',
    DomicilioSolicitante = 'Gran Vía del Rey Juan Carlos I, 14', CPSolicitante = '26002',
    PoblacionSolicitante = 'Logroño', ProvinciaSolicitante = 'La Rioja',
    OpcionFinalidad = 0, TextoFinalidad = '',
    Actividad = 'Agricultura', Renta = 'Elevado', Censo = 'Estable', HabitantesDerecho = 150808,
    HabitantesHecho = 158000,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 95, Delimitacion = 'Centro urbano', Uso = 'Residencial',
    Infraestructuras = '1111111', Comunicaciones = '1110110',
    EquipamientosBasicos = '11111', EquipamientosLudicos = '11111',
    Plantas = 8, VivPorPlanta = 3, Ascensores = 2, Antiguedad = 33, Sotanos = 1,
    Tipologia = 'Entre medianeras', UsoBaja = 'Comercial', UsoSotano = 'Garaje',
    Estructura = 'Hormigón', Cubierta = 'Inclinada teja', Fachada = 'Ladrillo caravista',
    Zaguan = 'Amplio', AcabZaguan = 'Bien acabado', Escalera = 'Amplia', AcabEscalera = 'Bien acabada',
    ServiciosComunes = '000001', Conservacion = 0, SitUrb = 0,
    Composicion = '1110101101', Dormitorios = 3, Baños = 2, Aseos = 0, Terrazas = 1,
    Otros = 0, NombreOtros = '', Otros2 = 1, NombreOtros2 = 'Despensa',
    Pavimentos = '01100', CarpinteriaInterior = 2, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 2, TextoCarpinteriaExterior = '',
    MobiliarioK = 0, TextoMobiliarioK = '',
    AcabadoInterior = 1, TextoAcabadoInterior = '',
    Sup = 0, SupUtil = 92.35, SupConst = 0.00, ConservacionViv = 0, CalidadesGrales = 2,
    Documentacion = '1011', TextoDocumentacion = 'Certificado de la comunidad de propietarios',
    Anexos = '010', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = 'sótano primero',
    ValorGaraje = 21500.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 0.00, Repercusion = 700.00,
    SuperficieSobreRasante = 2809.35,
    CosteConstruccion = 900.00, CoeficienteK = 1.20, ValorFinal = 190446.20,
    Observaciones = ''
WHERE NombreTasador = 'Íñigo Sáenz de Urturi Ruiz' AND Tipo = 'P' AND NumeroTasacion = 31;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -31, '2026-04-17', 'C/ Pérez Galdós, 46, 5.º izquierda',
     '26002', 'Logroño', 'La Rioja', 'Buena', 'S', 33, 3, 92.35, 0.00, 190446.20, 'm²');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Íñigo Sáenz de Urturi Ruiz', 'P', 31, 'E', 8),
    ('Íñigo Sáenz de Urturi Ruiz', 'P', 31, 'E', 9),
    ('Íñigo Sáenz de Urturi Ruiz', 'P', 31, 'E', 10);

-- 5. A Coruña: forward, built surface, an inheritance, a cellar as annex of its own, a study among the rooms.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Xosé Manuel Castro Lema', 'P', 57);
UPDATE Viviendas SET
    Plaza = 'A Coruña', Fecha = '2026-09-25', Presentacion = 1,
    Situacion = 'Rúa de Juan Flórez, 62, 6.º derecha',
    Municipio = 'A Coruña', CP = '15004', Provincia = 'A Coruña', Zona = 'Buena',
    Registro = 'de la Propiedad n.º 2 de A Coruña', Tomo = '2.046', Libro = '1.190', Folio = '66',
    Finca = '70.518', Inscripcion = '2', Anotacion = '',
    NombreSolicitante = 'Herederos de D. Avelino Varela Outeiro', NIFSolicitante = '',
    DomicilioSolicitante = 'Rúa de Juan Flórez, 62, 6.º derecha', CPSolicitante = '15004',
    PoblacionSolicitante = 'A Coruña', ProvinciaSolicitante = '',
    OpcionFinalidad = 4, TextoFinalidad = 'División de herencia',
    Actividad = 'Comercio', Renta = 'Elevado', Censo = 'Estable', HabitantesDerecho = 249261,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 100, Delimitacion = 'Centro urbano', Uso = 'Comercial',
    Infraestructuras = '1111111', Comunicaciones = '0110110',
    EquipamientosBasicos = '11111', EquipamientosLudicos = '10111',
    Plantas = 9, VivPorPlanta = 2, Ascensores = 2, Antiguedad = 45, Sotanos = 2,
    Tipologia = 'Entre medianeras', UsoBaja = 'Comercial', UsoSotano = 'Trasteros',
    Estructura = 'Mixta', Cubierta = 'Inclinada teja', Fachada = 'De aplacado de granito',
    Zaguan = 'Amplio', AcabZaguan = 'Con revestimientos de granito y madera', Escalera = 'Amplia',
    AcabEscalera = 'Bien acabada',
    ServiciosComunes = '000001', Conservacion = 0, SitUrb = 0,
    Composicion = '1111110111', Dormitorios = 4, Baños = 2, Aseos = 1, Terrazas = 1,
    Otros = 1, NombreOtros = 'Despacho', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '01110', CarpinteriaInterior = 4, TextoCarpinteriaInterior = 'Castaño macizo',
    CarpinteriaExterior = 4, TextoCarpinteriaExterior = 'Aluminio lacado con rotura de puente térmico',
    MobiliarioK = 4, TextoMobiliarioK = 'Acero inoxidable y tablero estratificado',
    AcabadoInterior = 2, TextoAcabadoInterior = 'Estuco veneciano y pintura plástica',
    Sup = 1, SupUtil = 104.60, SupConst = 127.90, ConservacionViv = 0, CalidadesGrales = 3,
    Documentacion = '1110', TextoDocumentacion = '',
    Anexos = '001', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = '', ValorGaraje = 0.00,
    DescripcionAnexo = 'bodega en sótano primero', ValorAnexo = 7500.00,
    ValorProvisional = 0.00, SuperficieSolar = 0.00, Repercusion = 1150.00,
    SuperficieSobreRasante = 2478.00,
    CosteConstruccion = 1000.00, CoeficienteK = 1.30, ValorFinal = 290159.00,
    Observaciones = 'Se valora el pleno dominio; la viuda del causante conserva el usufructo de un tercio.'
WHERE NombreTasador = 'Xosé Manuel Castro Lema' AND Tipo = 'P' AND NumeroTasacion = 57;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -57, '2026-09-25', 'Rúa de Juan Flórez, 62, 6.º derecha',
     '15004', 'A Coruña', 'A Coruña', 'Buena', 'S', 45, 4, 104.60, 127.90, 290159.00, 'm²');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Xosé Manuel Castro Lema', 'P', 57, 'Vista desde la galería', '/srv/tasaciones/2026/57/Vista desde la galería.jpg');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Xosé Manuel Castro Lema', 'P', 57, 'E', 11),
    ('Xosé Manuel Castro Lema', 'P', 57, 'E', 12);

-- 6. Cádiz: the old town, useful surface, no lift, no presentation paragraph, an age of 95 years.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('M.ª Dolores Núñez Peña', 'P', 88);
UPDATE Viviendas SET
    Plaza = 'Cádiz', Fecha = '2026-06-30', Presentacion = 0,
    Situacion = 'C/ San José, 17, 2.º, esquina a C/ Junquería',
    Municipio = 'Cádiz', CP = '11003', Provincia = 'Cádiz', Zona = 'Media',
    Registro = 'de la Propiedad n.º 1 de Cádiz', Tomo = '1.512', Libro = '288', Folio = '130',
    Finca = '8.014', Inscripcion = '11', Anotacion = '',
    NombreSolicitante = 'Rocío Bohórquez Añón', NIFSolicitante = '88888888-Y',
    DomicilioSolicitante = '', CPSolicitante = '',
    PoblacionSolicitante = 'San Fernando', ProvinciaSolicitante = 'Cádiz',
    OpcionFinalidad = 0, TextoFinalidad = '',
    Actividad = 'Turismo', Renta = 'Medio', Censo = 'Población decreciente', HabitantesDerecho = 108310,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 100, Delimitacion = 'Casco antíguo', Uso = 'Residencial',
    Infraestructuras = '1111110', Comunicaciones = '0000110',
    EquipamientosBasicos = '11110', EquipamientosLudicos = '00011',
    Plantas = 3, VivPorPlanta = 1, Ascensores = 0, Antiguedad = 95, Sotanos = 0,
    Tipologia = 'Entre medianeras', UsoBaja = 'Comercial', UsoSotano = '',
    Estructura = 'Muros de carga', Cubierta = 'Plana pisable', Fachada = 'Pintura pétrea',
    Zaguan = 'Pequeño', AcabZaguan = 'Calidad sencilla', Escalera = 'Amplia',
    AcabEscalera = 'Con solería de mármol y barandilla de forja',
    ServiciosComunes = '000000', Conservacion = 1, SitUrb = 0,
    Composicion = '1000100100', Dormitorios = 2, Baños = 1, Aseos = 0, Terrazas = 0,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '00011', CarpinteriaInterior = 1, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 1, TextoCarpinteriaExterior = '',
    MobiliarioK = 2, TextoMobiliarioK = '',
    AcabadoInterior = 1, TextoAcabadoInterior = '',
    Sup = 0, SupUtil = 61.80, SupConst = 74.30, ConservacionViv = 2, CalidadesGrales = 1,
    Documentacion = '0010', TextoDocumentacion = '',
    Anexos = '000', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = '', ValorGaraje = 0.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 82.50, Repercusion = 1400.00,
    SuperficieSobreRasante = 281.20,
    CosteConstruccion = 950.00, CoeficienteK = 1.25, ValorFinal = 134183.25,
    Observaciones = ''
WHERE NombreTasador = 'M.ª Dolores Núñez Peña' AND Tipo = 'P' AND NumeroTasacion = 88;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -88, '2026-06-30', 'C/ San José, 17, 2.º, esquina a C/ Junquería',
     '11003', 'Cádiz', 'Cádiz', 'Media', 'N', 95, 2, 61.80, 74.30, 134183.25, 'm²');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('M.ª Dolores Núñez Peña', 'P', 88, 'E', 13),
    ('M.ª Dolores Núñez Peña', 'P', 88, 'E', 14);

-- 7. Girona: backward, useful surface, garage and store room, typographic apostrophes throughout.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Núria Puigdollers i Vila', 'P', 140);
UPDATE Viviendas SET
    Plaza = 'Girona', Fecha = '2026-07-24', Presentacion = 1,
    Situacion = 'Passeig d’Olot, 38, 4t 1a',
    Municipio = 'Girona', CP = '17006', Provincia = 'Girona', Zona = 'Media',
    Registro = 'de la Propiedad n.º 4 de Girona', Tomo = '3.120', Libro = '77', Folio = '5',
    Finca = '4.402', Inscripcion = '4', Anotacion = '',
    NombreSolicitante = 'L’Estany Inversions, S.L.', NIFSolicitante = 'B-00000034',
    DomicilioSolicitante = 'Plaça de l’Oli, 3, 1r', CPSolicitante = '17004',
    PoblacionSolicitante = 'Girona', ProvinciaSolicitante = 'Girona',
    OpcionFinalidad = 2, TextoFinalidad = '',
    Actividad = 'Comercio', Renta = 'Elevado', Censo = 'Población creciente', HabitantesDerecho = 106476,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 85, Delimitacion = 'Barrio periférico', Uso = 'Residencial',
    Infraestructuras = '1111111', Comunicaciones = '1010110',
    EquipamientosBasicos = '11010', EquipamientosLudicos = '11000',
    Plantas = 5, VivPorPlanta = 4, Ascensores = 1, Antiguedad = 30, Sotanos = 1,
    Tipologia = 'Edificio aislado', UsoBaja = 'Comercial', UsoSotano = 'Garaje',
    Estructura = 'Hormigón', Cubierta = 'Plana no pisable', Fachada = 'Ladrillo caravista',
    Zaguan = 'Amplio', AcabZaguan = 'Calidad sencilla', Escalera = 'Amplia',
    AcabEscalera = 'Calidad sencilla',
    ServiciosComunes = '001110', Conservacion = 0, SitUrb = 0,
    Composicion = '1110100111', Dormitorios = 4, Baños = 1, Aseos = 1, Terrazas = 1,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '11000', CarpinteriaInterior = 3, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 0, TextoCarpinteriaExterior = '',
    MobiliarioK = 1, TextoMobiliarioK = '',
    AcabadoInterior = 0, TextoAcabadoInterior = '',
    Sup = 0, SupUtil = 88.00, SupConst = 105.60, ConservacionViv = 0, CalidadesGrales = 2,
    Documentacion = '1010', TextoDocumentacion = '',
    Anexos = '110', PlantaTrastero = 'sótano primero', ValorTrastero = 5000.00,
    PlantaGaraje = 'sótano primero', ValorGaraje = 18000.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 245000.00, SuperficieSolar = 1150.00, Repercusion = 0.00,
    SuperficieSobreRasante = 2440.00,
    CosteConstruccion = 980.00, CoeficienteK = 1.20, ValorFinal = 268000.00,
    Observaciones = ''
WHERE NombreTasador = 'Núria Puigdollers i Vila' AND Tipo = 'P' AND NumeroTasacion = 140;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -140, '2026-07-24', 'Passeig d’Olot, 38, 4t 1a',
     '17006', 'Girona', 'Girona', 'Media', 'S', 30, 4, 88.00, 105.60, 268000.00, 'm²');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Núria Puigdollers i Vila', 'P', 140, 'E', 15),
    ('Núria Puigdollers i Vila', 'P', 140, 'E', 16);

-- 8. Ávila: insurance cover, built surface, no comparables, few services, no presentation paragraph.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Íñigo Sáenz de Urturi Ruiz', 'P', 32);
UPDATE Viviendas SET
    Plaza = 'Logroño', Fecha = '2026-10-08', Presentacion = 0,
    Situacion = 'Paseo de Don Carmelo, 9, 1.º C',
    Municipio = 'Ávila', CP = '05001', Provincia = 'Ávila', Zona = 'Media',
    Registro = 'de la Propiedad n.º 1 de Ávila', Tomo = '1.660', Libro = '512', Folio = '93',
    Finca = '30.177', Inscripcion = '', Anotacion = '',
    NombreSolicitante = 'Mutua Abulense de Seguros', NIFSolicitante = 'V-00000059',
    DomicilioSolicitante = 'C/ de los Reyes Católicos, 20', CPSolicitante = '05001',
    PoblacionSolicitante = 'Ávila', ProvinciaSolicitante = 'Ávila',
    OpcionFinalidad = 1, TextoFinalidad = '',
    Actividad = 'El funcionariado y los servicios públicos', Renta = 'Medio', Censo = 'Estable',
    HabitantesDerecho = 57949, HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 80, Delimitacion = 'Extramuros, junto a la estación', Uso = 'Residencial',
    Infraestructuras = '1011110', Comunicaciones = '1100010',
    EquipamientosBasicos = '01000', EquipamientosLudicos = '10000',
    Plantas = 4, VivPorPlanta = 3, Ascensores = 1, Antiguedad = 28, Sotanos = 0,
    Tipologia = 'Entre medianeras', UsoBaja = 'Trasteros', UsoSotano = '',
    Estructura = 'Metálica', Cubierta = 'Fibrocemento', Fachada = 'Mampostería',
    Zaguan = 'Pequeño', AcabZaguan = 'Calidad sencilla', Escalera = 'Estrecha',
    AcabEscalera = 'Calidad sencilla',
    ServiciosComunes = '000000', Conservacion = 1, SitUrb = 0,
    Composicion = '1001100100', Dormitorios = 3, Baños = 1, Aseos = 0, Terrazas = 0,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '10000', CarpinteriaInterior = 0, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 3, TextoCarpinteriaExterior = '',
    MobiliarioK = 3, TextoMobiliarioK = '',
    AcabadoInterior = 0, TextoAcabadoInterior = '',
    Sup = 1, SupUtil = 0.00, SupConst = 96.50, ConservacionViv = 0, CalidadesGrales = 0,
    Documentacion = '0000', TextoDocumentacion = '',
    Anexos = '000', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = '', ValorGaraje = 0.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 0.00, Repercusion = 380.00,
    SuperficieSobreRasante = 1387.50,
    CosteConstruccion = 870.00, CoeficienteK = 1.10, ValorFinal = 106829.36,
    Observaciones = ''
WHERE NombreTasador = 'Íñigo Sáenz de Urturi Ruiz' AND Tipo = 'P' AND NumeroTasacion = 32;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -32, '2026-10-08', 'Paseo de Don Carmelo, 9, 1.º C',
     '05001', 'Ávila', 'Ávila', 'Media', 'S', 28, 3, 0.00, 96.50, 106829.36, 'm²');

-- 9. L’Eliana: a satellite town, garden and pool, estate of a company, garage, other documents.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Marta Ferrer Climent', 'P', 217);
UPDATE Viviendas SET
    Plaza = 'Valencia', Fecha = '2026-11-20', Presentacion = 1,
    Situacion = 'Avinguda de l’Alcalde Enric Daríes, 14, bajo derecha',
    Municipio = 'L’Eliana', CP = '46183', Provincia = 'Valencia', Zona = 'Buena',
    Registro = 'de la Propiedad de Benaguasil', Tomo = '1.421', Libro = '98', Folio = '177',
    Finca = '7.655', Inscripcion = '6', Anotacion = '',
    NombreSolicitante = 'Jardines del Camp de Túria, S.L.', NIFSolicitante = 'B-00000091',
    DomicilioSolicitante = 'Plaça del País Valencià, 2', CPSolicitante = '46183',
    PoblacionSolicitante = 'L’Eliana', ProvinciaSolicitante = 'Valencia',
    OpcionFinalidad = 2, TextoFinalidad = '',
    Actividad = 'Comercio', Renta = 'Muy alto', Censo = 'Población creciente', HabitantesDerecho = 18842,
    HabitantesHecho = 22500,
    OpcionTipoNucleo = 2, TextoSatelite = 'Valencia', TextoTipoNucleo = '',
    Consolidacion = 75, Delimitacion = 'Ciudad dormitorio', Uso = 'Residencial',
    Infraestructuras = '1111111', Comunicaciones = '0101101',
    EquipamientosBasicos = '11111', EquipamientosLudicos = '11001',
    Plantas = 2, VivPorPlanta = 4, Ascensores = 1, Antiguedad = 21, Sotanos = 1,
    Tipologia = 'Edificio aislado', UsoBaja = 'Vivienda', UsoSotano = 'Garaje',
    Estructura = 'Hormigón', Cubierta = 'Inclinada teja', Fachada = 'Enfoscado mortero',
    Zaguan = 'Amplio', AcabZaguan = 'Bien acabado', Escalera = 'Amplia', AcabEscalera = 'Bien acabada',
    ServiciosComunes = '111110', Conservacion = 0, SitUrb = 0,
    Composicion = '1110100111', Dormitorios = 3, Baños = 2, Aseos = 1, Terrazas = 1,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '00010', CarpinteriaInterior = 2, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 0, TextoCarpinteriaExterior = '',
    MobiliarioK = 0, TextoMobiliarioK = '',
    AcabadoInterior = 1, TextoAcabadoInterior = '',
    Sup = 1, SupUtil = 99.80, SupConst = 118.00, ConservacionViv = 0, CalidadesGrales = 3,
    Documentacion = '1011', TextoDocumentacion = 'Contrato de arrendamiento',
    Anexos = '010', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = 'sótano primero',
    ValorGaraje = 11000.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 1940.00, Repercusion = 640.00,
    SuperficieSobreRasante = 1420.00,
    CosteConstruccion = 940.00, CoeficienteK = 1.28, ValorFinal = 219827.90,
    Observaciones = 'Al jardín privativo de 62 m², de uso exclusivo de la vivienda, no se le asigna valor ' ||
        'independiente.'
WHERE NombreTasador = 'Marta Ferrer Climent' AND Tipo = 'P' AND NumeroTasacion = 217;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -217, '2026-11-20', 'Avinguda de l’Alcalde Enric Daríes, 14, bajo derecha',
     '46183', 'L’Eliana', 'Valencia', 'Buena', 'S', 21, 3, 99.80, 118.00, 219827.90, 'm²');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Marta Ferrer Climent', 'P', 217, 'Jardín', '/srv/tasaciones/2026/217/Jardín.jpg'),
    ('Marta Ferrer Climent', 'P', 217, 'Piscina comunitaria', '/srv/tasaciones/2026/217/Piscina comunitaria.jpg');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Marta Ferrer Climent', 'P', 217, 'E', 18),
    ('Marta Ferrer Climent', 'P', 217, 'E', 19),
    ('Marta Ferrer Climent', 'P', 217, 'I', -216);

-- 10. Teruel: expropriation of a ruinous flat, older than its useful life, so that its cost turns negative.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Íñigo Sáenz de Urturi Ruiz', 'P', 33);
UPDATE Viviendas SET
    Plaza = 'Logroño', Fecha = '2026-11-03', Presentacion = 1,
    Situacion = 'C/ de la Andaquilla, 22, 1.º',
    Municipio = 'Teruel', CP = '44001', Provincia = 'Teruel', Zona = 'Mala',
    Registro = 'de la Propiedad de Teruel', Tomo = '640', Libro = '204', Folio = '12', Finca = '2.931',
    Inscripcion = '14', Anotacion = 'C',
    NombreSolicitante = 'Sociedad Municipal de Rehabilitación de Teruel', NIFSolicitante = 'A-00000075',
    DomicilioSolicitante = 'Plaza de la Catedral, 1', CPSolicitante = '44001',
    PoblacionSolicitante = 'Teruel', ProvinciaSolicitante = 'Teruel',
    OpcionFinalidad = 3, TextoFinalidad = '',
    Actividad = 'Artesanía', Renta = 'Bajo', Censo = 'Población decreciente', HabitantesDerecho = 36240,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 0, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 35, Delimitacion = 'Casco antíguo', Uso = 'Sin edificar en su mayoría',
    Infraestructuras = '0011110', Comunicaciones = '1000100',
    EquipamientosBasicos = '00000', EquipamientosLudicos = '00000',
    Plantas = 2, VivPorPlanta = 1, Ascensores = 0, Antiguedad = 110, Sotanos = 1,
    Tipologia = 'Entre medianeras', UsoBaja = 'Patio cubierto', UsoSotano = 'Bodega',
    Estructura = 'De muros de tapial', Cubierta = 'Inclinada teja', Fachada = 'Mampostería',
    Zaguan = 'Pequeño', AcabZaguan = 'Anticuado', Escalera = 'Estrecha', AcabEscalera = 'Anticuada',
    ServiciosComunes = '000000', Conservacion = 3, SitUrb = 1,
    Composicion = '1000100000', Dormitorios = 2, Baños = 0, Aseos = 0, Terrazas = 0,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '00000', CarpinteriaInterior = 1, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 1, TextoCarpinteriaExterior = '',
    MobiliarioK = 2, TextoMobiliarioK = '',
    AcabadoInterior = 2, TextoAcabadoInterior = 'Encalado',
    Sup = 1, SupUtil = 58.60, SupConst = 71.00, ConservacionViv = 1, CalidadesGrales = 0,
    Documentacion = '0001', TextoDocumentacion = 'Acta previa a la ocupación',
    Anexos = '000', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = '', ValorGaraje = 0.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 0.00, SuperficieSolar = 76.30, Repercusion = 520.00,
    SuperficieSobreRasante = 201.00,
    CosteConstruccion = 800.00, CoeficienteK = 0.90, ValorFinal = 28116.00,
    Observaciones = 'El inmueble carece de cédula de habitabilidad. La visita se limitó a la planta baja y al ' ||
        'primer tramo de la escalera por riesgo de hundimiento.'
WHERE NombreTasador = 'Íñigo Sáenz de Urturi Ruiz' AND Tipo = 'P' AND NumeroTasacion = 33;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'P', -33, '2026-11-03', 'C/ de la Andaquilla, 22, 1.º',
     '44001', 'Teruel', 'Teruel', 'Mala', 'N', 110, 2, 58.60, 71.00, 28116.00, 'm²');
INSERT INTO ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion, Problema) VALUES
    ('Íñigo Sáenz de Urturi Ruiz', 'P', 33,
     'El inmueble está incluido en la unidad de ejecución UE-7 del Plan Especial de Reforma ' ||
        'Interior, que prevé su demolición para la apertura de un vial.');

-- 11. Roses: an apartment by the sea, forward, built surface, garage and a berth.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Núria Puigdollers i Vila', 'A', 141);
UPDATE Viviendas SET
    Plaza = 'Girona', Fecha = '2026-07-21', Presentacion = 1,
    Situacion = 'Avinguda de Rhode, 122, 5è 3a',
    Municipio = 'Roses', CP = '17480', Provincia = 'Girona', Zona = 'Buena',
    Registro = 'de la Propiedad n.º 2 de Roses', Tomo = '3.207', Libro = '588', Folio = '41',
    Finca = '36.914', Inscripcion = '4', Anotacion = '',
    NombreSolicitante = 'Jean-Pierre Lefèvre Dubois', NIFSolicitante = 'X-0000023-B',
    DomicilioSolicitante = '14, rue de l’Ange', CPSolicitante = '66000',
    PoblacionSolicitante = 'Perpiñán', ProvinciaSolicitante = 'Francia',
    OpcionFinalidad = 0, TextoFinalidad = '',
    Actividad = 'Turismo', Renta = 'Elevado', Censo = 'Población creciente', HabitantesDerecho = 20418,
    HabitantesHecho = 95000,
    OpcionTipoNucleo = 2, TextoSatelite = 'Figueres', TextoTipoNucleo = '',
    Consolidacion = 92, Delimitacion = 'En la zona costera', Uso = 'Apartamentos primera línea de playa',
    Infraestructuras = '1111111', Comunicaciones = '1001100',
    EquipamientosBasicos = '11110', EquipamientosLudicos = '11001',
    Plantas = 6, VivPorPlanta = 4, Ascensores = 2, Antiguedad = 48, Sotanos = 1,
    Tipologia = 'Edificio aislado', UsoBaja = 'Comercial', UsoSotano = 'Garaje',
    Estructura = 'Hormigón', Cubierta = 'Plana pisable', Fachada = 'Pintura pétrea',
    Zaguan = 'Amplio', AcabZaguan = 'Bien acabado', Escalera = 'Estrecha',
    AcabEscalera = 'Calidad sencilla',
    ServiciosComunes = '100110', Conservacion = 1, SitUrb = 0,
    Composicion = '1010100101', Dormitorios = 2, Baños = 1, Aseos = 0, Terrazas = 1,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '01000', CarpinteriaInterior = 3, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 0, TextoCarpinteriaExterior = '',
    MobiliarioK = 1, TextoMobiliarioK = '',
    AcabadoInterior = 0, TextoAcabadoInterior = '',
    Sup = 1, SupUtil = 61.30, SupConst = 73.50, ConservacionViv = 0, CalidadesGrales = 2,
    Documentacion = '1010', TextoDocumentacion = '',
    Anexos = '011', PlantaTrastero = '', ValorTrastero = 0.00, PlantaGaraje = 'sótano primero',
    ValorGaraje = 19500.00,
    DescripcionAnexo = 'AMARRE de ocho metros', ValorAnexo = 14200.50,
    ValorProvisional = 0.00, SuperficieSolar = 1150.00, Repercusion = 1480.00,
    SuperficieSobreRasante = 1946.00,
    CosteConstruccion = 1020.00, CoeficienteK = 1.62, ValorFinal = 273078.83,
    Observaciones = 'Desde la terraza se ven la bahía y el faro. El apartamento se alquila por semanas de ' ||
        'junio a septiembre.'
WHERE NombreTasador = 'Núria Puigdollers i Vila' AND Tipo = 'A' AND NumeroTasacion = 141;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'A', -141, '2026-07-21', 'Avinguda de Rhode, 122, 5è 3a',
     '17480', 'Roses', 'Girona', 'Buena', 'S', 48, 2, 61.30, 73.50, 273078.83, 'm²');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Núria Puigdollers i Vila', 'A', 141, 'Vista desde la terraza', '/srv/tasaciones/2026/141/Terraza.jpg');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('Núria Puigdollers i Vila', 'A', 141, 'E', 20),
    ('Núria Puigdollers i Vila', 'A', 141, 'E', 21);

-- 12. Formigal: an apartment of a ski resort for a partition of an estate, backward from a known value on the
-- useful surface alone, with neither presentation nor notes, against the planning.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Íñigo Sáenz de Urturi Ruiz', 'A', 34);
UPDATE Viviendas SET
    Plaza = 'Logroño', Fecha = '2026-02-27', Presentacion = 0,
    Situacion = 'Urbanización Formigal, edificio Tirol, escalera 2, 4.º F',
    Municipio = 'Sallent de Gállego', CP = '22640', Provincia = 'Huesca', Zona = 'Media',
    Registro = 'de la Propiedad de Jaca', Tomo = '1.391', Libro = '66', Folio = '', Finca = '5.018',
    Inscripcion = '2', Anotacion = '',
    NombreSolicitante = 'Herederos de D. Ángel Güemes Peña', NIFSolicitante = '',
    DomicilioSolicitante = '', CPSolicitante = '', PoblacionSolicitante = 'Haro',
    ProvinciaSolicitante = 'La Rioja',
    OpcionFinalidad = 4, TextoFinalidad = 'Partición de HERENCIA',
    Actividad = 'Ganadería', Renta = 'Medio', Censo = 'Estable', HabitantesDerecho = 1498,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 1, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 0, Delimitacion = 'Próximo a estación de esquí', Uso = 'Residencia Estival',
    Infraestructuras = '1011110', Comunicaciones = '1001000',
    EquipamientosBasicos = '10000', EquipamientosLudicos = '01000',
    Plantas = 5, VivPorPlanta = 6, Ascensores = 1, Antiguedad = 33, Sotanos = 0,
    Tipologia = 'Entre medianeras', UsoBaja = 'Trasteros', UsoSotano = '',
    Estructura = 'Mixta', Cubierta = 'De pizarra', Fachada = 'Mampostería',
    Zaguan = 'Pequeño', AcabZaguan = 'Anticuado', Escalera = 'Amplia', AcabEscalera = 'Anticuada',
    ServiciosComunes = '000001', Conservacion = 0, SitUrb = 1,
    Composicion = '1000010100', Dormitorios = 0, Baños = 1, Aseos = 0, Terrazas = 0,
    Otros = 1, NombreOtros = 'Estar con LITERAS', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '00100', CarpinteriaInterior = 1, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 1, TextoCarpinteriaExterior = '',
    MobiliarioK = 4, TextoMobiliarioK = 'Pino macizo',
    AcabadoInterior = 2, TextoAcabadoInterior = 'Friso de madera',
    Sup = 0, SupUtil = 38.40, SupConst = 0.00, ConservacionViv = 2, CalidadesGrales = 1,
    Documentacion = '0000', TextoDocumentacion = '',
    Anexos = '100', PlantaTrastero = 'baja', ValorTrastero = 3500.00, PlantaGaraje = '', ValorGaraje = 0.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 92000.00, SuperficieSolar = 0.00, Repercusion = 0.00,
    SuperficieSobreRasante = 1584.00,
    CosteConstruccion = 1100.00, CoeficienteK = 1.35, ValorFinal = 95500.00,
    Observaciones = ''
WHERE NombreTasador = 'Íñigo Sáenz de Urturi Ruiz' AND Tipo = 'A' AND NumeroTasacion = 34;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'A', -34, '2026-02-27', 'Urbanización Formigal, edificio Tirol, escalera 2, 4.º F',
     '22640', 'Sallent de Gállego', 'Huesca', 'Media', 'S', 33, 0, 38.40, 0.00, 95500.00, 'm²');
INSERT INTO ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion, Problema) VALUES
    ('Íñigo Sáenz de Urturi Ruiz', 'A', 34,
     'La galería cerrada de la fachada norte carece de licencia y excede la edificabilidad de la parcela.');

-- 13. Betanzos: a new farmhouse without upper floors, all services of its own, every annex, plot unknown.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('Xosé Manuel Castro Lema', 'C', 58);
UPDATE Viviendas SET
    Plaza = 'A Coruña', Fecha = '2026-10-02', Presentacion = 1,
    Situacion = 'Lugar de Piadela, 7',
    Municipio = 'Betanzos', CP = '15300', Provincia = 'A Coruña', Zona = 'Media',
    Registro = 'de la Propiedad de Betanzos', Tomo = '1.886', Libro = '202', Folio = '119',
    Finca = '17.345', Inscripcion = '1', Anotacion = 'A',
    NombreSolicitante = 'M.ª Xosé Ínsua Vázquez', NIFSolicitante = '77777777-B',
    DomicilioSolicitante = 'Lugar de Piadela, 7', CPSolicitante = '', PoblacionSolicitante = '',
    ProvinciaSolicitante = 'A Coruña',
    OpcionFinalidad = 2, TextoFinalidad = '',
    Actividad = 'Agricultura', Renta = 'Bajo', Censo = 'Población decreciente', HabitantesDerecho = 12917,
    HabitantesHecho = 0,
    OpcionTipoNucleo = 3, TextoSatelite = '', TextoTipoNucleo = 'Cabeza de PARTIDO judicial',
    Consolidacion = 40, Delimitacion = 'Barrio periférico', Uso = 'Huertas y prados',
    Infraestructuras = '0010110', Comunicaciones = '1101100',
    EquipamientosBasicos = '00000', EquipamientosLudicos = '00000',
    Plantas = 0, Antiguedad = 1, Sotanos = 1,
    Tipologia = 'Explotación agropecuaria', UsoSotano = 'Bodega',
    Estructura = 'Muros de carga', Cubierta = 'Inclinada teja', Fachada = 'Mampostería',
    ServiciosComunes = '000000', ServiciosIndividuales = '111111', Conservacion = 4, SitUrb = 0,
    Composicion = '1111111111', Dormitorios = 4, Baños = 1, Aseos = 1, Terrazas = 2,
    Otros = 1, NombreOtros = 'Despacho', Otros2 = 2, NombreOtros2 = 'Almacén de APEROS',
    Pavimentos = '11111', CarpinteriaInterior = 2, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 4, TextoCarpinteriaExterior = 'Aluminio por fuera y madera por dentro',
    MobiliarioK = 2, TextoMobiliarioK = '',
    AcabadoInterior = 1, TextoAcabadoInterior = '',
    Sup = 1, SupUtil = 0.00, SupConst = 214.60, ConservacionViv = 0, CalidadesGrales = 2,
    Documentacion = '1111', TextoDocumentacion = 'Certificado final de OBRA',
    Anexos = '111', PlantaTrastero = 'baja', ValorTrastero = 6000.00, PlantaGaraje = 'baja',
    ValorGaraje = 12000.00,
    DescripcionAnexo = 'hórreo de Granito', ValorAnexo = 18000.00,
    ValorProvisional = 0.00, SuperficieSolar = 0.00, Repercusion = 210.00,
    SuperficieSobreRasante = 214.60,
    CosteConstruccion = 870.00, CoeficienteK = 1.05, ValorFinal = 277396.03,
    Observaciones = 'La casa se abastece además de un pozo propio.'
WHERE NombreTasador = 'Xosé Manuel Castro Lema' AND Tipo = 'C' AND NumeroTasacion = 58;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'C', -58, '2026-10-02', 'Lugar de Piadela, 7',
     '15300', 'Betanzos', 'A Coruña', 'Media', 'N', 1, 4, 0.00, 214.60, 277396.03, 'm²');
INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) VALUES
    ('Xosé Manuel Castro Lema', 'C', 58, 'Hórreo', '/srv/tasaciones/2026/58/Hórreo.jpg');

-- 14. Conil: a terraced house on three floors with two basements, backward, useful surface, an unlicensed
-- pergola.
INSERT INTO Viviendas (NombreTasador, Tipo, NumeroTasacion) VALUES ('M.ª Dolores Núñez Peña', 'C', 89);
UPDATE Viviendas SET
    Plaza = 'Cádiz', Fecha = '2026-09-16', Presentacion = 1,
    Situacion = 'C/ de los Alcornoques, 11',
    Municipio = 'Conil de la Frontera', CP = '11140', Provincia = 'Cádiz', Zona = 'Buena',
    Registro = 'de la Propiedad de Conil de la Frontera', Tomo = '2.004', Libro = '371', Folio = '15',
    Finca = '19.880', Inscripcion = '3', Anotacion = '',
    NombreSolicitante = 'Construcciones Peñón del Águila, S.L.', NIFSolicitante = 'B-00000059',
    DomicilioSolicitante = 'C/ Cádiz, 3, bajo', CPSolicitante = '11140',
    PoblacionSolicitante = 'Conil de la Frontera', ProvinciaSolicitante = 'Cádiz',
    OpcionFinalidad = 1, TextoFinalidad = '',
    Actividad = 'Turismo', Renta = 'Medio', Censo = 'En ligero AUMENTO', HabitantesDerecho = 23120,
    HabitantesHecho = 85000,
    OpcionTipoNucleo = 1, TextoSatelite = '', TextoTipoNucleo = '',
    Consolidacion = 75, Delimitacion = 'Zona de ensanche', Uso = 'Residencial',
    Infraestructuras = '1111110', Comunicaciones = '0001100',
    EquipamientosBasicos = '01010', EquipamientosLudicos = '11000',
    Plantas = 2, Antiguedad = 21, Sotanos = 2,
    Tipologia = 'Adosada con jardín', UsoSotano = 'Garaje',
    Estructura = 'Hormigón', Cubierta = 'Plana no pisable', Fachada = 'Enfoscado mortero',
    ServiciosComunes = '100100', ServiciosIndividuales = '000001', Conservacion = 0, SitUrb = 1,
    Composicion = '1011100111', Dormitorios = 4, Baños = 2, Aseos = 1, Terrazas = 3,
    Otros = 0, NombreOtros = '', Otros2 = 0, NombreOtros2 = '',
    Pavimentos = '00010', CarpinteriaInterior = 0, TextoCarpinteriaInterior = '',
    CarpinteriaExterior = 2, TextoCarpinteriaExterior = '',
    MobiliarioK = 3, TextoMobiliarioK = '',
    AcabadoInterior = 0, TextoAcabadoInterior = '',
    Sup = 0, SupUtil = 142.35, SupConst = 168.90, ConservacionViv = 0, CalidadesGrales = 3,
    Documentacion = '1000', TextoDocumentacion = '',
    Anexos = '010', PlantaTrastero = 'sótano segundo', ValorTrastero = 0.00,
    PlantaGaraje = 'Sótano primero', ValorGaraje = 9000.00,
    DescripcionAnexo = '', ValorAnexo = 0.00,
    ValorProvisional = 315000.00, SuperficieSolar = 180.00, Repercusion = 0.00,
    SuperficieSobreRasante = 168.90,
    CosteConstruccion = 905.00, CoeficienteK = 1.40, ValorFinal = 324000.00,
    Observaciones = 'La superficie no incluye los sótanos.' || char(13, 10) ||
        'El jardín privativo mide 54 m².'
WHERE NombreTasador = 'M.ª Dolores Núñez Peña' AND Tipo = 'C' AND NumeroTasacion = 89;
INSERT INTO Testigos
    (Origen, Tipo, Tasacion, Fecha, Situacion, CP, Municipio, Provincia,
     Zona, Ascensor, Antiguedad, Dormitorios, SupUtil, Superficie, ValorFinal, UnidadMedida)
VALUES
    ('I', 'C', -89, '2026-09-16', 'C/ de los Alcornoques, 11',
     '11140', 'Conil de la Frontera', 'Cádiz', 'Buena', 'N', 21, 4, 142.35, 168.90, 324000.00, 'm²');
INSERT INTO ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion, Problema) VALUES
    ('M.ª Dolores Núñez Peña', 'C', 89,
     'La pérgola de obra del patio se levantó sin licencia y ocupa el retranqueo a la linde trasera.');
INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) VALUES
    ('M.ª Dolores Núñez Peña', 'C', 89, 'E', 22),
    ('M.ª Dolores Núñez Peña', 'C', 89, 'E', 23);
