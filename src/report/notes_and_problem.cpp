#include "report/notes_and_problem.h"

#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// Sentences that speak of no problem: the editor starts empty instead.
constexpr QStringView kSinProblema[] = {u"Cumple toda la normativa", u"No existen mejoras"};

QString ProblemaActual(const QString& frase)
{
    const bool ninguno = std::any_of(std::begin(kSinProblema), std::end(kSinProblema),
                                     [&](QStringView principio) { return frase.startsWith(principio); });
    return ninguno ? QString() : frase;
}

/// SSCommand1 accepts, SSCommand2 leaves.
void AñadirBotones(Ventana& ventana)
{
    ventana.Añadir<Boton>(u"SSCommand1"_s).setCaption(u"Aceptar"_s);
    auto& cancelar = ventana.Añadir<Boton>(u"SSCommand2"_s);
    cancelar.setCaption(u"Cancelar"_s);
    QObject::connect(&cancelar, &Boton::Click, &ventana, &Ventana::Cerrar);
}

} // namespace

Observaciones::Observaciones(Ventana& caso)
    : Ventana(u"Observaciones"_s, u"Observaciones"_s)
{
    CampoTexto& original = caso.campo(u"txtObservaciones");
    auto& edicion = Añadir<CampoTexto>(u"txtEdicionObservaciones"_s);
    edicion.setCaption(u"Observaciones:"_s);
    edicion.setMultiLine(true);
    edicion.setMaxLength(original.MaxLength());
    edicion.setText(original.Text());
    AñadirBotones(*this);
    connect(&boton(u"SSCommand1"), &Boton::Click, this, [this, &original, &edicion] {
        original.setText(edicion.Text());
        Cerrar();
    });
}

Problema::Problema(FrasesInforme& frases)
    : Ventana(u"Problema"_s, u"Exposición del problema"_s)
{
    Añadir<Etiqueta>(u"Label1"_s).setCaption(u"Irregularidades o falta de adecuación urbanística:"_s);
    auto& problema = Añadir<CampoTexto>(u"BoxProblema"_s);
    problema.setMultiLine(true);
    problema.setText(ProblemaActual(frases.FraseUrbanistica));
    AñadirBotones(*this);
    connect(&boton(u"SSCommand1"), &Boton::Click, this, [this, &frases, &problema] {
        frases.FraseUrbanistica = problema.Text();
        Cerrar();
    });
}

} // namespace valmerix
