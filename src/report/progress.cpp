#include "report/progress.h"

#include "report/markup.h"
#include "report/report_error.h"

#include <QFile>
#include <QScopeGuard>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kEsperaParaPintar = 100; // milliseconds

struct Porcentaje
{
    QStringView etiqueta;
    QStringView texto;
};

constexpr Porcentaje kPorcentajes[] = {{u"Label1", u"0 %"}, {u"Label3", u"50 %"}, {u"Label2", u"100 %"}};

} // namespace

Calculos::Calculos(CasoInforme caso, Visor& visor, Sistema& sistema, EntornoVisor& entorno)
    : Ventana(u"Calculos"_s, u"Redactando el informe"_s)
    , caso_(std::move(caso))
    , visor_(visor)
    , sistema_(sistema)
    , entorno_(entorno)
{
    Añadir<BarraProgreso>(u"ProgressBar1"_s);
    for (const Porcentaje& porcentaje : kPorcentajes) {
        Añadir<Etiqueta>(porcentaje.etiqueta.toString()).setCaption(porcentaje.texto.toString());
    }
    auto& reloj = Añadir<Temporizador>(u"Timer1"_s);
    reloj.setInterval(kEsperaParaPintar);
    reloj.setEnabled(false);
    connect(&reloj, &Temporizador::Timer, this, &Calculos::Marcar);
}

void Calculos::Load()
{
    informe_ = RedactarInforme(caso_);
    visor_.Texto().setText(PasarPorFichero(sistema_.carpetaPrograma(), informe_.texto));
    control(u"Timer1").setEnabled(true);
}

void Calculos::Marcar()
{
    control(u"Timer1").setEnabled(false);
    if (TipoDocumento != u"Certificado"_s) {
        Negrita(visor_.Texto(), informe_, caso_.opciones.MonedaAbreviatura,
                como<BarraProgreso>(u"ProgressBar1"));
    }
    visor_.PonerDocumento(TipoDocumento, informe_.oColNegrita);
    EntornoVisor& entorno = entorno_; // closing may be the end of this window
    Cerrar();
    entorno.MostrarVisor();
}

QString PasarPorFichero(const QString& carpeta, const QString& texto)
{
    QFile fichero(carpeta + u"/TASACION.TXT"_s);
    const auto borrar = qScopeGuard([&fichero] { fichero.remove(); });
    const QByteArray bytes = texto.toUtf8();
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Truncate) || fichero.write(bytes) != bytes.size() ||
        !fichero.flush()) {
        throw ErrorInforme(u"No se ha podido escribir "_s + fichero.fileName() + u": "_s +
                           fichero.errorString());
    }
    fichero.close();
    if (!fichero.open(QIODevice::ReadOnly)) {
        throw ErrorInforme(u"No se ha podido leer "_s + fichero.fileName() + u": "_s + fichero.errorString());
    }
    return QString::fromUtf8(fichero.readAll());
}

} // namespace valmerix
