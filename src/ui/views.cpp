#include "ui/views.h"

#include "ui/bar_view.h"
#include "ui/case_view.h"
#include "ui/chooser_view.h"
#include "ui/editor_view.h"
#include "ui/generic_view.h"
#include "ui/options_view.h"
#include "ui/progress_view.h"
#include "ui/question_view.h"
#include "ui/record_view.h"
#include "ui/start_view.h"
#include "ui/toolbar_view.h"
#include "ui/viewer_view.h"

namespace valmerix {

namespace {

using Fabrica = std::unique_ptr<VistaVentana> (*)(Ventana&);

template <class V>
std::unique_ptr<VistaVentana> Nueva(Ventana& ventana)
{
    return std::make_unique<V>(ventana);
}

struct VistaDeVentana
{
    QStringView ventana;
    Fabrica fabrica;
};

constexpr VistaDeVentana kVistas[] = {
    {u"Piso", Nueva<VistaCaso>},         {u"Apto", Nueva<VistaCaso>},
    {u"Casa", Nueva<VistaCaso>},         {u"Form1", Nueva<VistaInicio>},
    {u"Form2", Nueva<VistaPaleta>},      {u"Visor", Nueva<VistaVisor>},
    {u"Calculos", Nueva<VistaProgreso>}, {u"Ficha", Nueva<VistaFicha>},
    {u"Opciones", Nueva<VistaOpciones>}, {u"SALIDA", Nueva<VistaPregunta>},
    {u"Reinicio", Nueva<VistaPregunta>}, {u"Observaciones", Nueva<VistaEditor>},
    {u"Problema", Nueva<VistaEditor>},   {u"Busqueda", Nueva<VistaSelector>},
    {u"Minimizado", Nueva<VistaBarra>},  {u"VisorMin", Nueva<VistaBarra>},
};

} // namespace

std::unique_ptr<VistaVentana> CrearVista(Ventana& ventana)
{
    for (const VistaDeVentana& vista : kVistas) {
        if (vista.ventana == ventana.nombre())
            return vista.fabrica(ventana);
    }
    return Nueva<VistaGenerica>(ventana);
}

} // namespace valmerix
