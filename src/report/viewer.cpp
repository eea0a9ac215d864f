#include "report/viewer.h"

#include "report/find_history.h"
#include "report/report_error.h"
#include "report/rtf_writer.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kBotonesCapitulo = 11;
constexpr int kUltimoBoton = kBotonesCapitulo - 1;

struct BotonVisor
{
    QStringView nombre;
    QStringView caption;
    QStringView ayuda;
};

constexpr BotonVisor kBotones[] = {
    {u"BttBuscar", u"Buscar", u"Buscar el texto en el informe"},
    {u"BttImprimir", u"Imprimir", u"Ver las páginas del informe e imprimirlas"},
    {u"BttMaquina", u"Procesador de textos", u"Abrir el informe con el procesador de textos"},
    {u"SSCommand2", u"Minimizar", u"Minimizar el visor"},
    {u"SSCommand3", u"Maximizar", u"Maximizar o restaurar el visor"},
    {u"SSCommand1", u"Cerrar", u"Cerrar el visor"},
};

constexpr QStringView kAvisoEdicion =
    u"Cualquier cambio que realice en el visor no se reflejará en el formulario y por tanto no se guardará "
    u"con "
    u"la tasación. Además dichos cambios se perderán si vuelve al formulario, ya que el visor se regenera "
    u"siempre desde el formulario. Se recomienda realizar todos los cambios en el formulario";

constexpr QStringView kSinProcesador =
    u"Antes de enviar el informe a un procesador de texto debe seleccionar el programa en la pantalla de "
    u"opciones";

QString TextoDelCapitulo(int indice)
{
    if (indice == 0) {
        return u"INFORME DE TASACION"_s;
    }
    return indice == kUltimoBoton ? u"Asciende el importe"_s : QString::number(indice) + u".  "_s;
}

QString CaptionDelCapitulo(int indice)
{
    if (indice == 0) {
        return u"Inicio"_s;
    }
    return indice == kUltimoBoton ? u"Importe"_s : QString::number(indice);
}

// What leaving the empty path of the settings has always put there counts as no program at all.
bool SinPrograma(const QString& trayecto)
{
    return trayecto.isEmpty() || trayecto == u"Null Path";
}

} // namespace

Visor::Visor(EstadoCompartido& compartido, const OpcionesPrograma& opciones, Dialogos& dialogos,
             Sistema& sistema, EntornoVisor& entorno)
    : Ventana(u"Visor"_s, u"Valmerix - Visor"_s)
    , compartido_(compartido)
    , opciones_(opciones)
    , dialogos_(dialogos)
    , sistema_(sistema)
    , entorno_(entorno)
    , texto_(Añadir<TextoEnriquecido>(u"Texto"_s))
    , combo_(Añadir<Lista>(u"Combo1"_s))
{
    CrearControles();
    CrearBotones();
    ConectarControles();
    combo_.setList(CargarBusquedas(rutaBusquedas()));
    const QRect lugarDelCaso(static_cast<int>(compartido.PosicionLeft),
                             static_cast<int>(compartido.PosicionTop),
                             static_cast<int>(compartido.PosicionWidth), compartido.PosicionHeight);
    if (!lugarDelCaso.isEmpty()) {
        Mover(lugarDelCaso);
    }
}

void Visor::CrearControles()
{
    combo_.setCaption(u"Buscar:"_s);
    auto& editable = Añadir<Casilla>(u"chkEditable"_s);
    editable.setCaption(u"Texto Editable"_s);
    Añadir<Etiqueta>(u"EtiquetaCaption"_s).setCaption(Caption());
    Añadir<Imagen>(u"Image1"_s);
    for (int i = 0; i < kBotonesCapitulo; ++i) {
        auto& boton = Añadir<Boton>(Indice(u"SSCommand5", i));
        boton.setCaption(CaptionDelCapitulo(i));
        boton.setToolTip(i == 0              ? u"Ir al principio del informe"_s
                         : i == kUltimoBoton ? u"Ir al importe de la tasación"_s
                                             : u"Ir al capítulo "_s + QString::number(i));
    }
}

void Visor::CrearBotones()
{
    for (const BotonVisor& fila : kBotones) {
        auto& boton = Añadir<Boton>(fila.nombre.toString());
        boton.setCaption(fila.caption.toString());
        boton.setToolTip(fila.ayuda.toString());
    }
}

