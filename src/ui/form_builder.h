#pragma once

#include "ui/binder.h"
#include "valuation/form_tables.h"

class QGridLayout;
class QHBoxLayout;

namespace valmerix {

class PanelSeccion;

/// Lays out the sections of a case window's tables: one panel a section, one line a row.
class ConstructorFormulario
{
public:
    explicit ConstructorFormulario(Enlazador& enlazador)
        : enlazador_(enlazador)
    {
    }

    PanelSeccion* Panel(const SeccionForma& seccion, QWidget* padre);

private:
    using Filas = std::span<const ControlForma>;

    void Lineas(Filas filas, PanelSeccion& panel);
    void Casillas(Filas filas, PanelSeccion& panel);
    void Linea(Filas fila, QGridLayout& rejilla, QWidget* panel);
    void LineaSuelta(Filas fila, QGridLayout& rejilla, QWidget* panel);
    QWidget* Rotulo(const ControlForma& fila, QWidget* panel);
    void JuntoALaOpcion(const ControlForma& fila, QWidget* panel);
    void Resto(Filas fila, QHBoxLayout& caja, QWidget* panel);
    QWidget* Widget(const ControlForma& fila, QWidget* panel);
    QWidget* CasillaPerfil(QStringView nombre, int indice, const QString& deQue, QWidget* panel);

    Enlazador& enlazador_;
};

} // namespace valmerix
