#pragma once

#include "ui/printing/paged_document.h"

#include <QPagedPaintDevice>
#include <QPrinter>
#include <functional>

namespace valmerix {

/// Told before each page how many of how many are done; false gives up.
using Avance = std::function<bool(int hechas, int total)>;

/// Pages from `primera` to `ultima` (from 0, both included; backwards when `primera` is the greater) on a
/// device whose pages have no margins. False when given up, or when the device refuses.
bool PintarPaginas(DocumentoPaginado& documento, QPagedPaintDevice& destino, int primera, int ultima,
                   const Avance& avance);

/// What was chosen in the print dialog: range, order. Smaller paper gets smaller pages.
bool ImprimirPaginas(DocumentoPaginado& documento, QPrinter& impresora, int paginaActual,
                     const Avance& avance);

} // namespace valmerix
