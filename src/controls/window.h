#pragma once

#include "controls/control.h"
#include "controls/grid.h"
#include "controls/option_group.h"
#include "controls/rich_text.h"
#include "controls/text_field.h"
#include "controls/tree.h"

#include <QPointer>
#include <QRect>
#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace valmerix {

enum class EstadoVentana { Normal, Minimizada, Maximizada };

/// A key, such as "Ctrl+S", and what it runs.
struct Atajo
{
    QString teclas;
    std::function<void()> orden;
};

/// A window: an ordered set of controls found by name, a caption, a place, a state, the focus. It has no
/// screen of its own; whoever shows it (see Pantalla) listens to its signals.
class Ventana : public QObject
{
    Q_OBJECT

public:
    explicit Ventana(const QString& nombre, QString caption = {});
    ~Ventana() override;

    const QString& nombre() const { return nombre_; }
    const QString& Caption() const { return caption_; }
    void setCaption(const QString& texto);

    /// Adds a control behind the others. Names are unique in a window.
    template <class T>
    T& Añadir(const QString& nombre)
    {
        auto nuevo = std::make_unique<T>(nombre);
        T& control = *nuevo;
        Registrar(std::move(nuevo));
        return control;
    }

    /// The control of that name, null when there is none.
    Control* buscar(QStringView nombre) const;
    /// The control of that name. Throws std::out_of_range, naming it, when there is none.
    Control& control(QStringView nombre) const;
    /// The same, as the kind that the caller expects. Throws std::bad_cast when it is of another kind.
    template <class T>
    T& como(QStringView nombre) const
    {
        return dynamic_cast<T&>(control(nombre));
    }

    CampoTexto& campo(QStringView nombre) const { return como<CampoTexto>(nombre); }
    Lista& lista(QStringView nombre) const { return como<Lista>(nombre); }
    Casilla& casilla(QStringView nombre) const { return como<Casilla>(nombre); }
    GrupoOpciones& opciones(QStringView nombre) const { return como<GrupoOpciones>(nombre); }
    Boton& boton(QStringView nombre) const { return como<Boton>(nombre); }
    Rejilla& rejilla(QStringView nombre) const { return como<Rejilla>(nombre); }
    /// Text of a field or list.
    const QString& texto(QStringView nombre) const { return campo(nombre).Text(); }
    /// Whether a check box is ticked.
    bool marcada(QStringView nombre) const { return casilla(nombre).Value() == 1; }

    /// In the order in which they were added, which is the tab order.
    const std::vector<std::unique_ptr<Control>>& controles() const { return controles_; }

    Control* conFoco() const { return foco_; }
    /// Moves the focus: LostFocus of the old control, then GotFocus of the new one. Null takes it away. A
    /// control that cannot take it (a label, one disabled or hidden) leaves it where it is.
    void Enfocar(Control* control);
    void Enfocar(QStringView nombre) { Enfocar(&control(nombre)); }
    /// Ends the turn of the control in hand and begins a new one: LostFocus, then GotFocus of the same. For
    /// commands that come from a window which takes no focus.
    void RenovarFoco();
    /// Whether the procedures of a field being left or reached are running: what they write is not hers.
    bool moviendoFoco() const { return moviendoFoco_ > 0; }

    /// Whether it holds changes that are stored nowhere; her screen marks it, no text does.
    bool modificada() const { return modificada_; }
    void setModificada(bool valor);

    bool visible() const { return visible_; }
    void setVisible(bool valor);
    EstadoVentana WindowState() const { return estado_; }
    /// Raises Resize when the state differs.
    void setWindowState(EstadoVentana estado);
    QRect lugar() const { return lugar_; }
    void Mover(const QRect& lugar);
    /// The window system's news of a place or state, or of the window having come to the front or left it.
    void Activar() { Q_EMIT Activate(); }
    void Desactivar() { Q_EMIT Deactivate(); }
    /// Keys that hold in all the program while this window is before her eyes and no modal one above it.
    const std::vector<Atajo>& atajos() const { return atajos_; }
    /// To be called before the window is first shown.
    void AñadirAtajo(const QString& teclas, std::function<void()> orden);
    /// A key that no control takes, such as Escape.
    void PulsarTecla(int tecla) { Q_EMIT KeyDown(tecla); }

    bool abierta() const { return abierta_; }
    /// Asks PuedeCerrar, runs AlCerrar, raises Cerrada. False when the window stays open. What AlCerrar
    /// throws passes, and the window stays open too.
    bool Cerrar();
    /// Her closing it through the desktop: its title bar, its task-bar entry, Alt+F4.
    virtual void PedirCierre() { Cerrar(); }

    /// The window that this one serves and stays above; null for none.
    Ventana* dueña() const { return dueña_; }
    void Servir(Ventana& dueña) { dueña_ = &dueña; }

    /// Fills with "name(i)": how a member of a control array is called.
    static QString Indice(QStringView nombre, int i);

Q_SIGNALS:
    void PresentacionCambiada(); ///< caption, visibility, place or the mark of unstored changes
    void FocoCambiado();
    void Resize();
    void Activate();
    void Deactivate();
    void KeyDown(int tecla);
    void Cerrada();

protected:
    /// A window may refuse to close.
    virtual bool PuedeCerrar() { return true; }
    /// What the window does at its end.
    virtual void AlCerrar() {}

private:
    void Registrar(std::unique_ptr<Control> control);

    struct Picadillo
    {
        size_t operator()(QStringView s) const noexcept { return qHash(s); }
    };

    QString nombre_;
    QString caption_;
    std::vector<std::unique_ptr<Control>> controles_;
    std::unordered_map<QStringView, Control*, Picadillo> porNombre_; // views of the controls' own names
    std::vector<Atajo> atajos_;
    Control* foco_ = nullptr;
    EstadoVentana estado_ = EstadoVentana::Normal;
    QRect lugar_;
    QPointer<Ventana> dueña_;
    int moviendoFoco_ = 0;
    bool modificada_ = false;
    bool visible_ = false;
    bool abierta_ = true;
    bool cerrando_ = false;
};

/// Whoever puts windows before her eyes.
class Pantalla
{
public:
    virtual ~Pantalla() = default;
    virtual void Mostrar(Ventana& ventana) = 0;
    /// Returns once the window has been closed.
    virtual void MostrarModal(Ventana& ventana) = 0;
    /// Whole usable area, pixels.
    virtual QRect area() const = 0;
};

/// Centres a window in the usable area.
void Centrar(Ventana& ventana, const Pantalla& pantalla);

} // namespace valmerix
