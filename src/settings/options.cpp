#include "settings/options.h"

#include "common/logo_path.h"
#include "common/number_pattern.h"
#include "common/number_reading.h"
#include "store/query.h"
#include "valuation/key_filters.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct FilaEdad
{
    QStringView control;
    QStringView columna;
    QStringView titulo;
    QStringView limiteVisible;
    int limite;
};

constexpr std::array kEdades = {
    FilaEdad{u"Text1", u"EdadViviendas", u"Viviendas (Residencial):", u"100 años", 100},
    FilaEdad{u"Text2", u"EdadLocales", u"Locales (Comercial):", u" 50 años", 50},
    FilaEdad{u"Text3", u"EdadNaves", u"Naves (Industrial):", u" 35 años", 35},
};

struct FilaMoneda
{
    QStringView control;
    QStringView columna;
    QStringView titulo;
    QStringView siVacio; ///< what an emptied field goes back to; empty: no rule
};

constexpr std::array kMoneda = {
    FilaMoneda{u"Text4", u"MonedaSingular", u"Nombre singular", u"peseta"},
    FilaMoneda{u"Text5", u"MonedaPlural", u"Nombre plural", u"pesetas"},
    FilaMoneda{u"Text6", u"MonedaAbreviatura", u"Abreviatura", u"Pt"},
    FilaMoneda{u"Text7", u"MonedaDecimales", u"Decimales", u""},
};

constexpr std::array<QStringView, 9> kEncabezamiento = {
    u"Nombre Empresa",     u"Número/Fecha Inscripción", u"N.I.F. / C.I.F. Empresa",
    u"Nombre Tasador",     u"Domicilio Tasador",        u"N.I.F. Tasador",
    u"Titulación Tasador", u"Colegio Oficial",          u"Colegiado Nº",
};

struct FilaFuente
{
    QStringView control;
    QStringView titulo;
    FuenteImagen fuente;
};

constexpr std::array kFuentes = {
    FilaFuente{u"optFile", u"Fichero", FuenteImagen::Fichero},
    FilaFuente{u"optCamera", u"Cámara", FuenteImagen::Camara},
    FilaFuente{u"optScanner", u"Scanner", FuenteImagen::Escaner},
};

QString Encabezamiento(int i)
{
    return Ventana::Indice(u"chkEncabezamiento", i);
}

} // namespace

Opciones::Opciones(EstadoCompartido& compartido, OpcionesPrograma& opciones, Sistema& sistema,
                   CapturaImagenes& captura, EntornoOpciones& entorno, const Pantalla& pantalla)
    : Ventana(u"Opciones"_s, u"Configuración"_s)
    , compartido_(compartido)
    , opciones_(opciones)
    , sistema_(sistema)
    , captura_(captura)
    , entorno_(entorno)
    , pantalla_(pantalla)
{
    CrearControles();
    ConectarControles();
}

void Opciones::CrearControles()
{
    CrearEdades();
    Añadir<CampoTexto>(u"TrayecBox"_s).setCaption(u"Trayectoria (Ruta de acceso al fichero \" *.exe \")"_s);
    Añadir<Boton>(u"cmdPath"_s).setCaption(u"Trayectoria"_s);
    Añadir<Casilla>(u"chkCerrar"_s)
        .setCaption(u"Cerrar Valmerix al abrir el procesador de texto para liberar memoria"_s);
    CrearMonedaYCabecera();
    Añadir<Casilla>(u"chkMembrete"_s).setCaption(u"Mostrar Membrete"_s);
    Añadir<Imagen>(u"imgLogo"_s).setCaption(u"Logotipo"_s);
    CrearFuentes();
    Añadir<Boton>(u"cmdLogo"_s).setCaption(u"Cargar Imagen"_s);
    Añadir<Boton>(u"Command1"_s).setCaption(u"Borrar Imagen"_s);
    Añadir<Boton>(u"cmdOK"_s).setCaption(u"Guardar"_s);
    Mover(QRect(0, 0, 760, 620));
}