void Visor::ConectarControles()
{
    connect(&boton(u"BttBuscar"), &Boton::Click, this, &Visor::Buscar);
    connect(&boton(u"BttImprimir"), &Boton::Click, this, [this] { entorno_.Imprimir(); });
    connect(&boton(u"BttMaquina"), &Boton::Click, this, &Visor::Exportar);
    connect(&boton(u"SSCommand1"), &Boton::Click, this, &Visor::Cerrar);
    connect(&boton(u"SSCommand2"), &Boton::Click, this, [this] { entorno_.MinimizarVisor(); });
    connect(&boton(u"SSCommand3"), &Boton::Click, this, &Visor::AlternarTamaño);
    for (int i = 0; i < kBotonesCapitulo; ++i) {
        connect(&boton(Indice(u"SSCommand5", i)), &Boton::Click, this, [this, i] { IrACapitulo(i); });
    }
    connect(&casilla(u"chkEditable"), &Casilla::Click, this, &Visor::DesbloquearEdicion);
    connect(&combo_, &Lista::Click, this, &Visor::RecordarBusqueda);
    connect(&combo_, &Lista::Change, this, &Visor::RecordarBusqueda);
    connect(&texto_, &TextoEnriquecido::LostFocus, this, [this] { UltimaBusqueda_ = texto_.SelStart(); });
}

void Visor::PonerDocumento(const QString& TipoDocumento, const QStringList& oColNegrita)
{
    TipoDocumento_ = TipoDocumento;
    oColNegrita_ = oColNegrita;
}

QString Visor::rutaBusquedas() const
{
    return sistema_.carpetaPrograma() + u"/Visor.ini"_s;
}

void Visor::AlCerrar()
{
    try {
        GuardarBusquedas(rutaBusquedas(), combo_.List());
    } catch (const ErrorInforme& fallo) {
        dialogos_.Mensaje(fallo.mensaje(), u"Aviso"_s, IconoMensaje::Aviso);
    }
}

void Visor::AlternarTamaño()
{
    setWindowState(WindowState() == EstadoVentana::Maximizada ? EstadoVentana::Normal
                                                              : EstadoVentana::Maximizada);
}

void Visor::Buscar()
{
    texto_.setSelLength(0);
    const int hallado = texto_.Find(combo_.Text(), UltimaBusqueda_);
    if (hallado < 0) {
        UltimaBusqueda_ = 0;
        dialogos_.Mensaje(u"No se encuentra la cadena especificada"_s, u"Aviso"_s, IconoMensaje::Informacion);
        return;
    }
    UltimaBusqueda_ = hallado + 1;
    texto_.VolverAlPrincipio();
    texto_.Find(combo_.Text(), hallado);
}

void Visor::RecordarBusqueda()
{
    const QString busqueda = combo_.Text();
    if (busqueda.isEmpty() || combo_.List().contains(busqueda)) {
        return;
    }
    if (combo_.ListCount() >= kBusquedasRecordadas) {
        combo_.RemoveItem(combo_.ListCount() - 1);
    }
    combo_.AddItem(busqueda, 0);
    UltimaBusqueda_ = 0;
}

void Visor::IrACapitulo(int indice)
{
    texto_.VolverAlPrincipio();
    texto_.Find(TextoDelCapitulo(indice));
    texto_.setSelLength(0);
}

void Visor::DesbloquearEdicion()
{
    const bool editable = marcada(u"chkEditable");
    if (editable) {
        dialogos_.Mensaje(kAvisoEdicion.toString(), u"Aviso"_s, IconoMensaje::Aviso);
    }
    texto_.setLocked(!editable);
}

void Visor::Exportar()
{
    if (SinPrograma(compartido_.ProcesadorTextos)) {
        dialogos_.Mensaje(kSinProcesador.toString(), u"Aviso"_s, IconoMensaje::Aviso);
        entorno_.MostrarOpciones();
        if (SinPrograma(compartido_.ProcesadorTextos)) {
            return;
        }
    }
    const QString carpeta = sistema_.carpetaPrograma();
    GuardarRTF(texto_, carpeta + u"/Tasacion.rtf"_s);
    if (!sistema_.Arrancar(compartido_.ProcesadorTextos, {u"Tasacion.rtf"_s}, carpeta)) {
        return;
    }
    if (opciones_.CerrarAlSalir) {
        sistema_.TerminarProceso(0);
        return;
    }
    entorno_.MinimizarCaso();
}

} // namespace valmerix
