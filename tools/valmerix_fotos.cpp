// Takes pictures of the windows of a stored flat: valmerix-fotos BASE CARPETA

#include "report/viewer.h"
#include "shell/application.h"
#include "shell/case_tree.h"
#include "shell/start_window.h"
#include "store/query.h"
#include "ui/desktop.h"
#include "ui/dialogs.h"
#include "ui/help/help_port.h"
#include "ui/help/help_window.h"
#include "ui/look/application.h"
#include "ui/look/icons.h"
#include "ui/machine.h"
#include "ui/pictures/capture.h"
#include "ui/printing/printing_port.h"
#include "valuation/case_form.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

constexpr int kRespiro = 400; // ms for the windows to settle
constexpr int kPaginaValoracion = 4;
constexpr QSize kFotografia(640, 480);

void Esperar(int ms)
{
    QEventLoop bucle;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, &bucle, &QEventLoop::quit);
    reloj.start(ms);
    bucle.exec();
}

/// One run of the program on a database, window after window.
class Reportaje
{
public:
    Reportaje(Aplicacion& aplicacion, PantallaQt& pantalla, const AyudaQt& ayuda, const QDir& carpeta)
        : aplicacion_(aplicacion)
        , pantalla_(pantalla)
        , ayuda_(ayuda)
        , carpeta_(carpeta)
    {
    }

    /// False when a picture is missing.
    bool Hacer()
    {
        aplicacion_.Arrancar();
        aplicacion_.inicio()->TerminarPortada();
        Esperar(kRespiro);
        if (VistaVentana* inicio = pantalla_.vista(*aplicacion_.inicio())) {
            for (auto* arbol : inicio->findChildren<QTreeView*>())
                arbol->expandAll();
        }
        Retratar(aplicacion_.inicio(), u"inicio"_s);
        aplicacion_.AbrirCaso(PrimerCaso());
        Retratar(aplicacion_.paleta(), u"herramientas"_s);
        RetratarPaginas(*aplicacion_.FormularioActual());
        RetratarPendiente(*aplicacion_.FormularioActual());
        RetratarModal(u"ficha"_s, [this] { aplicacion_.MostrarFicha(); });
        RetratarModal(u"opciones"_s, [this] { aplicacion_.EjecutarOrden(OrdenPaleta::Opciones); });
        aplicacion_.EjecutarOrden(OrdenPaleta::Informe);
        Retratar(aplicacion_.visor(), u"visor"_s);
        RetratarModal(u"previa"_s, [this] { aplicacion_.Imprimir(); });
        RetratarAyuda();
        return completo_;
    }

private:
    void RetratarPaginas(Formulario& piso)
    {
        piso.ActualizarResultados();
        PonerFotografia(piso);
        auto& paginas = piso.como<Solapas>(u"SSTab1");
        for (int pagina = 0; pagina < paginas.paginas(); ++pagina) {
            paginas.setTab(pagina);
            Retratar(&piso, u"piso_%1"_s.arg(pagina + 1));
        }
    }

    // The samples' photographs are nobody's files: a drawn house stands for one.
    void PonerFotografia(Formulario& piso)
    {
        const QString ruta = fotografias_.filePath(u"Fachada principal.jpg"_s);
        QImage foto(kFotografia, QImage::Format_RGB32);
        foto.fill(QColor(0xbf, 0xdb, 0xf7));
        QPainter pintor(&foto);
        pintor.fillRect(QRect(0, kFotografia.height() * 4 / 5, kFotografia.width(), kFotografia.height()),
                        QColor(0x8a, 0xb0, 0x6a));
        Icono(u"piso"_s, QColor(0x5b, 0x4a, 0x3f)).paint(&pintor, foto.rect());
        pintor.end();
        foto.save(ruta);
        auto& imagenes = piso.rejilla(u"GridImagen");
        imagenes.AddItem(ruta + u"\tFachada principal"_s);
        imagenes.setRow(imagenes.Rows() - 1);
        imagenes.Pulsar(imagenes.Rows() - 1);
        piso.campo(u"txtRutaImagen").setText(ruta);
    }

