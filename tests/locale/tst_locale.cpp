// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"

#include <QSignalSpy>
#include <QTest>

using Touch::Locale;

class TestLocale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsScriptsAndDirection_data();
    void knowsScriptsAndDirection();
    void findsTheDirectionOfAText_data();
    void findsTheDirectionOfAText();
    void takesNamesApart_data();
    void takesNamesApart();
    void writesCapitalsByTheRulesOfTheLanguage();
    void namesHourAndMinute();
    void tellsWhenTheTimeFormatIsSet();
    void copiesAreIndependent();
    void tellsWhenTheDefaultIsReplaced();
    void hasTheValuesThatCallersCountOn();
};

void TestLocale::knowsScriptsAndDirection_data()
{
    QTest::addColumn<QString>("scripts");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("en_US") << "Latn" << Qt::LeftToRight;
    QTest::newRow("ar_EG") << "Arab" << Qt::RightToLeft;
    QTest::newRow("fa_IR") << "Arab" << Qt::RightToLeft;
    QTest::newRow("he_IL") << "Hebr" << Qt::RightToLeft;
    QTest::newRow("hi_IN") << "Deva" << Qt::LeftToRight;
    QTest::newRow("zh_CN") << "Hani" << Qt::LeftToRight;
    QTest::newRow("zh_TW") << "Hani Bopo" << Qt::LeftToRight;
    QTest::newRow("ja_JP") << "Kana Hira Hani" << Qt::LeftToRight;
    QTest::newRow("ko_KR") << "Hang Hani" << Qt::LeftToRight;
    QTest::newRow("th_TH") << "Thai" << Qt::LeftToRight;
    QTest::newRow("ru_RU") << "Cyrl" << Qt::LeftToRight;
    QTest::newRow("sr_Latn_RS") << "Latn" << Qt::LeftToRight;
}

void TestLocale::knowsScriptsAndDirection()
{
    QFETCH(QString, scripts);
    QFETCH(Qt::LayoutDirection, direction);
    const Locale locale(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(locale.localeScripts().join(u' '), scripts);
    QCOMPARE(locale.textDirection(), direction);
}

void TestLocale::findsTheDirectionOfAText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("nothing") << "" << Qt::LeftToRight;
    QTest::newRow("digits") << "12:30" << Qt::LeftToRight;
    QTest::newRow("latin") << "PM" << Qt::LeftToRight;
    QTest::newRow("arabic") << u"م"_qs << Qt::RightToLeft;
    QTest::newRow("hebrew after digits") << u"12 אחה״צ"_qs << Qt::RightToLeft;
    QTest::newRow("latin before arabic") << u"a م"_qs << Qt::LeftToRight;
}

void TestLocale::findsTheDirectionOfAText()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    QCOMPARE(Locale::directionForText(text), direction);
}

void TestLocale::takesNamesApart_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("country");
    QTest::newRow("de_DE") << "de"
                           << "Latn"
                           << "DE";
    QTest::newRow("de-AT") << "de"
                           << "Latn"
                           << "AT";
    QTest::newRow("fa") << "fa"
                        << "Arab"
                        << "IR";
    QTest::newRow("zh_TW") << "zh"
                           << "Hant"
                           << "TW";
    QTest::newRow("sr_Latn_RS") << "sr"
                                << "Latn"
                                << "RS";
}

void TestLocale::takesNamesApart()
{
    QFETCH(QString, language);
    QFETCH(QString, script);
    QFETCH(QString, country);
    const Locale locale(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(locale.language(), language);
    QCOMPARE(locale.script(), script);
    QCOMPARE(locale.country(), country);
    QCOMPARE(locale.categoryCountry(Locale::TimeCategory), country);
    QCOMPARE(int(Locale::TimeCategory), 1);
    QCOMPARE(int(Locale::TimeMedium), 2);
}

void TestLocale::writesCapitalsByTheRulesOfTheLanguage()
{
    QCOMPARE(Locale(u"en_US"_qs).toUpper(u"i"_qs), u"I"_qs);
    QCOMPARE(Locale(u"tr_TR"_qs).toUpper(u"i"_qs), u"İ"_qs);
    QCOMPARE(Locale(u"de_DE"_qs).toUpper(u"ß"_qs), u"SS"_qs);
    QCOMPARE(Locale(u"de_DE"_qs).toUpper(QString()), QString());
}

void TestLocale::namesHourAndMinute()
{
    QCOMPARE(Locale(u"en_US"_qs).timeFieldName(Locale::HourField), u"hour"_qs);
    QCOMPARE(Locale(u"en_US"_qs).timeFieldName(Locale::MinuteField), u"minute"_qs);
    QCOMPARE(Locale(u"de_DE"_qs).timeFieldName(Locale::HourField), u"Stunde"_qs);
    QCOMPARE(Locale(u"ar_EG"_qs).timeFieldName(Locale::MinuteField), u"الدقائق"_qs);
}

void TestLocale::tellsWhenTheTimeFormatIsSet()
{
    Locale locale(u"de_DE"_qs);
    QSignalSpy spy(&locale, &Locale::settingsChanged);
    locale.setTimeFormat24h(Locale::TwelveHour);
    QCOMPARE(spy.count(), 1);
    locale.setTimeFormat24h(Locale::TwelveHour);
    QCOMPARE(spy.count(), 1);
}

void TestLocale::copiesAreIndependent()
{
    Locale locale(u"de_DE"_qs);
    const Locale copy(locale);
    locale.setTimeFormat24h(Locale::TwelveHour);
    QCOMPARE(copy.timeFormat24h(), Locale::LocaleDefault);
    locale = Locale(u"fi_FI"_qs);
    QCOMPARE(copy.language(), u"de"_qs);
    QCOMPARE(locale.language(), u"fi"_qs);
}

void TestLocale::tellsWhenTheDefaultIsReplaced()
{
    QSignalSpy spy(&Locale::getDefault(), &Locale::settingsChanged);
    Locale::setDefault(Locale(u"fi_FI"_qs));
    QCOMPARE(Locale::getDefault().language(), u"fi"_qs);
    QCOMPARE(spy.count(), 1);
    Locale::setDefault(Locale(u"fi_FI"_qs));
    QCOMPARE(spy.count(), 1);
    Locale::setDefault(Locale::getDefault());
    QCOMPARE(spy.count(), 1);
}

void TestLocale::hasTheValuesThatCallersCountOn()
{
    QCOMPARE(int(Locale::TimeCategory), 1);
    QCOMPARE(int(Locale::TimeMedium), 2);
}

QTEST_GUILESS_MAIN(TestLocale)
#include "tst_locale.moc"
