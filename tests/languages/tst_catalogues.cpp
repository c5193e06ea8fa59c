// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "data/clockdata.h"
#include "platform/locale/locale.h"
#include "tests/languages/catalogue.h"
#include "tests/languages/languages.h"
#include "tests/support/places.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <unicode/locid.h>

namespace {

// These may be the same in any language, ...
const QStringList sameAnywhere{"qtn_comm_ok", "qtn_comm_time_am", "qtn_timed_day_and_time", "qtn_timed_missed_line"};
// ... and these are the same word by chance.
const QHash<QString, QStringList> sameAsEnglish{
    {"qtn_cloc_alarm_title", {"id", "pl", "sv", "tr"}},
    {"qtn_cloc_alarmeditor_snooze", {"fr"}},
    {"qtn_comm_navigation", {"de", "fr"}},
    {"qtn_ring_untitled", {"id", "pl", "sv", "tr"}},
    {"qtn_sond_folder", {"id", "pl"}},
    {"qtn_sond_place_downloads", {"de", "nl", "pt_BR"}},
    {"qtn_timed_untitled", {"id", "pl", "sv", "tr"}},
};

QStringList placeholders(const QString &text)
{
    static const QRegularExpression expression("%L?(n|\\d)");
    QStringList found;
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    found.sort();
    return found;
}

/** The names of texts in the sources of application and platform, and in what the desktop is told. */
QSet<QString> usedTexts()
{
    static const QRegularExpression expression("[\"{](qtn_(?!country_)[a-z_0-9]+)[\"}]");
    QSet<QString> used;
    for (const char *folder :
         {"alarms", "alarmlist", "editor", "mainview", "app", "backup", "data/desktop", "platform"}) {
        QDirIterator files(Places::source(folder), {"*.cpp", "*.h", "*.in"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                return {};
            const QString text = QString::fromUtf8(file.readAll());
            for (auto match = expression.globalMatch(text); match.hasNext();)
                used << match.next().captured(1);
        }
    }
    return used;
}

} // namespace

/** The texts of all catalogues, in all languages. */
class TestCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theFilesAreThoseThatAreBuilt_data();
    void theFilesAreThoseThatAreBuilt();
    void theSourcesUseAllTextsAndNoOthers();
    void allTextsAreThere_data() { addRows(); }
    void allTextsAreThere();
    void noTextIsUnfinished_data() { addRows(); }
    void noTextIsUnfinished();
    void thePlaceholdersAreKept_data() { addRows(); }
    void thePlaceholdersAreKept();
    void noTextIsLeftInEnglish_data() { addRows(); }
    void noTextIsLeftInEnglish();
    void theMorningIsCalledAsInTimes_data();
    void theMorningIsCalledAsInTimes();
    void allCountriesAreNamed_data() { theMorningIsCalledAsInTimes_data(); }
    void allCountriesAreNamed();

private:
    static void addRows();
    static Catalogue translated();
};

void TestCatalogues::initTestCase()
{
    initClockData();
}

void TestCatalogues::addRows()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("language");
    for (const QString &name : catalogueNames()) {
        for (const QString &language : builtLanguages())
            QTest::addRow("%s in %s", qPrintable(name), qPrintable(language)) << name << language;
    }
}

/** The catalogue of the row. */
Catalogue TestCatalogues::translated()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, language);
    return Catalogue::read(catalogue, language);
}

