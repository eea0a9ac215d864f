#include "ui/look/application.h"
#include "ui/widgets/text_widgets.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <limits>
#include <memory>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRetroceso = 8;

// Only "9" stands for a digit in our masks; every other character is itself.
QString MascaraDeQt(const QString& mascara)
{
    QString resultado;
    for (const QChar c : mascara)
        resultado += c == u'9' ? QString(u'9') : u"\\"_s + c;
    return resultado;
}

} // namespace

CampoLinea::CampoLinea(CampoTexto& campo, QWidget* padre)
    : QLineEdit(padre)
    , campo_(&campo)
{
    // Procedures may write texts of any length: the field's own length is kept by Poner.
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &CampoLinea::TomarTexto);
    connect(this, &QLineEdit::selectionChanged, this, &CampoLinea::TomarSeleccion);
    connect(this, &QLineEdit::cursorPositionChanged, this, &CampoLinea::TomarSeleccion);
    connect(&campo, &CampoTexto::Change, this, &CampoLinea::MostrarTexto);
    connect(&campo, &CampoTexto::SeleccionCambiada, this, &CampoLinea::MostrarSeleccion);
    connect(&campo, &Control::PresentacionCambiada, this, &CampoLinea::MostrarPresentacion);
    MostrarPresentacion();
}

QString CampoLinea::Contenido() const
{
    return mascara_.isEmpty() ? text() : displayText(); // the mask's blanks are part of the text
}

void CampoLinea::MostrarTexto()
{
    if (!campo_ || Contenido() == campo_->Text())
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    setText(campo_->Text());
    setCursorPosition(campo_->SelStart());
}

void CampoLinea::MostrarSeleccion()
{
    if (!campo_ || sincronizando_)
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    if (campo_->SelLength() > 0) {
        setSelection(campo_->SelStart(), campo_->SelLength());
    } else {
        setCursorPosition(campo_->SelStart());
    }
}

void CampoLinea::MostrarPresentacion()
{
    if (!campo_)
        return;
    setReadOnly(campo_->Locked());
    if (mascara_ != campo_->Mask()) {
        const QScopedValueRollback guarda(sincronizando_, true);
        mascara_ = campo_->Mask();
        setInputMask(MascaraDeQt(mascara_));
    }
    MostrarTexto();
}

void CampoLinea::TomarTexto()
{
    if (!campo_ || sincronizando_)
        return;
    Protegido([this] { campo_->setTextoEditado(Contenido(), cursorPosition()); });
}

void CampoLinea::TomarSeleccion()
{
    // While a text is on its way to the field its positions do not hold there yet.
    if (!campo_ || sincronizando_ || Contenido() != campo_->Text())
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    campo_->Seleccionar(hasSelectedText() ? selectionStart() : cursorPosition(), selectionLength());
}

void CampoLinea::Poner(const QString& texto)
{
    if (!campo_ || isReadOnly())
        return;
    Protegido([&] {
        const bool conMascara = !mascara_.isEmpty();
        const QString dejado = conMascara ? campo_->FiltrarTexto(texto)
                                          : Admisible(*campo_, texto, text().size(), selectionLength());
        if (!dejado.isEmpty())
            insert(dejado);
    });
}

void CampoLinea::keyPressEvent(QKeyEvent* evento)
{
    if (!campo_ || isReadOnly())
        return QLineEdit::keyPressEvent(evento);
    if (evento->matches(QKeySequence::Paste)) {
        const bool primaria =
            evento->key() == Qt::Key_Insert && evento->modifiers().testFlag(Qt::ControlModifier);
        Poner(QGuiApplication::clipboard()->text(primaria ? QClipboard::Selection : QClipboard::Clipboard));
        return evento->accept();
    }
    if (evento->key() == Qt::Key_Backspace) {
        int tecla = kRetroceso;
        Protegido([&] { tecla = campo_->FiltrarTecla(kRetroceso); });
        return tecla == 0 ? evento->accept() : QLineEdit::keyPressEvent(evento);
    }
    if (EscribeCaracter(*evento)) {
        Poner(evento->text());
        return evento->accept();
    }
    QLineEdit::keyPressEvent(evento);
}

void CampoLinea::inputMethodEvent(QInputMethodEvent* evento)
{
    if (!campo_ || isReadOnly() || evento->commitString().isEmpty())
        return QLineEdit::inputMethodEvent(evento);
    QString dejado;
    Protegido([&] {
        dejado = Admisible(*campo_, evento->commitString(), text().size(),
                           selectionLength() + evento->replacementLength());
    });
    QInputMethodEvent filtrado(evento->preeditString(), evento->attributes());
    filtrado.setCommitString(dejado, evento->replacementStart(), evento->replacementLength());
    QLineEdit::inputMethodEvent(&filtrado);
    evento->setAccepted(filtrado.isAccepted());
}

void CampoLinea::contextMenuEvent(QContextMenuEvent* evento)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (auto* pegar = menu->findChild<QAction*>(u"edit-paste"_s)) {
        pegar->disconnect(this);
        connect(pegar, &QAction::triggered, this, [this] { Poner(QGuiApplication::clipboard()->text()); });
    }
    menu->exec(evento->globalPos());
}

void CampoLinea::dropEvent(QDropEvent* evento)
{
    if (!campo_ || isReadOnly() || !evento->mimeData()->hasText())
        return;
    deselect();
    setCursorPosition(cursorPositionAt(evento->position().toPoint()));
    Poner(evento->mimeData()->text());
    evento->acceptProposedAction();
}

void CampoLinea::focusInEvent(QFocusEvent* evento)
{
    {
        // The field's own selection stands, not the one that the toolkit makes on arriving.
        const QScopedValueRollback guarda(sincronizando_, true);
        QLineEdit::focusInEvent(evento);
    }
    llegadaConRaton_ = evento->reason() == Qt::MouseFocusReason;
    MostrarSeleccion();
}

void CampoLinea::mousePressEvent(QMouseEvent* evento)
{
    // The click that brings the focus leaves the selection that the field made on getting it.
    const QScopedValueRollback guarda(sincronizando_, sincronizando_ || llegadaConRaton_);
    QLineEdit::mousePressEvent(evento);
}

void CampoLinea::mouseReleaseEvent(QMouseEvent* evento)
{
    const bool llegada = std::exchange(llegadaConRaton_, false);
    if (evento->button() == Qt::MiddleButton) {
        const auto* portapapeles = QGuiApplication::clipboard();
        if (portapapeles->supportsSelection() && !isReadOnly()) {
            deselect();
            Poner(portapapeles->text(QClipboard::Selection));
        }
        return;
    }
    QLineEdit::mouseReleaseEvent(evento);
    if (!llegada)
        return;
    if (hasSelectedText() || !campo_ || campo_->SelLength() == 0) {
        TomarSeleccion();
    } else {
        MostrarSeleccion();
    }
}

} // namespace valmerix
