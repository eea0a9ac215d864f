#pragma once

#include "common/ports.h"

#include <QLockFile>
#include <functional>
#include <memory>
#include <utility>

namespace valmerix {

class RelojQt : public Reloj
{
public:
    QDate hoy() const override;
    QDateTime ahora() const override;
};

/// The folder that holds the program's data: that of the executable when it holds "Datos" or may hold it,
/// `datosDeUsuario` otherwise (an installed program).
QString CarpetaDelPrograma(const QString& carpetaEjecutable, const QString& datosDeUsuario);

/// The machine as Qt sees it.
class SistemaQt : public Sistema
{
public:
    /// The folder by the rule above.
    SistemaQt();
    explicit SistemaQt(const QString& carpeta);
    ~SistemaQt() override;

    QString carpetaPrograma() const override { return carpeta_; }
    QString carpetaInstalacion() const override;
    bool otraInstancia() override;
    bool Arrancar(const QString& orden, const QStringList& argumentos, const QString& carpeta) override;
    void Pitar() override;
    void PunteroOcupado(bool ocupado) override;
    void DejarPintar() override;
    void CopiarAlPortapapeles(const QString& texto) override;
    bool CopiarImagenAlPortapapeles(const QString& ruta) override;
    void Aplazar(int milisegundos, std::function<void()> tarea) override;
    [[noreturn]] void TerminarProceso(int codigo) override;

    /// What is still to be tidied up when the process ends through `TerminarProceso`, where no destructor
    /// runs.
    void setAlTerminar(std::function<void()> tarea) { alTerminar_ = std::move(tarea); }

private:
    QString carpeta_;
    std::unique_ptr<QLockFile> cerrojo_;
    std::function<void()> alTerminar_;
};

} // namespace valmerix
