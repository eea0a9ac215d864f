#include "shell/window_restoring.h"

#include <QJsonArray>
#include <QSignalBlocker>
#include <algorithm>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

const auto kFoco = u"foco"_s;
const auto kSeleccion = u"seleccion"_s;
const auto kPorControl = u"controles"_s;

QString Marcas(const Rejilla& rejilla)
{
    QString marcas;
    for (int fila = 0; fila < rejilla.Rows(); ++fila)
        marcas += QChar(u'0' + static_cast<int>(rejilla.marca(fila)));
    const bool alguna = std::any_of(marcas.cbegin(), marcas.cend(), [](QChar c) { return c != u'0'; });
    return alguna ? marcas : QString();
}

void PonerMarcas(Rejilla& rejilla, const QString& marcas)
{
    for (int fila = 0; fila < rejilla.Rows(); ++fila) {
        const int marca = fila < marcas.size() ? marcas.at(fila).digitValue() : 0;
        rejilla.setMarca(fila, static_cast<MarcaCelda>(std::clamp(marca, 0, 2)));
    }
}

QJsonObject PresentacionDe(const Control& control)
{
    QJsonObject objeto;
    const auto anotar = [&objeto](const QString& que, const QJsonValue& valor, const QJsonValue& corriente) {
        if (valor != corriente)
            objeto.insert(que, valor);
    };
    anotar(u"visible"_s, control.Visible(), true);
    anotar(u"activo"_s, control.Enabled(), true);
    anotar(u"aspecto"_s, static_cast<int>(control.aspecto()), 0);
    anotar(u"nota"_s, control.Tag(), QString());
    if (const auto* campo = dynamic_cast<const CampoTexto*>(&control)) {
        anotar(u"bloqueado"_s, campo->Locked(), false);
        anotar(u"longitud"_s, campo->MaxLength(), 0);
    } else if (const auto* rejilla = dynamic_cast<const Rejilla*>(&control)) {
        anotar(u"fila"_s, rejilla->Row(), 0);
        anotar(u"marcas"_s, Marcas(*rejilla), QString());
    } else if (const auto* solapas = dynamic_cast<const Solapas*>(&control)) {
        anotar(u"pagina"_s, solapas->Tab(), 0);
    } else if (const auto* imagen = dynamic_cast<const Imagen*>(&control)) {
        anotar(u"imagen"_s, imagen->Picture(), QString());
    }
    return objeto;
}

void PonerPresentacion(Control& control, const QJsonObject& objeto)
{
    control.setVisible(objeto.value(u"visible").toBool(true));
    control.setEnabled(objeto.value(u"activo").toBool(true));
    control.setAspecto(static_cast<Aspecto>(std::clamp(objeto.value(u"aspecto").toInt(), 0, 2)));
    control.setTag(objeto.value(u"nota").toString());
    if (auto* campo = dynamic_cast<CampoTexto*>(&control)) {
        campo->setLocked(objeto.value(u"bloqueado").toBool());
        campo->setMaxLength(objeto.value(u"longitud").toInt());
    } else if (auto* rejilla = dynamic_cast<Rejilla*>(&control)) {
        rejilla->setRow(objeto.value(u"fila").toInt());
        PonerMarcas(*rejilla, objeto.value(u"marcas").toString());
    } else if (auto* solapas = dynamic_cast<Solapas*>(&control)) {
        solapas->setTab(objeto.value(u"pagina").toInt());
    } else if (auto* imagen = dynamic_cast<Imagen*>(&control)) {
        imagen->setPicture(objeto.value(u"imagen").toString());
    }
}

void PonerFilas(Rejilla& rejilla, const QJsonArray& filas)
{
    rejilla.setRows(static_cast<int>(filas.size()));
    for (int fila = 0; fila < rejilla.Rows(); ++fila) {
        const QJsonArray celdas = filas.at(fila).toArray();
        for (int columna = 0; columna < rejilla.Cols(); ++columna)
            rejilla.setTextMatrix(fila, columna, celdas.at(columna).toString());
    }
}

void PonerContenido(Control& control, const QJsonValue& valor)
{
    if (auto* campo = dynamic_cast<CampoTexto*>(&control)) {
        campo->setText(valor.toString());
    } else if (auto* casilla = dynamic_cast<Casilla*>(&control)) {
        casilla->setValue(valor.toInt());
    } else if (auto* grupo = dynamic_cast<GrupoOpciones*>(&control)) {
        grupo->Quitar();
        grupo->Elegir(valor.toInt(-1));
    } else if (auto* rejilla = dynamic_cast<Rejilla*>(&control)) {
        PonerFilas(*rejilla, valor.toArray());
    }
}

void PonerFoco(Ventana& ventana, const QJsonObject& presentacion)
{
    Control* destino = ventana.buscar(presentacion.value(kFoco).toString());
    Control* anterior = ventana.conFoco();
    const QSignalBlocker silencio(anterior);
    const QSignalBlocker otro(destino);
    ventana.Enfocar(destino);
    const QJsonArray seleccion = presentacion.value(kSeleccion).toArray();
    if (auto* campo = dynamic_cast<CampoTexto*>(destino))
        campo->Seleccionar(seleccion.at(0).toInt(), seleccion.at(1).toInt());
}

} // namespace

QJsonObject PresentacionEnJson(const Ventana& ventana)
{
    QJsonObject controles;
    for (const auto& control : ventana.controles()) {
        if (const QJsonObject suya = PresentacionDe(*control); !suya.isEmpty())
            controles.insert(control->nombre(), suya);
    }
    QJsonObject presentacion{{kPorControl, controles}};
    if (const Control* enMano = ventana.conFoco())
        presentacion.insert(kFoco, enMano->nombre());
    if (const auto* campo = dynamic_cast<const CampoTexto*>(ventana.conFoco()))
        presentacion.insert(kSeleccion, QJsonArray{campo->SelStart(), campo->SelLength()});
    return presentacion;
}

void ReponerVentana(Ventana& ventana, const QJsonObject& controles, const QJsonObject& presentacion)
{
    const QJsonObject porControl = presentacion.value(kPorControl).toObject();
    for (const auto& control : ventana.controles()) {
        const auto contenido = controles.constFind(control->nombre());
        if (contenido == controles.constEnd())
            continue;
        const QSignalBlocker silencio(control.get());
        PonerContenido(*control, *contenido);
        PonerPresentacion(*control, porControl.value(control->nombre()).toObject());
    }
    PonerFoco(ventana, presentacion);
}

} // namespace valmerix
