#include "report/markup.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kTitulosFijos[] = {u"SOLICITANTE:",           u"1.  IDENTIFICACION:",
                                         u"1.1. Tipo de inmueble:", u"1.2. Municipio:",
                                         u"1.3. Ubicación:",        u"1.4. Datos registrales:",
                                         u"2.  FINALIDAD:",         u"2.1. Finalidad de la tasación:"};

constexpr QStringView kTitulo = u"INFORME DE TASACION";

void AñadirFijos(QStringList& negritas, const QString& total)
{
    for (const QStringView titulo : kTitulosFijos) {
        negritas.append(titulo.toString());
    }
    negritas.append(total);
    negritas.append(kTitulo.toString());
}

} // namespace

void Titulos(TextoEnriquecido& texto, const QString& titulo)
{
    if (texto.Find(titulo) >= 0) {
        texto.SelBold();
        texto.setSelLength(0);
    }
}

void AlaDcha(TextoEnriquecido& texto, const QString& titulo)
{
    if (texto.Find(titulo) >= 0) {
        texto.SelAlignment(Alineacion::Derecha);
        texto.setSelLength(0);
    }
}

void Negrita(TextoEnriquecido& texto, InformeRedactado& informe, const QString& Abr, BarraProgreso& progreso)
{
    const CadenasNumericas& cadenas = informe.cadenas;
    const QString total = u"IMPORTE TOTAL DE TASACION:        "_s + cadenas.TxtTotal + u' ' + Abr;
    texto.setRedraw(false);
    // The printed line says "inmueble"; finding is blind to case, and both stay as they are.
    AlaDcha(texto, u"Valor del Inmueble (Vt)  =        "_s + cadenas.TxtVt + u' ' + Abr);
    AlaDcha(texto, cadenas.LineaGaraje);
    AlaDcha(texto, cadenas.LineaTrastero);
    AlaDcha(texto, cadenas.LineaOtroAnexo);
    AñadirFijos(informe.oColNegrita, total);
    const auto cuantas = informe.oColNegrita.size();
    for (qsizetype i = 0; i < cuantas; ++i) {
        Titulos(texto, informe.oColNegrita[i]);
        progreso.setValue(static_cast<double>(i + 1) * 100.0 / static_cast<double>(cuantas));
    }
    AlaDcha(texto, total);
    if (texto.Find(kTitulo.toString()) >= 0) {
        texto.SelAlignment(Alineacion::Centro);
        texto.setSelLength(0);
    }
    texto.setRedraw(true);
}

} // namespace valmerix
