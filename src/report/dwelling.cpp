#include "report/dwelling.h"

#include "report/building_tables.h"
#include "report/draft_context.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSuelos = 13;
constexpr int kCarpInt = 14;
constexpr int kCarpExt = 15;
constexpr int kMobK = 16;
constexpr int kInterior = 17;

// "Apto" does not occur in it: an apartment never gets the sentence on kitchen furniture, as always.
constexpr QStringView kConMobiliario = u"PisoApartamentoCasa";

void Carpinteria(Redaccion& r)
{
    const bool interior = r.caso.apartado(kCarpInt);
    const bool exterior = r.caso.apartado(kCarpExt);
    if (!interior && !exterior) {
        return;
    }
    QString frase = interior ? u"La carpintería interior es de "_s +
                                   FraseDeOpcion(r.caso, u"CarpInt", kCarpinteriaInterior)
                             : u"La carpintería"_s;
    if (exterior) {
        frase += (interior ? u" y la exterior de "_s : u" exterior es de "_s) +
                 FraseDeOpcion(r.caso, u"CarpExt", kCarpinteriaExterior);
    }
    r.L1(frase + u'.');
    r.NL();
}

void Acabados(Redaccion& r)
{
    const CasoInforme& c = r.caso;
    Carpinteria(r);
    if (kConMobiliario.contains(c.tipo) && c.apartado(kMobK)) {
        r.L1(u"El mobiliario de cocina es de "_s + FraseDeOpcion(c, u"MobK", kMobiliario) + u'.');
        r.NL();
    }
    if (c.apartado(kSuelos)) {
        r.L1(u"En cuanto al revestimiento de suelos, "_s + r.frases.FrasePavimentos);
        r.NL();
    }
    if (c.apartado(kInterior)) {
        r.L1(u"Para terminar con los acabados interiores, sobre los paramentos verticales interiores se ha "
             u"aplicado "_s +
             FraseDeOpcion(c, u"Interior", kParedes) + u'.');
        r.NL();
    }
}

void Superficies(Redaccion& r)
{
    if (r.Apartado(u"Superficies"_s).isEmpty()) {
        return;
    }
    r.L1(u"Distinguimos entre superficie útil y construida, incluyendo esta última, si procede, la parte "
         u"proporcional de los elementos comunes del edificio.");
    r.NL();
    r.L2(u"Superficie útil:  "_s + r.cadenas.TxtUtil + u" m²"_s);
    r.NL();
    r.L2(u"Superficie construida:  "_s + r.cadenas.TxtConstruida + u" m²"_s);
    r.NL();
}

void EstadoYCalidad(Redaccion& r)
{
    if (!r.Apartado(u"Situación actual (inmueble)"_s).isEmpty()) {
        const QString conservacion = FraseDeOpcion(r.caso, u"Conserv", kConservaciones);
        r.L1(conservacion.isEmpty() ? QString() : QString(kAperturaConservacion % conservacion));
        r.NL();
    }
    if (!r.Apartado(u"Evaluación de los materiales empleados"_s).isEmpty()) {
        r.L1(u"Como conclusión obtenida tras el estudio de los diferentes elementos constructivos del "
             u"inmueble, puede afirmarse que los materiales empleados son "_s +
             FraseDeOpcion(r.caso, u"Calidad", kCalidades));
        r.NL();
    }
}

void CapituloDeUnTexto(Redaccion& r, const QString& titulo, const QString& texto)
{
    if (!r.Capitulo(titulo).isEmpty()) {
        r.L1(texto);
        r.NL(3);
    }
}

} // namespace

void CaracteristicasDeLaVivienda(Redaccion& r)
{
    if (!r.Capitulo(u"CARACTERISTICAS DE LA VIVIENDA"_s).isEmpty()) {
        if (!r.Apartado(u"Tipología de la vivienda"_s).isEmpty()) {
            r.L1(r.frases.FraseDistribucion);
            r.NL();
        }
        Acabados(r);
        Superficies(r);
        EstadoYCalidad(r);
    }
    r.NL(2);
}

void SituacionDocumentacionObservaciones(Redaccion& r)
{
    CapituloDeUnTexto(r, u"SITUACION URBANISTICA"_s, r.caso.frases.FraseUrbanistica);
    CapituloDeUnTexto(r, u"DOCUMENTACION"_s, r.frases.FraseDocumentacion);
    CapituloDeUnTexto(r, u"OBSERVACIONES"_s, r.caso.texto(u"txtObservaciones"));
}

} // namespace valmerix
