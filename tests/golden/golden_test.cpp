// Whole reports, held against the files beside this one. VALMERIX_GOLDEN=write rewrites them.

#include "common/number_reading.h"
#include "shell/report_tool.h"
#include "store/query.h"
#include "support/sample_base.h"
#include "valuation/kind_descriptions.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A stored case; `perfil` replaces the profile of the settings unless it is empty.
struct Muestra
{
    const char* carpeta;
    const char* tasador;
    int numero;
    const char* perfil = "";
    char16_t tipo = u'P';
};

// 23 sections, then 16 lines; a house has 13.
constexpr char kTodoFuera[] = "000000000000000000000000000000000000000";
constexpr char kSoloValores[] = "000000000000000000100010000000000000000";
constexpr char kSinSieteApartados[] = "110110110100111101110111111111111111111";
constexpr char kSinLineas[] = "111111111111111111111110101001001101001";

constexpr char kApartamentoEnParte[] = "101011111011110111011110101101010110110";
constexpr char kCasaTodaFuera[] = "000000000000000000000000000000000000";
constexpr char kCasaEnParte[] = "110111011010111010101011010101101010";

constexpr Muestra kPisos[] = {
    {"valencia", "Marta Ferrer Climent", 214},
    {"alcoi", "Marta Ferrer Climent", 215},
    {"castello", "Marta Ferrer Climent", 216},
    {"l_eliana", "Marta Ferrer Climent", 217},
    {"logrono", "Íñigo Sáenz de Urturi Ruiz", 31},
    {"avila", "Íñigo Sáenz de Urturi Ruiz", 32},
    {"teruel", "Íñigo Sáenz de Urturi Ruiz", 33},
    {"a_coruna", "Xosé Manuel Castro Lema", 57},
    {"cadiz", "M.ª Dolores Núñez Peña", 88},
    {"girona", "Núria Puigdollers i Vila", 140},
    {"profile_off", "Marta Ferrer Climent", 216, kTodoFuera},
    {"profile_values_only", "Íñigo Sáenz de Urturi Ruiz", 31, kSoloValores},
    {"profile_sections_off", "Marta Ferrer Climent", 214, kSinSieteApartados},
    {"profile_lines_off", "Marta Ferrer Climent", 215, kSinLineas},
};

constexpr Muestra kApartamentos[] = {
    {"roses", "Núria Puigdollers i Vila", 141, "", u'A'},
    {"formigal", "Íñigo Sáenz de Urturi Ruiz", 34, "", u'A'},
    {"apartment_profile_off", "Núria Puigdollers i Vila", 141, kTodoFuera, u'A'},
    {"apartment_profile_in_part", "Íñigo Sáenz de Urturi Ruiz", 34, kApartamentoEnParte, u'A'},
};

constexpr Muestra kCasas[] = {
    {"betanzos", "Xosé Manuel Castro Lema", 58, "", u'C'},
    {"conil", "M.ª Dolores Núñez Peña", 89, "", u'C'},
    {"house_profile_off", "M.ª Dolores Núñez Peña", 89, kCasaTodaFuera, u'C'},
    {"house_profile_in_part", "Xosé Manuel Castro Lema", 58, kCasaEnParte, u'C'},
};

class InformeDeMuestra : public testing::TestWithParam<Muestra>
{
protected:
    void SetUp() override
    {
        base_ = carpeta_.filePath(u"valmerix.mdb"_s);
        CrearBaseDeMuestras(base_);
        const QByteArray perfil(GetParam().perfil);
        if (!perfil.isEmpty()) {
            const QByteArray columna = DescripcionDe(GetParam().tipo)->columnaPerfil.toUtf8();
            EjecutarEnBase(base_, "UPDATE Opciones SET " + columna + " = '" + perfil + "';");
        }
    }

    QByteArray Ejecutar(const QStringList& opciones = {})
    {
        QBuffer salida;
        QBuffer errores;
        salida.open(QIODevice::WriteOnly);
        errores.open(QIODevice::WriteOnly);
        const QStringList caso{base_, tipo(), QString::fromUtf8(GetParam().tasador),
                               QString::number(GetParam().numero)};
        EXPECT_EQ(EjecutarInforme(caso + opciones, salida, errores), 0) << errores.data().toStdString();
        EXPECT_EQ(errores.data().toStdString(), "");
        return salida.data();
    }

    QString base() const { return base_; }
    static QString tipo() { return QChar(GetParam().tipo); }

private:
    QTemporaryDir carpeta_;
    QString base_;
};

TEST_P(InformeDeMuestra, ReadsAsTheGoldenFile)
{
    const QByteArray informe = Ejecutar();
    const QDir carpeta(QStringLiteral(VALMERIX_TESTS_DIR "/golden/") + QString::fromUtf8(GetParam().carpeta));
    QFile patron(carpeta.filePath(u"report.txt"_s));
    if (qEnvironmentVariable("VALMERIX_GOLDEN") == u"write") {
        ASSERT_TRUE(QDir().mkpath(carpeta.path()));
        ASSERT_TRUE(patron.open(QIODevice::WriteOnly));
        ASSERT_EQ(patron.write(informe), informe.size());
        return;
    }
    ASSERT_TRUE(patron.open(QIODevice::ReadOnly)) << patron.fileName().toStdString();
    EXPECT_EQ(informe.toStdString(), patron.readAll().toStdString());
}

TEST_P(InformeDeMuestra, StoresTheValueThatTheCalculatorsGive)
{
    const QJsonObject json = QJsonDocument::fromJson(Ejecutar({u"--estado"_s})).object();
    const QString total = json[u"controles"].toObject()[u"BoxTotal"].toString();
    AccesoDatos::clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(base());
    const ConjuntoResultados caso = consulta.Instantanea2(
        u"Empresa"_s, u"SELECT ValorFinal FROM Viviendas WHERE Tipo = '%1' AND NumeroTasacion = %2"_s.arg(
                          tipo(), QString::number(GetParam().numero)));
    EXPECT_EQ(NumeroSQL(total, u"0.00"_s, 2).toStdString(),
              QString::number(caso.Numero(u"ValorFinal"), 'f', 2).toStdString());
}

std::string Nombre(const testing::TestParamInfo<Muestra>& caso)
{
    return caso.param.carpeta;
}

INSTANTIATE_TEST_SUITE_P(Pisos, InformeDeMuestra, testing::ValuesIn(kPisos), Nombre);
INSTANTIATE_TEST_SUITE_P(Apartamentos, InformeDeMuestra, testing::ValuesIn(kApartamentos), Nombre);
INSTANTIATE_TEST_SUITE_P(Casas, InformeDeMuestra, testing::ValuesIn(kCasas), Nombre);

} // namespace

} // namespace valmerix
