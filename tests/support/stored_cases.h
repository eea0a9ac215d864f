#pragma once

#include "store/case_loading.h"
#include "store/case_saving.h"
#include "support/fake_ports.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

#include <QMap>
#include <gtest/gtest.h>
#include <memory>

namespace valmerix {

/// A column's name and what a row holds in it, as text.
using FilaDeCaso = QMap<QString, QString>;

/// A new installation with the valuer Ana, where real case windows are saved, loaded and saved again.
class CasosGuardados : public testing::Test
{
protected:
    AlmacenDePrueba almacen;
    EntornoDePrueba entorno;

    CasosGuardados()
    {
        entorno.compartido = almacen.compartido;
        almacen.AltaDeTasador(QStringLiteral("Ana"));
    }

    std::unique_ptr<Formulario> Nuevo(const DescripcionForma& descripcion)
    {
        entorno.compartido.NumeroTasacionActual = 0;
        entorno.calculo = {};
        auto forma = std::make_unique<Formulario>(descripcion, entorno.servicios);
        forma->Load();
        forma->lista(u"cboNombreTasador").Elegir(0);
        return forma;
    }
    qint32 Salvar(Formulario& forma)
    {
        if (entorno.compartido.NumeroTasacionActual != 0)
            entorno.dialogos.respuestas = {true};
        EXPECT_TRUE(SalvaVivienda(forma, entorno.compartido, entorno.dialogos));
        return entorno.compartido.NumeroTasacionActual;
    }
    std::unique_ptr<Formulario> Abrir(const DescripcionForma& descripcion, qint32 numero)
    {
        auto forma = Nuevo(descripcion);
        CargaVivienda(*forma, entorno.compartido, descripcion.letra(), QStringLiteral("Ana"), numero);
        return forma;
    }
    /// Opens the case in a fresh window and saves it.
    void AbrirYSalvar(const DescripcionForma& descripcion, qint32 numero)
    {
        EXPECT_EQ(Salvar(*Abrir(descripcion, numero)), numero);
    }
    FilaDeCaso Fila(const QString& tabla, const QString& condicion) const
    {
        const ConjuntoResultados filas =
            almacen.Leer(QStringLiteral("SELECT * FROM %1 WHERE %2").arg(tabla, condicion));
        FilaDeCaso fila;
        for (int i = 0; filas.RecordCount() == 1 && i < filas.Campos(); ++i)
            fila[filas.NombreCampo(i)] = filas.Texto(filas.NombreCampo(i));
        return fila;
    }
    FilaDeCaso Vivienda(qint32 numero) const
    {
        return Fila(QStringLiteral("Viviendas"), QStringLiteral("NumeroTasacion = %1").arg(numero));
    }
    FilaDeCaso Testigo(qint32 numero) const
    {
        return Fila(QStringLiteral("Testigos"), QStringLiteral("Tasacion = %1").arg(-numero));
    }
};

/// Tells the columns that differ.
inline QString Diferencias(const FilaDeCaso& una, const FilaDeCaso& otra)
{
    QStringList lineas;
    for (auto i = una.begin(); i != una.end(); ++i) {
        if (otra.value(i.key()) != i.value())
            lineas << i.key() + QStringLiteral(": ") + i.value() + QStringLiteral(" -> ") +
                          otra.value(i.key());
    }
    return una.size() == otra.size() ? lineas.join(u'\n') : QStringLiteral("not the same columns");
}

} // namespace valmerix
