#include "report/environment.h"

#include "report/draft_context.h"
#include "report/environment_tables.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

void RasgosUrbanos(Redaccion& r)
{
    if (r.Apartado(u"Rasgos urbanos del entorno"_s).isEmpty()) {
        return;
    }
    r.L1(u"Dado que uno de los factores que condicionan el valor de un inmueble es el entorno próximo, "
         u"entendiendo como tal el área que resulte homogénea con el emplazamiento del edificio, hemos de "
         u"establecer qué rasgos específicos tiene.");
    r.NL();
    r.L1(u"Centraremos la caracterización del entorno en tres aspectos: Significación o tipo de edificación "
         u"predominante, infraestructura existente, y por último equipamiento y comunicaciones.");
}

void Equipamiento(Redaccion& r)
{
    if (r.Punto(u"Equipamiento"_s).isEmpty()) {
        return;
    }
    if (r.caso.apartado(5) && r.caso.apartado(6)) {
        r.L2(
            u"Distinguimos dos tipos de equipamientos: unos que denominaremos necesarios, por ser "
            u"fundamentales para el desarrollo de una población, y otros no necesarios o lúdicos, que aunque "
            u"contribuyen a dicho desarrollo, no son estrictamente imprescindibles.");
        r.NL();
    }
    r.L2(u"En cuanto a equipamientos necesarios, la zona "_s + r.frases.FraseEquipNecesarios);
    r.NL();
    r.L2(u"Respecto a equipamientos secundarios se observa que "_s + r.frases.FraseEquipLudicos);
    r.NL();
}

} // namespace

void DelimitacionDelEntorno(Redaccion& r)
{
    if (!r.Apartado(u"Delimitación del entorno"_s).isEmpty()) {
        r.L1(FraseDeLista(r.plan.delimitacion, r.caso.texto(u"Combo4")));
    }
}

void Actv(Redaccion& r)
{
    r.NL();
    if (!r.Apartado(u"Actividad dominante"_s).isEmpty()) {
        r.L1(FraseDeLista(kActividad, r.caso.texto(u"Combo1")));
    }
    if (!r.Apartado(u"Nivel de Renta"_s).isEmpty()) {
        r.L1(u"Dado que para la realización de este informe hemos estudiado los precios de inmuebles en la "
             u"zona, ello nos ha permitido conocer también el nivel de renta de los habitantes de dicho "
             u"entorno, que puede calificarse como "_s +
             r.caso.minusculas(u"Combo2") + u'.');
    }
    RasgosUrbanos(r);
}

void Significacion(Redaccion& r)
{
    if (!r.Punto(u"Significación"_s).isEmpty()) {
        r.L2(FraseDeLista(r.plan.significacion, r.caso.texto(u"Combo5")));
    }
}

void IECC(Redaccion& r)
{
    if (!r.Punto(u"Infraestructura"_s).isEmpty()) {
        r.L2(r.frases.FraseInfraestructuras);
        r.NL();
    }
    Equipamiento(r);
    if (!r.Punto(u"Comunicaciones"_s).isEmpty()) {
        r.L2(u"Sobre sus comunicaciones, diremos que "_s + r.frases.FraseComunicaciones);
        r.NL();
    }
    if (!r.Apartado(u"Consolidación"_s).isEmpty()) {
        r.L1(u"El nivel de consolidación del entorno es del "_s + r.caso.texto(u"BoxPorcen") + u" %."_s);
        r.NL();
    }
    r.NL(3);
}

} // namespace valmerix
