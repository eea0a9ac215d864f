#include "shell/draft_keeper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QPointer>
#include <utility>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// A writing that was killed leaves its provisional file behind.
void BarrerRestos(const QString& carpeta)
{
    QDir dir(carpeta);
    for (const QString& resto : dir.entryList({u"borrador-*.json.*"_s}, QDir::Files))
        dir.remove(resto);
}

} // namespace

GuardaBorradores::GuardaBorradores(Dialogos& dialogos, Sistema& sistema)
    : dialogos_(dialogos)
    , sistema_(sistema)
{
    hilo_.setMaxThreadCount(1);
}

GuardaBorradores::~GuardaBorradores()
{
    hilo_.waitForDone();
}

void GuardaBorradores::Empezar(const QString& carpeta, Retrato retrato, const QString& fichero)
{
    Terminar();
    carpeta_ = carpeta;
    fichero_ = fichero;
    retrato_ = std::move(retrato);
    BarrerRestos(carpeta);
}

void GuardaBorradores::Terminar()
{
    hilo_.waitForDone();
    retrato_ = {};
    fichero_.clear();
    porEscribir_ = false;
}

void GuardaBorradores::Apuntar()
{
    if (!retrato_)
        return;
    porEscribir_ = true;
    Citar();
}

void GuardaBorradores::Citar()
{
    if (std::exchange(citado_, true))
        return;
    sistema_.Aplazar(kCada, [yo = QPointer(this)] {
        if (yo)
            yo->Tic();
    });
}

// One more tick follows every writing, to hear how it ended.
void GuardaBorradores::Tic()
{
    citado_ = false;
    const bool ocupado = hilo_.activeThreadCount() > 0;
    if (!ocupado)
        ContarFallo();
    if (porEscribir_ && !ocupado)
        Escribir();
    else if (!porEscribir_ && !ocupado)
        return;
    Citar();
}

void GuardaBorradores::Volcar()
{
    hilo_.waitForDone();
    ContarFallo();
    if (porEscribir_ || fallido_) // what has failed is tried once more before the program ends
        Escribir();
    hilo_.waitForDone();
    ContarFallo();
}

void GuardaBorradores::Quitar()
{
    porEscribir_ = false;
    hilo_.waitForDone();
    {
        const QMutexLocker guarda(&resultado_->cerrojo);
        resultado_->fallo.clear();
    }
    fallido_ = false;
    if (!fichero_.isEmpty())
        QFile::remove(std::exchange(fichero_, {}));
}

void GuardaBorradores::Escribir()
{
    porEscribir_ = false;
    fallido_ = false;
    if (fichero_.isEmpty())
        fichero_ = FicheroBorrador::NombreLibre(carpeta_);
    hilo_.start([borrador = retrato_(), fichero = fichero_, resultado = resultado_] {
        const QString fallo = FicheroBorrador::Escribir(fichero, FicheroBorrador::Contenido(borrador));
        if (fallo.isEmpty())
            FicheroBorrador::RetirarViejos(QFileInfo(fichero).path(), fichero);
        const QMutexLocker guarda(&resultado->cerrojo);
        resultado->fallo = fallo;
    });
}

void GuardaBorradores::ContarFallo()
{
    QString fallo;
    {
        const QMutexLocker guarda(&resultado_->cerrojo);
        fallo = std::exchange(resultado_->fallo, {});
    }
    if (fallo.isEmpty())
        return;
    fallido_ = true;
    if (std::exchange(avisado_, true))
        return;
    dialogos_.Mensaje(
        u"No se ha podido guardar el borrador del trabajo en curso. Se sigue trabajando sin él; "
        u"conviene guardar la tasación.\n\n"_s +
            fallo,
        u"Aviso"_s, IconoMensaje::Aviso);
}

} // namespace valmerix
