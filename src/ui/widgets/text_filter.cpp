#include "ui/widgets/text_widgets.h"

#include <QKeyEvent>

namespace valmerix {

QString Admisible(CampoTexto& campo, const QString& texto, qsizetype largo, qsizetype seleccionados)
{
    QString dejado = campo.FiltrarTexto(texto);
    if (campo.MaxLength() <= 0)
        return dejado;
    dejado.truncate(std::max<qsizetype>(0, campo.MaxLength() - (largo - seleccionados)));
    if (!dejado.isEmpty() && dejado.back().isHighSurrogate())
        dejado.chop(1);
    return dejado;
}

bool EscribeCaracter(const QKeyEvent& tecla)
{
    const QString texto = tecla.text();
    if (texto.isEmpty())
        return false;
    // Ctrl alone gives orders; with Alt it is AltGr, which writes.
    const Qt::KeyboardModifiers orden = tecla.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (orden == Qt::ControlModifier)
        return false;
    const QChar primero = texto.front();
    return primero.isPrint() || primero.category() == QChar::Other_Format ||
           primero.category() == QChar::Other_PrivateUse ||
           (primero.isHighSurrogate() && texto.size() > 1 && texto.at(1).isLowSurrogate());
}

} // namespace valmerix
