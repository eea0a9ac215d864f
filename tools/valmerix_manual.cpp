// Makes the manual's file out of its Markdown pages: valmerix-manual CARPETA Valmerix.chm

#include "manual_pages.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

void Hacer(const QDir& carpeta, const QString& destino)
{
    std::vector<valmerix::PaginaManual> paginas = valmerix::LeerPaginas(carpeta);
    QMap<QString, QByteArray> imagenes;
    for (const QString& nombre : QDir(carpeta.filePath(u"img"_s)).entryList({u"*.png"_s})) {
        QFile imagen(carpeta.filePath(u"img/"_s + nombre));
        if (!imagen.open(QIODevice::ReadOnly))
            throw std::runtime_error((nombre + u" cannot be read"_s).toStdString());
        imagenes.insert(u"img/"_s + nombre, imagen.readAll());
    }
    valmerix::EscribirManual(destino, valmerix::Manual(std::move(paginas), std::move(imagenes)));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 3) {
        QTextStream(stderr) << u"Uso: valmerix-manual CARPETA Valmerix.chm"_s << Qt::endl;
        return 2;
    }
    try {
        Hacer(QDir(argumentos.at(1)), argumentos.at(2));
    } catch (const std::exception& fallo) {
        QTextStream(stderr) << u"valmerix-manual: "_s << QString::fromUtf8(fallo.what()) << Qt::endl;
        return 1;
    }
    return 0;
}
