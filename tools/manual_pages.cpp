#include "manual_pages.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <md4c-html.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned kDialecto = MD_FLAG_TABLES | MD_FLAG_NOHTML;

void Añadir(const MD_CHAR* texto, MD_SIZE tamaño, void* destino)
{
    static_cast<QByteArray*>(destino)->append(texto, static_cast<qsizetype>(tamaño));
}

QString EnHtml(const QByteArray& markdown)
{
    QByteArray html;
    if (md_html(markdown.constData(), static_cast<MD_SIZE>(markdown.size()), Añadir, &html, kDialecto, 0) !=
        0)
        throw std::runtime_error("not readable as Markdown");
    return QString::fromUtf8(html);
}

QString SinMarcas(QString html)
{
    static const QRegularExpression marca(u"<[^>]*>"_s);
    html.replace(u"</"_s, u" </"_s).remove(marca);
    html.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&quot;"_s, u"\""_s);
    return html.replace(u"&amp;"_s, u"&"_s).simplified();
}

/// Of a heading: small letters, digits and hyphens.
QString Ancla(const QString& titulo)
{
    QString ancla;
    for (const QChar c : titulo.toLower()) {
        if (c.isLetterOrNumber()) {
            ancla += c;
        } else if (c.isSpace()) {
            ancla += u'-';
        }
    }
    return ancla;
}

QStringList Ventanas(const QByteArray& markdown)
{
    static const QRegularExpression linea(u"^<!-- ventanas: ([^>]*) -->"_s);
    const auto hallada = linea.match(QString::fromUtf8(markdown.left(markdown.indexOf('\n'))));
    return hallada.captured(1).split(u' ', Qt::SkipEmptyParts);
}

/// Cuts the page at its headings and marks their places in it.
void Seccionar(PaginaManual& pagina)
{
    static const QRegularExpression titulo(u"<h([12])>(.*?)</h[12]>"_s);
    QString html;
    qsizetype visto = 0;
    const auto cerrar = [&](qsizetype hasta) {
        if (!pagina.secciones.empty())
            pagina.secciones.back().texto = SinMarcas(pagina.html.sliced(visto, hasta - visto));
    };
    auto hallados = titulo.globalMatch(pagina.html);
    while (hallados.hasNext()) {
        const auto uno = hallados.next();
        cerrar(uno.capturedStart());
        html += pagina.html.sliced(visto, uno.capturedStart() - visto);
        const QString texto = SinMarcas(uno.captured(2));
        const bool principal = uno.captured(1) == u"1";
        const QString ancla = principal ? QString() : Ancla(texto);
        html += u"<h%1>%2%3</h%1>"_s.arg(
            uno.captured(1), principal ? QString() : u"<a name=\"%1\"></a>"_s.arg(ancla), uno.captured(2));
        if (principal)
            pagina.titulo = texto;
        pagina.secciones.push_back({texto, ancla, {}});
        visto = uno.capturedEnd();
    }
    cerrar(pagina.html.size());
    pagina.html = html + pagina.html.sliced(visto);
}

PaginaManual LeerPagina(const QString& ruta, const QString& nombre)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot be read");
    QByteArray markdown = fichero.readAll();
    PaginaManual pagina;
    pagina.nombre = nombre;
    pagina.ventanas = Ventanas(markdown);
    if (!pagina.ventanas.isEmpty())
        markdown = markdown.mid(markdown.indexOf('\n') + 1);
    pagina.html = EnHtml(markdown);
    static const QRegularExpression enlace(u"href=\"([^\":#]*)\\.md"_s);
    pagina.html.replace(enlace, u"href=\"\\1.html"_s);
    pagina.html.replace(u"<p><img"_s, u"<p class=\"imagen\"><img"_s);
    Seccionar(pagina);
    if (pagina.titulo.isEmpty())
        throw std::runtime_error("has no title");
    return pagina;
}

QSet<QString> Destinos(const std::vector<PaginaManual>& paginas)
{
    QSet<QString> destinos;
    for (const PaginaManual& p : paginas) {
        destinos << p.nombre + u".html"_s;
        for (const SeccionManual& s : p.secciones)
            destinos << p.nombre + u".html#"_s + s.ancla;
    }
    return destinos;
}

/// Every value of an attribute in the page.
QStringList Valores(const PaginaManual& pagina, const QString& atributo)
{
    QStringList valores;
    auto hallados = QRegularExpression(atributo + u"=\"([^\"]*)\""_s).globalMatch(pagina.html);
    while (hallados.hasNext())
        valores << hallados.next().captured(1);
    return valores;
}

void ComprobarEnlaces(const std::vector<PaginaManual>& paginas)
{
    const QSet<QString> destinos = Destinos(paginas);
    for (const PaginaManual& p : paginas) {
        for (const QString& valor : Valores(p, u"href"_s)) {
            const QString destino = QString::fromUtf8(QByteArray::fromPercentEncoding(valor.toUtf8()));
            if (!destinos.contains(destino.startsWith(u'#') ? p.nombre + u".html"_s + destino : destino))
                throw std::runtime_error(
                    (p.nombre + u": the link "_s + destino + u" leads nowhere"_s).toStdString());
        }
    }
}

void ComprobarImagenes(const std::vector<PaginaManual>& paginas, const QDir& carpeta)
{
    QSet<QString> mostradas;
    for (const PaginaManual& p : paginas) {
        for (const QString& imagen : Valores(p, u"src"_s)) {
            mostradas << imagen;
            if (!QFile::exists(carpeta.filePath(imagen)))
                throw std::runtime_error((p.nombre + u": there is no picture "_s + imagen).toStdString());
        }
    }
    for (const QString& imagen : QDir(carpeta.filePath(u"img"_s)).entryList({u"*.png"_s})) {
        if (!mostradas.contains(u"img/"_s + imagen))
            throw std::runtime_error((u"no page shows the picture "_s + imagen).toStdString());
    }
}

} // namespace

std::vector<PaginaManual> LeerPaginas(const QDir& carpeta)
{
    std::vector<PaginaManual> paginas;
    for (const QString& fichero : carpeta.entryList({u"*.md"_s}, QDir::Files, QDir::Name)) {
        try {
            paginas.push_back(LeerPagina(carpeta.filePath(fichero), fichero.chopped(3)));
        } catch (const std::runtime_error& fallo) {
            throw std::runtime_error(fichero.toStdString() + ": " + fallo.what());
        }
    }
    ComprobarEnlaces(paginas);
    ComprobarImagenes(paginas, carpeta);
    return paginas;
}

} // namespace valmerix
