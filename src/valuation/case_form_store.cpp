#include "store/query.h"
#include "valuation/case_form.h"

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

const QString kEmpresa = u"Empresa"_s;
constexpr int kFilasRejilla = 10; // with the header

/// The busy pointer while it lives.
class Espera
{
public:
    explicit Espera(Sistema& sistema)
        : sistema_(sistema)
    {
        sistema_.PunteroOcupado(true);
    }
    ~Espera() { sistema_.PunteroOcupado(false); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;

private:
    Sistema& sistema_;
};

struct RejillaTestigos
{
    QStringView nombre;
    QStringList titulos;
    std::vector<int> anchos; // twips
};

std::vector<RejillaTestigos> RejillasTestigos()
{
    const QStringList datos = u"Fecha|Situación|C.P.|Edad|Ascensor|Dormit.|Superficie|Valor"_s.split(u'|');
    return {
        {u"fgrBusqueda", QStringList{{}, {}} + datos, {0, 260, 960, 1700, 740, 600, 800, 900, 1000, 1100}},
        {u"fgrSeleccion", QStringList{{}} + datos, {0, 960, 1955, 740, 600, 800, 900, 1000, 1100}},
    };
}

void AñadirFilas(Rejilla& rejilla, const ConjuntoResultados& filas)
{
    for (qint32 i = 1; i <= filas.RecordCount(); ++i)
        rejilla.AddItem(filas.ValorRegistroGrid(i));
}

} // namespace

void Formulario::Load()
{
    const Espera espera(servicios_.sistema);
    CargarComboTasadores();
    CargaPaleta();
    bool hayOpciones = false;
    {
        clsConsulta consulta(servicios_.compartido);
        consulta.AbrirBaseDatosEmpresa(servicios_.compartido.RutaBaseDatos);
        hayOpciones = LeerOpciones(consulta, servicios_.opciones);
    }
    if (hayOpciones) {
        servicios_.compartido.ProcesadorTextos = servicios_.opciones.Trayectoria;
        AplicarOpciones();
    }
    IniciarCampos();
}

void Formulario::AlCerrar()
{
    MiPosicion();
    const QString sql = u"UPDATE Opciones SET TipoSuperficie = '"_s +
                        (opciones(u"Sup").Value(0) ? u"Util"_s : u"Const"_s) + u"', MostrarCabecera = '"_s +
                        (marcada(u"Check1") ? u"V"_s : u"F"_s) + u"', "_s +
                        descripcion_.columnaPerfil.toString() + u" = '"_s + perfil() + u"'"_s;
    clsConsulta consulta(servicios_.compartido);
    consulta.AbrirBaseDatosEmpresa(servicios_.compartido.RutaBaseDatos);
    consulta.EjecutarSentencia(kEmpresa, sql);
    consulta.Confirmar();
}

void Formulario::CargarComboTasadores()
{
    clsConsulta consulta(servicios_.compartido);
    consulta.AbrirBaseDatosEmpresa(servicios_.compartido.RutaBaseDatos);
    const ConjuntoResultados filas =
        consulta.Instantanea2(kEmpresa, u"SELECT Nombre FROM Tasadores ORDER BY Nombre"_s);
    QStringList nombres;
    for (qint32 i = 1; i <= filas.RecordCount(); ++i)
        nombres.append(filas.Texto(u"Nombre", i));
    Lista& tasadores = lista(u"cboNombreTasador");
    tasadores.setList(nombres);
    if (tasadores.ListIndex() < 0)
        tasadores.setText({});
}

void Formulario::AlElegirTasador()
{
    clsConsulta consulta(servicios_.compartido);
    consulta.AbrirBaseDatosEmpresa(servicios_.compartido.RutaBaseDatos);
    const ConjuntoResultados fila =
        consulta.Instantanea2(kEmpresa, u"SELECT Poblacion, Provincia FROM Tasadores WHERE Nombre = '"_s +
                                            texto(u"cboNombreTasador") + u"'"_s);
    campo(u"BoxPlaza").setText(fila.Texto(u"Poblacion"));
    campo(u"BoxProv").setText(fila.Texto(u"Provincia"));
    campo(u"BoxProvSol").setText(fila.Texto(u"Provincia"));
}

void Formulario::InicializarGrids(const QString& nombre)
{
    for (const RejillaTestigos& r : RejillasTestigos()) {
        if (!nombre.isEmpty() && nombre != r.nombre)
            continue;
        Rejilla& rejilla = Ventana::rejilla(r.nombre);
        rejilla.setRedraw(false);
        rejilla.setColumnas(r.titulos, r.anchos);
        rejilla.setRows(kFilasRejilla);
        rejilla.setRedraw(true);
    }
}

void Formulario::CargaGridTestigosAsociados()
{
    const qint32 numero = servicios_.compartido.NumeroTasacionActual;
    const QString& tasador = texto(u"cboNombreTasador");
    if (numero == 0 || tasador.isEmpty())
        return;
    clsConsulta consulta(servicios_.compartido);
    consulta.AbrirBaseDatosEmpresa(servicios_.compartido.RutaBaseDatos);
    const QString clave = u"Tipo "_s + consulta.sUnion() + u"'#'"_s + consulta.sUnion();
    const ConjuntoResultados filas = consulta.Instantanea2(
        kEmpresa, u"SELECT Tasacion, "_s + consulta.FormatoFechaSelect(u"Fecha"_s, u"FechaF"_s) +
                      u", Situacion, CP, Antiguedad, Ascensor, Dormitorios, Superficie, "_s +
                      consulta.FormatoMonedaSelect(u"ValorFinal"_s, 2, u"ValorFinalF"_s) +
                      u" FROM Testigos WHERE "_s + clave + u" Tasacion IN (SELECT  "_s + clave +
                      u" Testigo FROM TestigosInforme WHERE NombreTasador = '"_s + tasador +
                      u"' AND Tipo = '"_s + letra() + u"' AND NumeroTasacion = "_s + QString::number(numero) +
                      u")"_s);
    if (filas.RecordCount() == 0)
        return;
    Rejilla& rejilla = Ventana::rejilla(u"fgrSeleccion");
    rejilla.setRedraw(false);
    rejilla.setRows(1);
    AñadirFilas(rejilla, filas);
    rejilla.Rellenar(kFilasRejilla);
    rejilla.setRedraw(true);
}

} // namespace valmerix
