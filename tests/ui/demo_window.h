#pragma once

#include "controls/window.h"

#include <QApplication>
#include <QTest>
#include <algorithm>

namespace valmerix {

/// A window with a control of each kind, as a case window has them.
class VentanaDemo : public Ventana
{
public:
    explicit VentanaDemo(const QString& nombre = QStringLiteral("Demo"))
        : Ventana(nombre, QStringLiteral("Ventana de prueba"))
    {
        Añadir<CampoTexto>(QStringLiteral("BoxMun")).setCaption(QStringLiteral("Municipio:"));
        auto& k = Añadir<CampoTexto>(QStringLiteral("BoxK"));
        k.setCaption(QStringLiteral("Coeficiente K:"));
        connect(&k, &CampoTexto::KeyPress, this, [this](int& tecla) { FiltroDecimal(tecla); });
        auto& fecha = Añadir<CampoTexto>(QStringLiteral("BoxFecha"));
        fecha.setCaption(QStringLiteral("Con fecha:"));
        fecha.setMask(QStringLiteral("99/99/9999"));
        fecha.setText(fecha.mascaraVacia());
        auto& zona = Añadir<Lista>(QStringLiteral("cboZona"));
        zona.setCaption(QStringLiteral("Tipo Zona:"));
        zona.setList({QStringLiteral("Media"), QStringLiteral("Buena"), QStringLiteral("Mala")});
        auto& tasador = Añadir<Lista>(QStringLiteral("cboNombreTasador"));
        tasador.setCerrada(true);
        tasador.setCaption(QStringLiteral("Nombre"));
        tasador.setList({QStringLiteral("Ana Ruiz"), QStringLiteral("Luis Peña")});
        Añadir<Casilla>(QStringLiteral("CheckAgua")).setCaption(QStringLiteral("Red de agua potable."));
        auto& finalidad = Añadir<GrupoOpciones>(QStringLiteral("Finalidad"));
        finalidad.setTitulos({QStringLiteral("Garantía hipotecaria de préstamo."),
                              QStringLiteral("Evaluación de patrimonio."), QStringLiteral("Solicitud por")});
        Añadir<CampoTexto>(QStringLiteral("BoxFin"));
        auto& notas = Añadir<CampoTexto>(QStringLiteral("txtObservaciones"));
        notas.setMultiLine(true);
        notas.setCaption(QStringLiteral("Observaciones"));
        auto& resultado = Añadir<CampoTexto>(QStringLiteral("BoxTotal"));
        resultado.setLocked(true);
        resultado.setCaption(QStringLiteral("Valor total:"));
        Añadir<Boton>(QStringLiteral("SSCommand7")).setCaption(QStringLiteral("Calcular"));
        auto& rejilla = Añadir<Rejilla>(QStringLiteral("Flexi"));
        rejilla.setColumnas({QString(), QStringLiteral("Nombre"), QStringLiteral("Población")},
                            {0, 3250, 2000});
        rejilla.AddItem(QStringLiteral("\tAna Ruiz\tTeruel"));
        rejilla.AddItem(QStringLiteral("\tLuis Peña\tLugo"));
    }

    int pitidos = 0;

private:
    void FiltroDecimal(int& tecla)
    {
        if (tecla == '.')
            tecla = ',';
        if (tecla != 8 && tecla != ',' && (tecla < '0' || tecla > '9')) {
            tecla = 0;
            ++pitidos;
        }
    }
};

/// Shows a window and waits until it is really there.
inline bool Esperar(QWidget& ventana)
{
    ventana.show();
    ventana.activateWindow();
    return QTest::qWaitForWindowActive(&ventana);
}

} // namespace valmerix
