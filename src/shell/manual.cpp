#include "shell/manual.h"

#include "common/spanish_text.h"

#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPesoTitulo = 100; ///< a word in a title counts as so many in the text
constexpr qsizetype kAntesDelExtracto = 40;
constexpr qsizetype kExtracto = 130;

QStringList Palabras(const QString& plegado)
{
    QStringList palabras;
    QString palabra;
    for (const QChar c : plegado) {
        if (c.isLetterOrNumber()) {
            palabra += c;
        } else if (!palabra.isEmpty()) {
            palabras << std::exchange(palabra, {});
        }
    }
    if (!palabra.isEmpty())
        palabras << palabra;
    palabras.removeDuplicates();
    return palabras;
}

/// Where a word of `plegado` begins with `palabra`, at or behind `desde`; -1 nowhere.
qsizetype Comienzo(const QString& plegado, const QString& palabra, qsizetype desde)
{
    for (qsizetype i = plegado.indexOf(palabra, desde); i >= 0; i = plegado.indexOf(palabra, i + 1)) {
        if (i == 0 || !plegado.at(i - 1).isLetterOrNumber())
            return i;
    }
    return -1;
}

int Cuenta(const QString& plegado, const QString& palabra)
{
    int veces = 0;
    for (qsizetype i = Comienzo(plegado, palabra, 0); i >= 0; i = Comienzo(plegado, palabra, i + 1))
        ++veces;
    return veces;
}

QString Extracto(const QString& texto, const QString& plegado, const QStringList& palabras)
{
    qsizetype primera = -1;
    for (const QString& palabra : palabras) {
        const qsizetype sitio = Comienzo(plegado, palabra, 0);
        if (sitio >= 0 && (primera < 0 || sitio < primera))
            primera = sitio;
    }
    // Folding keeps the places unless the text has accents as marks of their own.
    qsizetype desde =
        plegado.size() == texto.size() ? std::max<qsizetype>(0, primera - kAntesDelExtracto) : 0;
    while (desde > 0 && texto.at(desde - 1).isLetterOrNumber())
        --desde;
    qsizetype hasta = std::min(desde + kExtracto, texto.size());
    while (hasta < texto.size() && texto.at(hasta).isLetterOrNumber())
        ++hasta;
    return (desde > 0 ? u"… "_s : QString()) + texto.sliced(desde, hasta - desde).simplified() +
           (hasta < texto.size() ? u" …"_s : QString());
}

/// How well a section answers; 0 not at all.
int Peso(const QString& titulo, const QString& texto, const QStringList& palabras)
{
    int peso = 0;
    for (const QString& palabra : palabras) {
        const int deLaPalabra = Cuenta(titulo, palabra) * kPesoTitulo + Cuenta(texto, palabra);
        if (deLaPalabra == 0)
            return 0;
        peso += deLaPalabra;
    }
    return peso;
}

} // namespace

Manual::Manual(std::vector<PaginaManual> paginas, QMap<QString, QByteArray> imagenes)
    : paginas_(std::move(paginas))
    , imagenes_(std::move(imagenes))
{
}

const PaginaManual* Manual::pagina(QStringView nombre) const
{
    const auto hallada = std::find_if(paginas_.begin(), paginas_.end(),
                                      [nombre](const PaginaManual& p) { return p.nombre == nombre; });
    return hallada == paginas_.end() ? nullptr : &*hallada;
}

const PaginaManual* Manual::PaginaDe(QStringView ventana) const
{
    for (const PaginaManual& p : paginas_) {
        if (p.ventanas.contains(ventana))
            return &p;
    }
    return paginas_.empty() ? nullptr : &paginas_.front();
}

std::vector<HallazgoManual> Manual::Buscar(const QString& buscado) const
{
    const QStringList palabras = Palabras(Plegar(buscado));
    if (palabras.isEmpty())
        return {};
    std::vector<std::pair<int, HallazgoManual>> hallados;
    for (const PaginaManual& p : paginas_) {
        for (const SeccionManual& s : p.secciones) {
            const QString titulo = s.titulo == p.titulo ? p.titulo : p.titulo + u" › "_s + s.titulo;
            const QString texto = Plegar(s.texto);
            if (const int peso = Peso(Plegar(s.titulo), texto, palabras))
                hallados.emplace_back(
                    peso, HallazgoManual{p.nombre, s.ancla, titulo, Extracto(s.texto, texto, palabras)});
        }
    }
    std::stable_sort(hallados.begin(), hallados.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<HallazgoManual> orden;
    orden.reserve(hallados.size());
    for (auto& [peso, hallazgo] : hallados)
        orden.push_back(std::move(hallazgo));
    return orden;
}

} // namespace valmerix
