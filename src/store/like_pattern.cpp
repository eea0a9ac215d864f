#include "store/like_pattern.h"

#include "common/spanish_text.h"

#include <algorithm>

namespace valmerix {

namespace {

constexpr char kUno = '\xFF'; // stands for "_" in a stretch: no sound UTF-8 holds it
constexpr size_t kNo = std::string_view::npos;

bool Continua(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

size_t Ancho(std::string_view texto, size_t pos)
{
    size_t fin = pos + 1;
    while (fin < texto.size() && Continua(texto[fin]))
        ++fin;
    return fin - pos;
}

// Where the stretch ends when it stands at `pos`.
size_t Encajar(std::string_view tramo, std::string_view texto, size_t pos)
{
    for (const char c : tramo) {
        if (pos >= texto.size() || (c != kUno && texto[pos] != c))
            return kNo;
        pos += c == kUno ? Ancho(texto, pos) : 1;
    }
    return pos;
}

// Where the first place of the stretch at or behind `desde` ends.
size_t Buscar(std::string_view tramo, std::string_view texto, size_t desde)
{
    if (tramo.find(kUno) == kNo) {
        const size_t lugar = texto.find(tramo, desde);
        return lugar == kNo ? kNo : lugar + tramo.size();
    }
    for (size_t pos = desde; pos < texto.size(); pos += Ancho(texto, pos)) {
        const size_t fin = Encajar(tramo, texto, pos);
        if (fin != kNo)
            return fin;
    }
    return kNo;
}

// Whether the text from `desde` on ends in the stretch.
bool Acaba(std::string_view tramo, std::string_view texto, size_t desde)
{
    size_t pos = texto.size();
    for (size_t i = tramo.size(); i-- > 0;) {
        const char c = tramo[i];
        if (pos <= desde || (c != kUno && texto[pos - 1] != c))
            return false;
        --pos;
        while (c == kUno && pos > desde && Continua(texto[pos]))
            --pos;
    }
    return true;
}

} // namespace

PatronLike::PatronLike(std::string_view patron, std::string_view escape)
{
    tramos_.emplace_back();
    std::string literal;
    const auto cerrar = [&] {
        PlegarUtf8(literal, tramos_.back());
        literal.clear();
    };
    for (size_t i = 0; i < patron.size(); ++i) {
        if (!escape.empty() && patron.substr(i).starts_with(escape)) {
            i += escape.size();
            literal += patron.substr(i, 1);
        } else if (patron[i] == '%') {
            cerrar();
            tramos_.emplace_back();
        } else if (patron[i] == '_') {
            cerrar();
            tramos_.back() += kUno;
        } else {
            literal += patron[i];
        }
    }
    cerrar();
}

bool PatronLike::Casa(std::string_view texto) const
{
    plegado_.clear();
    PlegarUtf8(texto, plegado_);
    const std::string_view plegado = plegado_;
    if (tramos_.size() == 1)
        return Encajar(tramos_.front(), plegado, 0) == plegado.size();
    size_t pos = Encajar(tramos_.front(), plegado, 0);
    for (size_t i = 1; pos != kNo && i + 1 < tramos_.size(); ++i)
        pos = Buscar(tramos_[i], plegado, pos);
    return pos != kNo && Acaba(tramos_.back(), plegado, pos);
}

} // namespace valmerix
