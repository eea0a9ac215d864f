#pragma once

#include "shell/manual.h"

namespace valmerix {

class VentanaAyuda;

/// The manual in one help window, which stays for the next time.
class AyudaQt : public VisorAyuda
{
public:
    AyudaQt();
    ~AyudaQt() override;
    void Mostrar(const std::shared_ptr<const Manual>& manual, const QString& pagina) override;
    VentanaAyuda* ventana() const { return ventana_.get(); }

private:
    std::unique_ptr<VentanaAyuda> ventana_;
};

} // namespace valmerix
