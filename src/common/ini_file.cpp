#include "common/ini_file.h"

#include <QFile>
#include <QFileInfo>
#include <QUtf8StringView>
#include <algorithm>
#include <array>
#include <optional>

namespace valmerix {

namespace {

constexpr qsizetype kLargoValor = 255;
constexpr qint64 kLargoLinea = 16384;

/// The lines of a file, one after the other; of a line too long to be one of ours only the beginning.
class LectorLineas
{
public:
    explicit LectorLineas(QIODevice& dispositivo)
        : dispositivo_(dispositivo)
    {
    }

    std::optional<QString> Siguiente()
    {
        const qint64 leidos = dispositivo_.readLine(buffer_.data(), kLargoLinea);
        if (leidos <= 0) {
            return {};
        }
        QByteArrayView linea(buffer_.data(), leidos);
        if (primera_ && linea.startsWith("\xEF\xBB\xBF")) {
            linea = linea.sliced(3);
        }
        primera_ = false;
        if (!linea.endsWith('\n') && leidos == kLargoLinea - 1) {
            linea = SinCaracterPartido(linea);
            SaltarResto();
            return Descifrar(linea);
        }
        return Descifrar(linea);
    }

private:
    // A character without its end at the cut would not pass for UTF-8.
    static QByteArrayView SinCaracterPartido(QByteArrayView linea)
    {
        const auto ultimo = [&linea] { return linea.isEmpty() ? 0 : static_cast<uchar>(linea.back()); };
        for (int i = 0; i < 3 && ultimo() >= 0x80 && ultimo() < 0xC0; ++i) {
            linea.chop(1);
        }
        linea.chop(ultimo() >= 0xC0 ? 1 : 0);
        return linea;
    }

    static QString Descifrar(QByteArrayView linea)
    {
        const QUtf8StringView utf8(linea.data(), linea.size());
        return utf8.isValidUtf8() ? utf8.toString() : QString::fromLatin1(linea);
    }

    void SaltarResto()
    {
        std::array<char, 4096> sobrante{};
        qint64 leidos = 0;
        do {
            leidos = dispositivo_.readLine(sobrante.data(), sobrante.size());
        } while (leidos > 0 && sobrante[static_cast<size_t>(leidos - 1)] != '\n');
    }

    QIODevice& dispositivo_;
    std::array<char, kLargoLinea> buffer_{};
    bool primera_ = true;
};

bool Iguales(QStringView uno, QStringView otro)
{
    return uno.trimmed().compare(otro.trimmed(), Qt::CaseInsensitive) == 0;
}

/// The name of the section that the line opens.
std::optional<QStringView> Seccion(QStringView linea)
{
    const qsizetype cierre = linea.indexOf(u']');
    if (!linea.startsWith(u'[') || cierre < 0) {
        return {};
    }
    return linea.sliced(1, cierre - 1);
}

/// The value of the line when it is that of `clave`.
std::optional<QStringView> Valor(QStringView linea, QStringView clave)
{
    const qsizetype igual = linea.indexOf(u'=');
    if (linea.startsWith(u';') || igual <= 0 || !Iguales(linea.first(igual), clave)) {
        return {};
    }
    const QStringView bruto = linea.sliced(igual + 1);
    const qsizetype nulo = bruto.indexOf(QChar::Null);
    QStringView valor = (nulo < 0 ? bruto : bruto.first(nulo)).trimmed();
    const bool comillas = valor.startsWith(u'"') || valor.startsWith(u'\'');
    if (comillas && valor.size() >= 2 && valor.front() == valor.back()) {
        valor = valor.sliced(1, valor.size() - 2);
    }
    valor.truncate(std::min(kLargoValor, valor.size()));
    if (!valor.isEmpty() && valor.back().isHighSurrogate()) {
        valor.chop(1);
    }
    return valor;
}

} // namespace

QString LeerIni(const QString& fichero, const QString& seccion, const QString& clave, const QString& defecto)
{
    QFile archivo(fichero);
    // A device or a pipe might never end.
    if (!QFileInfo(archivo).isFile() || !archivo.open(QIODevice::ReadOnly)) {
        return defecto;
    }
    LectorLineas lineas(archivo);
    bool dentro = false;
    while (const auto texto = lineas.Siguiente()) {
        const QStringView linea = QStringView(*texto).trimmed();
        if (const auto abierta = Seccion(linea)) {
            if (dentro) {
                break; // the first section of that name is the one that counts
            }
            dentro = Iguales(*abierta, seccion);
        } else if (const auto valor = dentro ? Valor(linea, clave) : std::nullopt) {
            return valor->isEmpty() ? defecto : valor->toString();
        }
    }
    return defecto;
}

} // namespace valmerix
