#pragma once

#include <QString>
#include <functional>

namespace valmerix {

/// What the whole program shares. One instance, made at the start of the process and handed down by
/// reference.
struct EstadoCompartido
{
    QString RutaBaseDatos;
    QString FormatoMoneda;            ///< number pattern for money; empty until the settings have been read
    QString SeparadorFecha;           ///< one character
    QString MostrarPortada;           ///< "NO" after a restart
    QString ProcesadorTextos;         ///< path of the word processor, empty when none is configured
    qint32 NumeroTasacionActual = 0;  ///< 0: the case in hand is not stored yet
    bool PaletaAbierta = false;       ///< the toolbar stands open beside the case window
    bool RestauracionHecha = false;   ///< the task-bar window has finished dealing with the last restore
    bool MinimizadoPendiente = false; ///< the minimise button has run, the icon is still to come
    bool CierrePaleta = false;        ///< the toolbar is closing itself
    float PosicionLeft = 0;           ///< last known place of the case window, pixels
    float PosicionTop = 0;
    float PosicionWidth = 0;
    qint16 PosicionHeight = 0;

    /// Told of every SQL text just before it runs, with the name of its database; for tests and diagnosis.
    std::function<void(const QString& base, const QString& sql)> alEjecutarSQL;
    /// Run before the first write of each connection to "Empresa"; it must not throw.
    std::function<void()> antesDeEscribir;
    /// Run as soon as the case in hand stands stored, before she is told; it must not throw.
    std::function<void()> alGuardarCaso;
};

} // namespace valmerix
