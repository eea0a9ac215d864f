#include "report/enumerations.h"

#include "common/number_reading.h"
#include "common/number_words.h"

#include <QStringBuilder>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// The sentence of one group, as its ticked items come.
class Enumeracion
{
public:
    Enumeracion(QString& frase, qsizetype marcadas)
        : frase_(frase)
        , marcadas_(marcadas)
    {
    }

    /// `blanco`: what stands before an item that is alone or first.
    void Añadir(const QString& item, QStringView blanco, bool llevaE)
    {
        const bool primera = puestas_ == 0;
        const bool ultima = puestas_ == marcadas_ - 1;
        frase_ += primera ? blanco : !ultima ? u", "_s : llevaE ? u" e "_s : u" y "_s;
        frase_ += item;
        if (ultima) {
            frase_ += u'.';
        }
        ++puestas_;
    }

private:
    QString& frase_;
    qsizetype marcadas_;
    qsizetype puestas_ = 0;
};

QString TextoDe(const CasoInforme& caso, const Fragmento& fragmento)
{
    return fragmento.campo.isEmpty() ? fragmento.texto.toString() : caso.minusculas(fragmento.campo);
}

QString TextoDe(const CasoInforme& caso, const EstanciaContada& estancia, QString& TextoLetras)
{
    const QString& cuenta = caso.texto(estancia.campo);
    if (!cuenta.isEmpty()) {
        TextoLetras = EnLetrasFemenino(LeerMoneda(cuenta));
        if (estancia.genero == GeneroEstancia::Masculino) {
            TextoLetras = CorrigeUna(TextoLetras);
        }
    }
    const bool una = !cuenta.isEmpty() && LeerNumero(cuenta) == 1;
    const QString destino = estancia.destino.isEmpty() ? QString() : caso.minusculas(estancia.destino);
    return TextoLetras % (una ? estancia.singular : estancia.plural) % destino;
}

template <class Item>
qsizetype ContarMarcadas(const CasoInforme& caso, std::span<const Item> items)
{
    return std::count_if(items.begin(), items.end(),
                         [&](const Item& item) { return caso.ventana.marcada(item.casilla); });
}

QStringView ArranqueDe(const Arranque& arranque, qsizetype marcadas)
{
    return marcadas == 0 ? arranque.ninguno : marcadas == 1 ? arranque.uno : arranque.varios;
}

QString FraseDelGrupo(const CasoInforme& caso, const Grupo& grupo, QString& TextoLetras)
{
    const qsizetype marcadas = ContarMarcadas(caso, grupo.fragmentos) + ContarMarcadas(caso, grupo.contadas);
    QString frase = ArranqueDe(grupo.arranque, marcadas).toString();
    Enumeracion enumeracion(frase, marcadas);
    for (const Fragmento& fragmento : grupo.fragmentos) {
        if (caso.ventana.marcada(fragmento.casilla)) {
            const bool llevaE = fragmento.campo.isEmpty() && fragmento.texto.startsWith(u'i');
            enumeracion.Añadir(TextoDe(caso, fragmento), u" ", llevaE);
        }
    }
    for (const EstanciaContada& estancia : grupo.contadas) {
        if (caso.ventana.marcada(estancia.casilla)) {
            enumeracion.Añadir(TextoDe(caso, estancia, TextoLetras), u"", false);
        }
    }
    return frase;
}

} // namespace

FrasesEnumeradas ComponerEnumeraciones(const CasoInforme& caso, std::span<const Grupo> grupos,
                                       QString TextoLetras)
{
    FrasesEnumeradas frases;
    for (const Grupo& grupo : grupos) {
        frases.*grupo.frase = FraseDelGrupo(caso, grupo, TextoLetras);
    }
    return frases;
}

} // namespace valmerix
