#include "settings/valuers_company.h"

#include "common/dates.h"
#include "controls/date_picker.h"
#include "store/query.h"

#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct CampoFicha
{
    QStringView control;
    QStringView columna;
    QStringView titulo;
};

// In the order of the UPDATE; the name, which is the key, stands first.
constexpr std::array kCamposTasador = {
    CampoFicha{u"txtNombreTasador", u"Nombre", u"Nombre:"},
    CampoFicha{u"txtDomicilioTasador", u"Domicilio", u"Domicilio:"},
    CampoFicha{u"txtPoblacionTasador", u"Poblacion", u"Población:"},
    CampoFicha{u"txtCPTasador", u"CodigoPostal", u"Código Postal:"},
    CampoFicha{u"txtProvinciaTasador", u"Provincia", u"Provincia:"},
    CampoFicha{u"txtNIFTasador", u"NIF", u"N.I.F.:"},
    CampoFicha{u"txtTitulacionTasador", u"Titulacion", u"Titulación:"},
    CampoFicha{u"txtColegioOficialTasador", u"ColegioOficial", u"Colegio Oficial:"},
    CampoFicha{u"txtNumeroColegiadoTasador", u"ColegiadoNumero", u"Colegiado Nº:"},
};

constexpr std::array kCamposEmpresa = {
    CampoFicha{u"txtNombreEmpresa", u"Nombre", u"Nombre:"},
    CampoFicha{u"txtDomicilioEmpresa", u"Domicilio", u"Domicilio:"},
    CampoFicha{u"txtPoblacionEmpresa", u"Poblacion", u"Población:"},
    CampoFicha{u"txtCPEmpresa", u"CodigoPostal", u"Código Postal:"},
    CampoFicha{u"txtProvinciaEmpresa", u"Provincia", u"Provincia:"},
    CampoFicha{u"txtNIFEmpresa", u"NIF", u"C.I.F.:"},
    CampoFicha{u"txtNumeroInscripcion", u"NumeroInscripcion", u"Número de inscripción:"},
    CampoFicha{u"txtFechaInscripcion", u"FechaInscripcion", u"Fecha de inscripción:"},
};

constexpr QStringView kFechaInscripcion = u"txtFechaInscripcion";

struct BotonFicha
{
    QStringView control;
    QStringView titulo;
};

constexpr std::array kBotones = {
    BotonFicha{u"bttActualizar", u"Actualizar"}, BotonFicha{u"bttEliminar", u"Eliminar"},
    BotonFicha{u"bttLimpiar", u"Limpiar"},       BotonFicha{u"bttOK", u"Aceptar"},
    BotonFicha{u"bttCancel", u"Cancelar"},
};

/// "Domicilio = 'x', Poblacion = 'y'..." of every field but the key.
template <size_t N>
QString Asignaciones(const Ventana& ficha, const std::array<CampoFicha, N>& campos)
{
    QStringList partes;
    for (size_t i = 1; i < N; ++i)
        partes += campos[i].columna.toString() + u" = '"_s + ficha.texto(campos[i].control) + u'\'';
    return partes.join(u", "_s);
}

} // namespace

Ficha::Ficha(EstadoCompartido& compartido, Dialogos& dialogos, Reloj& reloj, Sistema& sistema)
    : Ventana(u"Ficha"_s, u"Empresa y Tasadores"_s)
    , compartido_(compartido)
    , dialogos_(dialogos)
    , reloj_(reloj)
    , sistema_(sistema)
{
    CrearControles();
    ConectarControles();
}

