#include "report/printing.h"

#include "common/logo_path.h"
#include "store/query.h"

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

const QString kEmpresa = u"Empresa"_s;
constexpr int kZoom = 90;

void VaciarTablas(clsConsulta& consulta)
{
    consulta.EjecutarSentencia(kEmpresa, u"DELETE FROM Informe"_s);
    consulta.EjecutarSentencia(kEmpresa, u"DELETE FROM FotosInforme"_s);
}

std::vector<FotografiaImpresa> VolcarFotografias(clsConsulta& consulta, const Rejilla& rejilla)
{
    std::vector<FotografiaImpresa> fotografias;
    if (rejilla.Rows() <= 1)
        return fotografias;
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        consulta.EjecutarSentencia(kEmpresa, u"INSERT INTO FotosInforme VALUES ('"_s +
                                                 rejilla.TextMatrix(fila, 0) + u"', '"_s +
                                                 rejilla.TextMatrix(fila, 1) + u"')"_s);
    }
    const ConjuntoResultados filas = consulta.Instantanea2(kEmpresa, u"SELECT * FROM FotosInforme"_s);
    const QString ruta = filas.NombreCampo(0);
    const QString pie = filas.NombreCampo(1);
    for (qint32 fila = 1; fila <= filas.RecordCount(); ++fila)
        fotografias.push_back({filas.Texto(ruta, fila), filas.Texto(pie, fila)});
    return fotografias;
}

// A last line without its line feed is not printed, and quotes are left as they are.
void VolcarTexto(clsConsulta& consulta, QStringView texto)
{
    qsizetype inicio = 0;
    for (qsizetype fin = texto.indexOf(u'\n'); fin >= 0; fin = texto.indexOf(u'\n', inicio)) {
        QString linea = texto.sliced(inicio, fin - inicio).toString();
        linea.remove(u'\r');
        consulta.EjecutarSentencia(kEmpresa, u"INSERT INTO Informe VALUES(' ','"_s + linea + u"')"_s);
        inicio = fin + 1;
    }
}

void MarcarNegritas(clsConsulta& consulta, const QStringList& oColNegrita)
{
    const QString comodin = consulta.sComodin();
    for (const QString& titulo : oColNegrita) {
        if (titulo.isEmpty())
            continue;
        consulta.EjecutarSentencia(kEmpresa, u"UPDATE Informe SET Formato = 'N' WHERE TextoLinea LIKE '"_s +
                                                 comodin + titulo + comodin + u"'"_s);
    }
}

MembreteImpreso LeerMembrete(clsConsulta& consulta, const QString& rutaBaseDatos)
{
    MembreteImpreso membrete;
    membrete.Logo = LogoJuntoA(rutaBaseDatos);
    const ConjuntoResultados empresa = consulta.Instantanea2(kEmpresa, u"SELECT * FROM Empresa"_s);
    if (empresa.RecordCount() == 0)
        return membrete;
    membrete.lblNombreEmpresa = empresa.Texto(u"Nombre");
    membrete.lblDomicilio = empresa.Texto(u"Domicilio");
    membrete.lblPoblación = empresa.Texto(u"Poblacion");
    membrete.lblCodigoPostal = empresa.Texto(u"CodigoPostal");
    membrete.lblProvincia = empresa.Texto(u"Provincia");
    membrete.lblNIF = empresa.Texto(u"NIF");
    return membrete;
}

std::vector<LineaImpresa> LeerLineas(clsConsulta& consulta)
{
    const ConjuntoResultados filas = consulta.Instantanea2(kEmpresa, u"SELECT * FROM Informe"_s);
    std::vector<LineaImpresa> lineas;
    lineas.reserve(static_cast<size_t>(filas.RecordCount()));
    for (qint32 fila = 1; fila <= filas.RecordCount(); ++fila)
        lineas.push_back({filas.Texto(u"TextoLinea", fila), filas.Texto(u"Formato", fila) == u"N"});
    return lineas;
}

QString Titulo(const QString& documento, qint32 numero)
{
    return numero == 0 ? documento : documento + u" número "_s + QString::number(numero);
}

enum class Piezas { TextoSolo, Todas };

DocumentoImpreso Volcar(const DatosImpresion& datos, Piezas piezas)
{
    clsConsulta consulta(datos.compartido);
    consulta.AbrirBaseDatosEmpresa(datos.compartido.RutaBaseDatos);
    DocumentoImpreso documento;
    VaciarTablas(consulta);
    if (piezas == Piezas::Todas)
        documento.fotografias = VolcarFotografias(consulta, datos.GridImagen);
    VolcarTexto(consulta, datos.texto);
    MarcarNegritas(consulta, datos.oColNegrita);
    if (piezas == Piezas::Todas && datos.membrete)
        documento.membrete = LeerMembrete(consulta, datos.compartido.RutaBaseDatos);
    documento.lineas = LeerLineas(consulta);
    consulta.Confirmar();
    return documento;
}

// The connection is dropped while the preview stands open: it may stay so for hours.
void Imprimir(const DatosImpresion& datos, Impresion& impresion, Piezas piezas, const QString& nombre)
{
    DocumentoImpreso documento = Volcar(datos, piezas);
    documento.caption = u"Previsualización de Impresión"_s;
    documento.zoom = kZoom;
    documento.titulo = Titulo(nombre, datos.compartido.NumeroTasacionActual);
    documento.autor = datos.autor;
    impresion.Previsualizar(documento);

    clsConsulta consulta(datos.compartido);
    consulta.AbrirBaseDatosEmpresa(datos.compartido.RutaBaseDatos);
    VaciarTablas(consulta);
    consulta.Confirmar();
}

} // namespace

void ImprimirInforme(const DatosImpresion& datos, Impresion& impresion)
{
    Imprimir(datos, impresion, Piezas::Todas, u"Informe de tasación"_s);
}

void ImprimirCertificado(const DatosImpresion& datos, Impresion& impresion)
{
    Imprimir(datos, impresion, Piezas::TextoSolo, u"Certificado de tasación"_s);
}

void ImprimirDocumento(QStringView TipoDocumento, const DatosImpresion& datos, Impresion& impresion)
{
    if (TipoDocumento == u"Informe")
        ImprimirInforme(datos, impresion);
    else
        ImprimirCertificado(datos, impresion);
}

} // namespace valmerix
