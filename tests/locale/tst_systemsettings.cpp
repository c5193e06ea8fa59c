// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/systemsettings_p.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using Touch::Locale;

namespace {

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Korvo/Locale.conf";
}

void write(const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(settingsFile()).path()));
    QSaveFile file(settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    QVERIFY(file.commit());
}

void setEnvironment(const QByteArrayList &assignments)
{
    for (const char *name : {"LC_ALL", "LC_TIME", "LC_NUMERIC", "LC_MESSAGES", "LANG", "LANGUAGE"})
        qunsetenv(name);
    for (const QByteArray &assignment : assignments) {
        const QByteArrayList parts = assignment.split('=');
        qputenv(parts[0].constData(), parts[1]);
    }
}

} // namespace

class TestSystemSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void readsPosixNames_data();
    void readsPosixNames();
    void takesCategoriesFromEnvironmentAndFile_data();
    void takesCategoriesFromEnvironmentAndFile();
    void tellsEachChangeOfTheFileOnce();
    void aFixedLocaleFollowsTheTimeFormatAlone();
    void aLocaleThatIsNotConnectedFollowsNothing();

private:
    void changeFile(const QByteArray &content);
};

// The settings are read when the process starts and when the file changes: each row changes the file.
void TestSystemSettings::changeFile(const QByteArray &content)
{
    Touch::SystemSettings &system = Touch::SystemSettings::instance();
    QSignalSpy spy(&system, &Touch::SystemSettings::changed);
    write(content);
    QVERIFY(spy.wait());
}

void TestSystemSettings::initTestCase()
{
    setEnvironment({"LANG=en_GB.UTF-8"});
    // Watches from before the folder exists.
    QVERIFY(!QFileInfo::exists(QFileInfo(settingsFile()).path()));
    Locale::getDefault();
    changeFile("language=sv_SE\n");
    QCOMPARE(Locale().language(), u"sv"_qs);
}

void TestSystemSettings::cleanup()
{
    setEnvironment({"LANG=en_GB.UTF-8"});
    if (Locale().categoryName(Locale::TimeCategory) != u"sv_SE")
        changeFile("language=sv_SE\n");
}

void TestSystemSettings::readsPosixNames_data()
{
    QTest::addColumn<QByteArray>("icu");
    QTest::newRow("de_DE.UTF-8") << QByteArray("de_DE");
    QTest::newRow("de_DE@euro") << QByteArray("de_DE");
    QTest::newRow("sr_RS@latin") << QByteArray("sr_Latn_RS");
    QTest::newRow("sr_RS.UTF-8@cyrillic") << QByteArray("sr_Cyrl_RS");
    QTest::newRow("fi") << QByteArray("fi");
    QTest::newRow("pt-BR") << QByteArray("pt_BR");
    QTest::newRow("th_TH@calendar=gregorian") << QByteArray("th_TH@calendar=gregorian");
    QTest::newRow("C") << QByteArray("en_US_POSIX");
    QTest::newRow("C.UTF-8") << QByteArray("en_US_POSIX");
    QTest::newRow("POSIX") << QByteArray("en_US_POSIX");
    QTest::newRow("") << QByteArray("en_US_POSIX");
}

void TestSystemSettings::readsPosixNames()
{
    QFETCH(QByteArray, icu);
    QCOMPARE(Touch::icuLocaleName(QTest::currentDataTag()), icu);
}

