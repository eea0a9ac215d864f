#include "common/dates.h"

#include "support/qt_printers.h"

#include <gtest/gtest.h>

namespace valmerix {

namespace {

using namespace Qt::StringLiterals;

TEST(DatesTest, ReadsADateWithAnySeparator)
{
    const QDate fecha(2026, 11, 20);
    for (const QString& texto :
         {u"20/11/2026"_s, u"20-11-2026"_s, u"20.11.2026"_s, u"20 11 2026"_s, u" 20/11/2026 "_s}) {
        EXPECT_EQ(LeerFecha(texto), fecha) << texto.toStdString();
    }
}

TEST(DatesTest, DayAndMonthMayHaveOneDigit)
{
    EXPECT_EQ(LeerFecha(u"1/2/2024"), QDate(2024, 2, 1));
    EXPECT_EQ(LeerFecha(u"01/2/2024"), QDate(2024, 2, 1));
    EXPECT_EQ(LeerFecha(u"29/2/2024"), QDate(2024, 2, 29));
}

TEST(DatesTest, NothingIsReadOfAMaskThatIsNotFilled)
{
    for (const QString& texto :
         {u""_s, u"  /  /    "_s, u"__/__/____"_s, u"20/11"_s, u"20/11/"_s, u"20/  /2026"_s, u"/11/2026"_s,
          u"20//2026"_s, u"20/11/20"_s, u"20/11/202"_s, u"//"_s, u"20"_s}) {
        EXPECT_FALSE(LeerFecha(texto)) << texto.toStdString();
    }
}

TEST(DatesTest, NothingIsReadOfAnImpossibleDate)
{
    for (const QString& texto : {u"31/02/2026"_s, u"29/02/2026"_s, u"00/01/2026"_s, u"01/13/2026"_s,
                                 u"32/01/2026"_s, u"01/01/0000"_s, u"99/99/9999"_s}) {
        EXPECT_FALSE(LeerFecha(texto)) << texto.toStdString();
    }
}

TEST(DatesTest, NothingIsReadOfATextThatIsMoreOrLessThanADate)
{
    for (const QString& texto : {u"20/11/2026x"_s, u"20/11/20266"_s, u"020/11/2026"_s, u"20//11/2026"_s,
                                 u"-1/11/2026"_s, u"2026-11-20"_s, u"hoy"_s, u"٢٠/11/2026"_s, u"20😀11😀2026"_s,
                                 QString(60000, u'1'), u"20/11/"_s + QString(60000, u'2')}) {
        EXPECT_FALSE(LeerFecha(texto)) << texto.left(40).toStdString();
    }
}

TEST(DatesTest, ShowsTwoDigitsForDayAndMonth)
{
    EXPECT_EQ(FechaVisible(QDate(2026, 1, 2)), u"02/01/2026"_s);
    EXPECT_EQ(FechaVisible(QDate(999, 12, 31)), u"31/12/0999"_s);
    EXPECT_EQ(FechaVisible(QDate()), u""_s);
}

TEST(DatesTest, WhatIsShownReadsBack)
{
    for (QDate fecha(1899, 12, 25); fecha < QDate(2101, 1, 1); fecha = fecha.addDays(17)) {
        EXPECT_EQ(LeerFecha(FechaVisible(fecha)), fecha);
    }
}

TEST(DatesTest, TheLongDateIsSpanish)
{
    EXPECT_EQ(FechaLarga(QDate(2026, 11, 20)), u"viernes, 20 de noviembre de 2026"_s);
    EXPECT_EQ(FechaLarga(QDate(2024, 2, 3)), u"sábado, 3 de febrero de 2024"_s);
    EXPECT_EQ(FechaLarga(QDate(1999, 9, 1)), u"miércoles, 1 de septiembre de 1999"_s);
    EXPECT_EQ(FechaLarga(QDate()), u""_s);
}

TEST(DatesTest, EveryWeekdayAndMonthHasItsName)
{
    const QStringList dias{u"lunes"_s,   u"martes"_s, u"miércoles"_s, u"jueves"_s,
                           u"viernes"_s, u"sábado"_s, u"domingo"_s};
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(FechaLarga(QDate(2024, 1, 1 + i)).startsWith(dias[i] + u", "_s)); // a Monday
    }
    const QStringList meses{u"enero"_s,      u"febrero"_s, u"marzo"_s,     u"abril"_s,
                            u"mayo"_s,       u"junio"_s,   u"julio"_s,     u"agosto"_s,
                            u"septiembre"_s, u"octubre"_s, u"noviembre"_s, u"diciembre"_s};
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(FechaLarga(QDate(2024, 1 + i, 5)).endsWith(u" 5 de "_s + meses[i] + u" de 2024"_s));
    }
}

} // namespace

} // namespace valmerix
