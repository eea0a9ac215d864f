#pragma once

#include "ui/binder.h"

#include <QList>
#include <QWidget>

namespace valmerix {

/// What the mark of a modified window says to who cannot see it.
inline constexpr QStringView kCambiosSinGuardar = u"Cambios sin guardar";

/// What stands around a window.
enum class Marco {
    Sistema,     ///< the desktop's own title bar
    Propio,      ///< none: the view has a caption bar of ours
    Herramienta, ///< none either, small, beside another window, never taking the focus
};

/// The usable areas of her screens, the first screen's first.
QList<QRect> PantallasUtiles();

/// The view of a window: lays out its widgets, and carries place, state, activation, closing and loose keys
/// between the window system and the model. A view that outlives its model is an empty shell.
class VistaVentana : public QWidget
{
    Q_OBJECT

public:
    VistaVentana(Ventana& ventana, Marco marco);
    ~VistaVentana() override;

    Ventana* ventana() const { return ventana_; }
    Enlazador& enlazador() { return *enlazador_; }

    /// Ends the tie with the model; the widgets stay until they are deleted, doing nothing.
    void Soltar();
    /// Takes place, caption and visibility from the model.
    void Mostrar();
    /// From now on Escape closes the window, as its close button does.
    void CerrarConEscape() { cierraConEscape_ = true; }
    /// Where it stands, or goes back to from its maximised size.
    QRect lugarNormal() const;
    /// Keeps this window above another one, which it stops while it is modal.
    void PonerDelanteDe(QWidget& otra);

protected:
    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void moveEvent(QMoveEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;

    /// What `lugar()` of the model asks for, made possible on its screen.
    virtual QRect LugarPosible(QRect pedido) const;

private:
    void PonerAtajo(const Atajo& atajo);
    void MostrarTitulo();
    void MostrarLugar();
    void MostrarEstado();
    void TomarLugar();
    void TomarEstado();

    QPointer<Ventana> ventana_;
    Enlazador* enlazador_;
    QPoint marco_; ///< from the outer corner to the inner one, as long as it is not maximised
    bool sincronizando_ = false;
    bool cierraConEscape_ = false;
};

} // namespace valmerix
