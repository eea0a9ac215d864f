#include "report/word_processor_chooser.h"

#include <QDir>
#include <QStorageInfo>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kCarpetaSuperior = u"..";

// "*.exe" as the help has always said it: here they are the executable files.
constexpr QStringView kAyuda =
    u"Seleccionar por orden la unidad, directorio y programa de tratamiento de textos deseado. La lista solo "
    u"facilita los ficheros con extensión *.exe para agilizar";

/// The root first, then the volumes that hold files.
QStringList Unidades()
{
    QStringList unidades{QDir::rootPath()};
    for (const QStorageInfo& volumen : QStorageInfo::mountedVolumes()) {
        if (volumen.isReady() && volumen.bytesTotal() > 0 && !unidades.contains(volumen.rootPath())) {
            unidades.append(volumen.rootPath());
        }
    }
    return unidades;
}

} // namespace

Busqueda::Busqueda(EstadoCompartido& compartido, CampoTexto* trayectoria, Dialogos& dialogos)
    : Ventana(u"Busqueda"_s, u"Cuadro de selección del tratamiento de textos"_s)
    , compartido_(compartido)
    , trayectoria_(trayectoria)
    , dialogos_(dialogos)
{
    CrearControles();
    ConectarControles();
    IrA(QDir::rootPath());
}

void Busqueda::CrearControles()
{
    auto& unidades = Añadir<Lista>(u"Drive1"_s);
    unidades.setCaption(u"Unidad:"_s);
    unidades.setList(Unidades());
    unidades.setCerrada(true);
    Añadir<Lista>(u"Dir1"_s).setCaption(u"Directorio:"_s);
    Añadir<Lista>(u"File1"_s).setCaption(u"Programa:"_s);
    auto& elegido = Añadir<CampoTexto>(u"SelecBox"_s);
    elegido.setCaption(u"Selección:"_s);
    elegido.setLocked(true);
    Añadir<Boton>(u"Nueva"_s).setCaption(u"Aceptar"_s);
    Añadir<Boton>(u"SSCommand2"_s).setCaption(u"Cancelar"_s);
    Añadir<Boton>(u"SSCommand3"_s).setCaption(u"Ayuda"_s);
    unidades.setText(QDir::rootPath());
}

void Busqueda::ConectarControles()
{
    connect(&lista(u"Drive1"), &Lista::Click, this, [this] { IrA(texto(u"Drive1")); });
    connect(&lista(u"Dir1"), &Lista::Click, this, [this] { IrA(rutaDe(texto(u"Dir1"))); });
    connect(&lista(u"File1"), &Lista::Click, this,
            [this] { campo(u"SelecBox").setText(rutaDe(texto(u"File1"))); });
    connect(&boton(u"Nueva"), &Boton::Click, this, &Busqueda::Aceptar);
    connect(&boton(u"SSCommand2"), &Boton::Click, this, &Busqueda::Cerrar);
    connect(&boton(u"SSCommand3"), &Boton::Click, this,
            [this] { dialogos_.Mensaje(kAyuda.toString(), Caption(), IconoMensaje::Informacion); });
}

void Busqueda::IrA(const QString& carpeta)
{
    const QDir directorio(QDir::cleanPath(carpeta));
    if (!directorio.exists()) {
        return;
    }
    carpeta_ = directorio.absolutePath();
    QStringList subcarpetas = directorio.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    if (!directorio.isRoot()) {
        subcarpetas.prepend(kCarpetaSuperior.toString());
    }
    lista(u"Dir1").setText({});
    lista(u"Dir1").setList(subcarpetas);
    lista(u"File1").setText({});
    lista(u"File1").setList(directorio.entryList(QDir::Files | QDir::Executable, QDir::Name));
    campo(u"SelecBox").setText({});
}

/// No second separator behind a root.
QString Busqueda::rutaDe(const QString& fichero) const
{
    return carpeta_.endsWith(u'/') ? carpeta_ + fichero : carpeta_ + u'/' + fichero;
}

void Busqueda::Aceptar()
{
    const QString& programa = texto(u"File1");
    if (programa.isEmpty()) {
        return;
    }
    compartido_.ProcesadorTextos = rutaDe(programa);
    if (trayectoria_) {
        trayectoria_->setText(compartido_.ProcesadorTextos);
    }
    Cerrar();
}

} // namespace valmerix
