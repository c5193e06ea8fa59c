// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/repeatsummary.h"

#include "platform/locale/calendar.h"
#include "platform/locale/locale.h"

#include <QTest>

using Touch::Calendar;
using Touch::Locale;

class TestRepeatSummary : public QObject
{
    Q_OBJECT

private slots:
    void namesStartWithTheFirstDayOfTheWeek_data();
    void namesStartWithTheFirstDayOfTheWeek();
    void theSharedNamesAreMadeOnce();
    void summaryTellsTheRule_data();
    void summaryTellsTheRule();
    void everyDayHasATextOfItsOwn();
    void noRepetitionIsAnEmptyText();
};

void TestRepeatSummary::namesStartWithTheFirstDayOfTheWeek_data()
{
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("Monday first") << "en_GB"
                                  << "Monday"
                                  << "Sunday";
    QTest::newRow("Sunday first") << "en_US"
                                  << "Sunday"
                                  << "Saturday";
    QTest::newRow("Saturday first, no upper case") << "ar_EG"
                                                   << "السبت"
                                                   << "الجمعة";
    QTest::newRow("capitalised") << "fr_FR"
                                 << "Lundi"
                                 << "Dimanche";
}

void TestRepeatSummary::namesStartWithTheFirstDayOfTheWeek()
{
    QFETCH(QString, localeName);
    const Locale locale(localeName);
    const QStringList names = weekdayNames(locale, Calendar(locale));
    QCOMPARE(names.size(), 7);
    QTEST(names.first(), "first");
    QTEST(names.last(), "last");
}

void TestRepeatSummary::theSharedNamesAreMadeOnce()
{
    const QStringList &names = weekdayNames();
    QCOMPARE(names.size(), 7);
    QCOMPARE(&weekdayNames(), &names);
    QCOMPARE(weekdayNames().size(), 7);
}

void TestRepeatSummary::summaryTellsTheRule_data()
{
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<QList<int>>("days");
    QTest::addColumn<QString>("summary");
    QTest::newRow("two days") << "en_GB" << QList<int>{1, 3} << "Mon, Wed";
    QTest::newRow("in the order given") << "en_GB" << QList<int>{6, 0} << "Sat, Sun";
    QTest::newRow("capitalised") << "es_ES" << QList<int>{1, 2} << "Lun, Mar";
    QTest::newRow("Han script takes blanks") << "zh_CN" << QList<int>{1, 3} << "周一 周三";
    QTest::newRow("Han among other scripts") << "ja_JP" << QList<int>{1, 2, 3} << "月 火 水";
    QTest::newRow("Arabic script takes its own comma") << "ar_EG" << QList<int>{1, 3} << "الاثنين، الأربعاء";
    // The names start with the first day of the week, yet the weekday's number is the index.
    QTest::newRow("one day, week from Sunday") << "en_US" << QList<int>{1} << "Monday";
    QTest::newRow("one day, week from Monday") << "en_GB" << QList<int>{1} << "Tuesday";
    QTest::newRow("the last number, week from Monday") << "en_GB" << QList<int>{6} << "Sunday";
    QTest::newRow("no day at all") << "en_GB" << QList<int>{} << "";
}

void TestRepeatSummary::summaryTellsTheRule()
{
    QFETCH(QString, localeName);
    QFETCH(QList<int>, days);
    const Locale locale(localeName);
    QTEST(repeatSummary(locale, Calendar(locale), true, days), "summary");
}

void TestRepeatSummary::everyDayHasATextOfItsOwn()
{
    // No catalogue is loaded here, so the text is its own name.
    QCOMPARE(repeatSummary(true, {0, 1, 2, 3, 4, 5, 6}), "qtn_cloc_repeatalarm_ruleeveryday");
}

void TestRepeatSummary::noRepetitionIsAnEmptyText()
{
    QCOMPARE(repeatSummary(false, {1, 2}), QString());
}

QTEST_GUILESS_MAIN(TestRepeatSummary)
#include "tst_repeatsummary.moc"
