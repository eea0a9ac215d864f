#include "report/list_sentences.h"

#include "report/report_fixture.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A list's text and the line that the report of a kind has under a heading.
struct FilaLista
{
    QStringView tipo, lista, texto, titulo, linea;
};

constexpr FilaLista kFilas[] = {
    {u"Piso", u"Combo3", u"Población creciente", u"Crecimiento de la población:",
     u"Atendiendo a la evolución del censo se constata que la tendencia actual es al crecimiento de la "
     u"población."},
    {u"Piso", u"Combo3", u"Población decreciente", u"Crecimiento de la población:",
     u"Atendiendo a la evolución del censo puede afirmarse que recientemente ha disminuido el número de "
     u"habitantes, por lo que la tendencia actual es indudablemente decreciente."},
    {u"Piso", u"Combo3", u"Crecimiento lento", u"Crecimiento de la población:",
     u"Evoluciona muy lentamente, aunque en un periodo dilatado de tiempo se observa una leve tendencia al "
     u"crecimiento."},
    {u"Piso", u"Combo3", u"Estable", u"Crecimiento de la población:",
     u"En líneas generales no se producen alteraciones significativas en el número de habitantes."},
    {u"Piso", u"Combo3", u"Fuerte DESCENSO", u"Crecimiento de la población:",
     u"Atendiendo a la evolución del censo puede afirmarse que recientemente ha disminuido el número de "
     u"habitantes, por lo que la tendencia actual es de fuerte descenso."},

    {u"Piso", u"Combo4", u"Centro urbano", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla en pleno centro "
     u"urbano."},
    {u"Casa", u"Combo4", u"Dentro del casco urbano", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla dentro del casco "
     u"urbano de la misma."},
    {u"Piso", u"Combo4", u"Casco antíguo", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla dentro del casco "
     u"antíguo de la misma."},
    {u"Piso", u"Combo4", u"Zona de ensanche", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla en una zona de "
     u"ensanche."},
    {u"Piso", u"Combo4", u"Barrio periférico", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla en un barrio "
     u"periférico de la población."},
    {u"Piso", u"Combo4", u"Ciudad dormitorio", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla en lo que se "
     u"denomina una ciudad dormitorio."},
    {u"Piso", u"Combo4", u"Junto al RÍO", u"Delimitación del entorno:",
     u"Por la posición que ocupa en la población, podemos decir que el inmueble se halla junto al río."},
    {u"Apto", u"Combo4", u"Centro urbano", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"en pleno centro urbano."},
    {u"Apto", u"Combo4", u"Dentro del casco urbano", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"dentro del casco urbano de la misma."},
    {u"Apto", u"Combo4", u"En la zona costera", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"en la zona costera."},
    {u"Apto", u"Combo4", u"En zona de montaña", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"en un enclave montañoso."},
    {u"Apto", u"Combo4", u"Próximo a estación de esquí", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"en una zona próxima a una estación de esquí."},
    {u"Apto", u"Combo4", u"Próximo a un parque temático", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"cercano a un parque de atracciones temático."},
    {u"Apto", u"Combo4", u"Casco antíguo", u"Delimitación del entorno:",
     u"Por las características geográficas y constructivas del entorno, podemos decir que el inmueble se "
     u"halla "
     u"casco antíguo."},

    {u"Piso", u"Combo1", u"Agricultura", u"Actividad dominante:",
     u"La ocupación más característica de los residentes en esta población es la agricultura."},
    {u"Piso", u"Combo1", u"Comercio", u"Actividad dominante:",
     u"La ocupación más característica de los residentes en esta población es el comercio."},
    {u"Piso", u"Combo1", u"Industria", u"Actividad dominante:",
     u"La ocupación más característica de los residentes en esta población es el desempeño de los empleos "
     u"generados por la industria local."},
    {u"Piso", u"Combo1", u"Turismo", u"Actividad dominante:",
     u"La ocupación más característica de los residentes en esta población es el trabajo relacionado con el "
     u"turismo."},
    {u"Piso", u"Combo1", u"Artesanía", u"Actividad dominante:",
     u"La ocupación más característica de los residentes en esta población es la artesanía."},
    {u"Piso", u"Combo1", u"La PESCA", u"Actividad dominante:",
     u"La ocupación más característica de los residentes en esta población es la pesca."},
    {u"Piso", u"Combo2", u"Muy alto", u"Nivel de Renta:",
     u"Dado que para la realización de este informe hemos estudiado los precios de inmuebles en la zona, "
     u"ello "
     u"nos ha permitido conocer también el nivel de renta de los habitantes de dicho entorno, que puede "
     u"calificarse como muy alto."},

    {u"Piso", u"Combo5", u"Residencial", u"Significación:",
     u"El entorno próximo al inmueble es de carácter claramente residencial."},
    {u"Piso", u"Combo5", u"Comercial", u"Significación:",
     u"El entorno próximo al inmueble es de carácter fundamentalmente comercial."},
    {u"Casa", u"Combo5", u"Industrial", u"Significación:",
     u"El entorno próximo al inmueble es de carácter principalmente industrial."},
    {u"Piso", u"Combo5", u"Almacenes", u"Significación:",
     u"El entorno próximo al inmueble es de edificios destinados a almacenaje."},
    {u"Piso", u"Combo5", u"Sin edificar en su mayoría", u"Significación:",
     u"El entorno próximo al inmueble es de solares sin edificar en su mayoría."},
    {u"Piso", u"Combo5", u"Huerta", u"Significación:", u"El entorno próximo al inmueble es de huerta."},
    {u"Apto", u"Combo5", u"Negocios de hostelería", u"Significación:",
     u"El entorno próximo al inmueble es de caracter comercial, con predominio de los negocios de "
     u"hostelería."},
    {u"Apto", u"Combo5", u"Residencia Estival", u"Significación:",
     u"El entorno próximo al inmueble es de residencia estival."},
    {u"Apto", u"Combo5", u"Urbanización próxima al mar", u"Significación:",
     u"El entorno próximo al inmueble es de urbanización próxima al mar."},
    {u"Apto", u"Combo5", u"Apartamentos primera línea de playa", u"Significación:",
     u"El entorno próximo al inmueble es de apartamentos primera línea de playa."},
    {u"Apto", u"Combo5", u"Sin edificar en su mayoría", u"Significación:",
     u"El entorno próximo al inmueble es de solares sin edificar en su mayoría."},
    {u"Apto", u"Combo5", u"Residencial", u"Significación:",
     u"El entorno próximo al inmueble es de residencial."},

    {u"Piso", u"ComboTipol", u"Edificio aislado", u"Tipología:",
     u"Se trata de una edificación aislada o exenta, es decir, no comparte ningún cerramiento con otra "
     u"edificación."},
    {u"Apto", u"ComboTipol", u"Entre medianeras", u"Tipología:",
     u"Se trata de una edificación entre medianeras."},
    {u"Piso", u"ComboTipol", u"En ESQUINA", u"Tipología:", u"Se trata de una edificación en esquina."},
    {u"Casa", u"ComboTipol", u"Vivienda unifamiliar aislada", u"Tipología:",
     u"Edificación tipificada como aislada o exenta, es decir, no comparte ningún cerramiento con otra "
     u"edificación."},
    {u"Casa", u"ComboTipol", u"Edificio entre medianeras", u"Tipología:",
     u"Edificación tipificada como vivienda unifamiliar entre medianeras."},
    {u"Casa", u"ComboTipol", u"Adosada con jardín", u"Tipología:",
     u"Edificación tipificada como vivienda unifamiliar adosada, con una parte de solar privativo destinado "
     u"a "
     u"jardín."},
    {u"Casa", u"ComboTipol", u"Explotación agropecuaria", u"Tipología:",
     u"Edificación tipificada como vivienda unifamiliar ligada a una explotación agropecuaria."},
    {u"Casa", u"ComboTipol", u"Alquería", u"Tipología:", u"Edificación tipificada como alquería."},

    {u"Piso", u"ComboEstructura", u"Hormigón", u"Estructura:",
     u"La estructura del edificio es porticada, mediante pilares y jácenas de hormigón armado."},
    {u"Piso", u"ComboEstructura", u"Muros de carga", u"Estructura:",
     u"La estructura del edificio es mediante muros de carga."},
    {u"Piso", u"ComboEstructura", u"Mixta", u"Estructura:",
     u"La estructura del edificio es mixta, combinando muros de carga y pilares."},
    {u"Piso", u"ComboEstructura", u"Metálica", u"Estructura:",
     u"La estructura del edificio es metálica, a base de pilares y jácenas formados por perfiles metálicos."},
    {u"Piso", u"ComboEstructura", u"De MADERA", u"Estructura:", u"La estructura del edificio es de madera."},
};

