#include "ui/pictures/sane_options.h"

#include <QByteArray>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace valmerix {

namespace {

constexpr double kPuntosPorPulgada = 300;
constexpr double kBits = 8;

struct Opcion
{
    SANE_Int indice = 0;
    const SANE_Option_Descriptor* descripcion = nullptr;
};

std::optional<Opcion> OpcionDe(SANE_Handle escaner, const char* nombre)
{
    SANE_Int cuantas = 0;
    if (sane_control_option(escaner, 0, SANE_ACTION_GET_VALUE, &cuantas, nullptr) != SANE_STATUS_GOOD)
        return std::nullopt;
    for (SANE_Int i = 1; i < cuantas; ++i) {
        const SANE_Option_Descriptor* d = sane_get_option_descriptor(escaner, i);
        if (d && d->name && std::strcmp(d->name, nombre) == 0 && SANE_OPTION_IS_ACTIVE(d->cap) &&
            SANE_OPTION_IS_SETTABLE(d->cap))
            return Opcion{i, d};
    }
    return std::nullopt;
}

double Valor(const Opcion& opcion, SANE_Word palabra)
{
    return opcion.descripcion->type == SANE_TYPE_FIXED ? SANE_UNFIX(palabra) : palabra;
}

SANE_Word Palabra(const Opcion& opcion, double valor)
{
    return opcion.descripcion->type == SANE_TYPE_FIXED ? SANE_FIX(valor)
                                                       : static_cast<SANE_Word>(std::lround(valor));
}

// The value that the option allows and that is nearest to the one wanted.
double Permitido(const Opcion& opcion, double deseado)
{
    const SANE_Option_Descriptor& d = *opcion.descripcion;
    if (d.constraint_type == SANE_CONSTRAINT_RANGE && d.constraint.range) {
        const double menor = Valor(opcion, d.constraint.range->min);
        return std::clamp(deseado, menor, std::max(menor, Valor(opcion, d.constraint.range->max)));
    }
    if (d.constraint_type != SANE_CONSTRAINT_WORD_LIST || !d.constraint.word_list ||
        d.constraint.word_list[0] < 1)
        return deseado;
    const SANE_Word* primera = d.constraint.word_list + 1;
    const SANE_Word* mejor =
        std::min_element(primera, primera + d.constraint.word_list[0], [&](SANE_Word a, SANE_Word b) {
            return std::abs(Valor(opcion, a) - deseado) < std::abs(Valor(opcion, b) - deseado);
        });
    return Valor(opcion, *mejor);
}

void PonerNumero(SANE_Handle escaner, const char* nombre, double deseado)
{
    const auto opcion = OpcionDe(escaner, nombre);
    if (!opcion ||
        (opcion->descripcion->type != SANE_TYPE_INT && opcion->descripcion->type != SANE_TYPE_FIXED) ||
        opcion->descripcion->size != sizeof(SANE_Word))
        return;
    SANE_Word palabra = Palabra(*opcion, Permitido(*opcion, deseado));
    sane_control_option(escaner, opcion->indice, SANE_ACTION_SET_VALUE, &palabra, nullptr);
}

// To the end of its range.
void PonerExtremo(SANE_Handle escaner, const char* nombre, bool mayor)
{
    const auto opcion = OpcionDe(escaner, nombre);
    if (!opcion || opcion->descripcion->constraint_type != SANE_CONSTRAINT_RANGE)
        return;
    const SANE_Range& limites = *opcion->descripcion->constraint.range;
    SANE_Word palabra = mayor ? limites.max : limites.min;
    sane_control_option(escaner, opcion->indice, SANE_ACTION_SET_VALUE, &palabra, nullptr);
}

void PonerModo(SANE_Handle escaner)
{
    const auto opcion = OpcionDe(escaner, "mode");
    if (!opcion || opcion->descripcion->constraint_type != SANE_CONSTRAINT_STRING_LIST)
        return;
    for (const char* buscado : {"color", "gray"}) {
        for (const SANE_String_Const* modo = opcion->descripcion->constraint.string_list; *modo; ++modo) {
            if (!QByteArray(*modo).toLower().contains(buscado))
                continue;
            QByteArray valor(*modo);
            valor.resize(opcion->descripcion->size, '\0');
            sane_control_option(escaner, opcion->indice, SANE_ACTION_SET_VALUE, valor.data(), nullptr);
            return;
        }
    }
}

} // namespace

void PrepararEscaner(SANE_Handle escaner)
{
    PonerModo(escaner);
    PonerNumero(escaner, "depth", kBits);
    PonerNumero(escaner, "resolution", kPuntosPorPulgada);
    PonerExtremo(escaner, "tl-x", false);
    PonerExtremo(escaner, "tl-y", false);
    PonerExtremo(escaner, "br-x", true);
    PonerExtremo(escaner, "br-y", true);
}

} // namespace valmerix
