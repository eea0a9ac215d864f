#include "store/statement_check.h"

#include "store/query.h"
#include "store/sql_tokens.h"

#include <array>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void Rechazar(const QString& sql, QUtf8StringView motivo)
{
    throw ErrorAlmacen(u"La base de datos no admite esta sentencia: "_s + motivo.toString() + u'.', sql);
}

std::vector<Ficha> Cortar(const QString& sql, std::string_view utf8)
{
    std::vector<Ficha> fichas;
    CortadorSQL cortador(utf8);
    while (const auto ficha = cortador.siguiente())
        fichas.push_back(*ficha);
    if (!cortador.daño().empty())
        Rechazar(sql, cortador.daño());
    if (fichas.empty())
        Rechazar(sql, "está vacía");
    return fichas;
}

// Words that open other statements or reach outside the database.
void RechazarAjenas(const QString& sql, const std::vector<Ficha>& fichas)
{
    constexpr std::array kAjenas = {"ATTACH", "DETACH", "PRAGMA", "VACUUM", "LOAD_EXTENSION", "RETURNING"};
    for (const Ficha& ficha : fichas) {
        for (const char* ajena : kAjenas) {
            if (ficha.es(ajena))
                Rechazar(sql, "solo se leen y escriben datos");
        }
    }
}

bool EmpiezaPor(const std::vector<Ficha>& fichas, size_t i, std::string_view una, std::string_view otra)
{
    return i + 1 < fichas.size() && fichas[i].es(una) && fichas[i + 1].es(otra);
}

// A name that a comparison blind to case can tell: quotes off.
std::string NombreDeTabla(const std::vector<Ficha>& fichas, size_t i)
{
    if (i >= fichas.size())
        return {};
    std::string_view nombre = fichas[i].texto;
    if (fichas[i].clase == ClaseFicha::Entrecomillado)
        nombre = nombre.substr(1, nombre.size() - 2);
    else if (fichas[i].clase != ClaseFicha::Palabra)
        return {};
    return QString::fromUtf8(nombre.data(), static_cast<qsizetype>(nombre.size()))
        .toCaseFolded()
        .toStdString();
}

// Where the INSERT of the savers' pair begins, the number of tokens when there is none.
size_t BuscarPareja(const QString& sql, std::string_view utf8, const std::vector<Ficha>& fichas)
{
    for (size_t i = 1; i < fichas.size(); ++i) {
        if (fichas[i].profundidad != 0 || !fichas[i].es("INSERT"))
            continue;
        const std::string_view hueco = utf8.substr(fichas[i - 1].fin, fichas[i].inicio - fichas[i - 1].fin);
        if (hueco.find("\r\n") == std::string_view::npos || !EmpiezaPor(fichas, i, "INSERT", "INTO"))
            Rechazar(sql, "hay más de una sentencia");
        const std::string tabla = NombreDeTabla(fichas, 2);
        if (tabla.empty() || tabla != NombreDeTabla(fichas, i + 2))
            Rechazar(sql, "las dos sentencias no son de la misma tabla");
        return i;
    }
    return fichas.size();
}

void AñadirOrdenEspañol(std::string& utf8, const std::vector<size_t>& finales)
{
    for (size_t i = finales.size(); i-- > 0;)
        utf8.insert(finales[i], " COLLATE ESPANOL");
}

bool CierraTermino(const Ficha& ficha)
{
    return ficha.es("ASC") || ficha.es("DESC") || ficha.es("NULLS") || ficha.es("LIMIT") ||
           ficha.es("COLLATE");
}

// The place of the outermost ORDER BY, the number of tokens when there is none.
size_t BuscarOrden(const std::vector<Ficha>& fichas)
{
    size_t i = 0;
    while (i < fichas.size() && !(fichas[i].profundidad == 0 && EmpiezaPor(fichas, i, "ORDER", "BY")))
        ++i;
    return i;
}

// Where each term of the outermost ORDER BY ends, those with an order of their own left out.
std::vector<size_t> FinalesDeOrden(const std::vector<Ficha>& fichas)
{
    std::vector<size_t> finales;
    bool abierto = true;
    for (size_t i = BuscarOrden(fichas) + 2; i < fichas.size(); ++i) {
        const Ficha& ficha = fichas[i];
        const bool fuera = ficha.profundidad == 0;
        if (abierto && fuera && (ficha.esSigno(',') || CierraTermino(ficha))) {
            if (!ficha.es("COLLATE"))
                finales.push_back(fichas[i - 1].fin);
            abierto = false;
        }
        if (fuera && ficha.es("LIMIT"))
            return finales;
        if (fuera && ficha.esSigno(','))
            abierto = true;
    }
    if (abierto && BuscarOrden(fichas) < fichas.size())
        finales.push_back(fichas.back().fin);
    return finales;
}

} // namespace

std::string ComprobarConsulta(const QString& sql)
{
    std::string utf8 = sql.toStdString();
    const std::vector<Ficha> fichas = Cortar(sql, utf8);
    if (!fichas.front().es("SELECT"))
        Rechazar(sql, "no es una consulta");
    RechazarAjenas(sql, fichas);
    AñadirOrdenEspañol(utf8, FinalesDeOrden(fichas));
    return utf8;
}

QStringList NombresDelOrden(const QString& sql)
{
    const std::string utf8 = sql.toStdString();
    const std::vector<Ficha> fichas = Cortar(sql, utf8);
    QStringList nombres;
    for (size_t i = BuscarOrden(fichas) + 2; i < fichas.size(); i += 2) {
        const bool acaba = i + 1 == fichas.size();
        if (fichas[i].clase != ClaseFicha::Palabra || (!acaba && !fichas[i + 1].esSigno(',')))
            return {};
        nombres << QString::fromUtf8(fichas[i].texto.data(), static_cast<qsizetype>(fichas[i].texto.size()));
    }
    return nombres;
}

std::vector<std::string> ComprobarEscritura(const QString& sql)
{
    const std::string utf8 = sql.toStdString();
    const std::vector<Ficha> fichas = Cortar(sql, utf8);
    RechazarAjenas(sql, fichas);
    if (EmpiezaPor(fichas, 0, "INSERT", "INTO") || fichas.front().es("UPDATE"))
        return {utf8};
    if (!EmpiezaPor(fichas, 0, "DELETE", "FROM"))
        Rechazar(sql, "no es una escritura");
    const size_t pareja = BuscarPareja(sql, utf8, fichas);
    if (pareja == fichas.size())
        return {utf8};
    const size_t corte = fichas[pareja].inicio;
    return {utf8.substr(0, corte), utf8.substr(corte)};
}

} // namespace valmerix
