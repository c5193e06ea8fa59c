// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "data/clockdata.h"
#include "tests/languages/catalogue.h"
#include "tests/languages/languages.h"

#include <memory>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTranslator>
#include <unicode/locid.h>
#include <unicode/plurrule.h>

namespace {

// Where Qt picks from fewer forms than ICU knows: a noun stays as it is after a number, and Hebrew counts two minutes,
// days and alarms like more of them.
const QHash<QString, int> fewerForms{{"fa", 1}, {"he", 2}, {"hu", 1}, {"tr", 1}};

constexpr int HighestCount = 200;

/** What ICU calls the counts that are told alike in the language, "one" or "few"; from 0 on. */
QStringList kindsOfCounts(const QString &language)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::PluralRules> rules(
        icu::PluralRules::forLocale(icu::Locale(language.toLatin1().constData()), error));
    QStringList kinds;
    for (int count = 0; U_SUCCESS(error) && count <= HighestCount; ++count) {
        const icu::UnicodeString kind = rules->select(count);
        kinds << QString::fromUtf16(kind.getBuffer(), kind.length());
    }
    return kinds;
}

QString told(const CatalogueText &text, int count)
{
    const QString shown = qtTrId(text.id.toUtf8(), count);
    return shown.contains(u'%') ? shown.arg(count) : shown;
}

QString withoutNumbers(QString text)
{
    text.remove(QRegularExpression("%L?[n1]"));
    text.removeIf([](QChar character) { return character.isDigit(); });
    return text;
}

} // namespace

/** What is said of a number, in all languages: the forms that translators wrote, and the one that Qt picks for a count. */
class TestPlurals : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theFormsAreComplete_data() { addRows(); }
    void theFormsAreComplete();
    void eachCountHasATextOfItsOwn_data() { addRows(); }
    void eachCountHasATextOfItsOwn();
    void countsOfAKindAreToldAlike_data() { addRows(); }
    void countsOfAKindAreToldAlike();

private:
    static void addRows();

    QTranslator m_translator;
    QList<CatalogueText> m_texts;
    QStringList m_kinds;
};

void TestPlurals::initTestCase()
{
    initClockData();
}

void TestPlurals::addRows()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("language");
    for (const QString &name : catalogueNames()) {
        const QList<CatalogueText> texts = Catalogue::read(name, "en").texts;
        if (std::none_of(texts.begin(), texts.end(), [](const CatalogueText &text) { return text.isPlural; }))
            continue;
        for (const QString &language : builtLanguages())
            QTest::addRow("%s in %s", qPrintable(name), qPrintable(language)) << name << language;
    }
}

void TestPlurals::init()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, language);
    m_texts = Catalogue::read(catalogue, language).texts;
    m_texts.removeIf([](const CatalogueText &text) { return !text.isPlural; });
    QVERIFY(!m_texts.isEmpty());
    m_kinds = kindsOfCounts(language);
    QVERIFY(!m_kinds.isEmpty());
    QVERIFY(m_translator.load(QStringLiteral(":/translations/%1_%2.qm").arg(catalogue, language)));
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
}

void TestPlurals::cleanup()
{
    QCoreApplication::removeTranslator(&m_translator);
}

void TestPlurals::theFormsAreComplete()
{
    QFETCH(QString, language);
    const int known = int(QSet<QString>(m_kinds.begin(), m_kinds.end()).size());
    const int needed = fewerForms.value(language, known);
    QVERIFY(needed < known || !fewerForms.contains(language));
    for (const CatalogueText &text : m_texts)
        QVERIFY2(text.forms.size() == needed, qPrintable(text.id));
}

void TestPlurals::eachCountHasATextOfItsOwn()
{
    for (const CatalogueText &text : m_texts) {
        QSet<QString> all;
        for (int count = 1; count <= HighestCount; ++count) {
            const QString one = told(text, count);
            QVERIFY2(!all.contains(one) && !one.contains(u'%') && one != text.id, qPrintable(one));
            all << one;
        }
    }
}

// The rules that Qt has for the language are those that ICU has, and no form is written in vain.
void TestPlurals::countsOfAKindAreToldAlike()
{
    // Nothing is said of none, but Arabic has a form for it.
    const int first = m_kinds.first() == u"zero" ? 0 : 1;
    for (const CatalogueText &text : m_texts) {
        QHash<QString, QString> words;
        for (int count = first; count <= HighestCount; ++count) {
            const QString now = withoutNumbers(told(text, count));
            QVERIFY2(words.value(m_kinds[count], now) == now, qPrintable(told(text, count)));
            words[m_kinds[count]] = now;
        }
        for (const QString &form : text.forms)
            QVERIFY2(words.values().contains(withoutNumbers(form)), qPrintable(form));
    }
}

QTEST_GUILESS_MAIN(TestPlurals)
#include "tst_plurals.moc"
