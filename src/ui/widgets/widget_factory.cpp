#include "ui/widgets/widget_factory.h"

#include "controls/window.h"
#include "ui/look/application.h"
#include "ui/widgets/grid_model.h"
#include "ui/widgets/image_widget.h"
#include "ui/widgets/list_widget.h"
#include "ui/widgets/option_widget.h"
#include "ui/widgets/rich_text_widget.h"
#include "ui/widgets/text_widgets.h"
#include "ui/widgets/tree_model.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace valmerix {

namespace {

template <class C>
QWidget* Probar(Control& control, QWidget* padre, QWidget* (*fabrica)(C&, QWidget*))
{
    auto* propio = qobject_cast<C*>(&control);
    return propio ? fabrica(*propio, padre) : nullptr;
}

QWidget* DeCampo(CampoTexto& campo, QWidget* padre)
{
    if (campo.MultiLine())
        return new CampoLargo(campo, padre);
    return new CampoLinea(campo, padre);
}

QWidget* DeBoton(Boton& boton, QWidget* padre)
{
    auto* nuevo = new QPushButton(padre);
    nuevo->setAutoDefault(false);
    QObject::connect(nuevo, &QPushButton::clicked, &boton, [&boton] { Protegido([&] { boton.Pulsar(); }); });
    return nuevo;
}

QWidget* DeCasilla(Casilla& casilla, QWidget* padre)
{
    QAbstractButton* nuevo = nullptr;
    if (qobject_cast<OpcionSuelta*>(&casilla))
        nuevo = new QRadioButton(padre);
    else
        nuevo = new QCheckBox(padre);
    const auto mostrar = [nuevo, &casilla] { nuevo->setChecked(casilla.Value() == 1); };
    QObject::connect(&casilla, &Control::PresentacionCambiada, nuevo, mostrar);
    QObject::connect(nuevo, &QAbstractButton::clicked, &casilla, [nuevo, &casilla] {
        const QPointer<QAbstractButton> vivo(nuevo);
        const QPointer<Casilla> viva(&casilla);
        Protegido([&] { casilla.Pulsar(); });
        if (vivo && viva)
            vivo->setChecked(viva->Value() == 1);
    });
    mostrar();
    return nuevo;
}

QWidget* DeProgreso(BarraProgreso& barra, QWidget* padre)
{
    auto* nuevo = new QProgressBar(padre);
    nuevo->setRange(0, 100);
    const auto mostrar = [nuevo, &barra] { nuevo->setValue(static_cast<int>(barra.Value())); };
    QObject::connect(&barra, &Control::PresentacionCambiada, nuevo, mostrar);
    mostrar();
    return nuevo;
}

QWidget* DeSolapas(Solapas& solapas, QWidget* padre)
{
    auto* nuevo = new QTabWidget(padre);
    QObject::connect(nuevo, &QTabWidget::currentChanged, &solapas,
                     [&solapas](int pagina) { Protegido([&] { solapas.setTab(pagina); }); });
    QObject::connect(&solapas, &Control::PresentacionCambiada, nuevo,
                     [nuevo, &solapas] { nuevo->setCurrentIndex(solapas.Tab()); });
    return nuevo;
}

} // namespace

QWidget* FabricarWidget(Control& control, QWidget* padre)
{
    if (auto* lista = qobject_cast<Lista*>(&control))
        return new CajaLista(*lista, padre);
    if (QWidget* w = Probar<CampoTexto>(control, padre, DeCampo))
        return w;
    if (QWidget* w = Probar<Boton>(control, padre, DeBoton))
        return w;
    if (QWidget* w = Probar<Casilla>(control, padre, DeCasilla))
        return w;
    if (QWidget* w = Probar<BarraProgreso>(control, padre, DeProgreso))
        return w;
    if (QWidget* w = Probar<Solapas>(control, padre, DeSolapas))
        return w;
    if (auto* opciones = qobject_cast<GrupoOpciones*>(&control))
        return new GrupoBotones(*opciones, padre);
    if (auto* rejilla = qobject_cast<Rejilla*>(&control))
        return new TablaRejilla(*rejilla, padre);
    if (auto* arbol = qobject_cast<Arbol*>(&control))
        return new VistaArbol(*arbol, padre);
    if (auto* texto = qobject_cast<TextoEnriquecido*>(&control))
        return new EditorInforme(*texto, padre);
    if (auto* imagen = qobject_cast<Imagen*>(&control))
        return new CuadroImagen(*imagen, padre);
    if (qobject_cast<Etiqueta*>(&control))
        return new QLabel(padre);
    return nullptr;
}

} // namespace valmerix
