// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/validator.h"
#include "platform/timedclient/wire.h"

#include <functional>
#include <QTest>

using namespace Astel::Timed;

using Edit = std::function<void(Wire::Event &)>;
Q_DECLARE_METATYPE(Edit)

class TestValidator : public QObject
{
    Q_OBJECT

private slots:
    void eventIsTakenOrRefused_data();
    void eventIsTakenOrRefused();
    void filterIsTakenOrRefused();
    void textsOfAnswersAreLimited();
};

namespace {

Wire::Attributes attributes(int count)
{
    Wire::Attributes result;
    for (int i = 0; i < count; ++i)
        result.insert(QString::number(i), {});
    return result;
}

/** Attributes with so many characters in all, none of them longer than allowed. */
Wire::Attributes longText(int size)
{
    Wire::Attributes result;
    for (char name = 'a'; size > 0; ++name) {
        const int length = qMin(size - 1, 4096);
        result.insert(QString(QChar::fromLatin1(name)), QString(length, 'v'));
        size -= length + 1;
    }
    return result;
}

Wire::Recurrence everyMinute()
{
    return {Wire::AllHours, Wire::AllMinutes, Wire::AllDaysOfWeek, Wire::AllDaysOfMonth, Wire::AllMonths, true};
}

void attributeRows(const std::function<void(const char *, const char *, Edit)> &row)
{
    row("64 attributes", "", [](auto &event) { event.attributes = attributes(64); });
    row("65 attributes", Wire::LimitError, [](auto &event) { event.attributes = attributes(65); });
    row("attribute without name", Wire::InvalidError, [](auto &event) { event.attributes = {{"", "x"}}; });
    row("name of 128", "", [](auto &event) { event.attributes = {{QString(128, 'n'), "x"}}; });
    row("name of 129", Wire::LimitError, [](auto &event) { event.attributes = {{QString(129, 'n'), "x"}}; });
    row("value of 4096", "", [](auto &event) { event.attributes = {{"n", QString(4096, 'v')}}; });
    row("value of 4097", Wire::LimitError, [](auto &event) { event.attributes = {{"n", QString(4097, 'v')}}; });
    row("bare plug-in", "", [](auto &event) { event.attributes = {{"PLUGIN", "libclockalarm"}}; });
    row("plug-in with path", Wire::InvalidError, [](auto &event) { event.attributes = {{"PLUGIN", "a/b"}}; });
    row("text of 32768 in all", "", [](auto &event) { event.attributes = longText(32768); });
    row("text of 32769 in all", Wire::LimitError, [](auto &event) { event.attributes = longText(32769); });
    row("text of 32769 with the buttons", Wire::LimitError, [](auto &event) {
        event.attributes = longText(32767);
        event.buttons = {{0, {{"n", "v"}}}};
    });
    row("read in part", Wire::LimitError, [](auto &event) { event.oversized = true; });
    row("plug-in with backslash", Wire::InvalidError, [](auto &event) { event.attributes = {{"PLUGIN", "a\\b"}}; });
    row("plug-in with line feed", Wire::InvalidError, [](auto &event) { event.attributes = {{"PLUGIN", "a\nb"}}; });
    row("plug-in with NUL", Wire::InvalidError, [](auto &event) {
        event.attributes = {{"PLUGIN", QString("a") + QChar(0)}};
    });
    row("plug-in upwards", Wire::InvalidError, [](auto &event) { event.attributes = {{"PLUGIN", ".."}}; });
}

void recurrenceRows(const std::function<void(const char *, const char *, Edit)> &row)
{
    row("every minute", "", [](auto &event) { event.recurrences = {everyMinute()}; });
    row("16 recurrences", "", [](auto &event) { event.recurrences.fill(everyMinute(), 16); });
    row("17 recurrences", Wire::LimitError, [](auto &event) { event.recurrences.fill(everyMinute(), 17); });
    const auto spoilt = [&row](const char *name, void (*spoil)(Wire::Recurrence &)) {
        row(name, Wire::InvalidError, [spoil](auto &event) {
            event.recurrences = {everyMinute()};
            spoil(event.recurrences[0]);
        });
    };
    spoilt("hour 24", [](Wire::Recurrence &recurrence) { recurrence.hours |= 1u << 24; });
    spoilt("minute 60", [](Wire::Recurrence &recurrence) { recurrence.minutes |= Q_UINT64_C(1) << 60; });
    spoilt("weekday 7", [](Wire::Recurrence &recurrence) { recurrence.daysOfWeek |= 1u << 7; });
    spoilt("day 0", [](Wire::Recurrence &recurrence) { recurrence.daysOfMonth |= 1u; });
    spoilt("month 0", [](Wire::Recurrence &recurrence) { recurrence.months |= 1u; });
    spoilt("month 13", [](Wire::Recurrence &recurrence) { recurrence.months |= 1u << 13; });
}

} // namespace

