#pragma once

#include "report/progress.h"
#include "report/report_fixture.h"
#include "support/fake_ports.h"

#include <QTemporaryDir>
#include <functional>

namespace valmerix {

class FakeEntornoVisor : public EntornoVisor
{
public:
    QStringList llamadas;
    std::function<void()> alMostrarOpciones = [] {};

    void MostrarVisor() override { llamadas << QStringLiteral("MostrarVisor"); }
    void MinimizarVisor() override { llamadas << QStringLiteral("MinimizarVisor"); }
    void MinimizarCaso() override { llamadas << QStringLiteral("MinimizarCaso"); }
    void Imprimir() override { llamadas << QStringLiteral("Imprimir"); }
    void MostrarOpciones() override
    {
        llamadas << QStringLiteral("MostrarOpciones");
        alMostrarOpciones();
    }
};

/// A filled flat, a program folder of its own, and the ports that the viewer works with.
struct VisorDePrueba
{
    CasoDePrueba piso;
    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeSistema sistema;
    FakeEntornoVisor entorno;
    std::unique_ptr<Visor> visor;

    VisorDePrueba()
    {
        RellenarPiso(piso);
        sistema.carpeta = carpeta.path();
        Abrir();
    }

    void Abrir()
    {
        visor = std::make_unique<Visor>(piso.compartido, piso.opciones, dialogos, sistema, entorno);
    }
    TextoEnriquecido& texto() { return visor->Texto(); }
    Lista& combo() { return visor->lista(u"Combo1"); }
    void Pulsar(QStringView boton) { visor->boton(boton).Pulsar(); }
    void Buscar(const QString& cadena)
    {
        combo().setText(cadena);
        Pulsar(u"BttBuscar");
    }
    QString seleccion() { return texto().Text().mid(texto().SelStart(), texto().SelLength()); }
    QString ruta(const QString& fichero) const { return carpeta.filePath(fichero); }

    /// Both stages of drafting.
    void Redactar(const QString& TipoDocumento = QStringLiteral("Informe"))
    {
        Calculos calculos(piso.caso, *visor, sistema, entorno);
        calculos.TipoDocumento = TipoDocumento;
        calculos.Load();
        calculos.como<Temporizador>(u"Timer1").Tic();
    }
};

} // namespace valmerix
