#include "shell/daily_backup.h"

#include "store/backup.h"
#include "store/query.h"

#include <QDir>
#include <QFileInfo>
#include <map>
#include <utility>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDias = 7;
constexpr int kMeses = 12;
constexpr QStringView kPrefijo = u"valmerix-";
constexpr QStringView kSufijo = u".mdb";

QDate DiaDe(const QString& nombre)
{
    if (!nombre.startsWith(kPrefijo) || !nombre.endsWith(kSufijo))
        return {};
    return QDate::fromString(nombre.chopped(kSufijo.size()).sliced(kPrefijo.size()), Qt::ISODate);
}

// A copying that was killed leaves its provisional file behind, and the engine's journal beside it.
void BarrerRestos(const QString& carpeta)
{
    QDir dir(carpeta);
    for (const QString& resto : dir.entryList(
             {kPrefijo.toString() + u'*' + kSufijo.toString() + kCopiaProvisional.toString() + u'*'},
             QDir::Files))
        dir.remove(resto);
}

} // namespace

CopiaDiaria::CopiaDiaria(const EstadoCompartido& compartido, Dialogos& dialogos, const Reloj& reloj)
    : compartido_(compartido)
    , dialogos_(dialogos)
    , reloj_(reloj)
{
}

QString CopiaDiaria::carpeta(const QString& rutaBaseDatos)
{
    return QFileInfo(rutaBaseDatos).path() + u"/copias"_s;
}

QString CopiaDiaria::nombre(QDate dia)
{
    return kPrefijo.toString() + dia.toString(Qt::ISODate) + kSufijo.toString();
}

void CopiaDiaria::AntesDeEscribir()
{
    const QDate hoy = reloj_.hoy();
    if (ultima_ == hoy)
        return;
    const QString copias = carpeta(compartido_.RutaBaseDatos);
    const QString destino = copias + u'/' + nombre(hoy);
    BarrerRestos(copias);
    try {
        if (!QFileInfo::exists(destino))
            CopiarBaseDatos(compartido_.RutaBaseDatos, destino);
        ultima_ = hoy;
        Retirar(copias, hoy);
    } catch (const ErrorAlmacen& fallo) {
        if (!std::exchange(avisado_, true)) {
            dialogos_.Mensaje(u"No se ha podido hacer la copia de seguridad de hoy. Se sigue trabajando sin "
                              u"ella.\n\n"_s +
                                  fallo.mensaje(),
                              u"Aviso"_s, IconoMensaje::Aviso);
        }
    }
}

QStringList CopiaDiaria::Sobrantes(const QStringList& nombres, QDate hoy)
{
    std::map<QDate, QString> copias;
    for (const QString& nombre : nombres) {
        if (const QDate dia = DiaDe(nombre); dia.isValid())
            copias.emplace(dia, nombre);
    }
    QStringList sobrantes;
    std::pair<int, int> mes;
    for (const auto& [dia, nombre] : copias) {
        const bool primeraDelMes = std::exchange(mes, {dia.year(), dia.month()}) != mes;
        const bool reciente = dia > hoy.addDays(-kDias);
        const bool delAño = dia > hoy.addMonths(-kMeses);
        if (!reciente && !(primeraDelMes && delAño))
            sobrantes << nombre;
    }
    return sobrantes;
}

void CopiaDiaria::Retirar(const QString& carpeta, QDate hoy)
{
    QDir dir(carpeta);
    for (const QString& nombre : Sobrantes(dir.entryList(QDir::Files), hoy))
        dir.remove(nombre);
}

} // namespace valmerix
