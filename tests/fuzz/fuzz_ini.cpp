#include "common/ini_file.h"
#include "fuzz_support.h"

#include <array>
#include <sys/mman.h>
#include <unistd.h>

using namespace valmerix;
using pruebas::Exigir;

namespace {

constexpr QStringView kDefecto = u"(defecto)";

void ComprobarValor(const QString& valor)
{
    Exigir(!valor.isEmpty() && valor.size() <= 255);
    Exigir(!valor.contains(u'\n') && !valor.contains(QChar::Null));
    Exigir(!valor.back().isHighSurrogate());
}

/// A file in memory: the disk would be most of the time.
class Fichero
{
public:
    Fichero()
        : descriptor_(memfd_create("ini", 0))
    {
        Exigir(descriptor_ >= 0);
    }
    ~Fichero() { close(descriptor_); }
    Fichero(const Fichero&) = delete;
    Fichero& operator=(const Fichero&) = delete;

    QString ruta() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor_); }

    void Escribir(const QByteArray& contenido) const
    {
        Exigir(ftruncate(descriptor_, 0) == 0);
        Exigir(pwrite(descriptor_, contenido.constData(), static_cast<std::size_t>(contenido.size()), 0) ==
               contenido.size());
    }

private:
    int descriptor_;
};

/// Some bytes stand for what ini files are made of, so that the fuzzer soon finds its way in.
QByteArray Contenido(const std::uint8_t* datos, std::size_t largo)
{
    static const std::array<QByteArray, 9> kPiezas{
        QByteArray(1, '\0'), "[Datos]", "\nRutaAcceso=",      "\r\n", "\"", " = ",
        "\xEF\xBB\xBF",      "\n;",     QByteArray(4000, 'a')};
    QByteArray contenido;
    for (std::size_t i = 0; i < largo; ++i) {
        contenido +=
            datos[i] < kPiezas.size() ? kPiezas[datos[i]] : QByteArray(1, static_cast<char>(datos[i]));
    }
    return contenido;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    static const Fichero fichero;
    const auto leer = [](QStringView seccion) {
        return LeerIni(fichero.ruta(), seccion.toString(), QStringLiteral("RutaAcceso"), kDefecto.toString());
    };

    QByteArray contenido = Contenido(datos, largo);
    fichero.Escribir(contenido);
    const QString valor = leer(u"Datos");
    ComprobarValor(valor);
    Exigir(leer(u"dATOS ") == valor);

    // Whatever stands before it, a section of our own on new lines is found, and hides nothing.
    if (!contenido.toLower().contains("unica")) {
        contenido += "\n[Unica]\nrutaacceso = \" x \"\n";
        fichero.Escribir(contenido);
        Exigir(leer(u"Unica") == u" x ");
        Exigir(leer(u"Datos") == valor);
    }
    return 0;
}
