#pragma once

#include "controls/window.h"

#include <span>

namespace valmerix {

/// The commands of the toolbar, by the index of their button.
enum class OrdenPaleta {
    Informe,
    CerrarVisor,
    Opciones,
    Reinicio,
    AbrirPorFiltros,
    Guardar,
    Importar,
    Exportar,
    Ayuda,
    Extension,
    Listados,
    Testigos,
};

/// How a command is offered.
struct FilaOrden
{
    QStringView titulo;
    QStringView ayuda; ///< empty while the command is still to come
    QStringView atajo; ///< its key
};
/// All twelve, by the index of their button.
std::span<const FilaOrden> OrdenesDePaleta();

/// The colours of a kind, each as "red,green,blue"; empty for a window that has none.
struct ColoresForma
{
    QStringView forma;
    QStringView image1;
    QStringView image2;
};
ColoresForma ColoresDe(QStringView forma);

/// `Form2`: the floating toolbar beside the case window, twelve buttons `Botonera(0..11)`. The tags of
/// `Image1` and `Image2` hold the kind's colours as "red,green,blue".
class Form2 : public Ventana
{
    Q_OBJECT

public:
    /// `forma`: the name of the case window, which decides the colours of the title.
    explicit Form2(const QString& forma);

    void PedirCierre() override { Q_EMIT CierrePedido(); }

Q_SIGNALS:
    void Pedida(valmerix::OrdenPaleta orden);
    /// Its own close button.
    void CierrePedido();
};

} // namespace valmerix
