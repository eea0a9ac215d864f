// The pictures of a case: the files stay where they are, the case keeps their names and paths.

#include "store/query.h"
#include "valuation/case_form.h"

#include <QFileInfo>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;
using AccesoDatos::clsConsulta;

namespace {

constexpr int kColumnaRuta = 0;
constexpr int kColumnaNombre = 1;
constexpr qsizetype kExtension = 4; // characters, the dot among them, whatever the name ends in

constexpr QStringView kFiltro =
    u"Todos los formatos gráficos (*.bmp;*.gif;*.jpg)|*.bmp;*.gif;*.jpg|Windows Bitmap (*.bmp)|*.bmp|"
    u"Fichero Gráfico Intercambio Compuserve(*.gif)|*.gif|Ficheros comprimidos JPEG (*.jpg)|*.jpg";

// What stands before the last four characters, back to the folder.
QString NombreDeFichero(QStringView ruta)
{
    const QStringView sinExtension = ruta.chopped(kExtension);
    const qsizetype carpeta = std::max(sinExtension.lastIndexOf(u'\\'), sinExtension.lastIndexOf(u'/')) + 1;
    return sinExtension.sliced(carpeta).toString();
}

bool HayFichero(const QString& ruta)
{
    return !ruta.endsWith(u'\\') && QFileInfo(ruta).isFile();
}

// The first row of that name, 0 when there is none.
int FilaDe(const Rejilla& imagenes, const QString& nombre)
{
    for (int fila = 1; fila < imagenes.Rows(); ++fila) {
        if (imagenes.TextMatrix(fila, kColumnaNombre) == nombre)
            return fila;
    }
    return 0;
}

// Cell by cell: a path may hold a tabulator, at which a line would be split.
void Poner(Rejilla& imagenes, int fila, const QString& ruta, const QString& nombre)
{
    imagenes.setRedraw(false);
    if (fila == 0) {
        imagenes.AddItem({});
        fila = imagenes.Rows() - 1;
    }
    imagenes.setTextMatrix(fila, kColumnaRuta, ruta);
    imagenes.setTextMatrix(fila, kColumnaNombre, nombre);
    imagenes.setRedraw(true);
}

} // namespace

void Formulario::CargaGridImagenesAsociadas()
{
    Rejilla& imagenes = rejilla(u"GridImagen");
    imagenes.setColumnas({{}, u"Nombre"_s}, {0, 2500});
    const qint32 numero = servicios_.compartido.NumeroTasacionActual;
    const QString& tasador = texto(u"cboNombreTasador");
    if (numero != 0 && !tasador.isEmpty()) {
        clsConsulta consulta(servicios_.compartido);
        consulta.AbrirBaseDatosEmpresa(servicios_.compartido.RutaBaseDatos);
        // Whatever its kind: the condition has always been without it.
        const ConjuntoResultados filas = consulta.Instantanea2(
            u"Empresa"_s, u"SELECT Ruta, Nombre FROM ImagenesAsociadas WHERE NombreTasador = '"_s + tasador +
                              u"' AND NumeroTasacion = "_s + QString::number(numero));
        for (qint32 i = 1; i <= filas.RecordCount(); ++i)
            Poner(imagenes, 0, filas.Texto(u"Ruta", i), filas.Texto(u"Nombre", i));
    }
    como<Imagen>(u"Imagen").setPicture({});
    campo(u"txtRutaImagen").setText({});
    campo(u"txtNombreImagen").setText({});
}

void Formulario::ActualizarGrid(QStringView Accion)
{
    const QString nombre = texto(u"txtNombreImagen");
    const QString ruta = texto(u"txtRutaImagen");
    if (nombre.isEmpty() || ruta.isEmpty())
        return;
    Rejilla& imagenes = rejilla(u"GridImagen");
    const int fila = FilaDe(imagenes, nombre);
    if (Accion == u"Editar") {
        Poner(imagenes, fila, ruta, nombre);
    } else if (Accion == u"Borrar" && fila > 0) {
        imagenes.RemoveItem(fila);
    }
    campo(u"txtNombreImagen").setText({});
    campo(u"txtRutaImagen").setText({});
}

void Formulario::AlBuscarImagen()
{
    const std::optional<QString> ruta = servicios_.dialogos.ElegirFichero(kFiltro.toString());
    if (!ruta)
        return;
    campo(u"txtRutaImagen").setText(*ruta);
    if (ruta->size() >= kExtension)
        campo(u"txtNombreImagen").setText(NombreDeFichero(*ruta));
}

void Formulario::AlElegirImagen()
{
    const Rejilla& imagenes = rejilla(u"GridImagen");
    const int fila = imagenes.Row();
    if (fila < 1)
        return;
    campo(u"txtNombreImagen").setText(imagenes.TextMatrix(fila, kColumnaNombre));
    campo(u"txtRutaImagen").setText(imagenes.TextMatrix(fila, kColumnaRuta));
}

// A file that has been moved shows nothing.
void Formulario::AlCambiarRutaImagen()
{
    const QString& ruta = texto(u"txtRutaImagen");
    como<Imagen>(u"Imagen").setPicture(HayFichero(ruta) ? ruta : QString());
}

// The file gives it as fine as it is; when it has been moved since, what is shown is copied.
void Formulario::AlCopiarImagen()
{
    auto& imagen = como<Imagen>(u"Imagen");
    const QString ruta = imagen.Picture();
    if (ruta.isEmpty() ||
        (!servicios_.sistema.CopiarImagenAlPortapapeles(ruta) && !imagen.CopiarLoMostrado()))
        return;
    servicios_.dialogos.Mensaje(u"La imagen seleccionada se ha copiado al portapapeles"_s, u"Aviso"_s,
                                IconoMensaje::Informacion);
}

} // namespace valmerix
