#include "controls/rich_text.h"

#include <algorithm>

namespace valmerix {

namespace {

QChar Plegar(QChar c)
{
    if (c.unicode() >= 0x80)
        return c.toCaseFolded();
    return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + (u'a' - u'A')) : c;
}

// Folding unit for unit keeps positions: QString::toCaseFolded may lengthen a text.
QString PlegarUnidades(QStringView texto)
{
    QString plegado(texto.size(), Qt::Uninitialized);
    std::transform(texto.begin(), texto.end(), plegado.begin(), Plegar);
    return plegado;
}

} // namespace

void TextoEnriquecido::AvisarContenido()
{
    contenidoPendiente_ = !redibujar_;
    if (redibujar_)
        Q_EMIT ContenidoCambiado();
}

void TextoEnriquecido::AvisarSeleccion()
{
    seleccionPendiente_ = !redibujar_;
    if (redibujar_)
        Q_EMIT SeleccionCambiada();
}

void TextoEnriquecido::setRedraw(bool valor)
{
    redibujar_ = valor;
    if (contenidoPendiente_ && redibujar_)
        AvisarContenido();
    if (seleccionPendiente_ && redibujar_)
        AvisarSeleccion();
}

void TextoEnriquecido::setText(const QString& texto)
{
    texto_ = texto;
    texto_.remove(u'\r');
    plegado_ = PlegarUnidades(texto_);
    negritas_.clear();
    alineaciones_.assign(static_cast<size_t>(texto_.count(u'\n')) + 1, Alineacion::Izquierda);
    selInicio_ = 0;
    selLongitud_ = 0;
    AvisarContenido();
    Q_EMIT Change();
}

int TextoEnriquecido::Find(const QString& buscado, int desde)
{
    if (buscado.isEmpty())
        return -1;
    const auto hallado = static_cast<int>(plegado_.indexOf(PlegarUnidades(buscado), std::max(desde, 0)));
    if (hallado >= 0)
        Seleccionar(hallado, static_cast<int>(buscado.size()));
    return hallado;
}

void TextoEnriquecido::Seleccionar(int inicio, int longitud)
{
    const int total = static_cast<int>(texto_.size());
    selInicio_ = std::clamp(inicio, 0, total);
    selLongitud_ = std::clamp(longitud, 0, total - selInicio_);
    AvisarSeleccion();
}

void TextoEnriquecido::VolverAlPrincipio()
{
    Seleccionar(0, 0);
    Q_EMIT VistaAlPrincipio();
}

void TextoEnriquecido::setSelLength(int longitud)
{
    Seleccionar(selInicio_, longitud);
}

void TextoEnriquecido::SelBold()
{
    if (selLongitud_ == 0)
        return;
    Tramo nuevo{selInicio_, selInicio_ + selLongitud_};
    const auto toca = [&](const Tramo& t) { return t.inicio <= nuevo.fin && nuevo.inicio <= t.fin; };
    for (const Tramo& t : negritas_) {
        if (toca(t))
            nuevo = {std::min(nuevo.inicio, t.inicio), std::max(nuevo.fin, t.fin)};
    }
    std::erase_if(negritas_, toca);
    const auto sitio = std::lower_bound(negritas_.begin(), negritas_.end(), nuevo,
                                        [](const Tramo& a, const Tramo& b) { return a.inicio < b.inicio; });
    negritas_.insert(sitio, nuevo);
    AvisarContenido();
}

void TextoEnriquecido::SelAlignment(Alineacion alineacion)
{
    const int ultimo = ParrafoDe(selInicio_ + selLongitud_);
    for (int p = ParrafoDe(selInicio_); p <= ultimo; ++p)
        alineaciones_[static_cast<size_t>(p)] = alineacion;
    AvisarContenido();
}

void TextoEnriquecido::setLocked(bool valor)
{
    if (bloqueado_ == valor)
        return;
    bloqueado_ = valor;
    Q_EMIT PresentacionCambiada();
}

Alineacion TextoEnriquecido::alineacion(int parrafo) const
{
    return parrafo >= 0 && parrafo < parrafos() ? alineaciones_[static_cast<size_t>(parrafo)]
                                                : Alineacion::Izquierda;
}

int TextoEnriquecido::ParrafoDe(int posicion) const
{
    return static_cast<int>(QStringView(texto_).first(posicion).count(u'\n'));
}

void TextoEnriquecido::Editar(int posicion, int quitados, const QString& puesto)
{
    const int total = static_cast<int>(texto_.size());
    posicion = std::clamp(posicion, 0, total);
    quitados = std::clamp(quitados, 0, total - posicion);
    const int parrafo = ParrafoDe(posicion);
    const auto menos = QStringView(texto_).sliced(posicion, quitados).count(u'\n');
    const auto mas = puesto.count(u'\n');
    const auto sitio = alineaciones_.begin() + parrafo + 1;
    alineaciones_.erase(sitio, sitio + menos);
    alineaciones_.insert(alineaciones_.begin() + parrafo + 1, static_cast<size_t>(mas),
                         alineaciones_[static_cast<size_t>(parrafo)]);
    AjustarNegritas(posicion, quitados, static_cast<int>(puesto.size()));
    texto_.replace(posicion, quitados, puesto);
    plegado_.replace(posicion, quitados, PlegarUnidades(puesto));
    selInicio_ = posicion + static_cast<int>(puesto.size());
    selLongitud_ = 0;
    Q_EMIT Change();
}

void TextoEnriquecido::AjustarNegritas(int posicion, int quitados, int puestos)
{
    const int finQuitado = posicion + quitados;
    const auto mover = [&](int p, bool esFin) {
        if (p < posicion || (p == posicion && (esFin || quitados > 0)))
            return p;
        if (p >= finQuitado)
            return p - quitados + puestos;
        return esFin ? posicion : posicion + puestos;
    };
    for (Tramo& t : negritas_)
        t = {mover(t.inicio, false), mover(t.fin, true)};
    std::erase_if(negritas_, [](const Tramo& t) { return t.fin <= t.inicio; });
}

} // namespace valmerix
