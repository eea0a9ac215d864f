#include "ui/pdf_tools.h"

#include <QProcess>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

QByteArray Poppler(const QString& orden, const QStringList& argumentos)
{
    QProcess proceso;
    proceso.start(orden, argumentos);
    EXPECT_TRUE(proceso.waitForFinished(60'000)) << orden.toStdString();
    EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
    return proceso.readAllStandardOutput();
}

QString Allanado(const QString& texto)
{
    return texto.simplified();
}

QString TextoPdf(const QString& ruta, int pagina)
{
    const QString numero = QString::number(pagina);
    return Allanado(QString::fromUtf8(
        Poppler(u"pdftotext"_s, {u"-enc"_s, u"UTF-8"_s, u"-f"_s, numero, u"-l"_s, numero, ruta, u"-"_s})));
}

int PaginasPdf(const QString& ruta)
{
    static const QRegularExpression kPaginas(u"Pages:\\s+(\\d+)"_s);
    return kPaginas.match(QString::fromUtf8(Poppler(u"pdfinfo"_s, {ruta}))).capturedView(1).toInt();
}

} // namespace valmerix