struct FilaFachada
{
    QStringView lista, texto, linea;
};

constexpr FilaFachada kFachadas[] = {
    {u"ComboFachada", u"Ladrillo caravista", u"Fachada de ladrillo caravista."},
    {u"ComboFachada", u"Enfoscado mortero", u"Fachada con enfoscado de mortero de cemento."},
    {u"ComboFachada", u"Pintura pétrea", u"Fachada revestida con pintura pétrea rugosa."},
    {u"ComboFachada", u"Mampostería", u"Fachada de piedra natural, con aspecto exterior de mampostería."},
    {u"ComboFachada", u"Chapa prelacada", u"Fachada de chapa prelacada."},
    {u"ComboFachada", u"Chapa galvanizada", u"Fachada de chapa galvanizada."},
    {u"ComboFachada", u"Muro de bloque de hormigón", u"Fachada de muro de bloque de hormigón."},
    {u"ComboFachada", u"De AZULEJO", u"Fachada de azulejo."},
    {u"ComboCubierta", u"Inclinada teja", u"Cubierta inclinada de teja."},
    {u"ComboCubierta", u"Plana pisable", u"Cubierta plana, transitable, tipo azotea."},
    {u"ComboCubierta", u"Plana no pisable", u"Cubierta plana, pero no transitable."},
    {u"ComboCubierta", u"Fibrocemento", u"Cubierta inclinada con placas onduladas de fibrocemento."},
    {u"ComboCubierta", u"Chapa prelacada", u"Cubierta de chapa prelacada."},
    {u"ComboCubierta", u"Chapa galvanizada", u"Cubierta de chapa galvanizada."},
    {u"ComboCubierta", u"De PIZARRA", u"Cubierta de pizarra."},
};

