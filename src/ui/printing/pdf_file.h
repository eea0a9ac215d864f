#pragma once

#include "ui/printing/page_output.h"

namespace valmerix {

enum class FinPdf { Guardado, Cancelado, Fallido };

struct ResultadoPdf
{
    FinPdf fin = FinPdf::Fallido;
    QString motivo; ///< of a failure, in Spanish
};

/// Writes the whole document as a PDF of A4 pages with its title and author. Whole or not at all: a file that
/// was there before stays as it was unless the new one is complete.
ResultadoPdf GuardarPdf(DocumentoPaginado& documento, const QString& ruta, const Avance& avance = {});

} // namespace valmerix
