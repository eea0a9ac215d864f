#pragma once

#include "valuation/form_rows.h"

// Pages 4 to 6 of the dwellings: documents and figures, comparables, pictures and notes.
namespace valmerix::filas {

inline constexpr ControlForma kDocumentos[] = {
    Check(u"CheckEscritura", u"Escritura pública de propiedad."),
    Check(u"CheckLicencia", u"Licencia de Obras."),
    Check(u"CheckContribucion", u"Recibo de contribución urbana."),
    Ayuda(u"Otros documentos", Check(u"CheckOtra")),
    Junto(Ayuda(u"Descripción de los otros documentos", Texto(u"BoxDocumentacion"))),
};

inline constexpr ControlForma kDatosValor[] = {
    Texto(u"BoxK", u"Coeficiente de mercado utilizado (K):"),
    Texto(u"BoxProvisional", u"Valor de la vivienda (solo si lo conoce):"),
    Junto(Rotulo(u"EtiquetaMoneda(0)")),
    Texto(u"BoxSolar", u"Superficie del solar (solo si la conoce):"),
    Junto(Rotulo(u"EtiquetaSolar", u"m²")),
    Texto(u"BoxRepercusion", u"Repercusión solar por m² const.(RS):"),
    Junto(Rotulo(u"EtiquetaMoneda(1)")),
    Texto(u"BoxSobreRasante", u"Superficie construída sobre rasante (Cambiela si lo desea)"),
    Junto(Rotulo(u"EtiquetaSobreRasante", u"m²")),
    Texto(u"BoxCc", u"Coste de construcción (Cc):"),
    Junto(Rotulo(u"EtiquetaMoneda(2)")),
    Resultado(u"BoxReposicion", u"Valor de reposición (CR):"),
    Junto(Rotulo(u"EtiquetaMoneda(3)")),
};

inline constexpr ControlForma kAnexosForma[] = {
    Rotulo(u"EtiquetaValorEstimado", u"Valor estimado"),
    Check(u"CheckTrast", u"Trastero en planta"),
    Junto(Ayuda(u"Planta del trastero",
                Combo(u"Combo8", {}, u"baja|ático|sótano primero|sótano segundo|entresuelo"))),
    Junto(Ayuda(u"Valor estimado del trastero", Texto(u"BoxTrastero"))),
    Check(u"CheckGrj", u"Garaje en planta"),
    Junto(Ayuda(u"Planta del garaje",
                Combo(u"Combo7", {}, u"baja|sótano primero|sótano segundo|sótano tercero|entresuelo"))),
    Junto(Ayuda(u"Valor estimado del garaje", Texto(u"BoxGaraje"))),
    Ayuda(u"Otro anexo", Check(u"CheckOtra2")),
    Junto(Ayuda(u"Descripción del otro anexo", Texto(u"Text8"))),
    Junto(Ayuda(u"Valor estimado del otro anexo", Texto(u"Text9"))),
};

inline constexpr ControlForma kResultados[] = {
    Resultado(u"BoxVr", u"Unitario (Vr):"),
    Junto(Rotulo(u"EtiquetaMoneda(4)")),
    Resultado(u"BoxVivienda", u"Valor vivienda:"),
    Resultado(u"BoxAnexos", u"Valor anexos:"),
    Ayuda(u"Valor total", Resultado(u"BoxTotal", {})),
    Junto(Rotulo(u"EtiquetaMoneda(5)")),
    Ayuda(u"Poner al día los resultados", Pulsador(u"SSCommand7", u"Calcular")),
};

inline constexpr ControlForma kFiltrosTestigos[] = {
    Rotulo(u"AvisoTestigos",
           u"La búsqueda de testigos llegará con una próxima versión; aquí se ven los que ya "
           u"están asociados al expediente."),
    Texto(u"txtProvincia", u"Provincia:"),
    Texto(u"txtPoblacion", u"Población:"),
    Texto(u"txtPalabrasDireccion", u"Palabras de la dirección:"),
    Texto(u"txtCodigoPostal", u"Código Postal:"),
    Combo(u"cboTipoZona", u"Tipo Zona:", u"Media|Buena|Mala"),
    Fila(ClaseControl::Fecha, u"txtFechaDesde", u"Fecha desde:"),
    Junto(Fila(ClaseControl::Fecha, u"txtFechaHasta", u"hasta:")),
    Texto(u"txtSuperficieDesde", u"Superficie desde:"),
    Junto(Texto(u"txtSuperficieHasta", u"hasta:")),
    Junto(Ayuda(u"Superficie de que se trata", Combo(u"cboTipoSup", {}, u"Util|Construida"))),
    Texto(u"txtImporteDesde", u"Importe desde:"),
    Junto(Texto(u"txtImporteHasta", u"hasta:")),
    Texto(u"txtEdadDesde", u"Antigüedad desde:"),
    Junto(Texto(u"txtEdadHasta", u"hasta:")),
};

inline constexpr ControlForma kTestigosHallados[] = {
    Ayuda(u"Testigos hallados", Fila(ClaseControl::Rejilla, u"fgrBusqueda", {})),
};

inline constexpr ControlForma kTestigosElegidos[] = {
    Ayuda(u"Testigos elegidos", Fila(ClaseControl::Rejilla, u"fgrSeleccion", {})),
};

inline constexpr ControlForma kImagenes[] = {
    Ayuda(u"Imágenes del expediente", Fila(ClaseControl::Rejilla, u"GridImagen", {})),
    Ayuda(u"Con este nombre sale la imagen en la lista y en el informe",
          Texto(u"txtNombreImagen", u"Nombre:")),
    Ayuda(u"Trayectoria completa del fichero de la imagen", Texto(u"txtRutaImagen", u"Fichero:")),
    Junto(Ayuda(u"Buscar el fichero de una imagen", Pulsador(u"btnBuscaImagen", u"Buscar..."))),
    Ayuda(u"Añadir la imagen a la lista, o cambiar la que ya tiene ese nombre",
          Pulsador(u"btnActualizarLista", u"Actualizar Lista")),
    Junto(Ayuda(u"Quitar de la lista la imagen de ese nombre; su fichero no se borra",
                Pulsador(u"SSCommand8", u"Borrar"))),
    Junto(Ayuda(u"Copiar la imagen al portapapeles", Pulsador(u"SSCommand9", u"Copiar"))),
    Ayuda(u"Vista previa", Fila(ClaseControl::Imagen, u"Imagen", {})),
};

inline constexpr ControlForma kObservaciones[] = {
    Ayuda(u"Observaciones", Fila(ClaseControl::TextoLargo, u"txtObservaciones", {})),
    Ayuda(u"Escribir las observaciones en una ventana aparte", Pulsador(u"cmdObservaciones", u"Editor")),
};

inline constexpr ControlForma kVentana[] = {
    Fila(ClaseControl::Imagen, u"Image1", {}),
    Rotulo(u"EtiquetaCaption"),
    Ayuda(u"Salir de Valmerix", Pulsador(u"SSCommand1", u"Salir")),
    Ayuda(u"Reducir a la barra de tareas", Pulsador(u"SSCommand2", u"Minimizar")),
    Ayuda(u"Mostrar u ocultar la barra de herramientas", Pulsador(u"SSCommand3", u"Herramientas")),
    Ayuda(u"Ir a la página anterior", Pulsador(u"SSCommand4", u"Anterior")),
    Ayuda(u"Ir a la página siguiente", Pulsador(u"SSCommand5", u"Siguiente")),
};

inline constexpr EtiquetaMoneda kMonedas[] = {
    {u"EtiquetaMoneda(0)", false}, {u"EtiquetaMoneda(1)", true}, {u"EtiquetaMoneda(2)", true},
    {u"EtiquetaMoneda(3)", true},  {u"EtiquetaMoneda(4)", true}, {u"EtiquetaMoneda(5)", false},
};

} // namespace valmerix::filas
