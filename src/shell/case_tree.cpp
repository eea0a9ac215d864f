#include "shell/case_tree.h"

#include "common/ini_file.h"
#include "common/spanish_sort.h"
#include "store/query.h"

#include <QDir>
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <charconv>
#include <memory>

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

/// Writes texts one behind the other into letters that have room for them all.
class Pluma
{
public:
    explicit Pluma(char16_t* letras)
        : fin_(letras)
        , comienzo_(letras)
    {
    }

    void Empezar() { comienzo_ = fin_; }
    QStringView Escrito() const { return {comienzo_, fin_}; }
    Pluma& operator<<(QStringView texto)
    {
        fin_ = std::copy(texto.utf16(), texto.utf16() + texto.size(), fin_);
        return *this;
    }
    Pluma& operator<<(QUtf8StringView texto)
    {
        if (EscribirCorto(texto))
            return *this;
        QStringDecoder lector(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        fin_ = reinterpret_cast<char16_t*>(lector.appendToBuffer(reinterpret_cast<QChar*>(fin_),
                                                                 QByteArrayView(texto.data(), texto.size())));
        return *this;
    }
    Pluma& operator<<(qint64 numero)
    {
        std::array<char, 20> cifras; // the longest there is, its sign included
        const auto fin = std::to_chars(cifras.begin(), cifras.end(), numero).ptr;
        fin_ = std::copy(cifras.begin(), fin, fin_);
        return *this;
    }

private:
    // Letters of one byte or two and signs of three, which is what addresses are made of; to call the decoder
    // costs more than these short texts do. False, nothing written, for any other text.
    bool EscribirCorto(QUtf8StringView texto)
    {
        char16_t* fin = fin_;
        const auto* p = reinterpret_cast<const unsigned char*>(texto.data());
        const auto* final = p + texto.size();
        const auto continua = [&](int i) { return final - p > i && (p[i] & 0xC0U) == 0x80; };
        while (p != final) {
            if (*p < 0x80) {
                *fin++ = *p++;
            } else if (*p >= 0xC2 && *p < 0xE0 && continua(1)) {
                *fin++ = static_cast<char16_t>((p[0] & 0x1FU) << 6U | (p[1] & 0x3FU));
                p += 2;
            } else if (*p > 0xE0 && *p < 0xED && continua(1) && continua(2)) {
                *fin++ = static_cast<char16_t>((p[0] & 0xFU) << 12U | (p[1] & 0x3FU) << 6U | (p[2] & 0x3FU));
                p += 3;
            } else {
                return false;
            }
        }
        fin_ = fin;
        return true;
    }

    char16_t* fin_;
    const char16_t* comienzo_;
};

constexpr qsizetype kSignos = 32; // of a leaf: the number and what stands between the texts

void AñadirHojas(const ConjuntoResultados& casos, CarpetaArbol& carpeta)
{
    const int nombre = casos.Columna(u"NombreTasador");
    const int numero = casos.Columna(u"NumeroTasacion");
    const int tipo = casos.Columna(u"Tipo");
    const int situacion = casos.Columna(u"Situacion");
    const int municipio = casos.Columna(u"Municipio");
    qsizetype letras = casos.RecordCount() * kSignos;
    for (const int columna : {nombre, tipo, situacion, municipio})
        letras += casos.Utf8Bytes(columna); // a byte of UTF-8 never gives more than one unit
    carpeta.letras = std::make_shared_for_overwrite<char16_t[]>(static_cast<size_t>(letras));
    carpeta.hijos.reserve(static_cast<size_t>(casos.RecordCount()));
    Pluma pluma(carpeta.letras.get());
    for (qint32 fila = 1; fila <= casos.RecordCount(); ++fila) {
        const auto texto = [&](int columna) { return casos.Utf8(columna, fila); };
        pluma.Empezar();
        pluma << texto(nombre) << u"#" << casos.Entero(numero, fila) << u"#" << texto(tipo);
        const QStringView clave = pluma.Escrito();
        pluma.Empezar();
        pluma << texto(situacion) << u" (" << texto(municipio) << u")";
        carpeta.hijos.push_back({clave, pluma.Escrito()});
    }
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

void ArbolCasos::LlenarCarpeta(CarpetaArbol& carpeta, const ConjuntoResultados& casos)
{
    AñadirHojas(casos, carpeta);
    OrdenarEspañol(carpeta.hijos, [](const NodoArbol& n) { return n.texto; });
}

void ArbolCasos::CargarArbol(Arbol& arbol, EstadoCompartido& compartido, const Sistema& sistema)
{
    arbol.setCarpetas({});
    compartido.RutaBaseDatos = RutaBaseDatosConfigurada(sistema);
    std::vector<CarpetaArbol> carpetas;
    for (const FilaCarpeta& fila : kCarpetas) {
        CarpetaArbol carpeta{fila.letra.toString(), fila.texto.toString(), {}, {}};
        if (const auto casos = Busqueda(compartido, carpeta.clave))
            LlenarCarpeta(carpeta, *casos);
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
