#include "common/ini_file.h"

#include "support/qt_printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>

namespace valmerix {

namespace {

using namespace Qt::StringLiterals;

/// All of a literal, its nulls too, but for the one that ends it.
template <size_t N>
QByteArray Bytes(const char (&literal)[N])
{
    return {literal, static_cast<qsizetype>(N - 1)};
}

class IniFileTest : public testing::Test
{
protected:
    void Escribir(const QByteArray& contenido)
    {
        QFile archivo(ruta_);
        ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(archivo.write(contenido), contenido.size());
    }

    QString Ruta() const { return LeerIni(ruta_, u"Datos"_s, u"RutaAcceso"_s, u"(defecto)"_s); }

    QString Leido(const QByteArray& contenido)
    {
        Escribir(contenido);
        return Ruta();
    }

    QTemporaryDir carpeta_;
    QString ruta_ = carpeta_.filePath(u"Valmerix.ini"_s);
};

TEST_F(IniFileTest, ReadsTheKeyOfItsSection)
{
    EXPECT_EQ(Leido("[Datos]\r\nRutaAcceso=C:\\Datos\\valmerix.mdb\r\n"), u"C:\\Datos\\valmerix.mdb"_s);
    EXPECT_EQ(Leido("[Otra]\nRutaAcceso=no\n[Datos]\nOtra=no\nRutaAcceso=si"), u"si"_s);
}

TEST_F(IniFileTest, IsBlindToCaseAndToBlanksAroundNames)
{
    EXPECT_EQ(Leido("  [DATOS]  \n\trutaacceso =  /datos/a b.mdb \t\n"), u"/datos/a b.mdb"_s);
    EXPECT_EQ(Leido("[ datos ]\nRUTAACCESO=x\n"), u"x"_s);
    Escribir("[Año]\nÁrea=7\n");
    EXPECT_EQ(LeerIni(ruta_, u"AÑO"_s, u"área"_s), u"7"_s);
}

TEST_F(IniFileTest, WhatIsMissingGivesTheDefault)
{
    EXPECT_EQ(LeerIni(carpeta_.filePath(u"no.ini"_s), u"Datos"_s, u"RutaAcceso"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(LeerIni(carpeta_.path(), u"Datos"_s, u"RutaAcceso"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(LeerIni(u""_s, u"Datos"_s, u"RutaAcceso"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(LeerIni(u"/dev/zero"_s, u"Datos"_s, u"RutaAcceso"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(LeerIni(ruta_, u"Datos"_s, u"RutaAcceso"_s), u""_s);
    EXPECT_EQ(Leido(""), u"(defecto)"_s);
    EXPECT_EQ(Leido("[Otra]\nRutaAcceso=no\n"), u"(defecto)"_s);
    EXPECT_EQ(Leido("RutaAcceso=no\n[Datos]\n"), u"(defecto)"_s);
    EXPECT_EQ(Leido("[Datos]\nRuta=no\nRutaAccesos=no\n"), u"(defecto)"_s);
}

TEST_F(IniFileTest, AnEmptyValueGivesTheDefault)
{
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\n"), u"(defecto)"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=   \nRutaAcceso=tarde\n"), u"(defecto)"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\"\"\n"), u"(defecto)"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso\n"), u"(defecto)"_s);
}

TEST_F(IniFileTest, OnePairOfQuotesIsTakenOff)
{
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso = \" con blancos \"\n"), u" con blancos "_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso='simple'\n"), u"simple"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\"\"doble\"\"\n"), u"\"doble\""_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\"abierta\n"), u"\"abierta"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\"mezclada'\n"), u"\"mezclada'"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\"\n"), u"\""_s);
}

TEST_F(IniFileTest, OnlyWholeLinesAreComments)
{
    EXPECT_EQ(Leido("; [Datos]\n[Datos] ; la base\n;RutaAcceso=no\n  ; RutaAcceso=no\nRutaAcceso=si ;=no\n"),
              u"si ;=no"_s);
    EXPECT_EQ(LeerIni(ruta_, u"Datos"_s, u";RutaAcceso"_s), u""_s);
}

TEST_F(IniFileTest, TheFirstSectionAndTheFirstKeyCount)
{
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=uno\nRutaAcceso=dos\n[Datos]\nRutaAcceso=tres\n"), u"uno"_s);
    EXPECT_EQ(Leido("[Datos]\nOtra=1\n[Datos]\nRutaAcceso=tres\n"), u"(defecto)"_s);
}

TEST_F(IniFileTest, TheValueMayHoldEqualSignsAndBackslashes)
{
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=\\\\servidor\\c$\\x=y.mdb\n"), u"\\\\servidor\\c$\\x=y.mdb"_s);
}

TEST_F(IniFileTest, AtMost255CharactersAreRead)
{
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=" + QByteArray(255, 'a')), QString(255, u'a'));
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=" + QByteArray(256, 'a')), QString(255, u'a'));
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=" + QByteArray(100000, 'a') + "\n"), QString(255, u'a'));
    for (const QString& caracter : {u"ñ"_s, u"€"_s}) {
        for (int corrimiento = 0; corrimiento < 4;
             ++corrimiento) { // the reader's buffer cuts it at every byte
            const QByteArray largo = caracter.repeated(60000).toUtf8();
            EXPECT_EQ(Leido("[Datos]\nRutaAcceso=" + QByteArray(corrimiento, ' ') + largo),
                      caracter.repeated(255));
        }
    }
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=" + QByteArray(254, 'a') + u"😀"_s.toUtf8()), QString(254, u'a'));
}

TEST_F(IniFileTest, ALineTooLongHidesNoneOfTheNext)
{
    const QByteArray larga(50000, 'x');
    EXPECT_EQ(Leido("[Datos]\n" + larga + "\nRutaAcceso=si\n"), u"si"_s);
    EXPECT_EQ(Leido("[Datos]\n" + larga + "RutaAcceso=no\n"), u"(defecto)"_s);
    for (int largo = 16370; largo < 16400; ++largo) {
        EXPECT_EQ(Leido("[Datos]\n" + QByteArray(largo, 'x') + "\rRutaAcceso=no\n"), u"(defecto)"_s) << largo;
        EXPECT_EQ(Leido("[Datos]\n" + QByteArray(largo, 'x') + "RutaAcceso=no\n"), u"(defecto)"_s) << largo;
    }
    // Lines that just fill the reader's buffer, with and without their end in it.
    for (int largo = 16370; largo < 16400; ++largo) {
        EXPECT_EQ(Leido("[Datos]\n" + QByteArray(largo, ';') + "\nRutaAcceso=si\n"), u"si"_s) << largo;
    }
}

TEST_F(IniFileTest, ReadsUtf8WithAndWithoutMarkAndLatin1)
{
    EXPECT_EQ(Leido("\xEF\xBB\xBF[Datos]\nRutaAcceso=/casa/Peñíscola.mdb\n"), u"/casa/Peñíscola.mdb"_s);
    EXPECT_EQ(Leido("\xEF\xBB\xBF[Datos] ; la base del a\xF1o\nRutaAcceso=x\n"), u"x"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=/casa/Peñíscola.mdb\n"), u"/casa/Peñíscola.mdb"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=/casa/Pe\xF1\xEDscola\n"), u"/casa/Peñíscola"_s);
    EXPECT_EQ(Leido("[Datos]\nRutaAcceso=C:\\caf\xE9"), u"C:\\café"_s);
}

TEST_F(IniFileTest, NullsAndJunkDoNoHarm)
{
    EXPECT_EQ(Leido(Bytes("[Datos]\nRutaAcceso=bien\0mal\n")), u"bien"_s);
    EXPECT_EQ(Leido(Bytes("\0\0[[]]==\n=\n[\n]\n[Datos\n[Datos]\n\0=\nRutaAcceso=si\n")), u"si"_s);
    std::mt19937 azar(12);
    for (int i = 0; i < 50; ++i) {
        QByteArray ruido(5000, Qt::Uninitialized);
        for (char& c : ruido) {
            c = static_cast<char>(azar() % 256);
        }
        EXPECT_EQ(Leido(ruido), u"(defecto)"_s);
        const QByteArray sinSecciones = QByteArray(ruido).replace('[', ' ');
        EXPECT_EQ(Leido(ruido + "\n[Datos]\n" + sinSecciones + "\nRutaAcceso=si"), u"si"_s);
    }
}

TEST_F(IniFileTest, AHugeFileIsReadLineByLine)
{
    QByteArray contenido = "[Otra]\n";
    for (int i = 0; i < 200000; ++i) {
        contenido += "clave" + QByteArray::number(i) + "=valor\n";
    }
    EXPECT_EQ(Leido(contenido + "[Datos]\nRutaAcceso=si\n"), u"si"_s);
}

} // namespace

} // namespace valmerix
