#include "common/spanish_text.h"

#include <algorithm>
#include <array>

namespace valmerix {

namespace {

struct Familia
{
    char16_t base;
    std::u16string_view letras;
};

// Letters of Latin-1 and what they fold to; beyond Latin-1 the Unicode decompositions serve.
constexpr Familia kFamilias[] = {
    {u'a', u"ÀÁÂÃÄÅàáâãäå"},
    {u'c', u"Çç"},
    {u'e', u"ÈÉÊËèéêë"},
    {u'i', u"ÌÍÎÏìíîï"},
    {u'ñ', u"Ñ"},
    {u'o', u"ÒÓÔÕÖòóôõö"},
    {u'u', u"ÙÚÛÜùúûü"},
    {u'y', u"Ýýÿ"},
    {u'æ', u"Æ"},
    {u'ð', u"Ð"},
    {u'ø', u"Ø"},
    {u'þ', u"Þ"},
};

constexpr char32_t kTilde = 0x303;

// Damaged bytes of UTF-8 read as characters beyond Unicode, so that they neither vanish nor meet a letter.
constexpr char32_t kDañado = 0x110000;

constexpr auto kBases = [] {
    std::array<char16_t, 256> bases{};
    for (size_t c = 0; c < bases.size(); ++c)
        bases[c] = static_cast<char16_t>(c >= 'A' && c <= 'Z' ? c + 0x20 : c);
    for (const Familia& familia : kFamilias) {
        for (const char16_t letra : familia.letras)
            bases[letra] = familia.base;
    }
    return bases;
}();

// Dashes, quotes and the like: as common in addresses as letters, and never with a case or an accent.
constexpr char32_t kPrimerSigno = 0x2010;
constexpr char32_t kUltimoSigno = 0x205E;

// Of sort keys: weights up to this take one byte, the others the most there is.
constexpr unsigned kUltimoPesoCorto = 0x80;
constexpr size_t kMayorPeso = 4;

constexpr bool EsMarca(char32_t c)
{
    return c >= 0x300 && c <= 0x36F;
}

// The letter without case or accent, 0 for a combining mark.
char32_t Base(char32_t c)
{
    if (c < kBases.size())
        return kBases[c];
    if (EsMarca(c))
        return 0;
    if (c >= kDañado || (c >= kPrimerSigno && c <= kUltimoSigno))
        return c;
    const char32_t minuscula = QChar::toCaseFolded(c);
    if (QChar::decompositionTag(minuscula) != QChar::Canonical)
        return minuscula;
    const QString partes = QChar::decomposition(minuscula);
    return partes.size() == 2 && EsMarca(partes[1].unicode()) ? Base(partes[0].unicode()) : minuscula;
}

char32_t Minuscula(char32_t c)
{
    if (c < 0x80)
        return kBases[c];
    return c < kDañado ? QChar::toLower(c) : c;
}

struct LectorUtf16
{
    const char16_t* p;
    const char16_t* fin;

    explicit LectorUtf16(QStringView texto)
        : p(texto.utf16())
        , fin(p + texto.size())
    {
    }
    bool quedan() const { return p != fin; }
    char32_t siguiente()
    {
        const char16_t c = *p++;
        if (QChar::isHighSurrogate(c) && p != fin && QChar::isLowSurrogate(*p))
            return QChar::surrogateToUcs4(c, *p++);
        return c;
    }
    bool tildeDelante() const { return p != fin && *p == kTilde; }
};

struct LectorUtf8
{
    const unsigned char* p;
    const unsigned char* fin;

