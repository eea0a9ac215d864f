#include "store/program_options.h"

#include "common/number_reading.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct TextoDeOpciones
{
    QStringView columna;
    QString OpcionesPrograma::*campo;
};

constexpr TextoDeOpciones kTextos[] = {
    {u"Trayectoria", &OpcionesPrograma::Trayectoria},
    {u"MonedaSingular", &OpcionesPrograma::MonedaSingular},
    {u"MonedaPlural", &OpcionesPrograma::MonedaPlural},
    {u"MonedaAbreviatura", &OpcionesPrograma::MonedaAbreviatura},
    {u"Cabecera", &OpcionesPrograma::Cabecera},
    {u"TipoSuperficie", &OpcionesPrograma::TipoSuperficie},
    {u"PerfilPiso", &OpcionesPrograma::PerfilPiso},
    {u"PerfilApartamento", &OpcionesPrograma::PerfilApartamento},
    {u"PerfilCasa", &OpcionesPrograma::PerfilCasa},
    {u"PerfilNave", &OpcionesPrograma::PerfilNave},
    {u"PerfilLocal", &OpcionesPrograma::PerfilLocal},
    {u"PerfilTerreno", &OpcionesPrograma::PerfilTerreno},
    {u"Equivalencia", &OpcionesPrograma::Equivalencia},
};

struct EnteroDeOpciones
{
    QStringView columna;
    int OpcionesPrograma::*campo;
    int minimo;
    int maximo;
};

constexpr EnteroDeOpciones kEnteros[] = {
    {u"EdadViviendas", &OpcionesPrograma::EdadViviendas, 1, 1000},
    {u"EdadLocales", &OpcionesPrograma::EdadLocales, 1, 1000},
    {u"EdadNaves", &OpcionesPrograma::EdadNaves, 1, 1000},
    {u"MonedaDecimales", &OpcionesPrograma::MonedaDecimales, 0, 9},
};

struct MarcaDeOpciones
{
    QStringView columna;
    bool OpcionesPrograma::*campo;
    QStringView si;
    QStringView no;
};

constexpr MarcaDeOpciones kMarcas[] = {
    {u"CerrarAlSalir", &OpcionesPrograma::CerrarAlSalir, u"V", u"F"},
    {u"MonedaGenero", &OpcionesPrograma::MonedaMasculina, u"M", u"F"},
    {u"Membrete", &OpcionesPrograma::Membrete, u"S", u"N"},
    {u"MostrarCabecera", &OpcionesPrograma::MostrarCabecera, u"V", u"F"},
};

} // namespace

bool LeerOpciones(AccesoDatos::clsConsulta& consulta, OpcionesPrograma& opciones)
{
    const ConjuntoResultados fila = consulta.Instantanea2(u"Empresa"_s, u"SELECT * FROM Opciones"_s);
    if (fila.RecordCount() == 0)
        return false;
    OpcionesPrograma leidas;
    for (const TextoDeOpciones& texto : kTextos) {
        if (fila.Valor(texto.columna).isValid())
            leidas.*texto.campo = fila.Texto(texto.columna);
    }
    for (const EnteroDeOpciones& entero : kEnteros) {
        const double valor = EsNumero(fila.Texto(entero.columna)) ? fila.Numero(entero.columna) : -1;
        if (valor >= entero.minimo && valor <= entero.maximo)
            leidas.*entero.campo = static_cast<int>(valor);
    }
    for (const MarcaDeOpciones& marca : kMarcas) {
        const QString valor = fila.Texto(marca.columna);
        if (valor == marca.si || valor == marca.no)
            leidas.*marca.campo = valor == marca.si;
    }
    opciones = leidas;
    return true;
}

} // namespace valmerix
