// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"

#include <memory>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>
#include <unicode/smpdtfmt.h>

using Touch::Locale;

namespace {

const QDateTime afternoon(QDate(2026, 3, 9), QTime(13, 5, 9));

QString ownPattern(const icu::Locale &locale, icu::DateFormat::EStyle time)
{
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createTimeInstance(time, locale));
    icu::UnicodeString pattern;
    dynamic_cast<icu::SimpleDateFormat &>(*format).toPattern(pattern);
    return QString(reinterpret_cast<const QChar *>(pattern.getBuffer()), pattern.length());
}

} // namespace

class TestLocaleFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheTimePatternOfTheLocale_data();
    void hasTheTimePatternOfTheLocale();
    void usesIcusOwnPatternsInEveryLocale();
    void formatsTheTimeInTheUsersHours_data();
    void formatsTheTimeInTheUsersHours();
    void convertsTheTimeBesideADate();
    void startsTimesOfIranWithARightToLeftMark();
    void formatsFieldsWhateverTheZone_data();
    void formatsFieldsWhateverTheZone();
    void namesTheZoneOfTheDateTime();
    void formatsNothingForAnInvalidDateTime();
    void countsByTheCalendarAskedFor();
    void arrangesFieldsAsTheLocaleDoes_data();
    void arrangesFieldsAsTheLocaleDoes();
    void replacesDirectives_data();
    void replacesDirectives();
};

void TestLocaleFormats::hasTheTimePatternOfTheLocale_data()
{
    QTest::addColumn<QString>("usual");
    QTest::addColumn<QString>("twelve");
    QTest::addColumn<QString>("twentyFour");
    // CLDR 42 has a narrow no-break blank before the marker in some locales.
    QTest::newRow("en_US") << "h:mm:ss a"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("en_GB") << "HH:mm:ss"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("de_DE") << "HH:mm:ss"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("fi_FI") << "H.mm.ss"
                           << "h.mm.ss a"
                           << "H.mm.ss";
    QTest::newRow("ar_EG") << "h:mm:ss a"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("fa_IR") << u"\u200FH:mm:ss"_qs << u"\u200Fh:mm:ss a"_qs << u"\u200FH:mm:ss"_qs;
    QTest::newRow("he_IL") << "H:mm:ss"
                           << "h:mm:ss a"
                           << "H:mm:ss";
    QTest::newRow("hi_IN") << "h:mm:ss a"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("zh_CN") << "HH:mm:ss"
                           << "ah:mm:ss"
                           << "HH:mm:ss";
    // CLDR says Bh:mm:ss; the half of the day is always the letter a here.
    QTest::newRow("zh_TW") << "ah:mm:ss"
                           << "ah:mm:ss"
                           << "HH:mm:ss";
    QTest::newRow("ja_JP") << "H:mm:ss"
                           << "aK:mm:ss"
                           << "H:mm:ss";
    QTest::newRow("ko_KR") << "a h:mm:ss"
                           << "a h:mm:ss" << u"H시 m분 s초"_qs;
    QTest::newRow("th_TH") << "HH:mm:ss"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("tr_TR") << "HH:mm:ss"
                           << "a h:mm:ss"
                           << "HH:mm:ss";
    QTest::newRow("pt_BR") << "HH:mm:ss"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
    QTest::newRow("ru_RU") << "HH:mm:ss"
                           << "h:mm:ss a"
                           << "HH:mm:ss";
}

void TestLocaleFormats::hasTheTimePatternOfTheLocale()
{
    QFETCH(QString, usual);
    QFETCH(QString, twelve);
    QFETCH(QString, twentyFour);
    Locale locale(QString::fromLatin1(QTest::currentDataTag()));
    const auto pattern = [&locale] {
        return locale.icuFormatString(Locale::DateNone, Locale::TimeMedium).replace(QChar(0x202F), u' ');
    };
    QCOMPARE(pattern(), usual);
    QCOMPARE(locale.defaultTimeFormat24h(), usual.contains(u'h') ? Locale::TwelveHour : Locale::TwentyFourHour);
    QCOMPARE(locale.isTwelveHour(), usual.contains(u'h'));
    locale.setTimeFormat24h(Locale::TwelveHour);
    QCOMPARE(pattern(), twelve);
    QVERIFY(locale.isTwelveHour());
    locale.setTimeFormat24h(Locale::TwentyFourHour);
    QCOMPARE(pattern(), twentyFour);
    QVERIFY(!locale.isTwelveHour());
}

