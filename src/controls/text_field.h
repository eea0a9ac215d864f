#pragma once

#include "controls/control.h"

#include <QStringList>

namespace valmerix {

/// A text field: text, selection, greatest length for typing, lock. Positions count UTF-16 units from 0.
class CampoTexto : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    const QString& Text() const { return texto_; }
    /// Writes the whole text, whatever its length; raises Change when it differs. The caret goes to 0.
    virtual void setText(const QString& texto);

    /// Greatest length that typing and pasting may reach; 0 is no limit. Procedures may write longer texts.
    int MaxLength() const { return longitud_; }
    void setMaxLength(int longitud);
    bool Locked() const { return bloqueado_; }
    void setLocked(bool valor);
    /// Several lines: Return is a character like any other.
    bool MultiLine() const { return variasLineas_; }
    void setMultiLine(bool valor) { variasLineas_ = valor; }
    /// A date mask such as "99/99/9999"; empty for an ordinary field.
    const QString& Mask() const { return mascara_; }
    void setMask(const QString& mascara);
    /// The mask with its digits blank: what an unfilled field reads.
    QString mascaraVacia() const;

    int SelStart() const { return selInicio_; }
    int SelLength() const { return selLongitud_; }
    void Seleccionar(int inicio, int longitud);
    void SeleccionarTodo() { Seleccionar(0, static_cast<int>(texto_.size())); }

    /// What the key filters leave of one typed character: 0 when it is swallowed.
    int FiltrarTecla(int tecla);
    /// What the filters leave of a pasted text, character by character.
    QString FiltrarTexto(const QString& pegado);

    /// One key of the user: 8 deletes, any other character replaces the selection; in a masked field digits
    /// fill the blanks one by one. Nothing while locked or disabled, or when the filters swallow the key or
    /// the length is reached. Control keys write nothing, but for Return in a field of several lines.
    void PulsarTecla(int tecla);
    void Teclear(const QString& texto);
    /// A paste: filtered, cut to the length that is left, put in place of the selection.
    void Pegar(const QString& texto);
    /// The text as the user's editing on screen has left it, already filtered.
    void setTextoEditado(const QString& texto, int cursor);

Q_SIGNALS:
    void Change();
    /// A handler may change the key or set it to 0, which swallows it.
    void KeyPress(int& tecla);
    /// A text of several characters is about to be pasted; a handler may rewrite it before the key filters
    /// see its characters.
    void Paste(QString& texto);
    /// The selection was set by a procedure.
    void SeleccionCambiada();

protected:
    void CambiarTexto(const QString& texto);
    void Asignar(const QString& texto); ///< without an event

private:
    void SustituirSeleccion(const QString& texto);
    void Insertar(QString texto);
    void Retroceder();
    QString TextoEnMascara() const;
    void RellenarMascara(const QString& tecleado);
    void BorrarEnMascara();
    int DetrasDelLiteral(QChar literal, int cursor) const;
    int SiguienteHueco(int cursor) const;

    QString texto_;
    QString mascara_;
    int longitud_ = 0;
    int selInicio_ = 0;
    int selLongitud_ = 0;
    bool bloqueado_ = false;
    bool variasLineas_ = false;
};

/// A text field with a list of items to choose from. An open list takes any text; a closed one only
/// its items or none.
class Lista : public CampoTexto
{
    Q_OBJECT

public:
    using CampoTexto::CampoTexto;

    const QStringList& List() const { return elementos_; }
    int ListCount() const { return static_cast<int>(elementos_.size()); }
    void setList(const QStringList& elementos);
    void AddItem(const QString& texto, int indice = -1);
    void RemoveItem(int indice);
    void Clear();

    bool cerrada() const { return cerrada_; }
    void setCerrada(bool valor) { cerrada_ = valor; }

    /// Index of the item that equals the text, -1 when none does.
    int ListIndex() const { return static_cast<int>(elementos_.indexOf(Text())); }

    /// Open list: as in a field. Closed list: an item of the list raises Change and Click when it differs;
    /// any other text empties the field without a Click.
    void setText(const QString& texto) override;

    /// The user's choice from the list: the text becomes the item and Click is raised, also for the item
    /// already shown. Ignores an index outside the list.
    void Elegir(int indice);

Q_SIGNALS:
    void Click();

private:
    QStringList elementos_;
    bool cerrada_ = false;
};

/// The typographic form of a typed text: a straight apostrophe becomes ’.
QString ConApostrofoTipografico(QString texto);

} // namespace valmerix
