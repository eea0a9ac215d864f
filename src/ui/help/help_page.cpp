#include "ui/help/help_page.h"

#include "common/spanish_text.h"
#include "ui/look/theme.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal kMargen = 18;
constexpr int kAnchoMenor = 160;
constexpr QStringView kSufijo = u".html";

QUrl UrlDe(const QString& pagina, const QString& ancla)
{
    QUrl url(u"manual:/"_s + pagina + kSufijo.toString());
    if (!ancla.isEmpty())
        url.setFragment(ancla);
    return url;
}

} // namespace

PaginaAyuda::PaginaAyuda(QWidget* padre)
    : QTextBrowser(padre)
{
    setObjectName(u"Pagina"_s);
    setAccessibleName(u"Página del manual"_s);
    setFrameShape(QFrame::NoFrame);
    setOpenExternalLinks(false);
    // A bar that came and went with the height of the pictures would change their width, and that their
    // height.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(kMargen);
    // Words are followed with the keyboard as well: Tab goes from link to link, Return opens one.
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    VestirPagina();
}

QString PaginaAyuda::NombreDe(const QUrl& url)
{
    const QString fichero = url.fileName();
    return fichero.endsWith(kSufijo) ? fichero.chopped(kSufijo.size()) : QString();
}

void PaginaAyuda::setManual(std::shared_ptr<const Manual> manual)
{
    manual_ = std::move(manual);
}

void PaginaAyuda::Mostrar(const QString& pagina, const QString& ancla)
{
    if (manual_ && manual_->pagina(pagina))
        setSource(UrlDe(pagina, ancla), QTextDocument::HtmlResource);
}

QString PaginaAyuda::pagina() const
{
    return NombreDe(source());
}

void PaginaAyuda::doSetSource(const QUrl& url, QTextDocument::ResourceType tipo)
{
    // A link of a foreign file leads nowhere, and nothing outside the manual is ever read.
    if (manual_ && manual_->pagina(NombreDe(url)))
        QTextBrowser::doSetSource(url, tipo);
}

QVariant PaginaAyuda::loadResource(int tipo, const QUrl& nombre)
{
    if (!manual_)
        return {};
    if (tipo == QTextDocument::ImageResource)
        return CargarImagen(nombre.path().mid(1));
    const PaginaManual* pagina = manual_->pagina(NombreDe(nombre));
    return pagina ? QVariant(pagina->html) : QVariant();
}

int PaginaAyuda::AnchoUtil() const
{
    return std::max(kAnchoMenor, viewport()->width() - 2 * static_cast<int>(kMargen) - 4);
}

QVariant PaginaAyuda::CargarImagen(const QString& nombre) const
{
    QImage imagen = QImage::fromData(manual_->imagen(nombre));
    if (imagen.isNull())
        return {};
    const qreal escala = devicePixelRatioF();
    const int ancho = qRound(std::min<qreal>(imagen.width() * escala, AnchoUtil() * escala));
    if (ancho != imagen.width())
        imagen = imagen.scaledToWidth(ancho, Qt::SmoothTransformation);
    imagen.setDevicePixelRatio(escala);
    return imagen;
}

void PaginaAyuda::VestirPagina()
{
    const QPalette paleta = palette();
    const QString linea = ColorLinea(paleta).name();
    document()->setDefaultStyleSheet(
        u"h1 { font-size: x-large; margin-top: 0; margin-bottom: 10px; }"
        "h2 { font-size: large; margin-top: 20px; margin-bottom: 6px; }"
        "h3 { font-size: medium; margin-top: 14px; margin-bottom: 4px; }"
        "p { margin-top: 0; margin-bottom: 9px; line-height: 130%; }"
        "p.imagen { line-height: 100%; margin-top: 6px; margin-bottom: 14px; }"
        "li { margin-bottom: 4px; line-height: 125%; }"
        "table { margin-top: 4px; margin-bottom: 12px; border-collapse: collapse; }"
        "th, td { padding: 5px 9px; border: 1px solid %1; }"
        "th { text-align: left; }"
        "blockquote { margin-left: 14px; color: %2; }"
        "code { color: %3; }"
        "a { color: %4; text-decoration: underline; }"_s.arg(linea, ColorSecundario(paleta).name(),
                                                             paleta.color(QPalette::Text).name(),
                                                             paleta.color(QPalette::Link).name()));
}

void PaginaAyuda::Recomponer()
{
    if (pagina().isEmpty())
        return;
    const int sitio = verticalScrollBar()->value();
    VestirPagina();
    reload();
    verticalScrollBar()->setValue(sitio);
}

void PaginaAyuda::changeEvent(QEvent* evento)
{
    QTextBrowser::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange)
        Recomponer();
}

void PaginaAyuda::resizeEvent(QResizeEvent* evento)
{
    QTextBrowser::resizeEvent(evento);
    if (std::exchange(anchoCompuesto_, AnchoUtil()) != AnchoUtil())
        Recomponer(); // the pictures follow the width
}

namespace {

/// Places of `buscado` in the folded text of a document.
std::vector<int> Sitios(const QTextDocument& documento, const QString& buscado)
{
    std::vector<int> sitios;
    const QString plegado = Plegar(buscado);
    if (plegado.isEmpty())
        return sitios;
    const QString texto = documento.toPlainText();
    const QString todo = Plegar(texto);
    if (todo.size() != texto.size())
        return sitios; // accents as marks of their own: the places would not be those of the page
    for (qsizetype i = todo.indexOf(plegado); i >= 0; i = todo.indexOf(plegado, i + plegado.size()))
        sitios.push_back(static_cast<int>(i));
    return sitios;
}

} // namespace

int PaginaAyuda::Cuenta(const QString& texto) const
{
    return static_cast<int>(Sitios(*document(), texto).size());
}

bool PaginaAyuda::Buscar(const QString& texto, bool haciaAtras)
{
    const std::vector<int> sitios = Sitios(*document(), texto);
    if (sitios.empty())
        return false;
    const int aqui = textCursor().selectionStart();
    int sitio = haciaAtras ? sitios.back() : sitios.front();
    if (haciaAtras) {
        const auto antes = std::lower_bound(sitios.begin(), sitios.end(), aqui);
        if (antes != sitios.begin())
            sitio = *std::prev(antes);
    } else {
        const auto detras = textCursor().hasSelection()
                                ? std::upper_bound(sitios.begin(), sitios.end(), aqui)
                                : std::lower_bound(sitios.begin(), sitios.end(), aqui);
        if (detras != sitios.end())
            sitio = *detras;
    }
    QTextCursor cursor(document());
    cursor.setPosition(sitio);
    cursor.setPosition(sitio + static_cast<int>(Plegar(texto).size()), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
    return true;
}

} // namespace valmerix