void Opciones::CrearFuentes()
{
    std::vector<OpcionSuelta*> fuentes;
    for (const FilaFuente& fila : kFuentes) {
        fuentes.push_back(&Añadir<OpcionSuelta>(fila.control.toString()));
        fuentes.back()->setCaption(fila.titulo.toString());
    }
    OpcionSuelta::Agrupar(fuentes);
    fuentes.front()->setValue(1);
}

void Opciones::CrearEdades()
{
    for (const FilaEdad& fila : kEdades) {
        auto& campo = Añadir<CampoTexto>(fila.control.toString());
        campo.setCaption(fila.titulo.toString());
        campo.setToolTip(u"Edad máxima: "_s + fila.limiteVisible.trimmed().toString());
        Añadir<Etiqueta>(u"Limite"_s + fila.control.toString()).setCaption(fila.limiteVisible.toString());
    }
}

void Opciones::CrearMonedaYCabecera()
{
    for (const FilaMoneda& fila : kMoneda)
        Añadir<CampoTexto>(fila.control.toString()).setCaption(fila.titulo.toString());
    auto& genero = Añadir<GrupoOpciones>(u"Genero"_s);
    genero.setTitulos({u"Masculino"_s, u"Femenino"_s});
    genero.Elegir(0);
    for (int i = 0; i < static_cast<int>(kEncabezamiento.size()); ++i)
        Añadir<Casilla>(Encabezamiento(i)).setCaption(kEncabezamiento[static_cast<size_t>(i)].toString());
}

void Opciones::ConectarControles()
{
    for (const auto& control : controles()) {
        auto* campo = qobject_cast<CampoTexto*>(control.get());
        if (campo && campo->nombre() != u"Text7") // the number of decimals has no rule at all
            connect(campo, &Control::GotFocus, campo, &CampoTexto::SeleccionarTodo);
    }
    for (const FilaEdad& fila : kEdades)
        ConectarLimite(fila.control, fila.limite);
    for (const FilaMoneda& fila : kMoneda) {
        if (fila.siVacio.isEmpty())
            continue;
        CampoTexto& moneda = campo(fila.control);
        connect(&moneda, &Control::LostFocus, this, [&moneda, defecto = fila.siVacio] {
            if (moneda.Text().isEmpty())
                moneda.setText(defecto.toString());
        });
    }
    CampoTexto& trayecto = campo(u"TrayecBox");
    connect(&trayecto, &Control::LostFocus, this, [this, &trayecto] {
        compartido_.ProcesadorTextos = trayecto.Text().isEmpty() ? u"Null Path"_s : trayecto.Text();
    });
    connect(&boton(u"cmdPath"), &Boton::Click, this,
            [this, &trayecto] { entorno_.MostrarBusqueda(trayecto); });
    connect(&boton(u"cmdLogo"), &Boton::Click, this, &Opciones::CapturarLogo);
    connect(&boton(u"Command1"), &Boton::Click, this, [this] { como<Imagen>(u"imgLogo").setPicture({}); });
    connect(&boton(u"cmdOK"), &Boton::Click, this, [this] { Cerrar(); });
}

void Opciones::ConectarLimite(QStringView nombre, int limite)
{
    CampoTexto& edad = campo(nombre);
    connect(&edad, &CampoTexto::KeyPress, this, [this](int& tecla) { FiltroEntero(tecla, sistema_); });
    connect(&edad, &CampoTexto::Change, this, [this, &edad, limite] {
        if (!edad.Text().isEmpty() && LeerNumero(edad.Text()) > limite) {
            edad.setText(QString::number(limite));
            sistema_.Pitar();
        }
    });
}

void Opciones::Load()
{
    Centrar(*this, pantalla_);
    try {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
        const ConjuntoResultados fila = consulta.Instantanea2(u"Empresa"_s, u"SELECT * FROM Opciones"_s);
        if (fila.RecordCount() > 0)
            MostrarFila(fila);
    } catch (const ErrorAlmacen&) {
        // The window opens all the same, with its fields as designed.
    }
    compartido_.ProcesadorTextos = texto(u"TrayecBox");
    const QString logo = rutaLogo();
    const bool hayLogo = logo != compartido_.RutaBaseDatos && QFileInfo(logo).isFile();
    como<Imagen>(u"imgLogo").setPicture(hayLogo ? logo : QString());
}

