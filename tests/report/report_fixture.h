#pragma once

#include "report/report_case.h"

#include <QStringList>
#include <initializer_list>
#include <utility>

namespace valmerix {

/// A case window with every control that the report of a dwelling reads, and the state beside it. All boxes
/// are off, all fields empty, all figures 0; money has two decimals and is in euros.
class CasoDePrueba
{
public:
    explicit CasoDePrueba(const QString& tipo = QStringLiteral("Piso"));
    CasoDePrueba(const CasoDePrueba&) = delete;
    CasoDePrueba& operator=(const CasoDePrueba&) = delete;

    Ventana ventana;
    EstadoCalculo calculo;
    FrasesInforme frases;
    OpcionesPrograma opciones;
    EstadoCompartido compartido;
    CasoInforme caso;

    void Escribir(std::initializer_list<std::pair<QStringView, QStringView>> textos);
    void Marcar(std::initializer_list<QStringView> casillas, int valor = 1);
    void Elegir(QStringView grupo, int indice) { ventana.opciones(grupo).Elegir(indice); }
    void Apartados(std::initializer_list<int> indices, int valor = 1);
    void Puntos(std::initializer_list<int> indices, int valor = 1);
    /// The whole profile on or off.
    void Perfil(bool encendido);

    /// The report as lines without their CR LF; the text must end in one.
    QStringList lineas() const;
    /// The lines that a heading opens, up to the next blank line.
    QStringList trasTitulo(QStringView titulo) const;
};

/// A flat filled to the last field, all of its profile on.
void RellenarPiso(CasoDePrueba& piso);

inline constexpr int kApartadosDePrueba = 23;
inline constexpr int kPuntosDePrueba = 16;

} // namespace valmerix