struct FilaOpcion
{
    QStringView grupo;
    int opcion;
    QStringView titulo, linea;
};

constexpr FilaOpcion kOpciones[] = {
    {u"Finalidad", 0, u"2.1. Finalidad de la tasación:",
     u"Se realiza la misma para verificar la validez de la garantía en un préstamo hipotecario."},
    {u"Finalidad", 1, u"2.1. Finalidad de la tasación:",
     u"Se realiza la misma para determinar la cobertura de una póliza de seguro."},
    {u"Finalidad", 2, u"2.1. Finalidad de la tasación:",
     u"Se realiza la misma para determinar la cuantía del patrimonio del interesado."},
    {u"Finalidad", 3, u"2.1. Finalidad de la tasación:",
     u"Se realiza la misma para establecer un justiprecio ante la posible expropiación del inmueble."},
    {u"Finalidad", 4, u"2.1. Finalidad de la tasación:",
     u"Se realiza la misma con motivo de su solicitud por divorcio de mutuo acuerdo."},
    {u"TipoNucleo", 0, u"Tipo de núcleo:", u"Se trata de la capital de la provincia."},
    {u"TipoNucleo", 1, u"Tipo de núcleo:",
     u"El inmueble se encuentra enclavado en un pequeño núcleo autónomo."},
    {u"TipoNucleo", 2, u"Tipo de núcleo:",
     u"La población referida tiene la consideración de núcleo satélite dependiente de L’Eliana."},
    {u"TipoNucleo", 3, u"Tipo de núcleo:",
     u"La población referida tiene la consideración de pedanía de gandia."},
    {u"OptionEstado", 0, u"Situación actual:",
     u"En el momento de realizar la presente tasación el edificio se encuentra en buen estado de "
     u"conservación."},
    {u"OptionEstado", 1, u"Situación actual:",
     u"En el momento de realizar la presente tasación el edificio se encuentra en un estado aceptable para "
     u"su "
     u"antigüedad, sin grandes síntomas de deterioro."},
    {u"OptionEstado", 2, u"Situación actual:",
     u"En el momento de realizar la presente tasación el edificio presenta síntomas evidentes de deterioro."},
    {u"OptionEstado", 3, u"Situación actual:",
     u"En el momento de realizar la presente tasación el edificio se halla en estado ruinoso, completamente "
     u"inhabitable."},
    {u"OptionEstado", 4, u"Situación actual:",
     u"En el momento de realizar la presente tasación el edificio está recien terminado, por lo que aún no "
     u"presenta ningún síntoma de deterioro."},
    {u"OptionEstado", 5, u"Situación actual:",
     u"En el momento de realizar la presente tasación el edificio se halla aún en fase de construcción, por "
     u"lo "
     u"que no procede hablar de su conservación."},
    {u"OptionEstado", -1, u"Situación actual:", u""},
    {u"Conserv", 0, u"Situación Actual:",
     u"En la actualidad el inmueble se encuentra en buen estado de conservación."},
    {u"Conserv", 1, u"Situación Actual:",
     u"En la actualidad el inmueble se encuentra en mal estado de conservación."},
    {u"Conserv", 2, u"Situación Actual:",
     u"En la actualidad el inmueble se encuentra habitable y en un estado aceptable."},
    {u"Conserv", 3, u"Situación Actual:",
     u"En la actualidad el inmueble se halla aún en construcción, por lo que no resulta apropiado hablar "
     u"todavía de conservación."},
    {u"Conserv", -1, u"Situación Actual:", u""},
    {u"Calidad", 0, u"Evaluación de los materiales empleados:",
     u"Como conclusión obtenida tras el estudio de los diferentes elementos constructivos del inmueble, "
     u"puede "
     u"afirmarse que los materiales empleados son de baja calidad."},
    {u"Calidad", 1, u"Evaluación de los materiales empleados:",
     u"Como conclusión obtenida tras el estudio de los diferentes elementos constructivos del inmueble, "
     u"puede "
     u"afirmarse que los materiales empleados son de calidades sencillas."},
    {u"Calidad", 2, u"Evaluación de los materiales empleados:",
     u"Como conclusión obtenida tras el estudio de los diferentes elementos constructivos del inmueble, "
     u"puede "
     u"afirmarse que los materiales empleados son de buena calidad."},
    {u"Calidad", 3, u"Evaluación de los materiales empleados:",
     u"Como conclusión obtenida tras el estudio de los diferentes elementos constructivos del inmueble, "
     u"puede "
     u"afirmarse que los materiales empleados son de gran calidad."},
};

