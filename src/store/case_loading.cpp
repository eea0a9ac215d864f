#include "store/case_loading.h"

#include "common/dates.h"
#include "common/number_reading.h"
#include "store/case_fields.h"
#include "store/query.h"

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

const auto kBase = u"Empresa"_s;

ConjuntoResultados Consultar(const EstadoCompartido& compartido, const QString& sql)
{
    clsConsulta consulta(compartido);
    consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
    return consulta.Instantanea2(kBase, sql);
}

void CargarTasador(CasoAbierto& caso, EstadoCompartido& compartido, const ConjuntoResultados& fila)
{
    const QString nombre = fila.Texto(u"NombreTasador");
    const bool enLista = TasadorEnLista(caso.ventana(), nombre);
    caso.ventana().lista(u"cboNombreTasador").setText(enLista ? nombre : QString());
    compartido.NumeroTasacionActual = enLista ? static_cast<qint32>(fila.Entero(u"NumeroTasacion")) : 0;
}

void CargarFecha(CampoTexto& campo, QDate fecha)
{
    campo.setText(fecha.isValid() ? FechaVisible(fecha) : campo.mascaraVacia());
}

// A stored text shorter than the list leaves the rest unticked.
void CargarCasillas(const Ventana& ventana, QStringView controles, const QString& cifras)
{
    qsizetype i = 0;
    for (const QStringView nombre : controles.split(u'|'))
        ventana.casilla(nombre).setValue(cifras.mid(i++, 1).toInt() != 0 ? 1 : 0);
}

void CargarOpcionesSueltas(const Ventana& ventana, QStringView controles, qint64 elegida)
{
    const auto nombres = controles.split(u'|');
    const qsizetype i = std::clamp<qint64>(elegida, 0, nombres.size() - 1);
    ventana.casilla(nombres[i]).setValue(1);
}

void CargarCampo(const Ventana& ventana, const CampoCaso& campo, const ConjuntoResultados& fila)
{
    switch (campo.forma) {
    case FormaCampo::Texto:
    case FormaCampo::TextoConBlanco:
    case FormaCampo::SinComillas:
        return ventana.campo(campo.controles).setText(fila.Texto(campo.columna));
    case FormaCampo::Fecha:
        return CargarFecha(ventana.campo(campo.controles), fila.Fecha(campo.columna));
    case FormaCampo::Numero:
        return ventana.campo(campo.controles)
            .setText(NumeroVisible(fila.Numero(campo.columna), campo.decimalesVista));
    case FormaCampo::Habitantes: {
        const QString texto = NumeroVisible(fila.Numero(campo.columna), campo.decimalesVista);
        ventana.campo(campo.controles).setMaxLength(static_cast<int>(texto.size()));
        return ventana.campo(campo.controles).setText(texto);
    }
    case FormaCampo::Casilla:
        return ventana.casilla(campo.controles).setValue(fila.Entero(campo.columna) != 0 ? 1 : 0);
    case FormaCampo::Opcion:
        return ventana.opciones(campo.controles).Elegir(static_cast<int>(fila.Entero(campo.columna)));
    case FormaCampo::OpcionesSueltas:
        return CargarOpcionesSueltas(ventana, campo.controles, fila.Entero(campo.columna));
    case FormaCampo::Casillas:
        return CargarCasillas(ventana, campo.controles, fila.Texto(campo.columna));
    }
}

void CargarCampos(const Ventana& ventana, Tipos tipo, const ConjuntoResultados& fila)
{
    for (const CampoCaso& campo : CamposDeCaso()) {
        if (campo.es(tipo) && campo.seLee())
            CargarCampo(ventana, campo, fila);
    }
}

// Any other choice keeps the sentence of the last case held.
void CargarProblema(CasoAbierto& caso, const EstadoCompartido& compartido, const QString& condicion)
{
    if (!caso.ventana().opciones(u"SitUrb").Value(1))
        return;
    const ConjuntoResultados fila =
        Consultar(compartido, u"SELECT Problema FROM ProblemasUrbanisticos WHERE "_s + condicion);
    caso.PonerFraseUrbanistica(fila.RecordCount() == 0 ? QString() : fila.Texto(u"Problema"));
}

void Recalcular(CasoAbierto& caso)
{
    const QString provisional = caso.ventana().texto(u"BoxProvisional");
    if (provisional.isEmpty()) {
        caso.CALCULADOR();
    } else {
        caso.PonerValorVivienda(LeerMoneda(provisional));
        caso.DEDUCTOR();
    }
    caso.CASILLAS();
}

} // namespace

void CargaVivienda(CasoAbierto& caso, EstadoCompartido& compartido, const QString& Tipo,
                   const QString& NombreTasador, qint32 NumeroTasacion)
{
    const QString condicion = u"Tipo = '"_s + Tipo + u"' AND NombreTasador = '"_s + NombreTasador +
                              u"' AND NumeroTasacion = "_s + QString::number(NumeroTasacion);
    const QString sql = u"SELECT * FROM Viviendas WHERE "_s + condicion;
    ConjuntoResultados fila = Consultar(compartido, sql);
    if (fila.RecordCount() == 0) {
        throw ErrorAlmacen(u"No hay ninguna tasación %1 de tipo «%2» de «%3»."_s.arg(NumeroTasacion)
                               .arg(Tipo, NombreTasador),
                           sql);
    }
    CargarTasador(caso, compartido, fila);
    CargarCampos(caso.ventana(), TipoDeLetra(caso.letra()), fila);
    caso.ComponerFrasesDelEdificio();
    CargarProblema(caso, compartido, condicion);
    fila.Cerrar();
    Recalcular(caso);
    caso.CargaGridImagenesAsociadas();
    caso.InicializarGrids(u"fgrBusqueda"_s);
    caso.CargaGridTestigosAsociados();
}

} // namespace valmerix
