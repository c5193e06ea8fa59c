// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/calendar.h"

#include <QTest>

using Touch::Calendar;
using Touch::Locale;

class TestCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheWeek_data();
    void knowsTheWeek();
    void countsDaysFromSunday();
    void hasNoNameForOtherDays();
    void namesMayDependOnTheContext();
    void followsTheDefaultLocale();
    void staysWithTheLocaleItWasMadeFor();
    void hasTheValuesThatCallersCountOn();
};

void TestCalendar::knowsTheWeek_data()
{
    QTest::addColumn<int>("firstDay");
    QTest::addColumn<QString>("monday");
    QTest::addColumn<QString>("shortMonday");
    QTest::newRow("en_US") << 7 << "Monday"
                           << "Mon";
    QTest::newRow("en_GB") << 1 << "Monday"
                           << "Mon";
    QTest::newRow("de_DE") << 1 << "Montag"
                           << "Mo";
    QTest::newRow("fi_FI") << 1 << "maanantai"
                           << "ma";
    QTest::newRow("ar_EG") << 6 << u"الاثنين"_qs << u"الاثنين"_qs;
    QTest::newRow("fa_IR") << 6 << u"دوشنبه"_qs << u"دوشنبه"_qs;
    QTest::newRow("he_IL") << 7 << u"יום שני"_qs << u"יום ב׳"_qs;
    QTest::newRow("hi_IN") << 7 << u"सोमवार"_qs << u"सोम"_qs;
    QTest::newRow("zh_CN") << 1 << u"星期一"_qs << u"周一"_qs;
    QTest::newRow("zh_TW") << 7 << u"星期一"_qs << u"週一"_qs;
    QTest::newRow("ja_JP") << 7 << u"月曜日"_qs << u"月"_qs;
    QTest::newRow("ko_KR") << 7 << u"월요일"_qs << u"월"_qs;
    QTest::newRow("th_TH") << 7 << u"วันจันทร์"_qs << u"จ."_qs;
    QTest::newRow("tr_TR") << 1 << "Pazartesi"
                           << "Pzt";
    QTest::newRow("pt_BR") << 7 << "segunda-feira"
                           << "seg.";
    QTest::newRow("ru_RU") << 1 << u"понедельник"_qs << u"пн"_qs;
}

void TestCalendar::knowsTheWeek()
{
    QFETCH(int, firstDay);
    QFETCH(QString, monday);
    QFETCH(QString, shortMonday);
    const Calendar calendar(Locale(QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(calendar.firstDayOfWeek(), firstDay);
    QCOMPARE(calendar.weekdayName(1), monday);
    QCOMPARE(calendar.weekdayName(1, Calendar::StandaloneContext, Calendar::AbbreviatedLength), shortMonday);
}

void TestCalendar::countsDaysFromSunday()
{
    const Calendar calendar(Locale(u"en_GB"_qs));
    const QStringList names{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    for (int day = 0; day < 7; ++day)
        QCOMPARE(calendar.weekdayName(day), names[day]);
}

void TestCalendar::hasNoNameForOtherDays()
{
    const Calendar calendar(Locale(u"en_GB"_qs));
    QCOMPARE(calendar.weekdayName(-1), QString());
    QCOMPARE(calendar.weekdayName(7), QString());
}

void TestCalendar::namesMayDependOnTheContext()
{
    const Calendar german(Locale(u"de_DE"_qs));
    QCOMPARE(german.weekdayName(1, Calendar::FormatContext, Calendar::AbbreviatedLength), u"Mo."_qs);
    QCOMPARE(german.weekdayName(1, Calendar::StandaloneContext, Calendar::AbbreviatedLength), u"Mo"_qs);
    QCOMPARE(german.weekdayName(1, Calendar::StandaloneContext, Calendar::NarrowLength), u"M"_qs);
}

void TestCalendar::followsTheDefaultLocale()
{
    Locale::setDefault(Locale(u"en_US"_qs));
    const Calendar calendar;
    QCOMPARE(calendar.firstDayOfWeek(), 7);
    Locale::setDefault(Locale(u"fi_FI"_qs));
    QCOMPARE(calendar.firstDayOfWeek(), 1);
    QCOMPARE(calendar.weekdayName(0), u"sunnuntai"_qs);
}

void TestCalendar::staysWithTheLocaleItWasMadeFor()
{
    const Calendar calendar(Locale(u"en_US"_qs), Locale::GregorianCalendar);
    Locale::setDefault(Locale(u"fi_FI"_qs));
    QCOMPARE(calendar.weekdayName(0), u"Sunday"_qs);
}

void TestCalendar::hasTheValuesThatCallersCountOn()
{
    QCOMPARE(int(Calendar::StandaloneContext), 1);
    QCOMPARE(int(Calendar::AbbreviatedLength), 0);
}

QTEST_GUILESS_MAIN(TestCalendar)
#include "tst_calendar.moc"
