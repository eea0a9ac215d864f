#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace valmerix::pruebas {

/// Stops the fuzzer, which then keeps the input, when `cierto` does not hold.
inline void Exigir(bool cierto, const char* fichero = __builtin_FILE(), int linea = __builtin_LINE())
{
    if (!cierto) {
        std::fprintf(stderr, "%s:%d: does not hold\n", fichero, linea);
        std::abort();
    }
}

/// Takes the pieces of an input off its beginning, one after the other.
class Entrada
{
public:
    Entrada(const std::uint8_t* datos, std::size_t largo)
        : datos_(datos)
        , queda_(largo)
    {
    }

    /// Missing bytes are zeros.
    template <typename T>
    T Tomar()
    {
        T valor{};
        const std::size_t n = queda_ < sizeof(T) ? queda_ : sizeof(T);
        if (n > 0) {
            std::memcpy(&valor, datos_, n);
        }
        Avanzar(n);
        return valor;
    }

    /// A text of single-byte characters, at most `maximo` of them.
    QString TomarTexto(std::size_t maximo)
    {
        const std::size_t n = queda_ < maximo ? queda_ : maximo;
        const QString texto =
            QString::fromLatin1(reinterpret_cast<const char*>(datos_), static_cast<qsizetype>(n));
        Avanzar(n);
        return texto;
    }

    std::size_t queda() const { return queda_; }

private:
    void Avanzar(std::size_t n)
    {
        datos_ = n > 0 ? datos_ + n : datos_;
        queda_ -= n;
    }

    const std::uint8_t* datos_;
    std::size_t queda_;
};

} // namespace valmerix::pruebas
