#include "shell/toolbar.h"

#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kBotonera = {
    FilaOrden{u"Informe", u"Redactar el informe de esta tasación", u"F9"},
    FilaOrden{u"Cerrar visor", u"Cerrar el visor del informe", u"Shift+F9"},
    FilaOrden{u"Configuración", u"Edades, moneda, cabecera y procesador de textos", u"F12"},
    FilaOrden{u"Reinicio", u"Volver al menú inicial", u"Ctrl+R"},
    FilaOrden{u"Abrir", u"", u"Ctrl+O"},
    FilaOrden{u"Guardar", u"Guardar esta tasación", u"Ctrl+S"},
    FilaOrden{u"Importar", u"", u"Ctrl+I"},
    FilaOrden{u"Exportar", u"", u"Ctrl+E"},
    FilaOrden{u"Ayuda", u"Manual de Valmerix", u"F1"},
    FilaOrden{u"Extensión", u"Módulo de extensión", u"Ctrl+M"},
    FilaOrden{u"Listados", u"", u"Ctrl+L"},
    FilaOrden{u"Testigos", u"", u"Ctrl+T"},
};

constexpr std::array<QStringView, 3> kGrupos = {u"Navegación", u"Datos", u"Sistema"};

constexpr std::array kColores = {
    ColoresForma{u"Piso", u"230,0,0", u"230,0,0"},     ColoresForma{u"Apto", u"255,0,130", u"0,255,230"},
    ColoresForma{u"Casa", u"56,56,168", u"153,0,0"},   ColoresForma{u"Nave", u"245,205,110", u"180,100,0"},
    ColoresForma{u"Loca", u"200,255,0", u"200,255,0"},
};

} // namespace

std::span<const FilaOrden> OrdenesDePaleta()
{
    return kBotonera;
}

ColoresForma ColoresDe(QStringView forma)
{
    for (const ColoresForma& fila : kColores) {
        if (fila.forma == forma)
            return fila;
    }
    return {};
}

Form2::Form2(const QString& forma)
    : Ventana(u"Form2"_s, u"Herramientas"_s)
{
    const ColoresForma colores = ColoresDe(forma);
    Añadir<Imagen>(u"Image1"_s).setTag(colores.image1.toString());
    Añadir<Imagen>(u"Image2"_s).setTag(colores.image2.toString());
    for (int i = 0; i < static_cast<int>(kGrupos.size()); ++i)
        Añadir<Etiqueta>(Indice(u"Label1", i)).setCaption(kGrupos[static_cast<size_t>(i)].toString());
    for (int i = 0; i < static_cast<int>(kBotonera.size()); ++i) {
        const FilaOrden& fila = kBotonera[static_cast<size_t>(i)];
        auto& boton = Añadir<Boton>(Indice(u"Botonera", i));
        boton.setCaption(fila.titulo.toString());
        boton.setEnabled(!fila.ayuda.isEmpty());
        boton.setToolTip(fila.ayuda.isEmpty()
                             ? fila.titulo.toString() + u": disponible en una próxima versión"_s
                             : fila.ayuda.toString());
        connect(&boton, &Boton::Click, this, [this, i] { Q_EMIT Pedida(static_cast<OrdenPaleta>(i)); });
    }
    auto& cerrar = Añadir<Boton>(u"SSCommand3"_s);
    cerrar.setToolTip(u"Cerrar las herramientas"_s);
    connect(&cerrar, &Boton::Click, this, &Form2::CierrePedido);
}

} // namespace valmerix
