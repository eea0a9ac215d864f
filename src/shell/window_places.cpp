#include "shell/window_places.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <algorithm>
#include <utility>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kSinMemoria[] = {
    u"Form2", u"SALIDA", u"Reinicio", u"Minimizado", u"VisorMin", u"Calculos",
};
constexpr int kMenor = 80;          // pixels; what is smaller was never a window of ours
constexpr int kSitioMaximizada = 4; // behind the four figures of a place
constexpr qint64 kFicheroMayor = 1024 * 1024;

int Visible(const QRect& lugar, const QRect& pantalla)
{
    const QRect comun = lugar & pantalla;
    return comun.width() * comun.height();
}

QRect LugarDeJson(const QJsonArray& cifras)
{
    return {cifras.at(0).toInt(), cifras.at(1).toInt(), cifras.at(2).toInt(), cifras.at(3).toInt()};
}

} // namespace

bool LugaresVentanas::SeRecuerda(const QString& ventana)
{
    return std::find(std::begin(kSinMemoria), std::end(kSinMemoria), ventana) == std::end(kSinMemoria);
}

void LugaresVentanas::Leer(const QString& fichero)
{
    lugares_.clear();
    cambiado_ = false;
    QFile entrada(fichero);
    if (entrada.size() > kFicheroMayor || !entrada.open(QIODevice::ReadOnly))
        return;
    const QJsonObject objeto = QJsonDocument::fromJson(entrada.readAll()).object();
    for (auto par = objeto.begin(); par != objeto.end(); ++par) {
        const QJsonArray cifras = par.value().toArray();
        const QRect lugar = LugarDeJson(cifras);
        if (SeRecuerda(par.key()) && lugar.width() >= kMenor && lugar.height() >= kMenor)
            lugares_.insert(par.key(), {lugar, cifras.at(kSitioMaximizada).toBool()});
    }
}

void LugaresVentanas::Guardar(const QString& fichero)
{
    if (fichero.isEmpty() || !std::exchange(cambiado_, false))
        return;
    QJsonObject objeto;
    for (auto par = lugares_.cbegin(); par != lugares_.cend(); ++par) {
        const QRect& r = par->lugar;
        QJsonArray cifras{r.x(), r.y(), r.width(), r.height()};
        if (par->maximizada)
            cifras.append(true);
        objeto.insert(par.key(), cifras);
    }
    QSaveFile salida(fichero);
    if (!salida.open(QIODevice::WriteOnly))
        return;
    salida.write(QJsonDocument(objeto).toJson());
    salida.commit();
}

void LugaresVentanas::Apuntar(const QString& ventana, const QRect& lugar, bool maximizada)
{
    if (!SeRecuerda(ventana) || lugar.width() < kMenor || lugar.height() < kMenor)
        return;
    const Recuerdo nuevo{lugar, maximizada};
    Recuerdo& suyo = lugares_[ventana];
    cambiado_ = cambiado_ || suyo != nuevo;
    suyo = nuevo;
}

std::optional<QRect> LugaresVentanas::LugarDe(const QString& ventana, const QList<QRect>& pantallas) const
{
    const auto hallado = lugares_.constFind(ventana);
    if (hallado == lugares_.constEnd())
        return std::nullopt;
    return AjustarAPantallas(hallado->lugar, pantallas);
}

bool LugaresVentanas::EstabaMaximizada(const QString& ventana) const
{
    return lugares_.value(ventana).maximizada;
}

QRect PantallaDe(const QRect& lugar, const QList<QRect>& pantallas)
{
    const auto hallada =
        std::max_element(pantallas.begin(), pantallas.end(), [&](const QRect& a, const QRect& b) {
            return Visible(lugar, a) < Visible(lugar, b);
        });
    return hallada == pantallas.end() ? QRect() : *hallada;
}

QRect AjustarAPantallas(QRect lugar, const QList<QRect>& pantallas)
{
    if (pantallas.isEmpty())
        return lugar;
    const QRect pantalla = PantallaDe(lugar, pantallas);
    lugar.setSize(lugar.size().boundedTo(pantalla.size()));
    lugar.moveLeft(std::clamp(lugar.x(), pantalla.x(), pantalla.x() + pantalla.width() - lugar.width()));
    lugar.moveTop(std::clamp(lugar.y(), pantalla.y(), pantalla.y() + pantalla.height() - lugar.height()));
    return lugar;
}

QRect AgrandarEnPantallas(QRect lugar, QSize menor, const QList<QRect>& pantallas)
{
    const QRect pantalla = PantallaDe(lugar, pantallas);
    const QSize pedido = lugar.size();
    const QPoint centro = lugar.center();
    lugar.setSize(pedido.expandedTo(menor));
    const bool crece = lugar.size() != pedido;
    if (!pantalla.isNull())
        lugar.setSize(lugar.size().boundedTo(pantalla.size()));
    if (crece) {
        lugar.moveCenter(centro);
        lugar.moveLeft(std::max(lugar.x(), pantalla.x()));
        lugar.moveTop(std::max(lugar.y(), pantalla.y()));
    }
    return lugar;
}

} // namespace valmerix
