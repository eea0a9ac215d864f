#pragma once

#include <optional>
#include <string_view>

namespace valmerix {

enum class ClaseFicha { Palabra, Entrecomillado, Cadena, Numero, Signo };

/// One token of an SQL text.
struct Ficha
{
    ClaseFicha clase = ClaseFicha::Signo;
    std::string_view texto;
    size_t inicio = 0;
    size_t fin = 0;
    int profundidad = 0; ///< open parentheses around it; a parenthesis counts itself

    /// A bare word equal to `palabra` (in capitals), blind to case.
    bool es(std::string_view palabra) const;
    bool esSigno(char signo) const { return clase == ClaseFicha::Signo && texto.front() == signo; }
};

/// Cuts SQL into tokens. Knows strings, the three kinds of quoted names, words of any alphabet.
/// A comment, a semicolon, a parameter, a zero byte, an open quote or unbalanced parentheses end it as
/// damaged.
class CortadorSQL
{
public:
    explicit CortadorSQL(std::string_view sql)
        : sql_(sql)
    {
    }

    /// The next token; nothing at the end or at the first damage.
    std::optional<Ficha> siguiente();
    /// What stopped it, empty at a sound end; a Spanish sentence.
    std::string_view daño() const { return daño_; }

private:
    std::optional<Ficha> Parar(std::string_view motivo);
    std::optional<Ficha> Hasta(size_t fin, ClaseFicha clase);
    std::optional<Ficha> Comilla(char cierre, ClaseFicha clase);
    std::optional<Ficha> Signo(char c);
    size_t FinDePalabra() const;

    std::string_view sql_;
    std::string_view daño_;
    size_t pos_ = 0;
    int profundidad_ = 0;
};

} // namespace valmerix