void TestValidator::eventIsTakenOrRefused_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const char *error, Edit edit) {
        QTest::newRow(name) << edit << QString::fromLatin1(error);
    };
    row("empty event", "", [](auto &) {});
    row("ticker 0", "", [](auto &event) { event.ticker = 0; });
    row("ticker -2", Wire::InvalidError, [](auto &event) { event.ticker = -2; });
    row("last ticker", "", [](auto &event) { event.ticker = 253402300799; });
    row("ticker in the year 10000", Wire::InvalidError, [](auto &event) { event.ticker = 253402300800; });
    row("ticker at the end of time", Wire::InvalidError,
        [](auto &event) { event.ticker = std::numeric_limits<qint64>::max(); });
    row("all flags", "", [](auto &event) { event.flags = Wire::AllFlags; });
    row("unknown flag", Wire::InvalidError, [](auto &event) { event.flags = 1u << 8; });
    row("timeout snooze of a week", "", [](auto &event) { event.timeoutSnooze = LongestSnooze; });
    row("longer", Wire::InvalidError, [](auto &event) { event.timeoutSnooze = LongestSnooze + 1; });
    row("negative", Wire::InvalidError, [](auto &event) { event.timeoutSnooze = -1; });
    row("8 buttons", "", [](auto &event) { event.buttons.fill({600, attributes(16)}, 8); });
    row("9 buttons", Wire::LimitError, [](auto &event) { event.buttons.fill({}, 9); });
    row("button with 17 attributes", Wire::LimitError, [](auto &event) { event.buttons = {{0, attributes(17)}}; });
    row("button with negative snooze", Wire::InvalidError, [](auto &event) { event.buttons = {{-1, {}}}; });
    attributeRows(row);
    recurrenceRows(row);
}

void TestValidator::eventIsTakenOrRefused()
{
    QFETCH(Edit, edit);
    QFETCH(QString, error);

    Wire::Event event;
    edit(event);
    const auto result = validate(event);
    QCOMPARE(result ? QString() : result.error().name, error);
    QVERIFY(result || !result.error().text.isEmpty());
}

void TestValidator::filterIsTakenOrRefused()
{
    Wire::Filter filter;
    for (int i = 0; i < 64; ++i)
        filter.attributes.insert(QString::number(i), i);
    QVERIFY(validate(filter));
    filter.attributes.insert("one more", 0);
    QCOMPARE(validate(filter).error().name, Wire::LimitError);
    QCOMPARE(validate(Wire::Filter{{}, true}).error().name, Wire::LimitError);
}

void TestValidator::textsOfAnswersAreLimited()
{
    QVERIFY(validateTone(QString(4096, 't')));
    QCOMPARE(validateTone(QString(4097, 't')).error().name, Wire::LimitError);
    QVERIFY(validateWho(QString(128, 'w')));
    QCOMPARE(validateWho(QString(129, 'w')).error().name, Wire::LimitError);
}

QTEST_GUILESS_MAIN(TestValidator)
#include "tst_validator.moc"
