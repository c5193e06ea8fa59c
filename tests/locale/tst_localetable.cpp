// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"

#include <QTest>

using Touch::Locale;

namespace {

const QDateTime morning(QDate(2026, 3, 9), QTime(8, 5));
const QDateTime afternoon(QDate(2026, 3, 9), QTime(13, 5));

} // namespace

/// The sixteen locales that every operation is held to. Each row bears the name of its locale.
class TestLocaleTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTimesAndDates_data();
    void writesTimesAndDates();
    void writesNumbersAndLetters_data();
    void writesNumbersAndLetters();
    void writesMinutes_data();
    void writesMinutes();
};

void TestLocaleTable::writesTimesAndDates_data()
{
    QTest::addColumn<QString>("am");
    QTest::addColumn<QString>("pm");
    QTest::addColumn<Qt::LayoutDirection>("markerDirection");
    QTest::addColumn<QString>("twelve");
    QTest::addColumn<QString>("twentyFour");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("date");
    QTest::newRow("en_US") << "AM"
                           << "PM" << Qt::LeftToRight << u"1:05\u202FPM"_qs << "13:05"
                           << "13:05"
                           << "Monday, March 9, 2026";
    QTest::newRow("en_GB") << "am"
                           << "pm" << Qt::LeftToRight << u"1:05\u202Fpm"_qs << "13:05"
                           << "13:05"
                           << "Monday, 9 March 2026";
    QTest::newRow("de_DE") << "AM"
                           << "PM" << Qt::LeftToRight << u"1:05\u202FPM"_qs << "13:05"
                           << "13:05" << u"Montag, 9. März 2026"_qs;
    QTest::newRow("fi_FI") << "ap."
                           << "ip." << Qt::LeftToRight << u"1.05\u202Fip."_qs << "13.05"
                           << "13:05"
                           << "maanantai 9. maaliskuuta 2026";
    QTest::newRow("ar_EG") << u"ص"_qs << u"م"_qs << Qt::RightToLeft << u"١:٠٥ م"_qs << u"١٣:٠٥"_qs << u"١٣:٠٥"_qs
                           << u"الاثنين، ٩ مارس ٢٠٢٦"_qs;
    QTest::newRow("fa_IR") << u"قبل‌ازظهر"_qs << u"بعدازظهر"_qs << Qt::RightToLeft
                           << u"\u200F۱:۰۵ بعدازظهر"_qs << u"\u200F۱۳:۰۵"_qs << u"۱۳:۰۵"_qs
                           << u"۱۴۰۴ اسفند ۱۸, دوشنبه"_qs;
    QTest::newRow("he_IL") << u"לפנה״צ"_qs << u"אחה״צ"_qs << Qt::RightToLeft << u"1:05 אחה״צ"_qs << "13:05"
                           << "13:05" << u"יום שני, 9 במרץ 2026"_qs;
    QTest::newRow("hi_IN") << "am"
                           << "pm" << Qt::LeftToRight << "1:05 pm"
                           << "13:05"
                           << "13:05" << u"सोमवार, 9 मार्च 2026"_qs;
    QTest::newRow("zh_CN") << u"上午"_qs << u"下午"_qs << Qt::LeftToRight << u"下午1:05"_qs << "13:05"
                           << "13:05" << u"2026年3月9日星期一"_qs;
    QTest::newRow("zh_TW") << u"上午"_qs << u"下午"_qs << Qt::LeftToRight << u"下午1:05"_qs << "13:05"
                           << "13:05" << u"2026年3月9日 星期一"_qs;
    QTest::newRow("ja_JP") << u"午前"_qs << u"午後"_qs << Qt::LeftToRight << u"午後1:05"_qs << "13:05"
                           << "13:05" << u"2026年3月9日月曜日"_qs;
    QTest::newRow("ko_KR") << u"오전"_qs << u"오후"_qs << Qt::LeftToRight << u"오후 1:05"_qs << "13:05"
                           << "13:05" << u"2026년 3월 9일 월요일"_qs;
    QTest::newRow("th_TH") << u"ก่อนเที่ยง"_qs << u"หลังเที่ยง"_qs << Qt::LeftToRight << u"1:05 หลังเที่ยง"_qs << "13:05"
                           << "13:05" << u"วันจันทร์ที่ 9 มีนาคม พ.ศ. 2569"_qs;
    QTest::newRow("tr_TR") << u"ÖÖ"_qs << u"ÖS"_qs << Qt::LeftToRight << u"ÖS\u202F1:05"_qs << "13:05"
                           << "13:05"
                           << "9 Mart 2026 Pazartesi";
    QTest::newRow("pt_BR") << "AM"
                           << "PM" << Qt::LeftToRight << u"1:05\u202FPM"_qs << "13:05"
                           << "13:05" << u"segunda-feira, 9 de março de 2026"_qs;
    QTest::newRow("ru_RU") << "AM"
                           << "PM" << Qt::LeftToRight << u"1:05\u202FPM"_qs << "13:05"
                           << "13:05" << u"понедельник, 9 марта 2026\u202Fг."_qs;
}

