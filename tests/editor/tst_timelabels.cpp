// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/timelabels.h"

#include "platform/locale/locale.h"

#include <QDateTime>
#include <QTest>

using Touch::Locale;
using Arrangement = TimeLabels::Arrangement;

Q_DECLARE_METATYPE(TimeLabels::Arrangement)

class TestTimeLabels : public QObject
{
    Q_OBJECT

private slots:
    void twelveHoursFollowTheLocale_data();
    void twelveHoursFollowTheLocale();
    void twentyFourHoursFollowTheLocale_data();
    void twentyFourHoursFollowTheLocale();
    void theUsersChoiceWinsOverTheLocale();
    void everyTimeOfTheDayHasTwoDigitHours();

private:
    static QDateTime at(const QString &time) { return QDateTime(QDate(2011, 2, 23), QTime::fromString(time, "hh:mm")); }
};

void TestTimeLabels::twelveHoursFollowTheLocale_data()
{
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("hour");
    QTest::addColumn<QString>("minute");
    QTest::addColumn<QString>("marker");
    QTest::addColumn<Arrangement>("arrangement");
    QTest::newRow("marker at the end") << "en_US"
                                       << "13:05"
                                       << "01"
                                       << "05"
                                       << " PM" << Arrangement::MarkerAfter;
    QTest::newRow("midnight") << "en_US"
                              << "00:00"
                              << "12"
                              << "00"
                              << " AM" << Arrangement::MarkerAfter;
    QTest::newRow("noon") << "en_US"
                          << "12:00"
                          << "12"
                          << "00"
                          << " PM" << Arrangement::MarkerAfter;
    QTest::newRow("marker first, with a blank") << "ko_KR"
                                                << "13:05"
                                                << "01"
                                                << "05"
                                                << "오후 " << Arrangement::MarkerBefore;
    QTest::newRow("marker first, no blank") << "zh_TW"
                                            << "13:05"
                                            << "01"
                                            << "05"
                                            << "下午" << Arrangement::MarkerBefore;
    QTest::newRow("marker written right to left") << "ar_EG"
                                                  << "13:05"
                                                  << "٠١"
                                                  << "٠٥"
                                                  << "م " << Arrangement::MarkerBefore;
}

void TestTimeLabels::twelveHoursFollowTheLocale()
{
    QFETCH(QString, localeName);
    QFETCH(QString, time);
    const TimeLabels labels = timeLabels(Locale(localeName), at(time));
    QTEST(labels.hour, "hour");
    QTEST(labels.minute, "minute");
    QTEST(labels.marker.value_or("none"), "marker");
    QTEST(labels.arrangement, "arrangement");
}

void TestTimeLabels::twentyFourHoursFollowTheLocale_data()
{
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("hour");
    QTest::addColumn<QString>("minute");
    QTest::newRow("two letters") << "en_GB"
                                 << "08:05"
                                 << "08"
                                 << "05";
    QTest::newRow("one letter is padded") << "es_ES"
                                          << "08:05"
                                          << "08"
                                          << "05";
    QTest::newRow("a dot between") << "fi_FI"
                                   << "08:05"
                                   << "08"
                                   << "05";
    QTest::newRow("the locale's own zero") << "fa_AF"
                                           << "08:05"
                                           << "۰۸"
                                           << "۰۵";
    QTest::newRow("Iran's empty first part") << "fa_IR"
                                             << "13:05"
                                             << "۱۳"
                                             << "۰۵";
    QTest::newRow("midnight") << "de_DE"
                              << "00:00"
                              << "00"
                              << "00";
}

void TestTimeLabels::twentyFourHoursFollowTheLocale()
{
    QFETCH(QString, localeName);
    QFETCH(QString, time);
    const TimeLabels labels = timeLabels(Locale(localeName), at(time));
    QTEST(labels.hour, "hour");
    QTEST(labels.minute, "minute");
    QVERIFY2(!labels.marker, "the AM/PM label is left alone");
    QCOMPARE(labels.arrangement, Arrangement::TwentyFourHours);
}

void TestTimeLabels::theUsersChoiceWinsOverTheLocale()
{
    Locale locale("en_US");
    locale.setTimeFormat24h(Locale::TwentyFourHour);
    QCOMPARE(timeLabels(locale, at("13:05")).hour, "13");

    locale = Locale("de_DE");
    locale.setTimeFormat24h(Locale::TwelveHour);
    const TimeLabels labels = timeLabels(locale, at("13:05"));
    QCOMPARE(labels.hour, "01");
    QCOMPARE(labels.minute, "05");
    QCOMPARE(labels.marker.value_or("none"), " PM");
}

void TestTimeLabels::everyTimeOfTheDayHasTwoDigitHours()
{
    for (const char *name : {"en_US", "en_GB", "fa_IR", "ar_EG", "hi_IN", "ja_JP"}) {
        const Locale locale(name);
        for (int hour = 0; hour < 24; ++hour) {
            const TimeLabels labels = timeLabels(locale, QDateTime(QDate(2011, 2, 23), QTime(hour, 59)));
            QVERIFY2(labels.hour.size() == 2 && labels.minute.size() == 2, name);
        }
    }
}

QTEST_GUILESS_MAIN(TestTimeLabels)
#include "tst_timelabels.moc"
