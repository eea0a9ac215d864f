#include "store/sql_tokens.h"

#include <algorithm>

namespace valmerix {

namespace {

constexpr bool EsBlanco(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r' && c != '\v');
}

constexpr bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

constexpr char Mayuscula(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c;
}

constexpr bool EsDePalabra(char c)
{
    const char m = Mayuscula(c);
    return (m >= 'A' && m <= 'Z') || EsCifra(c) || c == '_' || c == '$' ||
           static_cast<unsigned char>(c) >= 0x80;
}

} // namespace

bool Ficha::es(std::string_view palabra) const
{
    return clase == ClaseFicha::Palabra &&
           std::ranges::equal(texto, palabra, {}, [](char c) { return Mayuscula(c); });
}

std::optional<Ficha> CortadorSQL::Parar(std::string_view motivo)
{
    daño_ = motivo;
    pos_ = sql_.size();
    return {};
}

std::optional<Ficha> CortadorSQL::Hasta(size_t fin, ClaseFicha clase)
{
    Ficha ficha{clase, sql_.substr(pos_, fin - pos_), pos_, fin, profundidad_};
    pos_ = fin;
    return ficha;
}

// A doubled quote inside stands for one; brackets have no such escape.
std::optional<Ficha> CortadorSQL::Comilla(char cierre, ClaseFicha clase)
{
    size_t fin = sql_.find(cierre, pos_ + 1);
    while (cierre != ']' && fin != std::string_view::npos && fin + 1 < sql_.size() && sql_[fin + 1] == cierre)
        fin = sql_.find(cierre, fin + 2);
    if (fin == std::string_view::npos)
        return Parar("hay una comilla sin cerrar");
    return Hasta(fin + 1, clase);
}

std::optional<Ficha> CortadorSQL::Signo(char c)
{
    const char otro = pos_ + 1 < sql_.size() ? sql_[pos_ + 1] : ' ';
    if ((c == '-' && otro == '-') || (c == '/' && otro == '*'))
        return Parar("lleva un comentario");
    if (c == ';')
        return Parar("lleva un punto y coma");
    if (c == '?' || c == ':' || c == '@')
        return Parar("lleva un parámetro");
    if (c == ')' && profundidad_ == 0)
        return Parar("los paréntesis no casan");
    if (c == '(')
        ++profundidad_;
    const auto ficha = Hasta(pos_ + 1, ClaseFicha::Signo);
    if (c == ')')
        --profundidad_;
    return ficha;
}

size_t CortadorSQL::FinDePalabra() const
{
    size_t fin = pos_;
    while (fin < sql_.size() && (EsDePalabra(sql_[fin]) || (EsCifra(sql_[pos_]) && sql_[fin] == '.')))
        ++fin;
    return fin;
}

std::optional<Ficha> CortadorSQL::siguiente()
{
    while (pos_ < sql_.size() && EsBlanco(sql_[pos_]))
        ++pos_;
    if (pos_ == sql_.size()) {
        if (profundidad_ != 0 && daño_.empty())
            daño_ = "los paréntesis no casan";
        return {};
    }
    const char c = sql_[pos_];
    switch (c) {
    case '\0':
        return Parar("lleva un carácter nulo");
    case '\'':
        return Comilla('\'', ClaseFicha::Cadena);
    case '"':
    case '`':
        return Comilla(c, ClaseFicha::Entrecomillado);
    case '[':
        return Comilla(']', ClaseFicha::Entrecomillado);
    default:
        break;
    }
    if (EsDePalabra(c))
        return Hasta(FinDePalabra(), EsCifra(c) ? ClaseFicha::Numero : ClaseFicha::Palabra);
    return Signo(c);
}

} // namespace valmerix
