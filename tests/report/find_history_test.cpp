#include "report/find_history.h"

#include "report/report_error.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QByteArray Registro(QByteArray bytes)
{
    return bytes.append(80 - bytes.size(), ' ');
}

} // namespace

TEST(FindHistory, IsRecordsOfEightyBytes)
{
    EXPECT_EQ(RegistrosBusqueda({}), Registro(QByteArray("\0\0", 2)));
    EXPECT_EQ(RegistrosBusqueda({u"ático"_s, u"b"_s}),
              Registro(QByteArray("\2\0", 2)) + Registro("\xC3\xA1tico") + Registro("b"));
}

TEST(FindHistory, ReadsBackWhatItWrote)
{
    const QStringList busquedas{u"uno"_s, u" con blanco delante"_s, u"€ 𝄞 ñ"_s};
    EXPECT_EQ(LeerRegistrosBusqueda(RegistrosBusqueda(busquedas)), busquedas);
}

TEST(FindHistory, CutsALongSearchBetweenCharacters)
{
    const QString larga = QString(79, u'a') + u"ñ"_s;
    EXPECT_EQ(LeerRegistrosBusqueda(RegistrosBusqueda({larga})), QStringList{QString(79, u'a')});
    EXPECT_EQ(LeerRegistrosBusqueda(RegistrosBusqueda({QString(200, u'€')})), QStringList{QString(26, u'€')});
    const QString justa = QString(78, u'a') + u"ñ"_s;
    EXPECT_EQ(LeerRegistrosBusqueda(RegistrosBusqueda({justa})), QStringList{justa});
}

TEST(FindHistory, KeepsEightAndNoBlankOnes)
{
    QStringList muchas;
    for (int i = 0; i < 12; ++i)
        muchas << QString::number(i);
    EXPECT_EQ(LeerRegistrosBusqueda(RegistrosBusqueda(muchas)), muchas.first(8));
    EXPECT_EQ(LeerRegistrosBusqueda(RegistrosBusqueda({u"  "_s, u"x"_s})), QStringList{u"x"_s});
}

TEST(FindHistory, ADamagedFileIsAnEmptyList)
{
    const QByteArray bueno = RegistrosBusqueda({u"uno"_s, u"dos"_s});
    for (qsizetype n = 0; n < bueno.size(); ++n)
        EXPECT_TRUE(LeerRegistrosBusqueda(bueno.first(n)).isEmpty()) << n;
    EXPECT_TRUE(LeerRegistrosBusqueda(bueno + "x").isEmpty());
    QByteArray malo = bueno;
    malo[0] = '\3';
    EXPECT_TRUE(LeerRegistrosBusqueda(malo).isEmpty());
    malo[1] = '\xFF';
    EXPECT_TRUE(LeerRegistrosBusqueda(malo).isEmpty());
    malo = bueno;
    malo[85] = '\xC3';
    EXPECT_TRUE(LeerRegistrosBusqueda(malo).isEmpty());
    malo = bueno;
    malo.replace(80, 3, "   ");
    EXPECT_TRUE(LeerRegistrosBusqueda(malo).isEmpty());
}

TEST(FindHistory, AMissingFileIsAnEmptyListAndABadPlaceAnError)
{
    QTemporaryDir carpeta;
    EXPECT_TRUE(CargarBusquedas(carpeta.filePath(u"Visor.ini"_s)).isEmpty());
    EXPECT_TRUE(CargarBusquedas(carpeta.path()).isEmpty());
    EXPECT_THROW(GuardarBusquedas(carpeta.filePath(u"no/Visor.ini"_s), {}), ErrorInforme);
    GuardarBusquedas(carpeta.filePath(u"Visor.ini"_s), {u"ñ"_s});
    EXPECT_EQ(CargarBusquedas(carpeta.filePath(u"Visor.ini"_s)), QStringList{u"ñ"_s});
}

} // namespace valmerix
