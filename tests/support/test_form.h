#pragma once

#include "support/fake_ports.h"
#include "support/qt_printers.h"

#include <initializer_list>
#include <utility>

namespace valmerix {

inline EntornoDePrueba& ConSuperficieConstruida(EntornoDePrueba& entorno)
{
    entorno.opciones.TipoSuperficie = QStringLiteral("Const");
    return entorno;
}

/// A case window as its start leaves it, without a database: built surface, everything in the report.
struct CasoDePrueba : EntornoDePrueba
{
    using Textos = std::initializer_list<std::pair<QStringView, QStringView>>;

    Formulario form;

    explicit CasoDePrueba(const DescripcionForma& descripcion, Textos textos = {})
        : form(descripcion, ConSuperficieConstruida(*this).servicios)
    {
        form.AplicarOpciones();
        form.IniciarCampos();
        Escribir(textos);
    }

    /// As a loader writes: no focus moves.
    void Escribir(Textos textos)
    {
        for (const auto& [nombre, texto] : textos)
            form.campo(nombre).setText(texto.toString());
    }

    /// As she does: goes to the field and types over what it holds.
    void Teclear(QStringView nombre, QStringView texto)
    {
        form.Enfocar(nombre);
        form.campo(nombre).Teclear(texto.toString());
    }

    /// Leaves the field in hand for the tab pages.
    void Salir() { form.Enfocar(u"SSTab1"); }

    const QString& texto(QStringView nombre) const { return form.texto(nombre); }
    bool pendientes() const { return form.control(u"BoxTotal").aspecto() == Aspecto::Pendiente; }
};

struct PisoDePrueba : CasoDePrueba
{
    PisoDePrueba(Textos textos = {})
        : CasoDePrueba(kDescripcionPiso, textos)
    {
    }
};

inline Currency Importe(double valor)
{
    return Currency::de(valor);
}

} // namespace valmerix
