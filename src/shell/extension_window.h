#pragma once

#include "common/extension.h"
#include "controls/window.h"

#include <QPointer>

namespace valmerix {

/// A window as an extension module reaches it.
class VentanaParaExtension : public VentanaExtension
{
public:
    VentanaParaExtension(Ventana& ventana, Pantalla& pantalla)
        : ventana_(&ventana)
        , pantalla_(pantalla)
    {
    }

    QString nombre() const override;
    QStringList controles() const override;
    QVariant Leer(const QString& control) const override;
    bool Escribir(const QString& control, const QVariant& valor) override;
    bool Pulsar(const QString& boton) override;
    void Mostrar() override;

private:
    Control* buscar(const QString& control) const;

    QPointer<Ventana> ventana_;
    Pantalla& pantalla_;
};

} // namespace valmerix
