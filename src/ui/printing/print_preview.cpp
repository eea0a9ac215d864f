#include "ui/printing/print_preview.h"

#include "ui/look/theme.h"
#include "ui/printing/page_list.h"
#include "ui/printing/page_view.h"
#include "ui/printing/pdf_file.h"
#include "ui/printing/preview_bar.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressDialog>
#include <QScreen>
#include <QVBoxLayout>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPaciencia = 300; // milliseconds before the progress shows
constexpr QSize kTamaño(1080, 900);
constexpr int kDeLaPantalla = 92; // percent

} // namespace

VentanaPrevia::VentanaPrevia(DocumentoPaginado& documento, const QString& caption, int zoom,
                             Dialogos& dialogos, EleccionesPrevia elecciones, QWidget* padre)
    : QDialog(padre)
    , documento_(documento)
    , dialogos_(dialogos)
    , elecciones_(std::move(elecciones))
    , vista_(new VistaPaginas(documento, this))
    , lista_(new ListaPaginas(documento, this))
    , nota_(new QLabel(this))
{
    setObjectName(u"frmVisor"_s);
    setWindowTitle(caption);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setModal(true);
    Montar();
    Unir();
    vista_->setZoom(zoom);
    vista_->setFocus();
}

void VentanaPrevia::Montar()
{
    auto* barra = new BarraPrevia(*vista_, documento_.paginas(), this);
    connect(barra, &BarraPrevia::ImpresionPedida, this, &VentanaPrevia::Imprimir);
    connect(barra, &BarraPrevia::PdfPedido, this, &VentanaPrevia::GuardarComoPdf);
    connect(barra, &BarraPrevia::ListaPedida, lista_, &QWidget::setVisible);
    connect(barra, &BarraPrevia::CierrePedido, this, &QDialog::reject);

    nota_->setContentsMargins(medida::kBorde, medida::kEntreLineas, medida::kBorde, medida::kEntreLineas);
    nota_->hide();
    auto* cuerpo = new QHBoxLayout;
    cuerpo->setSpacing(0);
    cuerpo->addWidget(lista_);
    cuerpo->addWidget(vista_, 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(0);
    todo->addWidget(barra);
    todo->addLayout(cuerpo, 1);
    todo->addWidget(nota_);
    resize(kTamaño.boundedTo(screen()->availableSize() * kDeLaPantalla / 100));
}

void VentanaPrevia::Unir()
{
    connect(vista_, &VistaPaginas::PaginaCambiada, lista_, &ListaPaginas::Marcar);
    connect(lista_, &ListaPaginas::PaginaElegida, vista_, &VistaPaginas::IrA);
    lista_->Marcar(0);
}

bool VentanaPrevia::ConAvance(const QString& rotulo, const std::function<void(const Avance&)>& trabajo)
{
    QProgressDialog progreso(rotulo, u"&Cancelar"_s, 0, documento_.paginas(), this);
    progreso.setWindowTitle(windowTitle());
    progreso.setWindowModality(Qt::WindowModal);
    progreso.setMinimumDuration(kPaciencia);
    trabajo([&progreso](int hechas, int total) {
        progreso.setMaximum(total);
        progreso.setValue(hechas);
        return !progreso.wasCanceled();
    });
    return !progreso.wasCanceled();
}

void VentanaPrevia::Imprimir()
{
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setPageSize(QPageSize(QPageSize::A4));
    impresora.setFullPage(true);
    impresora.setDocName(documento_.titulo());
    impresora.setCreator(u"Valmerix"_s);
    if (!elecciones_.impresora(this, impresora, documento_.paginas()))
        return;
    bool impreso = false;
    const bool seguido = ConAvance(u"Imprimiendo…"_s, [&](const Avance& avance) {
        impreso = ImprimirPaginas(documento_, impresora, vista_->paginaActual(), avance);
    });
    if (!seguido) {
        impresora.abort();
    } else if (!impreso) {
        dialogos_.Mensaje(
            u"No se ha podido imprimir el documento. Compruebe que la impresora está encendida y "
            "conectada"_s,
            u"Aviso"_s, IconoMensaje::Aviso);
    }
}

void VentanaPrevia::GuardarComoPdf()
{
    const QString ruta = elecciones_.fichero(this, documento_.titulo());
    if (ruta.isEmpty())
        return;
    ResultadoPdf resultado;
    ConAvance(u"Guardando el PDF…"_s,
              [&](const Avance& avance) { resultado = GuardarPdf(documento_, ruta, avance); });
    if (resultado.fin == FinPdf::Fallido) {
        dialogos_.Mensaje(
            u"No se ha podido guardar «%1»: %2"_s.arg(QDir::toNativeSeparators(ruta), resultado.motivo),
            u"Aviso"_s, IconoMensaje::Aviso);
        return;
    }
    nota_->setText(resultado.fin == FinPdf::Guardado ? u"Guardado en %1"_s.arg(QDir::toNativeSeparators(ruta))
                                                     : u"No se ha guardado el PDF"_s);
    nota_->show();
}

} // namespace valmerix
