#include "store/schema.h"

#include "store/case_fields.h"
#include "store/engine_message.h"
#include "store/file_format.h"
#include "store/query.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringBuilder>
#include <QStringList>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// Texts compare blind to case and stay readable to any other tool: no collation of ours in the file.
constexpr QStringView kTexto = u" TEXT COLLATE NOCASE";
constexpr QStringView kClave =
    u"NombreTasador TEXT NOT NULL COLLATE NOCASE, Tipo TEXT NOT NULL COLLATE NOCASE, "
    u"NumeroTasacion INTEGER NOT NULL";

struct Tabla
{
    QStringView nombre;
    QStringView columnas; ///< "name:type" with T text, I whole number, R number, D date; by commas
    QStringView clave;    ///< primary key, empty for none
};

// Two valuers may each have a case of the same kind and number, and each case keeps its mirror row: the
// three fields that tell comparables apart are no primary key.
constexpr Tabla kTestigos = {
    u"Testigos",
    u"Origen:T,Tipo:T,Tasacion:I,Fecha:D,Situacion:T,CP:T,Municipio:T,Provincia:T,Zona:T,Ascensor:T,"
    u"Antiguedad:I,Dormitorios:I,SupUtil:R,Superficie:R,ValorFinal:R,UnidadMedida:T",
    u"",
};

constexpr Tabla kTablas[] = {
    {u"ProblemasUrbanisticos", u"NombreTasador:T,Tipo:T,NumeroTasacion:I,Problema:T", u""},
    {u"ImagenesAsociadas", u"NombreTasador:T,Tipo:T,NumeroTasacion:I,Nombre:T,Ruta:T", u""},
    {u"TestigosInforme", u"NombreTasador:T,Tipo:T,NumeroTasacion:I,Origen:T,Testigo:I", u""},
    kTestigos,
    {u"Tasadores",
     u"Nombre:T,Contador:I,Domicilio:T,Poblacion:T,CodigoPostal:T,Provincia:T,NIF:T,Titulacion:T,"
     u"ColegioOficial:T,ColegiadoNumero:T",
     u"Nombre"},
    {u"Empresa",
     u"Nombre:T,Domicilio:T,Poblacion:T,CodigoPostal:T,Provincia:T,NIF:T,NumeroInscripcion:T,"
     u"FechaInscripcion:T",
     u"Nombre"},
    {u"Opciones",
     u"EdadViviendas:I,EdadLocales:I,EdadNaves:I,Trayectoria:T,CerrarAlSalir:T,MonedaSingular:T,"
     u"MonedaPlural:T,MonedaAbreviatura:T,MonedaDecimales:I,MonedaGenero:T,Cabecera:T,Membrete:T,"
     u"TipoSuperficie:T,MostrarCabecera:T,PerfilPiso:T,PerfilApartamento:T,PerfilCasa:T,PerfilNave:T,"
     u"PerfilLocal:T,PerfilTerreno:T,Equivalencia:T",
     u""},
    {u"Informe", u"Formato:T,TextoLinea:T", u""},
    {u"FotosInforme", u"Ruta:T,Texto:T", u""},
};

constexpr QStringView kIndicesTestigos[] = {
    u"CREATE INDEX TestigosPorTipo ON Testigos (Tipo, Tasacion)",
    u"CREATE INDEX TestigosPorNumero ON Testigos (Tasacion)",
    u"CREATE INDEX TestigosPorFecha ON Testigos (Tipo, Fecha, Situacion)",
};

constexpr QStringView kIndices[] = {
    u"CREATE INDEX ProblemasPorCaso ON ProblemasUrbanisticos (NombreTasador, Tipo, NumeroTasacion)",
    u"CREATE INDEX ImagenesPorCaso ON ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion)",
    u"CREATE INDEX TestigosInformePorCaso ON TestigosInforme (NombreTasador, Tipo, NumeroTasacion)",
    u"CREATE INDEX TestigosInformePorTestigo ON TestigosInforme (Origen, Tipo, Testigo)",
};

// Boxes of the section profile of each kind: sections, then single lines; all on in a new installation.
struct Perfil
{
    int apartados;
    int puntos;
};
constexpr Perfil kPerfilPiso{23, 16};
constexpr Perfil kPerfilCasa{23, 13};
constexpr Perfil kPerfilNave{22, 13};
constexpr Perfil kPerfilLocal{24, 11};
constexpr Perfil kPerfilTerreno{26, 5};

QString TodoEncendido(const Perfil& perfil)
{
    return {perfil.apartados + perfil.puntos, u'1'};
}

QStringView Tipo(QStringView letra)
{
    if (letra == u"T")
        return kTexto;
    if (letra == u"D")
        return u" DATE";
    return letra == u"I" ? QStringView(u" INTEGER") : QStringView(u" REAL");
}

QString CrearTabla(const Tabla& tabla)
{
    QStringList columnas;
    for (const QStringView columna : tabla.columnas.split(u','))
        columnas << columna.chopped(2) % Tipo(columna.last(1));
    if (!tabla.clave.isEmpty())
        columnas << u"PRIMARY KEY (%1)"_s.arg(tabla.clave);
    return u"CREATE TABLE %1 (%2)"_s.arg(tabla.nombre, columnas.join(u", "_s));
}

