#include "ui/printing/line_breaking.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kZona = 14;            // columns of a print zone
constexpr qreal kSangriaMayor = 0.6; // of the line, whatever the blanks that were typed

// Tabs inside a line keep words apart; everything else that is not a letter of some kind is a blank.
QString SinControles(QString texto)
{
    texto.replace(u'\t', u"    "_s);
    for (QChar& letra : texto) {
        if (letra.category() == QChar::Other_Control || letra == QChar::LineSeparator ||
            letra == QChar::ParagraphSeparator)
            letra = u' ';
    }
    return texto;
}

int Columna(QStringView blancos)
{
    int columna = 0;
    for (const QChar letra : blancos)
        columna = letra == u'\t' ? (columna / kZona + 1) * kZona : columna + 1;
    return columna;
}

QString SinBlancosDetras(const QString& texto)
{
    qsizetype fin = texto.size();
    while (fin > 0 && texto[fin - 1].isSpace())
        --fin;
    return texto.left(fin);
}

} // namespace

std::vector<Renglon> PartirEnRenglones(const QString& parrafo, const QFont& letra, qreal ancho)
{
    const auto escrito =
        std::find_if_not(parrafo.begin(), parrafo.end(), [](QChar c) { return c.isSpace(); });
    const qsizetype blancos = escrito - parrafo.begin();
    if (blancos == parrafo.size())
        return {Renglon{}};

    const qreal blanco = QFontMetricsF(letra).horizontalAdvance(u' ');
    const qreal sangria =
        std::min(Columna(QStringView(parrafo).left(blancos)) * blanco, ancho * kSangriaMayor);
    const QString texto = SinControles(parrafo.mid(blancos));
    QTextLayout composicion(texto, letra);
    QTextOption opcion;
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    composicion.setTextOption(opcion);
    std::vector<Renglon> renglones;
    composicion.beginLayout();
    for (QTextLine linea = composicion.createLine(); linea.isValid(); linea = composicion.createLine()) {
        linea.setLineWidth(ancho - sangria);
        renglones.push_back({sangria, SinBlancosDetras(texto.mid(linea.textStart(), linea.textLength()))});
    }
    composicion.endLayout();
    return renglones;
}

} // namespace valmerix
