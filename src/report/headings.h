#pragma once

#include "report/report_case.h"

#include <QStringList>

namespace valmerix {

/// Kinds as far as headings tell them apart, one bit each.
enum class Clase : unsigned {
    Piso = 1,
    Apto = 2,
    Casa = 4,
    Nave = 8,
    Loca = 16,
    Solar = 32, ///< land, urban plot
    Finca = 64, ///< land, rural estate
};

/// Numbers the headings of one report and decides which are printed.
class Titulador
{
public:
    Titulador(const CasoInforme& caso, Clase clase);

    /// The numbered heading, empty when its rule fails (then no counter moves and the section is silent).
    /// `capitulo` 0 asks for a chapter; otherwise `apartado` 0 for the second level, not 0 for the third.
    /// Either way the result goes into oColNegrita. Throws std::out_of_range for an unknown heading.
    QString GetNumber(const QString& titulo, int capitulo, int apartado);

    int Capitulo = 0;
    int Apartado = 0;
    int Punto = 0;
    QStringList oColNegrita; ///< texts to be set in bold, in order

private:
    bool Cumple(QStringView titulo) const;
    /// The heading as it is printed, empty when its rule fails.
    QString TituloImpreso(const QString& titulo) const;
    QString CerramientosYCubierta() const;

    const CasoInforme& caso_;
    Clase clase_;
};

} // namespace valmerix
