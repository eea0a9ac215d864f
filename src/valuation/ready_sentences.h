#pragma once

#include <QString>
#include <QStringView>

namespace valmerix {

/// Sentences that the report prints as they stand, for the text of their field; empty counts as 0.
/// All throw ErrorDesbordamiento for a number beyond money.
QString FraseAntiguedad(QStringView años);
QString FrasePlantasBloque(QStringView plantas);
QString FrasePlantasCasa(QStringView plantas);
QString FraseViviendasPlanta(QStringView viviendas);
QString FraseAscensores(QStringView ascensores);

/// Which field has just been changed: the two have never written the same blanks.
enum class OrigenSotanos { Numero, Uso };
QString FraseSotanos(QStringView sotanos, const QString& uso, OrigenSotanos origen);

/// The planning is met.
QString FraseUrbanisticaConforme(const QString& municipio);

} // namespace valmerix