void Ficha::CrearControles()
{
    const auto crear = [this](const CampoFicha& fila) {
        auto& campo = Añadir<CampoTexto>(fila.control.toString());
        campo.setCaption(fila.titulo.toString());
        connect(&campo, &Control::GotFocus, &campo, &CampoTexto::SeleccionarTodo);
    };
    for (const CampoFicha& fila : kCamposEmpresa)
        crear(fila);
    Añadir<Boton>(u"BttFechaInscripcion"_s).setToolTip(u"Elegir la fecha en el calendario"_s);
    for (const CampoFicha& fila : kCamposTasador)
        crear(fila);
    Añadir<Rejilla>(u"Flexi"_s).setCaption(u"Tasadores"_s);
    for (const BotonFicha& fila : kBotones)
        Añadir<Boton>(fila.control.toString()).setCaption(fila.titulo.toString());
}

void Ficha::ConectarControles()
{
    connect(&boton(u"bttActualizar"), &Boton::Click, this, &Ficha::ActualizarRegistro);
    connect(&boton(u"bttEliminar"), &Boton::Click, this, &Ficha::EliminarRegistro);
    connect(&boton(u"bttLimpiar"), &Boton::Click, this, &Ficha::LimpiarTasador);
    connect(&boton(u"bttOK"), &Boton::Click, this, &Ficha::Aceptar);
    connect(&boton(u"bttCancel"), &Boton::Click, this, [this] { Cerrar(); });
    connect(&rejilla(u"Flexi"), &Rejilla::DblClick, this, &Ficha::CargarTasador);
    connect(&boton(u"BttFechaInscripcion"), &Boton::Click, this, [this] {
        ElegirFecha(campo(kFechaInscripcion), dialogos_, reloj_);
        Enfocar(kFechaInscripcion);
    });
}

void Ficha::Load()
{
    CampoTexto& fecha = campo(kFechaInscripcion);
    fecha.setMask(u"99"_s + compartido_.SeparadorFecha + u"99"_s + compartido_.SeparadorFecha + u"9999"_s);
    fecha.setText(fecha.mascaraVacia());
    {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
        const ConjuntoResultados empresa = consulta.Instantanea2(u"Empresa"_s, u"SELECT * FROM Empresa"_s);
        if (empresa.RecordCount() > 0) {
            for (const CampoFicha& fila : kCamposEmpresa)
                campo(fila.control).setText(empresa.Texto(fila.columna));
            const std::optional<QDate> guardada = LeerFecha(empresa.Texto(u"FechaInscripcion"));
            fecha.setText(guardada ? FechaVisible(*guardada) : fecha.mascaraVacia());
        }
    }
    InicializarGrid();
    Busqueda();
}

void Ficha::InicializarGrid()
{
    rejilla(u"Flexi").setColumnas({QString(), u"Nombre"_s, u"Población"_s, u"Provincia"_s},
                                  {0, 3250, 2000, 2000});
}

void Ficha::Busqueda()
{
    AccesoDatos::clsConsulta consulta(compartido_);
    consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
    const ConjuntoResultados tasadores = consulta.Instantanea2(
        u"Empresa"_s, u"SELECT '' As Vacio, Nombre, Poblacion, Provincia FROM Tasadores ORDER BY Nombre"_s);
    Rejilla& lista = rejilla(u"Flexi");
    for (qint32 fila = 1; fila <= tasadores.RecordCount(); ++fila)
        lista.AddItem(tasadores.ValorRegistroGrid(fila));
}

void Ficha::CargarTasador()
{
    const Rejilla& lista = rejilla(u"Flexi");
    if (lista.Row() < 1)
        return;
    AccesoDatos::clsConsulta consulta(compartido_);
    consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
    const ConjuntoResultados tasador = consulta.Instantanea2(
        u"Empresa"_s, u"SELECT Nombre, Domicilio, Poblacion, CodigoPostal, Provincia, NIF, Titulacion, "
                      u"ColegioOficial, ColegiadoNumero FROM Tasadores WHERE Nombre = '"_s +
                          lista.TextMatrix(lista.Row(), 1) + u'\'');
    if (tasador.RecordCount() == 0)
        return;
    for (const CampoFicha& fila : kCamposTasador)
        campo(fila.control).setText(tasador.Texto(fila.columna));
}