QStringView TipoDe(const CampoCaso& campo)
{
    switch (campo.forma) {
    case FormaCampo::Fecha:
        return u" DATE";
    case FormaCampo::Numero:
    case FormaCampo::Habitantes:
        return campo.decimalesEscritura == 0 ? u" INTEGER" : u" REAL";
    case FormaCampo::SinComillas:
        return u" NUMERIC";
    case FormaCampo::Casilla:
    case FormaCampo::Opcion:
    case FormaCampo::OpcionesSueltas:
        return u" INTEGER";
    case FormaCampo::Texto:
    case FormaCampo::TextoConBlanco:
    case FormaCampo::Casillas:
        break;
    }
    return kTexto;
}

// The tree and the listings walk one kind by valuer and number; with the index they read its few columns
// and not whole cases.
QStringList CrearTablaDeCasos(const TablaCasos& tabla)
{
    QStringList columnas{kClave.toString()};
    QStringList vistas;
    for (const CampoCaso& campo : CamposDeCaso()) {
        const QString columna = campo.columna.toString();
        if (!campo.es(tabla.tipos) || vistas.contains(columna))
            continue;
        vistas << columna;
        columnas << columna % TipoDe(campo);
    }
    columnas << u"PRIMARY KEY (NombreTasador, Tipo, NumeroTasacion)"_s;
    return {u"CREATE TABLE %1 (%2)"_s.arg(tabla.nombre, columnas.join(u", "_s)),
            u"CREATE INDEX %1PorTipo ON %1 (Tipo, NombreTasador, NumeroTasacion, Situacion, Municipio)"_s.arg(
                tabla.nombre)};
}

QString FilaDeOpciones()
{
    return u"INSERT INTO Opciones VALUES (100, 50, 35, '', 'F', 'euro', 'euros', '€', 2, 'M', '111111111', "
           u"'N', "
           u"'Const', 'V', '%1', '%1', '%2', '%3', '%4', '%5', '831,0964')"_s.arg(
               TodoEncendido(kPerfilPiso), TodoEncendido(kPerfilCasa), TodoEncendido(kPerfilNave),
               TodoEncendido(kPerfilLocal), TodoEncendido(kPerfilTerreno));
}

QStringList OrdenesDeTestigos()
{
    QStringList ordenes{CrearTabla(kTestigos)};
    for (const QStringView indice : kIndicesTestigos)
        ordenes << indice.toString();
    return ordenes;
}

QStringList OrdenesDeInstalacion()
{
    QStringList ordenes;
    for (const TablaCasos& tabla : kTablasDeCasos)
        ordenes << CrearTablaDeCasos(tabla);
    for (const Tabla& tabla : kTablas)
        ordenes << CrearTabla(tabla);
    for (const QStringView indice : kIndicesTestigos)
        ordenes << indice.toString();
    for (const QStringView indice : kIndices)
        ordenes << indice.toString();
    return ordenes << u"INSERT INTO Empresa (Nombre) VALUES ('')"_s << FilaDeOpciones();
}

void Escribir(const QString& ruta, const QStringList& ordenes)
{
    try {
        SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        base.exec("PRAGMA synchronous = EXTRA");
        SQLite::Transaction transaccion(base);
        base.exec("PRAGMA application_id = " + std::to_string(kIdentidadFichero));
        base.exec("PRAGMA user_version = " + std::to_string(kVersionFichero));
        for (const QString& orden : ordenes)
            base.exec(orden.toStdString());
        transaccion.commit();
    } catch (const SQLite::Exception& fallo) {
        throw ErrorAlmacen(u"No se puede crear la base de datos «%1»: %2"_s.arg(
            ruta, MensajeDelMotor(fallo.getErrorCode(), QString::fromUtf8(fallo.getErrorStr()))));
    }
}

// Made beside its place and moved there in one step.
void Instalar(const QString& ruta, const QStringList& ordenes)
{
    if (QFileInfo::exists(ruta))
        throw ErrorAlmacen(u"«%1» ya existe."_s.arg(ruta));
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QDir().mkpath(carpeta))
        throw ErrorAlmacen(u"No se puede crear la carpeta «%1»."_s.arg(carpeta));
    const QString parcial = ruta + u".parcial"_s;
    QFile::remove(parcial);
    try {
        Escribir(parcial, ordenes);
        if (!QFile::rename(parcial, ruta))
            throw ErrorAlmacen(u"No se puede escribir en «%1»."_s.arg(ruta));
    } catch (const ErrorAlmacen&) {
        QFile::remove(parcial);
        throw;
    }
}

} // namespace

void InstalarBaseDatos(const QString& ruta)
{
    Instalar(ruta, OrdenesDeInstalacion());
}

void InstalarPlantillaTestigos(const QString& ruta)
{
    Instalar(ruta, OrdenesDeTestigos());
}

} // namespace valmerix