void TestSystemSettings::takesCategoriesFromEnvironmentAndFile_data()
{
    QTest::addColumn<QByteArrayList>("environment");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("names"); // messages, time, numbers
    QTest::addColumn<Locale::TimeFormat24h>("format");
    using List = QByteArrayList;
    using Names = QStringList;
    const QByteArray none = "timeFormat=\n";
    QTest::newRow("nothing") << List{} << none << Names{"en_US_POSIX", "en_US_POSIX", "en_US_POSIX"}
                             << Locale::LocaleDefault;
    QTest::newRow("LANG") << List{"LANG=de_AT.UTF-8"} << none << Names{"de_AT", "de_AT", "de_AT"}
                          << Locale::LocaleDefault;
    QTest::newRow("LC_TIME") << List{"LANG=en_US", "LC_TIME=fi_FI"} << none << Names{"en_US", "fi_FI", "en_US"}
                             << Locale::LocaleDefault;
    QTest::newRow("LC_NUMERIC") << List{"LANG=en_US", "LC_NUMERIC=de_DE"} << none << Names{"en_US", "en_US", "de_DE"}
                                << Locale::LocaleDefault;
    QTest::newRow("LC_ALL wins") << List{"LC_ALL=ja_JP", "LC_TIME=fi_FI", "LANG=en_US"} << none
                                 << Names{"ja_JP", "ja_JP", "ja_JP"} << Locale::LocaleDefault;
    QTest::newRow("empty counts as unset")
        << List{"LC_ALL=", "LANG=fi_FI"} << none << Names{"fi_FI", "fi_FI", "fi_FI"} << Locale::LocaleDefault;
    QTest::newRow("LANGUAGE") << List{"LANG=en_US", "LANGUAGE=nb:sv"} << none << Names{"nb", "en_US", "en_US"}
                              << Locale::LocaleDefault;
    QTest::newRow("no LANGUAGE for C") << List{"LANG=C", "LANGUAGE=nb"} << none
                                       << Names{"en_US_POSIX", "en_US_POSIX", "en_US_POSIX"} << Locale::LocaleDefault;
    QTest::newRow("the file's language wins") << List{"LC_ALL=ja_JP"} << QByteArray("language=he_IL\n")
                                              << Names{"he_IL", "he_IL", "he_IL"} << Locale::LocaleDefault;
    QTest::newRow("the file's region wins")
        << List{"LANG=en_US"} << QByteArray("region=de\n") << Names{"en_US", "en_DE", "en_DE"} << Locale::LocaleDefault;
    QTest::newRow("script and region") << List{} << QByteArray("language=sr_Latn_RS\nregion=ME\n")
                                       << Names{"sr_Latn_RS", "sr_Latn_ME", "sr_Latn_ME"} << Locale::LocaleDefault;
    QTest::newRow("12 hours") << List{"LANG=de_DE"} << QByteArray("timeFormat=12\n") << Names{"de_DE", "de_DE", "de_DE"}
                              << Locale::TwelveHour;
    QTest::newRow("24 hours") << List{"LANG=en_US"} << QByteArray("timeFormat=24\n") << Names{"en_US", "en_US", "en_US"}
                              << Locale::TwentyFourHour;
    QTest::newRow("other hours") << List{"LANG=en_US"} << QByteArray("timeFormat=13\n")
                                 << Names{"en_US", "en_US", "en_US"} << Locale::LocaleDefault;
}

void TestSystemSettings::takesCategoriesFromEnvironmentAndFile()
{
    QFETCH(QByteArrayList, environment);
    QFETCH(QByteArray, file);
    QFETCH(QStringList, names);
    QFETCH(Locale::TimeFormat24h, format);
    setEnvironment(environment);
    changeFile(file);
    const Locale locale;
    QCOMPARE(locale.categoryName(Locale::MessageCategory), names[0]);
    QCOMPARE(locale.categoryName(Locale::TimeCategory), names[1]);
    QCOMPARE(locale.categoryName(Locale::NumericCategory), names[2]);
    QCOMPARE(locale.timeFormat24h(), format);
    QCOMPARE(Locale::getDefault().categoryName(Locale::TimeCategory), names[1]);
}

void TestSystemSettings::tellsEachChangeOfTheFileOnce()
{
    Locale locale;
    locale.connectSettings();
    locale.connectSettings();
    QSignalSpy spy(&locale, &Locale::settingsChanged);
    const QDateTime dateTime(QDate(2026, 3, 9), QTime(13, 5));
    const auto time = [&] { return locale.formatDateTime(dateTime, Locale::DateNone, Locale::TimeShort); };
    QCOMPARE(time(), u"13:05"_qs);
    changeFile("language=sv_SE\ntimeFormat=12\n");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(time(), u"1:05\u202Fem"_qs);
    // Written in place, as an editor may do, and removed.
    QFile file(settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("language=sv_SE\ntimeFormat=24\n");
    file.close();
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(time(), u"13:05"_qs);
    QVERIFY(file.remove());
    QTRY_COMPARE(spy.count(), 3);
    QCOMPARE(locale.language(), u"en"_qs);
}

void TestSystemSettings::aFixedLocaleFollowsTheTimeFormatAlone()
{
    Locale locale(u"de_DE"_qs);
    locale.connectSettings();
    QSignalSpy spy(&locale, &Locale::settingsChanged);
    changeFile("language=ja_JP\n");
    QCOMPARE(spy.count(), 0);
    changeFile("language=ja_JP\ntimeFormat=12\n");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(locale.language(), u"de"_qs);
    QCOMPARE(locale.timeFormat24h(), Locale::TwelveHour);
}

void TestSystemSettings::aLocaleThatIsNotConnectedFollowsNothing()
{
    const Locale locale;
    changeFile("language=ja_JP\ntimeFormat=12\n");
    QCOMPARE(locale.language(), u"sv"_qs);
    QCOMPARE(locale.timeFormat24h(), Locale::LocaleDefault);
}

QTEST_GUILESS_MAIN(TestSystemSettings)
#include "tst_systemsettings.moc"
