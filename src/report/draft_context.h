#pragma once

#include "report/enumerations.h"
#include "report/headings.h"
#include "report/list_sentences.h"
#include "report/number_strings.h"
#include "report/report_text.h"

namespace valmerix {

struct Redaccion;

/// What the report of one kind has of its own.
struct PlanInforme
{
    QStringView tipo; ///< kind word
    Clase clase;
    QStringView inmueble;      ///< sentence of "Tipo de inmueble"
    FrasesLista delimitacion;  ///< by Combo4
    FrasesLista significacion; ///< by Combo5
    FrasesLista tipologia;     ///< by ComboTipol
    std::span<const Grupo> grupos;
    void (*DescripcionEdificio)(Redaccion&); ///< text of "Descripción y usos"
    bool serviciosIndividuales;
    int OpcionesPrograma::*edad; ///< greatest age of the kind
    QStringView ambitoEdad;      ///< whom that age is estimated for
};

/// The plan of a kind word. Throws std::out_of_range for a kind without one.
const PlanInforme& PlanDe(QStringView tipo);

/// A report while it is being drafted.
struct Redaccion
{
    explicit Redaccion(const CasoInforme& elCaso);

    const CasoInforme& caso;
    const PlanInforme& plan;
    CadenasNumericas cadenas;
    QString ResumenTestigos;
    Titulador titulos;
    TextoInforme texto;
    FrasesEnumeradas frases;
    bool hayEdificio = false; ///< the building chapter is printed

    /// Print the heading when its rule holds; the result is the heading, empty when the section is silent.
    QString Capitulo(const QString& titulo); ///< L0 and a blank line
    QString Apartado(const QString& titulo); ///< L1
    QString Punto(const QString& titulo);    ///< L2

    void L0(QStringView linea) { texto.Linea(Nivel::L0, linea); }
    void L1(QStringView linea) { texto.Linea(Nivel::L1, linea); }
    void L2(QStringView linea) { texto.Linea(Nivel::L2, linea); }
    void L3(QStringView linea) { texto.Linea(Nivel::L3, linea); }
    void NL(int cuantas = 1) { texto.NL(cuantas); }

    bool sobreUtil() const { return caso.ventana.opciones(u"Sup").Value(0); } ///< rests on useful surface
    const QString& Abr() const { return caso.opciones.MonedaAbreviatura; }
};

} // namespace valmerix
