#include "ui/look/application.h"
#include "ui/widgets/text_widgets.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRetroceso = 8;

QString SinRetornos(QString texto)
{
    return texto.remove(u'\r');
}

} // namespace

CampoLargo::CampoLargo(CampoTexto& campo, QWidget* padre)
    : QPlainTextEdit(padre)
    , campo_(&campo)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &CampoLargo::TomarTexto);
    connect(this, &QPlainTextEdit::selectionChanged, this, &CampoLargo::TomarSeleccion);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CampoLargo::TomarSeleccion);
    connect(&campo, &CampoTexto::Change, this, &CampoLargo::MostrarTexto);
    connect(&campo, &CampoTexto::SeleccionCambiada, this, &CampoLargo::MostrarSeleccion);
    connect(&campo, &Control::PresentacionCambiada, this, &CampoLargo::MostrarPresentacion);
    MostrarPresentacion();
}

void CampoLargo::MostrarTexto()
{
    if (!campo_ || sincronizando_ || toPlainText() == SinRetornos(campo_->Text()))
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    setPlainText(campo_->Text());
}

void CampoLargo::MostrarSeleccion()
{
    if (!campo_ || sincronizando_)
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    const int total = document()->characterCount() - 1;
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(campo_->SelStart(), total));
    cursor.setPosition(std::min(campo_->SelStart() + campo_->SelLength(), total), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void CampoLargo::MostrarPresentacion()
{
    if (!campo_)
        return;
    setReadOnly(campo_->Locked());
    MostrarTexto();
}

void CampoLargo::TomarTexto()
{
    if (!campo_ || sincronizando_)
        return;
    Protegido([this] { campo_->setTextoEditado(toPlainText(), textCursor().position()); });
    MostrarTexto(); // a procedure may have changed it while it was being taken
}

void CampoLargo::TomarSeleccion()
{
    if (!campo_ || sincronizando_ || document()->characterCount() - 1 != campo_->Text().size())
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    const QTextCursor cursor = textCursor();
    campo_->Seleccionar(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

void CampoLargo::Poner(const QString& texto)
{
    if (!campo_ || isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    QString dejado;
    Protegido([&] {
        dejado = Admisible(*campo_, SinRetornos(texto), document()->characterCount() - 1,
                           cursor.selectionEnd() - cursor.selectionStart());
    });
    if (dejado.isEmpty())
        return;
    cursor.insertText(dejado);
    ensureCursorVisible();
}

void CampoLargo::keyPressEvent(QKeyEvent* evento)
{
    if (!campo_ || isReadOnly())
        return QPlainTextEdit::keyPressEvent(evento);
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        Poner(u"\n"_s);
        return evento->accept();
    }
    if (evento->key() == Qt::Key_Backspace) {
        int tecla = kRetroceso;
        Protegido([&] { tecla = campo_->FiltrarTecla(kRetroceso); });
        return tecla == 0 ? evento->accept() : QPlainTextEdit::keyPressEvent(evento);
    }
    if (EscribeCaracter(*evento)) {
        Poner(evento->text());
        return evento->accept();
    }
    QPlainTextEdit::keyPressEvent(evento);
}

void CampoLargo::inputMethodEvent(QInputMethodEvent* evento)
{
    if (!campo_ || isReadOnly() || evento->commitString().isEmpty())
        return QPlainTextEdit::inputMethodEvent(evento);
    const QTextCursor cursor = textCursor();
    QString dejado;
    Protegido([&] {
        dejado = Admisible(*campo_, evento->commitString(), document()->characterCount() - 1,
                           cursor.selectionEnd() - cursor.selectionStart() + evento->replacementLength());
    });
    QInputMethodEvent filtrado(evento->preeditString(), evento->attributes());
    filtrado.setCommitString(dejado, evento->replacementStart(), evento->replacementLength());
    QPlainTextEdit::inputMethodEvent(&filtrado);
    evento->setAccepted(filtrado.isAccepted());
}

void CampoLargo::insertFromMimeData(const QMimeData* datos)
{
    if (datos->hasText())
        Poner(datos->text());
}

} // namespace valmerix
