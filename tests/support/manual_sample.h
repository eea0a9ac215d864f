#pragma once

#include "shell/manual.h"

namespace valmerix {

/// Two pages, three sections, one picture.
inline Manual ManualDePrueba()
{
    const QByteArray punto = QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==");
    PaginaManual inicio{
        QStringLiteral("01-inicio"),
        QStringLiteral("Primeros pasos"),
        QStringLiteral("<h1>Primeros pasos</h1><p>La tasación se abre desde el árbol.</p>"
                       "<p><a href=\"02-calculo.html#anexos\">Los anexos</a></p>"
                       "<img src=\"img/punto.png\">"),
        {QStringLiteral("Form1")},
        {{QStringLiteral("Primeros pasos"), {}, QStringLiteral("La tasación se abre desde el árbol.")}}};
    PaginaManual calculo{
        QStringLiteral("02-calculo"),
        QStringLiteral("El cálculo"),
        QStringLiteral(
            "<h1>El cálculo</h1><p>El valor de la tasación.</p><h2><a name=\"anexos\"></a>Anexos</h2>"
            "<p>El trastero y el garaje. Un trastero más. Año tras año.</p>"),
        {QStringLiteral("Piso"), QStringLiteral("Casa")},
        {{QStringLiteral("El cálculo"), {}, QStringLiteral("El valor de la tasación.")},
         {QStringLiteral("Anexos"), QStringLiteral("anexos"),
          QStringLiteral("El trastero y el garaje. Un trastero más. Año tras año.")}}};
    return Manual({std::move(inicio), std::move(calculo)}, {{QStringLiteral("img/punto.png"), punto}});
}

} // namespace valmerix
