#pragma once

#include "controls/text_field.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

namespace valmerix {

/// What the field lets in of a text that is to take the place of `seleccionados` of its `largo` units: what
/// its filters leave, cut to its greatest length.
QString Admisible(CampoTexto& campo, const QString& texto, qsizetype largo, qsizetype seleccionados);

/// Whether a key writes a character, as the platform's own fields see it.
bool EscribeCaracter(const QKeyEvent& tecla);

/// One line of text bound to its field. Whatever she types, pastes, drops or composes passes the field's
/// filters and length; undo keeps working.
class CampoLinea : public QLineEdit
{
    Q_OBJECT

public:
    CampoLinea(CampoTexto& campo, QWidget* padre);

    /// Puts a text in place of the selection, filtered and cut.
    void Poner(const QString& texto);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    QString Contenido() const;
    void MostrarTexto();
    void MostrarSeleccion();
    void MostrarPresentacion();
    void TomarTexto();
    void TomarSeleccion();

    QPointer<CampoTexto> campo_;
    QString mascara_;
    bool sincronizando_ = false;
    bool llegadaConRaton_ = false;
};

/// Several lines of text bound to their field, with the same care.
class CampoLargo : public QPlainTextEdit
{
    Q_OBJECT

public:
    CampoLargo(CampoTexto& campo, QWidget* padre);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void insertFromMimeData(const QMimeData* datos) override;

private:
    void Poner(const QString& texto);
    void MostrarTexto();
    void MostrarSeleccion();
    void MostrarPresentacion();
    void TomarTexto();
    void TomarSeleccion();

    QPointer<CampoTexto> campo_;
    bool sincronizando_ = false;
};

} // namespace valmerix
