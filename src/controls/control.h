#pragma once

#include <QObject>
#include <QString>
#include <vector>

namespace valmerix {

/// How a control looks, by role: the screen chooses the colours.
enum class Aspecto {
    Normal,
    Pendiente, ///< a result that no longer holds: its text cannot be read
    Bloqueado, ///< cannot be edited for now
};

/// What every control of a window has: a name, a caption, a state, the focus events.
class Control : public QObject
{
    Q_OBJECT

public:
    explicit Control(const QString& nombre);

    const QString& nombre() const { return nombre_; }

    const QString& Caption() const { return caption_; }
    void setCaption(const QString& texto);
    bool Enabled() const { return enabled_; }
    void setEnabled(bool valor);
    bool Visible() const { return visible_; }
    void setVisible(bool valor);
    const QString& ToolTip() const { return ayuda_; }
    void setToolTip(const QString& texto);
    Aspecto aspecto() const { return aspecto_; }
    void setAspecto(Aspecto valor);

    /// Free text that procedures keep with the control; nothing is shown of it.
    const QString& Tag() const { return tag_; }
    void setTag(const QString& texto) { tag_ = texto; }

    /// Whether the control can take the focus at all (labels cannot).
    virtual bool aceptaFoco() const { return true; }

Q_SIGNALS:
    void GotFocus();
    void LostFocus();
    /// The look changed: caption, enabled, visible, aspect, help, lock, length, items or the like.
    void PresentacionCambiada();

private:
    QString nombre_;
    QString caption_;
    QString ayuda_;
    QString tag_;
    bool enabled_ = true;
    bool visible_ = true;
    Aspecto aspecto_ = Aspecto::Normal;
};

/// A caption without focus.
class Etiqueta : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    bool aceptaFoco() const override { return false; }
};

/// A push button.
class Boton : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    /// The user's click; nothing while disabled.
    void Pulsar();

Q_SIGNALS:
    void Click();
};

/// A check box: 0 or 1.
class Casilla : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    int Value() const { return valor_; }
    /// Any value but 0 is 1. Raises Click when the value changes, as the user's click does.
    void setValue(int valor);
    /// The user's click: flips the value; nothing while disabled.
    virtual void Pulsar();

Q_SIGNALS:
    void Click();

protected:
    /// Takes the value without a Click; false when it was so already.
    bool Poner(int valor);

private:
    int valor_ = 0;
};

/// One option of several that go by names of their own; setting it clears the others, which raise no Click.
class OpcionSuelta : public Casilla
{
    Q_OBJECT

public:
    using Casilla::Casilla;
    /// From now on at most one of them is set.
    static void Agrupar(const std::vector<OpcionSuelta*>& opciones);
    /// The user's click sets it and never clears it.
    void Pulsar() override;
};

/// A clock of the window; whoever shows the window makes it tick every `Interval` while enabled.
class Temporizador : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    bool aceptaFoco() const override { return false; }
    int Interval() const { return intervalo_; }
    void setInterval(int milisegundos) { intervalo_ = milisegundos; }
    /// One tick; nothing while disabled.
    void Tic();

Q_SIGNALS:
    void Timer();

private:
    int intervalo_ = 0;
};

/// A picture known by its file; empty path, no picture.
class Imagen : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    bool aceptaFoco() const override { return false; }
    const QString& Picture() const { return ruta_; }
    void setPicture(const QString& ruta);
    void Pulsar() { Q_EMIT Click(); }
    /// Puts what is on the screen into the clipboard, wherever its file is by now; false while nothing is.
    bool CopiarLoMostrado();

Q_SIGNALS:
    void Click();
    /// Whoever shows the picture answers.
    void CopiaPedida(bool& copiada);

private:
    QString ruta_;
};

/// 0 to 100.
class BarraProgreso : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    bool aceptaFoco() const override { return false; }
    double Value() const { return valor_; }
    void setValue(double porcentaje);

private:
    double valor_ = 0;
};

/// Tab pages, one in front.
class Solapas : public Control
{
    Q_OBJECT

public:
    using Control::Control;
    int Tab() const { return tab_; }
    /// Pages from 0 to paginas-1; any other index is ignored.
    void setTab(int pagina);
    int paginas() const { return paginas_; }
    void setPaginas(int n) { paginas_ = n; }

Q_SIGNALS:
    void Click();

private:
    int tab_ = 0;
    int paginas_ = 0;
};

} // namespace valmerix
