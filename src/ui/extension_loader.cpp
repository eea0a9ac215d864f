#include "ui/extension_loader.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>
#include <QtEndian>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

ExtensionCargada Inservible(const QString& ruta, const QString& motivo)
{
    return {nullptr, u"El fichero «%1» no se puede usar: %2."_s.arg(ruta, motivo)};
}

// A library ends with the table of its sections. One that was cut short has lost it; mapped into memory all
// the same, it would end the program with a bus error.
bool EstaEntera(const QString& ruta)
{
    constexpr qsizetype kCabecera = 64; // of a 64-bit library
    constexpr qsizetype kTabla = 40;    // in it: where the table begins, 8 bytes
    constexpr qsizetype kEntrada = 58;  // size of one of its entries, 2 bytes
    constexpr qsizetype kEntradas = 60; // how many there are, 2 bytes
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        return false;
    const QByteArray cabecera = fichero.read(kCabecera);
    if (cabecera.size() < kCabecera || !cabecera.startsWith("\177ELF"))
        return false;
    const auto tabla = qFromLittleEndian<quint64>(cabecera.constData() + kTabla);
    const quint64 largo = quint64{qFromLittleEndian<quint16>(cabecera.constData() + kEntrada)} *
                          qFromLittleEndian<quint16>(cabecera.constData() + kEntradas);
    const auto total = static_cast<quint64>(fichero.size());
    return largo > 0 && tabla <= total && largo <= total - tabla;
}

} // namespace

ExtensionCargada CargadorQt::Crear(const QString& carpetaPrograma)
{
    const QString ruta = carpetaPrograma + u"/VMXtension.so"_s;
    if (!QFileInfo::exists(ruta))
        return {};
    if (!EstaEntera(ruta))
        return Inservible(ruta, u"está dañado o no es un módulo de extensión"_s);
    QPluginLoader cargador(ruta);
    cargador.setLoadHints(QLibrary::PreventUnloadHint);
    // The words about itself that a plugin carries are read before any of its code runs.
    const QJsonObject datos = cargador.metaData();
    if (datos.isEmpty())
        return Inservible(ruta, u"está dañado o no es un módulo de extensión"_s);
    if (datos.value(u"IID"_s).toString() != QStringLiteral(clsVMXtension_iid))
        return Inservible(ruta, u"es un módulo para otro programa o para otra versión de Valmerix"_s);
    QObject* objeto = cargador.instance();
    if (!objeto)
        return Inservible(ruta, cargador.errorString());
    auto* componente = qobject_cast<clsVMXtension*>(objeto);
    if (!componente) {
        delete objeto;
        return Inservible(ruta, u"no contiene el componente VMXtension.clsVMXtension"_s);
    }
    return {std::unique_ptr<clsVMXtension>(componente), {}};
}

} // namespace valmerix
