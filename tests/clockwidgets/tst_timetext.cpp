// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timetext_p.h"

#include "platform/locale/locale.h"

#include <QTest>

using Touch::Locale;

class TestTimeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsTheMarkerApart_data();
    void setsTheMarkerApart();
    void isEmptyForAnInvalidTime();
    void writesNumbersWithTheLocalesZero();
};

void TestTimeText::setsTheMarkerApart_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Locale::TimeFormat24h>("hours");
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QString>("marker");
    QTest::addColumn<bool>("markerFirst");
    QTest::newRow("english") << "en_US" << Locale::LocaleDefault << "1:05"
                             << "PM" << false;
    QTest::newRow("english 24") << "en_US" << Locale::TwentyFourHour << "13:05"
                                << "" << false;
    QTest::newRow("finnish") << "fi_FI" << Locale::LocaleDefault << "13.05"
                             << "" << false;
    QTest::newRow("korean") << "ko_KR" << Locale::LocaleDefault << "1:05" << u"오후"_qs << true;
    QTest::newRow("chinese") << "zh_TW" << Locale::LocaleDefault << "1:05" << u"下午"_qs << true;
    QTest::newRow("arabic") << "ar_EG" << Locale::LocaleDefault << u"١:٠٥"_qs << u"م"_qs << false;
    QTest::newRow("bulgarian") << "bg_BG" << Locale::LocaleDefault << u"13:05 ч."_qs << "" << false;
}

void TestTimeText::setsTheMarkerApart()
{
    QFETCH(QString, locale);
    QFETCH(Locale::TimeFormat24h, hours);
    QFETCH(QString, digits);
    QFETCH(QString, marker);
    QFETCH(bool, markerFirst);
    Locale user(locale);
    user.setTimeFormat24h(hours);
    const TimeText text = timeText(user, QTime(13, 5));
    QCOMPARE(text.digits, digits);
    QCOMPARE(text.marker, marker);
    QCOMPARE(text.markerFirst, markerFirst);
}

void TestTimeText::isEmptyForAnInvalidTime()
{
    const TimeText text = timeText(Locale(u"en_US"_qs), QTime());
    QCOMPARE(text.digits, QString());
    QCOMPARE(text.marker, QString());
}

void TestTimeText::writesNumbersWithTheLocalesZero()
{
    QCOMPARE(localeDigits(Locale(u"en_US"_qs), 7, 2), u"07"_qs);
    QCOMPARE(localeDigits(Locale(u"en_US"_qs), 7, 1), u"7"_qs);
    QCOMPARE(localeDigits(Locale(u"en_US"_qs), 12, 2), u"12"_qs);
    QCOMPARE(localeDigits(Locale(u"ar_EG"_qs), 7, 2), u"٠٧"_qs);
}

QTEST_GUILESS_MAIN(TestTimeText)
#include "tst_timetext.moc"
