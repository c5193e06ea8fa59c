// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/backup/archive.h"
#include "platform/timedclient/wire.h"
#include "tests/support/privatebus.h"
#include "tests/support/run.h"

#include <QTemporaryDir>

/** A bus, the real daemon on it, and the settings and backups of a user whose home is the test's. */
class Household
{
public:
    bool start() { return m_bus.isRunning() && m_daemon.start(); }
    /** As on a new device: no alarm, no settings, no tone of the user's own. */
    bool startAfresh();
    Support::TimedProcess &daemon() { return m_daemon; }

    /** Runs clock-backup; this process answers calls meanwhile. */
    Support::Run backUp(const QStringList &arguments, const QStringList &environment = {}) const;
    /** A path for a backup. */
    QString file(const QString &name = "alarms.backup") const { return m_folder.filePath(name); }

    /** What a backup would take of the alarms now, in an order of its own. */
    static QList<Astel::Timed::Wire::Record> records();
    static quint32 add(const Astel::Timed::Wire::Event &event);
    static QList<quint32> cookies();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    QTemporaryDir m_folder;
};

/** An event that rings every day and has a title, as an alarm of some program. */
Astel::Timed::Wire::Event dailyAlarm(int hour, const QString &title, const QString &tone = {});

/** A backup of another device: an alarm, settings and a tone that are not here. */
Backup::Archive backupFromElsewhere();

/** A file in the user's folder of music. */
QString music(const QString &file);
/** The clock's settings file. */
QString settingsFile();
/** The file's bytes; null where there is none. */
QByteArray contentOf(const QString &path);
/** Writes a file, and the folders it needs. */
bool write(const QString &path, const QByteArray &content);