void TestCatalogues::theFilesAreThoseThatAreBuilt_data()
{
    QTest::addColumn<QString>("catalogue");
    for (const QString &name : catalogueNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestCatalogues::theFilesAreThoseThatAreBuilt()
{
    QFETCH(QString, catalogue);
    QStringList expected;
    for (const QString &language : builtLanguages())
        expected << QStringLiteral("%1_%2.ts").arg(catalogue, language);
    expected.sort();
    QCOMPARE(QDir(catalogueFolder(catalogue)).entryList({"*.ts"}, QDir::Files, QDir::Name), expected);
}

void TestCatalogues::theSourcesUseAllTextsAndNoOthers()
{
    QSet<QString> known;
    for (const QString &name : catalogueNames()) {
        const Catalogue catalogue = Catalogue::read(name, "en");
        for (const CatalogueText &text : catalogue.texts)
            known << text.id;
    }
    const QSet<QString> used = usedTexts();
    QCOMPARE((used - known).values().join(' '), QString());
    QCOMPARE((known - used).values().join(' '), QString());
}

void TestCatalogues::allTextsAreThere()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, language);
    const Catalogue expected = Catalogue::read(catalogue, "en");
    const Catalogue found = translated();
    QVERIFY2(found.error.isEmpty(), qPrintable(found.error));
    QCOMPARE(found.language, language);
    QCOMPARE(found.texts.size(), expected.texts.size());
    QVERIFY(!found.texts.isEmpty());
    for (qsizetype i = 0; i < found.texts.size(); ++i) {
        QCOMPARE(found.texts[i].id, expected.texts[i].id);
        QCOMPARE(found.texts[i].source, expected.texts[i].source);
        QCOMPARE(found.texts[i].isPlural, expected.texts[i].isPlural);
    }
}

void TestCatalogues::noTextIsUnfinished()
{
    const Catalogue found = translated();
    for (const CatalogueText &text : found.texts) {
        QVERIFY2(!text.isMarked, qPrintable(text.id));
        for (const QString &form : text.forms) {
            QVERIFY2(!form.isEmpty(), qPrintable(text.id));
            QCOMPARE(form.simplified(), QString(form).replace(QChar::Nbsp, u' '));
        }
    }
}

void TestCatalogues::thePlaceholdersAreKept()
{
    const Catalogue found = translated();
    for (const CatalogueText &text : found.texts) {
        const QStringList expected = placeholders(text.source);
        for (const QString &form : text.forms) {
            QStringList kept = placeholders(form);
            // A form for one count alone may have it in words: "two alarms".
            if (expected.contains("n") && !kept.contains("n"))
                kept.prepend("n");
            QVERIFY2(kept == expected, qPrintable(text.id + ": " + form));
        }
    }
}

void TestCatalogues::noTextIsLeftInEnglish()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, language);
    if (language == u"en")
        return;
    const Catalogue original = Catalogue::read(catalogue, "en");
    const Catalogue found = translated();
    QStringList left;
    for (qsizetype i = 0; i < found.texts.size(); ++i) {
        const CatalogueText &text = found.texts[i];
        const bool maySay = sameAnywhere.contains(text.id) || sameAsEnglish[text.id].contains(language);
        if (text.forms.first() == original.texts[i].forms.first() && !maySay)
            left << text.id;
    }
    QCOMPARE(left.join(' '), QString());
}

void TestCatalogues::theMorningIsCalledAsInTimes_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : builtLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestCatalogues::theMorningIsCalledAsInTimes()
{
    QFETCH(QString, language);
    Touch::Locale locale(language);
    QVERIFY(locale.installTrCatalog("clock"));
    Touch::Locale::setDefault(locale);
    const QDateTime morning(QDate(2026, 1, 1), QTime(8, 0), Qt::UTC);
    QCOMPARE(qtTrId("qtn_comm_time_am"), locale.formatDateTime(morning, "%p"));
}

void TestCatalogues::allCountriesAreNamed()
{
    QFETCH(QString, language);
    Touch::Locale locale(language);
    QVERIFY(locale.installTrCatalog("countries"));
    Touch::Locale::setDefault(locale);
    QSet<QString> names;
    for (const char *const *code = icu::Locale::getISOCountries(); *code; ++code) {
        const QByteArray id = "qtn_country_" + QByteArray(*code).toLower();
        const QString name = qtTrId(id);
        QVERIFY2(name != QLatin1String(id) && name != QLatin1String(*code) && !names.contains(name), *code);
        names << name;
    }
    QCOMPARE(qtTrId("qtn_country_de") == u"Germany", language == u"en");
}

QTEST_GUILESS_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
