#include "controls/window.h"
#include "valuation/form_tables.h"

namespace valmerix {

namespace {

QStringList Elementos(const ControlForma& fila)
{
    return fila.elementos.isEmpty() ? QStringList() : fila.elementos.toString().split(u'|');
}

Control& AñadirCampo(Ventana& ventana, const ControlForma& fila)
{
    auto& campo = ventana.Añadir<CampoTexto>(fila.nombre.toString());
    campo.setMultiLine(fila.clase == ClaseControl::TextoLargo);
    campo.setLocked(fila.clase == ClaseControl::Resultado);
    return campo;
}

Control& AñadirLista(Ventana& ventana, const ControlForma& fila)
{
    auto& lista = ventana.Añadir<Lista>(fila.nombre.toString());
    lista.setCerrada(fila.clase == ClaseControl::ListaCerrada);
    lista.setList(Elementos(fila));
    return lista;
}

Control& AñadirOpciones(Ventana& ventana, const ControlForma& fila)
{
    auto& grupo = ventana.Añadir<GrupoOpciones>(fila.nombre.toString());
    grupo.setTitulos(Elementos(fila));
    return grupo;
}

Control& AñadirControl(Ventana& ventana, const ControlForma& fila)
{
    const QString nombre = fila.nombre.toString();
    switch (fila.clase) {
    case ClaseControl::Lista:
    case ClaseControl::ListaCerrada:
        return AñadirLista(ventana, fila);
    case ClaseControl::Casilla:
        return ventana.Añadir<Casilla>(nombre);
    case ClaseControl::Opciones:
        return AñadirOpciones(ventana, fila);
    case ClaseControl::Boton:
        return ventana.Añadir<Boton>(nombre);
    case ClaseControl::Etiqueta:
        return ventana.Añadir<Etiqueta>(nombre);
    case ClaseControl::Rejilla:
        return ventana.Añadir<Rejilla>(nombre);
    case ClaseControl::Imagen:
        return ventana.Añadir<Imagen>(nombre);
    case ClaseControl::Texto:
    case ClaseControl::TextoLargo:
    case ClaseControl::Fecha:
    case ClaseControl::Resultado:
        break;
    }
    return AñadirCampo(ventana, fila);
}

} // namespace

void DeclararControles(Ventana& ventana, std::span<const ControlForma> controles)
{
    for (const ControlForma& fila : controles) {
        Control& control = AñadirControl(ventana, fila);
        control.setCaption(fila.titulo.toString());
        control.setToolTip(fila.ayuda.toString());
    }
}

} // namespace valmerix
