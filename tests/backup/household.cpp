// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/backup/household.h"

#include "platform/timedclient/interface.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace Wire = Astel::Timed::Wire;

bool Household::startAfresh()
{
    m_daemon.kill();
    bool isGone = true;
    for (const auto location :
         {QStandardPaths::GenericDataLocation, QStandardPaths::GenericConfigLocation, QStandardPaths::MusicLocation})
        isGone &= QDir(QStandardPaths::writableLocation(location)).removeRecursively();
    return isGone && m_daemon.start();
}

Support::Run Household::backUp(const QStringList &arguments, const QStringList &environment) const
{
    return Support::run("clock-backup", arguments, environment);
}

QList<Wire::Record> Household::records()
{
    Astel::Timed::Interface timed;
    auto reply = timed.backup_events();
    reply.waitForFinished();
    QList<Wire::Record> records = reply.value().records;
    const auto titleOf = [](const Wire::Record &record) { return record.event.attributes.value("TITLE"); };
    std::stable_sort(records.begin(), records.end(),
                     [&](const auto &one, const auto &other) { return titleOf(one) < titleOf(other); });
    return records;
}

quint32 Household::add(const Wire::Event &event)
{
    Wire::registerTypes();
    auto call = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, "add_event");
    call << QVariant::fromValue(event);
    return QDBusConnection::sessionBus().call(call).arguments().value(0).toUInt();
}

QList<quint32> Household::cookies()
{
    Astel::Timed::Interface timed;
    auto reply = timed.query({});
    reply.waitForFinished();
    QList<quint32> cookies;
    const QVariantList values = reply.value();
    for (const QVariant &value : values)
        cookies.append(value.toUInt());
    return cookies;
}

Wire::Event dailyAlarm(int hour, const QString &title, const QString &tone)
{
    Wire::Event event;
    event.flags = Wire::Backup | Wire::KeepAlive | Wire::Alarm;
    event.attributes = {{"TITLE", title}, {"PLUGIN", "libclockalarm"}};
    if (!tone.isEmpty())
        event.attributes.insert("sound", tone);
    event.recurrences = {{1u << hour, 1, Wire::AllDaysOfWeek, Wire::AllDaysOfMonth, Wire::AllMonths, true}};
    event.buttons = {{600, {}}};
    return event;
}

Backup::Archive backupFromElsewhere()
{
    return {QDateTime::currentDateTimeUtc(),
            {{dailyAlarm(6, "From elsewhere", "/home/a/Music/new.mp3"), "WAITING", 0}},
            {{"Korvo/Clock.conf", "[Clock]\nSnoozeTime=30\n"}},
            {{"/home/a/Music/new.mp3", "music", "new.mp3", "sound"}}};
}

QString music(const QString &file)
{
    return QStandardPaths::writableLocation(QStandardPaths::MusicLocation) + '/' + file;
}

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Korvo/Clock.conf";
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}
