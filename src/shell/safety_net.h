#pragma once

#include "shell/daily_backup.h"
#include "shell/draft_keeper.h"
#include "valuation/calculation_state.h"

#include <QObject>
#include <QPointer>
#include <memory>
#include <optional>

namespace valmerix {

class Formulario;
class Ventana;

/// What keeps her work safe, beside the road of a case and never in its way: the daily copy of the database,
/// the draft of the case in hand, the mark of changes that are stored nowhere.
class RedSeguridad : public QObject
{
    Q_OBJECT

public:
    /// All that is handed in outlives it. Hooks itself into `compartido`.
    RedSeguridad(EstadoCompartido& compartido, EstadoCalculo& calculo, FrasesInforme& frases,
                 Dialogos& dialogos, const Reloj& reloj, Sistema& sistema);
    ~RedSeguridad() override;

    /// The newest complete draft of the database in use.
    std::optional<Borrador> Pendiente() const;
    /// What the start window tells of it.
    static QString Describir(const Borrador& borrador);

    /// Puts a case window, fresh from its start, as the draft found it, and the number in hand with it. A
    /// valuer or a stored case that is there no longer leaves it a new one. Throws ErrorAlmacen.
    void Reponer(Formulario& formulario, const Borrador& borrador);
    /// A case stands open, with all that it holds stored or at its start. `barra`: its task-bar window.
    void Vigilar(Formulario& formulario, Ventana& barra);
    /// The same for one that a draft has made: it holds changes from the start.
    void VigilarRecuperado(Formulario& formulario, Ventana& barra, const Borrador& borrador);

    /// She has changed something that no control shows.
    void Anotar();
    /// The process may end now: what she has typed last goes to disk.
    void Volcar() { borradores_.Volcar(); }
    /// The case is closed; what was not saved has been given up.
    void Abandonar();

private:
    void Conectar(const Formulario& formulario);
    void Marcar(bool pendiente);
    void QuitarAnteriores() const;
    void AlCambiar(bool seGuarda);
    void AlGuardar();
    Borrador Retratar() const;
    bool EstaGuardada(const Borrador& borrador) const;

    EstadoCompartido& compartido_;
    EstadoCalculo& calculo_;
    FrasesInforme& frases_;
    const Reloj& reloj_;
    CopiaDiaria copia_;
    GuardaBorradores borradores_;
    QPointer<Ventana> caso_;
    QPointer<Ventana> barra_;
    std::unique_ptr<QObject> oido_; ///< its connections end with it
};

} // namespace valmerix
