#pragma once

namespace valmerix {

struct Redaccion;

/// The building chapter as far as the kinds differ in it.
void CaracteristicasDelEdificio(Redaccion& r);
void DescripcionEnBloque(Redaccion& r); ///< flats and apartments
void DescripcionCasa(Redaccion& r);

/// The rest of the building chapter: construction, age, services, state.
void RestoDelEdificio(Redaccion& r);

} // namespace valmerix
