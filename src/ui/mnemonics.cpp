#include "ui/binder.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// The letter that reads best: the first of a word, otherwise any.
QChar LetraLibre(const QString& titulo, const QString& ocupadas)
{
    QChar cualquiera;
    QChar anterior = u' ';
    for (const QChar c : titulo) {
        const QChar letra = c.toUpper();
        // Accented letters are hard to reach with Alt on many keyboards.
        const bool sirve = letra >= u'A' && letra <= u'Z' && !ocupadas.contains(letra);
        if (sirve && !anterior.isLetter())
            return letra;
        if (sirve && cualquiera.isNull())
            cualquiera = letra;
        anterior = c;
    }
    return cualquiera;
}

} // namespace

QString ConMnemonico(const QString& texto, QChar letra)
{
    QString resultado = texto;
    resultado.replace(u'&', u"&&"_s);
    if (letra.isNull())
        return resultado;
    qsizetype sitio = -1;
    for (qsizetype i = 0; i < resultado.size(); ++i) {
        const bool inicio = i == 0 || !resultado.at(i - 1).isLetter();
        if (resultado.at(i).toUpper() == letra && (sitio < 0 || inicio)) {
            sitio = i;
            if (inicio)
                break;
        }
    }
    return sitio < 0 ? resultado : resultado.insert(sitio, u'&');
}

void RepartirMnemonicos(Enlazador& enlazador, const std::vector<Control*>& controles, QString ocupadas)
{
    for (Control* control : controles) {
        const QChar letra = LetraLibre(control->Caption(), ocupadas);
        if (!letra.isNull())
            ocupadas += letra;
        enlazador.PonerMnemonico(*control, letra);
    }
}

} // namespace valmerix
