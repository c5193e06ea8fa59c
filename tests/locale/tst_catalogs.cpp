// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

using Touch::Locale;

namespace {

class LanguageChanges : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::LanguageChange;
        return false;
    }

    int count = 0;
};

Locale withPlanets(const char *name)
{
    Locale locale(QString::fromLatin1(name));
    locale.installTrCatalog(u"planets"_qs);
    return locale;
}

} // namespace

class TestCatalogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotShownBeforeItsLocaleIsTheDefault();
    void fallsBackFromRegionToLanguageToEnglish();
    void fallsBackToWhereMostLiveWhoWriteItSo_data();
    void fallsBackToWhereMostLiveWhoWriteItSo();
    void showsThePluralForms();
    void showsTheDigitsOfTheLocale();
    void knowsAllCountriesWithoutAFile();
    void knowsNoOtherCountries();
    void stayWhenAnotherLocaleBecomesTheDefault();
    void installingTwiceChangesNothing();
    void looksInTheDataFoldersToo();
    void tellsThatThereIsNone();
};

void TestCatalogs::isNotShownBeforeItsLocaleIsTheDefault()
{
    Locale locale(u"de_DE"_qs);
    QVERIFY(locale.installTrCatalog(u"planets"_qs));
    QCOMPARE(qtTrId("planet_earth"), u"planet_earth"_qs);
    Locale::setDefault(locale);
    QCOMPARE(qtTrId("planet_earth"), u"Erde"_qs);
}

void TestCatalogs::fallsBackFromRegionToLanguageToEnglish()
{
    Locale::setDefault(withPlanets("de_AT"));
    QCOMPARE(qtTrId("planet_earth"), u"Heimat"_qs);
    QCOMPARE(qtTrId("planet_mars"), u"Mars auf Deutsch"_qs);
    QCOMPARE(qtTrId("planet_venus"), u"Venus in English"_qs);
    Locale::setDefault(withPlanets("de_DE"));
    QCOMPARE(qtTrId("planet_earth"), u"Erde"_qs);
    Locale::setDefault(withPlanets("fi_FI"));
    QCOMPARE(qtTrId("planet_earth"), u"Earth"_qs);
}

void TestCatalogs::fallsBackToWhereMostLiveWhoWriteItSo_data()
{
    QTest::addColumn<QString>("earth");
    QTest::newRow("pt") << u"Terra"_qs;
    QTest::newRow("pt_BR") << u"Terra"_qs;
    QTest::newRow("pt_PT") << u"Terra"_qs;
    for (const char *simplified : {"zh", "zh_CN", "zh_SG", "zh_Hans", "zh_Hans_HK"})
        QTest::newRow(simplified) << u"地球，简体"_qs;
    for (const char *traditional : {"zh_TW", "zh_HK", "zh_MO", "zh_Hant", "zh_Hant_US"})
        QTest::newRow(traditional) << u"地球，繁體"_qs;
}

void TestCatalogs::fallsBackToWhereMostLiveWhoWriteItSo()
{
    QFETCH(QString, earth);
    Locale::setDefault(withPlanets(QTest::currentDataTag()));
    QCOMPARE(qtTrId("planet_earth"), earth);
    QCOMPARE(qtTrId("planet_venus"), u"Venus in English"_qs);
}

void TestCatalogs::showsThePluralForms()
{
    Locale::setDefault(withPlanets("en_GB"));
    QCOMPARE(qtTrId("planet_count", 1), u"1 planet"_qs);
    QCOMPARE(qtTrId("planet_count", 8), u"8 planets"_qs);
    Locale::setDefault(withPlanets("ru_RU"));
    QCOMPARE(qtTrId("planet_count", 1), u"1 планета"_qs);
    QCOMPARE(qtTrId("planet_count", 2), u"2 планеты"_qs);
    QCOMPARE(qtTrId("planet_count", 8), u"8 планет"_qs);
    QCOMPARE(qtTrId("planet_count", 21), u"21 планета"_qs);
}

void TestCatalogs::showsTheDigitsOfTheLocale()
{
    Locale::setDefault(withPlanets("fa_IR"));
    QCOMPARE(qtTrId("planet_count", 8), u"۸ سیاره"_qs);
    QCOMPARE(qtTrId("planet_place").arg(3), u"سیارهٔ ۳"_qs);
    Locale::setDefault(withPlanets("en_GB"));
    QCOMPARE(qtTrId("planet_count", 8), u"8 planets"_qs);
}

void TestCatalogs::knowsAllCountriesWithoutAFile()
{
    Locale german(u"de_DE"_qs);
    QVERIFY(german.installTrCatalog(u"countries"_qs));
    Locale::setDefault(german);
    QCOMPARE(qtTrId("qtn_country_se"), u"Schweden"_qs);
    Locale::setDefault(Locale(u"ja_JP"_qs));
    QCOMPARE(qtTrId("qtn_country_se"), u"スウェーデン"_qs);
    Locale::setDefault(Locale(u"en_GB"_qs));
    QCOMPARE(qtTrId("qtn_country_de"), u"Germany"_qs);
}

void TestCatalogs::knowsNoOtherCountries()
{
    Locale english(u"en_GB"_qs);
    english.installTrCatalog(u"countries"_qs);
    Locale::setDefault(english);
    QCOMPARE(qtTrId("qtn_country_zz"), u"qtn_country_zz"_qs);
    QCOMPARE(qtTrId("qtn_country_"), u"qtn_country_"_qs);
    QCOMPARE(qtTrId("planet_of_nobody"), u"planet_of_nobody"_qs);
}

void TestCatalogs::stayWhenAnotherLocaleBecomesTheDefault()
{
    Locale::setDefault(withPlanets("en_GB"));
    Locale::setDefault(Locale(u"de_DE"_qs));
    QCOMPARE(qtTrId("planet_earth"), u"Erde"_qs);
}

void TestCatalogs::installingTwiceChangesNothing()
{
    Locale::setDefault(withPlanets("de_DE"));
    LanguageChanges changes;
    QCoreApplication::instance()->installEventFilter(&changes);
    QVERIFY(Locale::getDefault().installTrCatalog(u"planets"_qs));
    Locale::setDefault(withPlanets("de_DE"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(changes.count, 0);
    QCOMPARE(qtTrId("planet_earth"), u"Erde"_qs);
}

void TestCatalogs::looksInTheDataFoldersToo()
{
    const QString folder
        = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/clock/translations";
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(u":/translations/planets_de.qm"_qs, folder + "/stars_fi.qm"));
    Locale::setDefault(Locale(u"fi_FI"_qs));
    QVERIFY(Locale::getDefault().installTrCatalog(u"stars"_qs));
    QCOMPARE(qtTrId("planet_earth"), u"Erde"_qs);
}

void TestCatalogs::tellsThatThereIsNone()
{
    QVERIFY(!Locale::getDefault().installTrCatalog(u"comets"_qs));
}

QTEST_GUILESS_MAIN(TestCatalogs)
#include "tst_catalogs.moc"
