#include "report/presentation.h"

#include "common/dates.h"
#include "store/query.h"

#include <vector>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A row of master data; every field of a row that is not there is empty.
class Registro
{
public:
    explicit Registro(ConjuntoResultados datos)
        : datos_(std::move(datos))
    {
    }

    QString campo(QStringView nombre) const
    {
        return datos_.RecordCount() > 0 ? datos_.Texto(nombre) : QString();
    }

private:
    ConjuntoResultados datos_;
};

QString Larga(const QString& fecha)
{
    const auto leida = LeerFecha(fecha);
    return leida ? FechaLarga(*leida) : QString();
}

struct Pieza
{
    int casilla; ///< index of chkEncabezamiento
    QString texto;
};

std::vector<Pieza> Piezas(const Registro& tasador, const Registro& empresa)
{
    return {
        {3, tasador.campo(u"Nombre") + u", "_s},
        {6, tasador.campo(u"Titulacion") + u", "_s},
        {7, u"perteneciente al Colegio Oficial de "_s + tasador.campo(u"ColegioOficial") + u", "_s},
        {8, u"colegiado en ejercicio número "_s + tasador.campo(u"ColegiadoNumero") + u", "_s},
        {4, u"con domicilio fiscal en "_s + tasador.campo(u"Domicilio") + u", código postal "_s +
                tasador.campo(u"CodigoPostal") + u" de "_s + tasador.campo(u"Poblacion") + u" ("_s +
                tasador.campo(u"Provincia") + u')'},
        {5, u" y cuyo N.I.F. es el "_s + tasador.campo(u"NIF")},
        {0, u". Dicho informe viene avalado por "_s + empresa.campo(u"Nombre")},
        {1, u" con número de inscripción en el Banco de España "_s + empresa.campo(u"NumeroInscripcion") +
                u" en fecha "_s + Larga(empresa.campo(u"FechaInscripcion")) + u", "_s},
        {2, u"C.I.F. número "_s + empresa.campo(u"NIF")},
    };
}

} // namespace

QString DatoCabecera(const CasoInforme& caso)
{
    Lista& nombreTasador = caso.ventana.lista(u"cboNombreTasador");
    AccesoDatos::clsConsulta consulta(caso.compartido);
    consulta.AbrirBaseDatosEmpresa(caso.compartido.RutaBaseDatos);
    const Registro tasador(consulta.Instantanea2(u"Empresa"_s, u"SELECT * FROM Tasadores WHERE Nombre = '"_s +
                                                                   nombreTasador.Text() + u'\''));
    const Registro empresa(consulta.Instantanea2(u"Empresa"_s, u"SELECT * FROM Empresa"_s));
    nombreTasador.setTag(tasador.campo(u"Titulacion"));

    QString parrafo = u"Que emite "_s;
    for (const Pieza& pieza : Piezas(tasador, empresa)) {
        if (caso.opciones.encabezamiento(pieza.casilla)) {
            parrafo += pieza.texto;
        }
    }
    return parrafo + u'.';
}

} // namespace valmerix
