#include "shell/case_tree.h"

#include "common/ini_file.h"
#include "common/spanish_text.h"
#include "store/query.h"

#include <QDir>
#include <algorithm>
#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct FilaCarpeta
{
    QStringView letra;
    QStringView texto;
    QStringView tabla;
};

constexpr std::array kCarpetas = {
    FilaCarpeta{u"P", u"Pisos", u"Viviendas"}, FilaCarpeta{u"A", u"Apartamentos", u"Viviendas"},
    FilaCarpeta{u"C", u"Casas", u"Viviendas"}, FilaCarpeta{u"L", u"Locales", u"Locales"},
    FilaCarpeta{u"N", u"Naves", u"Naves"},     FilaCarpeta{u"T", u"Terrenos", u"Terrenos"},
};

QStringView TablaDe(const QString& letra)
{
    const auto fila =
        std::find_if(kCarpetas.begin(), kCarpetas.end(), [&](const auto& f) { return f.letra == letra; });
    return fila == kCarpetas.end() ? QStringView() : fila->tabla;
}

std::vector<NodoArbol> Hojas(const ConjuntoResultados& casos)
{
    const int nombre = casos.Columna(u"NombreTasador");
    const int tipo = casos.Columna(u"Tipo");
    const int situacion = casos.Columna(u"Situacion");
    const int municipio = casos.Columna(u"Municipio");
    std::vector<NodoArbol> hojas;
    hojas.reserve(static_cast<size_t>(casos.RecordCount()));
    for (qint32 fila = 1; fila <= casos.RecordCount(); ++fila) {
        const auto texto = [&](int columna) { return QString::fromUtf8(casos.Utf8(columna, fila)); };
        QString clave = texto(nombre);
        clave += u'#' + QString::number(casos.Entero(u"NumeroTasacion", fila)) + u'#' + texto(tipo);
        QString rotulo = texto(situacion);
        rotulo += u" ("_s + texto(municipio) + u')';
        hojas.push_back({std::move(clave), std::move(rotulo)});
    }
    return hojas;
}

} // namespace

QString RutaBaseDatosPorDefecto(const Sistema& sistema)
{
    return sistema.carpetaPrograma() + u"/Datos/valmerix.mdb"_s;
}

QString RutaBaseDatosConfigurada(const Sistema& sistema)
{
    return QDir::fromNativeSeparators(LeerIni(sistema.carpetaPrograma() + u"/Valmerix.ini"_s, u"Datos"_s,
                                              u"RutaAcceso"_s, RutaBaseDatosPorDefecto(sistema)));
}

std::optional<ConjuntoResultados> ArbolCasos::Busqueda(const EstadoCompartido& compartido,
                                                       const QString& letra)
{
    try {
        AccesoDatos::clsConsulta consulta(compartido);
        consulta.AbrirBaseDatosEmpresa(compartido.RutaBaseDatos);
        return consulta.Instantanea2(u"Empresa"_s,
                                     u"SELECT NombreTasador, NumeroTasacion, Tipo, Situacion, Municipio "_s +
                                         u"FROM "_s + TablaDe(letra).toString() + u" WHERE Tipo = '"_s +
                                         letra + u"' ORDER BY NombreTasador, NumeroTasacion"_s);
    } catch (const ErrorAlmacen&) {
        return std::nullopt; // a folder that cannot be read stands empty; the start goes on to say why
    }
}

void ArbolCasos::CargarArbol(Arbol& arbol, EstadoCompartido& compartido, const Sistema& sistema)
{
    arbol.setCarpetas({});
    compartido.RutaBaseDatos = RutaBaseDatosConfigurada(sistema);
    std::vector<CarpetaArbol> carpetas;
    for (const FilaCarpeta& fila : kCarpetas) {
        CarpetaArbol carpeta{fila.letra.toString(), fila.texto.toString(), {}};
        if (const auto casos = Busqueda(compartido, carpeta.clave)) {
            carpeta.hijos = Hojas(*casos);
            OrdenarEspañol(carpeta.hijos, [](const NodoArbol& n) { return QStringView(n.texto); });
        }
        carpetas.push_back(std::move(carpeta));
    }
    arbol.setCarpetas(std::move(carpetas));
}

std::optional<ClaveCaso> PartirClave(const QString& clave)
{
    if (!clave.contains(u'#'))
        return std::nullopt;
    const QStringList partes = clave.split(u'#');
    return ClaveCaso{partes.value(0), partes.value(1).toInt(), partes.value(2)};
}

} // namespace valmerix
