#include "shell/draft_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <algorithm>
#include <tuple>
#include <vector>

namespace valmerix::FicheroBorrador {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kFormato = "VALMERIX BORRADOR 1\n";
const auto kPrefijo = u"borrador-"_s;
const auto kSufijo = u".json"_s;
constexpr qint64 kMayor = 64 * 1024 * 1024; // bytes; no draft of ours comes near

int NumeroDe(const QString& nombre)
{
    return nombre.chopped(kSufijo.size()).sliced(kPrefijo.size()).toInt();
}

QByteArray Huella(QByteArrayView datos)
{
    return QCryptographicHash::hash(QByteArray::fromRawData(datos.data(), datos.size()),
                                    QCryptographicHash::Sha256)
               .toHex() +
           '\n';
}

/// What decides which drafts are kept.
struct Edad
{
    QString fichero;
    bool enUso = false;
    bool completo = false;
    QDateTime cuando; ///< of a damaged one, when it was written
};

Edad EdadDe(const QString& fichero, const QString& enUso)
{
    const std::optional<Borrador> borrador = Leer(fichero);
    return {fichero, fichero == enUso, borrador.has_value(),
            borrador ? borrador->cuando : QFileInfo(fichero).lastModified()};
}

Borrador DeJson(const QJsonObject& objeto)
{
    Borrador borrador;
    borrador.letra = objeto.value(u"letra").toString();
    borrador.NumeroTasacion = objeto.value(u"numero").toInt();
    borrador.cuando = QDateTime::fromString(objeto.value(u"cuando").toString(), Qt::ISODateWithMs);
    borrador.controles = objeto.value(u"controles").toObject();
    borrador.presentacion = objeto.value(u"presentacion").toObject();
    borrador.calculo = objeto.value(u"calculo").toObject();
    borrador.frases = objeto.value(u"frases").toObject();
    return borrador;
}

} // namespace

QString carpeta(const QString& rutaBaseDatos)
{
    return QFileInfo(rutaBaseDatos).path() + u"/borradores"_s;
}

QStringList EnCarpeta(const QString& carpeta)
{
    return QDir(carpeta).entryList({kPrefijo + u'*' + kSufijo}, QDir::Files, QDir::Name);
}

QString NombreLibre(const QString& carpeta)
{
    int mayor = 0;
    for (const QString& nombre : EnCarpeta(carpeta))
        mayor = std::max(mayor, NumeroDe(nombre));
    return carpeta + u'/' + kPrefijo + QString::number(mayor + 1) + kSufijo;
}

QByteArray Contenido(const Borrador& borrador)
{
    const QJsonObject objeto{
        {u"letra"_s, borrador.letra},
        {u"numero"_s, borrador.NumeroTasacion},
        {u"cuando"_s, borrador.cuando.toString(Qt::ISODateWithMs)},
        {u"controles"_s, borrador.controles},
        {u"presentacion"_s, borrador.presentacion},
        {u"calculo"_s, borrador.calculo},
        {u"frases"_s, borrador.frases},
    };
    const QByteArray datos = QJsonDocument(objeto).toJson(QJsonDocument::Compact);
    return kFormato.toByteArray() + Huella(datos) + datos;
}

std::optional<Borrador> Leer(const QString& fichero)
{
    QFile entrada(fichero);
    if (entrada.size() > kMayor || !entrada.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (entrada.readLine() != kFormato)
        return std::nullopt;
    const QByteArray huella = entrada.readLine();
    const QByteArray datos = entrada.readAll();
    if (Huella(datos) != huella)
        return std::nullopt;
    Borrador borrador = DeJson(QJsonDocument::fromJson(datos).object());
    borrador.fichero = fichero;
    return borrador;
}

QString Escribir(const QString& fichero, const QByteArray& contenido)
{
    const QString carpeta = QFileInfo(fichero).path();
    if (!QDir().mkpath(carpeta))
        return u"No se puede crear la carpeta «%1»."_s.arg(carpeta);
    QSaveFile salida(fichero);
    if (salida.open(QIODevice::WriteOnly) && salida.write(contenido) == contenido.size() && salida.commit())
        return {};
    return u"No se puede escribir «%1»: %2."_s.arg(fichero, salida.errorString());
}

void RetirarViejos(const QString& carpeta, const QString& enUso)
{
    if (EnCarpeta(carpeta).size() <= kGuardados)
        return;
    std::vector<Edad> edades;
    for (const QString& nombre : EnCarpeta(carpeta))
        edades.push_back(EdadDe(carpeta + u'/' + nombre, enUso));
    std::sort(edades.begin(), edades.end(), [](const Edad& una, const Edad& otra) {
        return std::tie(una.enUso, una.completo, una.cuando) >
               std::tie(otra.enUso, otra.completo, otra.cuando);
    });
    for (size_t i = kGuardados; i < edades.size(); ++i)
        QFile::remove(edades[i].fichero);
}

std::optional<Borrador> MasReciente(const QString& carpeta)
{
    std::optional<Borrador> mejor;
    for (const QString& nombre : EnCarpeta(carpeta)) {
        std::optional<Borrador> uno = Leer(carpeta + u'/' + nombre);
        if (uno && (!mejor || uno->cuando >= mejor->cuando))
            mejor = std::move(uno);
    }
    return mejor;
}

} // namespace valmerix::FicheroBorrador
