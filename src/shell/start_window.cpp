#include "shell/start_window.h"

#include "common/dates.h"
#include "common/number_pattern.h"
#include "shell/case_tree.h"
#include "store/query.h"

#include <QFile>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kNombreProducto = u"VALMERIX";
constexpr int kLetras = 8;
constexpr int kCadaLetra = 60;      // ms
constexpr int kEsperaTitulo = 4000; // ms

struct BotonTipo
{
    QStringView etiqueta;
    QStringView titulo;
};

// In the order of SSCommand2(0..5).
constexpr std::array kTipos = {
    BotonTipo{u"Label4", u"Piso"},    BotonTipo{u"Label5", u"Apartamento"}, BotonTipo{u"Label6", u"Casa"},
    BotonTipo{u"Label7", u"Terreno"}, BotonTipo{u"Label8", u"Nave"},        BotonTipo{u"Label9", u"Local"},
};

constexpr std::array<QStringView, 5> kDetrasDelTitulo = {u"Picture1", u"SSPanel1", u"Arbol", u"cmdAbrir",
                                                         u"cmdCopiar"};

// Behind the title too, when there is something to recover.
constexpr std::array<QStringView, 2> kRecuperacion = {u"cmdRecuperar", u"lblRecuperar"};

QString Letra(int i)
{
    return Ventana::Indice(u"Label1", i);
}

} // namespace

QString TituloDelBoton(int indice)
{
    return kTipos.at(static_cast<size_t>(indice)).titulo.toString();
}

void LeerFormatoMoneda(EstadoCompartido& compartido)
{
    AccesoDatos::clsConsulta consulta(compartido);
    consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
    const ConjuntoResultados opciones =
        consulta.Instantanea2(u"Empresa"_s, u"SELECT MonedaDecimales FROM Opciones"_s);
    if (opciones.RecordCount() > 0)
        compartido.FormatoMoneda = PatronMoneda(static_cast<int>(opciones.Entero(u"MonedaDecimales")));
}

Form1::Form1(EstadoCompartido& compartido, Reloj& reloj, Sistema& sistema, Pantalla& pantalla)
    : Ventana(u"Form1"_s, u"Valmerix"_s)
    , compartido_(compartido)
    , reloj_(reloj)
    , sistema_(sistema)
    , pantalla_(pantalla)
{
    CrearControles();
    ConectarControles();
}

void Form1::CrearControles()
{
    Añadir<Imagen>(u"Image1"_s);
    for (int i = 0; i < kLetras; ++i) {
        auto& letra = Añadir<Etiqueta>(Letra(i));
        letra.setCaption(kNombreProducto.sliced(i, 1).toString());
        letra.setVisible(false);
    }
    Añadir<Etiqueta>(u"Label2"_s).setCaption(u"Valoraciones                              Inmobiliarias"_s);
    Añadir<Etiqueta>(u"Label3"_s)
        .setCaption(u"Versión " VALMERIX_VERSION ". Todos los derechos reservados."_s);
    for (const auto& nombre : {u"Label2"_s, u"Label3"_s})
        control(nombre).setVisible(false);
    Añadir<Temporizador>(u"Timer1"_s).setInterval(kEsperaTitulo);
    control(u"Timer1").setEnabled(false);
    Añadir<Temporizador>(u"Timer2"_s).setInterval(kCadaLetra);
    Añadir<Etiqueta>(u"Picture1"_s).setCaption(u"Nueva tasación"_s);
    for (size_t i = 0; i < kTipos.size(); ++i) {
        Añadir<Etiqueta>(kTipos[i].etiqueta.toString()).setCaption(kTipos[i].titulo.toString());
        auto& boton = Añadir<Boton>(Indice(u"SSCommand2", static_cast<int>(i)));
        boton.setCaption(kTipos[i].titulo.toString());
    }
    Añadir<Etiqueta>(u"SSPanel1"_s).setCaption(u"Tasaciones guardadas"_s);
    Añadir<Arbol>(u"Arbol"_s).setCaption(u"Tasaciones guardadas"_s);
    Añadir<Boton>(u"cmdAbrir"_s).setCaption(u"Abrir"_s);
    Añadir<Boton>(u"cmdCopiar"_s).setCaption(u"Copiar"_s);
    Añadir<Boton>(u"cmdRecuperar"_s).setCaption(u"Recuperar el trabajo no guardado"_s);
    Añadir<Etiqueta>(u"lblRecuperar"_s);
    for (const QStringView nombre : kDetrasDelTitulo)
        control(nombre).setVisible(false);
    for (const QStringView nombre : kRecuperacion)
        control(nombre).setVisible(false);
    Mover(QRect(0, 0, 900, 600));
}

