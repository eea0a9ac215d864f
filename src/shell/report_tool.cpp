#include "shell/report_tool.h"

#include "report/drafting.h"
#include "report/markup.h"
#include "report/rtf_writer.h"
#include "shell/case_opening.h"
#include "shell/headless_ports.h"
#include "shell/start_window.h"
#include "shell/state_json.h"
#include "store/query.h"
#include "valuation/case_form.h"
#include "valuation/kind_descriptions.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <optional>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

enum Salida { kBien = 0, kUso = 1, kSinBase = 2, kSinCaso = 3, kOtroFallo = 4 };

constexpr QStringView kAyuda =
    u"Uso: valmerix-informe BASE TIPO \"TASADOR\" NUMERO [--rtf FICHERO] [--estado]\n"
    u"  BASE      fichero de la base de datos\n"
    u"  TIPO      P piso, A apartamento, C casa\n"
    u"  TASADOR   nombre del tasador, entre comillas si lleva blancos\n"
    u"  NUMERO    número de la tasación\n"
    u"Escribe el texto del informe; con --rtf guarda además el informe con formato; con --estado escribe en\n"
    u"su lugar el formulario cargado y el estado del cálculo.\n";

struct Encargo
{
    QString base;
    ClaveCaso caso;
    QString rtf;
    bool estado = false;
};

std::optional<Encargo> LeerArgumentos(const QStringList& argumentos)
{
    Encargo encargo;
    QStringList sueltos;
    for (qsizetype i = 0; i < argumentos.size(); ++i) {
        const QString& arg = argumentos[i];
        if (arg == u"--estado") {
            encargo.estado = true;
        } else if (arg == u"--rtf") {
            if (++i == argumentos.size())
                return std::nullopt;
            encargo.rtf = argumentos[i];
        } else {
            sueltos << arg;
        }
    }
    if (sueltos.size() != 4)
        return std::nullopt;
    bool esNumero = false;
    encargo.base = sueltos[0];
    encargo.caso = {sueltos[2], sueltos[3].toInt(&esNumero), sueltos[1].toUpper()};
    if (!esNumero || encargo.caso.Tipo.size() != 1 || !DescripcionDe(encargo.caso.Tipo.front()))
        return std::nullopt;
    return encargo;
}

/// One case loaded into its window, without a screen.
class CasoEnMemoria
{
public:
    CasoEnMemoria(const Encargo& encargo, QIODevice& errores)
        : dialogos_(errores)
    {
        compartido_.RutaBaseDatos = encargo.base;
        compartido_.SeparadorFecha = u"/"_s;
        LeerFormatoMoneda(compartido_);
        forma_.emplace(
            *DescripcionDe(encargo.caso.Tipo.front()),
            ServiciosCaso{compartido_, calculo_, frases_, opciones_, dialogos_, reloj_, sistema_, entorno_});
        forma_->Load();
    }

    void Cargar(const ClaveCaso& caso) { CargarCaso(*forma_, compartido_, caso); }

    CasoInforme informe() { return {*forma_, forma_->nombre(), calculo_, frases_, opciones_, compartido_}; }

    QJsonObject enJson(const QStringList& negritas) const
    {
        return {{u"controles"_s, ControlesEnJson(*forma_)},
                {u"estado"_s, EstadoEnJson(calculo_)},
                {u"frases"_s, FrasesEnJson(frases_)},
                {u"negritas"_s, QJsonArray::fromStringList(negritas)}};
    }

private:
    DialogosSinPantalla dialogos_;
    RelojDelSistema reloj_;
    SistemaSinPantalla sistema_;
    EntornoSinPantalla entorno_;
    EstadoCompartido compartido_;
    EstadoCalculo calculo_;
    FrasesInforme frases_;
    OpcionesPrograma opciones_;
    std::optional<Formulario> forma_;
};

bool ExisteCaso(const Encargo& encargo)
{
    EstadoCompartido compartido;
    compartido.RutaBaseDatos = encargo.base;
    const std::optional<ConjuntoResultados> casos = ArbolCasos::Busqueda(compartido, encargo.caso.Tipo);
    for (qint32 fila = 1; casos && fila <= casos->RecordCount(); ++fila) {
        if (casos->Entero(u"NumeroTasacion", fila) == encargo.caso.NumeroTasacion &&
            casos->Texto(u"NombreTasador", fila).compare(encargo.caso.NombreTasador, Qt::CaseInsensitive) ==
                0)
            return true;
    }
    return false;
}

int Redactar(const Encargo& encargo, QIODevice& salida, QIODevice& errores)
{
    CasoEnMemoria caso(encargo, errores);
    if (!ExisteCaso(encargo)) {
        errores.write(u"No existe la tasación %1 de «%2» del tipo %3.\n"_s.arg(encargo.caso.NumeroTasacion)
                          .arg(encargo.caso.NombreTasador, encargo.caso.Tipo)
                          .toUtf8());
        return kSinCaso;
    }
    caso.Cargar(encargo.caso);
    const CasoInforme informe = caso.informe();
    InformeRedactado redactado = RedactarInforme(informe);
    TextoEnriquecido texto(u"Texto"_s);
    BarraProgreso progreso(u"ProgressBar1"_s);
    texto.setText(redactado.texto);
    Negrita(texto, redactado, informe.opciones.MonedaAbreviatura, progreso);
    if (!encargo.rtf.isEmpty())
        GuardarRTF(texto, encargo.rtf);
    if (encargo.estado)
        salida.write(QJsonDocument(caso.enJson(redactado.oColNegrita)).toJson());
    else
        salida.write(redactado.texto.toUtf8());
    return kBien;
}

} // namespace

int EjecutarInforme(const QStringList& argumentos, QIODevice& salida, QIODevice& errores)
{
    const std::optional<Encargo> encargo = LeerArgumentos(argumentos);
    if (!encargo) {
        errores.write(kAyuda.toUtf8());
        return kUso;
    }
    if (!QFileInfo(encargo->base).isFile()) {
        errores.write(u"No se encuentra el fichero «%1».\n"_s.arg(encargo->base).toUtf8());
        return kSinBase;
    }
    try {
        return Redactar(*encargo, salida, errores);
    } catch (const ErrorAlmacen& fallo) {
        errores.write((fallo.mensaje() + u'\n').toUtf8());
        return kSinBase;
    } catch (const std::exception& fallo) {
        errores.write((MensajeDe(fallo) + u'\n').toUtf8());
        return kOtroFallo;
    }
}

} // namespace valmerix
