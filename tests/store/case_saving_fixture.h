#pragma once

#include "store/case_saving.h"
#include "support/fake_open_case.h"
#include "support/fake_ports.h"
#include "support/qt_printers.h"
#include "support/store_fixture.h"

namespace valmerix {

/// A new flat of Ana, who has numbered 41 cases, and what its saving runs.
class CaseSaving : public testing::Test
{
protected:
    AlmacenDePrueba almacen;
    FakeDialogos dialogos;
    FakeCasoAbierto piso{QStringLiteral("Piso"), {QStringLiteral("Ana"), QStringLiteral("Eva")}};

    void SetUp() override
    {
        almacen.AltaDeTasador(QStringLiteral("Ana"), 41);
        Rellenar(piso);
    }
    static void Rellenar(FakeCasoAbierto& caso)
    {
        caso.Elegir(QStringLiteral("Ana"));
        caso.Escribir(u"BoxFecha", QStringLiteral("20/11/2026"));
        caso.Escribir(u"BoxSit", QStringLiteral("Calle Mayor, 3"));
        caso.Escribir(u"BoxMun", QStringLiteral("Sueca"));
        caso.Escribir(u"BoxConst", QStringLiteral("1.093,456"));
        caso.Escribir(u"BoxTotal", QStringLiteral("125.000,00"));
    }
    bool Salvar(FakeCasoAbierto& caso)
    {
        almacen.sql.clear();
        return SalvaVivienda(caso, almacen.compartido, dialogos);
    }
    bool Salvar() { return Salvar(piso); }
};

} // namespace valmerix