struct FilaAcabado
{
    QStringView grupo;
    int opcion;
    QStringView acabado; ///< as it stands in its sentence
};

constexpr FilaAcabado kAcabados[] = {
    {u"CarpInt", 0, u"interior es de madera de mbero y"},
    {u"CarpInt", 1, u"interior es de madera de oregón y"},
    {u"CarpInt", 2, u"interior es de madera de roble y"},
    {u"CarpInt", 3, u"interior es de madera de sapely y"},
    {u"CarpInt", 4, u"interior es de haya vaporizada y"},
    {u"CarpExt", 0, u" y la exterior de aluminio."},
    {u"CarpExt", 1, u" y la exterior de madera."},
    {u"CarpExt", 2, u" y la exterior de P.V.C.."},
    {u"CarpExt", 3, u" y la exterior de hierro."},
    {u"CarpExt", 4, u" y la exterior de acero corten."},
    {u"MobK", 0, u"El mobiliario de cocina es de madera natural."},
    {u"MobK", 1, u"El mobiliario de cocina es de tablero lacado."},
    {u"MobK", 2, u"El mobiliario de cocina es de madera natural con acabado rústico."},
    {u"MobK", 3, u"El mobiliario de cocina es de laminado plástico."},
    {u"MobK", 4, u"El mobiliario de cocina es de acero inoxidable."},
    {u"Interior", 0, u"interiores se ha aplicado pintura a la gota."},
    {u"Interior", 1, u"interiores se ha aplicado pintura lisa."},
    {u"Interior", 2, u"interiores se ha aplicado papel pintado."},
};

void EscribirLibres(CasoDePrueba& caso)
{
    caso.Escribir({{u"BoxFin", u"DIVORCIO de mutuo acuerdo"},
                   {u"BoxSatelite", u"L’Eliana"},
                   {u"BoxOtroNucleo", u"Pedanía de Gandia"},
                   {u"BoxRoble", u"Haya VAPORIZADA"},
                   {u"BoxHierro", u"Acero Corten"},
                   {u"BoxMobK", u"Acero Inoxidable"},
                   {u"BoxLisa", u"Papel pintado"}});
}

} // namespace

