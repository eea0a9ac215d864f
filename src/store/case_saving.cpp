#include "store/case_saving.h"

#include "store/case_fields.h"
#include "store/case_sql.h"
#include "store/mirror_comparable.h"
#include "store/query.h"

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

const auto kBase = u"Empresa"_s;
const auto kTitulo = u"Salvar Datos"_s;

/// One saving of the case in hand.
class Guardado
{
public:
    Guardado(CasoAbierto& caso, EstadoCompartido& compartido, clsConsulta& consulta)
        : caso_(caso)
        , ventana_(caso.ventana())
        , compartido_(compartido)
        , consulta_(consulta)
        , letra_(caso.letra())
        , tasador_(ventana_.texto(u"cboNombreTasador"))
    {
    }

    /// False when the case has no row to be written into.
    bool Guardar();
    /// After a failure: the number stands only if its row does.
    void RecogerFallo();

private:
    void Ejecutar(const QString& sql) { consulta_.EjecutarSentencia(kBase, sql); }
    QString numero() const { return QString::number(compartido_.NumeroTasacionActual); }
    QString ClausulaCaso() const;
    QString ClaveDeHijo() const;
    bool DarNumero();
    bool TieneFila();
    void GuardarProblema();
    void GuardarImagenes();
    void GuardarTestigos();

    CasoAbierto& caso_;
    const Ventana& ventana_;
    EstadoCompartido& compartido_;
    clsConsulta& consulta_;
    QString letra_;
    QString tasador_;
    bool numeroNuevo_ = false;
    bool filaCreada_ = false;
};

QString Guardado::ClausulaCaso() const
{
    return u" WHERE Tipo = '"_s + letra_ + u"' AND NombreTasador = '"_s + tasador_ +
           u"' AND NumeroTasacion = "_s + numero();
}

// How the values of every child row begin.
QString Guardado::ClaveDeHijo() const
{
    return u"VALUES ('"_s + tasador_ + u"','"_s + letra_ + u"',"_s + numero() + u", '"_s;
}

bool Guardado::DarNumero()
{
    const ConjuntoResultados fila = consulta_.Instantanea2(
        kBase, u"SELECT Contador FROM Tasadores WHERE Nombre = '"_s + tasador_ + u"'"_s);
    if (fila.RecordCount() == 0)
        return false;
    numeroNuevo_ = true;
    compartido_.NumeroTasacionActual = static_cast<qint32>(fila.Entero(u"Contador")) + 1;
    Ejecutar(u"UPDATE Tasadores SET Contador = "_s + numero() + u" WHERE Nombre = '"_s + tasador_ + u"'"_s);
    Ejecutar(u"INSERT INTO Viviendas (NombreTasador,Tipo,NumeroTasacion) VALUES ('"_s + tasador_ + u"','"_s +
             letra_ + u"',"_s + numero() + u")"_s);
    filaCreada_ = true;
    Ejecutar(AltaDeTestigo(letra_, compartido_.NumeroTasacionActual));
    return true;
}

bool Guardado::TieneFila()
{
    return consulta_.Instantanea2(kBase, u"SELECT NumeroTasacion FROM Viviendas "_s + ClausulaCaso())
               .RecordCount() != 0;
}

bool Guardado::Guardar()
{
    if (compartido_.NumeroTasacionActual == 0 && !DarNumero())
        return false;
    if (!TieneFila())
        return false;
    for (const QString& sql :
         ActualizacionesDeCaso(ventana_, TipoDeLetra(letra_), u"Viviendas", ClausulaCaso(), consulta_)) {
        Ejecutar(sql);
    }
    GuardarProblema();
    GuardarImagenes();
    GuardarTestigos();
    Ejecutar(ActualizacionDeTestigo(ventana_, letra_, compartido_.NumeroTasacionActual, consulta_));
    return true;
}

void Guardado::RecogerFallo()
{
    const bool queda = consulta_.ConfirmarLoHecho();
    if (numeroNuevo_ && !(queda && filaCreada_))
        compartido_.NumeroTasacionActual = 0;
}

void Guardado::GuardarProblema()
{
    if (!ventana_.opciones(u"SitUrb").Value(1))
        return caso_.PonerFraseUrbanistica({});
    Ejecutar(u"DELETE FROM ProblemasUrbanisticos "_s + ClausulaCaso() + u"\r\n"_s +
             u"INSERT INTO ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion, Problema) "_s +
             ClaveDeHijo() + caso_.fraseUrbanistica() + u"')"_s);
}

void Guardado::GuardarImagenes()
{
    Ejecutar(u"DELETE FROM ImagenesAsociadas "_s + ClausulaCaso());
    const Rejilla& rejilla = ventana_.rejilla(u"GridImagen");
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        Ejecutar(u"INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) "_s +
                 ClaveDeHijo() + rejilla.TextMatrix(fila, 1) + u"', '"_s + rejilla.TextMatrix(fila, 0) +
                 u"')"_s);
    }
}

void Guardado::GuardarTestigos()
{
    Ejecutar(u"DELETE FROM TestigosInforme "_s + ClausulaCaso());
    const Rejilla& rejilla = ventana_.rejilla(u"fgrSeleccion");
    for (int fila = 1; fila < rejilla.Rows() && !rejilla.TextMatrix(fila, 0).isEmpty(); ++fila) {
        const QString testigo = rejilla.TextMatrix(fila, 0);
        const QString origen = testigo.toLongLong() < 0 ? u"I"_s : u"E"_s;
        Ejecutar(u"INSERT INTO TestigosInforme (NombreTasador, Tipo, NumeroTasacion, Origen, Testigo) "_s +
                 ClaveDeHijo() + origen + u"', "_s + testigo + u")"_s);
    }
}

} // namespace

bool SalvaVivienda(CasoAbierto& caso, EstadoCompartido& compartido, Dialogos& dialogos)
{
    if (caso.ventana().texto(u"cboNombreTasador").isEmpty()) {
        dialogos.Mensaje(
            u"No se puede guardar la tasación sin seleccionar un Tasador de la lista de Tasadores"_s, kTitulo,
            IconoMensaje::Informacion);
        return false;
    }
    clsConsulta consulta(compartido);
    consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
    if (compartido.NumeroTasacionActual != 0 &&
        !dialogos.Preguntar(
            u"Ya existe un informe anterior de este tasador y con este número. ¿Desea sobreescribirlo?"_s,
            kTitulo, IconoMensaje::Pregunta)) {
        return false;
    }
    Guardado guardado(caso, compartido, consulta);
    try {
        const bool escrito = guardado.Guardar();
        consulta.Confirmar();
        if (!escrito)
            return false;
    } catch (const std::exception&) {
        guardado.RecogerFallo();
        throw;
    }
    if (compartido.alGuardarCaso)
        compartido.alGuardarCaso();
    dialogos.Mensaje(u"Informe guardado con éxito"_s, u"Aviso"_s, IconoMensaje::Informacion);
    return true;
}

} // namespace valmerix
