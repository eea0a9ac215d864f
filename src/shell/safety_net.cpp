#include "shell/safety_net.h"

#include "common/dates.h"
#include "shell/case_opening.h"
#include "shell/start_window.h"
#include "shell/state_json.h"
#include "shell/window_restoring.h"
#include "store/case_fields.h"
#include "store/query.h"
#include "valuation/case_form.h"

#include <QFile>
#include <QSet>
#include <QSignalBlocker>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kBotonesTipo = 6;

/// The controls whose content is stored, by the save or at the window's end; what is left are searches,
/// previews and buttons.
QSet<QString> ControlesQueSeGuardan(const QString& letra)
{
    QSet<QString> nombres{u"cboNombreTasador"_s, u"GridImagen"_s, u"fgrSeleccion"_s};
    for (const CampoCaso& campo : CamposDeCaso()) {
        if (!campo.es(TipoDeLetra(letra)))
            continue;
        for (const QStringView nombre : campo.controles.split(u'|'))
            nombres.insert(nombre.toString());
    }
    return nombres;
}

bool EsDelPerfil(const QString& nombre)
{
    return nombre.startsWith(u"chkApartados(") || nombre.startsWith(u"chkPuntos(");
}

QStringView TablaDe(const QString& letra)
{
    for (const TablaCasos& tabla : kTablasDeCasos) {
        if ((tabla.tipos & TipoDeLetra(letra)) != 0)
            return tabla.nombre;
    }
    return {};
}

QString TituloDelTipo(const QString& letra)
{
    for (int i = 0; i < kBotonesTipo; ++i) {
        if (LetraDelBoton(i) == letra)
            return TituloDelBoton(i);
    }
    return letra;
}

} // namespace

RedSeguridad::RedSeguridad(EstadoCompartido& compartido, EstadoCalculo& calculo, FrasesInforme& frases,
                           Dialogos& dialogos, const Reloj& reloj, Sistema& sistema)
    : compartido_(compartido)
    , calculo_(calculo)
    , frases_(frases)
    , reloj_(reloj)
    , copia_(compartido, dialogos, reloj)
    , borradores_(dialogos, sistema)
{
    compartido_.antesDeEscribir = [this] { copia_.AntesDeEscribir(); };
    compartido_.alGuardarCaso = [this] { AlGuardar(); };
}

RedSeguridad::~RedSeguridad()
{
    compartido_.antesDeEscribir = {};
    compartido_.alGuardarCaso = {};
}

std::optional<Borrador> RedSeguridad::Pendiente() const
{
    return FicheroBorrador::MasReciente(FicheroBorrador::carpeta(compartido_.RutaBaseDatos));
}

QString RedSeguridad::Describir(const Borrador& borrador)
{
    const QString situacion = borrador.texto(u"BoxSit").trimmed();
    const QString municipio = borrador.texto(u"BoxMun").trimmed();
    const QString tasador = borrador.texto(u"cboNombreTasador").trimmed();
    QString texto = TituloDelTipo(borrador.letra);
    if (borrador.NumeroTasacion != 0)
        texto += u" n.º "_s + QString::number(borrador.NumeroTasacion);
    if (!tasador.isEmpty())
        texto += u" de "_s + tasador;
    if (!situacion.isEmpty())
        texto += u", "_s + situacion;
    if (!municipio.isEmpty())
        texto += u" ("_s + municipio + u')';
    return texto + u", hasta el "_s + FechaVisible(borrador.cuando.date()) + u" a las "_s +
           borrador.cuando.time().toString(u"HH:mm"_s);
}

bool RedSeguridad::EstaGuardada(const Borrador& borrador) const
{
    const QStringView tabla = TablaDe(borrador.letra);
    if (borrador.NumeroTasacion == 0 || tabla.isEmpty())
        return false;
    AccesoDatos::clsConsulta consulta(compartido_);
    consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
    return consulta
               .Instantanea2(u"Empresa"_s,
                             u"SELECT NumeroTasacion FROM "_s + tabla.toString() + u" WHERE Tipo = '"_s +
                                 borrador.letra + u"' AND NombreTasador = '"_s +
                                 borrador.texto(u"cboNombreTasador") + u"' AND NumeroTasacion = "_s +
                                 QString::number(borrador.NumeroTasacion))
               .RecordCount() != 0;
}

void RedSeguridad::Reponer(Formulario& formulario, const Borrador& borrador)
{
    ReponerVentana(formulario, borrador.controles, borrador.presentacion);
    calculo_ = EstadoDeJson(borrador.calculo);
    frases_ = FrasesDeJson(borrador.frases);
    formulario.Reanudar();
    Lista& tasadores = formulario.lista(u"cboNombreTasador");
    const bool enLista = TasadorEnLista(formulario, tasadores.Text());
    if (!enLista) {
        const QSignalBlocker silencio(&tasadores);
        tasadores.setText({});
    }
    compartido_.NumeroTasacionActual = enLista && EstaGuardada(borrador) ? borrador.NumeroTasacion : 0;
}

