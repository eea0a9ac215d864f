#include "report/find_history.h"

#include "report/report_error.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>
#include <QtEndian>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kRegistro = 80;
constexpr qsizetype kTamañoMaximo = kRegistro * (kBusquedasRecordadas + 1);

QByteArray Relleno(QByteArray bytes)
{
    return bytes.append(kRegistro - bytes.size(), ' ');
}

/// The longest beginning that fits a record and ends between characters.
QByteArray CortadoEntreCaracteres(const QString& texto)
{
    QByteArray bytes = texto.toUtf8();
    qsizetype fin = std::min(bytes.size(), kRegistro);
    const auto esContinuacion = [&](qsizetype i) { return (static_cast<uchar>(bytes[i]) & 0xC0) == 0x80; };
    while (fin > 0 && fin < bytes.size() && esContinuacion(fin)) {
        --fin;
    }
    bytes.truncate(fin);
    return bytes;
}

QString SinRelleno(QString texto)
{
    while (texto.endsWith(u' ')) {
        texto.chop(1);
    }
    return texto;
}

} // namespace

QStringList LeerRegistrosBusqueda(const QByteArray& fichero)
{
    if (fichero.size() < kRegistro) {
        return {};
    }
    const auto cuenta = qFromLittleEndian<qint16>(fichero.constData());
    if (cuenta < 0 || cuenta > kBusquedasRecordadas || fichero.size() != kRegistro * (cuenta + 1)) {
        return {};
    }
    QStringList busquedas;
    for (qsizetype i = 1; i <= cuenta; ++i) {
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString texto = SinRelleno(utf8(QByteArrayView(fichero).sliced(i * kRegistro, kRegistro)));
        if (utf8.hasError() || texto.isEmpty()) {
            return {};
        }
        busquedas.append(texto);
    }
    return busquedas;
}

QByteArray RegistrosBusqueda(const QStringList& busquedas)
{
    QByteArray registros;
    qint16 cuenta = 0;
    for (const QString& busqueda :
         busquedas.first(std::min<qsizetype>(busquedas.size(), kBusquedasRecordadas))) {
        const QByteArray bytes = CortadoEntreCaracteres(busqueda);
        if (!bytes.trimmed().isEmpty()) {
            registros += Relleno(bytes);
            ++cuenta;
        }
    }
    QByteArray cabecera(sizeof cuenta, Qt::Uninitialized);
    qToLittleEndian(cuenta, cabecera.data());
    return Relleno(cabecera) + registros;
}

QStringList CargarBusquedas(const QString& ruta)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly)) {
        return {};
    }
    return LeerRegistrosBusqueda(fichero.read(kTamañoMaximo + 1));
}

void GuardarBusquedas(const QString& ruta, const QStringList& busquedas)
{
    QSaveFile fichero(ruta);
    const QByteArray bytes = RegistrosBusqueda(busquedas);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(bytes) != bytes.size() || !fichero.commit()) {
        throw ErrorInforme(u"No se ha podido guardar "_s + ruta + u": "_s + fichero.errorString());
    }
}

} // namespace valmerix
