// Takes pictures of the windows of a stored flat: valmerix-fotos BASE CARPETA

#include "report/viewer.h"
#include "shell/application.h"
#include "shell/case_tree.h"
#include "shell/start_window.h"
#include "store/query.h"
#include "ui/application.h"
#include "ui/capture.h"
#include "ui/desktop.h"
#include "ui/dialogs.h"
#include "ui/machine.h"
#include "ui/printing_port.h"
#include "valuation/case_form.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

constexpr int kRespiro = 400; // ms for the windows to settle

void Esperar(int ms)
{
    QEventLoop bucle;
    QTimer::singleShot(ms, &bucle, &QEventLoop::quit);
    bucle.exec();
}

/// One run of the program on a database, window after window.
class Reportaje
{
public:
    Reportaje(Aplicacion& aplicacion, PantallaQt& pantalla, const QDir& carpeta)
        : aplicacion_(aplicacion)
        , pantalla_(pantalla)
        , carpeta_(carpeta)
    {
    }

    /// False when a picture is missing.
    bool Hacer()
    {
        aplicacion_.Arrancar();
        aplicacion_.inicio()->TerminarPortada();
        Retratar(aplicacion_.inicio(), u"inicio"_s);
        aplicacion_.AbrirCaso(PrimerCaso());
        RetratarPaginas(*aplicacion_.FormularioActual());
        aplicacion_.EjecutarOrden(OrdenPaleta::Informe);
        Retratar(aplicacion_.visor(), u"visor"_s);
        return completo_;
    }

private:
    void RetratarPaginas(Formulario& piso)
    {
        piso.ActualizarResultados();
        auto& paginas = piso.como<Solapas>(u"SSTab1");
        for (int pagina = 0; pagina < paginas.paginas(); ++pagina) {
            paginas.setTab(pagina);
            Retratar(&piso, u"piso_%1"_s.arg(pagina + 1));
        }
    }

    void Retratar(const Ventana* ventana, const QString& nombre)
    {
        Esperar(kRespiro);
        VistaVentana* vista = ventana ? pantalla_.vista(*ventana) : nullptr;
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
    QDir carpeta_;
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
    Aplicacion aplicacion({dialogos, reloj, sistema, pantalla, captura, impresion});
    try {
        return Reportaje(aplicacion, pantalla, QDir(argumentos.at(2))).Hacer() ? 0 : 1;
    } catch (const std::exception& fallo) {
        QTextStream(stderr) << QString::fromUtf8(fallo.what()) << Qt::endl;
        return 1;
    }
}
