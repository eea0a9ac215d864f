#pragma once

#include "common/ports.h"
#include "common/shared_state.h"

#include <QDate>
#include <QStringList>

namespace valmerix {

/// A copy of the database before the first write of each day, in the folder "copias" beside it: the last
/// seven days, then the first of each month for a year. A failed copy is told once in the process.
class CopiaDiaria
{
public:
    /// All that is handed in outlives it.
    CopiaDiaria(const EstadoCompartido& compartido, Dialogos& dialogos, const Reloj& reloj);

    /// To be run before a write. Does nothing when today's copy is there.
    void AntesDeEscribir();

    static QString carpeta(const QString& rutaBaseDatos);
    /// "valmerix-2026-11-21.mdb"
    static QString nombre(QDate dia);
    /// Which of these file names are no longer kept; names that are no copies of ours are never among them.
    static QStringList Sobrantes(const QStringList& nombres, QDate hoy);

private:
    void Retirar(const QString& carpeta, QDate hoy);

    const EstadoCompartido& compartido_;
    Dialogos& dialogos_;
    const Reloj& reloj_;
    QDate ultima_;
    bool avisado_ = false;
};

} // namespace valmerix