void TestLocaleFormats::usesIcusOwnPatternsInEveryLocale()
{
    int count = 0;
    const icu::Locale *all = icu::Locale::getAvailableLocales(count);
    QVERIFY(count > 500);
    for (int i = 0; i < count; ++i) {
        const Locale locale(QString::fromLatin1(all[i].getName()));
        const QString mark = locale.categoryCountry(Locale::TimeCategory) == u"IR" ? QString(QChar(0x200F)) : "";
        for (const auto &[type, style] : {std::pair(Locale::TimeShort, icu::DateFormat::kShort),
                                          std::pair(Locale::TimeMedium, icu::DateFormat::kMedium)}) {
            QString expected = ownPattern(all[i], style);
            expected.replace(u'B', u'a');
            QVERIFY2(locale.icuFormatString(Locale::DateNone, type) == mark + expected, all[i].getName());
        }
    }
}

void TestLocaleFormats::formatsTheTimeInTheUsersHours_data()
{
    QTest::addColumn<QString>("twelve");
    QTest::addColumn<QString>("twentyFour");
    QTest::newRow("en_US") << "1:05 PM"
                           << "13:05";
    QTest::newRow("en_GB") << "1:05 pm"
                           << "13:05";
    QTest::newRow("de_DE") << "1:05 PM"
                           << "13:05";
    QTest::newRow("fi_FI") << "1.05 ip."
                           << "13.05";
    QTest::newRow("ar_EG") << u"١:٠٥ م"_qs << u"١٣:٠٥"_qs;
    QTest::newRow("fa_IR") << u"\u200F۱:۰۵ بعدازظهر"_qs << u"\u200F۱۳:۰۵"_qs;
    QTest::newRow("he_IL") << u"1:05 אחה״צ"_qs << "13:05";
    QTest::newRow("hi_IN") << "1:05 pm"
                           << "13:05";
    QTest::newRow("zh_CN") << u"下午1:05"_qs << "13:05";
    QTest::newRow("zh_TW") << u"下午1:05"_qs << "13:05";
    QTest::newRow("ja_JP") << u"午後1:05"_qs << "13:05";
    QTest::newRow("ko_KR") << u"오후 1:05"_qs << "13:05";
    QTest::newRow("th_TH") << u"1:05 หลังเที่ยง"_qs << "13:05";
    QTest::newRow("tr_TR") << u"ÖS 1:05"_qs << "13:05";
    QTest::newRow("pt_BR") << "1:05 PM"
                           << "13:05";
    QTest::newRow("ru_RU") << "1:05 PM"
                           << "13:05";
}

void TestLocaleFormats::formatsTheTimeInTheUsersHours()
{
    QFETCH(QString, twelve);
    QFETCH(QString, twentyFour);
    Locale locale(QString::fromLatin1(QTest::currentDataTag()));
    const auto time = [&locale] {
        return locale.formatDateTime(afternoon, Locale::DateNone, Locale::TimeShort).replace(QChar(0x202F), u' ');
    };
    locale.setTimeFormat24h(Locale::TwelveHour);
    QCOMPARE(time(), twelve);
    locale.setTimeFormat24h(Locale::TwentyFourHour);
    QCOMPARE(time(), twentyFour);
}

void TestLocaleFormats::convertsTheTimeBesideADate()
{
    Locale german(u"de_DE"_qs);
    const auto text = [&german] {
        return german.formatDateTime(afternoon, Locale::DateMedium, Locale::TimeShort).replace(QChar(0x202F), u' ');
    };
    QCOMPARE(text(), u"09.03.2026, 13:05"_qs);
    german.setTimeFormat24h(Locale::TwelveHour);
    QCOMPARE(text(), u"09.03.2026, 1:05 PM"_qs);
    QCOMPARE(german.formatDateTime(afternoon, Locale::DateLong, Locale::TimeNone), u"9. März 2026"_qs);
    QCOMPARE(german.formatDateTime(afternoon, Locale::DateNone, Locale::TimeNone), QString());
}

void TestLocaleFormats::startsTimesOfIranWithARightToLeftMark()
{
    // Without a country the language decides.
    const Locale persian(u"fa"_qs);
    QCOMPARE(persian.icuFormatString(Locale::DateNone, Locale::TimeShort), u"\u200FH:mm"_qs);
    QVERIFY(!persian.icuFormatString(Locale::DateShort, Locale::TimeShort).startsWith(QChar(0x200F)));
    QVERIFY(!persian.icuFormatString(Locale::DateShort, Locale::TimeNone).startsWith(QChar(0x200F)));
    QCOMPARE(Locale(u"fa_AF"_qs).icuFormatString(Locale::DateNone, Locale::TimeShort), u"H:mm"_qs);
}

void TestLocaleFormats::formatsFieldsWhateverTheZone_data()
{
    QTest::addColumn<QDateTime>("dateTime");
    const QDate date(2026, 3, 9);
    const QTime time(8, 5);
    QTest::newRow("local") << QDateTime(date, time);
    QTest::newRow("utc") << QDateTime(date, time, Qt::UTC);
    QTest::newRow("offset") << QDateTime(date, time, Qt::OffsetFromUTC, 5 * 3600 + 45 * 60);
    QTest::newRow("zone") << QDateTime(date, time, QTimeZone("Pacific/Apia"));
    QTest::newRow("the day the clocks change") << QDateTime(QDate(2026, 3, 8), time, QTimeZone("America/New_York"));
}