void RedSeguridad::Vigilar(Formulario& formulario, Ventana& barra)
{
    caso_ = &formulario;
    barra_ = &barra;
    Conectar(formulario);
    borradores_.Empezar(FicheroBorrador::carpeta(compartido_.RutaBaseDatos), [this] { return Retratar(); });
    Marcar(false);
}

void RedSeguridad::VigilarRecuperado(Formulario& formulario, Ventana& barra, const Borrador& borrador)
{
    Vigilar(formulario, barra);
    borradores_.Empezar(
        FicheroBorrador::carpeta(compartido_.RutaBaseDatos), [this] { return Retratar(); }, borrador.fichero);
    Marcar(true);
}

void RedSeguridad::Conectar(const Formulario& formulario)
{
    oido_ = std::make_unique<QObject>();
    const QSet<QString> guardados = ControlesQueSeGuardan(formulario.letra());
    for (const auto& control : formulario.controles()) {
        const bool seGuarda = guardados.contains(control->nombre()) || EsDelPerfil(control->nombre());
        const auto alCambiar = [this, seGuarda] { AlCambiar(seGuarda); };
        if (const auto* campo = dynamic_cast<const CampoTexto*>(control.get()))
            connect(campo, &CampoTexto::Change, oido_.get(), alCambiar);
        if (const auto* lista = dynamic_cast<const Lista*>(control.get()))
            connect(lista, &Lista::Click, oido_.get(), alCambiar);
        if (const auto* casilla = dynamic_cast<const Casilla*>(control.get()))
            connect(casilla, &Casilla::Click, oido_.get(), alCambiar);
        if (const auto* grupo = dynamic_cast<const GrupoOpciones*>(control.get()))
            connect(grupo, &GrupoOpciones::Click, oido_.get(), alCambiar);
        if (const auto* rejilla = dynamic_cast<const Rejilla*>(control.get()))
            connect(rejilla, &Rejilla::ContenidoCambiado, oido_.get(), alCambiar);
    }
}

// What the rules write while the focus moves only shows a number in its other form.
void RedSeguridad::AlCambiar(bool seGuarda)
{
    if (!caso_)
        return;
    if (seGuarda && !caso_->moviendoFoco())
        Marcar(true);
    if (caso_->modificada())
        borradores_.Apuntar();
}

void RedSeguridad::Anotar()
{
    if (!caso_)
        return;
    Marcar(true);
    borradores_.Apuntar();
}

void RedSeguridad::AlGuardar()
{
    borradores_.Quitar();
    QuitarAnteriores();
    Marcar(false);
}

// What an earlier day left unsaved of the same case is older than what has just been stored.
void RedSeguridad::QuitarAnteriores() const
{
    if (!caso_ || compartido_.NumeroTasacionActual == 0)
        return;
    const QString carpeta = FicheroBorrador::carpeta(compartido_.RutaBaseDatos);
    for (const QString& nombre : FicheroBorrador::EnCarpeta(carpeta)) {
        const QString fichero = carpeta + u'/' + nombre;
        const std::optional<Borrador> borrador = FicheroBorrador::Leer(fichero);
        if (borrador && borrador->letra == caso_->nombre().left(1) &&
            borrador->NumeroTasacion == compartido_.NumeroTasacionActual &&
            borrador->texto(u"cboNombreTasador") == caso_->texto(u"cboNombreTasador"))
            QFile::remove(fichero);
    }
}

void RedSeguridad::Abandonar()
{
    borradores_.Quitar();
    borradores_.Terminar();
    oido_.reset();
    caso_ = nullptr;
    barra_ = nullptr;
}

void RedSeguridad::Marcar(bool pendiente)
{
    if (caso_)
        caso_->setModificada(pendiente);
    if (barra_)
        barra_->setModificada(pendiente);
}

Borrador RedSeguridad::Retratar() const
{
    Borrador borrador;
    borrador.letra = caso_->nombre().left(1);
    borrador.NumeroTasacion = compartido_.NumeroTasacionActual;
    borrador.cuando = reloj_.ahora();
    borrador.controles = ControlesEnJson(*caso_);
    borrador.presentacion = PresentacionEnJson(*caso_);
    borrador.calculo = EstadoEnJson(calculo_);
    borrador.frases = FrasesEnJson(frases_);
    return borrador;
}

} // namespace valmerix
