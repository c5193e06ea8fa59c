// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/output.h"

#include "alarmctl/texts.h"
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"

#include <QJsonDocument>

#include <cstdio>

namespace {

void printText(const QByteArray &text)
{
    std::fputs(text.constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

QString daysText(const QList<int> &days)
{
    QStringList texts;
    for (const int day : days)
        texts.append(dayNames().value(day, "?"));
    return texts.isEmpty() ? QStringLiteral("once") : texts.join(',');
}

QJsonObject jsonOf(const Clock::QmAlarmEvent &alarm)
{
    QJsonArray days;
    for (const int day : alarm.repeatDays())
        days.append(day);
    quint64 trigger = 0;
    const bool hasTrigger = Clock::Utility::instance()->triggerFromContext(alarm.cookie(), trigger);
    return {{"cookie", qint64(alarm.cookie())},
            {"time", alarm.alarmTime().toString("HH:mm")},
            {"title", alarm.title()},
            {"enabled", alarm.isEnabled()},
            {"days", days},
            {"snooze", int(alarm.snooze())},
            {"tone", alarm.tone()},
            {"nextTrigger", hasTrigger ? QJsonValue(qint64(trigger)) : QJsonValue()}};
}

QString lineOf(const Clock::QmAlarmEvent &alarm)
{
    const QString line
        = QStringLiteral("%1  %2  %3  %4  snooze %5")
              .arg(alarm.cookie(), 5)
              .arg(alarm.alarmTime().toString("HH:mm"), alarm.isEnabled() ? "on " : "off", daysText(alarm.repeatDays()))
              .arg(alarm.snooze(), 2);
    return alarm.title().isEmpty() ? line : line + "  " + alarm.title();
}

} // namespace

void printLine(const QString &line)
{
    QString clean = line;
    for (QChar &character : clean) {
        if (character.category() == QChar::Other_Control)
            character = ' ';
    }
    printText(clean.toUtf8());
}

void printJson(const QJsonArray &array)
{
    printText(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

void printJson(const QJsonObject &object)
{
    printText(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void printNumbers(const QList<qint64> &numbers, bool json)
{
    QJsonArray array;
    for (const qint64 number : numbers) {
        if (json)
            array.append(number);
        else
            printLine(QString::number(number));
    }
    if (json)
        printJson(array);
}

void printAlarms(const QList<Clock::QmAlarmEvent> &alarms, bool json)
{
    QJsonArray array;
    for (const Clock::QmAlarmEvent &alarm : alarms) {
        if (json)
            array.append(jsonOf(alarm));
        else
            printLine(lineOf(alarm));
    }
    if (json)
        printJson(array);
}
