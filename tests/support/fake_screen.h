#pragma once

#include "common/ports.h"
#include "controls/window.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>
#include <map>

namespace valmerix {

/// Records what is shown; a modal window runs its script, which has to close it.
class FakePantalla : public Pantalla
{
public:
    QStringList mostradas;
    QStringList modales;
    Ventana* enFrente = nullptr; ///< shown last, not modal
    std::map<QString, std::function<void(Ventana&)>> guion;
    QRect usable{0, 0, 1280, 800};

    void Mostrar(Ventana& ventana) override
    {
        mostradas << ventana.nombre();
        enFrente = &ventana;
        ventana.setVisible(true);
    }
    void MostrarModal(Ventana& ventana) override
    {
        modales << ventana.nombre();
        const auto paso = guion.find(ventana.nombre());
        if (paso == guion.end()) {
            ADD_FAILURE() << "unscripted modal window: " << ventana.nombre().toStdString();
            return;
        }
        paso->second(ventana);
    }
    QRect area() const override { return usable; }
};

/// Gives the picture that the test has put there, and records the sources.
class FakeCaptura : public CapturaImagenes
{
public:
    std::optional<QString> imagen;
    std::vector<FuenteImagen> fuentes;

    std::optional<QString> LoadCapture(FuenteImagen fuente, const QString&) override
    {
        fuentes.push_back(fuente);
        return imagen;
    }
};

} // namespace valmerix
