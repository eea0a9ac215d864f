#include "ui/widgets/list_widget.h"

#include "ui/look/application.h"
#include "ui/widgets/text_widgets.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace valmerix {

namespace {

constexpr int kFilasALaVista = 14;
constexpr int kLetrasAlMenos = 12;

} // namespace

CajaLista::CajaLista(Lista& lista, QWidget* padre)
    : QComboBox(padre)
    , lista_(&lista)
{
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(kFilasALaVista);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kLetrasAlMenos);
    if (!lista.cerrada())
        PrepararEscritura();
    connect(this, &QComboBox::activated, this, &CajaLista::Elegir);
    connect(&lista, &CampoTexto::Change, this, &CajaLista::MostrarElegido);
    connect(&lista, &Control::PresentacionCambiada, this, &CajaLista::MostrarPresentacion);
    MostrarPresentacion();
}

void CajaLista::PrepararEscritura()
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    auto* linea = new CampoLinea(*lista_, this);
    setLineEdit(linea);
    setCompleter(nullptr);
    // What she types stays as she types it: no item takes its place for being alike.
    disconnect(linea, &QLineEdit::editingFinished, this, nullptr);
    disconnect(linea, &QLineEdit::returnPressed, this, nullptr);
}

void CajaLista::MostrarPresentacion()
{
    if (!lista_)
        return;
    QStringList actuales;
    for (int i = 0; i < count(); ++i)
        actuales.append(itemText(i));
    if (actuales != lista_->List()) {
        const QSignalBlocker silencio(this);
        const int cursor = isEditable() ? lineEdit()->cursorPosition() : 0; // new items would empty the line
        clear();
        addItems(lista_->List());
        MostrarElegido();
        if (isEditable())
            lineEdit()->setCursorPosition(cursor);
    }
    MostrarElegido();
}

void CajaLista::MostrarElegido()
{
    if (!lista_)
        return;
    const QSignalBlocker silencio(this);
    // In an open list the index follows only when the text is an item: taking it away would empty the line.
    const int indice = lista_->ListIndex();
    if (!isEditable() || indice >= 0)
        setCurrentIndex(indice);
    if (isEditable() && lineEdit()->text() != lista_->Text())
        lineEdit()->setText(lista_->Text());
}

void CajaLista::Elegir(int indice)
{
    if (!lista_)
        return;
    Protegido([&] {
        if (!lista_->Locked())
            lista_->Elegir(indice);
    });
    MostrarElegido();
}

bool CajaLista::Mover(int pasos)
{
    if (!lista_ || lista_->ListCount() == 0)
        return false;
    const int destino = std::clamp(lista_->ListIndex() + pasos, 0, lista_->ListCount() - 1);
    if (destino != lista_->ListIndex())
        Elegir(destino);
    return true;
}

void CajaLista::showPopup()
{
    if (!lista_ || lista_->Locked())
        return;
    QComboBox::showPopup();
    if (lista_ && lista_->ListIndex() < 0)
        view()->setCurrentIndex({});
}

void CajaLista::keyPressEvent(QKeyEvent* evento)
{
    const bool sola = (evento->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (sola && evento->key() == Qt::Key_Down && Mover(1))
        return evento->accept();
    if (sola && evento->key() == Qt::Key_Up && Mover(-1))
        return evento->accept();
    QComboBox::keyPressEvent(evento);
}

void CajaLista::wheelEvent(QWheelEvent* evento)
{
    // Not ours without the focus: the page under the pointer scrolls instead.
    if (!hasFocus() || evento->angleDelta().y() == 0)
        return evento->ignore();
    Mover(evento->angleDelta().y() > 0 ? -1 : 1);
    evento->accept();
}

void CajaLista::focusInEvent(QFocusEvent* evento)
{
    QComboBox::focusInEvent(evento);
    if (isEditable() && lista_ && lista_->SelLength() > 0)
        lineEdit()->setSelection(lista_->SelStart(), lista_->SelLength());
}

} // namespace valmerix