TEST(ListSentences, EveryTextOfEveryListHasItsSentence)
{
    for (const FilaLista& fila : kFilas) {
        CasoDePrueba caso(fila.tipo.toString());
        RellenarPiso(caso);
        caso.Escribir({{fila.lista, fila.texto}});
        const QStringList lineas = caso.trasTitulo(fila.titulo);
        ASSERT_FALSE(lineas.isEmpty()) << fila.titulo.toString().toStdString();
        EXPECT_EQ(lineas.first().trimmed(), fila.linea) << fila.texto.toString().toStdString();
    }
}

TEST(ListSentences, FacadeAloneAndRoofAloneBeginTheirOwnSentence)
{
    for (const FilaFachada& fila : kFachadas) {
        CasoDePrueba piso;
        RellenarPiso(piso);
        const bool fachada = fila.lista == u"ComboFachada";
        piso.Puntos({fachada ? 14 : 15}, 0);
        piso.Escribir({{fila.lista, fila.texto}});
        const QStringList lineas = piso.trasTitulo(fachada ? u"Cerramientos Exteriores:" : u"2. Cubierta:");
        ASSERT_FALSE(lineas.isEmpty());
        EXPECT_EQ(lineas.first(), QString(28, u' ') + fila.linea.toString());
    }
}

TEST(ListSentences, EveryOptionHasItsSentenceAndNoneLeavesAnEmptyLine)
{
    for (const FilaOpcion& fila : kOpciones) {
        CasoDePrueba piso;
        RellenarPiso(piso);
        EscribirLibres(piso);
        piso.ventana.opciones(fila.grupo).Quitar();
        piso.Elegir(fila.grupo, fila.opcion);
        const QStringList lineas = piso.trasTitulo(fila.titulo);
        ASSERT_FALSE(lineas.isEmpty()) << fila.titulo.toString().toStdString();
        EXPECT_EQ(lineas.first(), QString(14, u' ') + fila.linea.toString());
    }
}

TEST(ListSentences, EveryFinishIsNamedInItsSentence)
{
    for (const FilaAcabado& fila : kAcabados) {
        CasoDePrueba piso;
        RellenarPiso(piso);
        EscribirLibres(piso);
        piso.Elegir(fila.grupo, fila.opcion);
        EXPECT_TRUE(piso.lineas().join(u'\n').contains(fila.acabado))
            << fila.acabado.toString().toStdString();
    }
}

TEST(ListSentences, HallAndStaircaseHaveTheirWordsForEachLevelOfFinish)
{
    struct Fila
    {
        QStringView zaguan, fraseZaguan, escalera, fraseEscalera;
    };
    for (const Fila& fila :
         {Fila{u"Bien acabado", u"con buenos acabados", u"Bien acabada",
               u"con materiales actuales de buena calidad"},
          Fila{u"Calidad sencilla", u"con acabados de calidades sencillas", u"Calidad sencilla",
               u"acabada con materiales de calidad sencilla"},
          Fila{u"Anticuado", u"con materiales actualmente en desuso", u"Anticuada", u"de aspecto anticuado"},
          Fila{u"Con LUJO", u"con lujo", u"De Mármol", u"de mármol"}}) {
        CasoDePrueba piso;
        RellenarPiso(piso);
        piso.Escribir({{u"ComboZaguan1", u"Amplio"},
                       {u"ComboZaguan2", fila.zaguan},
                       {u"ComboEscalera1", u"Estrecha"},
                       {u"ComboEscalera2", fila.escalera}});
        const QStringList lineas = piso.lineas();
        const auto zaguan =
            lineas.indexOf(QString(14, u' ') + u"El zaguán de entrada puede ser calificado como amplio y "_s +
                           fila.fraseZaguan.toString() + u'.');
        ASSERT_GE(zaguan, 0);
        EXPECT_EQ(lineas[zaguan + 1], QString(14, u' ') +
                                          u"La escalera de acceso a las viviendas es estrecha y "_s +
                                          fila.fraseEscalera.toString() + u'.');
        EXPECT_EQ(lineas[zaguan + 2], QString());
    }
}

} // namespace valmerix
