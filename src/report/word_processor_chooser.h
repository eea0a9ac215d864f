#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"

namespace valmerix {

/// `Busqueda`: walks the mounted volumes and folders to choose the word processor; only executable files are
/// listed.
class Busqueda : public Ventana
{
    Q_OBJECT

public:
    /// `trayectoria`: the settings' field that takes the chosen path too, null when they are not open.
    Busqueda(EstadoCompartido& compartido, CampoTexto* trayectoria, Dialogos& dialogos);

    const QString& carpeta() const { return carpeta_; }
    /// Shows a folder: its subfolders in Dir1 (the first item leads up), its programs in File1. A folder that
    /// is not there changes nothing.
    void IrA(const QString& carpeta);

private:
    void CrearControles();
    void ConectarControles();
    QString rutaDe(const QString& fichero) const;
    void Aceptar();

    EstadoCompartido& compartido_;
    CampoTexto* trayectoria_;
    Dialogos& dialogos_;
    QString carpeta_;
};

} // namespace valmerix
