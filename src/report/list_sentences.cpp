#include "report/list_sentences.h"

#include <QStringBuilder>
#include <algorithm>

namespace valmerix {

QString FraseDeLista(const FrasesLista& frases, const QString& texto)
{
    const auto fila = std::find_if(frases.filas.begin(), frases.filas.end(),
                                   [&](const FilaFrase& f) { return f.texto == texto; });
    QString frase = frases.apertura.toString();
    if (fila != frases.filas.end()) {
        return frase % fila->frase;
    }
    return frase % frases.aperturaOtro % texto.toLower() % frases.cierre;
}

QString FraseDeOpcion(const CasoInforme& caso, QStringView grupo, std::span<const FraseOpcion> frases)
{
    const int elegida = caso.ventana.opciones(grupo).elegida();
    if (elegida < 0 || elegida >= static_cast<int>(frases.size())) {
        return {};
    }
    const FraseOpcion& opcion = frases[static_cast<size_t>(elegida)];
    QString frase = opcion.frase.toString();
    if (!opcion.campo.isEmpty()) {
        frase += opcion.minusculas ? caso.minusculas(opcion.campo) : caso.texto(opcion.campo);
    }
    return frase % opcion.cierre;
}

} // namespace valmerix
