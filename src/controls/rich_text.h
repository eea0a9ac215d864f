#pragma once

#include "controls/control.h"

#include <vector>

namespace valmerix {

enum class Alineacion : char { Izquierda, Derecha, Centro };

/// A stretch of the text, half open, counted in UTF-16 units.
struct Tramo
{
    int inicio = 0;
    int fin = 0;
    bool operator==(const Tramo&) const = default;
};

/// The report's text: paragraphs separated by '\n', bold stretches, one alignment a paragraph.
/// Positions count UTF-16 units from 0, each '\n' one.
class TextoEnriquecido : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    const QString& Text() const { return texto_; }
    /// Replaces the text and drops every mark. Carriage returns are dropped, a line feed ends a paragraph.
    void setText(const QString& texto);

    /// Position of `buscado` at or behind `desde`, blind to case, -1 when it is not there. What is found is
    /// selected. Looking for nothing finds nothing.
    int Find(const QString& buscado, int desde = 0);

    int SelStart() const { return selInicio_; }
    int SelLength() const { return selLongitud_; }
    void Seleccionar(int inicio, int longitud);
    /// Collapses (or sets) the selection's length, keeping its start.
    void setSelLength(int longitud);
    /// Marks the selected stretch as bold.
    void SelBold();
    /// Aligns the paragraphs that the selection touches.
    void SelAlignment(Alineacion alineacion);

    bool Locked() const { return bloqueado_; }
    void setLocked(bool valor);

    /// Views hold back while redraw is off; turning it on tells them once what has changed meanwhile.
    bool Redraw() const { return redibujar_; }
    void setRedraw(bool valor);

    /// Bold stretches in order, not touching one another.
    const std::vector<Tramo>& negritas() const { return negritas_; }
    Alineacion alineacion(int parrafo) const;
    int parrafos() const { return static_cast<int>(alineaciones_.size()); }

    /// The user's editing on screen: `quitados` units at `posicion` gave way to `puesto`. Marks move with the
    /// text; what is put inside a bold stretch is bold.
    void Editar(int posicion, int quitados, const QString& puesto);

    /// Puts the view at the top of the text, so that what is found next comes up at the window's top.
    /// The caret goes there too.
    void VolverAlPrincipio();

Q_SIGNALS:
    /// The whole content was replaced or marked by a procedure; not raised by Editar.
    void ContenidoCambiado();
    void SeleccionCambiada();
    void VistaAlPrincipio();
    void Change();

private:
    void AvisarContenido();
    void AvisarSeleccion();
    int ParrafoDe(int posicion) const;
    void AjustarNegritas(int posicion, int quitados, int puestos);

    QString texto_;
    QString plegado_; // texto_ in folded case, unit for unit
    std::vector<Tramo> negritas_;
    std::vector<Alineacion> alineaciones_{Alineacion::Izquierda};
    int selInicio_ = 0;
    int selLongitud_ = 0;
    bool bloqueado_ = true;
    bool redibujar_ = true;
    bool contenidoPendiente_ = false;
    bool seleccionPendiente_ = false;
};

} // namespace valmerix
