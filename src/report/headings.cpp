#include "report/headings.h"

#include "report/heading_rules.h"

#include <QStringBuilder>
#include <algorithm>
#include <bit>
#include <stdexcept>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

template <class Casilla>
bool AlgunaMarcada(Indices indices, Casilla marcada)
{
    for (; indices != 0; indices &= indices - 1) {
        if (marcada(std::countr_zero(indices))) {
            return true;
        }
    }
    return false;
}

bool CumpleRegla(const ReglaTitulo& regla, const CasoInforme& caso)
{
    const bool apartados =
        regla.apartados == 0 || AlgunaMarcada(regla.apartados, [&](int i) { return caso.apartado(i); });
    const bool puntos =
        regla.puntos == 0 || AlgunaMarcada(regla.puntos, [&](int i) { return caso.punto(i); });
    return apartados && puntos &&
           (regla.campo.isEmpty() || !QStringView(caso.texto(regla.campo)).trimmed().isEmpty());
}

} // namespace

Titulador::Titulador(const CasoInforme& caso, Clase clase)
    : caso_(caso)
    , clase_(clase)
{
}

bool Titulador::Cumple(QStringView titulo) const
{
    const auto regla =
        std::find_if(std::begin(kReglasTitulos), std::end(kReglasTitulos), [&](const ReglaTitulo& fila) {
            return fila.titulo == titulo && (fila.clases & static_cast<unsigned>(clase_)) != 0;
        });
    if (regla == std::end(kReglasTitulos)) {
        throw std::out_of_range("Título desconocido: " + titulo.toString().toStdString());
    }
    return CumpleRegla(*regla, caso_);
}

QString Titulador::CerramientosYCubierta() const
{
    const bool fachada = Cumple(kCerramientos);
    const bool cubierta = Cumple(kCubierta);
    if (fachada && cubierta) {
        return kCerramientos % u" y "_s % kCubierta;
    }
    return fachada ? kCerramientos.toString() : cubierta ? kCubierta.toString() : QString();
}

QString Titulador::TituloImpreso(const QString& titulo) const
{
    if (titulo == u"Fachada y Cubierta"_s) {
        return CerramientosYCubierta();
    }
    if (!Cumple(titulo)) {
        return {};
    }
    return titulo == u"Situación actual (inmueble)"_s ? u"Situación Actual"_s : titulo;
}

QString Titulador::GetNumber(const QString& titulo, int capitulo, int apartado)
{
    QString resultado;
    const QString impreso = TituloImpreso(titulo);
    if (!impreso.isEmpty() && capitulo == 0) {
        ++Capitulo;
        Apartado = 0;
        Punto = 0;
        resultado = u"%1.  %2:"_s.arg(QString::number(Capitulo), impreso);
    } else if (!impreso.isEmpty() && apartado == 0) {
        ++Apartado;
        Punto = 0;
        resultado = u"%1.%2. %3:"_s.arg(QString::number(capitulo), QString::number(Apartado), impreso);
    } else if (!impreso.isEmpty()) {
        ++Punto;
        resultado = u"%1.%2.%3. %4:"_s.arg(QString::number(capitulo), QString::number(Apartado),
                                           QString::number(Punto), impreso);
    }
    oColNegrita.append(resultado);
    return resultado;
}

} // namespace valmerix
