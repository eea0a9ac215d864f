// A module as somebody else would write it: it knows common/extension.h and Qt Core, and links nothing of
// ours.

#include "common/extension.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

class ExtensionDeMuestra : public QObject, public valmerix::clsVMXtension
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID clsVMXtension_iid)
    Q_INTERFACES(valmerix::clsVMXtension)

public:
    void Iniciar(valmerix::VentanaExtension& Form2, valmerix::VentanaExtension*& Visor,
                 valmerix::VentanaExtension*& FormularioActual, valmerix::VentanaExtension*& Opciones,
                 const QString& carpetaPrograma) override
    {
        const QString situacion = FormularioActual->Leer(u"BoxSit"_s).toString();
        if (situacion.isEmpty())
            throw std::runtime_error("falta la situación");
        FormularioActual->Escribir(u"BoxMun"_s, u"Alcoi"_s);
        titulo_ = u"CERTIFICADO DE "_s + Form2.nombre();
        Visor->Escribir(u"Texto"_s, titulo_ + u'\n' + situacion + u" ("_s +
                                        Opciones->Leer(u"Text6"_s).toString() + u")\n"_s + carpetaPrograma +
                                        u'\n');
        Visor->Mostrar();
        Opciones = nullptr;
    }
    QStringList oColNegrita() const override { return {titulo_, u"texto literal"_s}; }

private:
    QString titulo_;
};

#include "sample_extension.moc"
