// A Qt plugin of another make, under the extension's name.

#include <QObject>

class ModuloAjeno : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "VMXtension.clsVMXtension/0")
};

#include "other_interface.moc"
