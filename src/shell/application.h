#pragma once

#include "common/extension.h"
#include "common/ports.h"
#include "common/printed_document.h"
#include "report/viewer_environment.h"
#include "settings/options.h"
#include "shell/minimized_bars.h"
#include "shell/safety_net.h"
#include "shell/toolbar.h"
#include "store/program_options.h"
#include "valuation/calculation_state.h"
#include "valuation/case_environment.h"

#include <functional>
#include <memory>
#include <vector>

namespace valmerix {

class Calculos;
class Ficha;
class Form1;
class Formulario;
class Manual;
class Visor;
class VisorAyuda;
class VisorMin;

/// The outside of the program, handed in once.
struct Puertos
{
    Dialogos& dialogos;
    Reloj& reloj;
    Sistema& sistema;
    Pantalla& pantalla;
    CapturaImagenes& captura;
    Impresion& impresion;
    VisorAyuda* ayuda = nullptr;              ///< null: nothing opens the manual
    CargadorExtensiones* extension = nullptr; ///< null: there is no module
};

/// The program: owns the shared state and the windows, and joins them. One case window at a time stands
/// open; a window that closes itself lives on until the next gesture, since its own event may be running.
class Aplicacion : public QObject,
                   public EntornoCaso,
                   public EntornoMinimizado,
                   public EntornoVisor,
                   public EntornoOpciones
{
    Q_OBJECT

public:
    explicit Aplicacion(const Puertos& puertos);
    ~Aplicacion() override;

    /// Installs the database at the very first start and shows the start window. A failure is reported and
    /// ends the process with code 1.
    void Arrancar();
    /// The handler at the top: tells her what failed and lets her go on or close the program.
    void InformarFallo(const std::exception& fallo);

    /// A leaf's key opens its case; a folder's does nothing. Throws when no node is selected, and
    /// ErrorAlmacen; the start window then stays.
    bool AbrirCaso(const QString& clave);
    /// Opens the case as a new one of whoever is chosen at its first save.
    void CopiarCaso(const QString& clave);
    /// A new case of the kind of button `indice` (0 to 5).
    void NuevoCaso(int indice);
    /// Opens the newest draft as it stood. Throws when none is left, and ErrorAlmacen.
    void RecuperarBorrador();
    void EjecutarOrden(OrdenPaleta orden);
    /// The manual, on the page that tells of the window of that name; where it was left when it is
    /// empty. A manual that cannot be read is told.
    void MostrarAyuda(const QString& ventana = {});
    /// Closes every window of the case, clears its state and shows the start window afresh.
    void Reiniciar();

    EstadoCompartido& compartido() { return compartido_; }
    EstadoCalculo& calculo() { return calculo_; }
    FrasesInforme& frases() { return frases_; }
    Form1* inicio() const { return inicio_.get(); }
    Formulario* FormularioActual() const { return formulario_.get(); }
    Minimizado* barra() const { return minimizado_.get(); }
    Form2* paleta() const { return paleta_.get(); }
    Visor* visor() const { return visor_.get(); }

    void MostrarFicha() override;
    void MostrarObservaciones() override;
    void MostrarProblema() override;
    void MostrarSalida() override;
    void Minimizar() override;
    void MostrarPaleta(bool abierta) override;

    Ventana* ventanaDelCaso() override;
    void MostrarPaletaEn(int izquierda, int arriba) override;
    void CerrarPaleta() override;

    void MostrarVisor() override;
    void MinimizarVisor() override;
    void MinimizarCaso() override { Minimizar(); }
    void MostrarOpciones() override;
    void Imprimir() override;
    void MostrarBusqueda(CampoTexto& trayecto) override;

private:
    void InstalarSiFalta();
    void EmpezarDeNuevo(const std::function<void()>& antes);
    void MostrarInicio();
    void CerrarInicio();
    void CargarFicha();
    void CrearFormulario(const QString& letra);
    void DescartarFormulario();
    void ImpedirIcono();
    void MostrarCaso();
    void PonerAtajos();
    void PulsarOrden(OrdenPaleta orden);
    void Guardar();
    void RedactarInforme();
    void CerrarVisor();
    /// Throws std::runtime_error with the words of what the module has thrown.
    void EjecutarExtension();
    void AsegurarPaleta();
    std::unique_ptr<Opciones> CrearConfiguracion();
    void Iniciar(clsVMXtension& extension);
    void LimpiarEstado();
    /// Keeps a window that is done with until its running event has ended.
    template <class T>
    void Retirar(std::unique_ptr<T>& ventana)
    {
        if (!ventana)
            return;
        if (ventana->Cerrar())
            retiradas_.push_back(std::move(ventana));
    }

    Puertos puertos_;
    EstadoCompartido compartido_;
    EstadoCalculo calculo_;
    FrasesInforme frases_;
    OpcionesPrograma opciones_;
    RedSeguridad red_;
    std::vector<std::unique_ptr<Ventana>> retiradas_;
    std::unique_ptr<Form1> inicio_;
    std::unique_ptr<Ficha> ficha_;
    std::unique_ptr<Formulario> formulario_;
    std::unique_ptr<Form2> paleta_;
    std::unique_ptr<Minimizado> minimizado_;
    std::unique_ptr<Visor> visor_;
    std::unique_ptr<VisorMin> visorMin_;
    std::unique_ptr<Calculos> calculos_;
    std::unique_ptr<Opciones> configuracion_; ///< as an extension has left it, until it is next shown
    std::shared_ptr<const Manual> manual_;
    QString TipoDocumento_; ///< of what is drafted next
    bool enExtension_ = false;
};

} // namespace valmerix
