#include "ui/extension_loader.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

ExtensionCargada Inservible(const QString& ruta, const QString& motivo)
{
    return {nullptr, u"El fichero «%1» no se puede usar: %2."_s.arg(ruta, motivo)};
}

} // namespace

ExtensionCargada CargadorQt::Crear(const QString& carpetaPrograma)
{
    const QString ruta = carpetaPrograma + u"/VMXtension.so"_s;
    if (!QFileInfo::exists(ruta))
        return {};
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
