#pragma once

#include "common/ports.h"
#include "shell/draft_file.h"

#include <QMutex>
#include <QObject>
#include <QThreadPool>
#include <functional>
#include <memory>

namespace valmerix {

/// Keeps the draft of the case in hand on disk: at most one writing every two seconds, the last change always
/// among what is written. The writing itself runs beside her work, from a picture taken between two events.
/// A failed one is told once in the process; the last complete draft stays.
class GuardaBorradores : public QObject
{
    Q_OBJECT

public:
    /// Takes the picture; `fichero` is left to the keeper.
    using Retrato = std::function<Borrador()>;
    static constexpr int kCada = 2000; ///< ms

    /// All that is handed in outlives it.
    GuardaBorradores(Dialogos& dialogos, Sistema& sistema);
    /// Waits for the writing that is under way.
    ~GuardaBorradores() override;

    /// A case stands open; its drafts go to `carpeta`, or on into the file that it was recovered from.
    void Empezar(const QString& carpeta, Retrato retrato, const QString& fichero = {});
    /// Something has changed in it.
    void Apuntar();
    /// Writes what has not been written yet and waits until it stands.
    void Volcar();
    /// The draft has done its service: the case was saved or given up. Later changes begin another one.
    void Quitar();
    /// The case is no longer open.
    void Terminar();

private:
    /// What the writing thread leaves behind.
    struct Resultado
    {
        QMutex cerrojo;
        QString fallo;
    };

    void Citar();
    void Tic();
    void Escribir();
    void ContarFallo();

    Dialogos& dialogos_;
    Sistema& sistema_;
    QString carpeta_;
    QString fichero_;
    Retrato retrato_;
    std::shared_ptr<Resultado> resultado_ = std::make_shared<Resultado>();
    bool porEscribir_ = false;
    bool fallido_ = false; ///< the last writing, with nothing noted since
    bool citado_ = false;  ///< the next tick is on its way
    bool avisado_ = false;
    QThreadPool hilo_; // last: it ends first
};

} // namespace valmerix
