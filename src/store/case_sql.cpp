#include "store/case_sql.h"

#include "common/number_reading.h"
#include "store/query.h"

#include <QStringBuilder>
#include <algorithm>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

constexpr std::array<QStringView, 3> kFinales{u"HabitantesHecho", u"Pavimentos", u"ValorFinal"};
constexpr QStringView kNotas = u"Observaciones";

QString Cifras(const Ventana& ventana, QStringView controles)
{
    QString cifras;
    for (const QStringView nombre : controles.split(u'|'))
        cifras += QString::number(ventana.casilla(nombre).Value());
    return cifras;
}

int OpcionSuelta(const Ventana& ventana, const CampoCaso& campo)
{
    int i = 0;
    for (const QStringView nombre : campo.controles.split(u'|')) {
        if (ventana.marcada(nombre))
            return i;
        ++i;
    }
    return campo.porDefecto;
}

QString Valor(const Ventana& ventana, const CampoCaso& campo, const clsConsulta& consulta)
{
    const QStringView control = campo.controles;
    switch (campo.forma) {
    case FormaCampo::Texto:
        break;
    case FormaCampo::TextoConBlanco:
        return u'\'' % ventana.texto(control) % u" '";
    case FormaCampo::SinComillas:
        return ventana.texto(control);
    case FormaCampo::Fecha:
        return consulta.sInicioFecha() % ventana.texto(control) % consulta.sFinalFecha();
    case FormaCampo::Numero:
    case FormaCampo::Habitantes:
        return NumeroSQL(ventana.texto(control), campo.decimalesEscritura == 0 ? u"0" : u"0.00",
                         campo.decimalesEscritura);
    case FormaCampo::Casilla:
        return QString::number(ventana.casilla(control).Value());
    case FormaCampo::Opcion:
        return QString::number(BuscaOpcion(ventana.opciones(control)));
    case FormaCampo::OpcionesSueltas:
        return QString::number(OpcionSuelta(ventana, campo));
    case FormaCampo::Casillas:
        return u'\'' % Cifras(ventana, control) % u'\'';
    }
    return u'\'' % ventana.texto(control) % u'\'';
}

} // namespace

QStringList ActualizacionesDeCaso(const Ventana& ventana, Tipos tipo, QStringView tabla,
                                  const QString& clausula, const clsConsulta& consulta)
{
    const QString comienzo = u"UPDATE " % tabla % u" SET ";
    QStringList sentencias;
    QStringList campos;
    for (const CampoCaso& campo : CamposDeCaso()) {
        if (!campo.es(tipo) || !campo.seEscribe() || campo.columna == kNotas)
            continue;
        campos << campo.columna % u" = " % Valor(ventana, campo, consulta);
        if (std::ranges::find(kFinales, campo.columna) != kFinales.end()) {
            sentencias << comienzo % campos.join(u", "_s) % clausula;
            campos.clear();
        }
    }
    sentencias << comienzo % kNotas % u" = '" % ventana.texto(u"txtObservaciones").trimmed() % u"' " %
                      clausula;
    return sentencias;
}

} // namespace valmerix
