// How a case comes to stand open: from the tree, new, as a copy, from a draft.

#include "settings/valuers_company.h"
#include "shell/application.h"
#include "shell/case_opening.h"
#include "shell/case_tree.h"
#include "shell/start_window.h"
#include "valuation/case_form.h"
#include "valuation/kind_descriptions.h"

#include <algorithm>
#include <stdexcept>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamañoCaso(1100, 740);
constexpr int kAnchoPaleta = 160;

/// Centred horizontally together with the toolbar at its right edge.
QRect LugarDelCaso(const QRect& area)
{
    const QSize ventana = kTamañoCaso.boundedTo(area.size());
    return {area.topLeft() + QPoint(std::max(0, (area.width() - ventana.width() - kAnchoPaleta) / 2),
                                    std::max(0, (area.height() - ventana.height()) / 2)),
            ventana};
}

} // namespace

void Aplicacion::CrearFormulario(const QString& letra)
{
    const DescripcionForma* descripcion = letra.size() == 1 ? DescripcionDe(letra.front()) : nullptr;
    if (!descripcion) {
        throw std::runtime_error(
            u"Esta versión no abre tasaciones del tipo «%1»."_s.arg(letra).toStdString());
    }
    formulario_ = std::make_unique<Formulario>(
        *descripcion, ServiciosCaso{compartido_, calculo_, frases_, opciones_, puertos_.dialogos,
                                    puertos_.reloj, puertos_.sistema, *this});
    PonerAtajos();
    formulario_->Mover(LugarDelCaso(puertos_.pantalla.area()));
    connect(formulario_.get(), &Ventana::Resize, this, &Aplicacion::ImpedirIcono);
    formulario_->Load();
}

// The desktop may turn the window into an icon; it goes down as its own button takes it, with its toolbar.
void Aplicacion::ImpedirIcono()
{
    if (formulario_->WindowState() != EstadoVentana::Minimizada)
        return;
    formulario_->setWindowState(EstadoVentana::Normal);
    Minimizar();
}

// Half loaded: nothing of it may be saved; the start window stays, and alone.
void Aplicacion::DescartarFormulario()
{
    CerrarPaleta();
    compartido_.PaletaAbierta = false; // asked for by the window's load, though never shown
    formulario_.reset();
    LimpiarEstado();
}

bool Aplicacion::AbrirCaso(const QString& clave)
{
    retiradas_.clear();
    if (clave.isEmpty())
        throw std::runtime_error("No hay ninguna tasación seleccionada en el árbol.");
    const std::optional<ClaveCaso> caso = PartirClave(clave);
    if (!caso)
        return false;
    CargarFicha();
    try {
        CrearFormulario(caso->Tipo);
        CargarCaso(*formulario_, compartido_, *caso);
        formulario_->Enfocar(u"SSTab1"); // some fields take the focus while they are filled
    } catch (const std::exception&) {
        DescartarFormulario();
        throw;
    }
    MostrarCaso();
    return true;
}

void Aplicacion::CopiarCaso(const QString& clave)
{
    // On a folder there is nothing to copy, and the start window is the only one open.
    if (!AbrirCaso(clave))
        return;
    compartido_.NumeroTasacionActual = 0;
    red_.Anotar(); // stored nowhere yet
}

void Aplicacion::NuevoCaso(int indice)
{
    retiradas_.clear();
    puertos_.sistema.PunteroOcupado(true);
    CargarFicha();
    try {
        CrearFormulario(LetraDelBoton(indice));
        formulario_->Enfocar(u"SSTab1");
    } catch (const std::exception&) {
        DescartarFormulario();
        throw;
    }
    MostrarCaso();
    puertos_.sistema.PunteroOcupado(false);
}

void Aplicacion::RecuperarBorrador()
{
    retiradas_.clear();
    const std::optional<Borrador> borrador = red_.Pendiente();
    if (!borrador)
        throw std::runtime_error("El trabajo no guardado ya no está.");
    CargarFicha();
    try {
        CrearFormulario(borrador->letra);
        red_.Reponer(*formulario_, *borrador);
    } catch (const std::exception&) {
        DescartarFormulario();
        throw;
    }
    MostrarCaso();
    red_.VigilarRecuperado(*formulario_, *minimizado_, *borrador);
}

void Aplicacion::MostrarCaso()
{
    minimizado_ = std::make_unique<Minimizado>(compartido_, *this);
    minimizado_->setCaption(formulario_->control(u"EtiquetaCaption").Caption());
    puertos_.pantalla.Mostrar(*minimizado_);
    puertos_.pantalla.Mostrar(*formulario_);
    formulario_->CargaPaleta();
    CerrarInicio();
    red_.Vigilar(*formulario_, *minimizado_);
}

} // namespace valmerix
