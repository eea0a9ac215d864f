#pragma once

#include "common/ports.h"
#include "common/shared_state.h"
#include "controls/window.h"
#include "store/open_case.h"
#include "store/program_options.h"
#include "valuation/building_calculators.h"
#include "valuation/calculation_state.h"
#include "valuation/case_environment.h"
#include "valuation/enumeration_counters.h"
#include "valuation/focus_rules.h"
#include "valuation/form_tables.h"
#include "valuation/kind_descriptions.h"
#include "valuation/ready_sentences.h"

#include <vector>

namespace valmerix {

/// What a case window works with; all of it outlives the window.
struct ServiciosCaso
{
    EstadoCompartido& compartido;
    EstadoCalculo& calculo;
    FrasesInforme& frases;
    OpcionesPrograma& opciones;
    Dialogos& dialogos;
    Reloj& reloj;
    Sistema& sistema;
    EntornoCaso& entorno;
};

/// The window of a case, as its description says. A new one is empty; `Load` makes it ready for work.
class Formulario : public Ventana, public CasoAbierto
{
public:
    Formulario(const DescripcionForma& descripcion, const ServiciosCaso& servicios);
    ~Formulario() override;

    /// Leaving a case is leaving the program, and is asked as `SSCommand1` asks it.
    void PedirCierre() override { servicios_.entorno.MostrarSalida(); }

    /// The window's start: options, valuers, profile, today's date, grids. Throws ErrorAlmacen.
    void Load();
    /// The part of the start that the options rule: heading, surface, money labels, section profile.
    void AplicarOpciones();
    /// The part that needs no store: date, sentences, annexes, proposed surface, grids.
    void IniciarCampos();

    const DescripcionForma& descripcion() const { return descripcion_; }
    const EstadoCalculo& estado() const { return servicios_.calculo; }
    const FrasesInforme& frases() const { return servicios_.frases; }
    const ContadoresEnumeracion& contadores() const { return contadores_; }

    void Superficial() { calculadores_.Superficial(); }
    void REDONDEADOR() { calculadores_.REDONDEADOR(); }
    void RASANTEADOR() { calculadores_.RASANTEADOR(); }
    void Recalcular() { calculadores_.Recalcular(); }
    void PintarResultadosPendientes() { calculadores_.PintarResultadosPendientes(); }
    /// The button `SSCommand7`: results current again.
    void ActualizarResultados();
    /// The LostFocus rule of a field, for procedures that write into it.
    void DejarCampo(QStringView campo) { foco_.Dejar(campo); }

    /// To be run when controls, figures and sentences have been put back as they once stood, without events.
    void Reanudar();

    /// Stores the window's place in the shared state.
    void MiPosicion();
    /// Shows or closes the toolbar, as the tag of `SSCommand3` says.
    void CargaPaleta();
    /// Fills the list of valuers; the one shown stays while it is on the list. Throws ErrorAlmacen.
    void CargarComboTasadores();
    /// Rewrites the labels that name the currency by its abbreviation.
    void ActualizarMoneda(const QString& moneda);
    /// Price per m² of the grid's rows, down to the first without a surface: sum of the values over sum of
    /// the surfaces, 0 without surface. Says so in a box. Throws ErrorDesbordamiento.
    Currency PrecioMedio(const Rejilla& rejilla, int columnaSuperficie, int columnaValor);
    /// Lets her choose the date of a field; false when she leaves it as it is.
    bool ElegirFecha(CampoTexto& campo);

    /// "Editar" puts the picture named by `txtNombreImagen` and `txtRutaImagen` on the list, over the first
    /// one of that name when there is one; "Borrar" takes it off. Nothing happens while either field is
    /// empty.
    void ActualizarGrid(QStringView Accion);

    /// The section profile as it is stored: one digit a box, sections first.
    QString perfil() const;
    void PonerPerfil(const QString& perfil);

    Ventana& ventana() override { return *this; }
    QString letra() const override { return descripcion_.letra(); }
    void CALCULADOR() override { calculadores_.CALCULADOR(); }
    void DEDUCTOR() override { calculadores_.DEDUCTOR(); }
    void CASILLAS() override { calculadores_.CASILLAS(); }
    void PonerValorVivienda(Currency valor) override { servicios_.calculo.ValorVivienda = valor; }
    void ComponerFrasesDelEdificio() override;
    QString fraseUrbanistica() const override { return servicios_.frases.FraseUrbanistica; }
    void PonerFraseUrbanistica(const QString& f) override { servicios_.frases.FraseUrbanistica = f; }
    void CargaGridImagenesAsociadas() override;
    void InicializarGrids(const QString& nombre) override;
    void CargaGridTestigosAsociados() override;

protected:
    void AlCerrar() override;

private:
    friend struct TablaEventos;

    void AlCambiarK();
    void AlCambiarProvisional();
    void AlCambiarAntiguedad();
    void AlCambiarPlantas();
    void AlCambiarViviendas();
    void AlCambiarAscensores();
    void AlCambiarSuperficie();
    void AlCambiarPorcentaje();
    void AlDejarFecha();
    void AlCambiarUrbanismo();
    void AlCambiarDocumentacion();
    void AlElegirTasador();
    void AlPulsarFicha();
    void AlPulsarAnexo(const Anexo& anexo);
    void AlPulsarMinimizar();
    void AlPulsarPaleta();
    void AlBuscarImagen();
    void AlCopiarImagen();
    void AlElegirImagen();
    void AlCambiarRutaImagen();
    void PasarPagina(int paso);
    void ComponerFraseSotanos(OrigenSotanos origen);
    int edadMaxima() const { return servicios_.opciones.*descripcion_.edadMaxima; }

    const DescripcionForma& descripcion_;
    ServiciosCaso servicios_;
    /// The boxes of the section profile, sections first. Making them declares all the window's controls,
    /// which the members behind it look for.
    std::vector<Casilla*> perfil_;
    CalculadoresEdificio calculadores_;
    ReglasFoco foco_;
    ContadoresEnumeracion contadores_;
};

} // namespace valmerix