void TestLocaleFormats::formatsFieldsWhateverTheZone()
{
    QFETCH(QDateTime, dateTime);
    QCOMPARE(Locale(u"de_DE"_qs).formatDateTimeICU(dateTime, u"HH:mm"_qs), u"08:05"_qs);
}

void TestLocaleFormats::namesTheZoneOfTheDateTime()
{
    const Locale english(u"en_GB"_qs);
    const QDateTime offset(QDate(2026, 3, 9), QTime(8, 5), Qt::OffsetFromUTC, 5 * 3600 + 45 * 60);
    QCOMPARE(english.formatDateTimeICU(offset, u"HH:mm xxx"_qs), u"08:05 +05:45"_qs);
    const QDateTime berlin(QDate(2026, 7, 9), QTime(8, 5), QTimeZone("Europe/Berlin"));
    QCOMPARE(english.formatDateTimeICU(berlin, u"HH:mm xxx"_qs), u"08:05 +02:00"_qs);
    QCOMPARE(english.formatDateTimeICU(berlin, u"HH 'x' mm"_qs), u"08 x 05"_qs);
}

void TestLocaleFormats::formatsNothingForAnInvalidDateTime()
{
    const Locale english(u"en_GB"_qs);
    QCOMPARE(english.formatDateTime(QDateTime()), QString());
    QCOMPARE(english.formatDateTimeICU(QDateTime(), u"HH:mm"_qs), QString());
}

void TestLocaleFormats::countsByTheCalendarAskedFor()
{
    const Locale thai(u"th_TH"_qs);
    QVERIFY(thai.formatDateTime(afternoon, Locale::DateLong, Locale::TimeNone).contains(u"2569"));
    const QString gregorian
        = thai.formatDateTime(afternoon, Locale::DateLong, Locale::TimeNone, Locale::GregorianCalendar);
    QVERIFY2(gregorian.contains(u"2026"), qPrintable(gregorian));
}

void TestLocaleFormats::arrangesFieldsAsTheLocaleDoes_data()
{
    QTest::addColumn<QString>("date");
    QTest::newRow("en_US") << "Monday, March 9";
    QTest::newRow("en_GB") << "Monday, 9 March";
    QTest::newRow("de_DE") << u"Montag, 9. März"_qs;
    QTest::newRow("ja_JP") << u"3月9日月曜日"_qs;
    QTest::newRow("fa_IR") << u"دوشنبه ۱۸ اسفند"_qs;
}

void TestLocaleFormats::arrangesFieldsAsTheLocaleDoes()
{
    QFETCH(QString, date);
    const Locale locale(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(locale.formatDateTimeICU(afternoon, locale.icuFormatString(u"MMMMEEEEd"_qs)), date);
}

void TestLocaleFormats::replacesDirectives_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    QTest::newRow("marker") << "en_US"
                            << "%p"
                            << "PM";
    QTest::newRow("british marker") << "en_GB"
                                    << "%p"
                                    << "pm";
    QTest::newRow("arabic marker") << "ar_EG"
                                   << "%p" << u"م"_qs;
    QTest::newRow("persian marker") << "fa_IR"
                                    << "%p" << u"بعدازظهر"_qs;
    QTest::newRow("hours") << "en_US"
                           << "%H and %I"
                           << "13 and 01";
    QTest::newRow("minutes and seconds") << "en_US"
                                         << "%M.%S"
                                         << "05.09";
    QTest::newRow("date") << "en_US"
                          << "%d.%m.%Y"
                          << "09.03.2026";
    QTest::newRow("short date") << "en_US"
                                << "%e/%y, day %j"
                                << "9/26, day 068";
    QTest::newRow("names") << "de_DE"
                           << "%A %B" << u"Montag März"_qs;
    QTest::newRow("abbreviated names") << "en_US"
                                       << "%a %b"
                                       << "Mon Mar";
    QTest::newRow("whole times") << "en_US"
                                 << "%R %T"
                                 << "13:05 13:05:09";
    QTest::newRow("own digits") << "ar_EG"
                                << "%H:%M" << u"١٣:٠٥"_qs;
    QTest::newRow("own calendar") << "fa_IR"
                                  << "%d %B %Y" << u"۱۸ اسفند ۱۴۰۴"_qs;
    QTest::newRow("per cent") << "en_US"
                              << "100%% %"
                              << "100% %";
    QTest::newRow("unknown") << "en_US"
                             << "%Q'a'"
                             << "%Q'a'";
}

void TestLocaleFormats::replacesDirectives()
{
    QFETCH(QString, locale);
    QFETCH(QString, format);
    QFETCH(QString, text);
    QCOMPARE(Locale(locale).formatDateTime(afternoon, format), text);
}

QTEST_GUILESS_MAIN(TestLocaleFormats)
#include "tst_localeformats.moc"
