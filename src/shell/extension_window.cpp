#include "shell/extension_window.h"

#include "controls/option_group.h"
#include "controls/rich_text.h"
#include "controls/text_field.h"

#include <array>

namespace valmerix {

namespace {

/// How one kind of control is read and written.
struct Acceso
{
    QVariant (*leer)(const Control&); ///< invalid for a control of another kind
    bool (*escribir)(Control&, const QVariant&);
};

template <class T, auto leer, auto escribir>
constexpr Acceso De()
{
    return {[](const Control& control) {
                const auto* uno = qobject_cast<const T*>(&control);
                return uno ? QVariant((uno->*leer)()) : QVariant();
            },
            [](Control& control, const QVariant& valor) {
                auto* uno = qobject_cast<T*>(&control);
                if (uno)
                    escribir(*uno, valor);
                return uno != nullptr;
            }};
}

constexpr std::array kAccesos = {
    De<CampoTexto, &CampoTexto::Text, [](CampoTexto& c, const QVariant& v) { c.setText(v.toString()); }>(),
    De<TextoEnriquecido, &TextoEnriquecido::Text,
       [](TextoEnriquecido& c, const QVariant& v) { c.setText(v.toString()); }>(),
    De<Casilla, &Casilla::Value, [](Casilla& c, const QVariant& v) { c.setValue(v.toInt()); }>(),
    De<GrupoOpciones, &GrupoOpciones::elegida,
       [](GrupoOpciones& c, const QVariant& v) { c.Elegir(v.toInt()); }>(),
    De<Solapas, &Solapas::Tab, [](Solapas& c, const QVariant& v) { c.setTab(v.toInt()); }>(),
    De<Control, &Control::Caption, [](Control& c, const QVariant& v) { c.setCaption(v.toString()); }>(),
};

} // namespace

QString VentanaParaExtension::nombre() const
{
    return ventana_ ? ventana_->nombre() : QString();
}

QStringList VentanaParaExtension::controles() const
{
    QStringList nombres;
    if (ventana_ && ventana_->abierta()) {
        for (const auto& control : ventana_->controles())
            nombres << control->nombre();
    }
    return nombres;
}

Control* VentanaParaExtension::buscar(const QString& control) const
{
    return ventana_ && ventana_->abierta() ? ventana_->buscar(control) : nullptr;
}

QVariant VentanaParaExtension::Leer(const QString& control) const
{
    const Control* uno = buscar(control);
    for (const Acceso& acceso : kAccesos) {
        if (QVariant valor = uno ? acceso.leer(*uno) : QVariant(); valor.isValid())
            return valor;
    }
    return {};
}

bool VentanaParaExtension::Escribir(const QString& control, const QVariant& valor)
{
    Control* uno = buscar(control);
    for (const Acceso& acceso : kAccesos) {
        if (uno && acceso.escribir(*uno, valor))
            return true;
    }
    return false;
}

bool VentanaParaExtension::Pulsar(const QString& boton)
{
    auto* uno = qobject_cast<Boton*>(buscar(boton));
    if (!uno || !uno->Enabled())
        return false;
    uno->Pulsar();
    return true;
}

void VentanaParaExtension::Mostrar()
{
    if (ventana_ && ventana_->abierta())
        pantalla_.Mostrar(*ventana_);
}

} // namespace valmerix
