#include "ui/printing/print_choices.h"

#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QRegularExpression>
#include <QStandardPaths>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QString ElegirFichero(QWidget* padre, const QString& titulo)
{
    static const QRegularExpression kNoSirve(u"[/\\\\:*?\"<>|]"_s);
    QString nombre = titulo;
    nombre.replace(kNoSirve, u" "_s);
    const QDir carpeta(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialogo(padre, u"Guardar como PDF"_s, carpeta.path(), u"Documentos PDF (*.pdf)"_s);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(u"pdf"_s);
    dialogo.selectFile(nombre + u".pdf"_s);
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

bool ElegirImpresora(QWidget* padre, QPrinter& impresora, int paginas)
{
    QPrintDialog dialogo(&impresora, padre);
    dialogo.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                       QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintCurrentPage);
    dialogo.setMinMax(1, paginas);
    dialogo.setFromTo(1, paginas);
    return dialogo.exec() == QDialog::Accepted;
}

} // namespace

EleccionesPrevia EleccionesConDialogos()
{
    return {ElegirFichero, ElegirImpresora};
}

} // namespace valmerix
