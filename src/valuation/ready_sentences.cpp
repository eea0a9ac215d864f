#include "valuation/ready_sentences.h"

#include "common/number_reading.h"
#include "common/number_words.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr Currency kUno = Currency::deDiezmilesimas(10000);

/// A sentence by its count: none, one, or with the words between two pieces.
struct FrasesDeCuenta
{
    QStringView ninguno;
    QString uno;
    QString antes;
    QString despues;
};

QString Componer(Currency cuenta, const FrasesDeCuenta& frases, QString (*palabras)(Currency))
{
    if (cuenta.esCero())
        return frases.ninguno.toString();
    return cuenta == kUno ? frases.uno : frases.antes + palabras(cuenta) + frases.despues;
}

QString PalabrasMasculino(Currency cuenta)
{
    return CorrigeUna(EnLetrasFemenino(cuenta));
}

} // namespace

QString FraseAntiguedad(QStringView años)
{
    return Componer(LeerMoneda(años), {u"De nueva planta.", u"Solo tiene un año."_s, u"Tiene "_s, u"años."_s},
                    PalabrasMasculino);
}

QString FrasePlantasBloque(QStringView plantas)
{
    return Componer(LeerMoneda(plantas), {u"", u"una planta alta con "_s, {}, u"plantas altas con "_s},
                    EnLetrasFemenino);
}

QString FrasePlantasCasa(QStringView plantas)
{
    return Componer(LeerMoneda(plantas), {u"", u" y una planta alta"_s, u" y "_s, u"plantas altas"_s},
                    EnLetrasFemenino);
}

QString FraseViviendasPlanta(QStringView viviendas)
{
    return Componer(LeerMoneda(viviendas),
                    {u"", u"una vivienda por planta."_s, {}, u"viviendas por planta."_s}, EnLetrasFemenino);
}

QString FraseAscensores(QStringView ascensores)
{
    return Componer(
        LeerMoneda(ascensores),
        {u"Carece de ascensor.", u"Solo cuenta con un ascensor."_s, u"Cuenta con "_s, u"ascensores."_s},
        EnLetrasFemenino);
}

QString FraseSotanos(QStringView sotanos, const QString& uso, OrigenSotanos origen)
{
    const QString destino = uso.toLower() + u'.';
    // A change of the use has always left two blanks before "plantas".
    const QString plantas = origen == OrigenSotanos::Uso ? u" plantas bajo rasante, destinadas a "_s
                                                         : u"plantas bajo rasante, destinadas a "_s;
    return Componer(LeerMoneda(sotanos),
                    {u"", u" Existe además una planta bajo rasante destinada a "_s + destino,
                     u" Además hay otras "_s, plantas + destino},
                    EnLetrasFemenino);
}

QString FraseUrbanisticaConforme(const QString& municipio)
{
    return u"Cumple toda la normativa urbanística existente en "_s + municipio + u'.';
}

} // namespace valmerix