void Opciones::MostrarFila(const ConjuntoResultados& fila)
{
    for (const FilaEdad& edad : kEdades)
        campo(edad.control).setText(fila.Texto(edad.columna));
    campo(u"TrayecBox").setText(fila.Texto(u"Trayectoria"));
    casilla(u"chkCerrar").setValue(fila.Texto(u"CerrarAlSalir") == u"V");
    for (const FilaMoneda& moneda : kMoneda)
        campo(moneda.control).setText(fila.Texto(moneda.columna));
    opciones(u"Genero").Elegir(fila.Texto(u"MonedaGenero") == u"F" ? 1 : 0);
    const QString cabecera = fila.Texto(u"Cabecera");
    for (int i = 0; i < static_cast<int>(kEncabezamiento.size()) && i < cabecera.size(); ++i)
        casilla(Encabezamiento(i)).setValue(cabecera[i].digitValue() > 0);
    casilla(u"chkMembrete").setValue(fila.Texto(u"Membrete") == u"S");
}

QString Opciones::rutaLogo() const
{
    return RutaLogo(compartido_.RutaBaseDatos);
}

void Opciones::CapturarLogo()
{
    const auto* const elegida = std::find_if(
        kFuentes.begin(), kFuentes.end(), [this](const FilaFuente& fila) { return marcada(fila.control); });
    if (elegida == kFuentes.end())
        return;
    if (const auto imagen = captura_.LoadCapture(elegida->fuente, sistema_.carpetaPrograma()))
        como<Imagen>(u"imgLogo").setPicture(*imagen);
}

QString Opciones::Sentencia() const
{
    QString digitos;
    for (int i = 0; i < static_cast<int>(kEncabezamiento.size()); ++i)
        digitos += QString::number(casilla(Encabezamiento(i)).Value());
    return u"UPDATE Opciones SET EdadViviendas = "_s + texto(u"Text1") + u",EdadLocales = "_s +
           texto(u"Text2") + u",EdadNaves = "_s + texto(u"Text3") + u",Trayectoria = '"_s +
           texto(u"TrayecBox") + u"',CerrarAlSalir = "_s + (marcada(u"chkCerrar") ? u"'V'"_s : u"'F'"_s) +
           u",MonedaSingular = '"_s + texto(u"Text4") + u"',MonedaPlural= '"_s + texto(u"Text5") +
           u"',MonedaAbreviatura = '"_s + texto(u"Text6") + u"',MonedaDecimales = "_s + texto(u"Text7") +
           u",MonedaGenero = "_s + (opciones(u"Genero").Value(0) ? u"'M'"_s : u"'F'"_s) + u",Cabecera = '"_s +
           digitos + u"',Membrete = '"_s + (marcada(u"chkMembrete") ? u"S"_s : u"N"_s) + u'\'';
}

void Opciones::AlCerrar()
{
    RenovarFoco(); // closed by a key, the field in hand still has its rule to run
    try {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
        consulta.EjecutarSentencia(u"Empresa"_s, Sentencia());
        consulta.Confirmar();
        LeerOpciones(consulta, opciones_);
    } catch (const ErrorAlmacen&) {
        // An empty age or a bad number leaves the row as it was; the window closes all the same.
    }
    const double decimales = LeerNumero(texto(u"Text7"));
    compartido_.FormatoMoneda = PatronMoneda(decimales > 0 ? static_cast<int>(std::min(decimales, 30.0)) : 0);
    GuardarLogo();
}

void Opciones::GuardarLogo()
{
    const QString destino = rutaLogo();
    const QString& origen = como<Imagen>(u"imgLogo").Picture();
    if (origen == destino || destino == compartido_.RutaBaseDatos)
        return; // a database of another name has no logo beside it: never write over the database itself
    if (origen.isEmpty()) {
        QFile::remove(destino);
        return;
    }
    const QString provisional = destino + u".nuevo"_s;
    QFile::remove(provisional);
    if (QFile::copy(origen, provisional)) {
        QFile::remove(destino);
        QFile::rename(provisional, destino);
    }
}

} // namespace valmerix
