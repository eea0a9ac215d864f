#include "ui/progress_view.h"

#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAncho = 380;

struct Marca
{
    QStringView nombre;
    Qt::Alignment sitio;
};

// The start, the middle and the end under the bar.
constexpr Marca kMarcas[] = {
    {u"Label1", Qt::AlignLeft},
    {u"Label3", Qt::AlignHCenter},
    {u"Label2", Qt::AlignRight},
};

} // namespace

VistaProgreso::VistaProgreso(Ventana& ventana)
    : VistaVentana(ventana, Marco::Sistema)
{
    auto* barra = dynamic_cast<QProgressBar*>(enlazador().Crear(u"ProgressBar1", this));
    barra->setTextVisible(false);
    barra->setMinimumWidth(kAncho);
    barra->setAccessibleName(ventana.Caption());
    auto* marcas = new QHBoxLayout;
    for (const Marca& marca : kMarcas) {
        QWidget* etiqueta = enlazador().Crear(marca.nombre, this);
        QPalette paleta;
        paleta.setColor(QPalette::WindowText, ColorSecundario(palette()));
        etiqueta->setPalette(paleta);
        marcas->addWidget(etiqueta, 1, marca.sitio);
    }
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde + 6, medida::kBorde + 6, medida::kBorde + 6, medida::kBorde);
    todo->addWidget(new QLabel(u"Redactando el informe…"_s, this));
    todo->addWidget(barra);
    todo->addLayout(marcas);
}

} // namespace valmerix
