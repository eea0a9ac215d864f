#pragma once

struct sqlite3;

namespace valmerix {

/// Teaches a connection what our SQL speaks:
/// fecha('dd/mm/yyyy'), the stored form of a date (an error for a date that is none);
/// fecha_visible(x) and moneda_visible(x, decimals), texts for display, empty for NULL;
/// LIKE blind to case and accents; the collation ESPANOL. Throws ErrorAlmacen.
void RegistrarFunciones(sqlite3* conexion);

} // namespace valmerix
