#include "ui/printing/pdf_file.h"

#include "ui/printing/page_metrics.h"
#include "ui/printing/pdf_properties.h"

#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QString Motivo(QFileDevice::FileError error)
{
    return error == QFileDevice::WriteError || error == QFileDevice::ResourceError
               ? u"el disco está lleno o no responde"_s
               : u"no se puede escribir en ese sitio"_s;
}

// The last bytes wait in a buffer: a full disk may show only here.
bool Rematar(QSaveFile& fichero, const EscritorConCola& cola, const QByteArray& cierre)
{
    return cola.integro() && fichero.write(cierre) == cierre.size() && fichero.flush() && fichero.commit();
}

} // namespace

ResultadoPdf GuardarPdf(DocumentoPaginado& documento, const QString& ruta, const Avance& avance)
{
    QSaveFile fichero(ruta);
    // The finished file takes the place of what is there: of files only, never of a folder or a device.
    const QFileInfo sitio(ruta);
    if ((sitio.exists() && !sitio.isFile()) || !fichero.open(QIODevice::WriteOnly))
        return {FinPdf::Fallido, Motivo(fichero.error())};
    EscritorConCola cola(fichero);
    bool abandonado = false;
    bool pintado = false;
    {
        QPdfWriter pdf(&cola);
        pdf.setResolution(hoja::kPorPulgada);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF());
        pdf.setTitle(documento.titulo());
        pdf.setCreator(u"Valmerix"_s);
        const auto vigilado = [&](int hechas, int total) {
            abandonado = avance && !avance(hechas, total);
            return !abandonado;
        };
        pintado = PintarPaginas(documento, pdf, 0, documento.paginas() - 1, vigilado);
    }
    if (abandonado)
        return {FinPdf::Cancelado, {}};
    if (!pintado ||
        !Rematar(fichero, cola, AñadidoDePropiedades(cola, documento.titulo(), documento.autor())))
        return {FinPdf::Fallido, Motivo(fichero.error())};
    return {FinPdf::Guardado, {}};
}

} // namespace valmerix
