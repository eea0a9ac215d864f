#pragma once

// What an extension module and the program know of each other. A module is a Qt plugin, "VMXtension.so" in
// the program's folder, whose root object is a `clsVMXtension`; it needs this header and Qt Core, nothing
// else.

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>

namespace valmerix {

/// A window of the program: its controls by the names that they have in it ("BoxSit", "Botonera(5)").
/// A window that has meanwhile closed has no control any more.
class VentanaExtension
{
public:
    virtual ~VentanaExtension() = default;

    virtual QString nombre() const = 0;
    virtual QStringList controles() const = 0;
    /// What the control holds: the text of a field, list or report; 0 or 1 of a box; the index of the option
    /// that is set, -1 when none is; the page in front; otherwise its caption. Invalid for an unknown name.
    virtual QVariant Leer(const QString& control) const = 0;
    /// Sets the same, with all that follows from it. False for an unknown name or one that cannot be written.
    virtual bool Escribir(const QString& control, const QVariant& valor) = 0;
    /// Runs a button; false when there is none of that name or it is disabled.
    virtual bool Pulsar(const QString& boton) = 0;
    virtual void Mostrar() = 0;
};

/// The component "VMXtension.clsVMXtension".
class clsVMXtension
{
public:
    virtual ~clsVMXtension() = default;

    /// Does the extension's work: the toolbar; the viewer, the case window and the configuration, which are
    /// taken back as it leaves them (a null viewer or configuration is dropped); the program's folder. The
    /// windows live until it returns. It may throw std::exception.
    virtual void Iniciar(VentanaExtension& Form2, VentanaExtension*& Visor,
                         VentanaExtension*& FormularioActual, VentanaExtension*& Opciones,
                         const QString& carpetaPrograma) = 0;
    /// The texts to be set in bold in what the viewer prints. Asked for once `Iniciar` has returned.
    virtual QStringList oColNegrita() const = 0;
};

/// What came of looking for a module.
struct ExtensionCargada
{
    std::unique_ptr<clsVMXtension> componente; ///< null when there is none
    QString motivo; ///< why a module that is there cannot be used; empty when there is none
};

class CargadorExtensiones
{
public:
    virtual ~CargadorExtensiones() = default;
    virtual ExtensionCargada Crear(const QString& carpetaPrograma) = 0;
};

} // namespace valmerix

#define clsVMXtension_iid "VMXtension.clsVMXtension/1"
Q_DECLARE_INTERFACE(valmerix::clsVMXtension, clsVMXtension_iid)
