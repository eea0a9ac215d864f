#include "ui/widgets/rich_text_widget.h"

#include "ui/look/application.h"
#include "ui/widgets/text_widgets.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargenHoja = 36;

Qt::Alignment AlineacionDeQt(Alineacion alineacion)
{
    switch (alineacion) {
    case Alineacion::Derecha:
        return Qt::AlignRight;
    case Alineacion::Centro:
        return Qt::AlignHCenter;
    case Alineacion::Izquierda:
        break;
    }
    return Qt::AlignLeft;
}

QString TextoLlano(QString texto)
{
    return texto.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

void PonerMarcas(QTextDocument& documento, const TextoEnriquecido& texto)
{
    QTextCursor cursor(&documento);
    cursor.beginEditBlock();
    QTextCharFormat negrita;
    negrita.setFontWeight(QFont::Bold);
    for (const Tramo& t : texto.negritas()) {
        cursor.setPosition(t.inicio);
        cursor.setPosition(t.fin, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(negrita);
    }
    int parrafo = 0;
    for (QTextBlock b = documento.begin(); b.isValid(); b = b.next(), ++parrafo) {
        if (texto.alineacion(parrafo) == Alineacion::Izquierda)
            continue;
        QTextBlockFormat formato;
        formato.setAlignment(AlineacionDeQt(texto.alineacion(parrafo)));
        QTextCursor(b).mergeBlockFormat(formato);
    }
    cursor.endEditBlock();
}

} // namespace

EditorInforme::EditorInforme(TextoEnriquecido& texto, QWidget* padre)
    : QTextEdit(padre)
    , texto_(&texto)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    document()->setDocumentMargin(kMargenHoja);
    connect(document(), &QTextDocument::contentsChange, this, &EditorInforme::TomarEdicion);
    connect(this, &QTextEdit::selectionChanged, this, &EditorInforme::TomarSeleccion);
    connect(this, &QTextEdit::cursorPositionChanged, this, &EditorInforme::TomarSeleccion);
    connect(&texto, &TextoEnriquecido::ContenidoCambiado, this, [this] {
        contenidoViejo_ = true;
        Aplazar();
    });
    connect(&texto, &TextoEnriquecido::SeleccionCambiada, this, [this] {
        if (sincronizando_)
            return;
        seleccionVieja_ = true;
        Aplazar();
    });
    connect(&texto, &TextoEnriquecido::VistaAlPrincipio, this, [this] {
        alPrincipio_ = true;
        Aplazar();
    });
    connect(&texto, &Control::PresentacionCambiada, this, &EditorInforme::MostrarCandado);
    MostrarCandado();
    Sincronizar();
}

void EditorInforme::MostrarCandado()
{
    if (!texto_)
        return;
    setReadOnly(texto_->Locked());
    // The caret stays with the keyboard's reader also while the text is locked.
    setTextInteractionFlags(texto_->Locked() ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                             : Qt::TextEditorInteraction);
}

void EditorInforme::Aplazar()
{
    if (std::exchange(aplazado_, true))
        return;
    QMetaObject::invokeMethod(this, &EditorInforme::Sincronizar, Qt::QueuedConnection);
}

void EditorInforme::Sincronizar()
{
    aplazado_ = false;
    if (!texto_)
        return;
    if (std::exchange(contenidoViejo_, false))
        MostrarContenido();
    if (std::exchange(seleccionVieja_, false)) {
        MostrarSeleccion();
    } else if (std::exchange(alPrincipio_, false)) {
        verticalScrollBar()->setValue(0);
    }
}

void EditorInforme::MostrarContenido()
{
    const QScopedValueRollback guarda(sincronizando_, true);
    const int altura = verticalScrollBar()->value();
    document()->setUndoRedoEnabled(false);
    if (toPlainText() != texto_->Text()) {
        setPlainText(texto_->Text());
    } else {
        QTextCursor(document()).setBlockFormat({});
    }
    PonerMarcas(*document(), *texto_);
    document()->setUndoRedoEnabled(true);
    verticalScrollBar()->setValue(altura);
}

void EditorInforme::MostrarSeleccion()
{
    const QScopedValueRollback guarda(sincronizando_, true);
    const int total = document()->characterCount() - 1;
    const int inicio = std::min(texto_->SelStart(), total);
    QTextCursor cursor(document());
    cursor.setPosition(inicio);
    if (std::exchange(alPrincipio_, false)) {
        setTextCursor(cursor);
        QScrollBar* barra = verticalScrollBar();
        barra->setValue(barra->value() + cursorRect(cursor).top());
    }
    cursor.setPosition(std::min(inicio + texto_->SelLength(), total), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void EditorInforme::TomarEdicion(int posicion, int quitados, int puestos)
{
    if (!texto_ || sincronizando_ || contenidoViejo_)
        return;
    // The document counts its last paragraph mark too, the text does not.
    const int sobra = posicion + puestos - (document()->characterCount() - 1);
    if (sobra > 0) {
        puestos -= sobra;
        quitados -= sobra;
    }
    QTextCursor cursor(document());
    cursor.setPosition(posicion);
    cursor.setPosition(posicion + puestos, QTextCursor::KeepAnchor);
    const QString puesto = TextoLlano(cursor.selectedText());
    if (texto_->Text().mid(posicion, quitados) == puesto && quitados == puestos)
        return; // only the looks changed
    const QScopedValueRollback guarda(sincronizando_, true);
    Protegido([&] { texto_->Editar(posicion, quitados, puesto); });
}

void EditorInforme::TomarSeleccion()
{
    if (!texto_ || sincronizando_ || contenidoViejo_ ||
        document()->characterCount() - 1 != texto_->Text().size())
        return;
    const QScopedValueRollback guarda(sincronizando_, true);
    const QTextCursor cursor = textCursor();
    texto_->Seleccionar(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

void EditorInforme::keyPressEvent(QKeyEvent* evento)
{
    Sincronizar();
    if (isReadOnly())
        return QTextEdit::keyPressEvent(evento);
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return evento->accept();
    }
    if (EscribeCaracter(*evento)) {
        textCursor().insertText(ConApostrofoTipografico(evento->text()));
        ensureCursorVisible();
        return evento->accept();
    }
    QTextEdit::keyPressEvent(evento);
}

void EditorInforme::inputMethodEvent(QInputMethodEvent* evento)
{
    QInputMethodEvent filtrado(evento->preeditString(), evento->attributes());
    filtrado.setCommitString(ConApostrofoTipografico(evento->commitString()), evento->replacementStart(),
                             evento->replacementLength());
    QTextEdit::inputMethodEvent(&filtrado);
    evento->setAccepted(filtrado.isAccepted());
}

void EditorInforme::insertFromMimeData(const QMimeData* datos)
{
    if (datos->hasText() && !isReadOnly())
        textCursor().insertText(ConApostrofoTipografico(datos->text()));
}

QMimeData* EditorInforme::createMimeDataFromSelection() const
{
    auto* datos = new QMimeData;
    datos->setText(TextoLlano(textCursor().selectedText()));
    return datos;
}

void EditorInforme::paintEvent(QPaintEvent* evento)
{
    if (contenidoViejo_)
        Aplazar();
    QTextEdit::paintEvent(evento);
}

} // namespace valmerix
