#include "common/spanish_sort.h"

#include <QtEndian>
#include <array>
#include <bit>
#include <cstring>

namespace valmerix {

namespace {

constexpr unsigned kBitsPorByte = 8;
constexpr size_t kBytes = sizeof(quint64);

// Fewer keys than this are compared; more are dealt out by a byte.
constexpr size_t kPocas = 64;

// No key holds a zero byte.
constexpr bool Acaba(quint64 trozo)
{
    return (trozo & 0xFFU) == 0;
}

} // namespace

void OrdenPorClaves::Reservar(size_t textos, size_t letras)
{
    constexpr size_t kHolgura = 1024; // a key is written into more room than it ends up with
    claves_.reserve(textos);
    bytes_.reserve(letras + kHolgura);
}

void OrdenPorClaves::Añadir(QStringView texto)
{
    const size_t inicio = bytes_.size();
    AñadirPesos(texto, bytes_);
    claves_.push_back(
        {0, inicio, static_cast<quint32>(bytes_.size() - inicio), static_cast<quint32>(claves_.size())});
}

// Zero bytes stand behind a key's end. Eight bytes can be read at the end of the last key too.
quint64 OrdenPorClaves::Trozo(const Clave& clave, size_t desde) const
{
    if (desde >= clave.bytes)
        return 0;
    quint64 trozo = 0;
    std::memcpy(&trozo, bytes_.data() + clave.inicio + desde, kBytes);
    trozo = qFromBigEndian(trozo);
    const size_t quedan = clave.bytes - desde;
    return quedan >= kBytes ? trozo : trozo & ~(~quint64{0} >> (quedan * kBitsPorByte));
}

void OrdenPorClaves::Ordenar()
{
    bytes_.append(kBytes, '\0');
    Dejar({0, claves_.size(), 0}, false);
    while (!pendientes_.empty()) {
        const Tramo tramo = pendientes_.back();
        pendientes_.pop_back();
        OrdenarTramo(tramo);
    }
    orden.reserve(claves_.size());
    for (const Clave& clave : claves_)
        orden.push_back(clave.indice);
}

// A stretch of keys that are equal so far: the end of them all, or more bytes to look at.
void OrdenPorClaves::Dejar(const Tramo& tramo, bool acabadas)
{
    if (tramo.ultimo - tramo.primero < 2)
        return;
    if (acabadas)
        empates.emplace_back(tramo.primero, tramo.ultimo);
    else
        pendientes_.push_back(tramo);
}

// Gives the bits in which they differ.
quint64 OrdenPorClaves::TomarTrozos(const Tramo& tramo)
{
    quint64 distintos = 0;
    for (size_t i = tramo.primero; i < tramo.ultimo; ++i) {
        claves_[i].trozo = Trozo(claves_[i], tramo.desde);
        distintos |= claves_[i].trozo ^ claves_[tramo.primero].trozo;
    }
    return distintos;
}

void OrdenPorClaves::OrdenarTramo(const Tramo& tramo)
{
    const quint64 distintos = TomarTrozos(tramo);
    if (distintos == 0)
        Dejar({tramo.primero, tramo.ultimo, tramo.desde + kBytes}, Acaba(claves_[tramo.primero].trozo));
    else if (tramo.ultimo - tramo.primero < kPocas)
        Comparar(tramo);
    else
        Repartir(tramo, static_cast<unsigned>(std::countl_zero(distintos)) / kBitsPorByte);
}

// Each run of equals waits for the next eight bytes.
void OrdenPorClaves::Comparar(const Tramo& tramo)
{
    const auto lugar = [&](size_t i) { return claves_.begin() + static_cast<std::ptrdiff_t>(i); };
    std::sort(lugar(tramo.primero), lugar(tramo.ultimo), [](const Clave& a, const Clave& b) {
        return a.trozo != b.trozo ? a.trozo < b.trozo : a.indice < b.indice;
    });
    for (size_t i = tramo.primero; i < tramo.ultimo;) {
        const quint64 trozo = claves_[i].trozo;
        size_t fin = i + 1;
        while (fin < tramo.ultimo && claves_[fin].trozo == trozo)
            ++fin;
        Dejar({i, fin, tramo.desde + kBytes}, Acaba(trozo));
        i = fin;
    }
}

// Deals them out by the first byte in which they differ, each heap in the order they stood in.
void OrdenPorClaves::Repartir(const Tramo& tramo, unsigned byte)
{
    const unsigned corrimiento = (kBytes - 1 - byte) * kBitsPorByte;
    const auto monton = [&](const Clave& clave) { return (clave.trozo >> corrimiento) & 0xFFU; };
    std::array<size_t, 257> comienzos{};
    for (size_t i = tramo.primero; i < tramo.ultimo; ++i)
        ++comienzos[monton(claves_[i]) + 1];
    comienzos[0] = tramo.primero;
    for (size_t m = 1; m < comienzos.size(); ++m)
        comienzos[m] += comienzos[m - 1];
    reparto_.assign(claves_.begin() + static_cast<std::ptrdiff_t>(tramo.primero),
                    claves_.begin() + static_cast<std::ptrdiff_t>(tramo.ultimo));
    std::array<size_t, 257> siguientes = comienzos;
    for (const Clave& clave : reparto_)
        claves_[siguientes[monton(clave)]++] = clave;
    for (size_t m = 0; m + 1 < comienzos.size(); ++m)
        Dejar({comienzos[m], comienzos[m + 1], tramo.desde + byte + 1}, m == 0);
}

} // namespace valmerix