void Ficha::ActualizarRegistro()
{
    const QString& nombre = texto(u"txtNombreTasador");
    if (nombre.isEmpty())
        return;
    {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
        const ConjuntoResultados existente = consulta.Instantanea2(
            u"Empresa"_s, u"SELECT Nombre FROM Tasadores WHERE Nombre = '"_s + nombre + u'\'');
        if (existente.RecordCount() == 0) {
            consulta.EjecutarSentencia(u"Empresa"_s, u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('"_s +
                                                         nombre + u"',0)"_s);
        }
        consulta.EjecutarSentencia(u"Empresa"_s, u"UPDATE Tasadores SET "_s +
                                                     Asignaciones(*this, kCamposTasador) +
                                                     u" WHERE Nombre = '"_s + nombre + u'\'');
        consulta.Confirmar();
    }
    InicializarGrid();
    Busqueda();
    LimpiarTasador();
}

void Ficha::EliminarRegistro()
{
    const QString& nombre = texto(u"txtNombreTasador");
    if (nombre.isEmpty())
        return;
    {
        AccesoDatos::clsConsulta consulta(compartido_);
        consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
        consulta.EjecutarSentencia(u"Empresa"_s,
                                   u"DELETE FROM Tasadores WHERE Nombre = '"_s + nombre + u'\'');
        consulta.Confirmar();
    }
    Rejilla& lista = rejilla(u"Flexi");
    InicializarGrid();
    lista.setRedraw(false);
    Busqueda();
    lista.setRedraw(true);
    LimpiarTasador();
}

void Ficha::LimpiarTasador()
{
    for (const CampoFicha& fila : kCamposTasador)
        campo(fila.control).setText({});
}

void Ficha::ActualizarEmpresa()
{
    const QString& nombre = texto(u"txtNombreEmpresa");
    if (nombre.isEmpty())
        return;
    AccesoDatos::clsConsulta consulta(compartido_);
    consulta.AbrirBaseDatosEmpresa(compartido_.RutaBaseDatos);
    const ConjuntoResultados empresa = consulta.Instantanea2(u"Empresa"_s, u"SELECT * FROM Empresa"_s);
    const bool cambiaNombre = empresa.RecordCount() > 0 && empresa.Texto(u"Nombre") != nombre;
    if (cambiaNombre)
        consulta.EjecutarSentencia(u"Empresa"_s, u"DELETE FROM Empresa"_s);
    if (cambiaNombre || empresa.RecordCount() == 0) {
        consulta.EjecutarSentencia(u"Empresa"_s,
                                   u"INSERT INTO Empresa (Nombre) VALUES ('"_s + nombre + u"')"_s);
    }
    consulta.EjecutarSentencia(u"Empresa"_s, u"UPDATE Empresa SET "_s + Asignaciones(*this, kCamposEmpresa) +
                                                 u" WHERE Nombre = '"_s + nombre + u'\'');
    consulta.Confirmar();
}

void Ficha::Aceptar()
{
    if (!texto(u"txtNombreTasador").isEmpty() &&
        dialogos_.Preguntar(u"Se están editando los datos de un tasador.\n"
                            u"¿Desea actualizar la lista con dichos cambios?"_s,
                            u"Aviso"_s, IconoMensaje::Pregunta)) {
        ActualizarRegistro();
    }
    ActualizarEmpresa();
    Cerrar();
}

bool Ficha::PuedeCerrar()
{
    if (rejilla(u"Flexi").Rows() > 1 && !texto(u"txtNombreEmpresa").isEmpty())
        return true;
    if (dialogos_.Preguntar(u"Para el correcto funcionamiento del programa es necesario introducir al menos "
                            u"el nombre de una empresa y un tasador. Si no introduce dichos datos el "
                            u"programa se cerrará.\n¿Desea introducirlos ahora?"_s,
                            u"Aviso"_s, IconoMensaje::Pregunta)) {
        return false;
    }
    sistema_.TerminarProceso(0);
    return true;
}

} // namespace valmerix