void Form1::ConectarControles()
{
    auto& arbol = como<Arbol>(u"Arbol");
    connect(&arbol, &Arbol::DblClick, this, [this, &arbol] { Q_EMIT AbrirPedido(arbol.seleccion()); });
    connect(&boton(u"cmdAbrir"), &Boton::Click, this, [&arbol] { arbol.DoblePulsar(arbol.seleccion()); });
    connect(&boton(u"cmdCopiar"), &Boton::Click, this,
            [this, &arbol] { Q_EMIT CopiarPedido(arbol.seleccion()); });
    connect(&boton(u"cmdRecuperar"), &Boton::Click, this, &Form1::RecuperarPedido);
    for (int i = 0; i < static_cast<int>(kTipos.size()); ++i) {
        connect(&boton(Indice(u"SSCommand2", i)), &Boton::Click, this, [this, i] { Q_EMIT NuevoPedido(i); });
    }
    connect(&como<Temporizador>(u"Timer2"), &Temporizador::Timer, this, &Form1::TicPortada);
    connect(&como<Temporizador>(u"Timer1"), &Temporizador::Timer, this, &Form1::TerminarPortada);
    connect(&como<Imagen>(u"Image1"), &Imagen::Click, this, &Form1::TerminarPortada);
    connect(this, &Ventana::KeyDown, this, [this](int tecla) {
        if (tecla == Qt::Key_Escape)
            Q_EMIT SalidaPedida();
    });
}

void Form1::Load()
{
    auto& fondo = como<Imagen>(u"Image1");
    if (compartido_.MostrarPortada != u"NO")
        fondo.setPicture(sistema_.carpetaPrograma() + u"/fondo.bmp"_s);
    sistema_.PunteroOcupado(true);
    sistema_.DejarPintar();
    compartido_.SeparadorFecha = FechaVisible(reloj_.hoy()).mid(2, 1);
    Centrar(*this, pantalla_);
    if (sistema_.otraInstancia()) {
        sistema_.TerminarProceso(0);
        return;
    }
    ArbolCasos::CargarArbol(como<Arbol>(u"Arbol"), compartido_, sistema_);
    if (compartido_.MostrarPortada == u"NO")
        TerminarPortada();
    sistema_.PunteroOcupado(false);
    compartido_.RestauracionHecha = false;
    LeerFormatoMoneda(compartido_);
}

void Form1::TicPortada()
{
    if (letrasVistas_ < kLetras) {
        control(Letra(letrasVistas_)).setVisible(true);
        ++letrasVistas_;
        return;
    }
    control(u"Label3").setVisible(true);
    control(u"Label2").setVisible(true);
    control(u"Timer2").setEnabled(false);
    control(u"Timer1").setEnabled(true);
}

void Form1::TerminarPortada()
{
    control(u"Image1").setVisible(false);
    for (int i = 0; i < kLetras; ++i)
        control(Letra(i)).setVisible(false);
    control(u"Label2").setVisible(false);
    control(u"Label3").setVisible(false);
    for (const QStringView nombre : kDetrasDelTitulo)
        control(nombre).setVisible(true);
    for (const QStringView nombre : kRecuperacion)
        control(nombre).setVisible(hayBorrador_);
    control(u"Timer1").setEnabled(false);
    control(u"Timer2").setEnabled(false);
}

void Form1::OfrecerBorrador(const QString& detalle)
{
    hayBorrador_ = true;
    control(u"cmdRecuperar").setToolTip(detalle);
    control(u"lblRecuperar").setCaption(detalle);
    for (const QStringView nombre : kRecuperacion)
        control(nombre).setVisible(control(u"Arbol").Visible());
}

void Form1::HabilitarTipos(const std::vector<bool>& hechos)
{
    for (size_t i = 0; i < hechos.size(); ++i) {
        Boton& tipo = boton(Indice(u"SSCommand2", static_cast<int>(i)));
        tipo.setEnabled(hechos[i]);
        tipo.setToolTip(hechos[i] ? u"Nueva tasación: "_s + kTipos[i].titulo.toString()
                                  : u"Este tipo de inmueble estará disponible en una próxima versión"_s);
    }
}

void Form1::AlCerrar()
{
    como<Imagen>(u"Image1").setPicture({});
}

} // namespace valmerix
