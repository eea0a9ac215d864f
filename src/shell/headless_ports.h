#pragma once

#include "common/ports.h"
#include "valuation/case_environment.h"

#include <QIODevice>
#include <QTemporaryDir>

namespace valmerix {

/// Ports of a run without windows: messages go to a stream, questions are answered no, nothing is shown.
class DialogosSinPantalla : public Dialogos
{
public:
    explicit DialogosSinPantalla(QIODevice& errores)
        : errores_(errores)
    {
    }
    void Mensaje(const QString& texto, const QString& titulo, IconoMensaje icono) override;
    bool Preguntar(const QString& texto, const QString& titulo, IconoMensaje icono) override;
    bool InformarFallo(const QString& texto, const QString& detalle) override;
    std::optional<QString> ElegirFichero(const QString&) override { return std::nullopt; }
    std::optional<QDate> MostrarCalendario(QDate) override { return std::nullopt; }

private:
    QIODevice& errores_;
};

class RelojDelSistema : public Reloj
{
public:
    QDate hoy() const override { return QDate::currentDate(); }
    QDateTime ahora() const override { return QDateTime::currentDateTime(); }
};

/// A program folder of its own, gone at the end. There is no event loop: what is put off does not run.
class SistemaSinPantalla : public Sistema
{
public:
    QString carpetaPrograma() const override { return carpeta_.path(); }
    bool otraInstancia() override { return false; }
    bool Arrancar(const QString&, const QStringList&, const QString&) override { return false; }
    void Pitar() override {}
    void PunteroOcupado(bool) override {}
    void DejarPintar() override {}
    void CopiarAlPortapapeles(const QString&) override {}
    bool CopiarImagenAlPortapapeles(const QString&) override { return false; }
    void Aplazar(int, std::function<void()>) override {}
    void TerminarProceso(int) override {}

private:
    QTemporaryDir carpeta_;
};

class EntornoSinPantalla : public EntornoCaso
{
public:
    void MostrarFicha() override {}
    void MostrarObservaciones() override {}
    void MostrarProblema() override {}
    void MostrarSalida() override {}
    void Minimizar() override {}
    void MostrarPaleta(bool) override {}
};

} // namespace valmerix
