#include "store/mirror_comparable.h"

#include "common/number_reading.h"
#include "store/query.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

enum class Fuente { Nada, Texto, Fecha, Entero, Decimal, HayAscensor };

/// A piece of the statement: words, a value of the window, words.
struct Pieza
{
    QStringView antes;
    Fuente fuente = Fuente::Nada;
    QStringView control;
    QStringView despues;
    Tipos tipos = kEdificios;
};

// The dwellings have the unit before the lift; a house has no blank behind it, as it has always been.
constexpr Pieza kPiezas[] = {
    {u"UPDATE Testigos SET Fecha = ", Fuente::Fecha, u"BoxFecha", u", "},
    {u"Situacion = '", Fuente::Texto, u"BoxSit", u"', "},
    {u"CP = '", Fuente::Texto, u"BoxCP", u"', "},
    {u"Municipio = '", Fuente::Texto, u"BoxMun", u"', "},
    {u"Provincia = '", Fuente::Texto, u"BoxProv", u"', "},
    {u"Zona = '", Fuente::Texto, u"cboZona", u"', "},
    {u"Antiguedad = ", Fuente::Entero, u"BoxAntig", u", "},
    {u"Dormitorios = ", Fuente::Entero, u"BoxDormitorios", u", ", kViviendas},
    {u"Dormitorios = 0, ", Fuente::Nada, u"", u"", kNave | kLocal},
    {u"Ascensor = 'N', ", Fuente::Nada, u"", u"", kNave | kLocal},
    {u"SupUtil = ", Fuente::Decimal, u"BoxUtil", u", "},
    {u"Superficie = ", Fuente::Decimal, u"BoxConst", u", "},
    {u"ValorFinal = ", Fuente::Decimal, u"BoxTotal", u", "},
    {u"UnidadMedida = 'm²', ", Fuente::Nada, u"", u"", kViviendas},
    {u"UnidadMedida = 'm²' ", Fuente::Nada, u"", u"", kNave | kLocal},
    {u"Ascensor = '", Fuente::HayAscensor, u"BoxAscen", u"' ", kPiso | kApto},
    {u"Ascensor = 'N'", Fuente::Nada, u"", u"", kCasa},
};

QString Valor(const Ventana& ventana, const Pieza& pieza, const clsConsulta& consulta)
{
    if (pieza.fuente == Fuente::Nada)
        return {};
    const QString& texto = ventana.texto(pieza.control);
    switch (pieza.fuente) {
    case Fuente::Fecha:
        return consulta.sInicioFecha() + texto + consulta.sFinalFecha();
    case Fuente::Entero:
        return NumeroSQL(texto, u"0", 0);
    case Fuente::Decimal:
        return NumeroSQL(texto, u"0.00", 2);
    case Fuente::HayAscensor:
        return texto.isEmpty() ? u"N"_s : u"S"_s;
    case Fuente::Texto:
    case Fuente::Nada:
        break;
    }
    return texto;
}

} // namespace

QString AltaDeTestigo(const QString& letra, qint32 numero)
{
    return u"INSERT INTO Testigos (Origen,Tipo,Tasacion) VALUES ('I','"_s + letra + u"',"_s +
           QString::number(-numero) + u")"_s;
}

QString ActualizacionDeTestigo(const Ventana& ventana, const QString& letra, qint32 numero,
                               const clsConsulta& consulta)
{
    const Tipos tipo = TipoDeLetra(letra);
    QString sql;
    for (const Pieza& pieza : kPiezas) {
        if ((pieza.tipos & tipo) != 0)
            sql += pieza.antes % Valor(ventana, pieza, consulta) % pieza.despues;
    }
    return sql + u"WHERE Tipo = '"_s + letra + u"' AND Tasacion = "_s + QString::number(-numero);
}

} // namespace valmerix