void TestLocaleTable::writesTimesAndDates()
{
    Locale locale(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(locale.formatDateTime(morning, u"%p"_qs), "am");
    QTEST(locale.formatDateTime(afternoon, u"%p"_qs), "pm");
    QTEST(Locale::directionForText(locale.formatDateTime(afternoon, u"%p"_qs)), "markerDirection");
    locale.setTimeFormat24h(Locale::TwelveHour);
    QTEST(locale.formatDateTime(afternoon, Locale::DateNone, Locale::TimeShort), "twelve");
    locale.setTimeFormat24h(Locale::TwentyFourHour);
    QTEST(locale.formatDateTime(afternoon, Locale::DateNone, Locale::TimeShort), "twentyFour");
    QTEST(locale.formatDateTimeICU(afternoon, u"HH:mm"_qs), "plain");
    QTEST(locale.formatDateTime(afternoon, Locale::DateFull, Locale::TimeNone), "date");
}

void TestLocaleTable::writesNumbersAndLetters_data()
{
    QTest::addColumn<QString>("zero");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("capital");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("scripts");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const auto row = [](const char *name, const QString &zero, const QString &number, const QString &capital,
                        const QString &script, const QString &scripts, Qt::LayoutDirection direction) {
        QTest::newRow(name) << zero << number << capital << script << scripts << direction;
    };
    row("en_US", "0", "1,234,567", "I", "Latn", "Latn", Qt::LeftToRight);
    row("en_GB", "0", "1,234,567", "I", "Latn", "Latn", Qt::LeftToRight);
    row("de_DE", "0", "1.234.567", "I", "Latn", "Latn", Qt::LeftToRight);
    row("fi_FI", "0", u"1\u00A0234\u00A0567"_qs, "I", "Latn", "Latn", Qt::LeftToRight);
    row("ar_EG", u"٠"_qs, u"١٬٢٣٤٬٥٦٧"_qs, "I", "Arab", "Arab", Qt::RightToLeft);
    row("fa_IR", u"۰"_qs, u"۱٬۲۳۴٬۵۶۷"_qs, "I", "Arab", "Arab", Qt::RightToLeft);
    row("he_IL", "0", "1,234,567", "I", "Hebr", "Hebr", Qt::RightToLeft);
    row("hi_IN", "0", "12,34,567", "I", "Deva", "Deva", Qt::LeftToRight);
    row("zh_CN", "0", "1,234,567", "I", "Hans", "Hani", Qt::LeftToRight);
    row("zh_TW", "0", "1,234,567", "I", "Hant", "Hani Bopo", Qt::LeftToRight);
    row("ja_JP", "0", "1,234,567", "I", "Jpan", "Kana Hira Hani", Qt::LeftToRight);
    row("ko_KR", "0", "1,234,567", "I", "Kore", "Hang Hani", Qt::LeftToRight);
    row("th_TH", "0", "1,234,567", "I", "Thai", "Thai", Qt::LeftToRight);
    row("tr_TR", "0", "1.234.567", u"İ"_qs, "Latn", "Latn", Qt::LeftToRight);
    row("pt_BR", "0", "1.234.567", "I", "Latn", "Latn", Qt::LeftToRight);
    row("ru_RU", "0", u"1\u00A0234\u00A0567"_qs, "I", "Cyrl", "Cyrl", Qt::LeftToRight);
}

void TestLocaleTable::writesNumbersAndLetters()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const Locale locale(name);
    QTEST(locale.formatNumber(0), "zero");
    QTEST(locale.formatNumber(1234567), "number");
    QTEST(locale.toUpper(u"i"_qs), "capital");
    QTEST(locale.script(), "script");
    QTEST(locale.localeScripts().join(u' '), "scripts");
    QTEST(locale.textDirection(), "direction");
    QCOMPARE(locale.categoryCountry(Locale::TimeCategory), name.right(2));
    QCOMPARE(locale.language(), name.left(2));
}

void TestLocaleTable::writesMinutes_data()
{
    QTest::addColumn<QString>("minutes");
    QTest::newRow("en_US") << "5 min";
    QTest::newRow("de_DE") << "5 Min.";
    QTest::newRow("ar_EG") << u"٥ د"_qs;
    QTest::newRow("fa_IR") << u"۵ دقیقه"_qs;
    QTest::newRow("ja_JP") << u"5 分"_qs;
    QTest::newRow("zh_CN") << u"5分钟"_qs;
    QTest::newRow("ru_RU") << u"5 мин"_qs;
}

void TestLocaleTable::writesMinutes()
{
    QTEST(Locale(QString::fromLatin1(QTest::currentDataTag())).formatMinutes(5), "minutes");
}

QTEST_GUILESS_MAIN(TestLocaleTable)
#include "tst_localetable.moc"
