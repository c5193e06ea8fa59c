// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/repeatsummary.h"
#include "platform/locale/calendar.h"
#include "platform/locale/locale.h"

#include <QTest>

#include <unicode/dtfmtsym.h>

using Touch::Calendar;
using Touch::Locale;

namespace {

/** How one locale writes a list of days, and which day its week starts with: 1 = Monday … 7 = Sunday. */
struct Writing
{
    const char *locale;
    int firstDay;
    QString separator;
};

const Writing Writings[] = {
    {"en_GB", 1, ", "}, {"en_US", 7, ", "}, {"de_DE", 1, ", "},      {"fr_FR", 1, ", "},
    {"ru_RU", 1, ", "}, {"tr_TR", 1, ", "}, {"he_IL", 7, ", "},      {"zh_CN", 1, " "},
    {"ja_JP", 7, " "},  {"ko_KR", 7, " "},  {"ar_EG", 6, "\u060c "}, {"fa_IR", 6, "\u060c "},
};

QStringList names(const char *locale, icu::DateFormatSymbols::DtWidthType width)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(icu::Locale(locale), status);
    int32_t count = 0;
    const icu::UnicodeString *days = symbols.getWeekdays(count, icu::DateFormatSymbols::STANDALONE, width);
    QStringList result;
    // They start with an empty one.
    for (int day = 1; day < count; ++day) {
        icu::UnicodeString name = days[day];
        icu::UnicodeString first(name, 0, 1);
        name.replace(0, 1, first.toUpper(icu::Locale(locale)));
        result.append(QString::fromUtf16(name.getBuffer(), name.length()));
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Writing)

class TestRepeatSummaries : public QObject
{
    Q_OBJECT

private slots:
    void ofAllSetsOfDays_data();
    void ofAllSetsOfDays();
};

void TestRepeatSummaries::ofAllSetsOfDays_data()
{
    QTest::addColumn<Writing>("writing");
    for (const Writing &writing : Writings)
        QTest::newRow(writing.locale) << writing;
}

void TestRepeatSummaries::ofAllSetsOfDays()
{
    QFETCH(Writing, writing);
    const Locale locale(writing.locale);
    const Calendar calendar(locale);
    const QStringList whole = names(writing.locale, icu::DateFormatSymbols::WIDE);
    const QStringList brief = names(writing.locale, icu::DateFormatSymbols::ABBREVIATED);
    for (int set = 0; set < 128; ++set) {
        QList<int> days;
        QStringList listed;
        for (int day = 0; day < 7; ++day) {
            if (set & (1 << day)) {
                days.append(day);
                listed.append(brief.at(day));
            }
        }
        QString expected = listed.join(writing.separator);
        if (days.size() == 7)
            expected = "qtn_cloc_repeatalarm_ruleeveryday";
        // The number of the day counts from the first day of the week here.
        if (days.size() == 1)
            expected = whole.at((days.first() + writing.firstDay) % 7);
        QCOMPARE(repeatSummary(locale, calendar, true, days), expected);
    }
}

QTEST_GUILESS_MAIN(TestRepeatSummaries)
#include "tst_repeatsummaries.moc"
