#include "valuation/form_tables.h"

#include "valuation/form_tables_building.h"
#include "valuation/form_tables_request.h"
#include "valuation/form_tables_value.h"

#include <algorithm>
#include <array>

namespace valmerix {

using namespace filas;

namespace {

constexpr SeccionForma kSeccionesPiso[] = {
    {0, u"Informe", -1, kEncabezamiento},
    {0, u"Situación del inmueble", -1, kSituacion},
    {0, u"Solicitante", -1, kSolicitante},
    {0, u"Datos registrales", -1, kRegistro},
    {0, u"Finalidad", -1, kFinalidad},
    {1, u"Población", 0, kPoblacion},
    {1, u"Tipo de núcleo", 1, kNucleo},
    {1, u"Infraestructuras", 2, kInfraestructuras},
    {1, u"Comunicaciones", 3, kComunicaciones},
    {1, u"Zona", 4, kZona},
    {1, u"Equipamientos", 5, kEquipamientos},
    {1, u"Ocio", 6, kOcio},
    {2, u"Características del edificio", 7, kEdificio},
    {2, u"Escalera y zaguán", 8, kEscalera},
    {2, u"Servicios comunes", 9, kServiciosComunes},
    {2, u"Estado del edificio", 10, kEstadoEdificio},
    {2, u"Situación urbanística", 11, kUrbanismo},
    {3, u"Distribución", 12, kDistribucion},
    {3, u"Pavimentos", 13, kPavimentos},
    {3, u"Carpintería interior", 14, kCarpinteriaInterior},
    {3, u"Carpintería exterior", 15, kCarpinteriaExterior},
    {3, u"Mobiliario de cocina", 16, kCocina},
    {3, u"Pintura", 17, kPintura},
    {3, u"Superficies", 18, kSuperficies},
    {3, u"Conservación", 19, kConservacion},
    {3, u"Calidades", 20, kCalidad},
    {4, u"Documentación", 21, kDocumentos},
    {4, u"Datos para la valoración", 22, kDatosValor},
    {4, u"Anexos", -1, kAnexosForma},
    {4, u"Resultados", -1, kResultados},
    {5, u"Búsqueda de testigos", -1, kFiltrosTestigos},
    {5, u"Testigos hallados", -1, kTestigosHallados},
    {5, u"Testigos elegidos", -1, kTestigosElegidos},
    {6, u"Imágenes", -1, kImagenes},
    {6, u"Observaciones", -1, kObservaciones},
};

/// The flat's sections with those of the same profile index replaced.
template <size_t N>
constexpr auto ConCambios(const SeccionForma (&cambios)[N])
{
    std::array<SeccionForma, std::size(kSeccionesPiso)> secciones{};
    for (size_t i = 0; i < secciones.size(); ++i) {
        secciones[i] = kSeccionesPiso[i];
        for (const SeccionForma& cambio : cambios) {
            if (secciones[i].apartado == cambio.apartado)
                secciones[i] = cambio;
        }
    }
    return secciones;
}

constexpr SeccionForma kCambiosApto[] = {
    {1, u"Zona", 4, kZonaVacacional},
};

// The profile of a house has its own order from the building on.
constexpr SeccionForma kCambiosCasa[] = {
    {2, u"Características del edificio", 7, kEdificioCasa},
    {2, u"Situación urbanística", 8, kUrbanismo},
    {2, u"Servicios individuales", 10, kServiciosIndividuales},
    {2, u"Estado del edificio", 11, kEstadoEdificio},
};

constexpr auto kSeccionesApto = ConCambios(kCambiosApto);
constexpr auto kSeccionesCasa = ConCambios(kCambiosCasa);

} // namespace

std::span<const SeccionForma> SeccionesPiso()
{
    return kSeccionesPiso;
}

std::span<const SeccionForma> SeccionesApto()
{
    return kSeccionesApto;
}

std::span<const SeccionForma> SeccionesCasa()
{
    return kSeccionesCasa;
}

std::span<const ControlForma> ControlesVentana()
{
    return kVentana;
}

std::span<const EtiquetaMoneda> EtiquetasMoneda()
{
    return kMonedas;
}

int CuentaApartados(std::span<const SeccionForma> secciones)
{
    int mayor = -1;
    for (const SeccionForma& seccion : secciones)
        mayor = std::max(mayor, seccion.apartado);
    return mayor + 1;
}

int CuentaPuntos(std::span<const SeccionForma> secciones)
{
    int mayor = -1;
    for (const SeccionForma& seccion : secciones) {
        for (const ControlForma& fila : seccion.controles)
            mayor = std::max(mayor, fila.punto);
    }
    return mayor + 1;
}

} // namespace valmerix