    explicit LectorUtf8(std::string_view texto)
        : p(reinterpret_cast<const unsigned char*>(texto.data()))
        , fin(p + texto.size())
    {
    }
    bool quedan() const { return p != fin; }
    char32_t siguiente()
    {
        const unsigned char c = *p++;
        if (c < 0x80)
            return c;
        const int continuan = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : 1;
        if (c < 0xC2 || c > 0xF4 || fin - p < continuan)
            return kDañado + c;
        char32_t valor = c & (0x3FU >> continuan);
        for (int i = 0; i < continuan; ++i) {
            if ((p[i] & 0xC0U) != 0x80)
                return kDañado + c;
            valor = (valor << 6U) | (p[i] & 0x3FU);
        }
        constexpr char32_t kMenor[] = {0, 0x80, 0x800, 0x10000};
        if (valor < kMenor[continuan] || valor >= kDañado)
            return kDañado + c;
        p += continuan;
        return valor;
    }
    bool tildeDelante() const { return fin - p >= 2 && p[0] == 0xCC && p[1] == 0x83; }
};

// First level: 0 is skipped; ñ stands between n and o.
template <class Lector>
unsigned SiguientePeso(Lector& lector)
{
    while (lector.quedan()) {
        char32_t base = Base(lector.siguiente());
        if (base == u'n' && lector.tildeDelante())
            base = u'ñ';
        if (base == u'ñ')
            return u'n' + 1;
        if (base != 0)
            return base > u'n' ? base + 1 : base;
    }
    return 0;
}

// The weights of the letters that need no looking round, one byte each; 0 for all others.
constexpr auto kPesosCortos = [] {
    std::array<unsigned char, kBases.size()> pesos{};
    for (size_t c = 1; c < pesos.size(); ++c) {
        const unsigned base = kBases[c];
        const unsigned peso = base == u'ñ' ? u'n' + 1 : base > u'n' ? base + 1 : base;
        pesos[c] = static_cast<unsigned char>(peso <= kUltimoPesoCorto ? peso : 0);
    }
    return pesos;
}();

// Writes the weights of the letters up to the first that needs more care.
void EscribirPesosCortos(LectorUtf16& lector, char*& destino)
{
    const char16_t* p = lector.p;
    char* d = destino;
    for (; p != lector.fin && *p < kPesosCortos.size(); ++p) {
        const unsigned char peso = kPesosCortos[*p];
        if (peso == 0 || (peso == u'n' && lector.fin - p > 1 && p[1] == kTilde))
            break;
        *d++ = static_cast<char>(peso);
    }
    lector.p = p;
    destino = d;
}

// In sort keys: false for no weight at all.
bool EscribirPeso(unsigned peso, char*& destino)
{
    if (peso == 0)
        return false;
    if (peso <= kUltimoPesoCorto) {
        *destino++ = static_cast<char>(peso);
        return true;
    }
    *destino++ = static_cast<char>(0xFF);
    for (const unsigned corrimiento : {14U, 7U, 0U}) // never a zero byte
        *destino++ = static_cast<char>(0x80U | ((peso >> corrimiento) & 0x7FU));
    return true;
}

template <class Lector>
int CompararPorNiveles(Lector a, Lector b)
{
    for (Lector x = a, y = b;;) {
        const unsigned pesoX = SiguientePeso(x);
        const unsigned pesoY = SiguientePeso(y);
        if (pesoX != pesoY)
            return pesoX < pesoY ? -1 : 1;
        if (pesoX == 0)
            break;
    }
    int porCaja = 0; // small letters have the higher code
    while (a.quedan() && b.quedan()) {
        const char32_t x = a.siguiente();
        const char32_t y = b.siguiente();
        const char32_t menorX = Minuscula(x);
        const char32_t menorY = Minuscula(y);
        if (menorX != menorY)
            return menorX < menorY ? -1 : 1;
        if (porCaja == 0 && x != y)
            porCaja = x > y ? -1 : 1;
    }
    if (a.quedan() != b.quedan())
        return a.quedan() ? 1 : -1;
    return porCaja;
}

// Bytes that both begin with and that cannot weigh upon what follows: less the last whole character, which a
// combining mark may go with.
size_t ComienzoComun(std::string_view a, std::string_view b)
{
    const size_t limite = std::min(a.size(), b.size());
    size_t n = 0;
    while (n < limite && a[n] == b[n])
        ++n;
    for (int caracteres = 0; n > 0 && caracteres < 2; ++caracteres) {
        --n;
        while (n > 0 && (static_cast<unsigned char>(a[n]) & 0xC0U) == 0x80)
            --n;
    }
    return n;
}

void AñadirUtf8(char32_t c, std::string& destino)
{
    const auto byte = [&](char32_t b) { destino.push_back(static_cast<char>(b)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | (c >> 6U));
        byte(0x80 | (c & 0x3FU));
    } else if (c >= kDañado) {
        byte(c - kDañado);
    } else if (c < 0x10000) {
        byte(0xE0 | (c >> 12U));
        byte(0x80 | ((c >> 6U) & 0x3FU));
        byte(0x80 | (c & 0x3FU));
    } else {
        byte(0xF0 | (c >> 18U));
        byte(0x80 | ((c >> 12U) & 0x3FU));
        byte(0x80 | ((c >> 6U) & 0x3FU));
        byte(0x80 | (c & 0x3FU));
    }
}

} // namespace

QString Plegar(QStringView texto)
{
    QString plegado;
    plegado.reserve(texto.size());
    LectorUtf16 lector(texto);
    while (lector.quedan()) {
        const char32_t base = Base(lector.siguiente());
        if (base == u'n' && lector.tildeDelante()) {
            plegado += u'ñ';
        } else if (base != 0) {
            plegado += QChar::fromUcs4(base);
        }
    }
    return plegado;
}

void PlegarUtf8(std::string_view texto, std::string& plegado)
{
    LectorUtf8 lector(texto);
    while (lector.quedan()) {
        const char32_t base = Base(lector.siguiente());
        if (base == u'n' && lector.tildeDelante()) {
            AñadirUtf8(u'ñ', plegado);
        } else if (base != 0 && base < 0x80) {
            plegado.push_back(static_cast<char>(base));
        } else if (base != 0) {
            AñadirUtf8(base, plegado);
        }
    }
}

int CompararEspañol(QStringView a, QStringView b)
{
    return CompararPorNiveles(LectorUtf16(a), LectorUtf16(b));
}

int CompararEspañol(std::string_view utf8A, std::string_view utf8B)
{
    if (utf8A == utf8B)
        return 0;
    const size_t comun = ComienzoComun(utf8A, utf8B);
    const int niveles = CompararPorNiveles(LectorUtf8(utf8A.substr(comun)), LectorUtf8(utf8B.substr(comun)));
    return niveles != 0 ? niveles : utf8A.compare(utf8B);
}

void AñadirPesos(QStringView texto, std::string& claves)
{
    const size_t inicio = claves.size();
    claves.resize(inicio + static_cast<size_t>(texto.size()) * kMayorPeso);
    char* destino = claves.data() + inicio;
    LectorUtf16 lector(texto);
    do {
        EscribirPesosCortos(lector, destino);
    } while (EscribirPeso(SiguientePeso(lector), destino));
    claves.resize(static_cast<size_t>(destino - claves.data()));
}

} // namespace valmerix
