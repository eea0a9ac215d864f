#include "report/find_history.h"

#include <cstdint>
#include <cstdlib>

// Any bytes give a list that, written and read again, is the same list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos)
{
    using namespace valmerix;
    const QByteArray fichero(reinterpret_cast<const char*>(datos), static_cast<qsizetype>(cuantos));
    const QStringList busquedas = LeerRegistrosBusqueda(fichero);
    if (busquedas.size() > kBusquedasRecordadas ||
        LeerRegistrosBusqueda(RegistrosBusqueda(busquedas)) != busquedas)
        std::abort();
    const QStringList sueltas = QString::fromUtf8(fichero).split(u'\n');
    const QStringList guardadas = LeerRegistrosBusqueda(RegistrosBusqueda(sueltas));
    if (LeerRegistrosBusqueda(RegistrosBusqueda(guardadas)) != guardadas)
        std::abort();
    return 0;
}
