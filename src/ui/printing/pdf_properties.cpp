#include "ui/printing/pdf_properties.h"

#include <QDateTime>
#include <QRegularExpression>
#include <optional>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kCola = 1024; // bytes; the trailer takes some 150

struct FinDelFichero
{
    qint64 objetos; ///< "/Size"
    qint64 info;    ///< object number of the properties
    qint64 raiz;
    qint64 tabla; ///< offset of the cross-reference table
};

std::optional<FinDelFichero> LeerFin(const QByteArray& cola)
{
    static const QRegularExpression kFin(
        u"trailer\\s*<<.*?/Size (\\d+)\\s+/Info (\\d+) 0 R\\s+/Root (\\d+) 0 R"
        "[^>]*>>\\s*startxref\\s+(\\d+)\\s+%%EOF\\s*$"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const auto hallado = kFin.match(QString::fromLatin1(cola));
    if (!hallado.hasMatch())
        return {};
    return FinDelFichero{hallado.capturedView(1).toLongLong(), hallado.capturedView(2).toLongLong(),
                         hallado.capturedView(3).toLongLong(), hallado.capturedView(4).toLongLong()};
}

// UTF-16 in hexadecimal needs no escapes.
QByteArray Cadena(const QString& texto)
{
    QByteArray hexadecimal = "<FEFF";
    for (const QChar letra : texto)
        hexadecimal += QByteArray::number(letra.unicode(), 16).rightJustified(4, '0');
    return hexadecimal + '>';
}

QByteArray Momento()
{
    return "(D:" + QDateTime::currentDateTimeUtc().toString(u"yyyyMMddHHmmss"_s).toLatin1() + "Z)";
}

} // namespace

EscritorConCola::EscritorConCola(QIODevice& destino)
    : destino_(destino)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 EscritorConCola::readData(char* /*datos*/, qint64 /*cuantos*/)
{
    return -1;
}

qint64 EscritorConCola::writeData(const char* datos, qint64 cuantos)
{
    const qint64 hechos = destino_.write(datos, cuantos);
    integro_ = integro_ && hechos == cuantos;
    if (hechos > 0) {
        escritos_ += hechos;
        cola_ = (cola_ + QByteArray(datos, hechos)).right(kCola);
    }
    return hechos;
}

// An appended section of the file, as the format foresees for changes: a new version of the properties, a
// table of that one object and a trailer that leads back to the former table.
QByteArray AñadidoDePropiedades(const EscritorConCola& pdf, const QString& titulo, const QString& autor)
{
    const auto fin = LeerFin(pdf.cola());
    if (!fin)
        return {};
    const QByteArray info = QByteArray::number(fin->info);
    const QByteArray objeto = info + " 0 obj\n<<\n/Title " + Cadena(titulo) + "\n/Author " + Cadena(autor) +
                              "\n/Creator (Valmerix)\n/Producer (Qt)\n/CreationDate " + Momento() +
                              "\n>>\nendobj\n";
    const qint64 tabla = pdf.escritos() + objeto.size();
    return objeto + "xref\n" + info + " 1\n" + QByteArray::number(pdf.escritos()).rightJustified(10, '0') +
           " 00000 n \ntrailer\n<<\n/Size " + QByteArray::number(fin->objetos) + "\n/Info " + info +
           " 0 R\n/Root " + QByteArray::number(fin->raiz) + " 0 R\n/Prev " + QByteArray::number(fin->tabla) +
           "\n>>\nstartxref\n" + QByteArray::number(tabla) + "\n%%EOF\n";
}

} // namespace valmerix
