#pragma once

#include "common/printed_document.h"
#include "common/shared_state.h"
#include "controls/grid.h"

#include <QStringList>
#include <QStringView>

namespace valmerix {

/// What the print commands of the viewer read.
struct DatosImpresion
{
    const EstadoCompartido& compartido;
    QString texto;             ///< of the viewer; what stands behind its last line feed is not printed
    QStringList oColNegrita;   ///< lines that hold one of them print bold; "" is skipped
    const Rejilla& GridImagen; ///< of the case window: column 0 path, column 1 caption
    bool membrete = false;     ///< company data and logo at the head of the report
    QString autor;             ///< the valuer
};

/// Pours the report into the work tables, shows its pages and empties the tables. Throws ErrorAlmacen: then
/// nothing is shown and the tables stay as filled until the next printing.
void ImprimirInforme(const DatosImpresion& datos, Impresion& impresion);

/// The same for a certificate: neither letterhead nor photographs.
void ImprimirCertificado(const DatosImpresion& datos, Impresion& impresion);

/// What stands in the viewer: the report for "Informe", a certificate for any other type.
void ImprimirDocumento(QStringView TipoDocumento, const DatosImpresion& datos, Impresion& impresion);

} // namespace valmerix
