#pragma once

#include "common/ports.h"
#include "common/printed_document.h"
#include "valuation/case_environment.h"
#include "valuation/case_form.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace valmerix {

/// Records every box and answers from the script; an unscripted question is a failure of the test.
class FakeDialogos : public Dialogos
{
public:
    struct Caja
    {
        QString texto;
        QString titulo;
        IconoMensaje icono = IconoMensaje::Ninguno;
    };

    std::vector<Caja> mensajes;
    std::vector<Caja> preguntas;
    std::vector<Caja> fallos; ///< `titulo` holds the detail
    std::vector<QDate> calendarios;
    std::deque<bool> respuestas;
    std::deque<bool> respuestasFallo;
    std::deque<std::optional<QDate>> fechas;
    QStringList filtros; ///< of the file choices asked for
    std::deque<std::optional<QString>> ficheros;

    void Mensaje(const QString& texto, const QString& titulo, IconoMensaje icono) override
    {
        mensajes.push_back({texto, titulo, icono});
    }
    bool Preguntar(const QString& texto, const QString& titulo, IconoMensaje icono) override
    {
        preguntas.push_back({texto, titulo, icono});
        return Siguiente(respuestas, false, texto);
    }
    bool InformarFallo(const QString& texto, const QString& detalle) override
    {
        fallos.push_back({texto, detalle, IconoMensaje::Critico});
        return Siguiente(respuestasFallo, true, texto);
    }
    std::optional<QString> ElegirFichero(const QString& filtro) override
    {
        filtros.push_back(filtro);
        return Siguiente(ficheros, std::optional<QString>(), filtro);
    }
    std::optional<QDate> MostrarCalendario(QDate fecha) override
    {
        calendarios.push_back(fecha);
        return Siguiente(fechas, std::optional<QDate>(), QStringLiteral("calendar"));
    }

private:
    template <class T>
    static T Siguiente(std::deque<T>& guion, T sinGuion, const QString& texto)
    {
        if (guion.empty()) {
            ADD_FAILURE() << "unscripted question: " << texto.toStdString();
            return sinGuion;
        }
        T valor = guion.front();
        guion.pop_front();
        return valor;
    }
};

class FakeReloj : public Reloj
{
public:
    QDate fecha{2026, 11, 20};
    QTime hora{9, 30};
    QDate hoy() const override { return fecha; }
    QDateTime ahora() const override { return {fecha, hora}; }
};

class FakeSistema : public Sistema
{
public:
    struct Arranque
    {
        QString orden;
        QStringList argumentos;
        QString carpeta;
    };

    QString carpeta;
    bool otra = false;
    bool arranca = true;
    int pitidos = 0;
    std::vector<bool> punteros;
    int pintados = 0;
    QStringList portapapeles;
    QStringList imagenesCopiadas; ///< paths
    bool imagenLegible = true;
    std::vector<Arranque> arranques;
    std::vector<int> finales;
    struct Aplazada
    {
        int milisegundos = 0;
        std::function<void()> tarea;
    };
    std::deque<Aplazada> aplazadas; ///< what waits for the event loop

    QString carpetaPrograma() const override { return carpeta; }
    bool otraInstancia() override { return otra; }
    bool Arrancar(const QString& orden, const QStringList& argumentos, const QString& enCarpeta) override
    {
        arranques.push_back({orden, argumentos, enCarpeta});
        return arranca;
    }
    void Pitar() override { ++pitidos; }
    void PunteroOcupado(bool ocupado) override { punteros.push_back(ocupado); }
    void DejarPintar() override { ++pintados; }
    void CopiarAlPortapapeles(const QString& texto) override { portapapeles.append(texto); }
    bool CopiarImagenAlPortapapeles(const QString& ruta) override
    {
        if (imagenLegible)
            imagenesCopiadas.append(ruta);
        return imagenLegible;
    }
    void Aplazar(int milisegundos, std::function<void()> tarea) override
    {
        aplazadas.push_back({milisegundos, std::move(tarea)});
    }
    void TerminarProceso(int codigo) override { finales.push_back(codigo); }

    /// The event loop comes round: runs what waits now, not what that puts off anew.
    void CorrerAplazadas()
    {
        for (const Aplazada& una : std::exchange(aplazadas, {}))
            una.tarea();
    }
};

/// Records what was shown.
class FakeImpresion : public Impresion
{
public:
    std::vector<DocumentoImpreso> vistos;
    void Previsualizar(const DocumentoImpreso& documento) override { vistos.push_back(documento); }
};

class FakeEntorno : public EntornoCaso
{
public:
    QStringList llamadas; ///< in order; MostrarPaleta with its argument

    void MostrarFicha() override { llamadas << QStringLiteral("MostrarFicha"); }
    void MostrarObservaciones() override { llamadas << QStringLiteral("MostrarObservaciones"); }
    void MostrarProblema() override { llamadas << QStringLiteral("MostrarProblema"); }
    void MostrarSalida() override { llamadas << QStringLiteral("MostrarSalida"); }
    void Minimizar() override { llamadas << QStringLiteral("Minimizar"); }
    void MostrarPaleta(bool abierta) override
    {
        llamadas << (abierta ? QStringLiteral("MostrarPaleta(true)")
                             : QStringLiteral("MostrarPaleta(false)"));
    }
};

/// Everything that a case window works with, fresh for one test.
struct EntornoDePrueba
{
    EstadoCompartido compartido;
    EstadoCalculo calculo;
    FrasesInforme frases;
    OpcionesPrograma opciones;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakeEntorno entorno;
    ServiciosCaso servicios{compartido, calculo, frases, opciones, dialogos, reloj, sistema, entorno};

    EntornoDePrueba()
    {
        compartido.FormatoMoneda = QStringLiteral("###,###,##0.00");
        compartido.SeparadorFecha = QStringLiteral("/");
    }
    EntornoDePrueba(const EntornoDePrueba&) = delete;
    EntornoDePrueba& operator=(const EntornoDePrueba&) = delete;
};

} // namespace valmerix
