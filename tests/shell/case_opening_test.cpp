#include "shell/case_opening.h"

#include "store/case_saving.h"
#include "support/fake_ports.h"
#include "support/test_database.h"
#include "valuation/case_form.h"

#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

struct CasoDeOtroNombre : EntornoDePrueba
{
    BaseDePrueba base{compartido};
    DescripcionForma descripcion = kDescripcionPiso;
    QStringList textos;

    explicit CasoDeOtroNombre(QStringView nombre)
    {
        descripcion.ventana = nombre;
        base.Ejecutar(u"INSERT INTO Tasadores (Nombre,Contador) VALUES ('Pau',7)"_s);
        compartido.alEjecutarSQL = [this](const QString&, const QString& sql) { textos << sql; };
    }
};

TEST(CaseOpening, AWindowOfAnotherNameIsNeitherSavedNorLoaded)
{
    for (const QStringView nombre : {u"Problema", u"PISO", u"Pisos"}) {
        CasoDeOtroNombre caso(nombre);
        Formulario form(caso.descripcion, caso.servicios);
        form.Load();
        form.lista(u"cboNombreTasador").Elegir(0);
        caso.textos.clear();
        GuardarCaso(form, caso.compartido, caso.dialogos);
        CargarCaso(form, caso.compartido, {u"Pau"_s, 7, u"P"_s});
        EXPECT_EQ(caso.textos, QStringList());
        EXPECT_TRUE(caso.dialogos.mensajes.empty());
        EXPECT_EQ(caso.compartido.NumeroTasacionActual, 0);
    }
}

TEST(CaseOpening, AWindowOfAKnownNameIsSaved)
{
    CasoDeOtroNombre caso(u"Piso");
    Formulario form(caso.descripcion, caso.servicios);
    form.Load();
    form.lista(u"cboNombreTasador").Elegir(0);
    GuardarCaso(form, caso.compartido, caso.dialogos);
    EXPECT_EQ(caso.compartido.NumeroTasacionActual, 8);
    EXPECT_EQ(caso.base.Leer(u"SELECT * FROM Viviendas"_s).RecordCount(), 1);
}

} // namespace
} // namespace valmerix