    void RetratarAyuda()
    {
        aplicacion_.MostrarAyuda(u"Piso"_s);
        Esperar(kRespiro);
        Guardar(ayuda_.ventana(), u"ayuda"_s);
    }

    // Results that no longer hold, as she sees them after touching a figure.
    void RetratarPendiente(Formulario& piso)
    {
        piso.como<Solapas>(u"SSTab1").setTab(kPaginaValoracion);
        const QString coste = piso.texto(u"BoxCc");
        piso.Enfocar(u"BoxCc");
        piso.campo(u"BoxCc").Teclear(u"7"_s);
        Retratar(&piso, u"pendiente"_s);
        piso.campo(u"BoxCc").setText(coste);
        piso.Enfocar(nullptr);
        piso.boton(u"SSCommand7").Pulsar();
    }

    void Retratar(const Ventana* ventana, const QString& nombre)
    {
        Esperar(kRespiro);
        VistaVentana* vista = ventana ? pantalla_.vista(*ventana) : nullptr;
        Guardar(vista, nombre);
    }

    /// `mostrar` comes back once the window that it shows has been closed.
    template <class F>
    void RetratarModal(const QString& nombre, F mostrar)
    {
        QTimer reloj;
        reloj.setSingleShot(true);
        QObject::connect(&reloj, &QTimer::timeout, &reloj, [this, nombre] {
            QWidget* vista = QApplication::activeModalWidget();
            Guardar(vista, nombre);
            if (vista)
                vista->close();
        });
        reloj.start(2 * kRespiro);
        mostrar();
    }

    void Guardar(QWidget* vista, const QString& nombre)
    {
        completo_ = vista && vista->grab().save(carpeta_.filePath(nombre + u".png"_s)) && completo_;
    }

    /// The tree's key of the flat with the lowest number.
    QString PrimerCaso()
    {
        const auto casos = ArbolCasos::Busqueda(aplicacion_.compartido(), u"P"_s);
        if (!casos || casos->RecordCount() == 0) {
            throw std::runtime_error("No hay ningún piso en la base de datos.");
        }
        return u"%1#%2#P"_s.arg(casos->Texto(u"NombreTasador")).arg(casos->Entero(u"NumeroTasacion"));
    }

    Aplicacion& aplicacion_;
    PantallaQt& pantalla_;
    const AyudaQt& ayuda_;
    QDir carpeta_;
    QTemporaryDir fotografias_;
    bool completo_ = true;
};

/// A program folder that leads to the database.
void ApuntarA(const QString& base, const QString& carpeta)
{
    QSaveFile ini(carpeta + u"/Valmerix.ini"_s);
    if (ini.open(QIODevice::WriteOnly)) {
        ini.write("[Datos]\nRutaAcceso=" + QFileInfo(base).absoluteFilePath().toUtf8() + "\n");
        ini.commit();
    }
}

} // namespace

} // namespace valmerix

int main(int argc, char* argv[])
{
    using namespace valmerix;
    AplicacionQt qt(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 3) {
        QTextStream(stderr) << u"Uso: valmerix-fotos BASE CARPETA"_s << Qt::endl;
        return 2;
    }
    const QTemporaryDir carpetaPrograma;
    ApuntarA(argumentos.at(1), carpetaPrograma.path());
    DialogosQt dialogos;
    RelojQt reloj;
    SistemaQt sistema(carpetaPrograma.path());
    CapturaQt captura;
    PantallaQt pantalla;
    ImpresionQt impresion(dialogos);
    AyudaQt ayuda;
    Aplicacion aplicacion({dialogos, reloj, sistema, pantalla, captura, impresion, &ayuda});
    try {
        return Reportaje(aplicacion, pantalla, ayuda, QDir(argumentos.at(2))).Hacer() ? 0 : 1;
    } catch (const std::exception& fallo) {
        QTextStream(stderr) << QString::fromUtf8(fallo.what()) << Qt::endl;
        return 1;
    }
}
